// The sections BLOCKS and ENTITIES: what is drawn, in its blocks.
#include "host/db/AcDbBlockMarks.h"
#include "host/db/AcDbBlockReference.h"
#include "host/db/AcDbBlockTable.h"
#include "host/db/EntityWatcher.h"
#include "host/dxf/DrawingReader.h"
#include "host/dxf/RecordValues.h"

namespace {

// Tells the watcher of entities as they are done, and that it is over whichever way the reading ends.
class Announcer {
 public:
  explicit Announcer(EntityWatcher* watcher) : m_watcher(watcher) {}
  ~Announcer() {
    if (m_watcher) m_watcher->entitiesEnd();
  }
  Announcer(const Announcer&) = delete;
  Announcer& operator=(const Announcer&) = delete;

  // The last entity may still get what belongs to it.
  void grown(const AcDbBlockTableRecord& space) {
    const std::span<const AcDbObjectId> entities = space.entities();
    if (!m_watcher || entities.size() <= m_told + m_watcher->together()) return;
    const auto done = entities.subspan(m_told, m_watcher->together());
    m_watcher->entitiesRead(space, done);
    m_told += done.size();
  }

 private:
  EntityWatcher* m_watcher;
  std::size_t m_told = 0;
};

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

// The block that a BLOCK begins. Of several with one name each takes the record that is next.
AcDbBlockTableRecord& dxf::DrawingReader::blockNamed(const CString& name) {
  AcDbSymbolTable& table = *m_database.tableOf("BLOCK_RECORD");
  if (!table.filedUnder(name).empty()) {
    auto* next = firstNamed(table, name, m_begunBlocks, [](const AcDbSymbolTableRecord& record) {
      return static_cast<const AcDbBlockTableRecord&>(record).blockBeginId().isNull();
    });
    if (!next || next->objectId() != table.filedUnder(name).front())
      m_context.repaired(m_scanner.tags().front(),
                         quoted(L"块“%s”重名，保留但按名称只用第一个", name.Left(40)));
    if (next) return *static_cast<AcDbBlockTableRecord*>(next);
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
  const bool hasGround = m_sectionCounts.contains("TABLES") && m_sectionCounts.contains("BLOCKS") &&
                         m_sectionCounts["ENTITIES"] == 1;
  Announcer announcer(hasGround ? m_options.watcher : nullptr);
  while (nextRecord() && !atSectionEnd()) {
    const DxfTag* flag = headTag(m_scanner.tags(), 67);
    if (!flag) // behind the entity marker in newer files
      for (const DxfTag& tag : dxfCommonTags(m_scanner.tags()))
        if (tag.code == 67) flag = &tag;
    const bool inPaper = flag && trimBlanks(flag->value) == "1";
    readEntityInto(inPaper ? space(paper, ACDB_PAPER_SPACE) : space(model, ACDB_MODEL_SPACE));
    if (model) announcer.grown(*model);
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
