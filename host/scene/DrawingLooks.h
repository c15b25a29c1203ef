// What the entities of one drawing are drawn by beside their layers: its settings and text styles. The
// drawing of the picture has one, and so has each drawing that it refers to.
#pragma once

#include "host/scene/DrawingVariables.h"
#include "host/scene/text/StyleLook.h"

namespace scene {

struct DrawingLooks {
  explicit DrawingLooks(AcDbDatabase& drawing)
      : database(drawing), variables(VariablesOf(drawing)), styles(drawing) {}
  // A drawing within the other: how things are shown is a matter of the outer one, and how dimensions look
  // without a picture of their own, of the inner.
  DrawingLooks(AcDbDatabase& drawing, const DrawingVariables& outer) : DrawingLooks(drawing) {
    const DrawingVariables own = variables;
    variables = outer;
    variables.dimensionScale = own.dimensionScale;
    variables.dimensionArrow = own.dimensionArrow;
    variables.dimensionText = own.dimensionText;
  }

  AcDbDatabase& database;
  DrawingVariables variables;
  StyleLooks styles;
};

} // namespace scene
