#include "host/scene/LinetypePatterns.h"

#include "host/db/AcDbLinetypeTable.h"

#include <algorithm>
#include <cmath>

namespace scene {

std::int32_t LinetypePatterns::find(const AcDbObjectId& linetype, double scale, bool bySegment,
                                    std::vector<Pattern>& patterns) {
  if (linetype.isNull()) return Primitive::kNone;
  const Key key(linetype.stub(), scale, bySegment);
  if (key == m_lastKey) return m_last;
  m_lastKey = key;
  if (const auto found = m_known.find(key); found != m_known.end()) return m_last = found->second;
  std::int32_t index = Primitive::kNone;
  const auto* record = AcDbLinetypeTableRecord::cast(linetype.object());
  const double length = record ? record->patternLength() * scale : 0;
  if (record && record->dashes().size() > 1 && std::isfinite(length) && length > 0) {
    Pattern pattern;
    pattern.bySegment = bySegment;
    for (const auto& dash : record->dashes()) pattern.dashes.push_back(dash.length * scale);
    index = static_cast<std::int32_t>(patterns.size());
    patterns.push_back(std::move(pattern));
  }
  m_known.emplace(key, index);
  return m_last = index;
}

bool LinetypePatterns::hasFigures(const AcDbObjectId& linetype) {
  const auto* record = AcDbLinetypeTableRecord::cast(linetype.object());
  if (!record) return false;
  const auto tags = record->record().tags();
  const auto own = dxfOwnTags(tags);
  return std::any_of(own.begin(), own.end(), [](const DxfTag& tag) {
    return tag.code == 74 && dxf::toInteger(tag.value).value_or(0) != 0;
  });
}

} // namespace scene
