// AcDbDatabase::loadLineTypeFile and where it looks for the file.
#include "host/afx/MessageLog.h"
#include "host/afx/Paths.h"
#include "host/db/AcDbDatabase.h"
#include "host/db/AcDbObjectPointer.h"
#include "host/db/AcDbTables.h"
#include "host/db/LinetypeFile.h"

#include <filesystem>

namespace {

std::vector<CString>& supportFolders() {
  static std::vector<CString> folders;
  return folders;
}

bool exists(const CString& path) {
  std::error_code ignored;
  return std::filesystem::is_regular_file(afx::NativePath(path), ignored);
}

// As given, then in the support folders, then in the installation.
CString findSupportFile(const CString& file) {
  if (exists(file)) return file;
  std::vector<CString> folders = supportFolders();
  folders.push_back(afx::InstallRoot());
  for (const CString& folder : folders)
    if (const CString path = folder + L"/" + file; exists(path)) return path;
  return {};
}

Acad::ErrorStatus addLinetype(AcDbLinetypeTable& table, const LinetypeDefinition& definition) {
  auto* record = new AcDbLinetypeTableRecord;
  std::vector<AcDbLinetypeTableRecord::Dash> dashes;
  for (const double length : definition.dashes) dashes.push_back({length});
  auto status = record->setName(definition.name);
  if (status == Acad::eOk) status = record->setComments(definition.description);
  if (status == Acad::eOk) status = record->setDashes(std::move(dashes));
  if (status == Acad::eOk) status = table.add(record);
  if (status == Acad::eOk)
    record->close();
  else
    delete record;
  return status;
}

} // namespace

void AcDbDatabase::setSupportFolders(std::vector<CString> folders) {
  supportFolders() = std::move(folders);
}

Acad::ErrorStatus AcDbDatabase::loadLineTypeFile(const wchar_t* linetype, const wchar_t* file) {
  const CString wanted = linetype;
  const CString path = findSupportFile(file);
  if (path.IsEmpty()) return Acad::eFileNotFound;
  const LinetypeFile definitions = readLinetypeFile(path);
  for (const CString& problem : definitions.problems) afx::LogError(problem);
  if (!definitions.readable) return Acad::eFilerError;
  AcDbObjectPointer<AcDbLinetypeTable> table(linetypeTableId(), AcDb::kForWrite);
  if (!table) return table.openStatus();
  const bool all = wanted == L"*";
  if (!all && table->has(wanted)) return Acad::eDuplicateRecordName;
  Acad::ErrorStatus result = Acad::eUndefinedLineType;
  for (const LinetypeDefinition& definition : definitions.linetypes) {
    if (!all && definition.name.CompareNoCase(wanted) != 0) continue;
    if (all && table->has(definition.name)) continue;
    result = addLinetype(*table.object(), definition);
    if (!all) return result;
  }
  return all ? Acad::eOk : result;
}
