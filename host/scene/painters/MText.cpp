// MTEXT: text in lines, with codes, columns and a background.
#include "host/db/DxfText.h"
#include "host/scene/painters/MTextDrawing.h"
#include "host/scene/painters/Painters.h"

#include <algorithm>
#include <cmath>

namespace scene {
namespace {

// The text comes in pieces that may part anything, escapes included.
CString wholeText(const EntityTags& tags) {
  std::string text;
  for (const DxfTag& tag : tags) {
    if (tag.code != 3 && tag.code != 1) continue;
    text += tag.value;
    if (tag.code == 1) break;
  }
  return dxf::decodeText(text);
}

// By a direction or by an angle, whichever comes last.
AcGeVector3d directionOf(const EntityTags& tags) {
  AcGePoint3d direction(1, 0, 0);
  for (const DxfTag& tag : tags) {
    if (tag.code == 11) direction = AcGePoint3d();
    ReadCoordinate(tag, 11, direction);
    if (tag.code != 50) continue;
    const double angle = RealOf(tag); // radians here, unlike elsewhere
    const AcGeMatrix3d plane = AcGeMatrix3d::planeToWorld(tags.normal());
    direction = AcGePoint3d() + plane * AcGeVector3d(std::cos(angle), std::sin(angle), 0);
  }
  return direction.asVector();
}

constexpr long long kMostColumns = 1000;

struct Columns {
  long long count = 0;
  double width = 0;
  double gutter = 0;
  double height = 0;
  std::vector<double> heights;

  void applyTo(MTextForm& form) const {
    if (count < 2 || count > kMostColumns || !(width > 0)) return;
    form.width = width;
    form.gutter = gutter;
    form.columnHeights = heights;
    form.columnHeights.resize(static_cast<std::size_t>(count), height);
  }
};

// Newer files keep columns in an object within the entity.
Columns embeddedColumns(DxfTags all) {
  Columns columns;
  bool inside = false;
  for (const DxfTag& tag : all) {
    if (tag.code >= 1000) break;
    if (tag.code == 101) inside = true;
    if (!inside) continue;
    if (tag.code == 72) columns.count = IntegerOf(tag);
    if (tag.code == 44) columns.width = RealOf(tag);
    if (tag.code == 45) columns.gutter = RealOf(tag);
    if (tag.code == 41) columns.height = RealOf(tag);
    if (tag.code == 46) columns.heights.push_back(RealOf(tag));
  }
  return columns;
}

TextBackground backgroundOf(const EntityTags& tags) {
  enum Bit : long long { kFill = 1, kWindowColor = 2, kFrame = 16 };
  TextBackground background;
  const long long bits = tags.integer(90);
  if ((bits & kFill) != 0)
    background.fill = Color::fromIndex(static_cast<int>(std::clamp<long long>(tags.integer(63), 1, 255)));
  if ((bits & kFill) != 0 && tags.has(421)) background.fill = Color::fromTrueColor(tags.integer(421));
  if ((bits & kWindowColor) != 0) background.fill = Color{{}, Color::Kind::background, 255};
  background.framed = (bits & kFrame) != 0;
  background.border = std::clamp(tags.real(45, 1.5), 1.0, 5.0) - 1;
  return background;
}

} // namespace

void painters::MText(Pen& pen) {
  constexpr long long kExactly = 2;
  const EntityTags& tags = pen.tags();
  MTextForm form;
  form.height = tags.real(40, 2.5);
  if (!(form.height > 0)) return pen.leaveOut(L"字高为零的文字");
  form.width = std::max(0.0, tags.real(41));
  form.attachment = static_cast<int>(std::clamp<long long>(tags.integer(71, 1), 1, 9));
  form.lineSpacing = tags.real(44, 1);
  form.exactSpacing = tags.integer(73) == kExactly;
  const auto all = tags.all();
  embeddedColumns(all).applyTo(form);
  const CString styleName = tags.text(7);
  MTextPlace place;
  place.at = tags.point(10);
  place.normal = tags.normal();
  place.along = directionOf(tags);
  DrawMText(pen, wholeText(tags), pen.style(styleName.IsEmpty() ? CString(L"Standard") : styleName), form,
            place, backgroundOf(tags));
}

} // namespace scene
