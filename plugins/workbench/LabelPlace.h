// Where a label stands.
#pragma once

#include "host/ge/AcGePoint3d.h"

#include <optional>

class AcDbCurve;

namespace workbench {

struct LabelPlace {
  AcGePoint3d point;     // of the base line
  double rotation = 0;   // radians
  bool isCentred = true; // the point is the middle of the text and not its beginning
};

// The direction in which a text along it is read: from the left, or from the right for upright ones. Above
// -90 up to 90 degrees, in radians.
double ReadingDirection(double direction);

// Along the curve, a gap away from it, at the point of it nearest to the wished one and on that one's side;
// without a wish above its middle. Drawing units. A curve without a length has its label at its start.
LabelPlace PlaceAlong(const AcDbCurve& curve, const std::optional<AcGePoint3d>& wished, double gap,
                      double height);

} // namespace workbench
