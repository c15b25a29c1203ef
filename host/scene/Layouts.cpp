#include "host/scene/Layouts.h"

#include "host/db/AcDbDatabase.h"
#include "host/db/AcDbDictionary.h"
#include "host/scene/EntityTags.h"

#include <algorithm>

namespace scene {
namespace {

// Sheet and margins stand in millimetres, whatever the unit of the layout.
void readSheet(DxfTags tags, Layout& layout) {
  constexpr double kMillimetresPerInch = 25.4;
  double width = 0;
  double height = 0;
  double left = 0;
  double bottom = 0;
  double right = 0;
  double top = 0;
  double shiftX = 0;
  double shiftY = 0;
  double paperUnits = 1;
  double drawingUnits = 1;
  long long units = 1;
  long long turn = 0;
  for (const DxfTag& tag : tags) {
    if (tag.code == 100 && dxf::trimBlanks(tag.value) == "AcDbLayout") break;
    if (tag.code == 40) left = RealOf(tag);
    if (tag.code == 41) bottom = RealOf(tag);
    if (tag.code == 42) right = RealOf(tag);
    if (tag.code == 43) top = RealOf(tag);
    if (tag.code == 44) width = RealOf(tag);
    if (tag.code == 45) height = RealOf(tag);
    if (tag.code == 46) shiftX = RealOf(tag);
    if (tag.code == 47) shiftY = RealOf(tag);
    if (tag.code == 142) paperUnits = RealOf(tag, 1);
    if (tag.code == 143) drawingUnits = RealOf(tag, 1);
    if (tag.code == 72) units = IntegerOf(tag);
    if (tag.code == 73) turn = IntegerOf(tag);
  }
  layout.unit = units == 0 ? kMillimetresPerInch : 1;
  if (paperUnits > 0 && drawingUnits > 0) layout.unit *= paperUnits / drawingUnits;
  if (!(width > 0 && height > 0)) return;
  // The margins belong to the sheet as it lies in the printer; the origin is where they end.
  if (turn % 2 != 0) {
    std::swap(width, height);
    const double lowest = turn == 1 ? right : left;
    left = turn == 1 ? bottom : top;
    bottom = lowest;
    std::swap(shiftX, shiftY);
  } else if (turn == 2) {
    left = right;
    bottom = top;
  }
  const double u = layout.unit;
  left += shiftX;
  bottom += shiftY;
  layout.paper = {-left / u, -bottom / u, (width - left) / u, (height - bottom) / u};
}

Layout readLayout(AcDbDatabase& database, const AcDbObject& object) {
  Layout layout;
  const auto all = object.record().tags();
  const auto own = dxfOwnTags(all);
  readSheet(own, layout);
  bool behind = false;
  for (const DxfTag& tag : own) {
    if (tag.code == 100) behind = dxf::trimBlanks(tag.value) == "AcDbLayout";
    if (!behind) continue;
    if (tag.code == 71) layout.tab = static_cast<int>(std::clamp<long long>(IntegerOf(tag), -1, 100'000));
    if (tag.code == 330) database.getAcDbObjectId(layout.space, false, AcDbHandle::fromHex(tag.value));
  }
  layout.isModelSpace = layout.space == database.modelSpaceId();
  return layout;
}

} // namespace

std::vector<Layout> LayoutsOf(AcDbDatabase& database) {
  std::vector<Layout> layouts;
  const auto* root = AcDbDictionary::cast(database.namedObjectsDictionaryId().object());
  AcDbObjectId id;
  if (root && root->getAt(L"ACAD_LAYOUT", id) == Acad::eOk) {
    const auto* list = AcDbDictionary::cast(id.object());
    for (const auto& entry : list ? list->entries() : std::vector<AcDbDictionary::Entry>()) {
      if (list->getAt(entry.name, id) != Acad::eOk || !id.object() || id.isErased()) continue;
      Layout layout = readLayout(database, *id.object());
      layout.name = entry.name;
      if (layout.space.isValid()) layouts.push_back(std::move(layout));
    }
  }
  std::stable_sort(layouts.begin(), layouts.end(),
                   [](const Layout& a, const Layout& b) { return a.tab < b.tab; });
  return layouts;
}

} // namespace scene
