// What leaders and dimensions without a picture take from their dimension style, in drawing units.
#pragma once

namespace scene {

class Pen;

struct DimensionStyle {
  double arrow = 0.18;
  double text = 0.18;
  double lengthFactor = 1;
  int decimals = 4;
};

// Of the style that group 3 names, else of the drawing's current settings.
DimensionStyle DimensionStyleOf(const Pen& pen);

} // namespace scene
