#include "host/db/AcDbDrawingFiles.h"

#include "host/afx/MessageLog.h"
#include "host/db/AcDbDatabase.h"

namespace {

AcDbDrawingFiles*& current() {
  static AcDbDrawingFiles* files = nullptr;
  return files;
}

} // namespace

AcDbDrawingFiles* AcDbDrawingFiles::registered() {
  return current();
}

void AcDbDrawingFiles::registerAs(AcDbDrawingFiles* files) {
  current() = files;
}

Acad::ErrorStatus AcDbDatabase::readDwgFile(const wchar_t* fileName, int, bool) {
  if (!current()) return Acad::eNotApplicable;
  if (!fileName || !*fileName) return Acad::eInvalidInput;
  if (!isFresh()) return Acad::eNotApplicable;
  CString why;
  const auto status = current()->read(*this, fileName, why);
  if (status == Acad::eOk)
    m_fileName = fileName;
  else
    afx::LogError(why);
  return status;
}

Acad::ErrorStatus AcDbDatabase::saveAs(const wchar_t* fileName) {
  if (!current()) return Acad::eNotApplicable;
  if (!fileName || !*fileName) return Acad::eInvalidInput;
  CString why;
  const auto status = current()->write(*this, fileName, why);
  if (status == Acad::eOk)
    m_fileName = fileName;
  else
    afx::LogError(why);
  return status;
}

// Nothing was put into it since it was made without a default drawing.
bool AcDbDatabase::isFresh() const {
  return m_objects.empty() && m_nextHandle == 1 && m_header->record().isEmpty() && m_form.sections.empty();
}
