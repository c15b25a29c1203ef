// LWPOLYLINE.
#include "host/db/AcDbPolyline.h"
#include "host/scene/painters/Painters.h"
#include "host/scene/painters/WidePolyline.h"

void scene::painters::LwPolyline(Pen& pen) {
  const auto* polyline = AcDbPolyline::cast(&pen.entity());
  if (!polyline) return;
  std::vector<PolylineVertex> vertices(polyline->numVerts());
  for (unsigned int i = 0; i < polyline->numVerts(); ++i) {
    PolylineVertex& vertex = vertices[i];
    AcGePoint2d at;
    polyline->getPointAt(i, at);
    vertex.point = {at.x, at.y, polyline->elevation()};
    polyline->getBulgeAt(i, vertex.bulge);
    polyline->getWidthsAt(i, vertex.startWidth, vertex.endWidth);
  }
  DrawPolyline(pen, polyline->normal(), vertices, polyline->isClosed(), polyline->hasPlinegen());
}
