#include "host/dxf/DrawingReader.h"

#include "host/db/AcDbBlockMarks.h"
#include "host/db/AcDbBlockReference.h"
#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbDictionary.h"
#include "host/db/AcDbTables.h"
#include "host/db/AcDbUnknownEntity.h"
#include "host/db/AcDbUnknownObject.h"
#include "host/db/BlockCycle.h"
#include "host/db/DxfRecordEditor.h"
#include "host/db/DxfText.h"

#include <algorithm>

namespace {

constexpr std::size_t kRecordsBetweenProgress = 4096;

CString quoted(const wchar_t* format, const CString& name) {
  CString text;
  text.Format(format, name);
  return text;
}

// The first tag of a code ahead of the first subclass marker and outside 102 groups.
const DxfTag* headTag(DxfTags tags, int code) {
  bool inGroup = false;
  for (const DxfTag& tag : tags) {
    if (tag.code == 100 || tag.code >= 1000) return nullptr;
    if (tag.code == 102) inGroup = tag.value.starts_with("{");
    if (!inGroup && tag.code == code) return &tag;
  }
  return nullptr;
}

CString nameOf(DxfTags tags) {
  for (const DxfTag& tag : dxfOwnTags(tags))
    if (tag.code == 2) return dxf::decodeText(dxf::trimBlanks(tag.value));
  return {};
}

} // namespace

dxf::DrawingReader::DrawingReader(AcDbDatabase& database, std::shared_ptr<const std::string> text,
                                  const ReadOptions& options)
    : m_database(database), m_text(std::move(text)), m_options(options), m_scanner(*m_text),
      m_context(database, m_scanner) {}

// --- the frame
// -------------------------------------------------------------------------------------------------

bool dxf::DrawingReader::nextRecord() {
  if (m_ended) return false;
  if (++m_recordCount % kRecordsBetweenProgress == 0 && m_options.progress &&
      !m_options.progress(m_scanner.progress())) {
    m_error = L"读图已取消";
    m_ended = true;
    return false;
  }
  if (m_scanner.next()) return true;
  if (m_scanner.problem().IsEmpty()) {
    m_ended = true;
    return false;
  }
  CString what;
  what.Format(L"第 %d 行：%s", m_scanner.problemLine(), m_scanner.problem());
  const char* place = m_scanner.rest().data();
  if (m_options.recover && m_scanner.resynchronise()) {
    m_context.repairedAt(place, -1, m_scanner.problem() + what + L"；到下一条记录之间的内容已丢弃");
    return m_scanner.next();
  }
  if (m_options.recover)
    m_context.repairedAt(place, -1, what + L"；其后的内容已丢弃");
  else
    m_error = what;
  m_ended = true;
  return false;
}

bool dxf::DrawingReader::atSectionEnd() const {
  return m_scanner.type() == "ENDSEC" || m_scanner.type() == "SECTION" || m_scanner.type() == "EOF";
}

CString dxf::DrawingReader::read() {
  m_database.beginLoading();
  DrawingForm& form = m_database.form();
  form.preamble = DxfRecord::partOf(m_text, m_scanner.preamble());
  bool eof = false;
  bool any = nextRecord();
  while (any && !m_ended) {
    if (m_scanner.type() == "SECTION") {
      readSection();
      // A section ends at its ENDSEC, or at what follows when that is missing.
      if (m_ended || m_scanner.type() == "ENDSEC") any = nextRecord();
      continue;
    }
    if (m_scanner.type() == "EOF") {
      form.eof = DxfRecord::partOf(m_text, m_scanner.restFromRecord());
      eof = true;
      break;
    }
    keepStrayRecord();
    any = nextRecord();
  }
  if (m_error.IsEmpty() && form.sections.empty()) m_error = L"不是 DXF 图形文件：没有任何段（SECTION）";
  if (m_error.IsEmpty() && !eof) {
    const bool complete = !form.sections.back().tail.isEmpty();
    if (!complete && !m_options.recover)
      m_error.Format(L"第 %d 行：文件在段“%s”中意外结束", m_scanner.lineOf(m_text->data() + m_text->size()),
                     CString::FromUtf8(form.sections.back().name));
    else
      m_context.repairedAt(nullptr, 0, L"文件末尾缺少 EOF，保存时补上");
  }
  if (m_error.IsEmpty()) finish();
  return m_error;
}

// What stands between sections is kept with what closes the section before it.
void dxf::DrawingReader::keepStrayRecord() {
  DrawingForm& form = m_database.form();
  const DxfTag& tag = m_scanner.tags().front();
  m_context.repaired(tag, quoted(L"记录“%s”不在任何段内，原样保留", decodeText(tag.value).Left(40)));
  DxfRecord& before = form.sections.empty() ? form.preamble : form.sections.back().tail;
  const std::string_view stray = m_scanner.recordText();
  const char* begin = before.isEmpty() ? stray.data() : before.text().data();
  before = DxfRecord::partOf(m_text, {begin, static_cast<std::size_t>(stray.data() + stray.size() - begin)});
}

void dxf::DrawingReader::readSection() {
  const DxfTags tags = m_scanner.tags();
  DrawingForm& form = m_database.form();
  form.sections.emplace_back();
  DrawingForm::Section& section = form.sections.back();
  const CString name = nameOf(tags);
  section.name = name.ToUtf8();
  section.firstRank = m_rank + 1;
  if (++m_sectionCounts[section.name] == 2) m_context.repaired(tags.front(), quoted(L"段“%s”重复出现", name));
  if (section.name == "HEADER") {
    readHeader(section);
  } else {
    section.head = currentRecord();
    if (section.name == "CLASSES")
      readClasses();
    else if (section.name == "TABLES")
      readTables();
    else if (section.name == "BLOCKS")
      readBlocks();
    else if (section.name == "ENTITIES")
      readEntities();
    else if (section.name == "OBJECTS")
      readObjects();
    else
      readWhole(section);
  }
  endSection(form.sections.back());
}

void dxf::DrawingReader::endSection(DrawingForm::Section& section) {
  m_parent = nullptr;
  if (m_ended) return;
  if (m_scanner.type() == "ENDSEC")
    section.tail = currentRecord();
  else
    m_context.repaired(m_scanner.tags().front(),
                       quoted(L"段“%s”缺少 ENDSEC，保存时补上", CString::FromUtf8(section.name)));
}

// The variables stand in the section's own record, behind its name.
void dxf::DrawingReader::readHeader(DrawingForm::Section& section) {
  const DxfTags tags = m_scanner.tags();
  std::size_t first = 0;
  while (first < tags.size() && tags[first].code != 9) ++first;
  const std::string_view record = m_scanner.recordText();
  std::size_t headSize = record.size();
  if (first < tags.size()) { // up to the line of the code 9
    const char* value = tags[first].value.data();
    headSize = record.rfind('\n', static_cast<std::size_t>(value - record.data()) - 2);
    headSize = headSize == record.npos ? 0 : headSize + 1;
  }
  section.head = DxfRecord::partOf(m_text, record.substr(0, headSize));
  m_database.header().setRecord(DxfRecord::partOf(m_text, record.substr(headSize)), {}, m_context);
  if (const auto seed = m_database.header().text("$HANDSEED"))
    m_database.reserveHandle(AcDbHandle(AcDbHandle::fromHex(seed->ToUtf8()).value() - 1));
  nextRecord();
}

void dxf::DrawingReader::readClasses() {
  while (nextRecord() && !atSectionEnd()) m_database.form().classes.push_back(currentRecord());
}

void dxf::DrawingReader::readWhole(DrawingForm::Section& section) {
  const char* begin = m_scanner.recordText().data() + m_scanner.recordText().size();
  const char* end = begin;
  while (nextRecord() && !atSectionEnd()) end = m_scanner.recordText().data() + m_scanner.recordText().size();
  section.body = DxfRecord::partOf(m_text, {begin, static_cast<std::size_t>(end - begin)});
}

// --- tables
// ----------------------------------------------------------------------------------------------------

void dxf::DrawingReader::readTables() {
  bool more = nextRecord();
  std::vector<AcDbObjectId> order;
  while (more && !atSectionEnd()) {
    if (m_scanner.type() != "TABLE") {
      readStrayTableEntry();
      more = nextRecord();
      continue;
    }
    AcDbSymbolTable* table = m_database.tableOf(nameOf(m_scanner.tags()).ToUtf8());
    if (table) order.push_back(table->objectId());
    readTable();
    if (!m_ended && m_scanner.type() == "ENDTAB")
      more = nextRecord();
    else
      more = !m_ended;
  }
  // Tables in the order of the file; those that it lacks stand behind.
  auto& tables = m_database.tables();
  for (const AcDbObjectId& id : tables)
    if (std::find(order.begin(), order.end(), id) == order.end()) order.push_back(id);
  if (order.size() == tables.size()) tables = order;
}

void dxf::DrawingReader::readStrayTableEntry() {
  const DxfTag& tag = m_scanner.tags().front();
  if (AcDbSymbolTable* table = m_database.tableOf(m_scanner.type())) {
    m_context.repaired(tag, L"表项不在任何表内，已并入所属的表");
    readTableEntry(*table);
  } else if (m_scanner.type() == "ENDTAB" || m_options.recover) {
    m_context.repaired(tag, quoted(L"多余的“%s”已丢弃", decodeText(tag.value).Left(40)));
  } else {
    m_error.Format(L"第 %d 行：应为 TABLE 或 ENDSEC，实际为“%s”", m_scanner.lineOf(tag.value.data()),
                   decodeText(tag.value).Left(40));
    m_ended = true;
  }
}

void dxf::DrawingReader::readTable() {
  const CString name = nameOf(m_scanner.tags());
  AcDbSymbolTable* table = m_database.tableOf(name.ToUtf8());
  if (!table) {
    // A table that no version has: as good as lost to anybody, but its tags are kept with the section.
    m_error.Format(L"第 %d 行：未知的表“%s”", m_scanner.lineOf(m_scanner.recordText().data()), name);
    m_ended = true;
    return;
  }
  if (table->isImplicit()) {
    table->setImplicit(false);
    decodeInto(*table);
    adopt(*table);
  } else {
    m_context.repaired(m_scanner.tags().front(), quoted(L"表“%s”重复，表项并入前一个", name));
  }
  while (nextRecord() && !atSectionEnd()) {
    if (m_scanner.type() == "ENDTAB") {
      table->setEndRecord(currentRecord());
      return;
    }
    if (m_scanner.type() == "TABLE") break;
    readTableEntry(*table);
  }
  if (!m_ended) m_context.repaired(m_scanner.tags().front(), quoted(L"表“%s”缺少 ENDTAB，保存时补上", name));
}

void dxf::DrawingReader::readTableEntry(AcDbSymbolTable& table) {
  const bool ownType = m_scanner.type() == table.recordType();
  const CString name = nameOf(m_scanner.tags());
  AcDbObjectId known;
  AcDbSymbolTableRecord* record = nullptr;
  if (ownType && table.getAt(name, known) == Acad::eOk) {
    auto* existing = static_cast<AcDbSymbolTableRecord*>(known.object());
    if (existing->isImplicit())
      record = existing;
    else if (table.recordType() != "VPORT") // several viewports share one name
      m_context.repaired(m_scanner.tags().front(), quoted(L"表项“%s”重名，保留但按名称只用第一个", name));
  }
  const bool isNew = !record;
  if (isNew) {
    record = static_cast<AcDbSymbolTableRecord*>(
        (ownType ? table.recordClass() : AcDbSymbolTableRecord::desc())->create());
    m_database.addAcDbObject(record, table.objectId());
    record->close();
  }
  record->setImplicit(false);
  decodeInto(*record);
  // In a dimension style 5 is the name of an arrow block.
  adopt(*record, table.recordType() == "DIMSTYLE" ? 105 : 5);
  if (isNew) table.file(*record);
  const bool anonymous = !name.IsEmpty() && name[0] == L'*';
  if (!anonymous && !AcDbSymbolTableRecord::isValidSymbolName(name) && ownType &&
      table.recordType() == "LAYER")
    m_context.repaired(m_scanner.tags().front(), quoted(L"图层名“%s”含禁用字符或为空，保留原样", name));
}

// --- blocks and entities
// -----------------------------------------------------------------------------------------

AcDbBlockTableRecord& dxf::DrawingReader::blockNamed(const CString& name) {
  AcDbSymbolTable& table = *m_database.tableOf("BLOCK_RECORD");
  AcDbObjectId id;
  if (table.getAt(name, id) == Acad::eOk) {
    auto* found = static_cast<AcDbBlockTableRecord*>(id.object());
    if (found->blockBeginId().isNull()) return *found;
    m_context.repaired(m_scanner.tags().front(), quoted(L"块“%s”重名，保留但按名称只用第一个", name));
  }
  auto* record = new AcDbBlockTableRecord;
  m_database.addAcDbObject(record, table.objectId());
  record->setNameAsRead(name);
  record->setImplicit(true);
  record->close();
  table.file(*record);
  return *record;
}

void dxf::DrawingReader::readBlocks() {
  while (!m_ended) {
    // A block leaves its ENDBLK as the current record, or what follows when that is missing.
    if (m_scanner.type() != "BLOCK" && (!nextRecord() || atSectionEnd())) return;
    if (m_scanner.type() == "BLOCK") {
      readBlock();
      if (!m_ended && atSectionEnd()) return;
      continue;
    }
    m_context.repaired(m_scanner.tags().front(), L"不在任何块内的实体，已移入模型空间");
    readEntityInto(blockNamed(ACDB_MODEL_SPACE));
  }
}

void dxf::DrawingReader::readBlock() {
  const CString name = AcDbBlockBegin::nameIn(m_scanner.tags());
  AcDbBlockTableRecord& block = blockNamed(name);
  m_database.form().blockOrder.push_back(block.objectId());
  m_context.defined(block.objectId());
  m_parent = nullptr;
  auto* begin = new AcDbBlockBegin;
  m_database.addAcDbObject(begin, block.objectId());
  begin->close();
  decodeInto(*begin);
  adopt(*begin);
  block.setBegin(begin->objectId());
  while (nextRecord() && !atSectionEnd()) {
    if (m_scanner.type() == "ENDBLK") {
      auto* end = new AcDbBlockEnd;
      m_database.addAcDbObject(end, block.objectId());
      end->close();
      decodeInto(*end);
      adopt(*end);
      block.setEnd(end->objectId());
      m_parent = nullptr;
      return;
    }
    if (m_scanner.type() == "BLOCK") break;
    readEntityInto(block);
  }
  if (!m_ended || m_options.recover)
    m_context.repairedAt(begin->record().text().data(), 0, quoted(L"块“%s”缺少 ENDBLK，保存时补上", name));
}

void dxf::DrawingReader::readEntities() {
  AcDbBlockTableRecord* model = nullptr;
  AcDbBlockTableRecord* paper = nullptr;
  const auto space = [&](AcDbBlockTableRecord*& cached, const wchar_t* name) -> AcDbBlockTableRecord& {
    if (!cached) {
      AcDbObjectId id;
      AcDbSymbolTable& table = *m_database.tableOf("BLOCK_RECORD");
      cached = table.getAt(name, id) == Acad::eOk ? static_cast<AcDbBlockTableRecord*>(id.object())
                                                  : &blockNamed(name);
    }
    return *cached;
  };
  while (nextRecord() && !atSectionEnd()) {
    const DxfTag* flag = headTag(m_scanner.tags(), 67);
    if (!flag) // behind the entity marker in newer files
      for (const DxfTag& tag : dxfCommonTags(m_scanner.tags()))
        if (tag.code == 67) flag = &tag;
    const bool inPaper = flag && trimBlanks(flag->value) == "1";
    readEntityInto(inPaper ? space(paper, ACDB_PAPER_SPACE) : space(model, ACDB_MODEL_SPACE));
  }
}

void dxf::DrawingReader::readEntityInto(AcDbBlockTableRecord& block) {
  const std::string_view type = m_scanner.type();
  const bool isSub = type == "VERTEX" || type == "ATTRIB" || type == "SEQEND";
  if (isSub && m_parent) {
    AcDbEntity* sub = readEntity(m_parent->objectId());
    m_parent->addSubEntity(sub->objectId());
    m_parentHasChildren = true;
    if (type == "SEQEND") m_parent = nullptr;
    return;
  }
  if (m_parent && m_parentHasChildren)
    m_context.repaired(m_scanner.tags().front(),
                       quoted(L"“%s”的从属实体之后缺少 SEQEND", m_parent->dxfName()));
  m_parent = nullptr;
  AcDbEntity* entity = readEntity(block.objectId());
  entity->setRank(++m_rank);
  block.file(entity->objectId());
  const bool announced = [&] {
    for (const DxfTag& tag : dxfOwnTags(m_scanner.tags()))
      if (tag.code == 66) return trimBlanks(tag.value) == "1";
    return false;
  }();
  if (announced || type == "POLYLINE" || type == "INSERT") {
    m_parent = entity;
    m_parentHasChildren = false;
  }
}

AcDbObject* dxf::DrawingReader::makeObject(const AcRxClass* base, AcDbObject* unknown) const {
  const AcRxClass* type = AcRxClass::findByDxfName(m_scanner.type());
  if (!type || !type->isDerivedFrom(base)) return unknown;
  auto* made = static_cast<AcDbObject*>(type->create());
  if (!made) return unknown;
  delete unknown;
  return made;
}

AcDbEntity* dxf::DrawingReader::readEntity(const AcDbObjectId& owner) {
  auto* entity = static_cast<AcDbEntity*>(makeObject(AcDbEntity::desc(), new AcDbUnknownEntity));
  m_database.addAcDbObject(entity, owner);
  entity->close();
  decodeInto(*entity);
  adopt(*entity);
  return entity;
}

void dxf::DrawingReader::readObjects() {
  while (nextRecord() && !atSectionEnd()) {
    AcDbObject* object = makeObject(AcDbObject::desc(), new AcDbUnknownObject);
    m_database.addToObjects(object, {});
    object->close();
    decodeInto(*object);
    adopt(*object);
    if (m_database.namedObjectsDictionaryId().isNull() && AcDbDictionary::cast(object))
      m_database.setNamedObjectsDictionaryId(object->objectId());
  }
}

// --- objects
// -----------------------------------------------------------------------------------------------------

// Numbers that are none are mended in the record itself, so that no file of ours holds one.
void dxf::DrawingReader::decodeInto(AcDbObject& object) {
  if (m_scanner.badReals().empty()) {
    object.setRecord(currentRecord(), m_scanner.tags(), m_context);
    return;
  }
  std::string text;
  std::size_t next = 0;
  const auto& bad = m_scanner.badReals();
  for (std::size_t i = 0; i < m_scanner.tags().size(); ++i) {
    const DxfTag& tag = m_scanner.tags()[i];
    const bool isBad = next < bad.size() && bad[next] == i;
    text += DxfRecordEditor::tag(tag.code, isBad ? "0.0" : tag.value);
    if (!isBad) continue;
    ++next;
    CString what;
    what.Format(L"“%s”不是有限的数，已改为 0.0", decodeText(tag.value).Left(40));
    m_context.repaired(tag, what);
  }
  object.setRecord(DxfRecord::own(std::move(text)), m_context);
}

void dxf::DrawingReader::adopt(AcDbObject& object, int handleCode) {
  const DxfTag* tag = headTag(m_scanner.tags(), handleCode);
  if (!tag) {
    if (m_database.form().subclassMarkers()) {
      ++m_withoutHandle;
      object.invalidateRecord();
    }
    return;
  }
  if (!object.handle().isNull()) return;
  const AcDbHandle handle = AcDbHandle::fromHex(tag->value);
  if (m_database.giveHandle(object, handle)) return;
  m_context.repaired(
      *tag, quoted(handle.isNull() ? L"“%s”不是有效的句柄，已换新句柄" : L"句柄 %s 重复，后一个已换新句柄",
                   decodeText(tag->value)));
  object.invalidateRecord();
}

void dxf::DrawingReader::finish() {
  m_database.endLoading();
  if (m_withoutHandle > 0) {
    CString what;
    what.Format(L"%d 个对象没有句柄，已补上", m_withoutHandle);
    m_context.repairedAt(nullptr, 5, what);
  }
  const bool needsStandardEntries = m_database.form().version >= "AC1015";
  for (const CString& added : m_database.completeStandardEntries())
    if (needsStandardEntries) m_context.repairedAt(nullptr, -1, quoted(L"缺少标准表项 %s，已补上", added));
  m_database.completeBlocks();
  for (const AcDbObjectId& id : m_database.form().blockOrder) {
    const auto* block = static_cast<const AcDbBlockTableRecord*>(id.object());
    for (const AcDbObjectId& inner : block->entities()) {
      const auto* reference = AcDbBlockReference::cast(inner.object());
      if (!reference || !blockContains(reference->blockTableRecord(), id)) continue;
      m_context.repairedAt(reference->record().text().data(), 2,
                           quoted(L"块“%s”直接或间接包含自身，显示时不展开", block->name()));
      break;
    }
  }
  m_database.form().seedAfterReading = m_database.handseed();
  m_database.setModified(false);
}
