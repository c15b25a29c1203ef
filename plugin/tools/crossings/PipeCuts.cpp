// A pipe is never lost in a cut: where nothing would be left of a part the part isn't made, and what the host
// can't split stays whole.
#include "plugin/tools/crossings/PipeCuts.h"

#include <memory>

#include "host/db/AcDbCircle.h"
#include "host/ed/ArxDbgUtils.h"
#include "host/ge/CurveEnds.h"
#include "plugin/base/Tolerance.h"
#include "plugin/graph/CurveEnds.h"

namespace crossings {

namespace {

struct Ends {
  AcGePoint3d start;
  AcGePoint3d end;
};

Ends EndsOf(const AcDbCurve& pipe) {
  Ends ends;
  pipe.getStartPoint(ends.start);
  pipe.getEndPoint(ends.end);
  return ends;
}

void MoveNearerEnd(AcDbCurve& pipe, const AcGePoint3d& joint, const AcGePoint3d& to) {
  const Ends ends = EndsOf(pipe);
  if (ZP::Greater(ends.start.distanceTo(joint), ends.end.distanceTo(joint)))
    ZP::ChangeCurveEnd(&pipe, to);
  else
    ZP::ChangeCurveStart(&pipe, to);
}

bool CanEndAt(const AcDbCurve& pipe, const AcGePoint3d& point) {
  ge::Curve geometry;
  return pipe.getCurve(geometry) == Acad::eOk && ge::MoveEnd(geometry, point);
}

// The pipe keeps the part up to one point, its copy has that from another one on.
AcDbObjectId Split(AcDbCurve& pipe, const AcGePoint3d& firstEnd, const AcGePoint3d& secondStart) {
  std::unique_ptr<AcDbCurve> rest(AcDbCurve::cast(pipe.clone()));
  if (!rest || !CanEndAt(pipe, firstEnd) || !ZP::ChangeCurveStart(rest.get(), secondStart)) return {};
  if (ArxDbgUtils::addToCurrentSpace(rest.get()) != Acad::eOk) return {};
  const AcDbObjectId id = rest->objectId();
  rest.release()->close();
  ZP::ChangeCurveEnd(&pipe, firstEnd);
  return id;
}

// Where a pipe crosses the circle twice, in its own order.
struct Passage {
  AcGePoint3d in;
  AcGePoint3d out;
  double inDistance = 0; // along the pipe
  double outDistance = 0;
};

Passage PassageOf(const AcDbCurve& pipe, const std::vector<AcGePoint3d>& points) {
  Passage passage{points[0], points[1]};
  pipe.getDistAtPoint(points[0], passage.inDistance);
  pipe.getDistAtPoint(points[1], passage.outDistance);
  if (ZP::Greater(passage.inDistance, passage.outDistance)) {
    std::swap(passage.in, passage.out);
    std::swap(passage.inDistance, passage.outDistance);
  }
  return passage;
}

// Whether the part of the pipe between two distances lies in the circle, which it crosses nowhere between.
bool IsInside(const AcDbCurve& pipe, const AcDbCircle& circle, double from, double to) {
  AcGePoint3d middle;
  return pipe.getPointAtDist((from + to) / 2, middle) == Acad::eOk &&
         ZP::Less(middle.distanceTo(circle.center()), circle.radius());
}

// A pipe that leaves the circle and comes back, such as a ring that begins at the joint, loses what lies
// inside at both ends.
void CutBothEnds(AcDbCurve& pipe, const AcDbCircle& circle, const Passage& passage) {
  double parameter = 0;
  double length = 0;
  pipe.getEndParam(parameter);
  pipe.getDistAtParam(parameter, length);
  const bool beginsInside = IsInside(pipe, circle, 0, passage.inDistance);
  const bool endsInside = IsInside(pipe, circle, passage.outDistance, length);
  if (beginsInside) ZP::ChangeCurveStart(&pipe, passage.in);
  if (endsInside) ZP::ChangeCurveEnd(&pipe, passage.out);
}

} // namespace

bool MeetCircle(const AcDbCurve& curve, const AcDbCircle& circle, std::vector<AcGePoint3d>& points) {
  return curve.intersectWith(&circle, AcDb::kOnBothOperands, points) == Acad::eOk;
}

AcDbObjectId CutLower(AcDbCurve& pipe, const AcDbCircle& circle) {
  std::vector<AcGePoint3d> points;
  if (!MeetCircle(pipe, circle, points)) return {};
  if (points.size() == 1) MoveNearerEnd(pipe, circle.center(), points[0]);
  if (points.size() != 2) return {};
  const Passage passage = PassageOf(pipe, points);
  const Ends ends = EndsOf(pipe);
  const bool beginsThere = passage.in.isEqualTo(ends.start);
  const bool endsThere = passage.out.isEqualTo(ends.end);
  if (!IsInside(pipe, circle, passage.inDistance, passage.outDistance))
    CutBothEnds(pipe, circle, passage);
  else if (beginsThere && !endsThere)
    ZP::ChangeCurveStart(&pipe, passage.out);
  else if (endsThere && !beginsThere)
    ZP::ChangeCurveEnd(&pipe, passage.in);
  else if (!beginsThere)
    return Split(pipe, passage.in, passage.out);
  return {};
}

AcDbObjectId CutUpper(AcDbCurve& pipe, const AcDbCircle& circle) {
  std::vector<AcGePoint3d> points;
  if (!MeetCircle(pipe, circle, points)) return {};
  const AcGePoint3d joint = circle.center();
  if (points.size() == 1) MoveNearerEnd(pipe, joint, joint);
  if (points.size() != 2) return {};
  // A pipe that begins or ends at the joint runs to it already, though it may come back into the circle.
  const Ends ends = EndsOf(pipe);
  if (ends.start.isEqualTo(joint) || ends.end.isEqualTo(joint)) return {};
  return Split(pipe, joint, joint);
}

} // namespace crossings
