// HELP: all commands, the host's with what they do.
#include "host/commands/CommandFunctions.h"
#include "host/commands/HostCommands.h"
#include "host/ed/AcEdCommandStack.h"
#include "host/ed/acutPrintf.h"

namespace commands {

void Help() {
  CString group;
  for (const auto& command : acedRegCmds->commands()) {
    if (command->groupName() != group) {
      group = command->groupName();
      acutPrintText(L"\n" + (group == L"HOST" ? CString(L"主程序命令") : L"插件命令 " + group) + L"：\n");
    }
    CString name = L"  " + command->globalName();
    if (command->localName() != command->globalName()) name += L"（" + command->localName() + L"）";
    const CString title = group == L"HOST" ? Title(command->globalName()) : CString();
    acutPrintText(name + (title.IsEmpty() ? CString() : L"  " + title) + L"\n");
  }
  acutPrintText(L"每行一个命令或回答；空行重复上一命令；*cancel* 取消。\n");
}

} // namespace commands
