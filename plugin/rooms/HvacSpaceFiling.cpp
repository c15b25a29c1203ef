// How a room stands in a drawing file: docs/formats/rooms.md.
#include <algorithm>
#include <limits>
#include <string_view>
#include <vector>

#include "host/db/DxfDecodeContext.h"
#include "host/db/DxfRecordEditor.h"
#include "host/db/DxfText.h"
#include "host/db/EntityMath.h"
#include "plugin/rooms/VkDbHvacSpace.h"

namespace {

constexpr int kMarkerCode = 100;
constexpr std::string_view kMarker = "VkDbHvacSpace";
constexpr int kVersionCode = 90;
constexpr int kPlaceCode = 10;
constexpr int kHeightCode = 40;
constexpr int kRotationCode = 50;
constexpr int kNumberCode = 1;
constexpr int kNameCode = 3;
constexpr int kCornerCountCode = 91;
constexpr int kCornerCodes[] = {11, 21};
constexpr int kNormalCode = 210;

// Tells codes that were seen already: the first group of a code counts, which is the one that a change goes
// to.
class SeenCodes {
 public:
  bool isFirst(int code) {
    if (std::find(m_seen.begin(), m_seen.end(), code) != m_seen.end()) return false;
    m_seen.push_back(code);
    return true;
  }

 private:
  std::vector<int> m_seen;
};

bool IsCorner(int code) {
  return code == kCornerCodes[0] || code == kCornerCodes[1];
}

} // namespace

void VkDbHvacSpace::dxfInFields(DxfTags tags, const DxfDecodeContext& context) {
  AcDbEntity::dxfInFields(tags, context);
  const VkDbHvacSpace preset;
  m_version = preset.m_version;
  m_position = preset.m_position;
  m_normal = preset.m_normal;
  m_rotation = preset.m_rotation;
  m_textHeight = preset.m_textHeight;
  m_number.Empty();
  m_name.Empty();
  m_loads = preset.m_loads;
  m_boundary.clear();
  m_boundaryChanged = false;
  SeenCodes seen;
  for (const DxfTag& tag : entity::FieldScope(tags)) {
    if (tag.code == kMarkerCode && dxf::trimBlanks(tag.value) != kMarker) break; // of a class derived from it
    if (!IsCorner(tag.code) && !seen.isFirst(tag.code)) continue;
    switch (tag.code) {
    case kVersionCode:
      m_version =
          static_cast<int>(context.integerIn(tag, 1, std::numeric_limits<int>::max(), preset.m_version));
      break;
    case kPlaceCode:
      m_position.x = context.real(tag);
      break;
    case kPlaceCode + 10:
      m_position.y = context.real(tag);
      break;
    case kPlaceCode + 20:
      m_position.z = context.real(tag);
      break;
    case kHeightCode: {
      const double height = context.real(tag, preset.m_textHeight);
      m_textHeight = height > 0 ? height : preset.m_textHeight;
      break;
    }
    case kRotationCode:
      m_rotation = entity::fromDegrees(context.real(tag));
      break;
    case kNumberCode:
      m_number = dxf::decodeText(tag.value);
      break;
    case kNameCode:
      m_name = dxf::decodeText(tag.value);
      break;
    case kCornerCodes[0]:
      m_boundary.emplace_back(context.real(tag), 0.0);
      break;
    case kCornerCodes[1]:
      if (!m_boundary.empty()) m_boundary.back().y = context.real(tag);
      break;
    default:
      entity::readVector(tag, kNormalCode, m_normal, context);
      for (const auto& group : kHvacSpaceLoadGroups)
        if (group.code == tag.code) m_loads.*group.figure = context.real(tag);
      break;
    }
  }
}

void VkDbHvacSpace::dxfOutFields(DxfRecordEditor& editor) const {
  AcDbEntity::dxfOutFields(editor);
  editor.subclass(kMarker);
  const bool isNew = rawRecord().isEmpty();
  const auto putBoundary = [&] {
    editor.integer(kCornerCountCode, static_cast<long long>(m_boundary.size()));
    std::string run;
    for (const AcGePoint2d& corner : m_boundary)
      run += DxfRecordEditor::realTag(kCornerCodes[0], corner.x) +
             DxfRecordEditor::realTag(kCornerCodes[1], corner.y);
    editor.replaceRun(kCornerCodes, run);
  };
  // Groups that stand between the corners go with them, and come back below.
  if (m_boundaryChanged && !isNew) putBoundary();
  editor.integer(kVersionCode, m_version);
  editor.point(kPlaceCode, m_position);
  editor.real(kHeightCode, m_textHeight);
  entity::writeDegrees(editor, kRotationCode, m_rotation, true);
  editor.text(kNumberCode, m_number);
  editor.text(kNameCode, m_name);
  for (const auto& group : kHvacSpaceLoadGroups) editor.real(group.code, m_loads.*group.figure);
  if (isNew) putBoundary();
  editor.vector(kNormalCode, m_normal, {0, 0, 1});
}
