// What the database asks of drawing files, answered by this module: registered when it is loaded.
#include "host/afx/Paths.h"
#include "host/db/AcDbDatabase.h"
#include "host/db/AcDbDrawingFiles.h"
#include "host/db/AcDbObjectPointer.h"
#include "host/db/DxfRecordEditor.h"
#include "host/dxf/DrawingFile.h"

#include <filesystem>

namespace {

// A drawing that no file held has no header of its own yet, and without a version others take it for an old
// one.
void completeHeader(AcDbDatabase& database) {
  AcDbObjectPointer<AcDbHeader> header(database.headerId(), AcDb::kForWrite);
  if (!header || !database.form().sections.empty()) return;
  const auto ensure = [&](const char* name, int code, std::string_view value) {
    if (!header->has(name)) header->setVariable(name, DxfRecordEditor::tag(code, value));
  };
  ensure("$ACADVER", 1, database.form().version);
  ensure("$DWGCODEPAGE", 3, database.form().codePage);
  ensure("$HANDSEED", 5, database.handseed().toHex());
  ensure("$INSUNITS", 70, "4");
  ensure("$MEASUREMENT", 70, "1");
}

class RegisteredFiles : public AcDbDrawingFiles {
 public:
  RegisteredFiles() { registerAs(this); }
  ~RegisteredFiles() override {
    if (registered() == this) registerAs(nullptr);
  }

  Acad::ErrorStatus read(AcDbDatabase& database, const CString& path, CString& why) override {
    std::error_code ignored;
    const auto kind = std::filesystem::status(afx::NativePath(path), ignored);
    if (!std::filesystem::exists(kind)) {
      why = path + L"：文件不存在";
      return Acad::eFileNotFound;
    }
    const dxf::ReadReport report = dxf::ReadDrawing(path, database);
    why = report.error;
    if (report.ok) return Acad::eOk;
    // A file whose bytes came is one that can be read, and what is wrong is what stands in it.
    return report.wasRead ? Acad::eDamagedFile : Acad::eFileAccessErr;
  }

  Acad::ErrorStatus write(AcDbDatabase& database, const CString& path, CString& why) override {
    completeHeader(database);
    const dxf::WriteReport report = dxf::WriteDrawing(database, path);
    why = report.error;
    return report.ok ? Acad::eOk : Acad::eFileAccessErr;
  }

  void buildNew(AcDbDatabase& database) override { dxf::BuildNewDrawing(database); }
};

RegisteredFiles s_files;

} // namespace
