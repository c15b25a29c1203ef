#include "plugin/frame/VkDefineCommand.h"

#include "host/afx/MessageLog.h"
#include "host/ed/AcEdCommandStack.h"

void VkDefineCommand(const wchar_t* application, const VkCmdTable* table, int count, int /*reserved*/) {
  for (const VkCmdTable* row = table; row != table + count; ++row) {
    const auto flags = static_cast<unsigned>(row->flags);
    const wchar_t* group = (flags & ACRX_CMD_TRANSPARENT) != 0 ? kTransparentCommandGroup : kCommandGroup;
    const auto status = acedRegCmds->addCommand(group, row->command, row->command, flags, row->handler);
    if (status == Acad::eOk) continue;
    afx::LogError(CString(application) + L"：命令 " + row->command + L" 不能注册（" +
                  acadErrorStatusText(status) + L"）");
  }
}
