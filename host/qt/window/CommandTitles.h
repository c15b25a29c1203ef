// What commands are called in menus and completion. The host's titles are handed in; those of plug-ins stand
// in their menu files.
#pragma once

#include "host/ed/PlugInMenu.h"

#include <functional>

namespace desktop {

class CommandTitles {
 public:
  explicit CommandTitles(std::function<CString(const CString&)> hostTitle)
      : m_hostTitle(std::move(hostTitle)) {}
  // Reads the menu file of a plug-in; nothing happens where it has none.
  void addPlugIn(const CString& plugInFile);
  const std::vector<ed::MenuGroup>& plugInMenus() const { return m_menus; }
  // Empty for an unknown command.
  CString title(const CString& command) const;

 private:
  std::function<CString(const CString&)> m_hostTitle;
  std::vector<ed::MenuGroup> m_menus;
};

} // namespace desktop
