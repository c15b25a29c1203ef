// Paints a scene on a page with cairo.
#pragma once

#include "host/plot/FontMetrics.h"
#include "host/plot/PageLayout.h"
#include "host/scene/Scene.h"

#include <functional>

namespace plot {

class ScenePainter {
 public:
  // The target's unit is a millimetre, its origin the page's upper left corner. finest is the thinnest line.
  ScenePainter(cairo_t* target, const scene::Scene& scene, const Page& page, double finest);
  // False when progress, told how much is done, has ended it.
  bool paint(const std::function<bool(double)>& progress = {});

 private:
  void paintGroup(const scene::Group& group);
  void paintPrimitive(const scene::Primitive& primitive);
  void setClip(std::int32_t clip);
  void setColor(const scene::Color& color);
  bool showsGaps(const scene::Pattern& pattern, const scene::Primitive& primitive) const;
  void stroke(const scene::Primitive& primitive, scene::PathView path);
  void fill(const scene::Primitive& primitive);
  void text(const scene::TextRun& run);
  void point(const scene::Primitive& primitive);
  void infinite(const scene::Primitive& primitive);
  void addPath(scene::PathView path);
  bool isFar(scene::PathView path) const;

  cairo_t* m_target;
  const scene::Scene& m_scene;
  Page m_page;
  double m_finest;
  ge::Box2d m_visible; // in the scene, the page's margins included
  FontLayouts m_fonts;
  std::int32_t m_clip = scene::Primitive::kNone;
};

} // namespace plot
