// The workbench's commands, in the order of its menus.
#pragma once

#include "host/ed/AcEdCommand.h"

#include <span>

namespace workbench {

struct CommandRow {
  const wchar_t* command; // WB_ and the initials of the title in pinyin
  const wchar_t* title;   // a name by which it can be called, too
  unsigned flags;         // the host's, ACRX_CMD_...
  AcRxFunctionPtr function;
};

std::span<const CommandRow> CommandTable();

} // namespace workbench
