// Paints scenes into the pixels of a window: lines one pixel wide unless the drawing gives them a width of
// their own, what is too small to be seen as a dot.
#pragma once

#include "host/qt/Theme.h"
#include "host/qt/canvas/TextOutlines.h"
#include "host/qt/canvas/ThinStrokes.h"
#include "host/scene/Scene.h"

#include <QPainter>

#include <unordered_set>

class QImage;

namespace desktop {

class ScenePainter {
 public:
  // The map's window is the image; nothing is painted outside of the area. See ThinLines for the image and
  // for drafts.
  ScenePainter(QImage& image, const QRect& area, const ViewMap& map, const QColor& background,
               TextOutlines& outlines, bool draft = false);
  ScenePainter(const ScenePainter&) = delete;
  ScenePainter& operator=(const ScenePainter&) = delete;
  void paint(const scene::Scene& scene, const std::unordered_set<AcDbObjectId>& hidden = {});

 private:
  bool paintTiny(const scene::Group& group);
  void paintPrimitive(const scene::Primitive& primitive);
  void setClip(std::int32_t clip);
  void setColor(const scene::Color& color);
  void setSmooth();
  void stroke(const scene::Primitive& primitive, scene::PathView path);
  void wideStroke(const scene::Primitive& primitive, scene::PathView path, double width);
  void fill(const scene::Primitive& primitive);
  void text(const scene::TextRun& run);
  bool letters(const scene::TextRun& run, const AcGePoint2d& at, double height);
  bool isFar(scene::PathView path) const;
  bool isUpright(scene::PathView path) const;
  QPainterPath onScreen(scene::PathView path) const;

  QPainter m_painter;
  QRect m_area;
  ViewMap m_map;
  ThinLines m_lines;
  ThinStrokes m_strokes;
  GlyphFill m_letters;
  TextOutlines& m_outlines;
  scene::Rgb m_background;
  ge::Box2d m_visible;
  const scene::Scene* m_scene = nullptr;
  std::int32_t m_clip = scene::Primitive::kNone;
  scene::Color m_sceneColor;
  QColor m_color;
  double m_width = -1; // of the pen that is set
  bool m_smooth = false;
};

} // namespace desktop
