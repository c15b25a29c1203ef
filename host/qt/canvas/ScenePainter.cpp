#include "host/qt/canvas/ScenePainter.h"

#include "host/plot/NearPath.h"
#include "host/qt/QtText.h"
#include "host/scene/InfiniteLine.h"
#include "host/scene/PointMark.h"

#include <algorithm>
#include <cmath>

namespace desktop {
namespace {

constexpr double kFar = 20'000;      // pixels off the window that painting can still hold
constexpr double kFinestPattern = 4; // pixels of a pattern's length, below which it is a line
constexpr double kThin = 1.5;        // pixels of width, below which a line is one pixel wide
constexpr double kLeastText = 2.5;   // pixels of height, below which a line stands for the text
constexpr double kCoarseLetter = 9;  // pixels of height, below which rough outlines will do
constexpr double kLargestLetter = 60;
constexpr double kLeastGroup = 1.0; // pixels, below which a dot stands for the entity
constexpr double kLeastSymbol = 3;  // pixels, below which a line stands for an entity of several parts
constexpr std::size_t kMostDashes = 20'000;

ge::Box2d WorldBox(const ViewMap& map, const QRect& area) {
  constexpr double kAround = 2; // pixels: half a line, and what smoothing adds
  return ge::Box2d::FromCorners(map.toWorld({area.left() - kAround, area.top() - kAround}),
                                map.toWorld({area.right() + 1 + kAround, area.bottom() + 1 + kAround}));
}

} // namespace

ScenePainter::ScenePainter(QImage& image, const QRect& area, const ViewMap& map, const QColor& background,
                           TextOutlines& outlines, bool draft)
    : m_painter(&image), m_area(area), m_map(map), m_lines(image, area, draft), m_strokes(m_lines, m_map),
      m_letters(image, area),
      m_outlines(outlines), m_background{static_cast<std::uint8_t>(background.red()),
                                         static_cast<std::uint8_t>(background.green()),
                                         static_cast<std::uint8_t>(background.blue())},
      m_visible(WorldBox(map, area)) {
  m_painter.setClipRect(m_area);
  setColor(m_sceneColor);
}

void ScenePainter::paint(const scene::Scene& scene, const std::unordered_set<AcDbObjectId>& hidden) {
  m_scene = &scene;
  for (const scene::Group& group : scene.groups) {
    if (!group.unbounded && !group.box.Overlaps(m_visible)) continue;
    if (!hidden.empty() && hidden.contains(group.entity)) continue;
    if (paintTiny(group)) continue;
    const auto begin = scene.primitives.begin() + group.firstPrimitive;
    std::for_each(begin, begin + group.primitiveCount,
                  [this](const scene::Primitive& primitive) { paintPrimitive(primitive); });
  }
  setClip(scene::Primitive::kNone); // it is the scene's own
}

// What is too small to show its form.
bool ScenePainter::paintTiny(const scene::Group& group) {
  const double width = (group.box.maxX - group.box.minX) / m_map.unitsPerPixel;
  const double height = (group.box.maxY - group.box.minY) / m_map.unitsPerPixel;
  const double size = std::max(width, height);
  if (!(size < (group.primitiveCount > 1 ? kLeastSymbol : kLeastGroup))) return false;
  if (group.unbounded || group.primitiveCount == 0) return false;
  const scene::Primitive& first = m_scene->primitives[group.firstPrimitive];
  if (first.kind == scene::Primitive::Kind::point || first.clip != scene::Primitive::kNone) return false;
  setColor(first.color);
  const QPointF corner = m_map.toScreen(AcGePoint2d(group.box.minX, group.box.maxY));
  if (size < kLeastGroup)
    m_lines.dot({corner.x(), corner.y()});
  else if (width > height)
    m_lines.line({corner.x(), corner.y() + height / 2}, {corner.x() + width, corner.y() + height / 2}, true);
  else
    m_lines.line({corner.x() + width / 2, corner.y()}, {corner.x() + width / 2, corner.y() + height}, true);
  return true;
}

void ScenePainter::paintPrimitive(const scene::Primitive& primitive) {
  using Kind = scene::Primitive::Kind;
  setClip(primitive.clip);
  setColor(primitive.color);
  const scene::PathView path = m_scene->path(primitive);
  switch (primitive.kind) {
  case Kind::stroke:
    return stroke(primitive, path);
  case Kind::fill:
    return fill(primitive);
  case Kind::text:
    return text(m_scene->texts[primitive.text]);
  case Kind::point: {
    const double size = scene::PointMarkSize(m_scene->pointSize, m_map.size.height() * m_map.unitsPerPixel);
    const scene::Path mark =
        scene::PointMark(m_scene->pointMode, m_scene->points[primitive.firstPoint], size);
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
  m_painter.setClipRect(m_area);
  for (; clip != scene::Primitive::kNone; clip = m_scene->clips[static_cast<std::size_t>(clip)].within) {
    const scene::PathView path = m_scene->clips[static_cast<std::size_t>(clip)].path.view();
    const scene::Path near = isFar(path) ? plot::CutFill(path, m_visible) : scene::Path();
    m_painter.setClipPath(onScreen(isFar(path) ? near.view() : path), Qt::IntersectClip);
  }
}

void ScenePainter::setColor(const scene::Color& color) {
  if (m_color.isValid() && color == m_sceneColor) return;
  m_sceneColor = color;
  const scene::Rgb rgb = color.on(m_background);
  m_color = QColor(rgb.red, rgb.green, rgb.blue, color.alpha);
  m_lines.setColor(m_color);
  m_letters.setColor(m_color);
  m_width = -1;
}

void ScenePainter::setSmooth() {
  if (!m_smooth) m_painter.setRenderHint(QPainter::Antialiasing, m_smooth = true);
}

bool ScenePainter::isFar(scene::PathView path) const {
  return std::any_of(path.points.begin(), path.points.end(), [this](const AcGePoint2d& p) {
    const QPointF at = m_map.toScreen(p);
    return !(std::fabs(at.x()) < kFar && std::fabs(at.y()) < kFar);
  });
}

// Straight lines along the axes are sharp only without smoothing.
bool ScenePainter::isUpright(scene::PathView path) const {
  const double least = 0.3 * m_map.unitsPerPixel;
  for (std::size_t i = 1; i < path.points.size(); ++i) {
    const AcGeVector2d by = path.points[i] - path.points[i - 1];
    if (std::fabs(by.x) > least && std::fabs(by.y) > least) return false;
  }
  return std::none_of(path.verbs.begin(), path.verbs.end(), [](scene::Verb verb) {
    return verb == scene::Verb::curve || verb == scene::Verb::curveOn;
  });
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
  const double width = primitive.width / m_map.unitsPerPixel;
  if (width > kThin || m_clip != scene::Primitive::kNone)
    return wideStroke(primitive, path, std::max(width, 1.0));
  const bool dashed = primitive.pattern != scene::Primitive::kNone;
  m_strokes.draw(path, dashed ? &m_scene->patterns[static_cast<std::size_t>(primitive.pattern)] : nullptr,
                 !isUpright(path));
}

void ScenePainter::wideStroke(const scene::Primitive& primitive, scene::PathView path, double width) {
  scene::Path near;
  if (isFar(path)) {
    const double border = kFar / 4 * m_map.unitsPerPixel;
    near = plot::CutStrokes(path, {m_visible.minX - border, m_visible.minY - border, m_visible.maxX + border,
                                   m_visible.maxY + border});
    path = near.view();
  }
  scene::Path dashed;
  if (primitive.pattern != scene::Primitive::kNone) {
    const scene::Pattern& pattern = m_scene->patterns[static_cast<std::size_t>(primitive.pattern)];
    if (pattern.length() / m_map.unitsPerPixel >= kFinestPattern &&
        scene::AddDashes(path, pattern, kMostDashes, dashed))
      path = dashed.view();
  }
  if (width != m_width) {
    m_width = width;
    m_painter.setPen(QPen(m_color, width, Qt::SolidLine, width > kThin ? Qt::FlatCap : Qt::RoundCap,
                          width > kThin ? Qt::MiterJoin : Qt::RoundJoin));
    m_painter.setBrush(Qt::NoBrush);
  }
  setSmooth();
  m_painter.drawPath(onScreen(path));
}

void ScenePainter::fill(const scene::Primitive& primitive) {
  const scene::PathView path = m_scene->path(primitive);
  const scene::Path near = isFar(path) ? plot::CutFill(path, m_visible) : scene::Path();
  QPainterPath area = onScreen(isFar(path) ? near.view() : path);
  area.setFillRule(Qt::OddEvenFill);
  setSmooth();
  m_painter.fillPath(area, m_color);
}

void ScenePainter::text(const scene::TextRun& run) {
  const double k = 1 / m_map.unitsPerPixel;
  const double height = std::hypot(run.up.x, run.up.y) * k;
  const QPointF at = m_map.toScreen(run.origin);
  if (!(height > 1e-6 && height < kFar && std::fabs(at.x()) < kFar && std::fabs(at.y()) < kFar)) return;
  if (height < kLeastText && m_clip == scene::Primitive::kNone) {
    const QPointF end = at + QPointF(run.along.x, -run.along.y) * (run.advance * k);
    return m_lines.line({at.x(), at.y()}, {end.x(), end.y()}, true);
  }
  if (letters(run, {at.x(), at.y()}, height)) return;
  setSmooth();
  const QTransform matrix(run.along.x * k, -run.along.y * k, run.up.x * k, -run.up.y * k, at.x(), at.y());
  m_painter.fillPath(matrix.map(m_outlines.of(run.font, Shown(CString(run.text)))), m_color);
}

// One after the other, where they are small and stand for themselves.
bool ScenePainter::letters(const scene::TextRun& run, const AcGePoint2d& at, double height) {
  if (height > kLargestLetter || m_clip != scene::Primitive::kNone || !TextOutlines::isPlain(run.text))
    return false;
  const double k = 1 / m_map.unitsPerPixel;
  GlyphPlace place{{run.along.x * k, -run.along.y * k}, {run.up.x * k, -run.up.y * k}, at};
  TextOutlines::Face& face = m_outlines.face(run.font);
  for (const wchar_t c : run.text) {
    const TextOutlines::Glyph& glyph = face.glyph(c);
    m_letters.draw(height < kCoarseLetter ? glyph.coarse : glyph.fine, place);
    place.origin += place.along * glyph.advance;
  }
  return true;
}

} // namespace desktop
