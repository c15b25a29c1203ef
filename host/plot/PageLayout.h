// How a part of a scene lies on a page.
#pragma once

#include "host/ge/Box2d.h"

namespace plot {

struct PageOptions {
  ge::Box2d area;   // of the scene, in drawing units; empty: all of it
  double width = 0; // of the paper in millimetres; 0: as the area needs it
  double height = 0;
  double margin = 10;    // on each side
  double scale = 0;      // millimetres on paper for one drawing unit; 0: as large as the paper allows
  double longSide = 420; // of a paper that follows the area
  bool mayTurn = true;   // a paper of a given size lies as the area does
};

// A page and the way from the scene to it: millimetres from the upper left corner, y down.
struct Page {
  double width = 0;
  double height = 0;
  double scale = 1;
  ge::Box2d area;  // what is shown, margins left out
  double left = 0; // where the area's lower left corner lies
  double bottom = 0;

  double x(double sceneX) const { return left + (sceneX - area.minX) * scale; }
  double y(double sceneY) const { return bottom - (sceneY - area.minY) * scale; }
};

// A page for what there is: an area without width or height, or none at all, gets a page nonetheless.
Page LayOutPage(const ge::Box2d& sceneBox, const PageOptions& options);

} // namespace plot
