// The symbol's circle with an opening of 45 degrees on each side of every higher pipe.
#include <memory>
#include <vector>

#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbCurves.h"
#include "host/ge/AcGeCircArc3d.h"
#include "host/ge/AcGePlane.h"
#include "host/ge/CurveClosest.h"
#include "plugin/base/Tolerance.h"
#include "plugin/graph/CurveEnds.h"
#include "plugin/tools/ZPKwCl.h"
#include "plugin/tools/crossings/PipeCuts.h"
#include "plugin/tools/crossings/PipeIndex.h"
#include "plugin/tools/crossings/SymbolParts.h"

namespace {

constexpr double kEighthTurn = 0.7853981633974483;  // 45 degrees
constexpr double kQuarterTurn = 1.5707963267948966; // 90 degrees
constexpr double kFullTurn = 6.283185307179586;
constexpr double kOpening = 0.125; // of the circle

// What is left of the circle between two openings. A piece without a length, which no arc can be, keeps its
// place in the list so that its neighbours know that they end at an opening.
struct Piece {
  std::unique_ptr<AcDbArc> arc;
  bool isEmpty = false;

  double Length() const {
    double parameter = 0;
    double length = 0;
    if (isEmpty || arc->getEndParam(parameter) != Acad::eOk) return 0;
    arc->getDistAtParam(parameter, length);
    return length;
  }
  bool Has(const AcGePoint3d& point) const {
    ge::Curve curve;
    return !isEmpty && arc->getCurve(curve) == Acad::eOk && crossings::PassesThrough(curve, point);
  }
  void MoveStart(const AcGePoint3d& point) { isEmpty = isEmpty || !ZP::ChangeCurveStart(arc.get(), point); }
  void MoveEnd(const AcGePoint3d& point) { isEmpty = isEmpty || !ZP::ChangeCurveEnd(arc.get(), point); }
  AcGePoint3d PointAt(double distance) const {
    AcGePoint3d point;
    arc->getPointAtDist(distance, point);
    return point;
  }
};

using Pieces = std::vector<Piece>;

std::vector<AcGePoint3d> PointsOnCircle(const AcDbObjectIdArray& ids, const AcDbCircle& circle) {
  std::vector<AcGePoint3d> points;
  for (const auto& id : ids) {
    const AcDbObjectPointer<AcDbCurve> curve(id, AcDb::kForRead);
    if (curve) crossings::MeetCircle(*curve.object(), circle, points);
  }
  return points;
}

// The first piece that the point lies on becomes two that meet there. In an opening it cuts nothing.
void SplitAt(Pieces& pieces, const AcGePoint3d& point) {
  for (std::size_t i = 0; i < pieces.size(); ++i) {
    if (!pieces[i].Has(point)) continue;
    Piece rest{std::unique_ptr<AcDbArc>(AcDbArc::cast(pieces[i].arc->clone()))};
    pieces[i].MoveEnd(point);
    rest.MoveStart(point);
    pieces.insert(pieces.begin() + static_cast<std::ptrdiff_t>(i) + 1, std::move(rest));
    return;
  }
}

// Opens the circle where pieces were split. What is not longer than an opening goes.
void OpenSplits(Pieces& pieces, double opening) {
  const auto erase = [&](std::size_t i) { pieces.erase(pieces.begin() + static_cast<std::ptrdiff_t>(i)); };
  bool isFirstGone = false;
  for (std::size_t i = 0; i + 1 < pieces.size();) {
    const double length = pieces[i].Length();
    if (ZP::LessOrEqual(length, opening)) {
      isFirstGone = isFirstGone || i == 0;
      erase(i);
    } else {
      pieces[i].MoveEnd(pieces[i].PointAt(length - opening));
      ++i;
    }
  }
  // The piece that has become the first one begins at a split, unlike the one that was.
  for (std::size_t i = isFirstGone ? 0 : 1; i < pieces.size();) {
    if (ZP::LessOrEqual(pieces[i].Length(), opening)) {
      erase(i);
    } else {
      pieces[i].MoveStart(pieces[i].PointAt(opening));
      ++i;
    }
  }
}

} // namespace

bool ZPKwCl::CreateArcOuch(AcDbObjectIdArray ids, AcDbCircle* circle, AcDbBlockTableRecord*& record) {
  const auto points = PointsOnCircle(ids, *circle);
  if (points.empty()) return false;
  AcGePoint3d start = points.front();
  start.rotateBy(kEighthTurn, AcGeVector3d::kZAxis, circle->center());
  AcGePoint3d end = start;
  end.rotateBy(-kQuarterTurn, AcGeVector3d::kZAxis, circle->center());
  Pieces pieces;
  pieces.push_back({std::make_unique<AcDbArc>()});
  CreateArc(pieces.front().arc.get(), start, end, circle->center(), circle->radius());
  for (std::size_t i = 1; i < points.size(); ++i) SplitAt(pieces, points[i]);
  OpenSplits(pieces, circle->radius() * kFullTurn * kOpening);
  for (Piece& piece : pieces) crossings::AddPart(*record, piece.arc.release());
  return true;
}

// The long way round, away from the pipe that passes between end and start: the chord's perpendicular points
// to the left of the chord, and the pipe comes from the right.
void ZPKwCl::CreateArc(AcDbArc* arc, AcGePoint3d start, AcGePoint3d end, AcGePoint3d center, double radius) {
  AcGeVector3d away = (start - end).perpVector();
  away.normalize();
  const AcGeCircArc3d circular(start, center + away * radius, end);
  const AcGePlane plane(circular.center(), circular.normal());
  const double offset = circular.refVec().angleOnPlane(plane);
  arc->setNormal(circular.normal());
  arc->setCenter(center);
  arc->setRadius(radius);
  arc->setStartAngle(circular.startAng() + offset);
  arc->setEndAngle(circular.endAng() + offset);
  ZP::ChangeCurveStart(arc, start);
  ZP::ChangeCurveEnd(arc, end);
}
