#include "plugin/tools/CZPMeasureJig.h"

#include "host/db/AcDbCurves.h"
#include "host/db/AcDbObjectPointer.h"
#include "host/ed/ArxDbgUtils.h"
#include "host/ge/AcGeCircArc3d.h"
#include "host/ge/AcGePlane.h"
#include "plugin/graph/DrawUnit.h"
#include "plugin/graph/Screen.h"

CZPMeasureJig::~CZPMeasureJig() {
  for (int i = 0; i < ObjectIds.length(); ++i) {
    AcDbObjectPointer<AcDbEntity> piece(ObjectIds[i], AcDb::kForWrite);
    if (piece) piece->erase();
  }
  delete Entity;
}

// --- while dragging ---

AcEdJig::DragStatus CZPMeasureJig::sampler() {
  setUserInputControls(kNullResponseAccepted | kAccept3dCoordinates);
  setKeywordList(L"L A U");
  AcGePoint3d point;
  // The rubber band runs to the beginning of the path, as the area will be closed.
  const auto status = ObjectIds.isEmpty() ? acquirePoint(point) : acquirePoint(point, FirstPoint);
  if (status > kNormal) return status;
  if (status == kNormal && !point.isEqualTo(CurrentPoint)) {
    CurrentPoint = point;
    return kNormal;
  }
  return status == kNormal ? kNoChange : status;
}

bool CZPMeasureJig::update() {
  if (!Entity) return false;
  if (auto* line = AcDbLine::cast(Entity)) {
    line->setEndPoint(CurrentPoint);
    return true;
  }
  auto* arc = AcDbArc::cast(Entity);
  if (!arc || Points.length() < 2) return true;
  AcGeCircArc3d through;
  AcGeError status = AcGe::eOk;
  through.set(Points[Points.length() - 2], CurrentPoint, Points.last(), status);
  if (status != AcGe::eOk) return true; // on a line: the arc stays as it was
  const double offset = through.refVec().angleOnPlane(AcGePlane(through.center(), through.normal()));
  arc->setNormal(through.normal());
  arc->setCenter(through.center());
  arc->setRadius(through.radius());
  arc->setStartAngle(through.startAng() + offset);
  arc->setEndAngle(through.endAng() + offset);
  return true;
}

// --- pieces ---

void CZPMeasureJig::AddToModelSpace() {
  if (!Entity) return;
  constexpr int kRed = 1;
  Entity->setColorIndex(kRed);
  const bool added = ArxDbgUtils::addToCurrentSpace(Entity) == Acad::eOk;
  ObjectIds.append(Entity->objectId()); // also where that failed: pieces and points go by number
  if (added)
    Entity->close();
  else
    delete Entity;
  Entity = new AcDbLine(CurrentPoint, CurrentPoint);
}

bool CZPMeasureJig::Undo() {
  if (ObjectIds.isEmpty()) return false;
  AcDbObjectPointer<AcDbEntity> last(ObjectIds.last(), AcDb::kForWrite);
  if (last) {
    last->erase();
    last.close();
  }
  ObjectIds.removeAt(ObjectIds.length() - 1);
  if (!Points.isEmpty()) Points.removeAt(Points.length() - 1);
  if (!Points.isEmpty()) CurrentPoint = Points.last();
  if (auto* line = AcDbLine::cast(Entity)) line->setStartPoint(CurrentPoint);
  return true;
}

VkGePolyline2d CZPMeasureJig::GetOutLine() const {
  constexpr double kFullTurn = 6.283185307179586;
  VkGePolyline2d outline;
  for (int i = 0; i < ObjectIds.length(); ++i) {
    AcDbObjectPointer<AcDbCurve> piece(ObjectIds[i], AcDb::kForRead);
    AcGePoint3d start;
    AcGePoint3d end;
    if (!piece || piece->getStartPoint(start) != Acad::eOk || piece->getEndPoint(end) != Acad::eOk) continue;
    double sweep = 0;
    if (const auto* arc = AcDbArc::cast(piece.object())) {
      const auto back = (end - arc->center()).angleTo(start - arc->center(), arc->normal());
      sweep = arc->normal().isEqualTo(AcGeVector3d::kZAxis) ? kFullTurn - back : back - kFullTurn;
    }
    outline.AppendVertex(start, sweep);
    outline.AppendVertex(end, 0.0);
  }
  outline.CleanPolyDumpPoint();
  return outline;
}

// --- measures ---

double CZPMeasureJig::MeasureLength() {
  doIt();
  return GetOutLine().GetLength() / 1000.0;
}

double CZPMeasureJig::MeasureLength(AcGePoint3d& first, AcGePoint3d& last) {
  const double length = MeasureLength();
  if (!Points.isEmpty()) {
    first = Points.first();
    last = Points.last();
  }
  return length;
}

double CZPMeasureJig::MeasureArea() {
  doIt();
  if (Entity) {
    if (auto* line = AcDbLine::cast(Entity)) line->setEndPoint(FirstPoint);
    AddToModelSpace();
    ZP::FlushGraphics();
  }
  const double metresPerThousandUnits = VkDbGetDrawUnit(nullptr) != 0 ? 0.001 : 1.0;
  const double unitsPerMetre = metresPerThousandUnits * 1000.0;
  return GetOutLine().GetArea() / unitsPerMetre / unitsPerMetre;
}
