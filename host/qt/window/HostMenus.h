// Which of the host's commands stand in which menu, and how their first prompts are answered there.
#pragma once

#include <span>

namespace desktop {

struct HostMenuRow {
  const wchar_t* menu;    // its title; rows of one menu follow each other
  const wchar_t* command; // null for a line between groups
  const wchar_t* answer;  // to its first prompt; null for none
  const wchar_t* title;   // null for the command's own
  const char* shortcut;   // null for none
};
std::span<const HostMenuRow> HostMenus();

} // namespace desktop
