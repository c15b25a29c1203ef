// Taking out the symbols of an earlier run, and bringing their pipes back to the joint.
#include <memory>
#include <optional>
#include <vector>

#include "host/db/AcDbBlockReference.h"
#include "host/db/AcDbCurves.h"
#include "host/db/AcDbObjectPointer.h"
#include "host/db/AcDbPoint.h"
#include "plugin/graph/CurveEnds.h"
#include "plugin/tools/ZPKwCl.h"
#include "plugin/tools/crossings/PipeIndex.h"

namespace {

// The circle that the symbol was drawn with, by its first part. Null where that is neither circle nor arc,
// and for a symbol that shows nothing.
std::unique_ptr<AcDbCircle> CircleOf(const AcDbBlockReference& symbol) {
  std::vector<AcDbEntity*> exploded;
  if (symbol.explode(exploded) != Acad::eOk) return nullptr;
  std::vector<std::unique_ptr<AcDbEntity>> parts(exploded.begin(), exploded.end());
  if (parts.empty()) return nullptr;
  if (const auto* arc = AcDbArc::cast(parts.front().get()))
    return std::make_unique<AcDbCircle>(arc->center(), AcGeVector3d::kZAxis, arc->radius());
  if (!AcDbCircle::cast(parts.front().get())) return nullptr;
  return std::unique_ptr<AcDbCircle>(static_cast<AcDbCircle*>(parts.front().release()));
}

// A pipe of which one end, and nothing else, lies on the circle, with the joint ahead, runs to the joint
// again. Whether it did.
bool RunBack(AcDbCurve& pipe, const AcDbCircle& circle, const AcGePoint3d& joint) {
  const AcDbPoint place(joint);
  std::vector<AcGePoint3d> points;
  if (pipe.intersectWith(&place, AcDb::kExtendThis, points) != Acad::eOk || points.empty()) return false;
  points.clear();
  if (circle.intersectWith(&pipe, AcDb::kOnBothOperands, points) != Acad::eOk || points.size() != 1)
    return false;
  AcGePoint3d end;
  if (pipe.getStartPoint(end) == Acad::eOk && points[0].isEqualTo(end))
    return ZP::ChangeCurveStart(&pipe, joint);
  return pipe.getEndPoint(end) == Acad::eOk && points[0].isEqualTo(end) && ZP::ChangeCurveEnd(&pipe, joint);
}

} // namespace

void ZPKwCl::CheckPipecoil(AcDbObjectIdArray& ids) {
  AcDbObjectIdArray curves;
  std::optional<crossings::PipeIndex> index; // made for the first symbol
  for (const auto& id : ids) {
    const AcDbObjectPointer<AcDbEntity> entity(id, AcDb::kForWrite);
    if (!entity) continue;
    if (AcDbCurve::cast(entity.object())) curves.append(id);
    auto* symbol = AcDbBlockReference::cast(entity.object());
    if (!symbol) continue;
    const AcGePoint3d joint = symbol->position();
    if (const auto circle = CircleOf(*symbol)) {
      if (!index) index.emplace(ids);
      for (const int position : index->Near(circle->center(), circle->radius())) {
        AcDbObjectPointer<AcDbCurve> pipe(ids[position], AcDb::kForWrite);
        if (!pipe || !RunBack(*pipe.object(), *circle, joint)) continue;
        pipe.close(); // to be read
        index->Refresh(ids[position]);
      }
    }
    symbol->erase();
  }
  ids = curves;
}
