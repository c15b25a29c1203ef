// ID: the coordinates of a point.
#include "host/commands/CommandFunctions.h"
#include "host/commands/NumberText.h"
#include "host/ed/EdPrompts.h"
#include "host/ed/acutPrintf.h"

namespace commands {

void Id() {
  const auto at = ed::AskPoint({L"指定点:", {}, RSG_NONULL, {}});
  if (at.hasValue())
    acutPrintf(L"\nX = %s  Y = %s  Z = %s\n", NumberText(at.point.x), NumberText(at.point.y),
               NumberText(at.point.z));
}

} // namespace commands
