// The functions that draw the kinds of entities, a source each.
#pragma once

namespace scene {

class Pen;

namespace painters {

void Arc(Pen& pen);
void Attdef(Pen& pen);
void Attrib(Pen& pen);
void Circle(Pen& pen);
void Dimension(Pen& pen);
void Ellipse(Pen& pen);
void Face(Pen& pen);
void Hatch(Pen& pen);
void Image(Pen& pen);
void Insert(Pen& pen);
void Leader(Pen& pen);
void Line(Pen& pen);
void LwPolyline(Pen& pen);
void Mesh(Pen& pen);
void MLine(Pen& pen);
void MText(Pen& pen);
void MultiLeader(Pen& pen);
void Nothing(Pen& pen); // what has no picture
void Point(Pen& pen);
void Polyline(Pen& pen);
void Ray(Pen& pen);
void Solid(Pen& pen);
void Spline(Pen& pen);
void Table(Pen& pen);
void Text(Pen& pen);
void Tolerance(Pen& pen);
void Viewport(Pen& pen);
void Wipeout(Pen& pen);
void XLine(Pen& pen);

} // namespace painters
} // namespace scene
