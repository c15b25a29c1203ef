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

  void writeHeader();
  void writeTables();
  void writeBlocks();
  void writeBlock(const AcDbBlockTableRecord& block);
  void writeEntities();
  void writeObjects();
  void flush();

  AcDbDatabase& m_database;
  const DrawingForm& m_form;
  std::string m_out;
  std::string_view m_pending; // adjoining text that is not copied yet
  bool m_plain;
};

} // namespace dxf
