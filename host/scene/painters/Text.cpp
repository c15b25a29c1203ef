// TEXT, and attributes with their definitions, which are texts with a name.
#include "host/db/AcDbAttribute.h"
#include "host/scene/painters/Painters.h"
#include "host/scene/text/TextLine.h"

#include <algorithm>

namespace scene {
namespace {

constexpr long long kBackward = 2; // flags
constexpr long long kUpsideDown = 4;

const StyleLook& styleOf(const Pen& pen, const AcDbText& text) {
  if (text.textStyle()) return pen.style(text.textStyle());
  // In a file whose styles stand behind its texts they have but the name.
  const CString name = pen.tags().text(7);
  return pen.style(name.IsEmpty() ? CString(L"Standard") : name);
}

void draw(Pen& pen, const CString& shown, int verticalCode) {
  const auto* text = AcDbText::cast(&pen.entity());
  if (!text) return;
  const EntityTags& tags = pen.tags();
  TextLine line;
  line.text = shown;
  line.style = styleOf(pen, *text);
  line.style.oblique = text->oblique();
  const long long flags = tags.integer(71);
  line.style.backward = (flags & kBackward) != 0;
  line.style.upsideDown = (flags & kUpsideDown) != 0;
  line.height = text->height();
  if (!(line.height > 0)) return pen.leaveOut(L"字高为零的文字");
  line.widthFactor = text->widthFactor();
  if (!(line.widthFactor > 0)) line.widthFactor = 1;
  line.rotation = text->rotation();
  line.normal = text->normal().isZeroLength() ? AcGeVector3d(0, 0, 1) : text->normal().normal();
  line.horizontal = static_cast<Horizontal>(std::clamp<long long>(tags.integer(72), 0, 5));
  line.vertical = static_cast<Vertical>(std::clamp<long long>(tags.integer(verticalCode), 0, 3));
  line.position = text->ownPosition();
  const auto& second = text->ownAlignmentPoint();
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
  const auto* attribute = AcDbTaggedText::cast(&pen.entity());
  const bool hidden = attribute && attribute->isInvisible();
  if (mode == 0 || (hidden && mode != 2)) return;
  draw(pen, pen.tags().text(1), 74);
}

void painters::Attdef(Pen& pen) {
  // In an insertion its attributes stand for it, unless it is the same everywhere.
  const auto* definition = AcDbAttributeDefinition::cast(&pen.entity());
  const bool constant = definition && definition->isConstant();
  if (pen.frame().inBlock) return constant ? Attrib(pen) : Nothing(pen);
  draw(pen, pen.tags().text(constant ? 1 : 2), 74);
}

} // namespace scene
