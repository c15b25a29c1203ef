// LINE: straight segments from point to point, until Enter.
#include "host/commands/AppendEntity.h"
#include "host/commands/CommandFunctions.h"
#include "host/db/AcDbCurves.h"
#include "host/db/AcDbObjectPointer.h"
#include "host/ed/AcApDocManager.h"
#include "host/ed/EdPrompts.h"
#include "host/ed/acutPrintf.h"

#include <vector>

namespace commands {

void Line() {
  const auto start = ed::AskPoint({L"指定第一点:", {}, RSG_NONULL, {}});
  if (!start.hasValue()) return;
  std::vector<AcGePoint3d> points{start.point};
  std::vector<AcDbObjectId> lines;
  while (true) {
    const bool canClose = lines.size() >= 2;
    const auto next =
        ed::AskPoint({canClose ? L"指定下一点或 [闭合(C)/放弃(U)]:" : L"指定下一点或 [放弃(U)]:",
                      canClose ? L"Close Undo" : L"Undo",
                      0,
                      {}});
    if (next.isCancelled() || next.isNone()) return;
    if (next.isKeyword(L"Undo")) {
      if (lines.empty()) {
        acutPrintf(L"\n没有可放弃的线段。\n");
        continue;
      }
      AcDbObjectPointer<AcDbLine> last(lines.back(), AcDb::kForWrite);
      if (last) last->erase();
      lines.pop_back();
      points.pop_back();
      curDoc()->edit().lastPoint = points.back();
      continue;
    }
    const bool close = next.isKeyword(L"Close");
    const AcGePoint3d end = close ? points.front() : next.point;
    const auto id = AppendEntity(std::make_unique<AcDbLine>(points.back(), end));
    if (id.isNull() || close) return;
    lines.push_back(id);
    points.push_back(end);
  }
}

} // namespace commands
