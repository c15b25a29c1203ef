// Moves the view of a drawing with the mouse. Moves that follow each other quickly are one view, for ZOOM to
// come back from.
#pragma once

#include "host/qt/canvas/ViewMap.h"

#include <QElapsedTimer>

class AcApDocument;

namespace desktop {

class ViewControl {
 public:
  // The view of the document in a window of this size.
  static ViewMap map(const AcApDocument& document, const QSizeF& size);
  // The window has another size now: as high as before, wider or narrower.
  static void fit(AcApDocument& document, const QSizeF& size);
  // factor above 1 shows less and larger. What is under the cursor stays there.
  void zoomAt(AcApDocument& document, const ViewMap& map, const QPointF& cursor, double factor);
  void pan(AcApDocument& document, const ViewMap& map, const QPointF& by);
  // All of the drawing.
  static void showAll(AcApDocument& document);

 private:
  void set(AcApDocument& document, const AcGePoint2d& centre, double height, const QSizeF& size);
  QElapsedTimer m_sinceMove;
};

} // namespace desktop
