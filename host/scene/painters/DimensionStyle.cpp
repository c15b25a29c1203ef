#include "host/scene/painters/DimensionStyle.h"

#include "host/db/AcDbDatabase.h"
#include "host/db/AcDbSymbolTable.h"
#include "host/scene/Pen.h"

#include <algorithm>

namespace scene {

DimensionStyle DimensionStyleOf(const Pen& pen) {
  const DrawingVariables& variables = pen.variables();
  DimensionStyle style;
  style.arrow = variables.dimensionArrow;
  style.text = variables.dimensionText;
  double scale = variables.dimensionScale;
  const AcDbSymbolTable* table = pen.database().tableOf("DIMSTYLE");
  AcDbObjectId id;
  if (table) table->getAt(pen.tags().text(3), id);
  if (const AcDbObject* record = id.object()) {
    const auto all = record->record().tags();
    for (const DxfTag& tag : dxfOwnTags(all)) {
      if (tag.code == 40) scale = RealOf(tag, 1);
      if (tag.code == 41) style.arrow = RealOf(tag);
      if (tag.code == 140) style.text = RealOf(tag);
      if (tag.code == 144) style.lengthFactor = RealOf(tag, 1);
      if (tag.code == 271) style.decimals = static_cast<int>(std::clamp<long long>(IntegerOf(tag), 0, 8));
    }
  }
  if (!(scale > 0)) scale = 1;
  style.arrow *= scale;
  style.text *= scale;
  return style;
}

} // namespace scene
