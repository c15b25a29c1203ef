// The patterns of linetypes, one for each scale that occurs.
#pragma once

#include "host/db/AcDbObjectId.h"
#include "host/scene/Scene.h"

#include <map>
#include <tuple>

namespace scene {

class LinetypePatterns {
 public:
  // The index of the pattern in patterns, added where it is new; Primitive::kNone for a linetype without
  // dashes.
  std::int32_t find(const AcDbObjectId& linetype, double scale, bool bySegment,
                    std::vector<Pattern>& patterns);
  // Whether letters or shapes belong to its dashes, which the patterns don't have.
  static bool hasFigures(const AcDbObjectId& linetype);

 private:
  std::map<std::tuple<const void*, double, bool>, std::int32_t> m_known;
};

} // namespace scene
