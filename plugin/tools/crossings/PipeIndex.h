// Finds the curves under work that may pass a place, by their boxes in plan, while they are trimmed and
// split. Curves go by their position in the list under work; one that stands there twice is found twice.
#pragma once

#include <optional>
#include <unordered_map>
#include <vector>

#include "host/db/SpatialIndex.h"
#include "host/ge/AcGePoint3d.h"
#include "plugin/graph/AcArray.h"

namespace ge {
class Curve;
}

namespace crossings {

// The geometry of a curve that can be opened for read; none where there is none to be had.
std::optional<ge::Curve> GeometryOf(const AcDbObjectId& id);

// Whether a point is one of the curve, without its extension. The distance allowed is that of the curve
// kernel: the global tolerance, and the rounding of coordinates far from the origin, where the tolerance
// alone would lose pipes.
bool PassesThrough(const ge::Curve& curve, const AcGePoint3d& point);

class PipeIndex {
 public:
  explicit PipeIndex(const AcDbObjectIdArray& ids);

  // The curve at the next position.
  void Append(const AcDbObjectId& id);
  // The curve has changed. Where it merely lost a little the tree stays as it is.
  void Refresh(const AcDbObjectId& id);

  // Positions whose curves may lie within the radius of the point as seen from above, ascending. None that
  // does is left out.
  std::vector<int> Near(const AcGePoint3d& point, double radius = 0.0) const;

 private:
  struct Pipe {
    AcDbObjectId id;
    ge::Box2d box; // empty for what is no curve
    std::vector<int> positions;
  };
  std::size_t NumberOf(const AcDbObjectId& id);

  std::vector<Pipe> m_pipes;
  std::unordered_map<AcDbObjectId, std::size_t> m_numbers;
  int m_length = 0;
  SpatialIndex m_boxes; // keys are numbers of pipes
};

} // namespace crossings
