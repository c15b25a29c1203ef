#include "host/scene/DrawingVariables.h"

#include "host/db/AcDbDatabase.h"

namespace scene {

DrawingVariables VariablesOf(const AcDbDatabase& database) {
  const AcDbHeader& header = database.header();
  const auto positive = [&](const char* name, double otherwise) {
    const double value = header.real(name).value_or(otherwise);
    return value > 0 ? value : otherwise;
  };
  const auto flag = [&](const char* name, bool otherwise) {
    return header.integer(name).value_or(otherwise ? 1 : 0) != 0;
  };
  DrawingVariables found;
  found.linetypeScale = positive("$LTSCALE", found.linetypeScale);
  found.paperLinetypeScale = flag("$PSLTSCALE", found.paperLinetypeScale);
  found.fills = flag("$FILLMODE", found.fills);
  found.quickText = flag("$QTEXTMODE", found.quickText);
  found.pointMode = static_cast<int>(header.integer("$PDMODE").value_or(0) & 0x7F);
  found.pointSize = header.real("$PDSIZE").value_or(0);
  found.attributeMode = static_cast<int>(header.integer("$ATTMODE").value_or(1) & 3);
  found.mirrorsText = flag("$MIRRTEXT", found.mirrorsText);
  found.dimensionScale = positive("$DIMSCALE", found.dimensionScale);
  found.dimensionArrow = positive("$DIMASZ", found.dimensionArrow);
  found.dimensionText = positive("$DIMTXT", found.dimensionText);
  return found;
}

} // namespace scene
