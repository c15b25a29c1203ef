// Checks of what single records name and of the values in them.
#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbEntity.h"
#include "host/db/AcDbObjectPointer.h"
#include "host/db/AuditChecks.h"
#include "host/db/DxfDecodeContext.h"
#include "host/db/DxfText.h"
#include "host/db/RecordNames.h"

#include <algorithm>
#include <iterator>
#include <set>

namespace audit {

namespace {

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
