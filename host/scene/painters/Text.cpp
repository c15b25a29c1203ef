// TEXT, and attributes with their definitions, which are texts with a name.
#include "host/db/AcDbAttribute.h"
#include "host/scene/painters/Painters.h"
#include "host/scene/text/TextLine.h"

#include <algorithm>

namespace scene {
namespace {

const StyleLook& styleOf(const Pen& pen, const AcDbText& text) {
  if (text.textStyle()) return pen.style(text.textStyle());
  // In a file whose styles stand behind its texts they have but the name.
  const CString name = pen.tags().text(7);
  return pen.style(name.IsEmpty() ? CString(L"Standard") : name);
}

void draw(Pen& pen, const AcDbText& text, const CString& shown) {
  TextLine line;
  line.text = shown;
  line.style = styleOf(pen, text);
  line.style.oblique = text.oblique();
  line.style.backward = text.isBackward();
  line.style.upsideDown = text.isUpsideDown();
  line.height = text.height();
  if (!(line.height > 0)) return pen.leaveOut(L"字高为零的文字");
  line.widthFactor = text.widthFactor();
  if (!(line.widthFactor > 0)) line.widthFactor = 1;
  line.rotation = text.rotation();
  line.normal = text.normal().isZeroLength() ? AcGeVector3d(0, 0, 1) : text.normal().normal();
  line.horizontal = static_cast<Horizontal>(std::clamp(text.horizontalMode(), 0, 5));
  line.vertical = static_cast<Vertical>(std::clamp(text.verticalMode(), 0, 3));
  line.position = text.ownPosition();
  const auto& second = text.ownAlignmentPoint();
  const bool twoEnds = line.horizontal == Horizontal::aligned || line.horizontal == Horizontal::fit;
  line.second = second.value_or(line.position);
  const bool isPlain = line.horizontal == Horizontal::left && line.vertical == Vertical::baseline;
  if (!twoEnds && !isPlain && second) line.position = *second;
  DrawTextLine(pen, line);
}

} // namespace

void painters::Text(Pen& pen) {
  if (const auto* text = AcDbText::cast(&pen.entity())) draw(pen, *text, text->textString());
}

void painters::Attrib(Pen& pen) {
  const auto* text = AcDbTaggedText::cast(&pen.entity());
  const int mode = pen.variables().attributeMode;
  if (!text || mode == 0 || (text->isInvisible() && mode != 2)) return;
  draw(pen, *text, text->textString());
}

void painters::Attdef(Pen& pen) {
  const auto* definition = AcDbAttributeDefinition::cast(&pen.entity());
  if (!definition) return;
  // In an insertion its attributes stand for it, unless it is the same everywhere.
  const bool constant = definition->isConstant();
  if (pen.frame().inBlock) return constant ? Attrib(pen) : Nothing(pen);
  draw(pen, *definition, constant ? definition->textString() : definition->tag());
}

} // namespace scene
