#include "host/scene/painters/MTextDrawing.h"

#include "host/scene/text/TextLine.h"

#include <cmath>

namespace scene {
namespace {

AcGeMatrix3d matrixOf(const MTextPlace& place) {
  AcGeVector3d x = place.along - place.normal * place.along.dotProduct(place.normal);
  x = x.isZeroLength() ? place.normal.perpVector() : x.normal();
  AcGeMatrix3d matrix;
  matrix.setCoordSystem(place.at, x, place.normal.crossProduct(x), place.normal);
  return matrix;
}

PathPen box(Pen& pen, const AcGeMatrix3d& matrix, const MTextLayout& layout, double border) {
  PathPen path = pen.path(matrix);
  path.move(AcGePoint3d(layout.left - border, layout.bottom - border, 0));
  path.line(AcGePoint3d(layout.right + border, layout.bottom - border, 0));
  path.line(AcGePoint3d(layout.right + border, layout.top + border, 0));
  path.line(AcGePoint3d(layout.left - border, layout.top + border, 0));
  path.close();
  return path;
}

Color colorOf(const Pen& pen, const CharacterForm& form) {
  if (form.trueColor) return *form.trueColor;
  if (form.color > 0 && form.color < 256) return Color::fromIndex(form.color);
  return pen.look().color;
}

} // namespace

void DrawMText(Pen& pen, const CString& text, const StyleLook& style, const MTextForm& form,
               const MTextPlace& place, const TextBackground& background) {
  CharacterForm initial;
  initial.font = style.font;
  initial.height = form.height;
  initial.widthFactor = style.widthFactor;
  initial.oblique = style.oblique;
  const MTextLayout layout = LayOutMText(ParseMText(text.View(), initial), form, pen.metrics());
  const AcGeMatrix3d matrix = matrixOf(place);
  const double border = background.border * form.height;
  if (background.fill) {
    PathPen path = box(pen, matrix, layout, border);
    pen.fill(path, background.fill);
  }
  if (background.framed) {
    PathPen path = box(pen, matrix, layout, border);
    pen.stroke(path, {.solid = true});
  }
  Pen ink = pen;
  for (const PlacedText& part : layout.texts) {
    const CharacterForm& f = part.form;
    const AcGePoint3d at(part.x, part.y, 0);
    ink.setColor(colorOf(pen, f));
    if (part.text.empty()) {
      DrawDecoration(ink, matrix, at, AcGeVector3d(part.advance, part.slashTo - part.y, 0), f.height);
      continue;
    }
    const double slant = std::fabs(f.oblique) < 1.5 ? std::tan(f.oblique) : 0;
    const AcGeVector3d over(part.advance, 0, 0);
    ink.text(part.text, f.font, matrix, at, AcGeVector3d(f.height * f.widthFactor, 0, 0),
             AcGeVector3d(f.height * slant, f.height, 0));
    const AcGeVector3d up(0, f.height, 0);
    if (f.underlined) DrawDecoration(ink, matrix, at - up * 0.2, over, f.height);
    if (f.overlined) DrawDecoration(ink, matrix, at + up * 1.2, over, f.height);
    if (f.struck) DrawDecoration(ink, matrix, at + up * 0.5, over, f.height);
  }
}

} // namespace scene
