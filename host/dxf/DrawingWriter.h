// Puts a drawing's records together again in the order of its file. Used by WriteDrawing; not for others.
#pragma once

#include "host/db/AcDbDatabase.h"

#include <string>
#include <vector>

class AcDbBlockTableRecord;
class AcDbEntity;

namespace dxf {

class DrawingWriter {
 public:
  explicit DrawingWriter(AcDbDatabase& database);

  // The file's bytes, in its encoding.
  std::string write();

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
  void flush();

  AcDbDatabase& m_database;
  const DrawingForm& m_form;
  std::string m_out;
  std::string_view m_pending; // adjoining text that is not copied yet
  std::size_t m_modelWritten = 0;
  std::size_t m_paperWritten = 0;
  bool m_plain;
};

} // namespace dxf
