#include "host/qt/canvas/Canvas.h"

#include "host/db/AcDbEntity.h"
#include "host/ed/AcApDocument.h"
#include "host/ed/EdSession.h"
#include "host/ed/EntitySearch.h"
#include "host/ed/SystemVariables.h"
#include "host/ed/ViewState.h"
#include "host/qt/CommandFeed.h"

#include <QMouseEvent>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace desktop {
namespace {

constexpr double kSnapPixels = 11;
constexpr double kDragPixels = 4;     // less is a click
constexpr double kWheelFactor = 1.25; // for one notch
constexpr double kNotch = 120;
constexpr std::chrono::milliseconds kSlice(8); // of painting between two looks at what the user does

const EdPromptState& prompt() {
  return EdSession::instance().prompts().current();
}

} // namespace

Canvas::Canvas(CommandFeed& feed, QWidget* parent) : QWidget(parent), m_feed(feed) {
  setMouseTracking(true);
  setCursor(Qt::BlankCursor);
  setMinimumSize(160, 120);
  setAttribute(Qt::WA_OpaquePaintEvent);
  m_goOn.setSingleShot(true);
  connect(&m_goOn, &QTimer::timeout, this, [this] { goOnPainting(kSlice); });
}

void Canvas::setDocument(AcApDocument* document) {
  m_picture.setDocument(document);
  m_windowFrom.reset();
  m_panFrom.reset();
  m_shown = {};
  m_stale = true;
  if (document) ViewControl::fit(*document, size());
  refresh();
}

void Canvas::setColors(const CanvasColors& colors) {
  m_colors = colors;
  m_stale = true;
  update();
}

void Canvas::refresh(bool all) {
  if (all) m_picture.invalidate();
  const auto change = m_picture.update();
  // Where little has changed it is painted at once, also in a large drawing.
  if (change.any && !change.all && !m_stale && !m_painting)
    m_shown.repaint(change.box, m_picture);
  else if (change.any)
    m_stale = true;
  if (m_cursor) moveCursor(*m_cursor);
  update();
}

void Canvas::viewMoved() {
  if (m_cursor) moveCursor(*m_cursor);
  update();
}

ViewMap Canvas::map() const {
  if (m_picture.document()) return ViewControl::map(*m_picture.document(), size());
  return {size(), {}, 1};
}

double Canvas::pickAperture() const {
  const long pixels = std::max(SystemVariables::integer(L"PICKBOX"), 1L);
  return static_cast<double>(pixels) * map().unitsPerPixel;
}

void Canvas::zoomAll() {
  if (!m_picture.document()) return;
  const ge::Box2d drawn = m_picture.box();
  if (!drawn.IsEmpty())
    ed::SetView(*m_picture.document(), ed::ViewOf(*m_picture.document(), drawn));
  else
    ViewControl::showAll(*m_picture.document());
}

AcGePoint3d Canvas::worldAt(const QPointF& at) const {
  const AcGePoint2d p = map().toWorld(at);
  return {p.x, p.y, 0};
}

void Canvas::resizeEvent(QResizeEvent*) {
  if (m_picture.document()) ViewControl::fit(*m_picture.document(), size());
}

// --- the mouse

void Canvas::moveCursor(const QPointF& at) {
  m_cursor = at;
  const AcGePoint3d world = worldAt(at);
  const double aperture = kSnapPixels * map().unitsPerPixel;
  std::vector<AcDbObjectId> near;
  if (m_picture.document() && WantsPoint(prompt()))
    near = m_picture.entitiesNear(
        {world.x - aperture, world.y - aperture, world.x + aperture, world.y + aperture});
  m_aim = TakeAim(prompt(), world, near, aperture);
  EdSession::instance().prompts().cursorMoved(m_aim.point);
  if (cursorMoved) cursorMoved(m_aim.point);
  update();
}

void Canvas::mousePressEvent(QMouseEvent* event) {
  moveCursor(event->position());
  if (event->button() == Qt::MiddleButton) {
    m_panFrom = event->position();
    setCursor(Qt::ClosedHandCursor);
  } else if (event->button() == Qt::LeftButton) {
    click(event->position(), event->modifiers());
  } else if (event->button() == Qt::RightButton && menuWanted) {
    menuWanted(event->globalPosition().toPoint());
  }
}

void Canvas::mouseMoveEvent(QMouseEvent* event) {
  if (m_panFrom && m_picture.document()) {
    m_view.pan(*m_picture.document(), map(), event->position() - *m_panFrom);
    m_panFrom = event->position();
    viewMoved();
  }
  if (m_windowFrom && (event->buttons() & Qt::LeftButton) &&
      (event->position() - *m_windowFrom).manhattanLength() > kDragPixels)
    m_windowDragged = true;
  moveCursor(event->position());
}

void Canvas::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::MiddleButton && m_panFrom) {
    m_panFrom.reset();
    setCursor(Qt::BlankCursor);
  }
  if (event->button() != Qt::LeftButton || !m_windowFrom || !m_windowDragged) return;
  const QPointF from = *m_windowFrom;
  m_windowFrom.reset();
  selectWindow(from, event->position(), event->modifiers() & Qt::ShiftModifier);
}

void Canvas::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::MiddleButton)
    zoomAll();
  else
    mousePressEvent(event);
}

void Canvas::wheelEvent(QWheelEvent* event) {
  if (!m_picture.document() || event->angleDelta().y() == 0) return;
  const double factor = std::pow(kWheelFactor, event->angleDelta().y() / kNotch);
  m_view.zoomAt(*m_picture.document(), map(), event->position(), factor);
  m_cursor = event->position();
  viewMoved();
  event->accept();
}

void Canvas::leaveEvent(QEvent*) {
  m_cursor.reset();
  update();
}

// --- what a click means

void Canvas::click(const QPointF& at, Qt::KeyboardModifiers modifiers) {
  if (!m_picture.document()) return;
  using Wants = EdPromptState::Wants;
  const bool takeAway = modifiers & Qt::ShiftModifier;
  const auto wants = prompt().wants;
  if (WantsPoint(prompt())) {
    m_feed.submit(PointLine(m_aim.point));
  } else if (wants == Wants::entity) {
    m_feed.submit(PointLine(worldAt(at)));
  } else if (wants == Wants::selection || wants == Wants::command) {
    if (m_windowFrom) {
      const QPointF from = *m_windowFrom;
      m_windowFrom.reset();
      selectWindow(from, at, takeAway);
    } else {
      pick(at, takeAway);
    }
  }
}

void Canvas::pick(const QPointF& at, bool takeAway) {
  const AcGePoint3d world = worldAt(at);
  const auto id = ed::EntityAt(*m_picture.document()->database(), world, pickAperture());
  if (id.isNull()) {
    m_windowFrom = at;
    m_windowDragged = false;
    return;
  }
  if (prompt().wants == EdPromptState::Wants::selection)
    m_feed.submit(PointLine(world));
  else
    selectNow({id}, takeAway);
}

void Canvas::selectWindow(const QPointF& from, const QPointF& to, bool takeAway) {
  const bool crossing = to.x() < from.x();
  const AcGePoint3d a = worldAt(from);
  const AcGePoint3d b = worldAt(to);
  update();
  if (prompt().wants == EdPromptState::Wants::selection) {
    m_feed.submit((crossing ? L"c " : L"w ") + PointLine(a) + L" " + PointLine(b));
  } else if (prompt().wants == EdPromptState::Wants::command && m_picture.document()) {
    const auto box = ge::Box2d::FromCorners({a.x, a.y}, {b.x, b.y});
    selectNow(ed::EntitiesInWindow(*m_picture.document()->database(), box, crossing), takeAway);
  }
}

// Beside what is selected already, for the next command that works on a selection.
void Canvas::selectNow(const std::vector<AcDbObjectId>& ids, bool takeAway) {
  if (SystemVariables::integer(L"PICKFIRST") == 0) return;
  auto& selected = m_picture.document()->edit().pickFirst;
  for (const auto& id : ids) {
    const auto found = std::find(selected.begin(), selected.end(), id);
    if (takeAway && found != selected.end()) selected.erase(found);
    if (!takeAway && found == selected.end()) selected.push_back(id);
  }
  update();
}

} // namespace desktop
