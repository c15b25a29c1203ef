#include "host/qt/canvas/ViewControl.h"

#include "host/ed/AcApDocument.h"
#include "host/ed/ViewState.h"

#include <algorithm>
#include <cmath>

namespace desktop {
namespace {

constexpr qint64 kOneMove = 800; // milliseconds
constexpr double kLeastHeight = 1e-6;
constexpr double kMostHeight = 1e12;

double aspectOf(const QSizeF& size) {
  return size.height() > 0 ? std::max(size.width(), 1.0) / size.height() : 1;
}

} // namespace

ViewMap ViewControl::map(const AcApDocument& document, const QSizeF& size) {
  const EdView view = ed::CurrentView(document);
  return {size, view.centre, view.height / std::max(size.height(), 1.0)};
}

void ViewControl::fit(AcApDocument& document, const QSizeF& size) {
  for (EdView& view : document.edit().views) view.aspect = aspectOf(size);
}

void ViewControl::set(AcApDocument& document, const AcGePoint2d& centre, double height, const QSizeF& size) {
  if (!(height > kLeastHeight && height < kMostHeight)) return;
  const EdView view{centre, height, aspectOf(size)};
  auto& views = document.edit().views;
  const bool goesOn = m_sinceMove.isValid() && m_sinceMove.elapsed() < kOneMove && views.size() > 1;
  if (goesOn)
    views.back() = view;
  else
    ed::SetView(document, view);
  m_sinceMove.start();
}

void ViewControl::zoomAt(AcApDocument& document, const ViewMap& map, const QPointF& cursor, double factor) {
  const AcGePoint2d fixed = map.toWorld(cursor);
  const AcGePoint2d centre(fixed.x + (map.centre.x - fixed.x) / factor,
                           fixed.y + (map.centre.y - fixed.y) / factor);
  set(document, centre, map.unitsPerPixel * map.size.height() / factor, map.size);
}

void ViewControl::pan(AcApDocument& document, const ViewMap& map, const QPointF& by) {
  const AcGePoint2d centre(map.centre.x - by.x() * map.unitsPerPixel,
                           map.centre.y + by.y() * map.unitsPerPixel);
  set(document, centre, map.unitsPerPixel * map.size.height(), map.size);
}

void ViewControl::showAll(AcApDocument& document) {
  if (const auto box = ed::DrawnBox(document)) ed::SetView(document, ed::ViewOf(document, *box));
}

} // namespace desktop
