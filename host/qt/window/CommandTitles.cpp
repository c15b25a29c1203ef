#include "host/qt/window/CommandTitles.h"

namespace desktop {

void CommandTitles::addPlugIn(const CString& plugInFile) {
  for (auto& group : ed::ReadPlugInMenu(plugInFile)) m_menus.push_back(std::move(group));
}

CString CommandTitles::title(const CString& command) const {
  const CString found = ed::TitleIn(m_menus, command);
  return found.IsEmpty() && m_hostTitle ? m_hostTitle(command) : found;
}

} // namespace desktop
