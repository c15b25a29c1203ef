// The drawing's pixels at one view. Large drawings are painted in slices, so that the window goes on living,
// and what is painted already is kept when the view is only shifted.
#pragma once

#include "host/qt/Theme.h"
#include "host/qt/canvas/ViewMap.h"

#include <QImage>

#include <chrono>

namespace desktop {

class DrawingPicture;

class PaintedView {
 public:
  // Empty pixels of a view. The map's window is in pixels of the screen. A draft has lines that are not
  // smooth.
  void begin(const ViewMap& map, const QColor& background, bool draft = false);
  // Paints on until all is there or the time is over; whether all is there. A small drawing is painted at
  // once.
  // In a hurry all processors work on it, for more than a moment at a time.
  bool goOn(DrawingPicture& picture, std::chrono::microseconds time, bool hurry = false);
  // Makes it the painting of another view that differs by whole pixels, and paints what comes in at the
  // borders as far as the rest is painted; false, and nothing has happened, for any other view.
  bool shiftTo(const ViewMap& map, DrawingPicture& picture);

  // Paints anew what lies in a box of the drawing, as far as all is painted.
  void repaint(const ge::Box2d& box, DrawingPicture& picture);

  // All of the drawing at this very view.
  bool shows(const ViewMap& map) const;
  bool isComplete() const { return m_complete; }
  bool isDraft() const { return m_draft; }
  bool isEmpty() const { return m_image.isNull(); }
  const ViewMap& map() const { return m_map; }
  const QImage& image() const { return m_image; }

 private:
  void paintArea(const QRect& area, DrawingPicture& picture);
  void paintPages(std::size_t begin, std::size_t end, int bands, DrawingPicture& picture);

  QImage m_image;
  ViewMap m_map;
  QColor m_background;
  std::size_t m_pages = 0; // of the picture that are painted
  bool m_complete = false;
  bool m_draft = false;
};

} // namespace desktop
