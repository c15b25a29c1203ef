// What commands are called in menus and completion. The host's titles are handed in; a plug-in brings a file
// of its own name with the ending ".menu" beside it: UTF-8, "[menu]" begins a menu, other lines are a
// command's name, a blank and its title; "#" begins a comment.
#pragma once

#include "host/afx/CString.h"

#include <functional>
#include <string_view>
#include <vector>

namespace desktop {

struct MenuEntry {
  CString command;
  CString title;
};
struct MenuGroup {
  CString title;
  std::vector<MenuEntry> entries;
};

// What a menu file says. Entries before the first menu are left out.
std::vector<MenuGroup> ParseMenuFile(std::string_view bytes);

class CommandTitles {
 public:
  explicit CommandTitles(std::function<CString(const CString&)> hostTitle)
      : m_hostTitle(std::move(hostTitle)) {}
  // Reads the menu file of a plug-in; nothing happens where it has none.
  void addPlugIn(const CString& plugInFile);
  const std::vector<MenuGroup>& plugInMenus() const { return m_menus; }
  // Empty for an unknown command.
  CString title(const CString& command) const;

 private:
  std::function<CString(const CString&)> m_hostTitle;
  std::vector<MenuGroup> m_menus;
};

} // namespace desktop
