#include "plugin/graph/DrawUnit.h"

#include "host/db/AcDbDatabase.h"
#include "host/db/AcDbHeader.h"
#include "host/db/DxfText.h"

int VkDbGetDrawUnit(const AcDbDatabase* database) {
  constexpr long long kMetres = 6;
  if (!database) database = acdbHostApplicationServices()->workingDatabase();
  if (!database) return 0;
  const auto tags = database->header().variable("$INSUNITS");
  return !tags.empty() && dxf::toInteger(tags.front().value) == kMetres ? 1 : 0;
}
