// Fills a database from the text of a drawing file, section by section. Used by ReadDrawing; not for others.
#pragma once

#include "host/db/AcDbDatabase.h"
#include "host/dxf/ReadContext.h"

#include <map>

class AcDbBlockTableRecord;
class AcDbEntity;
class AcDbSymbolTable;
class AcDbSymbolTableRecord;

namespace dxf {

class DrawingReader {
 public:
  DrawingReader(AcDbDatabase& database, std::shared_ptr<const std::string> text, const ReadOptions& options);

  // Empty on success.
  CString read();
  std::vector<Repair> takeRepairs() { return m_context.takeRepairs(); }

 private:
  // To the next record; false at the end of the section, of the file, at a broken line or when cancelled.
  bool nextRecord();
  bool atSectionEnd() const;
  DxfRecord currentRecord() const { return DxfRecord::partOf(m_text, m_scanner.recordText()); }
  void decodeInto(AcDbObject& object);

  void readSection();
  void keepStrayRecord();
  void readHeader(DrawingForm::Section& section);
  void readClasses();
  void readTables();
  void readTable();
  void readStrayTableEntry();
  void readTableEntry(AcDbSymbolTable& table);
  void readBlocks();
  void readBlock();
  void readEntities();
  void readObjects();
  void readWhole(DrawingForm::Section& section);
  void endSection(DrawingForm::Section& section);

  AcDbEntity* readEntity(const AcDbObjectId& owner);
  void readEntityInto(AcDbBlockTableRecord& block);
  AcDbBlockTableRecord& blockNamed(const CString& name);
  AcDbObject* makeObject(const AcRxClass* base, AcDbObject* unknown) const;
  void adopt(AcDbObject& object, int handleCode = 5);
  void finish();

  AcDbDatabase& m_database;
  std::shared_ptr<const std::string> m_text;
  const ReadOptions& m_options;
  RecordScanner m_scanner;
  ReadContext m_context;
  CString m_error;
  bool m_ended = false;           // no further record
  AcDbEntity* m_parent = nullptr; // that sub-entities go to
  bool m_parentHasChildren = false;
  std::uint32_t m_rank = 0;
  std::map<std::string, int> m_sectionCounts;
  std::size_t m_withoutHandle = 0;
  std::size_t m_recordCount = 0;
};

} // namespace dxf
