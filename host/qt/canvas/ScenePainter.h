// Paints a scene in a window: lines one pixel wide unless the drawing gives them a width of their own, what
// is too small to be seen as a dot.
#pragma once

#include "host/qt/Theme.h"
#include "host/qt/canvas/TextOutlines.h"
#include "host/qt/canvas/ViewMap.h"
#include "host/scene/Scene.h"

class QPainter;

namespace desktop {

class ScenePainter {
 public:
  ScenePainter(QPainter& painter, const scene::Scene& scene, const ViewMap& map, const QColor& background,
               TextOutlines& outlines);
  void paint();

 private:
  void paintPrimitive(const scene::Primitive& primitive);
  void setClip(std::int32_t clip);
  void setColor(const scene::Color& color);
  void stroke(const scene::Primitive& primitive, scene::PathView path);
  void fill(const scene::Primitive& primitive);
  void text(const scene::TextRun& run);
  bool isFar(scene::PathView path) const;
  bool isUpright(scene::PathView path) const;
  QPainterPath onScreen(scene::PathView path) const;

  QPainter& m_painter;
  const scene::Scene& m_scene;
  const ViewMap& m_map;
  TextOutlines& m_outlines;
  scene::Rgb m_background;
  ge::Box2d m_visible;
  std::int32_t m_clip = scene::Primitive::kNone;
  QColor m_color;
  double m_width = -1; // of the pen that is set
  bool m_smooth = false;
};

} // namespace desktop
