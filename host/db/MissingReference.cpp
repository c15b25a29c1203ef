#include "host/db/MissingReference.h"

#include "host/db/AcDbBlockReference.h"
#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbDatabase.h"

#include <algorithm>

std::optional<entity::MissingReference> entity::missingReferenceOf(const AcDbBlockReference& reference) {
  constexpr double kPaperHeight = 2.5; // of a text that can be read where the drawing has a scale
  const auto* block = AcDbBlockTableRecord::cast(reference.blockTableRecord().object());
  if (!block || block->isErased() || !block->isFromExternalReference()) return std::nullopt;
  const auto status = block->xrefStatus();
  if (status == AcDb::kXrfResolved || status == AcDb::kXrfUnloaded || !block->entities().empty())
    return std::nullopt;
  const AcDbHeader& header = block->database()->header();
  const double usual = header.real("$TEXTSIZE").value_or(kPaperHeight);
  const double scaled = header.real("$DIMSCALE").value_or(1) * kPaperHeight;
  return MissingReference{block->pathName(), std::max({usual, scaled, 0.0})};
}
