#include "host/dxf/DrawingFile.h"

#include "host/afx/AtomicFile.h"
#include "host/dxf/BinaryDxf.h"
#include "host/dxf/DrawingReader.h"
#include "host/dxf/DrawingWriter.h"
#include "host/dxf/FileEncoding.h"

namespace {

constexpr std::uint64_t kMaxFileSize = std::uint64_t{4} << 30;

// The other form of drawings begins with its version at once, without a group code ahead of it.
bool isDwg(std::string_view bytes) {
  return bytes.starts_with("AC10") || bytes.starts_with("AC1.") || bytes.starts_with("AC2.") ||
         bytes.starts_with("MC0.0");
}

} // namespace

dxf::ReadReport dxf::ReadDrawing(const CString& path, AcDbDatabase& database, const ReadOptions& options) {
  std::string bytes;
  const afx::FileResult file = afx::ReadWholeFile(path, bytes, kMaxFileSize);
  if (!file.ok) {
    ReadReport report;
    report.error = file.message;
    return report;
  }
  database.setFileName(path);
  ReadReport report = ReadDrawingBytes(std::move(bytes), path, database, options);
  report.wasRead = true;
  return report;
}

dxf::ReadReport dxf::ReadDrawingBytes(std::string bytes, const CString& name, AcDbDatabase& database,
                                      const ReadOptions& options) {
  ReadReport report;
  CString trouble;
  DrawingForm& form = database.form();
  if (isDwg(bytes)) {
    report.error = name + L"：这是 DWG 文件，请先转换为 DXF（可安装 dwg2dxf 或 ODA 转换器）";
    return report;
  }
  if (isBinary(bytes)) {
    TagText text = textFromBinary(bytes);
    if (!text.error.IsEmpty() && !options.recover) {
      report.error = name + L"：" + text.error;
      return report;
    }
    trouble = text.error;
    bytes = std::move(text.text);
    form.binary = true;
  }
  DecodedFile decoded = decodeFile(std::move(bytes), form);
  DrawingReader reader(database, std::make_shared<const std::string>(std::move(decoded.text)), options);
  const CString error = reader.read();
  if (!error.IsEmpty()) {
    report.error = name + L"：" + error;
    return report;
  }
  report.ok = true;
  report.repairs = reader.takeRepairs();
  if (!trouble.IsEmpty()) decoded.notes.push_back(trouble);
  for (const CString& note : decoded.notes) report.repairs.insert(report.repairs.begin(), {0, -1, note});
  return report;
}

namespace {

// With the version that the options leave open.
dxf::WriteOptions completed(const AcDbDatabase& database, dxf::WriteOptions options) {
  if (options.version.empty()) options.version = database.form().saveVersion;
  return options;
}

} // namespace

dxf::WriteReport dxf::WriteDrawing(AcDbDatabase& database, const CString& path, const WriteOptions& options) {
  WriteReport report;
  const WriteOptions wanted = completed(database, options);
  database.completeBlocks();
  database.completeClasses();
  afx::AtomicFileWriter file(path);
  DrawingWriter writer(database, wanted, [&](std::string_view bytes) { return file.Write(bytes); });
  writer.write();
  report.losses = writer.losses();
  if (writer.isCancelled()) {
    report.error = path + L"：存图已取消";
    return report;
  }
  const afx::FileResult result = file.Commit();
  report.ok = result.ok;
  if (result.ok && !options.isCopy) database.setFileName(path);
  report.error = result.message;
  return report;
}

std::string dxf::WriteDrawingBytes(AcDbDatabase& database, std::vector<CString>* losses,
                                   const WriteOptions& options) {
  const WriteOptions wanted = completed(database, options);
  database.completeBlocks();
  database.completeClasses();
  std::string bytes;
  DrawingWriter writer(database, wanted, [&](std::string_view piece) {
    bytes += piece;
    return true;
  });
  writer.write();
  if (losses) *losses = writer.losses();
  return bytes;
}

std::vector<CString> dxf::LossesInVersion(AcDbDatabase& database, const std::string& version) {
  database.completeBlocks();
  database.completeClasses();
  const WriteOptions options{version, {}};
  DrawingWriter writer(database, options, [](std::string_view) { return true; });
  writer.write();
  return writer.losses();
}
