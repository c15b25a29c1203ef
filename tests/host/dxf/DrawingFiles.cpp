#include "tests/host/dxf/DrawingFiles.h"

#include "ZpPaths.h"
#include "host/db/AcDbBlockTable.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace {

const std::filesystem::path kFolder = ZP_SOURCE_DIR "/tests/data/drawings";

} // namespace

std::vector<std::string> SampleNames() {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(kFolder))
    if (entry.path().extension() == ".dxf") names.push_back(entry.path().stem().string());
  std::sort(names.begin(), names.end());
  return names;
}

std::string SamplePath(const std::string& name) {
  return (kFolder / (name + ".dxf")).string();
}

std::string SampleBytes(const std::string& name) {
  std::ifstream file(SamplePath(name), std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::string Opened::repairs() const {
  std::string text;
  for (const dxf::Repair& repair : report.repairs)
    if (repair.what.Find(L"缺少标准表项") < 0)
      text += std::to_string(repair.line) + "/" + std::to_string(repair.groupCode) + " " +
              repair.what.ToUtf8() + "\n";
  return text;
}

Opened Open(std::string bytes, bool recover) {
  Opened opened{std::make_unique<AcDbDatabase>(false), {}};
  dxf::ReadOptions options;
  options.recover = recover;
  opened.report = dxf::ReadDrawingBytes(std::move(bytes), L"图.dxf", *opened.database, options);
  return opened;
}

std::string Tags(std::string_view lines, const char* lineEnd) {
  std::string text;
  while (!lines.empty()) {
    const std::string_view line = lines.substr(0, lines.find('\n'));
    lines.remove_prefix(std::min(line.size() + 1, lines.size()));
    const auto blank = line.find(' ');
    text += line.substr(0, blank);
    text += lineEnd;
    if (blank != line.npos) text += line.substr(blank + 1);
    text += lineEnd;
  }
  return text;
}

std::string DrawingOf(std::string_view entities, const char* version) {
  return Tags("0 SECTION\n2 HEADER\n9 $ACADVER\n1 " + std::string(version) +
              "\n0 ENDSEC\n0 SECTION\n2 ENTITIES") +
         Tags(entities) + Tags("0 ENDSEC\n0 EOF");
}

AcDbObjectId EntityAt(const AcDbDatabase& database, std::size_t index) {
  const auto* model = AcDbBlockTableRecord::cast(database.modelSpaceId().object());
  return model && index < model->entities().size() ? model->entities()[index] : AcDbObjectId();
}
