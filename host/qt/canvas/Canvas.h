// The window on the drawing: shows it, and turns what the mouse does into lines for the editor. Middle button
// and wheel move the view; a click answers a prompt, or selects.
#pragma once

#include "host/qt/Theme.h"
#include "host/qt/canvas/Aim.h"
#include "host/qt/canvas/DrawingPicture.h"
#include "host/qt/canvas/PaintedView.h"
#include "host/qt/canvas/ViewControl.h"

#include <QTimer>
#include <QWidget>

#include <functional>
#include <optional>

namespace desktop {

class CommandFeed;

class Canvas : public QWidget {
 public:
  explicit Canvas(CommandFeed& feed, QWidget* parent = nullptr);

  void setDocument(AcApDocument* document);
  // Whoever opens a drawing that is to be shown here may tell it of the entities as they are read: the
  // picture is there sooner. May be null.
  EntityWatcher* ahead() { return m_picture.ahead(); }
  void setColors(const CanvasColors& colors);
  // What changed of the drawing is drawn anew; all of it when asked.
  void refresh(bool all = false);
  void viewMoved();
  ViewMap map() const;
  // Half the side of the pick box in drawing units.
  double pickAperture() const;
  void zoomAll();
  // A large drawing is painted little by little; until it is done the view before is shown in its place. Its
  // first picture is a draft, so that all of it is to be seen soon: it is shown, and not yet painted.
  bool isShown() const { return !m_stale && m_shown.shows(pixelMap()); }
  bool isPainted() const { return isShown() && !m_painting; }
  // Paints what is left at once, for a picture of the window.
  void finishPainting();

  // Told where a click would go, and that the mouse has left.
  std::function<void(const AcGePoint3d&)> cursorMoved;
  // The right button: the place on the screen.
  std::function<void(const QPoint&)> menuWanted;

 protected:
  void paintEvent(QPaintEvent*) override;
  void resizeEvent(QResizeEvent*) override;
  void mousePressEvent(QMouseEvent*) override;
  void mouseMoveEvent(QMouseEvent*) override;
  void mouseReleaseEvent(QMouseEvent*) override;
  void mouseDoubleClickEvent(QMouseEvent*) override;
  void wheelEvent(QWheelEvent*) override;
  void leaveEvent(QEvent*) override;

 private:
  void click(const QPointF& at, Qt::KeyboardModifiers modifiers);
  void pick(const QPointF& at, bool takeAway);
  void selectWindow(const QPointF& from, const QPointF& to, bool takeAway);
  void selectNow(const std::vector<AcDbObjectId>& ids, bool takeAway);
  void moveCursor(const QPointF& at);
  AcGePoint3d worldAt(const QPointF& at) const;
  ViewMap pixelMap() const;
  void paintDrawing();
  void goOnPainting(std::chrono::microseconds time);
  void showDrawing(QPainter& painter);
  void paintOverlay(QPainter& painter);
  void paintSelected(QPainter& painter);
  void paintRubber(QPainter& painter);
  void paintWindow(QPainter& painter);
  void paintSnap(QPainter& painter);
  void paintCross(QPainter& painter);

  CommandFeed& m_feed;
  CanvasColors m_colors = DarkCanvas();
  DrawingPicture m_picture;
  ViewControl m_view;
  PaintedView m_shown; // the drawing without what is over it
  PaintedView m_next;  // while it is painted, for another view or after a change
  bool m_painting = false;
  bool m_stale = true; // the drawing isn't what was painted
  QTimer m_goOn;
  std::optional<QPointF> m_cursor; // while the mouse is here
  Aim m_aim;
  std::optional<QPointF> m_panFrom;
  std::optional<QPointF> m_windowFrom; // the first corner of a selection window
  bool m_windowDragged = false;
};

} // namespace desktop
