// POINT: one point.
#include "host/commands/AppendEntity.h"
#include "host/commands/CommandFunctions.h"
#include "host/db/AcDbCurves.h"
#include "host/ed/EdPrompts.h"

namespace commands {

void Point() {
  const auto at = ed::AskPoint({L"指定点:", {}, RSG_NONULL, {}});
  if (at.hasValue()) AppendEntity(std::make_unique<AcDbPoint>(at.point));
}

} // namespace commands
