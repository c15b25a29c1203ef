// The TABLES section: symbol tables and their entries.
#include "host/db/AcDbSymbolTable.h"
#include "host/db/DxfRecordEditor.h"
#include "host/dxf/DrawingReader.h"
#include "host/dxf/RecordValues.h"

#include <algorithm>

void dxf::DrawingReader::readTables() {
  std::vector<AcDbObjectId> order;
  AcDbSymbolTable* last = nullptr;
  m_strayTable = nullptr;
  bool more = nextRecord();
  while (more && !atSectionEnd()) {
    AcDbSymbolTable* table =
        m_scanner.type() == "TABLE" ? m_database.tableOf(nameOf(m_scanner.tags()).ToUtf8()) : nullptr;
    if (!table) {
      readStrayOfTables(last);
      more = nextRecord();
      continue;
    }
    last = table;
    m_strayTable = nullptr;
    if (std::find(order.begin(), order.end(), table->objectId()) == order.end())
      order.push_back(table->objectId());
    readTable(*table);
    more = !m_ended && (m_scanner.type() != "ENDTAB" || nextRecord());
  }
  // Tables in the order of the file; those that it lacks stand behind.
  auto& tables = m_database.tables();
  for (const AcDbObjectId& id : tables)
    if (std::find(order.begin(), order.end(), id) == order.end()) order.push_back(id);
  tables = std::move(order);
}

// What stands in no table that the host knows. Entries go to their table, everything else is kept in its
// place.
void dxf::DrawingReader::readStrayOfTables(AcDbSymbolTable* before) {
  const DxfTag& tag = m_scanner.tags().front();
  if (AcDbSymbolTable* table = m_database.tableOf(m_scanner.type())) {
    m_context.repaired(tag, L"表项不在任何表内，已并入所属的表");
    readTableEntry(*table);
    m_strayTable = table;
    return;
  }
  if (m_scanner.type() == "ENDTAB" && m_strayTable && m_strayTable->endRecord().isEmpty()) {
    m_strayTable->setEndRecord(currentRecord());
    return;
  }
  m_context.repaired(tag, quoted(L"记录“%s”不属于任何已知的表，原样保留", shown(tag.value)));
  if (before)
    keepBehind(DrawingForm::Stray::behindEnd, before->objectId());
  else
    keepBehind(DrawingForm::Stray::behindHead);
}

void dxf::DrawingReader::readTable(AcDbSymbolTable& table) {
  const CString name = CString::FromUtf8(table.recordType());
  if (table.isImplicit()) {
    table.setImplicit(false);
    decodeInto(table);
    adopt(table);
  } else {
    m_context.repaired(m_scanner.tags().front(), quoted(L"表“%s”重复，表项并入前一个", name));
  }
  AcDbObjectId before = table.objectId();
  while (nextRecord() && !atSectionEnd() && m_scanner.type() != "TABLE") {
    if (m_scanner.type() == "ENDTAB") {
      if (table.endRecord().isEmpty()) table.setEndRecord(currentRecord());
      return;
    }
    if (m_scanner.type() == table.recordType()) {
      before = readTableEntry(table);
    } else if (AcDbSymbolTable* other = m_database.tableOf(m_scanner.type())) {
      m_context.repaired(m_scanner.tags().front(), quoted(L"表“%s”中有别的表的表项，已并入所属的表", name));
      readTableEntry(*other);
    } else {
      m_context.repaired(m_scanner.tags().front(), quoted(L"表“%s”中有不属于它的记录，原样保留", name));
      keepBehind(DrawingForm::Stray::behindRecord, before);
    }
  }
  if (table.endRecord().isEmpty()) table.setEndRecord(DxfRecord::own(DxfRecordEditor::tag(0, "ENDTAB")));
  if (!m_ended) m_context.repaired(m_scanner.tags().front(), quoted(L"表“%s”缺少 ENDTAB，保存时补上", name));
}

AcDbObjectId dxf::DrawingReader::readTableEntry(AcDbSymbolTable& table) {
  const CString name = nameOf(m_scanner.tags());
  // Known already when something named it or, for a block, when it was read.
  auto* record = firstNamed(table, name, m_readEntries,
                            [](const AcDbSymbolTableRecord& entry) { return entry.isImplicit(); });
  const auto& ofName = table.filedUnder(name);
  if (!ofName.empty() && (!record || record->objectId() != ofName.front()) &&
      table.recordType() != "VPORT") // several viewports share one name
    m_context.repaired(m_scanner.tags().front(),
                       quoted(L"表项“%s”重名，保留但按名称只用第一个", name.Left(40)));
  const bool isNew = !record;
  if (isNew) {
    record = static_cast<AcDbSymbolTableRecord*>(table.recordClass()->create());
    m_database.addAcDbObject(record, table.objectId());
    record->close();
  }
  record->setImplicit(false);
  decodeInto(*record);
  // In a dimension style 5 is the name of an arrow block.
  adopt(*record, table.recordType() == "DIMSTYLE" ? 105 : 5);
  if (isNew) table.file(*record);
  m_entryOrder[&table].push_back(record->objectId());
  const bool anonymous = !name.IsEmpty() && name[0] == L'*';
  if (!anonymous && table.recordType() == "LAYER" && !AcDbSymbolTableRecord::isValidSymbolName(name))
    m_context.repaired(m_scanner.tags().front(),
                       quoted(L"图层名“%s”含禁用字符、为空或过长，保留原样", name.Left(40)));
  return record->objectId();
}
