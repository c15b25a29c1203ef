// How drawings come from files and go to them. The database does not know any file format; whoever does
// registers itself here (host/dxf does when it is loaded).
#pragma once

#include "host/afx/CString.h"
#include "host/db/AcadStatus.h"

class AcDbDatabase;

class AcDbDrawingFiles {
 public:
  virtual ~AcDbDrawingFiles() = default;
  // Fills a fresh AcDbDatabase(false). eFileNotFound, eFileAccessErr for a file that can't be read,
  // eDamagedFile for one that is no drawing. why is a sentence for the user.
  virtual Acad::ErrorStatus read(AcDbDatabase& database, const CString& path, CString& why) = 0;
  // Replaces the file or leaves it as it was: eFileAccessErr.
  virtual Acad::ErrorStatus write(AcDbDatabase& database, const CString& path, CString& why) = 0;
  // Fills a fresh AcDbDatabase(false) with the drawing that a new one begins with.
  virtual void buildNew(AcDbDatabase& database) = 0;

  static AcDbDrawingFiles* registered();
  // Null takes it away. Not owned.
  static void registerAs(AcDbDrawingFiles* files);
};
