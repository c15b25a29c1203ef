// Small services around the working drawing.
#pragma once

#include "host/db/AcDbObjectId.h"
#include "host/db/AcadStatus.h"

class AcDbEntity;

class ArxDbgUtils {
 public:
  // Takes the entity into the current space of the working drawing, which owns it then. It stays open for
  // write. eNoDatabase without a drawing; on failure the caller keeps the entity.
  static Acad::ErrorStatus addToCurrentSpace(AcDbEntity* entity);
  // The same and closes it; on failure the entity is deleted.
  static Acad::ErrorStatus addToCurrentSpaceAndClose(AcDbEntity* entity);
  // The status by its name, in a message box.
  static void rxErrorMsg(Acad::ErrorStatus status);
};
