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
  using Key = std::tuple<const void*, double, bool>;
  std::map<Key, std::int32_t> m_known;
  Key m_lastKey; // entities of one linetype mostly follow one another
  std::int32_t m_last = Primitive::kNone;
};

} // namespace scene
