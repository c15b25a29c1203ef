// Puts a line of text where a TEXT, an attribute or a tolerance wants it.
#pragma once

#include "host/scene/Pen.h"

namespace scene {

enum class Horizontal { left, center, right, aligned, middle, fit };
enum class Vertical { baseline, bottom, middle, top };

struct TextLine {
  CString text; // with its codes
  StyleLook style;
  double height = 2.5;
  double widthFactor = 1;
  double rotation = 0; // radians
  AcGeVector3d normal{0, 0, 1};
  AcGePoint3d position; // in the coordinates of the normal
  AcGePoint3d second;   // the other end, when aligned or fit
  Horizontal horizontal = Horizontal::left;
  Vertical vertical = Vertical::baseline;
};

void DrawTextLine(Pen& pen, const TextLine& line);
// A line under, over or through a piece of text: from a point along a length, in the coordinates of the
// matrix.
void DrawDecoration(Pen& pen, const AcGeMatrix3d& toSpace, const AcGePoint3d& from, const AcGeVector3d& over,
                    double height);

} // namespace scene
