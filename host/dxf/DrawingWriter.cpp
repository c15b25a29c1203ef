#include "host/dxf/DrawingWriter.h"

#include "host/afx/AtomicFile.h"
#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbEntity.h"
#include "host/db/DxfRecordEditor.h"
#include "host/db/DxfText.h"
#include "host/dxf/DrawingFile.h"
#include "host/dxf/FileEncoding.h"
#include "host/dxf/FileVersion.h"

#include <algorithm>
#include <set>
#include <unordered_set>

namespace {

constexpr std::string_view kSectionOrder[] = {"HEADER", "CLASSES", "TABLES", "BLOCKS", "ENTITIES", "OBJECTS"};
constexpr std::size_t kObjectsBetweenProgress = 4096;

std::string sectionHead(std::string_view name) {
  return DxfRecordEditor::tag(0, "SECTION") + DxfRecordEditor::tag(2, name);
}

const AcDbBlockTableRecord* blockOf(const AcDbObjectId& id) {
  return AcDbBlockTableRecord::cast(id.object());
}

// The form of a file in that version; an empty one is the version that was read.
DrawingForm formFor(const DrawingForm& read, std::string_view version) {
  DrawingForm form = read;
  if (version.empty() || version == read.version) return form;
  form.version = version;
  form.utf8 = version >= dxf::kR2007;
  if (form.codePage.empty()) form.codePage = dxf::kDefaultCodePage;
  return form;
}

} // namespace

dxf::DrawingWriter::DrawingWriter(AcDbDatabase& database, const WriteOptions& options, TextOutput::Sink sink)
    : m_database(database), m_options(options), m_form(formFor(database.form(), options.version)),
      m_out(m_form, std::move(sink)) {
  if (m_form.version != database.form().version) m_converter.emplace(database, m_form.version);
  for (const DrawingForm::Stray& stray : m_form.strays)
    m_strays.insert({{stray.place, stray.object.stub(), stray.object ? 0 : stray.section}, &stray.text});
}

// Tells how far it is, now and then.
void dxf::DrawingWriter::told() {
  if (++m_objectsWritten % kObjectsBetweenProgress != 0 || !m_options.progress || m_cancelled) return;
  const double all = static_cast<double>(m_database.objectCount());
  m_cancelled = !m_options.progress(std::min(1.0, static_cast<double>(m_objectsWritten) / all));
}

void dxf::DrawingWriter::put(std::string_view text) {
  if (m_converter && m_converter->isToUtf8())
    putCopy(text);
  else
    m_out.put(text);
}

void dxf::DrawingWriter::putCopy(std::string_view text) {
  if (m_converter && m_converter->isToUtf8())
    m_out.putCopy(m_converter->inUtf8(text));
  else
    m_out.putCopy(text);
}

void dxf::DrawingWriter::put(const AcDbObject& object) {
  told();
  const std::string_view text = object.record().text();
  if (const auto converted = m_converter ? m_converter->record(object) : std::nullopt)
    putCopy(*converted);
  else
    put(text);
  if (!m_strays.empty()) putStrays(DrawingForm::Stray::behindRecord, object.objectId().stub());
}

void dxf::DrawingWriter::putStrays(DrawingForm::Stray::Place place, const AcDbStub* object,
                                   std::size_t section) {
  const auto [first, last] = m_strays.equal_range({place, object, section});
  for (auto stray = first; stray != last; ++stray)
    if (!m_converter || m_converter->hasStray()) put(stray->second->text());
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

std::vector<dxf::DrawingWriter::PlannedSection> dxf::DrawingWriter::sections() {
  std::vector<PlannedSection> list;
  for (const DrawingForm::Section& section : m_form.sections) list.push_back({section, list.size()});
  const auto indexIn = [](std::string_view name) {
    return std::find(std::begin(kSectionOrder), std::end(kSectionOrder), name) - std::begin(kSectionOrder);
  };
  const auto need = [&](std::string_view name) {
    if (std::any_of(list.begin(), list.end(),
                    [&](const auto& planned) { return planned.section.name == name; }))
      return;
    auto at = list.begin();
    for (auto it = list.begin(); it != list.end(); ++it)
      if (indexIn(it->section.name) < indexIn(name)) at = it + 1;
    PlannedSection planned;
    planned.section.name = name;
    list.insert(at, planned);
  };
  const auto anyRecord = [&](const AcDbObjectId& tableId) {
    const auto* table = static_cast<const AcDbSymbolTable*>(tableId.object());
    // Old drawings have no table of blocks.
    if (table->recordType() == "BLOCK_RECORD" && !m_form.subclassMarkers()) return false;
    const auto& records = table->records();
    return std::any_of(records.begin(), records.end(),
                       [&](const auto& id) { return isWanted(*id.object()); });
  };
  if (m_converter) {
    for (const std::string_view name : kSectionOrder) need(name);
    for (PlannedSection& planned : list) planned.isLeftOut = !m_converter->hasSection(planned.section.name);
    return list;
  }
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
  if (!m_form.classes.empty() && m_form.subclassMarkers()) need("CLASSES");
  need("ENTITIES");
  const auto& objects = m_database.objects();
  if (m_form.subclassMarkers() &&
      std::any_of(objects.begin(), objects.end(), [&](const auto& id) { return isWanted(*id.object()); }))
    need("OBJECTS");
  return list;
}

bool dxf::DrawingWriter::write() {
  const auto list = sections();
  std::set<std::string> written;
  put(m_form.preamble.text());
  putStrays(DrawingForm::Stray::behindTail, nullptr, static_cast<std::size_t>(-1));
  for (std::size_t i = 0; i < list.size() && !m_cancelled; ++i) {
    const auto& [section, stood, isLeftOut] = list[i];
    if (isLeftOut) {
      putStrays(DrawingForm::Stray::behindHead, nullptr, stood);
      putStrays(DrawingForm::Stray::behindTail, nullptr, stood);
      continue;
    }
    if (section.head.isEmpty()) putCopy(sectionHead(section.name));
    put(section.head.text());
    // The variables of a header stand in its own record.
    if (section.name != "HEADER") putStrays(DrawingForm::Stray::behindHead, nullptr, stood);
    // Entities go to the section that they came from, the new ones to the last; what a second section of
    // another name held was taken into the first.
    if (section.name == "ENTITIES") {
      const auto next = std::find_if(list.begin() + static_cast<std::ptrdiff_t>(i) + 1, list.end(),
                                     [](const auto& other) { return other.section.name == "ENTITIES"; });
      writeEntities(next == list.end() ? ~std::uint32_t{0} : next->section.firstRank);
    } else if (written.insert(section.name).second) {
      writeSection(section.name);
    }
    if (section.name == "HEADER") putStrays(DrawingForm::Stray::behindHead, nullptr, stood);
    put(section.body.text());
    static const std::string endSection = DxfRecordEditor::tag(0, "ENDSEC");
    put(section.tail.isEmpty() ? std::string_view(endSection) : section.tail.text());
    putStrays(DrawingForm::Stray::behindTail, nullptr, stood);
  }
  static const std::string eof = DxfRecordEditor::tag(0, "EOF");
  put(m_form.eof.isEmpty() ? std::string_view(eof) : m_form.eof.text());
  return !m_cancelled && m_out.finish();
}

void dxf::DrawingWriter::writeSection(std::string_view name) {
  if (name == "HEADER") writeHeader();
  if (name == "CLASSES") writeClasses();
  if (name == "TABLES") writeTables();
  if (name == "BLOCKS") writeBlocks();
  if (name == "OBJECTS") writeObjects();
}

void dxf::DrawingWriter::writeClasses() {
  for (const DxfRecord& record : m_form.classes) {
    if (m_converter)
      putCopy(m_converter->classRecord(record.text()));
    else
      put(record.text());
  }
}

// Above every handle that the file had or has now. What was added and taken back again leaves no trace.
AcDbHandle dxf::DrawingWriter::neededSeed() const {
  AcDbHandle highest;
  for (const AcDbStub& stub : m_database.stubs())
    if (!stub.object->isErased() && !stub.object->ownerId().isErased())
      highest = std::max(highest, stub.handle);
  highest = AcDbHandle(highest.value() + 1);
  return std::max({m_form.seedAfterReading, highest, m_converter ? m_converter->seed() : AcDbHandle()});
}

void dxf::DrawingWriter::writeHeader() {
  AcDbHeader& header = m_database.header();
  const auto seed = header.text("$HANDSEED");
  const AcDbHandle needed = neededSeed();
  const bool nothingAdded = !m_form.subclassMarkers() && needed == m_form.seedAfterReading && !m_converter;
  const bool isHighEnough = !seed || nothingAdded || AcDbHandle::fromHex(dxf::encodeText(*seed)) >= needed;
  const std::string_view text = header.record().text();
  const std::string raised =
      isHighEnough ? std::string()
                   : AcDbHeader::withVariable(text, "$HANDSEED", DxfRecordEditor::tag(5, needed.toHex()));
  if (m_converter)
    putCopy(m_converter->header(isHighEnough ? text : raised));
  else if (isHighEnough)
    put(text);
  else
    putCopy(raised);
}

void dxf::DrawingWriter::writeTables() {
  static const std::string endTable = DxfRecordEditor::tag(0, "ENDTAB");
  for (const AcDbObjectId& id : m_database.tables()) {
    const auto& table = *static_cast<const AcDbSymbolTable*>(id.object());
    const auto& records = table.records();
    const bool old = !m_form.subclassMarkers();
    // Old drawings have no records of blocks; a few bring the table all the same.
    if (old && table.recordType() == "BLOCK_RECORD" && (m_converter || table.endRecord().isEmpty())) continue;
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
    if (m_converter && !m_converter->hasBlock(*block)) continue;
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
  if (m_converter) putCopy(m_converter->addedObjects());
}

std::vector<CString> dxf::DrawingWriter::losses() const {
  if (m_converter) return m_converter->losses();
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
