// What the canvas shows: the drawing, and over it the selection, what is dragged, and the cursor.
#include "host/db/AcDbEntity.h"
#include "host/ed/AcApDocument.h"
#include "host/ed/EdSession.h"
#include "host/ed/SystemVariables.h"
#include "host/qt/QtText.h"
#include "host/qt/canvas/Canvas.h"
#include "host/qt/canvas/WorldPainter.h"

#include <QPaintEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

namespace desktop {
namespace {

constexpr double kSnapMark = 6; // pixels to each side
// Of a frame that painting may take, so that 30 of them fit into a second.
constexpr std::chrono::milliseconds kFrame(12);
constexpr std::size_t kMostHighlighted = 5000;
constexpr std::size_t kSmallPicture = 8; // pages that are smooth from the beginning

} // namespace

// The view in pixels of the screen.
ViewMap Canvas::pixelMap() const {
  ViewMap shown = map();
  const double ratio = devicePixelRatioF();
  shown.size = {std::floor(shown.size.width() * ratio), std::floor(shown.size.height() * ratio)};
  shown.unitsPerPixel /= ratio;
  return shown;
}

// Has the pixels of the view, or begins with them.
void Canvas::paintDrawing() {
  const ViewMap wanted = pixelMap();
  const bool shifted = m_shown.shiftTo(wanted, m_picture);
  if (m_painting ? m_stale || !m_next.shiftTo(wanted, m_picture) : m_stale || !shifted) {
    // Of a large drawing a draft is better than nothing to be seen.
    const bool draft = m_shown.isEmpty() && m_picture.pageCount() > kSmallPicture;
    m_next.begin(wanted, m_colors.background, draft);
    m_painting = true;
    m_stale = false;
  }
  if (m_painting) goOnPainting(kFrame);
}

void Canvas::goOnPainting(std::chrono::microseconds time) {
  if (!m_painting) return;
  // Where nothing is to be seen yet the picture matters more than the mouse.
  const bool hurry = m_shown.isEmpty() || time > std::chrono::seconds(1);
  if (!m_next.goOn(m_picture, time, hurry)) return m_goOn.start(0);
  std::swap(m_shown, m_next);
  m_painting = m_shown.isDraft();
  update();
  if (!m_painting) return;
  m_next.begin(m_shown.map(), m_colors.background);
  m_goOn.start(0);
}

void Canvas::finishPainting() {
  paintDrawing();
  while (m_painting) goOnPainting(std::chrono::hours(1));
}

// While the view is painted, what is there of it, and over it the view before in its place.
void Canvas::showDrawing(QPainter& painter) {
  const double ratio = devicePixelRatioF();
  painter.save();
  painter.scale(1 / ratio, 1 / ratio);
  if (!m_painting) {
    painter.drawImage(0, 0, m_shown.image());
  } else {
    painter.drawImage(0, 0, m_next.image());
    const ViewMap& now = m_next.map();
    const ViewMap& before = m_shown.map();
    constexpr double kMostScaled = 32;
    const double scale = before.unitsPerPixel / now.unitsPerPixel;
    if (!m_shown.isEmpty() && scale < kMostScaled && scale > 1 / kMostScaled)
      painter.drawImage(QRectF(now.toScreen(before.toWorld({0, 0})), before.size * scale), m_shown.image());
  }
  painter.restore();
}

void Canvas::paintEvent(QPaintEvent*) {
  paintDrawing();
  QPainter painter(this);
  showDrawing(painter);
  if (m_picture.document()) {
    paintOverlay(painter);
  } else {
    painter.setPen(m_colors.rubber);
    painter.drawText(rect(), Qt::AlignCenter, QStringLiteral("没有打开的图形。用“文件”菜单新建或打开。"));
  }
}

void Canvas::paintOverlay(QPainter& painter) {
  painter.setRenderHint(QPainter::Antialiasing);
  paintSelected(painter);
  painter.setPen(QPen(m_colors.selected, 1));
  const ViewMap shown = map();
  WorldPainter draw(painter, shown, m_picture.outlines(), m_colors.background);
  EdSession::instance().transients().draw(draw);
  painter.setRenderHint(QPainter::Antialiasing, false);
  if (!m_cursor) return;
  paintWindow(painter);
  paintRubber(painter);
  paintCross(painter);
  paintSnap(painter);
}

void Canvas::paintSelected(QPainter& painter) {
  const auto& prompt = EdSession::instance().prompts().current();
  const auto& first = m_picture.document()->edit().pickFirst;
  const auto& selected = prompt.selected ? *prompt.selected : first;
  if (selected.empty()) return;
  const ViewMap shown = map();
  WorldPainter draw(painter, shown, m_picture.outlines());
  QColor glow = m_colors.selected;
  glow.setAlpha(90);
  const std::size_t count = std::min(selected.size(), kMostHighlighted);
  for (const QPen& pen : {QPen(glow, 5), QPen(m_colors.selected, 1, Qt::DashLine)}) {
    painter.setPen(pen);
    for (std::size_t i = 0; i < count; ++i)
      if (const auto* entity = AcDbEntity::cast(selected[i].object()); entity && !entity->isErased())
        entity->worldDraw(draw);
  }
}

void Canvas::paintRubber(QPainter& painter) {
  const auto& prompt = EdSession::instance().prompts().current();
  if (!prompt.base || !WantsPoint(prompt)) return;
  const QPointF from = map().toScreen(*prompt.base);
  const QPointF to = map().toScreen(m_aim.point);
  painter.setPen(QPen(m_colors.rubber, 1, Qt::DashLine));
  if (prompt.wants == EdPromptState::Wants::corner)
    painter.drawRect(QRectF(from, to).normalized());
  else
    painter.drawLine(from, to);
}

void Canvas::paintWindow(QPainter& painter) {
  if (!m_windowFrom) return;
  const bool crossing = m_cursor->x() < m_windowFrom->x();
  QColor color = crossing ? m_colors.crossing : m_colors.window;
  painter.setPen(QPen(color, 1, crossing ? Qt::DashLine : Qt::SolidLine));
  color.setAlpha(45);
  const QRectF box = QRectF(*m_windowFrom, *m_cursor).normalized();
  painter.fillRect(box, color);
  painter.drawRect(box);
}

// Lines through the cursor, with the pick box where something is picked.
void Canvas::paintCross(QPainter& painter) {
  using Wants = EdPromptState::Wants;
  if (m_panFrom) return;
  const auto& prompt = EdSession::instance().prompts().current();
  const QPointF at = WantsPoint(prompt) ? map().toScreen(m_aim.point) : *m_cursor;
  const double box = static_cast<double>(std::max(SystemVariables::integer(L"PICKBOX"), 1L));
  const bool picks = prompt.wants == Wants::selection || prompt.wants == Wants::entity;
  painter.setPen(QPen(m_colors.foreground, 1));
  if (picks || prompt.wants == Wants::command)
    painter.drawRect(QRectF(at.x() - box, at.y() - box, 2 * box, 2 * box));
  if (picks) return;
  const double gap = prompt.wants == Wants::command ? box : 0;
  constexpr double arm = 50;
  painter.drawLine(at - QPointF(arm, 0), at - QPointF(gap, 0));
  painter.drawLine(at + QPointF(gap, 0), at + QPointF(arm, 0));
  painter.drawLine(at - QPointF(0, arm), at - QPointF(0, gap));
  painter.drawLine(at + QPointF(0, gap), at + QPointF(0, arm));
}

void Canvas::paintSnap(QPainter& painter) {
  if (!m_aim.snap) return;
  const QPointF at = map().toScreen(m_aim.snap->point);
  const double k = kSnapMark;
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(m_colors.snap, 2));
  switch (m_aim.snap->kind) {
  case ed::kSnapEnd:
    painter.drawRect(QRectF(at.x() - k, at.y() - k, 2 * k, 2 * k));
    break;
  case ed::kSnapMiddle:
    painter.drawPolygon(QPolygonF({at + QPointF(0, -k), at + QPointF(k, k), at + QPointF(-k, k)}));
    break;
  case ed::kSnapCentre:
    painter.drawEllipse(at, k, k);
    break;
  case ed::kSnapQuadrant:
    painter.drawPolygon(
        QPolygonF({at + QPointF(0, -k), at + QPointF(k, 0), at + QPointF(0, k), at + QPointF(-k, 0)}));
    break;
  default:
    painter.drawLine(at + QPointF(-k, -k), at + QPointF(k, k));
    painter.drawLine(at + QPointF(-k, k), at + QPointF(k, -k));
    if (m_aim.snap->kind == ed::kSnapPoint) painter.drawEllipse(at, k, k);
    break;
  }
  const QString name = ToQt(CString(ed::SnapName(m_aim.snap->kind)));
  const QRectF label = painter.fontMetrics().boundingRect(name).adjusted(-4, -2, 4, 2);
  QRectF place = label.translated(at + QPointF(14, 26));
  if (place.right() > width()) place.moveRight(at.x() - 12);
  if (place.bottom() > height()) place.moveBottom(at.y() - 12);
  painter.fillRect(place, QColor(255, 250, 225));
  painter.setPen(QColor(60, 60, 60));
  painter.drawText(place, Qt::AlignCenter, name);
}

} // namespace desktop
