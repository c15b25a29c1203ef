// TOLERANCE: its text, without the frames around the parts.
#include "host/scene/painters/DimensionStyle.h"
#include "host/scene/painters/Painters.h"
#include "host/scene/text/TextLine.h"

#include <cmath>

void scene::painters::Tolerance(Pen& pen) {
  const EntityTags& tags = pen.tags();
  TextLine line;
  // "%%v" parts the boxes; font changes of the symbols in braces are no letters.
  CString text = tags.text(1);
  text.Replace(L"%%v", L" | ");
  line.text = text;
  line.style = pen.style(CString(L"Standard"));
  line.height = DimensionStyleOf(pen).text;
  line.position = tags.point(10);
  line.vertical = Vertical::middle;
  const AcGePoint3d along = tags.optionalPoint(11).value_or(AcGePoint3d(1, 0, 0));
  line.rotation = std::atan2(along.y, along.x);
  DrawTextLine(pen, line);
  pen.leaveOut(L"形位公差只画文字");
}
