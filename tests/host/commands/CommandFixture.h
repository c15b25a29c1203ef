// The host's commands over an editor with one empty drawing, and a folder of their own for files.
#pragma once

#include "host/commands/HostCommands.h"
#include "tests/support/EditorFixture.h"

#include <filesystem>
#include <fstream>
#include <string>

class CommandFixture : public EditorFixture {
 protected:
  CommandFixture() {
    commands::RegisterHostCommands();
    std::string pattern = (std::filesystem::temp_directory_path() / "zpcommands-XXXXXX").string();
    m_folder = mkdtemp(pattern.data());
  }
  ~CommandFixture() override {
    std::error_code ignored;
    std::filesystem::remove_all(m_folder, ignored);
  }
  CString file(const char* name) const { return CString::FromUtf8((m_folder / name).string()); }
  static void write(const CString& path, const std::string& bytes) {
    std::ofstream(path.ToUtf8(), std::ios::binary) << bytes;
  }
  static std::string read(const CString& path) {
    std::ifstream stream(path.ToUtf8(), std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
  }
  const AcDbLayerTableRecord* layer(const wchar_t* name) {
    AcDbObjectPointer<AcDbLayerTable> table(curDoc()->database()->layerTableId(), AcDb::kForRead);
    AcDbObjectId id;
    table->getAt(name, id);
    return AcDbLayerTableRecord::cast(id.object());
  }
  template <typename T> const T* only() {
    AcDbObjectPointer<AcDbBlockTableRecord> space(curDoc()->database()->modelSpaceId(), AcDb::kForRead);
    const T* found = nullptr;
    for (const auto& id : space->entities())
      if (!id.isErased()) found = T::cast(id.object());
    return found;
  }
  bool refused() const { return !frontEnd.refusals.empty(); }
  CString reason() const { return refused() ? frontEnd.refusals.back().reason : CString(); }

 private:
  std::filesystem::path m_folder;
};
