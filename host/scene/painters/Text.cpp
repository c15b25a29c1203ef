// TEXT, and attributes with their definitions, which are texts with a name.
#include "host/db/AcDbDatabase.h"
#include "host/scene/painters/Painters.h"
#include "host/scene/text/TextLine.h"

#include <algorithm>

namespace scene {
namespace {

constexpr long long kInvisible = 1; // flags of attributes
constexpr long long kConstant = 2;
constexpr long long kBackward = 2; // flags of texts
constexpr long long kUpsideDown = 4;

void draw(Pen& pen, const CString& text, int verticalCode) {
  const EntityTags& tags = pen.tags();
  TextLine line;
  line.text = text;
  const CString styleName = tags.text(7);
  line.style = pen.style(styleName.IsEmpty() ? CString(L"Standard") : styleName);
  line.style.oblique = tags.radians(51);
  const long long flags = tags.integer(71);
  line.style.backward = (flags & kBackward) != 0;
  line.style.upsideDown = (flags & kUpsideDown) != 0;
  line.height = tags.real(40, 2.5);
  if (!(line.height > 0)) return pen.leaveOut(L"字高为零的文字");
  line.widthFactor = tags.real(41, 1);
  if (!(line.widthFactor > 0)) line.widthFactor = 1;
  line.rotation = tags.radians(50);
  line.normal = tags.normal();
  line.horizontal = static_cast<Horizontal>(std::clamp<long long>(tags.integer(72), 0, 5));
  line.vertical = static_cast<Vertical>(std::clamp<long long>(tags.integer(verticalCode), 0, 3));
  line.position = tags.point(10);
  const auto second = tags.optionalPoint(11);
  const bool twoEnds = line.horizontal == Horizontal::aligned || line.horizontal == Horizontal::fit;
  line.second = second.value_or(line.position);
  const bool isPlain = line.horizontal == Horizontal::left && line.vertical == Vertical::baseline;
  if (!twoEnds && !isPlain && second) line.position = *second;
  DrawTextLine(pen, line);
}

} // namespace

void painters::Text(Pen& pen) {
  draw(pen, pen.tags().text(1), 73);
}

void painters::Attrib(Pen& pen) {
  const int mode = pen.variables().attributeMode;
  const bool hidden = (pen.tags().integer(70) & kInvisible) != 0;
  if (mode == 0 || (hidden && mode != 2)) return;
  draw(pen, pen.tags().text(1), 74);
}

void painters::Attdef(Pen& pen) {
  // In an insertion its attributes stand for it, unless it is the same everywhere.
  const bool constant = (pen.tags().integer(70) & kConstant) != 0;
  if (pen.frame().inBlock) return constant ? Attrib(pen) : Nothing(pen);
  draw(pen, pen.tags().text(constant ? 1 : 2), 74);
}

} // namespace scene
