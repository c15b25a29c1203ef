// Paints what entities draw themselves with the pen that is set: what is dragged, previews, selected
// entities.
#pragma once

#include "host/db/TransformingDraw.h"
#include "host/qt/canvas/TextOutlines.h"
#include "host/qt/canvas/ViewMap.h"

class QPainter;

namespace desktop {

class WorldPainter : public TransformingDraw {
 public:
  WorldPainter(QPainter& painter, const ViewMap& map, TextOutlines& outlines)
      : m_painter(painter), m_map(map), m_outlines(outlines) {}
  bool beginEntity(const AcDbEntity& entity) override;

 private:
  void worldPoint(const AcGePoint3d& at) override;
  void worldPolyline(std::span<const AcGePoint3d> points) override;
  void worldText(const AcGePoint3d& at, const AcGeVector3d& along, const AcGeVector3d& up,
                 const CString& text) override;

  QPainter& m_painter;
  const ViewMap& m_map;
  TextOutlines& m_outlines;
};

} // namespace desktop
