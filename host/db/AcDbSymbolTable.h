// A symbol table: its records by name in O(1) and in the order of the file. The typed tables below differ
// only in the class of their records.
#pragma once

#include "host/db/AcDbObjectPointer.h"
#include "host/db/AcDbSymbolTableRecord.h"

#include <unordered_map>
#include <vector>

class AcDbSymbolTableIterator;

class AcDbSymbolTable : public AcDbObject {
  ACRX_DECLARE_MEMBERS(AcDbSymbolTable);

 public:
  // eKeyNotFound when there is none, eWasErased when it is erased.
  Acad::ErrorStatus getAt(const wchar_t* name, AcDbObjectId& id, bool getErased = false) const;
  bool has(const wchar_t* name) const;
  // Takes the record into the drawing; the table owns it, and it stays open for write. eInvalidName,
  // eDuplicateRecordName, eNotThatKindOfClass; on failure the caller keeps it. Table must be open for write.
  Acad::ErrorStatus add(AcDbSymbolTableRecord* record);
  Acad::ErrorStatus add(AcDbObjectId& id, AcDbSymbolTableRecord* record);

  // For the database's own modules:

  const std::vector<AcDbObjectId>& records() const { return m_records; }
  // The record type of the entries, "LAYER".
  virtual std::string_view recordType() const { return m_recordType; }
  void setRecordType(std::string_view type) { m_recordType = type; }
  // The entries' class; the plain record class for tables whose entries the host keeps as they came.
  virtual AcRxClass* recordClass() const;
  // Files a record that is in the database already.
  void file(AcDbSymbolTableRecord& record);
  // All that were ever filed under a name; damaged files have several. Stays where it is while the table
  // does.
  const std::vector<AcDbObjectId>& filedUnder(const CString& name) const;
  // The records that order names come first, in its order; the others stay behind them as they were.
  void arrange(const std::vector<AcDbObjectId>& order);
  void nameChanged(AcDbSymbolTableRecord& record);
  // The first free name that begins so and goes on with a number from 1.
  CString nextAnonymousName(const CString& prefix);
  // What closes the table in a file.
  const DxfRecord& endRecord() const { return m_endRecord; }
  void setEndRecord(DxfRecord end) { m_endRecord = std::move(end); }

 protected:
  void dxfOutFields(DxfRecordEditor& editor) const override;

 private:
  std::vector<AcDbObjectId> m_records;
  // By folded name, in the order of filing: damaged files have thousands under one. May hold names of before.
  std::unordered_map<std::wstring, std::vector<AcDbObjectId>> m_byName;
  std::unordered_map<std::wstring, int> m_lastNumbers; // by folded prefix, where to look on
  std::string m_recordType;
  DxfRecord m_endRecord;
};

// Walks the records of a table in their order, erased ones skipped by default.
class AcDbSymbolTableIterator {
 public:
  explicit AcDbSymbolTableIterator(const AcDbSymbolTable& table);
  virtual ~AcDbSymbolTableIterator() = default;
  void start(bool atBeginning = true, bool skipErased = true);
  bool done() const { return m_at >= m_ids.size(); }
  void step(bool forward = true, bool skipErased = true);
  Acad::ErrorStatus getRecordId(AcDbObjectId& id) const;
  Acad::ErrorStatus getRecord(AcDbSymbolTableRecord*& record, AcDb::OpenMode mode,
                              bool openErased = false) const;

 protected:
  template <typename Record>
  Acad::ErrorStatus getTypedRecord(Record*& record, AcDb::OpenMode mode, bool openErased) const {
    AcDbObjectId id;
    record = nullptr;
    if (const auto status = getRecordId(id); status != Acad::eOk) return status;
    return acdbOpenObject(record, id, mode, openErased);
  }

 private:
  void skip(bool forward, bool skipErased);

  std::vector<AcDbObjectId> m_ids;
  std::size_t m_at = 0;
};

// A table of one class of records, with the typed calls that siblings use.
template <typename Record, typename Iterator> class AcDbTypedSymbolTable : public AcDbSymbolTable {
 public:
  using AcDbSymbolTable::getAt;
  Acad::ErrorStatus getAt(const wchar_t* name, Record*& record, AcDb::OpenMode mode,
                          bool openErased = false) const {
    AcDbObjectId id;
    record = nullptr;
    if (const auto status = AcDbSymbolTable::getAt(name, id, openErased); status != Acad::eOk) return status;
    return acdbOpenObject(record, id, mode, openErased);
  }
  // The iterator belongs to the caller, who deletes it.
  Acad::ErrorStatus newIterator(Iterator*& iterator, bool atBeginning = true, bool skipErased = true) const {
    iterator = new Iterator(*this);
    iterator->start(atBeginning, skipErased);
    return Acad::eOk;
  }
  AcRxClass* recordClass() const override { return Record::desc(); }
};

#define ZP_SYMBOL_TABLE(STEM)                                                                                \
  class STEM##TableIterator : public AcDbSymbolTableIterator {                                               \
   public:                                                                                                   \
    using AcDbSymbolTableIterator::AcDbSymbolTableIterator;                                                  \
    using AcDbSymbolTableIterator::getRecord;                                                                \
    Acad::ErrorStatus getRecord(STEM##TableRecord*& record, AcDb::OpenMode mode, bool openErased = false) {  \
      return getTypedRecord(record, mode, openErased);                                                       \
    }                                                                                                        \
  };                                                                                                         \
  class STEM##Table : public AcDbTypedSymbolTable<STEM##TableRecord, STEM##TableIterator> {                  \
    ACRX_DECLARE_MEMBERS(STEM##Table);                                                                       \
  }
