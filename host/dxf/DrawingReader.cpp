#include "host/dxf/DrawingReader.h"

#include "host/db/AcDbBlockMarks.h"
#include "host/db/AcDbBlockReference.h"
#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbDictionary.h"
#include "host/db/AcDbTables.h"
#include "host/db/AcDbUnknownEntity.h"
#include "host/db/AcDbUnknownObject.h"
#include "host/db/DxfRecordEditor.h"
#include "host/db/DxfText.h"
#include "host/dxf/BlockCycles.h"

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

// The beginning of a text of any length, for a message.
CString shown(std::string_view value) {
  constexpr std::size_t kBytes = 160;
  constexpr int kCharacters = 40;
  return dxf::decodeText(dxf::trimBlanks(value.substr(0, kBytes))).Left(kCharacters);
}

// Whether a record announces sub-entities: group 66, which means this in every entity that has it.
bool announcesSubEntities(DxfTags tags) {
  bool inGroup = false;
  for (const DxfTag& tag : tags) {
    if (tag.code >= 1000 || tag.code == 101) return false;
    if (tag.code == 102) inGroup = tag.value.starts_with("{");
    if (tag.code == 66 && !inGroup) return dxf::trimBlanks(tag.value) == "1";
  }
  return false;
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
  m_context.repaired(tag, quoted(L"记录“%s”不在任何段内，原样保留", shown(tag.value)));
  reserveHandleOf(m_scanner.tags());
  DxfRecord& before = form.sections.empty() ? form.preamble : form.sections.back().tail;
  const std::string_view stray = m_scanner.recordText();
  const char* begin = before.isEmpty() ? stray.data() : before.text().data();
  before = DxfRecord::partOf(m_text, {begin, static_cast<std::size_t>(stray.data() + stray.size() - begin)});
}

// The same within a section, where objects stand between.
void dxf::DrawingReader::keepBehind(DrawingForm::Stray::Place place, const AcDbObjectId& object) {
  DrawingForm& form = m_database.form();
  reserveHandleOf(m_scanner.tags());
  form.strays.push_back({form.sections.size() - 1, object, place, currentRecord()});
}

// What is kept without being understood must not meet its handle again in a new object.
void dxf::DrawingReader::reserveHandleOf(DxfTags tags) {
  for (const int code : {5, 105})
    if (const DxfTag* tag = headTag(tags, code)) m_database.reserveHandle(AcDbHandle::fromHex(tag->value));
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

// The variables stand in the section's own record, behind its name. A second header is kept and not looked
// at.
void dxf::DrawingReader::readHeader(DrawingForm::Section& section) {
  const DxfRecord record = currentRecord();
  const std::string_view text = record.text();
  std::size_t headSize = text.size();
  std::size_t tagStart = 0;
  DxfTagReader reader(text);
  for (DxfTag tag; m_sectionCounts["HEADER"] == 1 && reader.next(tag);) {
    if (tag.code == 9) {
      headSize = tagStart;
      break;
    }
    tagStart = static_cast<std::size_t>(tag.value.data() + tag.value.size() - text.data()) + 1;
  }
  section.head = record.part(0, headSize);
  if (headSize < text.size()) {
    m_database.header().setRecord(record.part(headSize), {}, m_context);
    if (const auto seed = m_database.header().text("$HANDSEED"))
      m_database.reserveHandle(AcDbHandle(AcDbHandle::fromHex(seed->ToUtf8()).value() - 1));
  }
  nextRecord();
}

void dxf::DrawingReader::readClasses() {
  while (nextRecord() && !atSectionEnd()) m_database.form().classes.push_back(currentRecord());
}

void dxf::DrawingReader::readWhole(DrawingForm::Section& section) {
  const char* begin = m_scanner.recordText().data() + m_scanner.recordText().size();
  const char* end = begin;
  std::string mended; // instead, as soon as a number had to be mended
  bool isMended = false;
  while (nextRecord() && !atSectionEnd()) {
    reserveHandleOf(m_scanner.tags());
    if (!m_scanner.badReals().empty() && !isMended) {
      mended.assign(begin, end);
      isMended = true;
    }
    if (isMended)
      mended += currentRecord().text();
    else
      end = m_scanner.recordText().data() + m_scanner.recordText().size();
  }
  section.body = isMended ? DxfRecord::own(std::move(mended))
                          : DxfRecord::partOf(m_text, {begin, static_cast<std::size_t>(end - begin)});
}

// --- tables
// ----------------------------------------------------------------------------------------------------

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
  AcDbObjectId known;
  AcDbSymbolTableRecord* record = nullptr;
  if (table.getAt(name, known) == Acad::eOk) {
    auto* existing = static_cast<AcDbSymbolTableRecord*>(known.object());
    if (existing->isImplicit())
      record = existing;
    else if (table.recordType() != "VPORT") // several viewports share one name
      m_context.repaired(m_scanner.tags().front(),
                         quoted(L"表项“%s”重名，保留但按名称只用第一个", name.Left(40)));
  }
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
  const bool anonymous = !name.IsEmpty() && name[0] == L'*';
  if (!anonymous && table.recordType() == "LAYER" && !AcDbSymbolTableRecord::isValidSymbolName(name))
    m_context.repaired(m_scanner.tags().front(),
                       quoted(L"图层名“%s”含禁用字符、为空或过长，保留原样", name.Left(40)));
  return record->objectId();
}

// --- blocks and entities
// -----------------------------------------------------------------------------------------

AcDbBlockTableRecord& dxf::DrawingReader::blockNamed(const CString& name) {
  AcDbSymbolTable& table = *m_database.tableOf("BLOCK_RECORD");
  AcDbObjectId id;
  if (table.getAt(name, id) == Acad::eOk) {
    auto* found = static_cast<AcDbBlockTableRecord*>(id.object());
    if (found->blockBeginId().isNull()) return *found;
    m_context.repaired(m_scanner.tags().front(),
                       quoted(L"块“%s”重名，保留但按名称只用第一个", name.Left(40)));
  }
  auto* record = new AcDbBlockTableRecord;
  m_database.addAcDbObject(record, table.objectId());
  record->setNameAsRead(name);
  record->setImplicit(true);
  record->close();
  table.file(*record);
  return *record;
}

// Model or paper space, whether or not its BLOCK was read.
AcDbBlockTableRecord& dxf::DrawingReader::spaceNamed(const wchar_t* name) {
  AcDbObjectId id;
  const AcDbSymbolTable& table = *m_database.tableOf("BLOCK_RECORD");
  return table.getAt(name, id) == Acad::eOk ? *static_cast<AcDbBlockTableRecord*>(id.object())
                                            : blockNamed(name);
}

void dxf::DrawingReader::readBlocks() {
  AcDbObjectId last; // end mark of the block read before
  while (!m_ended) {
    // A block leaves its ENDBLK as the current record, or what follows when that is missing.
    if (m_scanner.type() != "BLOCK" && (!nextRecord() || atSectionEnd())) return;
    if (m_scanner.type() == "BLOCK") {
      const AcDbBlockTableRecord& block = readBlock();
      last = block.blockEndId();
      if (!m_ended && atSectionEnd()) return;
      continue;
    }
    if (m_scanner.type() == "ENDBLK") {
      m_context.repaired(m_scanner.tags().front(), L"多余的 ENDBLK，原样保留");
      if (last.isNull())
        keepBehind(DrawingForm::Stray::behindHead);
      else
        keepBehind(DrawingForm::Stray::behindRecord, last);
      continue;
    }
    m_context.repaired(m_scanner.tags().front(), L"不在任何块内的实体，已移入模型空间");
    readEntityInto(spaceNamed(ACDB_MODEL_SPACE));
  }
}

AcDbBlockTableRecord& dxf::DrawingReader::readBlock() {
  const CString name = AcDbBlockBegin::nameIn(m_scanner.tags());
  AcDbBlockTableRecord& block = blockNamed(name);
  m_database.form().blockOrder.push_back(block.objectId());
  m_context.defined(block.objectId());
  m_parent = nullptr;
  const char* const place = m_scanner.recordText().data();
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
      return block;
    }
    if (m_scanner.type() == "BLOCK") break;
    readEntityInto(block);
  }
  if (!m_ended || m_options.recover)
    m_context.repairedAt(place, 0, quoted(L"块“%s”缺少 ENDBLK，保存时补上", name.Left(40)));
  return block;
}

void dxf::DrawingReader::readEntities() {
  AcDbBlockTableRecord* model = nullptr;
  AcDbBlockTableRecord* paper = nullptr;
  const auto space = [&](AcDbBlockTableRecord*& cached, const wchar_t* name) -> AcDbBlockTableRecord& {
    if (!cached) cached = &spaceNamed(name);
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
  if (type == "INSERT" && AcDbBlockReference::cast(entity))
    m_insertions.push_back(static_cast<const AcDbBlockReference*>(entity));
  if (type == "POLYLINE" || type == "INSERT" || announcesSubEntities(m_scanner.tags())) {
    m_parent = entity;
    m_parentHasChildren = false;
  }
}

const AcRxClass* dxf::DrawingReader::classOfRecord() {
  const auto [entry, isNew] = m_classes.try_emplace(m_scanner.type(), nullptr);
  if (isNew) entry->second = AcRxClass::findByDxfName(m_scanner.type());
  return entry->second;
}

// What is no entity of a class that the host makes is an entity all the same. The marks of a block are none.
AcDbEntity* dxf::DrawingReader::makeEntity() {
  const AcRxClass* type = classOfRecord();
  const bool isMark = type == AcDbBlockBegin::desc() || type == AcDbBlockEnd::desc();
  if (!type || isMark || !type->isDerivedFrom(AcDbEntity::desc())) return new AcDbUnknownEntity;
  auto* made = static_cast<AcDbEntity*>(type->create());
  return made ? made : new AcDbUnknownEntity;
}

AcDbObject* dxf::DrawingReader::makeObject() {
  const AcRxClass* type = classOfRecord();
  if (!type || !type->isDerivedFrom(AcDbObject::desc()) || type->isDerivedFrom(AcDbEntity::desc()) ||
      type->isDerivedFrom(AcDbSymbolTableRecord::desc()))
    return new AcDbUnknownObject;
  auto* made = static_cast<AcDbObject*>(type->create());
  return made ? made : new AcDbUnknownObject;
}

AcDbEntity* dxf::DrawingReader::readEntity(const AcDbObjectId& owner) {
  AcDbEntity* entity = makeEntity();
  m_database.addAcDbObject(entity, owner);
  entity->close();
  decodeInto(*entity);
  adopt(*entity);
  return entity;
}

void dxf::DrawingReader::readObjects() {
  while (nextRecord() && !atSectionEnd()) {
    AcDbObject* object = makeObject();
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
DxfRecord dxf::DrawingReader::currentRecord() const {
  const auto& bad = m_scanner.badReals();
  if (bad.empty()) return DxfRecord::partOf(m_text, m_scanner.recordText());
  std::string text;
  std::size_t next = 0;
  for (std::size_t i = 0; i < m_scanner.tags().size(); ++i) {
    const DxfTag& tag = m_scanner.tags()[i];
    const bool isBad = next < bad.size() && bad[next] == i;
    text += DxfRecordEditor::tag(tag.code, isBad ? "0.0" : tag.value);
    if (!isBad) continue;
    ++next;
    m_context.repaired(tag, quoted(L"“%s”不是有限的数，已改为 0.0", shown(tag.value)));
  }
  return DxfRecord::own(std::move(text));
}

void dxf::DrawingReader::decodeInto(AcDbObject& object) {
  if (m_scanner.badReals().empty())
    object.setRecord(currentRecord(), m_scanner.tags(), m_context);
  else
    object.setRecord(currentRecord(), m_context);
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
                   shown(tag->value)));
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
  reportCycles();
  m_database.form().seedAfterReading = m_database.handseed();
  m_database.setModified(false);
}

void dxf::DrawingReader::reportCycles() {
  AcDbObjectId told;
  for (const AcDbBlockReference* reference : insertionsInCycles(m_insertions)) {
    if (reference->ownerId() == told) continue;
    told = reference->ownerId();
    const auto* block = static_cast<const AcDbBlockTableRecord*>(told.object());
    m_context.repairedAt(reference->record().text().data(), 2,
                         quoted(L"块“%s”直接或间接包含自身，显示时不展开", block->name().Left(40)));
  }
}
