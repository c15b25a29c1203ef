#include "host/db/RecordNames.h"

#include "host/db/AcDbEntity.h"
#include "host/db/AcDbHeader.h"
#include "host/db/DxfRecordEditor.h"
#include "host/db/DxfText.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

constexpr std::string_view kLayer = "LAYER";
constexpr std::string_view kLinetype = "LTYPE";
constexpr std::string_view kStyle = "STYLE";
constexpr std::string_view kDimStyle = "DIMSTYLE";
constexpr std::string_view kBlock = "BLOCK_RECORD";
constexpr std::string_view kApplication = "APPID";

struct Fact {
  std::string_view recordType; // empty: every entity
  std::string_view subclass;
  int code;
  std::string_view table;
};

constexpr Fact kFacts[] = {
    {"", "AcDbEntity", 8, kLayer},
    {"", "AcDbEntity", 6, kLinetype},
    {"INSERT", "AcDbBlockReference", 2, kBlock},
    {"INSERT", "AcDbMInsertBlock", 2, kBlock},
    {"BLOCK", "AcDbBlockBegin", 2, kBlock},
    {"BLOCK", "AcDbBlockBegin", 3, kBlock},
    {"TEXT", "AcDbText", 7, kStyle},
    {"ATTRIB", "AcDbText", 7, kStyle},
    {"ATTDEF", "AcDbText", 7, kStyle},
    {"MTEXT", "AcDbMText", 7, kStyle},
    {"RTEXT", "RText", 7, kStyle},
    {"ARCALIGNEDTEXT", "AcDbArcAlignedText", 7, kStyle},
    {"DIMENSION", "AcDbDimension", 2, kBlock},
    {"DIMENSION", "AcDbDimension", 3, kDimStyle},
    {"ARC_DIMENSION", "AcDbDimension", 2, kBlock},
    {"ARC_DIMENSION", "AcDbDimension", 3, kDimStyle},
    {"LARGE_RADIAL_DIMENSION", "AcDbDimension", 2, kBlock},
    {"LARGE_RADIAL_DIMENSION", "AcDbDimension", 3, kDimStyle},
    {"LEADER", "AcDbLeader", 3, kDimStyle},
    {"TOLERANCE", "AcDbFcf", 3, kDimStyle},
    {"ACAD_TABLE", "AcDbBlockReference", 2, kBlock},
    {"ACAD_TABLE", "AcDbTable", 7, kStyle},
    {"LAYER", "AcDbLayerTableRecord", 6, kLinetype},
    {"DIMSTYLE", "AcDbDimStyleTableRecord", 5, kBlock},
    {"DIMSTYLE", "AcDbDimStyleTableRecord", 6, kBlock},
    {"DIMSTYLE", "AcDbDimStyleTableRecord", 7, kBlock},
    {"LAYER_FILTER", "AcDbLayerFilter", 8, kLayer},
    {"LAYER_INDEX", "AcDbLayerIndex", 8, kLayer},
    {"MLINESTYLE", "AcDbMlineStyle", 6, kLinetype},
    {"TABLESTYLE", "AcDbTableStyle", 7, kStyle},
};

// Header variables that hold a name, all in the first tag behind the variable's own.
struct HeaderFact {
  std::string_view variable;
  std::string_view table;
};
constexpr HeaderFact kHeaderFacts[] = {
    {"$CLAYER", kLayer},    {"$CELTYPE", kLinetype},  {"$TEXTSTYLE", kStyle},   {"$DIMSTYLE", kDimStyle},
    {"$DIMTXSTY", kStyle},  {"$DIMBLK", kBlock},      {"$DIMBLK1", kBlock},     {"$DIMBLK2", kBlock},
    {"$DIMLDRBLK", kBlock}, {"$DIMLTYPE", kLinetype}, {"$DIMLTEX1", kLinetype}, {"$DIMLTEX2", kLinetype},
};

// The codes that occur above, so that most tags are passed over at once.
bool mayName(int code) {
  return code == 2 || code == 3 || (code >= 5 && code <= 8);
}

class NameWalk {
 public:
  NameWalk(const DxfRecord& record, dxf::RecordKind kind)
      : m_reader(record.text()), m_type(record.type()), m_kind(kind) {}

  // The next tag, whether it names something or not; table is empty when it doesn't.
  bool next(DxfTag& tag, std::string_view& table) {
    if (!m_reader.next(tag)) return false;
    table = m_kind == dxf::RecordKind::header ? headerTable(tag) : recordTable(tag);
    return true;
  }

 private:
  std::string_view headerTable(const DxfTag& tag) {
    if (tag.code == 9) {
      m_variable = dxf::trimBlanks(tag.value);
      return {};
    }
    if (tag.code == 999) return {};
    const std::string_view variable = std::exchange(m_variable, {});
    const auto* fact = std::find_if(std::begin(kHeaderFacts), std::end(kHeaderFacts),
                                    [&](const HeaderFact& f) { return f.variable == variable; });
    return fact == std::end(kHeaderFacts) ? std::string_view() : fact->table;
  }

  std::string_view recordTable(const DxfTag& tag) {
    if (tag.code >= 1000) {
      m_embedded = true; // nothing but extended data follows
      return tag.code == 1003 ? kLayer : tag.code == 1001 ? kApplication : std::string_view();
    }
    if (m_embedded) return {};
    if (tag.code == 101) m_embedded = true;
    if (tag.code == 102) m_inGroup = tag.value.starts_with("{");
    if (m_inGroup) return {};
    if (tag.code == 100) m_scope = dxf::trimBlanks(tag.value);
    if (!mayName(tag.code)) return {};
    for (const Fact& fact : kFacts) {
      if (fact.code != tag.code) continue;
      if (fact.recordType.empty() ? m_kind != dxf::RecordKind::entity : fact.recordType != m_type) continue;
      // Records of old drawings have no markers: everything is one scope.
      if (m_scope.empty() || fact.subclass == m_scope) return fact.table;
    }
    return {};
  }

  DxfTagReader m_reader;
  std::string_view m_type;
  dxf::RecordKind m_kind;
  std::string_view m_variable;
  std::string_view m_scope;
  bool m_inGroup = false;
  bool m_embedded = false;
};

} // namespace

dxf::RecordKind dxf::recordKindOf(const AcDbObject& object) {
  if (AcDbEntity::cast(&object)) return RecordKind::entity;
  return AcDbHeader::cast(&object) ? RecordKind::header : RecordKind::other;
}

void dxf::visitNames(const DxfRecord& record, RecordKind kind, const NameVisitor& visit) {
  NameWalk walk(record, kind);
  std::string_view table;
  for (DxfTag tag; walk.next(tag, table);)
    if (!table.empty()) visit(table, tag);
}

std::optional<DxfRecord> dxf::withNames(const DxfRecord& record, RecordKind kind, const NameChange& change) {
  NameWalk walk(record, kind);
  const char* copied = record.text().data();
  std::string text;
  std::string_view table;
  for (DxfTag tag; walk.next(tag, table);) {
    if (table.empty()) continue;
    const auto name = change(table, decodeText(trimBlanks(tag.value)));
    if (!name) continue;
    text.append(copied, tag.value.data());
    text += encodeText(*name);
    copied = tag.value.data() + tag.value.size();
  }
  if (copied == record.text().data()) return std::nullopt;
  text.append(copied, record.text().data() + record.text().size());
  return DxfRecord::own(std::move(text));
}

bool dxf::ownsAnonymousBlock(std::string_view recordType) {
  static constexpr std::string_view types[] = {"DIMENSION", "ARC_DIMENSION", "LARGE_RADIAL_DIMENSION",
                                               "ACAD_TABLE"};
  return std::find(std::begin(types), std::end(types), recordType) != std::end(types);
}
