#include "host/dxf/DrawingReader.h"

#include "host/db/AcDbBlockReference.h"
#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbSymbolTable.h"
#include "host/db/EntityWatcher.h"
#include "host/dxf/BlockCycles.h"
#include "host/dxf/RecordValues.h"

namespace {

constexpr std::size_t kRecordsBetweenProgress = 4096;

} // namespace

dxf::DrawingReader::DrawingReader(AcDbDatabase& database, std::shared_ptr<const std::string> text,
                                  const ReadOptions& options)
    : m_database(database), m_text(std::move(text)), m_options(options), m_scanner(*m_text),
      m_context(database, m_scanner) {}

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
    dropHalfEnd();
    const bool complete = !form.sections.back().tail.isEmpty() && endsLikeAWholeFile();
    CString cut;
    cut.Format(L"文件在段“%s”中意外结束", CString::FromUtf8(form.sections.back().name));
    const char* end = m_text->data() + m_text->size();
    if (!complete && !m_options.recover)
      m_error.Format(L"第 %d 行：%s", m_scanner.lineOf(end), cut);
    else if (!complete)
      m_context.repairedAt(end, -1, cut + L"，其后的内容已缺失");
    m_context.repairedAt(nullptr, 0, L"文件末尾缺少 EOF，保存时补上");
  }
  if (m_error.IsEmpty()) finish();
  return m_error;
}

// Without the end mark, a file may be cut off between two sections. Then the sections that every file has are
// missing, or the beginning of one stands at the end.
bool dxf::DrawingReader::endsLikeAWholeFile() const {
  const DrawingForm& form = m_database.form();
  const auto has = [&](const char* name) { return m_sectionCounts.contains(name); };
  if (!has("ENTITIES") || (form.subclassMarkers() && !has("OBJECTS"))) return false;
  const bool strayLast = !form.strays.empty() && form.strays.back().place == DrawingForm::Stray::behindTail &&
                         form.strays.back().section == form.sections.size() - 1;
  return !strayLast || !std::string_view("SECTION").starts_with(form.strays.back().text.type());
}

// "E" or "EO" at the end of a file is what is left of its end mark.
void dxf::DrawingReader::dropHalfEnd() {
  auto& strays = m_database.form().strays;
  if (strays.empty() || strays.back().place != DrawingForm::Stray::behindTail) return;
  const std::string_view type = strays.back().text.type();
  if (!type.empty() && std::string_view("EOF").starts_with(type)) strays.pop_back();
}

void dxf::DrawingReader::keepStrayRecord() {
  const DxfTag& tag = m_scanner.tags().front();
  m_context.repaired(tag, quoted(L"记录“%s”不在任何段内，原样保留", shown(tag.value)));
  keepBehind(DrawingForm::Stray::behindTail);
}

// What belongs to nothing is kept behind what it stood behind.
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
  const bool isGround = section.name == "HEADER" || section.name == "TABLES" || section.name == "BLOCKS" ||
                        section.name == "ENTITIES";
  if (isGround && m_options.watcher && m_sectionCounts.contains("ENTITIES"))
    m_options.watcher->groundChanged();
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
  while (nextRecord() && !atSectionEnd()) {
    m_context.repaired(m_scanner.tags().front(), L"文件头中有不属于它的记录，原样保留");
    keepBehind(DrawingForm::Stray::behindHead);
  }
}

void dxf::DrawingReader::readClasses() {
  while (nextRecord() && !atSectionEnd()) m_database.form().classes.push_back(currentRecord());
}

void dxf::DrawingReader::readWhole(DrawingForm::Section& section) {
  const char* begin = m_scanner.recordText().data() + m_scanner.recordText().size();
  const char* end = begin;
  std::string mended; // instead, as soon as a number had to be mended or a piece was passed over
  bool isMended = false;
  while (nextRecord() && !atSectionEnd()) {
    reserveHandleOf(m_scanner.tags());
    const bool follows = m_scanner.recordText().data() == end && m_scanner.badReals().empty();
    if (!follows && !isMended) {
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

void dxf::DrawingReader::finish() {
  for (const auto& [table, order] : m_entryOrder) table->arrange(order);
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
