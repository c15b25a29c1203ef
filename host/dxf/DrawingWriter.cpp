#include "host/dxf/DrawingWriter.h"

#include "host/afx/AtomicFile.h"
#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbEntity.h"
#include "host/db/DxfRecordEditor.h"
#include "host/db/DxfText.h"
#include "host/dxf/DrawingFile.h"
#include "host/dxf/FileEncoding.h"

#include <algorithm>
#include <set>
#include <unordered_set>

namespace {

constexpr std::string_view kSectionOrder[] = {"HEADER", "CLASSES", "TABLES", "BLOCKS", "ENTITIES", "OBJECTS"};

std::string sectionHead(std::string_view name) {
  return DxfRecordEditor::tag(0, "SECTION") + DxfRecordEditor::tag(2, name);
}

const AcDbBlockTableRecord* blockOf(const AcDbObjectId& id) {
  return AcDbBlockTableRecord::cast(id.object());
}

} // namespace

dxf::DrawingWriter::DrawingWriter(AcDbDatabase& database)
    : m_database(database), m_form(database.form()), m_plain(isPlainForm(database.form())) {
  for (const DrawingForm::Stray& stray : m_form.strays)
    m_strays.insert({{stray.place, stray.object.stub(), stray.object ? 0 : stray.section}, &stray.text});
}

void dxf::DrawingWriter::flush() {
  if (m_plain)
    m_out += m_pending;
  else
    m_out += encodeForFile(m_pending, m_form);
  m_pending = {};
}

// Records that stood side by side in the file are copied in one piece.
void dxf::DrawingWriter::put(std::string_view text) {
  if (text.empty()) return;
  if (!m_pending.empty() && m_pending.data() + m_pending.size() == text.data()) {
    m_pending = {m_pending.data(), m_pending.size() + text.size()};
    return;
  }
  flush();
  endLine();
  m_pending = text;
}

// The last line of a file may lack its end, and what follows it now must not join it.
void dxf::DrawingWriter::endLine() {
  if (!m_out.empty() && m_out.back() != '\n') m_out += m_form.crlf ? "\r\n" : "\n";
}

void dxf::DrawingWriter::put(const AcDbObject& object) {
  put(object.record().text());
  if (!m_strays.empty()) putStrays(DrawingForm::Stray::behindRecord, object.objectId().stub());
}

void dxf::DrawingWriter::putStrays(DrawingForm::Stray::Place place, const AcDbStub* object,
                                   std::size_t section) {
  const auto [first, last] = m_strays.equal_range({place, object, section});
  for (auto stray = first; stray != last; ++stray) put(stray->second->text());
}

void dxf::DrawingWriter::putEntity(const AcDbEntity& entity) {
  put(entity);
  for (const AcDbObjectId& id : entity.subEntities())
    if (!id.isErased()) put(*id.object());
}

// What no file held is written where the version asks for it.
bool dxf::DrawingWriter::isWanted(const AcDbObject& object) const {
  return !object.isErased() && (!object.isImplicit() || m_form.version >= "AC1015");
}

std::vector<DrawingForm::Section> dxf::DrawingWriter::sections() const {
  std::vector<DrawingForm::Section> list = m_form.sections;
  const auto indexIn = [](std::string_view name) {
    return std::find(std::begin(kSectionOrder), std::end(kSectionOrder), name) - std::begin(kSectionOrder);
  };
  const auto need = [&](std::string_view name) {
    if (std::any_of(list.begin(), list.end(), [&](const auto& section) { return section.name == name; }))
      return;
    auto at = list.begin();
    for (auto it = list.begin(); it != list.end(); ++it)
      if (indexIn(it->name) < indexIn(name)) at = it + 1;
    DrawingForm::Section section;
    section.name = name;
    list.insert(at, section);
  };
  const auto anyRecord = [&](const AcDbObjectId& tableId) {
    const auto* table = static_cast<const AcDbSymbolTable*>(tableId.object());
    // Old drawings have no table of blocks.
    if (table->recordType() == "BLOCK_RECORD" && !m_form.subclassMarkers()) return false;
    const auto& records = table->records();
    return std::any_of(records.begin(), records.end(),
                       [&](const auto& id) { return isWanted(*id.object()); });
  };
  if (!m_database.header().record().isEmpty()) need("HEADER");
  const auto& tables = m_database.tables();
  if (std::any_of(tables.begin(), tables.end(), anyRecord)) need("TABLES");
  const auto& blocks = m_database.tableOf("BLOCK_RECORD")->records();
  if (std::any_of(blocks.begin(), blocks.end(), [&](const auto& id) {
        const auto* block = blockOf(id);
        if (!block || block->isErased()) return false;
        return m_form.version >= "AC1015" || (!block->isLayout() && !block->entities().empty());
      }))
    need("BLOCKS");
  need("ENTITIES");
  const auto& objects = m_database.objects();
  if (m_form.subclassMarkers() &&
      std::any_of(objects.begin(), objects.end(), [&](const auto& id) { return isWanted(*id.object()); }))
    need("OBJECTS");
  return list;
}

std::string dxf::DrawingWriter::write() {
  const auto list = sections();
  std::set<std::string> written;
  put(m_form.preamble.text());
  putStrays(DrawingForm::Stray::behindTail, nullptr, static_cast<std::size_t>(-1));
  std::vector<std::string> heads; // made here, alive until they are flushed
  heads.reserve(list.size());
  for (std::size_t i = 0; i < list.size(); ++i) {
    const DrawingForm::Section& section = list[i];
    if (section.head.isEmpty()) put(heads.emplace_back(sectionHead(section.name)));
    put(section.head.text());
    // The variables of a header stand in its own record.
    if (section.name != "HEADER") putStrays(DrawingForm::Stray::behindHead, nullptr, i);
    // Entities go to the section that they came from, the new ones to the last; what a second section of
    // another name held was taken into the first.
    if (section.name == "ENTITIES") {
      const auto next = std::find_if(list.begin() + static_cast<std::ptrdiff_t>(i) + 1, list.end(),
                                     [](const auto& other) { return other.name == "ENTITIES"; });
      writeEntities(next == list.end() ? ~std::uint32_t{0} : next->firstRank);
    } else if (written.insert(section.name).second) {
      writeSection(section.name);
    }
    if (section.name == "HEADER") putStrays(DrawingForm::Stray::behindHead, nullptr, i);
    put(section.body.text());
    static const std::string endSection = DxfRecordEditor::tag(0, "ENDSEC");
    put(section.tail.isEmpty() ? std::string_view(endSection) : section.tail.text());
    putStrays(DrawingForm::Stray::behindTail, nullptr, i);
  }
  static const std::string eof = DxfRecordEditor::tag(0, "EOF");
  put(m_form.eof.isEmpty() ? std::string_view(eof) : m_form.eof.text());
  flush();
  return std::move(m_out);
}

void dxf::DrawingWriter::writeSection(std::string_view name) {
  if (name == "HEADER") writeHeader();
  if (name == "CLASSES")
    for (const DxfRecord& record : m_form.classes) put(record.text());
  if (name == "TABLES") writeTables();
  if (name == "BLOCKS") writeBlocks();
  if (name == "OBJECTS") writeObjects();
}

// Above every handle that the file had or has now. What was added and taken back again leaves no trace.
AcDbHandle dxf::DrawingWriter::neededSeed() const {
  AcDbHandle highest;
  for (const AcDbStub& stub : m_database.stubs())
    if (!stub.object->isErased() && !stub.object->ownerId().isErased())
      highest = std::max(highest, stub.handle);
  return std::max(m_form.seedAfterReading, AcDbHandle(highest.value() + 1));
}

void dxf::DrawingWriter::writeHeader() {
  AcDbHeader& header = m_database.header();
  const auto seed = header.text("$HANDSEED");
  const AcDbHandle needed = neededSeed();
  const bool nothingAdded = !m_form.subclassMarkers() && needed == m_form.seedAfterReading;
  if (!seed || nothingAdded || AcDbHandle::fromHex(dxf::encodeText(*seed)) >= needed) {
    put(header.record().text());
    return;
  }
  const std::string text =
      AcDbHeader::withVariable(header.record().text(), "$HANDSEED", DxfRecordEditor::tag(5, needed.toHex()));
  put(text);
  flush();
}

void dxf::DrawingWriter::writeTables() {
  static const std::string endTable = DxfRecordEditor::tag(0, "ENDTAB");
  for (const AcDbObjectId& id : m_database.tables()) {
    const auto& table = *static_cast<const AcDbSymbolTable*>(id.object());
    const auto& records = table.records();
    const bool old = !m_form.subclassMarkers();
    // Old drawings have no records of blocks; a few bring the table all the same.
    if (old && table.recordType() == "BLOCK_RECORD" && table.endRecord().isEmpty()) continue;
    const bool any =
        std::any_of(records.begin(), records.end(), [&](const auto& r) { return isWanted(*r.object()); });
    if (table.isImplicit() && !any && m_form.version < "AC1015") continue;
    put(table);
    for (const AcDbObjectId& record : records)
      if (isWanted(*record.object())) put(*record.object());
    put(table.endRecord().isEmpty() ? std::string_view(endTable) : table.endRecord().text());
    if (!m_strays.empty()) putStrays(DrawingForm::Stray::behindEnd, id.stub());
  }
}

void dxf::DrawingWriter::writeBlocks() {
  std::vector<AcDbObjectId> order = m_form.blockOrder;
  const std::unordered_set<AcDbObjectId> ordered(order.begin(), order.end());
  for (const AcDbObjectId& id : m_database.tableOf("BLOCK_RECORD")->records())
    if (!ordered.contains(id)) order.push_back(id);
  for (const AcDbObjectId& id : order) {
    const AcDbBlockTableRecord* block = blockOf(id);
    if (!block || block->isErased()) continue;
    const bool stood = !block->blockBeginId().object()->isImplicit();
    if (!stood && m_form.version < "AC1015" && (block->isLayout() || block->entities().empty())) continue;
    writeBlock(*block);
  }
}

void dxf::DrawingWriter::writeBlock(const AcDbBlockTableRecord& block) {
  put(*block.blockBeginId().object());
  // The entities of the two active spaces stand in ENTITIES.
  if (!block.isModelSpace() && !block.isPaperSpace())
    for (const AcDbObjectId& id : block.entities())
      if (!id.isErased()) putEntity(static_cast<const AcDbEntity&>(*id.object()));
  put(*block.blockEndId().object());
}

void dxf::DrawingWriter::writeEntities(std::uint32_t endRank) {
  static const std::vector<AcDbObjectId> none;
  const auto entitiesOf = [](const AcDbObjectId& id) -> const std::vector<AcDbObjectId>& {
    const AcDbBlockTableRecord* block = blockOf(id);
    return block ? block->entities() : none;
  };
  const auto& model = entitiesOf(m_database.modelSpaceId());
  const auto& paper = entitiesOf(m_database.paperSpaceId());
  const auto entityAt = [](const AcDbObjectId& id) -> const AcDbEntity& {
    return static_cast<const AcDbEntity&>(*id.object());
  };
  auto m = model.begin() + static_cast<std::ptrdiff_t>(m_modelWritten);
  auto p = paper.begin() + static_cast<std::ptrdiff_t>(m_paperWritten);
  while (m != model.end() || p != paper.end()) {
    const bool takeModel =
        p == paper.end() || (m != model.end() && entityAt(*m).rank() <= entityAt(*p).rank());
    const AcDbObjectId id = takeModel ? *m : *p;
    if (entityAt(id).rank() >= endRank) break;
    ++(takeModel ? m : p);
    if (!id.isErased()) putEntity(entityAt(id));
  }
  m_modelWritten = static_cast<std::size_t>(m - model.begin());
  m_paperWritten = static_cast<std::size_t>(p - paper.begin());
}

void dxf::DrawingWriter::writeObjects() {
  for (const AcDbObjectId& id : m_database.objects())
    if (isWanted(*id.object())) put(*id.object());
}

std::vector<CString> dxf::DrawingWriter::losses() const {
  const auto& objects = m_database.objects();
  const auto count = std::count_if(objects.begin(), objects.end(), [](const AcDbObjectId& id) {
    return !id.isErased() && !id.object()->isImplicit();
  });
  const bool written =
      m_form.subclassMarkers() || std::any_of(m_form.sections.begin(), m_form.sections.end(),
                                              [](const auto& section) { return section.name == "OBJECTS"; });
  if (count == 0 || written) return {};
  CString text;
  text.Format(L"图形为 R12 格式，不能保存字典和扩展记录，%d 个对象未写入", count);
  return {text};
}

std::string dxf::WriteDrawingBytes(AcDbDatabase& database, std::vector<CString>* losses) {
  database.completeBlocks();
  DrawingWriter writer(database);
  if (losses) *losses = writer.losses();
  return writer.write();
}

dxf::WriteReport dxf::WriteDrawing(AcDbDatabase& database, const CString& path) {
  WriteReport report;
  const afx::FileResult result = afx::WriteFileAtomically(path, WriteDrawingBytes(database, &report.losses));
  report.ok = result.ok;
  report.error = result.message;
  return report;
}
