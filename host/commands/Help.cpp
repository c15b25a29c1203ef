// HELP: all commands with what they do, those of plug-ins by the titles of their menu files.
#include "host/commands/CommandFunctions.h"
#include "host/commands/HostCommands.h"
#include "host/ed/AcEdCommandStack.h"
#include "host/ed/AcRxDynamicLinker.h"
#include "host/ed/PlugInMenu.h"
#include "host/ed/acutPrintf.h"

namespace commands {
namespace {

std::vector<ed::MenuGroup> PlugInMenus() {
  std::vector<ed::MenuGroup> menus;
  for (const CString& plugIn : acrxDynamicLinker->loadedModules())
    for (auto& menu : ed::ReadPlugInMenu(plugIn)) menus.push_back(std::move(menu));
  return menus;
}

} // namespace

void Help() {
  const auto menus = PlugInMenus();
  CString group;
  for (const auto& command : acedRegCmds->commands()) {
    if (command->groupName() != group) {
      group = command->groupName();
      acutPrintText(L"\n" + (group == L"HOST" ? CString(L"主程序命令") : L"插件命令 " + group) + L"：\n");
    }
    CString name = L"  " + command->globalName();
    if (command->localName() != command->globalName()) name += L"（" + command->localName() + L"）";
    const CString title =
        group == L"HOST" ? Title(command->globalName()) : ed::TitleIn(menus, command->globalName());
    acutPrintText(name + (title.IsEmpty() ? CString() : L"  " + title) + L"\n");
  }
  acutPrintText(L"每行一个命令或回答；空行重复上一命令；*cancel* 取消。\n");
}

} // namespace commands
