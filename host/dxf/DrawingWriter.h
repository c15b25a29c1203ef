// Puts a drawing's records together again in the order of its file. Used by WriteDrawing; not for others.
#pragma once

#include "host/db/AcDbDatabase.h"

#include <map>
#include <string>
#include <tuple>
#include <vector>

class AcDbBlockTableRecord;
class AcDbEntity;

namespace dxf {

class DrawingWriter {
 public:
  explicit DrawingWriter(AcDbDatabase& database);

  // The file's bytes, in its encoding.
  std::string write();
  // What the version of the file can't hold, a sentence each.
  std::vector<CString> losses() const;

 private:
  std::vector<DrawingForm::Section> sections() const;
  void put(std::string_view text);
  void put(const AcDbObject& object);
  void putEntity(const AcDbEntity& entity);
  bool isWanted(const AcDbObject& object) const;

  void writeSection(std::string_view name);
  void writeHeader();
  void writeTables();
  void writeBlocks();
  void writeBlock(const AcDbBlockTableRecord& block);
  // Those ranked below endRank that are not written yet.
  void writeEntities(std::uint32_t endRank);
  void writeObjects();
  void putStrays(DrawingForm::Stray::Place place, const AcDbStub* object, std::size_t section = 0);
  void endLine();
  void flush();
  AcDbHandle neededSeed() const;

  AcDbDatabase& m_database;
  const DrawingForm& m_form;
  std::string m_out;
  std::string_view m_pending; // adjoining text that is not copied yet
  std::size_t m_modelWritten = 0;
  std::size_t m_paperWritten = 0;
  using StrayKey = std::tuple<DrawingForm::Stray::Place, const AcDbStub*, std::size_t>;
  std::multimap<StrayKey, const DxfRecord*> m_strays;
  bool m_plain;
};

} // namespace dxf
