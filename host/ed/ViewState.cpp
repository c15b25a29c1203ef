#include "host/ed/ViewState.h"

#include "host/db/AcDbEntity.h"
#include "host/db/AcDbViewportTable.h"
#include "host/ed/AcApDocument.h"
#include "host/ed/EdFrontEnd.h"
#include "host/ed/EdSession.h"
#include "host/ed/EntitySearch.h"

#include <algorithm>
#include <cmath>

namespace ed {
namespace {

constexpr std::size_t kMostViews = 20;
constexpr double kMargin = 1.05;
constexpr double kDefaultAspect = 1.6;

AcDbObjectId activeViewport(const AcDbDatabase& database) {
  AcDbObjectId id;
  if (const auto* viewports = AcDbViewportTable::cast(database.tableOf("VPORT")))
    viewports->getAt(L"*Active", id);
  return id;
}

double aspectOr(double other) {
  auto* frontEnd = EdSession::instance().frontEnd();
  return frontEnd ? frontEnd->viewAspect().value_or(other) : other;
}

bool isView(const EdView& view) {
  return std::isfinite(view.centre.x) && std::isfinite(view.centre.y) && std::isfinite(view.height) &&
         view.height > 0;
}

void show(AcApDocument& document) {
  if (auto* frontEnd = EdSession::instance().frontEnd()) frontEnd->viewChanged(document);
}

} // namespace

EdView CurrentView(const AcApDocument& document) {
  if (!document.edit().views.empty()) return document.edit().views.back();
  const auto* active = AcDbViewportTableRecord::cast(activeViewport(*document.database()).object());
  if (active) {
    const double filed = active->height() > 0 ? active->width() / active->height() : kDefaultAspect;
    return {active->centerPoint(), active->height(), aspectOr(filed)};
  }
  const auto box = DrawnBox(document);
  return box ? ViewOf(document, *box) : EdView{{0, 0}, 1, aspectOr(kDefaultAspect)};
}

bool SetView(AcApDocument& document, EdView view) {
  if (!isView(view)) return false;
  auto& views = document.edit().views;
  if (views.empty()) views.push_back(CurrentView(document));
  if (views.size() >= kMostViews) views.erase(views.begin());
  views.push_back(view);
  show(document);
  return true;
}

bool SetPreviousView(AcApDocument& document) {
  auto& views = document.edit().views;
  if (views.size() < 2) return false;
  views.pop_back();
  show(document);
  return true;
}

EdView ViewOf(const AcApDocument& document, const ge::Box2d& box) {
  EdView view =
      document.edit().views.empty() ? EdView{{}, 1, aspectOr(kDefaultAspect)} : document.edit().views.back();
  const double width = box.maxX - box.minX;
  const double height = box.maxY - box.minY;
  view.centre = AcGePoint2d(box.minX + width / 2, box.minY + height / 2);
  view.height = std::max(height, width / view.aspect) * kMargin;
  if (view.height <= 0) view.height = 1; // a single point
  return view;
}

std::optional<ge::Box2d> DrawnBox(const AcApDocument& document) {
  AcDbExtents all;
  bool any = false;
  for (const auto& id : DrawnEntities(*document.database())) {
    AcDbExtents own;
    const auto* entity = AcDbEntity::cast(id.object());
    if (!entity || entity->getGeomExtents(own) != Acad::eOk) continue;
    all.addExt(own);
    any = true;
  }
  if (!any) return std::nullopt;
  return ge::Box2d::FromCorners({all.minPoint().x, all.minPoint().y}, {all.maxPoint().x, all.maxPoint().y});
}

void FileView(AcApDocument& document) {
  if (document.edit().views.empty()) return;
  const auto view = document.edit().views.back();
  AcDbObjectPointer<AcDbViewportTableRecord> active(activeViewport(*document.database()), AcDb::kForWrite);
  if (!active) return;
  active->setCenterPoint(view.centre);
  active->setHeight(view.height);
}

} // namespace ed
