#include "host/qt/canvas/ScenePainter.h"

#include "host/plot/NearPath.h"
#include "host/qt/QtText.h"
#include "host/scene/InfiniteLine.h"
#include "host/scene/PointMark.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace desktop {
namespace {

constexpr double kFar = 20'000;      // pixels off the window that painting can still hold
constexpr double kFinestPattern = 4; // pixels of a pattern's length, below which it is a line
constexpr double kLeastText = 2.5;   // pixels of height, below which a line stands for the text
constexpr double kLeastGroup = 1.0;  // pixels, below which a dot stands for the entity
constexpr std::size_t kMostDashes = 20'000;

} // namespace

ScenePainter::ScenePainter(QPainter& painter, const scene::Scene& scene, const ViewMap& map,
                           const QColor& background, TextOutlines& outlines)
    : m_painter(painter), m_scene(scene), m_map(map),
      m_outlines(outlines), m_background{static_cast<std::uint8_t>(background.red()),
                                         static_cast<std::uint8_t>(background.green()),
                                         static_cast<std::uint8_t>(background.blue())},
      m_visible(map.visible()) {}

void ScenePainter::paint() {
  m_painter.save();
  const double least = kLeastGroup * m_map.unitsPerPixel;
  for (const scene::Group& group : m_scene.groups) {
    if (!group.unbounded && !group.box.Overlaps(m_visible)) continue;
    const auto begin = m_scene.primitives.begin() + group.firstPrimitive;
    const bool tiny = !group.unbounded && group.primitiveCount > 0 &&
                      group.box.maxX - group.box.minX < least && group.box.maxY - group.box.minY < least &&
                      begin->kind != scene::Primitive::Kind::point;
    if (tiny) {
      setColor(begin->color);
      m_painter.fillRect(QRectF(m_map.toScreen(AcGePoint2d(group.box.minX, group.box.minY)), QSizeF(1, 1)),
                         m_color);
      continue;
    }
    std::for_each(begin, begin + group.primitiveCount,
                  [this](const scene::Primitive& primitive) { paintPrimitive(primitive); });
  }
  m_painter.restore();
}

void ScenePainter::paintPrimitive(const scene::Primitive& primitive) {
  using Kind = scene::Primitive::Kind;
  setClip(primitive.clip);
  setColor(primitive.color);
  const scene::PathView path = m_scene.path(primitive);
  switch (primitive.kind) {
  case Kind::stroke:
    return stroke(primitive, path);
  case Kind::fill:
    return fill(primitive);
  case Kind::text:
    return text(m_scene.texts[primitive.text]);
  case Kind::point: {
    const double size = scene::PointMarkSize(m_scene.pointSize, m_visible.maxY - m_visible.minY);
    const scene::Path mark = scene::PointMark(m_scene.pointMode, m_scene.points[primitive.firstPoint], size);
    if (!mark.isEmpty()) stroke(primitive, mark.view());
    return;
  }
  case Kind::ray:
  case Kind::xline: {
    const auto cut = scene::CutToBox(path.points[0], path.points[1], primitive.kind == Kind::ray, m_visible);
    if (!cut) return;
    scene::Path line;
    line.move(cut->first);
    line.line(cut->second);
    stroke(primitive, line.view());
    return;
  }
  }
}

void ScenePainter::setClip(std::int32_t clip) {
  if (clip == m_clip) return;
  m_clip = clip;
  m_painter.setClipping(false);
  bool first = true;
  for (; clip != scene::Primitive::kNone; clip = m_scene.clips[static_cast<std::size_t>(clip)].within) {
    const scene::PathView path = m_scene.clips[static_cast<std::size_t>(clip)].path.view();
    const scene::Path near = isFar(path) ? plot::CutFill(path, m_visible) : scene::Path();
    m_painter.setClipPath(onScreen(isFar(path) ? near.view() : path),
                          first ? Qt::ReplaceClip : Qt::IntersectClip);
    first = false;
  }
}

void ScenePainter::setColor(const scene::Color& color) {
  const scene::Rgb rgb = color.on(m_background);
  const QColor wanted(rgb.red, rgb.green, rgb.blue, color.alpha);
  if (wanted == m_color) return;
  m_color = wanted;
  m_width = -1;
}

bool ScenePainter::isFar(scene::PathView path) const {
  return std::any_of(path.points.begin(), path.points.end(), [this](const AcGePoint2d& p) {
    const QPointF at = m_map.toScreen(p);
    return !(std::fabs(at.x()) < kFar && std::fabs(at.y()) < kFar);
  });
}

// Straight lines along the axes are sharp only without smoothing.
bool ScenePainter::isUpright(scene::PathView path) const {
  if (std::any_of(path.verbs.begin(), path.verbs.end(), [](scene::Verb verb) {
        return verb == scene::Verb::curve || verb == scene::Verb::curveOn;
      }))
    return false;
  for (std::size_t i = 1; i < path.points.size(); ++i) {
    const QPointF by = m_map.toScreen(path.points[i]) - m_map.toScreen(path.points[i - 1]);
    if (std::fabs(by.x()) > 0.3 && std::fabs(by.y()) > 0.3) return false;
  }
  return true;
}

QPainterPath ScenePainter::onScreen(scene::PathView path) const {
  QPainterPath result;
  const AcGePoint2d* p = path.points.data();
  for (const scene::Verb verb : path.verbs) {
    switch (verb) {
    case scene::Verb::move:
      result.moveTo(m_map.toScreen(p[0]));
      break;
    case scene::Verb::line:
      result.lineTo(m_map.toScreen(p[0]));
      break;
    case scene::Verb::curve:
    case scene::Verb::curveOn:
      result.cubicTo(m_map.toScreen(p[0]), m_map.toScreen(p[1]), m_map.toScreen(p[2]));
      break;
    case scene::Verb::close:
      result.closeSubpath();
      break;
    }
    p += scene::PointsOf(verb);
  }
  return result;
}

void ScenePainter::stroke(const scene::Primitive& primitive, scene::PathView path) {
  scene::Path near;
  if (isFar(path)) {
    const double border = kFar / 4 * m_map.unitsPerPixel;
    near = plot::CutStrokes(path, {m_visible.minX - border, m_visible.minY - border, m_visible.maxX + border,
                                   m_visible.maxY + border});
    path = near.view();
  }
  scene::Path dashed;
  if (primitive.pattern != scene::Primitive::kNone) {
    const scene::Pattern& pattern = m_scene.patterns[static_cast<std::size_t>(primitive.pattern)];
    if (pattern.length() / m_map.unitsPerPixel >= kFinestPattern &&
        scene::AddDashes(path, pattern, kMostDashes, dashed))
      path = dashed.view();
  }
  const double width = primitive.width > 0 ? std::max(primitive.width / m_map.unitsPerPixel, 1.0) : 1.0;
  if (width != m_width) {
    m_width = width;
    m_painter.setPen(QPen(m_color, width, Qt::SolidLine, width > 1.5 ? Qt::FlatCap : Qt::RoundCap,
                          width > 1.5 ? Qt::MiterJoin : Qt::RoundJoin));
    m_painter.setBrush(Qt::NoBrush);
  }
  if (const bool smooth = !isUpright(path); smooth != m_smooth) {
    m_smooth = smooth;
    m_painter.setRenderHint(QPainter::Antialiasing, smooth);
  }
  if (path.verbs.size() == 2 && path.verbs[1] == scene::Verb::line) {
    m_painter.drawLine(m_map.toScreen(path.points[0]), m_map.toScreen(path.points[1]));
    return;
  }
  m_painter.drawPath(onScreen(path));
}

void ScenePainter::fill(const scene::Primitive& primitive) {
  const scene::PathView path = m_scene.path(primitive);
  const scene::Path near = isFar(path) ? plot::CutFill(path, m_visible) : scene::Path();
  QPainterPath area = onScreen(isFar(path) ? near.view() : path);
  area.setFillRule(Qt::OddEvenFill);
  m_painter.fillPath(area, m_color);
}

void ScenePainter::text(const scene::TextRun& run) {
  const double k = 1 / m_map.unitsPerPixel;
  const double height = std::hypot(run.up.x, run.up.y) * k;
  const QPointF at = m_map.toScreen(run.origin);
  if (!(height > 1e-6 && height < kFar && std::fabs(at.x()) < kFar && std::fabs(at.y()) < kFar)) return;
  if (!m_smooth) m_painter.setRenderHint(QPainter::Antialiasing, m_smooth = true);
  if (height < kLeastText) {
    m_width = -1;
    m_painter.setPen(QPen(m_color, 1));
    m_painter.drawLine(at, at + QPointF(run.along.x, -run.along.y) * (run.advance * k));
    return;
  }
  const QTransform matrix(run.along.x * k, -run.along.y * k, run.up.x * k, -run.up.y * k, at.x(), at.y());
  m_painter.fillPath(matrix.map(m_outlines.of(run.font, Shown(CString(run.text)))), m_color);
}

} // namespace desktop
