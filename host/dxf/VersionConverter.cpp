#include "host/dxf/VersionConverter.h"

#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbDictionary.h"
#include "host/db/AcDbEntity.h"
#include "host/db/AcDbXrecord.h"
#include "host/db/DxfRecordEditor.h"
#include "host/db/DxfText.h"
#include "host/dxf/FileEncoding.h"
#include "host/dxf/FileVersion.h"
#include "host/dxf/VersionTables.h"

#include <algorithm>

namespace {

using dxf::LossList;

constexpr std::string_view kFirstWithOwners = dxf::kR2000;

void append(std::string& text, const DxfTag& tag) {
  text += DxfRecordEditor::tag(tag.code, tag.value);
}

CString counted(const wchar_t* format, std::string_view name) {
  CString text;
  text.Format(format, dxf::decodeText(name));
  return text;
}

// Solids whose shape stands in a section of its own from R2013 on, and in themselves before.
bool isSolid(std::string_view type) {
  static constexpr std::string_view types[] = {
      "3DSOLID",       "REGION",          "BODY",         "SURFACE",      "EXTRUDEDSURFACE",
      "LOFTEDSURFACE", "REVOLVEDSURFACE", "SWEPTSURFACE", "PLANESURFACE", "NURBSURFACE"};
  return std::find(std::begin(types), std::end(types), type) != std::end(types);
}

bool hasShapeInItself(DxfTags tags) {
  bool inModeler = false;
  for (const DxfTag& tag : tags) {
    if (tag.code == 100) inModeler = dxf::trimBlanks(tag.value) == "AcDbModelerGeometry";
    if (inModeler && (tag.code == 1 || tag.code == 3)) return true;
  }
  return false;
}

} // namespace

dxf::VersionConverter::VersionConverter(AcDbDatabase& database, std::string_view target)
    : m_database(database), m_target(target), m_toR12(target == kR12),
      m_fromR12(!database.form().subclassMarkers()), m_toUtf8(!database.form().utf8 && target >= kR2007),
      m_addsOwners(database.form().version < kFirstWithOwners && target >= kFirstWithOwners),
      m_nextHandle(database.handseed().value()) {
  if (m_addsOwners) planLayouts();
}

bool dxf::VersionConverter::hasSection(std::string_view name) {
  if (name == "ACDSDATA" && m_target < kR2013) return false; // what stands in it is told of its solids
  if (!m_toR12 || m_fromR12) return true;
  if (name == "THUMBNAILIMAGE") m_losses.add(L"预览图");
  // Of the objects only these hold what users and plug-ins have put there; the rest goes with what it
  // describes.
  if (name == "OBJECTS")
    for (const AcDbObjectId& id : m_database.objects())
      if (!id.isErased() && AcDbXrecord::cast(id.object())) m_losses.add(L"扩展记录");
  return name == "HEADER" || name == "TABLES" || name == "BLOCKS" || name == "ENTITIES";
}

bool dxf::VersionConverter::hasStray() {
  if (!m_toR12) return true;
  m_losses.add(L"不属于任何表或段的记录");
  return false;
}

bool dxf::VersionConverter::hasBlock(const AcDbObject& object) {
  const auto& block = static_cast<const AcDbBlockTableRecord&>(object);
  if (!m_toR12 || !block.isLayout()) return true;
  // The two spaces have no definition in R12; a second layout has no place at all.
  if (!block.isModelSpace() && !block.isPaperSpace()) {
    const auto& entities = block.entities();
    const auto alive =
        std::count_if(entities.begin(), entities.end(), [](const auto& id) { return !id.isErased(); });
    if (alive > 0)
      m_losses.add(counted(L"不是当前布局的图纸空间“%s”中的实体", block.name().ToUtf8()),
                   static_cast<std::size_t>(alive));
  }
  return false;
}

std::string dxf::VersionConverter::header(std::string_view variables) {
  std::string text = DxfRecordEditor::tag(9, "$ACADVER") + DxfRecordEditor::tag(1, m_target);
  bool take = false;
  bool hasCodePage = false;
  bool hasSeed = false;
  DxfTagReader reader(variables);
  for (DxfTag tag; reader.next(tag);) {
    if (tag.code == 9) {
      const std::string_view name = trimBlanks(tag.value);
      // The maintenance release is that of the program that wrote the version.
      take = name != "$ACADVER" && name != "$ACADMAINTVER";
      const bool gone = m_fromR12 && !m_toR12 && isR12OnlyVariable(name);
      const bool tooNew = m_toR12 ? variableSince(name) != kR12 : variableSince(name) > m_target;
      if (take && (gone || tooNew)) {
        m_losses.add(L"文件头变量");
        take = false;
      }
      hasCodePage = hasCodePage || (take && name == "$DWGCODEPAGE");
      hasSeed = hasSeed || (take && name == "$HANDSEED");
    }
    if (take) append(text, tag);
  }
  const std::string page = m_database.form().codePage.empty() ? kDefaultCodePage : m_database.form().codePage;
  if (!hasCodePage) text += DxfRecordEditor::tag(9, "$DWGCODEPAGE") + DxfRecordEditor::tag(3, page);
  if (!hasSeed) text += DxfRecordEditor::tag(9, "$HANDSEED") + DxfRecordEditor::tag(5, seed().toHex());
  // Without it R12 passes over handles.
  if (m_toR12 && !m_fromR12) text += DxfRecordEditor::tag(9, "$HANDLING") + DxfRecordEditor::tag(70, "1");
  return text;
}

// The number of its instances stands in a class from R2004 on.
std::string dxf::VersionConverter::classRecord(std::string_view record) const {
  std::string text;
  DxfTagReader reader(record);
  for (DxfTag tag; reader.next(tag);)
    if (tag.code != 91 || m_target >= kR2004) append(text, tag);
  return text;
}

std::string dxf::VersionConverter::inUtf8(std::string_view text) {
  std::string changed(text);
  const std::size_t count = replaceUnexplainedBytes(changed);
  if (count > 0) m_losses.add(L"无法识别的字节", count);
  return changed;
}

std::optional<std::string> dxf::VersionConverter::record(const AcDbObject& object) {
  const auto tags = dxfTagsOf(object.record().text());
  if (m_fromR12) return m_toR12 ? std::nullopt : std::optional(withLayouts(object, fromR12(object, tags)));
  if (m_toR12) return asR12(object, tags);
  if (m_addsOwners) return withLayouts(object, withOwner(object, object.record().text(), tags));
  return reduced(tags);
}

std::optional<std::string> dxf::VersionConverter::reduced(DxfTags tags) {
  const std::string_view type = tags.empty() ? std::string_view() : trimBlanks(tags.front().value);
  if (m_target < kR2013 && isSolid(type) && !hasShapeInItself(tags)) {
    m_losses.add(counted(L"三维实体 %s", type));
    return std::string();
  }
  std::string text;
  bool changed = false;
  bool embedded = false; // within what R2018 files hold of another object
  bool named = false;    // an attribute's tag was passed
  std::string_view subclass;
  std::span<const NewerTag> rows;
  for (std::size_t i = 0; i < tags.size(); ++i) {
    const DxfTag& tag = tags[i];
    bool drop = false;
    int code = tag.code;
    if (code == 100) {
      subclass = trimBlanks(tag.value);
      rows = newerTags(subclass);
      named = false;
    }
    named = named || code == 2;
    if (code >= 1000) {
      rows = {};
      embedded = false;
    }
    if (code == 101 && m_target < kR2018) embedded = true;
    if (embedded) {
      drop = true;
    } else if (code == 280 && subclass.starts_with("AcDbAttribute") && !named) {
      drop = m_target < kR2010; // the version of its own that attributes have
    } else if (subclass == "AcDbEntity" && (code == 92 || code == 160)) {
      code = m_target < kR2010 ? 92 : 160; // the size of a proxy's picture
    } else {
      for (const NewerTag& row : rows) {
        if (code < row.first || code > row.last || row.since <= m_target) continue;
        drop = true;
        if (row.name && !isPlain(row, tag.value)) m_losses.add(row.name);
        break;
      }
    }
    if (!changed && (drop || code != tag.code)) {
      changed = true;
      for (const DxfTag& before : tags.first(i)) append(text, before);
    }
    if (changed && !drop) append(text, {code, tag.value});
  }
  return changed ? std::optional(std::move(text)) : std::nullopt;
}

// Behind the handle and the groups that follow it.
std::string dxf::VersionConverter::withOwner(const AcDbObject& object, std::string_view text,
                                             DxfTags tags) const {
  bool inGroup = false;
  bool hasMarker = false;
  std::size_t at = 1;
  for (std::size_t i = 1; i < tags.size(); ++i) {
    const DxfTag& tag = tags[i];
    if (tag.code == 100 || tag.code >= 1000) hasMarker = true;
    if (hasMarker) break;
    if (tag.code == 102) inGroup = tag.value.starts_with("{");
    if (!inGroup && tag.code == 330) return std::string(text);
    if (tag.code == 5 || tag.code == 105 || tag.code == 102) at = i + 1;
  }
  std::string changed;
  for (const DxfTag& tag : tags.first(at)) append(changed, tag);
  changed += DxfRecordEditor::tag(330, object.ownerId().handle().toHex());
  for (const DxfTag& tag : tags.subspan(at)) append(changed, tag);
  return changed;
}

std::vector<CString> dxf::VersionConverter::losses() const {
  return m_losses.sentences(versionName(m_target));
}
