#include "host/scene/SplineCurve.h"

#include <algorithm>
#include <cmath>

namespace scene {
namespace {

constexpr int kMaxDegree = 11;
constexpr int kPiecesPerSpan = 8; // of a curve that is no cubic

struct Homogeneous {
  double x = 0, y = 0, z = 0, w = 0;
  Homogeneous mixed(const Homogeneous& o, double t) const {
    return {x + (o.x - x) * t, y + (o.y - y) * t, z + (o.z - z) * t, w + (o.w - w) * t};
  }
};

struct Sample {
  AcGePoint3d point;
  AcGeVector3d derivative;
};

class Evaluator {
 public:
  Evaluator(const SplineCurve& curve, std::vector<double> knots)
      : m_degree(static_cast<std::size_t>(curve.degree)), m_knots(std::move(knots)) {
    for (std::size_t i = 0; i < curve.controls.size(); ++i) {
      const double w = i < curve.weights.size() && curve.weights[i] > 0 ? curve.weights[i] : 1;
      const AcGePoint3d& p = curve.controls[i];
      m_controls.push_back({p.x * w, p.y * w, p.z * w, w});
    }
  }

  // By de Boor's scheme, whose last step tells the derivative too. span: knots[span] <= u <= knots[span + 1].
  Sample at(double u, std::size_t span) const {
    Homogeneous d[kMaxDegree + 1];
    for (std::size_t j = 0; j <= m_degree; ++j) d[j] = m_controls[span - m_degree + j];
    Homogeneous slope;
    for (std::size_t r = 1; r <= m_degree; ++r) {
      for (std::size_t j = m_degree; j >= r; --j) {
        const double low = m_knots[span - m_degree + j];
        const double range = m_knots[span + 1 + j - r] - low;
        if (r == m_degree) {
          const double f = range > 0 ? static_cast<double>(m_degree) / range : 0;
          slope = {(d[j].x - d[j - 1].x) * f, (d[j].y - d[j - 1].y) * f, (d[j].z - d[j - 1].z) * f,
                   (d[j].w - d[j - 1].w) * f};
        }
        d[j] = d[j - 1].mixed(d[j], range > 0 ? (u - low) / range : 0);
      }
    }
    const Homogeneous& p = d[m_degree];
    const AcGePoint3d point(p.x / p.w, p.y / p.w, p.z / p.w);
    return {point, AcGeVector3d((slope.x - slope.w * point.x) / p.w, (slope.y - slope.w * point.y) / p.w,
                                (slope.z - slope.w * point.z) / p.w)};
  }
  const std::vector<double>& knots() const { return m_knots; }

 private:
  std::size_t m_degree;
  std::vector<double> m_knots;
  std::vector<Homogeneous> m_controls;
};

// The curve's knots, or even ones that begin and end in the outermost points where its own can't be used.
std::vector<double> usableKnots(const SplineCurve& curve) {
  const std::size_t count = curve.controls.size() + static_cast<std::size_t>(curve.degree) + 1;
  if (curve.knots.size() == count && std::is_sorted(curve.knots.begin(), curve.knots.end()) &&
      curve.knots.front() < curve.knots.back())
    return curve.knots;
  std::vector<double> knots;
  const int spans = static_cast<int>(curve.controls.size()) - curve.degree;
  for (std::size_t i = 0; i < count; ++i)
    knots.push_back(std::clamp(static_cast<int>(i) - curve.degree, 0, spans));
  return knots;
}

void addHermite(PathPen& path, const Sample& from, const Sample& to, double range, bool goesOn) {
  path.curve(from.point + from.derivative * (range / 3), to.point - to.derivative * (range / 3), to.point,
             goesOn);
}

bool addByControls(const SplineCurve& curve, PathPen& path, bool begin) {
  const Evaluator evaluator(curve, usableKnots(curve));
  const auto& knots = evaluator.knots();
  const int pieces = curve.degree <= 3 && curve.weights.empty() ? 1 : kPiecesPerSpan;
  bool goesOn = false;
  for (auto span = static_cast<std::size_t>(curve.degree); span < curve.controls.size(); ++span) {
    const double range = (knots[span + 1] - knots[span]) / pieces;
    if (!(range > 0)) continue;
    Sample from = evaluator.at(knots[span], span);
    if (begin && !goesOn) path.move(from.point);
    for (int i = 1; i <= pieces; ++i) {
      const Sample to = evaluator.at(i == pieces ? knots[span + 1] : knots[span] + range * i, span);
      addHermite(path, from, to, range, goesOn);
      goesOn = true;
      from = to;
    }
  }
  return goesOn;
}

// Through the points, each with the direction from the one before to the one behind.
bool addByFits(const std::vector<AcGePoint3d>& fits, PathPen& path, bool begin) {
  if (fits.size() < 2) return false;
  if (begin) path.move(fits.front());
  const std::size_t last = fits.size() - 1;
  const auto direction = [&](std::size_t i) {
    const AcGeVector3d over = fits[std::min(i + 1, last)] - fits[i == 0 ? 0 : i - 1];
    return i == 0 || i == last ? over : over / 2;
  };
  for (std::size_t i = 0; i < last; ++i)
    addHermite(path, {fits[i], direction(i)}, {fits[i + 1], direction(i + 1)}, 1, i > 0);
  return true;
}

} // namespace

bool SplineCurve::addTo(PathPen& path, bool begin) const {
  if (degree >= 1 && degree <= kMaxDegree && controls.size() > static_cast<std::size_t>(degree))
    return addByControls(*this, path, begin);
  return addByFits(fits.empty() ? controls : fits, path, begin);
}

} // namespace scene
