// What a plug-in calls its commands: a file of its own name with the ending ".menu" beside it. UTF-8;
// "[menu]" begins a menu, other lines are a command's name, a blank and its title; "#" begins a comment.
#pragma once

#include "host/afx/CString.h"

#include <string_view>
#include <vector>

namespace ed {

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
// The menus of the plug-in in that file; none where it has no menu file.
std::vector<MenuGroup> ReadPlugInMenu(const CString& plugInFile);
// The title that the menus have for the command; empty where they lack it.
CString TitleIn(const std::vector<MenuGroup>& menus, const CString& command);

} // namespace ed
