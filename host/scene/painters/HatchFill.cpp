#include "host/scene/painters/HatchFill.h"

#include <algorithm>
#include <cmath>

namespace scene {
namespace {

struct Crossing {
  long long line = 0;
  double along = 0;
  bool operator<(const Crossing& other) const {
    return line != other.line ? line < other.line : along < other.along;
  }
};

class Family {
 public:
  Family(const HatchLines& lines, std::size_t most, Path& out)
      : m_lines(lines), m_most(most), m_out(out), m_along(std::cos(lines.angle), std::sin(lines.angle)),
        m_spacing(across(lines.offset)), m_shift(lines.offset.dotProduct(m_along)) {
    for (const double dash : lines.dashes) m_period += std::fabs(dash);
  }

  bool fill(const std::vector<std::vector<AcGePoint2d>>& polygons) {
    if (!(std::fabs(m_spacing) > 0) || !std::isfinite(m_spacing) || !std::isfinite(m_shift)) return true;
    for (const auto& polygon : polygons)
      for (std::size_t i = 0; i < polygon.size(); ++i)
        if (!cross(polygon[i], polygon[(i + 1) % polygon.size()])) return false;
    std::sort(m_crossings.begin(), m_crossings.end());
    for (std::size_t i = 0; i + 1 < m_crossings.size();) {
      if (m_crossings[i].line != m_crossings[i + 1].line) {
        ++i; // half a pair: a loop that isn't closed
        continue;
      }
      if (!draw(m_crossings[i].line, m_crossings[i].along, m_crossings[i + 1].along)) return false;
      i += 2;
    }
    return true;
  }

 private:
  double across(const AcGeVector2d& v) const { return v.y * m_along.x - v.x * m_along.y; }

  // Each line that the edge crosses; its upper end counts to the next edge.
  bool cross(const AcGePoint2d& from, const AcGePoint2d& to) {
    const double a = across(from - m_lines.base) / m_spacing;
    const double b = across(to - m_lines.base) / m_spacing;
    const double low = std::ceil(std::min(a, b));
    const double high = std::ceil(std::max(a, b));
    if (!(std::fabs(low) < 1e15 && std::fabs(high) < 1e15)) return false;
    if (high - low > static_cast<double>(m_most - std::min(m_most, m_crossings.size() / 2))) return false;
    const double alongFrom = (from - m_lines.base).dotProduct(m_along);
    const double alongTo = (to - m_lines.base).dotProduct(m_along);
    for (double line = low; line < high; ++line) {
      const double t = (line - a) / (b - a);
      m_crossings.push_back({static_cast<long long>(line), alongFrom + (alongTo - alongFrom) * t});
    }
    return true;
  }

  AcGePoint2d at(long long line, double along) const {
    const double over = static_cast<double>(line) * m_spacing;
    return m_lines.base + m_along * along + AcGeVector2d(-m_along.y, m_along.x) * over;
  }
  bool stretch(long long line, double from, double to) {
    if (m_out.verbs.size() / 2 >= m_most) return false;
    m_out.move(at(line, from));
    m_out.line(at(line, to));
    return true;
  }

  bool draw(long long line, double from, double to) {
    if (m_lines.dashes.empty()) return stretch(line, from, to);
    const double origin = static_cast<double>(line) * m_shift;
    const double count = (to - from) / m_period;
    if (!(m_period > 0) || !(count < static_cast<double>(m_most))) return m_period > 0 ? false : true;
    double begin = origin + std::floor((from - origin) / m_period) * m_period;
    while (begin < to) {
      double dashFrom = begin;
      for (const double dash : m_lines.dashes) {
        const double dashTo = dashFrom + std::fabs(dash);
        const double first = std::max(dashFrom, from);
        const double last = std::min(dashTo, to);
        if (dash >= 0 && first <= last && !stretch(line, first, last)) return false;
        dashFrom = dashTo;
      }
      if (!(dashFrom > begin)) return true; // a period too short to be told from its place
      begin = dashFrom;
    }
    return true;
  }

  const HatchLines& m_lines;
  std::size_t m_most;
  Path& m_out;
  AcGeVector2d m_along;
  double m_spacing;
  double m_shift;
  double m_period = 0;
  std::vector<Crossing> m_crossings;
};

} // namespace

std::optional<Path> FillWithLines(const std::vector<Path>& loops, const std::vector<HatchLines>& families,
                                  std::size_t most) {
  std::vector<std::vector<AcGePoint2d>> polygons;
  for (const Path& loop : loops)
    for (auto& part : Flatten(loop.view())) polygons.push_back(std::move(part));
  Path out;
  for (const HatchLines& family : families)
    if (!Family(family, most, out).fill(polygons)) return std::nullopt;
  return out;
}

} // namespace scene
