#include "host/qt/canvas/ThinStrokes.h"

#include <algorithm>
#include <cmath>

namespace desktop {
namespace {

constexpr double kFinestPattern = 4; // pixels of a pattern's length, below which it is a line
constexpr double kFlat = 0.25;       // pixels that a chord may be off its curve
constexpr double kLeastStep = 0.4;   // pixels, below which points of a line are one
constexpr int kDeepest = 12;         // halvings of a curve

// How far the controls are from where those of a straight line would be, which bounds the distance of the
// chord.
double bend(const scene::Cubic& c) {
  const double x = std::max(std::fabs(c.start.x - 2 * c.control1.x + c.control2.x),
                            std::fabs(c.control1.x - 2 * c.control2.x + c.end.x));
  const double y = std::max(std::fabs(c.start.y - 2 * c.control1.y + c.control2.y),
                            std::fabs(c.control1.y - 2 * c.control2.y + c.end.y));
  return std::max(x, y);
}

int chordsOf(const scene::Cubic& curve) {
  constexpr double kMost = 64;
  return static_cast<int>(std::clamp(std::ceil(std::sqrt(0.75 * bend(curve) / kFlat)), 1.0, kMost));
}

} // namespace

ThinStrokes::ThinStrokes(ThinLines& lines, const ViewMap& map)
    : m_lines(lines), m_middle(map.size.width() / 2, map.size.height() / 2), m_centre(map.centre),
      m_scale(1 / map.unitsPerPixel) {}

void ThinStrokes::setPattern(const scene::Pattern* pattern) {
  m_dashed = false;
  if (!pattern || pattern->dashes.size() < 2) return;
  m_period = pattern->length() * m_scale;
  if (!(m_period >= kFinestPattern) || !std::isfinite(m_period)) return;
  m_dashed = true;
  m_dashes.clear();
  for (const double dash : pattern->dashes) m_dashes.push_back(dash * m_scale);
}

void ThinStrokes::draw(scene::PathView path, const scene::Pattern* pattern, bool smooth) {
  m_smooth = smooth;
  setPattern(pattern);
  if (m_dashed) return through(path, pattern->bySegment);
  const AcGePoint2d* p = path.points.data();
  for (const AcGePoint2d& point : path.points) m_lines.expect(onScreen(point));
  AcGePoint2d first;
  for (const scene::Verb verb : path.verbs) {
    switch (verb) {
    case scene::Verb::move:
      m_at = first = onScreen(p[0]);
      break;
    case scene::Verb::line: {
      const AcGePoint2d to = onScreen(p[0]);
      // A path of one line may be as short as it likes.
      const bool seen = path.verbs.size() == 2 || std::fabs(to.x - m_at.x) >= kLeastStep ||
                        std::fabs(to.y - m_at.y) >= kLeastStep ||
                        p + 1 == path.points.data() + path.points.size();
      if (seen) lineTo(to);
      break;
    }
    case scene::Verb::curve:
    case scene::Verb::curveOn:
      curveTo({m_at, onScreen(p[0]), onScreen(p[1]), onScreen(p[2])}, 0);
      break;
    case scene::Verb::close:
      lineTo(first);
      break;
    }
    p += scene::PointsOf(verb);
  }
}

void ThinStrokes::lineTo(const AcGePoint2d& to) {
  m_lines.line(m_at, to, m_smooth);
  m_at = to;
}

// Halved only where it bends and may be seen.
void ThinStrokes::curveTo(const scene::Cubic& curve, int depth) {
  constexpr double kFewChords = 8 * 8 * kFlat / 0.75;
  const double off = bend(curve);
  if (off * 0.75 <= kFlat || depth >= kDeepest) return lineTo(curve.end);
  if (off <= kFewChords) {
    const int chords = chordsOf(curve);
    for (int i = 1; i < chords; ++i) lineTo(curve.at(static_cast<double>(i) / chords));
    return lineTo(curve.end);
  }
  const auto [left, right] = std::minmax({curve.start.x, curve.control1.x, curve.control2.x, curve.end.x});
  const auto [upper, lower] = std::minmax({curve.start.y, curve.control1.y, curve.control2.y, curve.end.y});
  if (!m_lines.mayShow({left, upper, right, lower})) return lineTo(curve.end);
  curveTo(curve.between(0, 0.5), depth + 1);
  curveTo(curve.between(0.5, 1), depth + 1);
}

// The same walk as that of scene::AddDashes.
void ThinStrokes::through(scene::PathView path, bool bySegment) {
  m_stretch.clear();
  const AcGePoint2d* p = path.points.data();
  AcGePoint2d first;
  for (const scene::Verb verb : path.verbs) {
    if (verb == scene::Verb::move || (bySegment && verb != scene::Verb::curveOn)) flush();
    if (verb == scene::Verb::move) {
      m_at = first = onScreen(p[0]);
    } else if (m_stretch.empty()) {
      m_stretch.push_back(m_at);
    }
    switch (verb) {
    case scene::Verb::move:
      break;
    case scene::Verb::line:
      m_stretch.push_back(m_at = onScreen(p[0]));
      break;
    case scene::Verb::curve:
    case scene::Verb::curveOn: {
      const scene::Cubic curve{m_at, onScreen(p[0]), onScreen(p[1]), onScreen(p[2])};
      const int chords = chordsOf(curve);
      for (int i = 1; i < chords; ++i) m_stretch.push_back(curve.at(static_cast<double>(i) / chords));
      m_stretch.push_back(m_at = curve.end);
      break;
    }
    case scene::Verb::close:
      m_stretch.push_back(m_at = first);
      break;
    }
    p += scene::PointsOf(verb);
  }
  flush();
}

void ThinStrokes::flush() {
  double all = 0;
  for (std::size_t i = 1; i < m_stretch.size(); ++i) all += m_stretch[i - 1].distanceTo(m_stretch[i]);
  double before = 0;
  for (std::size_t i = 1; i < m_stretch.size(); ++i) {
    const double length = m_stretch[i - 1].distanceTo(m_stretch[i]);
    dashes(m_stretch[i - 1], m_stretch[i], before, length, all);
    before += length;
  }
  m_stretch.clear();
}

// The dashes of one straight piece that begins so far along its stretch.
void ThinStrokes::dashes(const AcGePoint2d& from, const AcGePoint2d& to, double before, double length,
                         double all) {
  const double count = std::floor(all / m_period + 1e-9);
  if (count < 1 || !(length > 0)) return m_lines.line(from, to, m_smooth);
  double begin = 0;
  double end = 1;
  if (!m_lines.cut(from, to, begin, end)) return;
  begin = before + begin * length;
  end = before + end * length;
  const auto at = [&](double s) {
    const double t = (s - before) / length;
    return AcGePoint2d(from.x + (to.x - from.x) * t, from.y + (to.y - from.y) * t);
  };
  // Half of what the whole patterns leave over goes to each end, see scene::AddDashes.
  const double first = m_dashes.front();
  const double atEnd = (all - count * m_period + std::max(first, 0.0)) / 2;
  const double origin = first > 0 ? atEnd - first : atEnd;
  const auto lastCycle = static_cast<long long>(count);
  for (auto cycle = std::max(static_cast<long long>(std::floor((begin - origin) / m_period)), 0LL);;
       ++cycle) {
    double s = origin + static_cast<double>(cycle) * m_period;
    if (s > end || s >= all) return;
    for (std::size_t i = 0; i < m_dashes.size(); ++i) {
      const bool isLast = first > 0 && i == 0 && cycle == lastCycle;
      const double next = isLast ? all : s + std::fabs(m_dashes[i]);
      if (m_dashes[i] > 0 && next > begin && s < end)
        m_lines.line(at(std::max({s, begin, 0.0})), at(std::min({next, end, all})), m_smooth);
      else if (m_dashes[i] == 0 && s >= begin && s <= end)
        m_lines.dot(at(s));
      s = next;
      if (s >= all) return;
    }
  }
}

} // namespace desktop
