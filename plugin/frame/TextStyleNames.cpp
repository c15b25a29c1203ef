#include "plugin/frame/TextStyleNames.h"

#include "host/db/AcDbDatabase.h"
#include "host/db/AcDbTextStyleTable.h"

std::vector<CString> TextStyleNames() {
  std::vector<CString> names;
  AcDbDatabase* drawing = acdbHostApplicationServices()->workingDatabase();
  if (!drawing) return names;
  const AcDbObjectPointer<AcDbTextStyleTable> styles(drawing->textStyleTableId(), AcDb::kForRead);
  if (!styles) return names;
  for (const AcDbObjectId& id : styles->records()) {
    const AcDbObjectPointer<AcDbTextStyleTableRecord> style(id, AcDb::kForRead);
    if (style) names.push_back(style->name());
  }
  return names;
}
