// Paints what entities draw themselves with the pen that is set: what is dragged, previews, selected
// entities. Colours that something sets while it draws (subEntityTraits) are shown where a background is
// given for them.
#pragma once

#include "host/db/TransformingDraw.h"
#include "host/qt/canvas/TextOutlines.h"
#include "host/qt/canvas/ViewMap.h"

#include <QColor>
#include <QPainter>
#include <QPen>

namespace desktop {

class WorldPainter : public TransformingDraw {
 public:
  WorldPainter(QPainter& painter, const ViewMap& map, TextOutlines& outlines,
               const QColor& background = QColor());
  bool beginEntity(const AcDbEntity& entity) override;

 private:
  void worldPoint(const AcGePoint3d& at) override;
  void worldPolyline(std::span<const AcGePoint3d> points) override;
  void worldText(const AcGePoint3d& at, const AcGeVector3d& along, const AcGeVector3d& up,
                 const CString& text) override;

  void setPen();

  QPainter& m_painter;
  const ViewMap& m_map;
  TextOutlines& m_outlines;
  QPen m_pen;          // for what sets no colour
  QColor m_background; // invalid: one pen for everything
};

} // namespace desktop
