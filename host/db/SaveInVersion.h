// Saving a drawing in another version of the file format than its own.
#pragma once

#include "host/db/AcadStatus.h"

class AcDbDatabase;

namespace AcDb {

// Versions as callers of saveAs number them.
enum DwgVersion {
  kDwgR12 = 16,
  kDwg2000 = 23,
  kDwg2004 = 25,
  kDwg2007 = 27,
  kDwg2010 = 29,
};

} // namespace AcDb

// AcDbDatabase::saveAs in that version; the drawing itself stays in its own. What the version has no place
// for is left out. eInvalidInput for a number that is no version, otherwise as saveAs.
Acad::ErrorStatus acdbSaveAs(AcDbDatabase* database, const wchar_t* fileName, int version);
