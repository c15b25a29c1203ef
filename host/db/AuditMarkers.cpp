// The check of subclass markers: other programs read a field only behind the marker of its class.
#include "host/db/AuditChecks.h"
#include "host/db/DxfRecordEditor.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <optional>
#include <set>

namespace audit {
namespace {

// The markers of a record, in their order. Where an entity has two of its own, the codes behind the second.
struct Order {
  std::string_view type;
  std::array<std::string_view, 3> markers;
  std::array<int, 7> lastCodes = {};
};
constexpr Order kOrders[] = {
    {"LINE", {"AcDbEntity", "AcDbLine"}},
    {"POINT", {"AcDbEntity", "AcDbPoint"}},
    {"CIRCLE", {"AcDbEntity", "AcDbCircle"}},
    {"ARC", {"AcDbEntity", "AcDbCircle", "AcDbArc"}, {50, 51}},
    {"LWPOLYLINE", {"AcDbEntity", "AcDbPolyline"}},
    {"TEXT", {"AcDbEntity", "AcDbText", "AcDbText"}, {73}},
    {"MTEXT", {"AcDbEntity", "AcDbMText"}},
    {"ATTRIB", {"AcDbEntity", "AcDbText", "AcDbAttribute"}, {2, 70, 73, 74, 280}},
    {"ATTDEF", {"AcDbEntity", "AcDbText", "AcDbAttributeDefinition"}, {2, 3, 70, 73, 74, 280}},
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

// What all entities have, and no type of the table uses for something else.
constexpr int kCommonCodes[] = {6, 8, 48, 60, 62, 67, 284, 347, 348, 370, 390, 410, 420, 430, 440};

template <typename Range, typename Value> bool isAmong(const Range& range, const Value& value) {
  return std::find(std::begin(range), std::end(range), value) != std::end(range);
}

std::vector<std::string_view> wantedOf(const Order& order) {
  std::vector<std::string_view> wanted;
  for (const std::string_view marker : order.markers)
    if (!marker.empty()) wanted.push_back(marker);
  return wanted;
}

std::string lineOf(const DxfTag& tag) {
  return DxfRecordEditor::tag(tag.code, tag.value);
}

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
    *at += lineOf(tag);
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

// The record with all markers set anew, each code behind the marker that it belongs to. Nothing for a record
// with a marker of another class, whose codes mean something else.
std::optional<DxfRecord> markedAnew(const DxfRecord& record, const Order& order) {
  const auto wanted = wantedOf(order);
  const bool isEntity = wanted.front() == "AcDbEntity";
  std::string head, common, first, last, extended;
  std::set<int> seen;
  bool inHead = true;
  bool inGroup = false;
  for (const DxfTag& tag : record.tags()) {
    if (!extended.empty() || tag.code >= 1000 || tag.code == 101) {
      extended += lineOf(tag);
      continue;
    }
    const bool opens = tag.code == 102 && tag.value.starts_with("{");
    if (opens) inGroup = true;
    inHead = inHead && (inGroup || tag.code == 0 || tag.code == 5 || tag.code == 330 || tag.code == 102);
    const bool isMarker = tag.code == 100 && !inGroup;
    if (isMarker && !isAmong(wanted, dxf::trimBlanks(tag.value))) return std::nullopt;
    if (tag.code == 102 && !opens) inGroup = false;
    if (isMarker) continue;
    if (inHead)
      head += lineOf(tag);
    else if (isEntity && isAmong(kCommonCodes, tag.code) && seen.insert(tag.code).second)
      common += lineOf(tag);
    else if (wanted.size() == 3 && isAmong(order.lastCodes, tag.code))
      last += lineOf(tag);
    else
      first += lineOf(tag);
  }
  std::string text = head + DxfRecordEditor::tag(100, wanted[0]) + common;
  if (wanted.size() > 1) text += DxfRecordEditor::tag(100, wanted[1]);
  text += first;
  if (wanted.size() > 2) text += DxfRecordEditor::tag(100, wanted[2]) + last;
  return DxfRecord::own(text + extended);
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
    const auto wanted = wantedOf(*order);
    const Parts parts = partsOf(object.record());
    if (std::equal(wanted.begin(), wanted.end(), parts.scopes.begin(), parts.scopes.end(),
                   [](std::string_view a, const auto& scope) { return a == scope.first; }))
      continue;
    auto mended = inOrder(parts, wanted);
    if (!mended) mended = markedAnew(object.record(), *order);
    const bool done = report.repairs() && mended;
    if (done) report.change(object, *mended);
    report.add(AuditCheck::markers, object.objectId(), nameOf(object) + L" 的子类标记缺失或次序不对", done);
  }
}

} // namespace audit
