#include "host/plot/ScenePainter.h"

#include "host/plot/NearPath.h"
#include "host/scene/InfiniteLine.h"
#include "host/scene/PointMark.h"

#include <cairo/cairo.h>
#include <pango/pangocairo.h>

#include <algorithm>
#include <cmath>

namespace plot {
namespace {

constexpr double kFar = 10'000; // millimetres off the page that painting can still hold
constexpr std::size_t kMostDashes = 100'000;
constexpr std::size_t kGroupsBetweenProgress = 256;
constexpr scene::Rgb kPaper{255, 255, 255};

} // namespace

ScenePainter::ScenePainter(cairo_t* target, const scene::Scene& scene, const Page& page, double finest)
    : m_target(target), m_scene(scene), m_page(page), m_finest(finest), m_fonts(target) {
  // A given window is cut at its border, not at the paper's.
  m_visible = page.area;
}

bool ScenePainter::paint(const std::function<bool(double)>& progress) {
  setColor({{}, scene::Color::Kind::background, 255});
  cairo_paint(m_target);
  cairo_save(m_target);
  cairo_set_line_cap(m_target, CAIRO_LINE_CAP_ROUND);
  cairo_set_line_join(m_target, CAIRO_LINE_JOIN_ROUND);
  cairo_set_fill_rule(m_target, CAIRO_FILL_RULE_EVEN_ODD);
  bool goesOn = true;
  for (std::size_t i = 0; i < m_scene.groups.size() && goesOn; ++i) {
    if (progress && i % kGroupsBetweenProgress == 0)
      goesOn = progress(static_cast<double>(i) / static_cast<double>(m_scene.groups.size()));
    if (goesOn) paintGroup(m_scene.groups[i]);
  }
  setClip(scene::Primitive::kNone);
  cairo_restore(m_target);
  return goesOn;
}

void ScenePainter::paintGroup(const scene::Group& group) {
  if (!group.unbounded && !group.box.Overlaps(m_visible)) return;
  const auto begin = m_scene.primitives.begin() + group.firstPrimitive;
  std::for_each(begin, begin + group.primitiveCount,
                [this](const scene::Primitive& primitive) { paintPrimitive(primitive); });
}

void ScenePainter::paintPrimitive(const scene::Primitive& primitive) {
  setClip(primitive.clip);
  setColor(primitive.color);
  switch (primitive.kind) {
  case scene::Primitive::Kind::stroke:
    return stroke(primitive, m_scene.path(primitive));
  case scene::Primitive::Kind::fill:
    return fill(primitive);
  case scene::Primitive::Kind::text:
    return text(m_scene.texts[primitive.text]);
  case scene::Primitive::Kind::point:
    return point(primitive);
  case scene::Primitive::Kind::ray:
  case scene::Primitive::Kind::xline:
    return infinite(primitive);
  }
}

void ScenePainter::setClip(std::int32_t clip) {
  if (clip == m_clip) return;
  if (m_clip != scene::Primitive::kNone) cairo_restore(m_target);
  m_clip = clip;
  if (clip == scene::Primitive::kNone) return;
  cairo_save(m_target);
  for (; clip != scene::Primitive::kNone; clip = m_scene.clips[static_cast<std::size_t>(clip)].within) {
    const scene::PathView path = m_scene.clips[static_cast<std::size_t>(clip)].path.view();
    const scene::Path near = isFar(path) ? CutFill(path, m_visible) : scene::Path();
    cairo_new_path(m_target);
    addPath(isFar(path) ? near.view() : path);
    cairo_clip(m_target);
  }
}

void ScenePainter::setColor(const scene::Color& color) {
  const scene::Rgb rgb = color.on(kPaper);
  cairo_set_source_rgba(m_target, rgb.red / 255.0, rgb.green / 255.0, rgb.blue / 255.0, color.alpha / 255.0);
}

bool ScenePainter::isFar(scene::PathView path) const {
  return std::any_of(path.points.begin(), path.points.end(), [this](const AcGePoint2d& p) {
    return !(std::fabs(m_page.x(p.x)) < kFar && std::fabs(m_page.y(p.y)) < kFar);
  });
}

void ScenePainter::addPath(scene::PathView path) {
  const AcGePoint2d* p = path.points.data();
  const auto x = [&](std::size_t i) { return m_page.x(p[i].x); };
  const auto y = [&](std::size_t i) { return m_page.y(p[i].y); };
  for (const scene::Verb verb : path.verbs) {
    switch (verb) {
    case scene::Verb::move:
      cairo_move_to(m_target, x(0), y(0));
      break;
    case scene::Verb::line:
      cairo_line_to(m_target, x(0), y(0));
      break;
    case scene::Verb::curve:
    case scene::Verb::curveOn:
      cairo_curve_to(m_target, x(0), y(0), x(1), y(1), x(2), y(2));
      break;
    case scene::Verb::close:
      cairo_close_path(m_target);
      break;
    }
    p += scene::PointsOf(verb);
  }
}

// The round ends of dashes close gaps that are no wider than the line.
bool ScenePainter::showsGaps(const scene::Pattern& pattern, const scene::Primitive& primitive) const {
  constexpr double kNarrowest = 0.05; // millimetres that an eye can see
  double widest = 0;
  for (const double dash : pattern.dashes) widest = std::max(widest, -dash * m_page.scale);
  const double closed = primitive.width > 0 ? 0 : std::max(primitive.weight / 100.0, m_finest);
  return widest > closed + kNarrowest;
}

void ScenePainter::stroke(const scene::Primitive& primitive, scene::PathView path) {
  scene::Path near;
  if (isFar(path)) {
    const double border = kFar / 4 / m_page.scale;
    near = CutStrokes(path, {m_visible.minX - border, m_visible.minY - border, m_visible.maxX + border,
                             m_visible.maxY + border});
    path = near.view();
  }
  scene::Path dashed;
  if (primitive.pattern != scene::Primitive::kNone) {
    const scene::Pattern& pattern = m_scene.patterns[static_cast<std::size_t>(primitive.pattern)];
    if (showsGaps(pattern, primitive) && scene::AddDashes(path, pattern, kMostDashes, dashed))
      path = dashed.view();
  }
  const bool wide = primitive.width > 0;
  const double width = wide ? primitive.width * m_page.scale : primitive.weight / 100.0;
  cairo_set_line_width(m_target, std::max(width, m_finest));
  cairo_set_line_cap(m_target, wide ? CAIRO_LINE_CAP_BUTT : CAIRO_LINE_CAP_ROUND);
  cairo_set_line_join(m_target, wide ? CAIRO_LINE_JOIN_MITER : CAIRO_LINE_JOIN_ROUND);
  cairo_new_path(m_target);
  addPath(path);
  cairo_stroke(m_target);
}

void ScenePainter::fill(const scene::Primitive& primitive) {
  scene::PathView path = m_scene.path(primitive);
  const scene::Path near = isFar(path) ? CutFill(path, m_visible) : scene::Path();
  cairo_new_path(m_target);
  addPath(isFar(path) ? near.view() : path);
  cairo_fill(m_target);
}

void ScenePainter::text(const scene::TextRun& run) {
  const double cap = m_fonts.capHeight(run.font);
  const double k = m_page.scale / cap;
  const double size = std::hypot(run.up.x, run.up.y) * m_page.scale;
  const double x = m_page.x(run.origin.x);
  const double y = m_page.y(run.origin.y);
  if (!(size > 1e-6 && size < kFar && std::fabs(x) < kFar && std::fabs(y) < kFar)) return;
  cairo_matrix_t matrix;
  cairo_matrix_init(&matrix, run.along.x * k, -run.along.y * k, -run.up.x * k, run.up.y * k, x, y);
  cairo_save(m_target);
  cairo_transform(m_target, &matrix);
  cairo_new_path(m_target);
  cairo_move_to(m_target, 0, 0);
  PangoLayout* layout = m_fonts.layout(run.font, run.text);
  pango_cairo_show_layout_line(m_target, pango_layout_get_line_readonly(layout, 0));
  cairo_restore(m_target);
}

void ScenePainter::point(const scene::Primitive& primitive) {
  const double height = m_page.area.maxY - m_page.area.minY;
  const double size = scene::PointMarkSize(m_scene.pointSize, height);
  const scene::Path mark = scene::PointMark(m_scene.pointMode, m_scene.points[primitive.firstPoint], size);
  if (!mark.isEmpty()) stroke(primitive, mark.view());
}

void ScenePainter::infinite(const scene::Primitive& primitive) {
  const scene::PathView path = m_scene.path(primitive);
  const bool isRay = primitive.kind == scene::Primitive::Kind::ray;
  const auto cut = scene::CutToBox(path.points[0], path.points[1], isRay, m_visible);
  if (!cut) return;
  scene::Path line;
  line.move(cut->first);
  line.line(cut->second);
  stroke(primitive, line.view());
}

} // namespace plot
