#include "plugin/tools/crossings/PipeIndex.h"

#include <algorithm>
#include <cmath>

#include "host/db/AcDbCurve.h"
#include "host/db/AcDbObjectPointer.h"
#include "host/db/CurveCrossings.h"
#include "host/ge/CurveClosest.h"
#include "host/ge/CurveTolerance.h"

namespace crossings {

namespace {

// Whether the old box finds the curve as well as the new one: it is around it, and less than twice as large.
// A pipe that is trimmed at a symbol loses so little that taking it out of the tree and putting it back is
// not worth it.
bool WillDo(const ge::Box2d& old, const ge::Box2d& now) {
  const auto size = [](const ge::Box2d& box) { return box.maxX - box.minX + box.maxY - box.minY; };
  return old.Contains(now) && size(old) < 2 * size(now);
}

// Once more the tolerance, for the rounding of an arc's extents.
ge::Box2d BoxOf(const AcDbObjectId& id) {
  const auto curve = GeometryOf(id);
  if (!curve || curve->Status() != ge::CurveStatus::kOk) return {};
  return entity::planBox(*curve).Grown(curve->Tolerance());
}

} // namespace

std::optional<ge::Curve> GeometryOf(const AcDbObjectId& id) {
  const AcDbObjectPointer<AcDbCurve> curve(id, AcDb::kForRead);
  ge::Curve geometry;
  if (!curve || curve->getCurve(geometry) != Acad::eOk) return std::nullopt;
  return geometry;
}

bool PassesThrough(const ge::Curve& curve, const AcGePoint3d& point) {
  return ge::IsOnCurve(curve, point);
}

PipeIndex::PipeIndex(const AcDbObjectIdArray& ids) {
  std::vector<SpatialIndex::Entry> entries;
  entries.reserve(static_cast<std::size_t>(ids.length()));
  for (const auto& id : ids) {
    const std::size_t number = NumberOf(id);
    m_pipes[number].positions.push_back(m_length++);
    if (m_pipes[number].positions.size() == 1) {
      m_pipes[number].box = BoxOf(id);
      entries.push_back({m_pipes[number].box, number});
    }
  }
  m_boxes = SpatialIndex(entries);
}

std::size_t PipeIndex::NumberOf(const AcDbObjectId& id) {
  const auto [entry, isNew] = m_numbers.try_emplace(id, m_pipes.size());
  if (isNew) m_pipes.push_back({id, {}, {}});
  return entry->second;
}

void PipeIndex::Append(const AcDbObjectId& id) {
  m_pipes[NumberOf(id)].positions.push_back(m_length++);
  Refresh(id);
}

void PipeIndex::Refresh(const AcDbObjectId& id) {
  const std::size_t number = NumberOf(id);
  Pipe& pipe = m_pipes[number];
  const ge::Box2d box = BoxOf(id);
  if (WillDo(pipe.box, box)) return;
  m_boxes.remove({pipe.box, number});
  pipe.box = box;
  m_boxes.insert({pipe.box, number});
}

std::vector<int> PipeIndex::Near(const AcGePoint3d& point, double radius) const {
  const double magnitude = std::max(std::fabs(point.x), std::fabs(point.y)) + radius;
  ge::Box2d box;
  box.Add(AcGePoint2d(point.x, point.y));
  std::vector<int> positions;
  m_boxes.visit(box.Grown(radius + 2.0 * ge::CurveTolerance(magnitude)), [&](std::size_t number) {
    positions.insert(positions.end(), m_pipes[number].positions.begin(), m_pipes[number].positions.end());
  });
  std::sort(positions.begin(), positions.end());
  return positions;
}

} // namespace crossings
