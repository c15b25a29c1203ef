// Puts a drawing's records together again in the order of its file, in its own version or another. Used by
// WriteDrawing; not for others.
#pragma once

#include "host/db/AcDbDatabase.h"
#include "host/dxf/DrawingFile.h"
#include "host/dxf/TextOutput.h"
#include "host/dxf/VersionConverter.h"

#include <map>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

class AcDbBlockTableRecord;
class AcDbEntity;

namespace dxf {

class DrawingWriter {
 public:
  // sink takes the file's bytes, in its encoding.
  DrawingWriter(AcDbDatabase& database, const WriteOptions& options, TextOutput::Sink sink);

  // False when the sink or the user ended it.
  bool write();
  bool isCancelled() const { return m_cancelled; }
  // What the version of the file can't hold, a sentence each. To be asked behind write().
  std::vector<CString> losses() const;

 private:
  // A section to write, and where it stood among those that were read: what was kept beside it goes there.
  struct PlannedSection {
    static constexpr std::size_t kNew = static_cast<std::size_t>(-2);
    DrawingForm::Section section;
    std::size_t stood = kNew;
    bool isLeftOut = false; // the version has none such
  };
  std::vector<PlannedSection> sections();
  // Text that outlives the writer, and text that goes away.
  void put(std::string_view text);
  void putCopy(std::string_view text);
  void put(const AcDbObject& object);
  void putEntity(const AcDbEntity& entity);
  bool isWanted(const AcDbObject& object) const;

  void writeSection(std::string_view name);
  void writeHeader();
  void writeClasses();
  void writeTables();
  void writeBlocks();
  void writeBlock(const AcDbBlockTableRecord& block);
  // Those ranked below endRank that are not written yet.
  void writeEntities(std::uint32_t endRank);
  void writeObjects();
  void putStrays(DrawingForm::Stray::Place place, const AcDbStub* object, std::size_t section = 0);
  void told();
  AcDbHandle neededSeed() const;

  AcDbDatabase& m_database;
  const WriteOptions& m_options;
  const DrawingForm m_form; // of the file to be written
  TextOutput m_out;
  std::optional<VersionConverter> m_converter; // none for the version that was read
  std::size_t m_modelWritten = 0;
  std::size_t m_paperWritten = 0;
  std::size_t m_objectsWritten = 0;
  bool m_cancelled = false;
  using StrayKey = std::tuple<DrawingForm::Stray::Place, const AcDbStub*, std::size_t>;
  std::multimap<StrayKey, const DxfRecord*> m_strays;
};

} // namespace dxf
