#include "host/dxf/CurvePoints.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

constexpr int kPiecesOfFullTurn = 96;
constexpr int kPiecesOfSpan = 12;

struct Spline {
  int degree = 3;
  std::vector<double> knots;
  std::vector<double> weights;
  std::vector<AcGePoint3d> control;
  std::vector<AcGePoint3d> fit;
};

Spline splineOf(DxfTags tags) {
  Spline spline;
  const auto point = [](std::vector<AcGePoint3d>& points, int axis, double value) {
    if (axis == 0) points.emplace_back(value, 0, 0);
    if (points.empty()) return;
    if (axis == 1) points.back().y = value;
    if (axis == 2) points.back().z = value;
  };
  for (const DxfTag& tag : tags) {
    const double value = dxf::toReal(tag.value).value_or(0);
    if (tag.code == 71) spline.degree = static_cast<int>(std::clamp(value, 1.0, 25.0));
    if (tag.code == 40) spline.knots.push_back(value);
    if (tag.code == 41) spline.weights.push_back(value);
    if (tag.code % 10 == 0 && tag.code >= 10 && tag.code <= 30)
      point(spline.control, tag.code / 10 - 1, value);
    if (tag.code % 10 == 1 && tag.code >= 11 && tag.code <= 31) point(spline.fit, tag.code / 10 - 1, value);
  }
  return spline;
}

// De Boor's algorithm in homogeneous coordinates, in the span that begins at knot k.
AcGePoint3d pointAt(const Spline& spline, std::size_t k, double u) {
  const auto degree = static_cast<std::size_t>(spline.degree);
  struct Weighted {
    double x, y, z, w;
  };
  std::vector<Weighted> d(degree + 1);
  for (std::size_t j = 0; j <= degree; ++j) {
    const std::size_t i = j + k - degree;
    const double w = spline.weights.empty() ? 1 : spline.weights[i];
    const AcGePoint3d& p = spline.control[i];
    d[j] = {p.x * w, p.y * w, p.z * w, w};
  }
  for (std::size_t r = 1; r <= degree; ++r) {
    for (std::size_t j = degree; j >= r; --j) {
      const double low = spline.knots[j + k - degree];
      const double width = spline.knots[j + 1 + k - r] - low;
      const double t = width > 0 ? (u - low) / width : 0;
      const auto mix = [t](double a, double b) { return (1 - t) * a + t * b; };
      d[j] = {mix(d[j - 1].x, d[j].x), mix(d[j - 1].y, d[j].y), mix(d[j - 1].z, d[j].z),
              mix(d[j - 1].w, d[j].w)};
    }
  }
  const Weighted& p = d[degree];
  return p.w != 0 ? AcGePoint3d(p.x / p.w, p.y / p.w, p.z / p.w) : AcGePoint3d(p.x, p.y, p.z);
}

} // namespace

std::vector<AcGePoint3d> dxf::ellipsePoints(const Ellipse& ellipse) {
  const double length = ellipse.normal.length();
  if (length == 0 || ellipse.majorAxis.length() == 0) return {};
  const AcGeVector3d minorAxis = ellipse.normal.crossProduct(ellipse.majorAxis) * (ellipse.ratio / length);
  constexpr double fullTurn = 2 * std::numbers::pi;
  double sweep = std::fmod(ellipse.end - ellipse.start, fullTurn);
  if (!(sweep > 1e-12)) sweep += fullTurn;
  const int pieces = std::max(2, static_cast<int>(std::ceil(kPiecesOfFullTurn * sweep / fullTurn)));
  std::vector<AcGePoint3d> points;
  for (int i = 0; i <= pieces; ++i) {
    const double t = ellipse.start + sweep * i / pieces;
    points.push_back(ellipse.centre + ellipse.majorAxis * std::cos(t) + minorAxis * std::sin(t));
  }
  return points;
}

std::vector<AcGePoint3d> dxf::splinePoints(DxfTags tags) {
  const Spline spline = splineOf(tags);
  const auto degree = static_cast<std::size_t>(spline.degree);
  const std::size_t count = spline.control.size();
  if (count == 0) return spline.fit;
  const bool fits = count > degree && spline.knots.size() == count + degree + 1 &&
                    std::is_sorted(spline.knots.begin(), spline.knots.end()) &&
                    (spline.weights.empty() || spline.weights.size() == count);
  if (!fits) return {};
  std::vector<AcGePoint3d> points;
  for (std::size_t k = degree; k < count; ++k) {
    const double low = spline.knots[k];
    const double high = spline.knots[k + 1];
    if (high <= low) continue;
    for (int i = points.empty() ? 0 : 1; i <= kPiecesOfSpan; ++i)
      points.push_back(pointAt(spline, k, low + (high - low) * i / kPiecesOfSpan));
  }
  return points;
}
