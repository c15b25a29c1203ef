// Fills a database from the text of a drawing file, section by section. Used by ReadDrawing; not for others.
#pragma once

#include "host/db/AcDbDatabase.h"
#include "host/db/AcDbSymbolTable.h"
#include "host/dxf/ReadContext.h"

#include <map>
#include <unordered_map>

class AcDbBlockReference;
class AcDbBlockTableRecord;
class AcDbEntity;

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
  DxfRecord currentRecord() const;
  void decodeInto(AcDbObject& object);

  void readSection();
  bool endsLikeAWholeFile() const;
  void dropHalfEnd();
  void keepStrayRecord();
  void keepBehind(DrawingForm::Stray::Place place, const AcDbObjectId& object = {});
  void reserveHandleOf(DxfTags tags);
  void readHeader(DrawingForm::Section& section);
  void readClasses();
  void readTables();
  void readTable(AcDbSymbolTable& table);
  void readStrayOfTables(AcDbSymbolTable* before);
  AcDbObjectId readTableEntry(AcDbSymbolTable& table);
  void readBlocks();
  AcDbBlockTableRecord& readBlock();
  void readEntities();
  void readObjects();
  void readWhole(DrawingForm::Section& section);
  void endSection(DrawingForm::Section& section);

  AcDbEntity* readEntity(const AcDbObjectId& owner);
  void readEntityInto(AcDbBlockTableRecord& block);
  // The first of a table's records under a name that satisfies a condition which none satisfies again once it
  // doesn't; null when there is none. cursors remembers how far it looked.
  using Cursors = std::unordered_map<const std::vector<AcDbObjectId>*, std::size_t>;
  template <typename Condition>
  static AcDbSymbolTableRecord* firstNamed(const AcDbSymbolTable& table, const CString& name,
                                           Cursors& cursors, Condition condition);
  AcDbBlockTableRecord& blockNamed(const CString& name);
  AcDbBlockTableRecord& spaceNamed(const wchar_t* name);
  const AcRxClass* classOfRecord();
  AcDbEntity* makeEntity();
  AcDbObject* makeObject();
  void adopt(AcDbObject& object, int handleCode = 5);
  void finish();
  void reportCycles();

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
  std::unordered_map<std::string_view, const AcRxClass*> m_classes; // by record type, null for unknown ones
  std::vector<const AcDbBlockReference*> m_insertions;
  Cursors m_begunBlocks;
  Cursors m_readEntries;
  // Entries in the order of the file: some were known by name before their record was met.
  std::map<AcDbSymbolTable*, std::vector<AcDbObjectId>> m_entryOrder;
  AcDbSymbolTable* m_strayTable = nullptr; // whose entries stood outside a table just now
  std::size_t m_withoutHandle = 0;
  std::size_t m_recordCount = 0;
};

template <typename Condition>
AcDbSymbolTableRecord* DrawingReader::firstNamed(const AcDbSymbolTable& table, const CString& name,
                                                 Cursors& cursors, Condition condition) {
  const auto& ids = table.filedUnder(name);
  std::size_t& next = cursors[&ids];
  for (; next < ids.size(); ++next)
    if (auto* record = static_cast<AcDbSymbolTableRecord*>(ids[next].object()); condition(*record))
      return record;
  return nullptr;
}

} // namespace dxf
