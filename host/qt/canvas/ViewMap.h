// Where points of the drawing stand on the screen, and back. Screen coordinates are Qt's, y down.
#pragma once

#include "host/ge/AcGePoint2d.h"
#include "host/ge/AcGePoint3d.h"
#include "host/ge/Box2d.h"

#include <QPointF>
#include <QSizeF>

namespace desktop {

struct ViewMap {
  QSizeF size;              // of the window
  AcGePoint2d centre;       // world, in the middle of the window
  double unitsPerPixel = 1; // above 0

  QPointF toScreen(const AcGePoint2d& p) const {
    return {size.width() / 2 + (p.x - centre.x) / unitsPerPixel,
            size.height() / 2 - (p.y - centre.y) / unitsPerPixel};
  }
  QPointF toScreen(const AcGePoint3d& p) const { return toScreen(AcGePoint2d(p.x, p.y)); }
  AcGePoint2d toWorld(const QPointF& p) const {
    return {centre.x + (p.x() - size.width() / 2) * unitsPerPixel,
            centre.y - (p.y() - size.height() / 2) * unitsPerPixel};
  }
  ge::Box2d visible() const {
    return ge::Box2d::FromCorners(toWorld({0, 0}), toWorld({size.width(), size.height()}));
  }
};

} // namespace desktop
