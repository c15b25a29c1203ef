// CIRCLE: by centre and radius or diameter.
#include "host/commands/AppendEntity.h"
#include "host/commands/CommandFunctions.h"
#include "host/db/AcDbCurves.h"
#include "host/ed/EdPrompts.h"

namespace commands {

void Circle() {
  const auto centre = ed::AskPoint({L"指定圆心:", {}, RSG_NONULL, {}});
  if (!centre.hasValue()) return;
  constexpr int positive = RSG_NONULL | RSG_NOZERO | RSG_NONEG;
  auto size = ed::AskDistance({L"指定半径或 [直径(D)]:", L"Diameter", positive, centre.point});
  double radius = size.real;
  if (size.isKeyword(L"Diameter")) {
    size = ed::AskDistance({L"指定直径:", {}, positive, centre.point});
    radius = size.real / 2;
  }
  if (!size.hasValue()) return;
  AppendEntity(std::make_unique<AcDbCircle>(centre.point, AcGeVector3d::kZAxis, radius));
}

} // namespace commands
