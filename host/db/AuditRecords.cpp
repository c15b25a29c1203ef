// Checks of what stands in single records: names, markers, extended data, values.
#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbEntity.h"
#include "host/db/AcDbObjectPointer.h"
#include "host/db/AuditChecks.h"
#include "host/db/DxfDecodeContext.h"
#include "host/db/DxfRecordEditor.h"
#include "host/db/DxfText.h"
#include "host/db/RecordNames.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <set>

namespace audit {

namespace {

constexpr std::size_t kMaxText = 255;           // bytes of a text in extended data
constexpr std::size_t kMaxExtendedData = 16384; // bytes of all of an object's

struct TableWord {
  std::string_view table;
  const wchar_t* word;
};
constexpr TableWord kWords[] = {{"LAYER", L"图层"},        {"LTYPE", L"线型"},      {"STYLE", L"文字样式"},
                                {"DIMSTYLE", L"标注样式"}, {"BLOCK_RECORD", L"块"}, {"APPID", L"应用程序"}};

CString wordOf(std::string_view table) {
  const auto* row = std::find_if(std::begin(kWords), std::end(kWords),
                                 [&](const TableWord& word) { return word.table == table; });
  return row == std::end(kWords) ? CString() : CString(row->word);
}

// A record that the host made because something named it, and that no file held.
bool define(AcDbDatabase& database, std::string_view type, const CString& name) {
  AcDbSymbolTable& table = *database.tableOf(type);
  AcDbObjectId id;
  if (table.getAt(name, id) == Acad::eOk) {
    database.undo().recordBefore(*id.object());
    id.object()->setImplicit(false);
    database.afterChange(*id.object());
    return true;
  }
  if (type == "APPID") return database.registerApplication(name) == Acad::eOk;
  AcDbObjectPointer<AcDbSymbolTable> open(table.objectId(), AcDb::kForWrite);
  auto* record = static_cast<AcDbSymbolTableRecord*>(table.recordClass()->create());
  record->setNameAsRead(name);
  if (!open || open->add(record) != Acad::eOk) {
    delete record;
    return false;
  }
  record->close();
  return true;
}

// Entries that every drawing has, whether or not its file lists them.
bool isStandard(std::string_view table, const CString& name) {
  static constexpr std::pair<std::string_view, const wchar_t*> entries[] = {
      {"LAYER", L"0"},
      {"LTYPE", L"ByLayer"},
      {"LTYPE", L"ByBlock"},
      {"LTYPE", L"Continuous"},
      {"STYLE", L"Standard"},
      {"DIMSTYLE", L"Standard"},
      {"APPID", L"ACAD"},
      {"BLOCK_RECORD", L"*Model_Space"},
      {"BLOCK_RECORD", L"*Paper_Space"}};
  return std::any_of(std::begin(entries), std::end(entries), [&](const auto& entry) {
    return entry.first == table && name.CompareNoCase(entry.second) == 0;
  });
}

} // namespace

void checkNames(Report& report) {
  AcDbDatabase& database = report.database();
  struct Use {
    std::string table;
    CString name;
    AcDbObjectId object;
  };
  std::vector<Use> missing;
  std::set<std::pair<std::string, CString>> told;
  for (const AcDbStub& stub : database.stubs()) {
    const AcDbObject& object = *stub.object;
    // Arrows of dimension styles are named and built in.
    if (!isLive(object) || object.record().type() == "DIMSTYLE" || object.isImplicit()) continue;
    dxf::visitNames(object.record(), dxf::recordKindOf(object),
                    [&](std::string_view type, const DxfTag& tag) {
                      const CString name = dxf::decodeText(dxf::trimBlanks(tag.value));
                      if (name.IsEmpty() || isStandard(type, name)) return;
                      AcDbObjectId id;
                      const AcDbSymbolTable* table = database.tableOf(type);
                      if (!table || (table->getAt(name, id) == Acad::eOk && !id.object()->isImplicit()))
                        return;
                      // A block of an old drawing has no record of its own.
                      const auto* block = AcDbBlockTableRecord::cast(id.object());
                      if (block && block->blockBeginId() && !block->blockBeginId().object()->isImplicit())
                        return;
                      CString folded = name;
                      folded.MakeLower();
                      if (told.insert({std::string(type), folded}).second)
                        missing.push_back({std::string(type), name, object.objectId()});
                    });
  }
  for (const Use& use : missing) {
    const bool done = report.repairs() && define(database, use.table, use.name);
    report.add(use.table == "APPID" ? AuditCheck::application : AuditCheck::undefinedName, use.object,
               nameOf(*use.object.object()) + L" 用到的" + wordOf(use.table) + L"“" + use.name.Left(40) +
                   L"”未定义",
               done);
  }
}

namespace {

// The markers of a record, in their order. A marker that some types of the row go without stands last.
struct Order {
  std::string_view type;
  std::string_view markers[4];
};
constexpr Order kOrders[] = {
    {"LINE", {"AcDbEntity", "AcDbLine"}},
    {"POINT", {"AcDbEntity", "AcDbPoint"}},
    {"CIRCLE", {"AcDbEntity", "AcDbCircle"}},
    {"ARC", {"AcDbEntity", "AcDbCircle", "AcDbArc"}},
    {"LWPOLYLINE", {"AcDbEntity", "AcDbPolyline"}},
    {"TEXT", {"AcDbEntity", "AcDbText", "AcDbText"}},
    {"MTEXT", {"AcDbEntity", "AcDbMText"}},
    {"ATTRIB", {"AcDbEntity", "AcDbText", "AcDbAttribute"}},
    {"ATTDEF", {"AcDbEntity", "AcDbText", "AcDbAttributeDefinition"}},
    {"ELLIPSE", {"AcDbEntity", "AcDbEllipse"}},
    {"SPLINE", {"AcDbEntity", "AcDbSpline"}},
    {"HATCH", {"AcDbEntity", "AcDbHatch"}},
    {"SOLID", {"AcDbEntity", "AcDbTrace"}},
    {"3DFACE", {"AcDbEntity", "AcDbFace"}},
    {"BLOCK", {"AcDbEntity", "AcDbBlockBegin"}},
    {"ENDBLK", {"AcDbEntity", "AcDbBlockEnd"}},
    {"LAYER", {"AcDbSymbolTableRecord", "AcDbLayerTableRecord"}},
    {"LTYPE", {"AcDbSymbolTableRecord", "AcDbLinetypeTableRecord"}},
    {"STYLE", {"AcDbSymbolTableRecord", "AcDbTextStyleTableRecord"}},
    {"APPID", {"AcDbSymbolTableRecord", "AcDbRegAppTableRecord"}},
    {"BLOCK_RECORD", {"AcDbSymbolTableRecord", "AcDbBlockTableRecord"}},
    {"DICTIONARY", {"AcDbDictionary"}},
};

// A record cut at its markers: the head, and for each marker what stands from it to the next.
struct Parts {
  std::string head;
  std::vector<std::pair<std::string, std::string>> scopes;
  std::string extended;
};

Parts partsOf(const DxfRecord& record) {
  Parts parts;
  std::string* at = &parts.head;
  bool inGroup = false;
  for (const DxfTag& tag : record.tags()) {
    if (tag.code >= 1000 || tag.code == 101) at = &parts.extended;
    if (tag.code == 102) inGroup = tag.value.starts_with("{");
    if (tag.code == 100 && !inGroup && at != &parts.extended) {
      parts.scopes.emplace_back(dxf::trimBlanks(tag.value), "");
      at = &parts.scopes.back().second;
    }
    *at += DxfRecordEditor::tag(tag.code, tag.value);
  }
  return parts;
}

// The record with its markers in order. Nothing when some are missing or more than wanted.
std::optional<DxfRecord> inOrder(const Parts& parts, const std::vector<std::string_view>& wanted) {
  if (parts.scopes.size() != wanted.size()) return std::nullopt;
  std::string text = parts.head;
  std::vector<bool> used(parts.scopes.size());
  for (const std::string_view marker : wanted) {
    std::size_t i = 0;
    while (i < parts.scopes.size() && (used[i] || parts.scopes[i].first != marker)) ++i;
    if (i == parts.scopes.size()) return std::nullopt;
    used[i] = true;
    text += parts.scopes[i].second;
  }
  return DxfRecord::own(text + parts.extended);
}

} // namespace

void checkMarkers(Report& report) {
  AcDbDatabase& database = report.database();
  if (!database.form().subclassMarkers()) return;
  for (const AcDbStub& stub : database.stubs()) {
    AcDbObject& object = *stub.object;
    if (!isLive(object) || object.isImplicit()) continue;
    const std::string_view type = object.record().type();
    const auto* order = std::find_if(std::begin(kOrders), std::end(kOrders),
                                     [&](const Order& row) { return row.type == type; });
    if (order == std::end(kOrders)) continue;
    std::vector<std::string_view> wanted;
    for (const std::string_view marker : order->markers)
      if (!marker.empty()) wanted.push_back(marker);
    const Parts parts = partsOf(object.record());
    if (std::equal(wanted.begin(), wanted.end(), parts.scopes.begin(), parts.scopes.end(),
                   [](std::string_view a, const auto& scope) { return a == scope.first; }))
      continue;
    const auto mended = inOrder(parts, wanted);
    const bool done = report.repairs() && mended;
    if (done) report.change(object, *mended);
    report.add(AuditCheck::markers, object.objectId(), nameOf(object) + L" 的子类标记缺失或次序不对", done);
  }
}

void checkExtendedData(Report& report) {
  for (const AcDbStub& stub : report.database().stubs()) {
    const AcDbObject& object = *stub.object;
    if (!isLive(object)) continue;
    int depth = 0;
    std::size_t size = 0;
    bool isUneven = false;
    bool isLong = false;
    for (const DxfTag& tag : object.record().tags()) {
      if (tag.code < 1000) continue;
      size += tag.value.size() + 1;
      if (tag.code == 1000 && tag.value.size() > kMaxText) isLong = true;
      if (tag.code == 1001 && depth != 0) isUneven = true;
      if (tag.code == 1001) depth = 0;
      if (tag.code == 1002) depth += dxf::trimBlanks(tag.value) == "{" ? 1 : -1;
      if (depth < 0) isUneven = true;
    }
    if (depth != 0 || isUneven)
      report.add(AuditCheck::extendedDataForm, object.objectId(), nameOf(object) + L" 的扩展数据括号不配对",
                 false);
    if (isLong)
      report.add(AuditCheck::extendedDataForm, object.objectId(),
                 nameOf(object) + L" 的扩展数据中有超过 255 字节的文字", false);
    if (size > kMaxExtendedData)
      report.add(AuditCheck::extendedDataForm, object.objectId(), nameOf(object) + L" 的扩展数据超过 16 KB",
                 false);
  }
}

namespace {

// Hears what decoding a record has to put right.
class Listening : public DxfDecodeContext {
 public:
  using DxfDecodeContext::DxfDecodeContext;
  void repaired(const DxfTag& tag, const CString& what) const override {
    CString text;
    text.Format(L"组码 %d：%s", tag.code, what);
    m_heard.push_back(text);
  }
  void definedMissing(const DxfTag&, const AcDbObjectId&, const CString&) const override {}
  std::vector<CString> take() { return std::exchange(m_heard, {}); }

 private:
  mutable std::vector<CString> m_heard;
};

} // namespace

void checkValues(Report& report) {
  Listening context(report.database());
  for (std::size_t i = 0; i < report.database().stubs().size(); ++i) {
    AcDbObject& object = *report.database().stubs()[i].object;
    if (!isLive(object) || object.record().isEmpty() || AcDbSymbolTable::cast(&object)) continue;
    // The same fields come out again; only what is told on the way matters.
    object.setRecord(object.record(), context);
    for (const CString& what : context.take()) {
      if (report.repairs()) {
        report.database().undo().recordBefore(object);
        object.invalidateRecord();
        report.database().afterChange(object);
      }
      report.add(AuditCheck::value, object.objectId(), nameOf(object) + L"，" + what, report.repairs());
    }
  }
}

} // namespace audit
