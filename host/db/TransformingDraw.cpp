#include "host/db/TransformingDraw.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

// Chords of 1/140 of a circle keep within 1/4000 of the radius.
constexpr int kChordsPerCircle = 140;
constexpr double kPi = std::numbers::pi;

} // namespace

void TransformingDraw::point(const AcGePoint3d& at) {
  worldPoint(m_matrices.empty() ? at : m_matrices.back() * at);
}

void TransformingDraw::polyline(std::span<const AcGePoint3d> points) {
  if (m_matrices.empty()) {
    worldPolyline(points);
    return;
  }
  std::vector<AcGePoint3d> moved;
  moved.reserve(points.size());
  for (const AcGePoint3d& p : points) moved.push_back(m_matrices.back() * p);
  worldPolyline(moved);
}

void TransformingDraw::circularArc(const AcGePoint3d& centre, double radius, const AcGeVector3d& normal,
                                   const AcGeVector3d& xAxis, double startAngle, double sweep) {
  if (!std::isfinite(radius) || !std::isfinite(startAngle) || !std::isfinite(sweep)) return;
  sweep = std::clamp(sweep, 0.0, 2 * kPi);
  startAngle = std::remainder(startAngle, 2 * kPi);
  const AcGeVector3d yAxis = normal.crossProduct(xAxis);
  const auto at = [&](double angle) {
    return centre + xAxis * (radius * std::cos(angle)) + yAxis * (radius * std::sin(angle));
  };
  m_points.clear();
  m_points.push_back(at(startAngle));
  // Even steps, with the quarter points in between, so that a box around the points is the arc's own.
  const int steps = std::max(2, static_cast<int>(std::ceil(sweep / (2 * kPi) * kChordsPerCircle)));
  double previous = startAngle;
  for (int i = 1; i <= steps; ++i) {
    const double next = startAngle + sweep * i / steps;
    const double quarter = std::ceil(previous / (kPi / 2) + 1e-9) * (kPi / 2);
    if (quarter < next) m_points.push_back(at(quarter));
    m_points.push_back(at(next));
    previous = next;
  }
  polyline(std::vector(m_points));
}

void TransformingDraw::text(const AcGePoint3d& at, const AcGeVector3d& normal, const AcGeVector3d& direction,
                            double height, double widthFactor, const CString& text) {
  AcGePoint3d start = at;
  AcGeVector3d along = direction * textWidth(text, height, widthFactor);
  AcGeVector3d up = normal.crossProduct(direction) * height;
  if (!m_matrices.empty()) {
    start.transformBy(m_matrices.back());
    along.transformBy(m_matrices.back());
    up.transformBy(m_matrices.back());
  }
  worldText(start, along, up, text);
}

void TransformingDraw::pushModelTransform(const AcGeMatrix3d& matrix) {
  m_matrices.push_back(m_matrices.empty() ? matrix : m_matrices.back() * matrix);
}

void TransformingDraw::popModelTransform() {
  if (!m_matrices.empty()) m_matrices.pop_back();
}

double TransformingDraw::textWidth(const CString& text, double height, double widthFactor) {
  double width = 0;
  for (const wchar_t c : text.View()) width += c >= 0x2E80 ? 1.0 : 0.7;
  return width * height * widthFactor;
}
