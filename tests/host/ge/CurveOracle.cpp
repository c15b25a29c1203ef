// Sampling of one curve against the signed distance from the other.
#include "tests/host/ge/CurveOracle.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace oracle {
namespace {

constexpr int kSamples = 40;
constexpr Real kTwoPi = 2 * std::numbers::pi_v<Real>;

Vec operator-(const Vec& p, const Vec& q) {
  return {p.x - q.x, p.y - q.y};
}

Real Size(const Vec& v) {
  return std::sqrt(v.x * v.x + v.y * v.y);
}

template <class Function> Real Bisect(const Function& f, Real low, Real high) {
  const bool negative = f(low) < 0;
  for (int i = 0; i < 55; ++i) {
    const Real middle = (low + high) / 2;
    ((f(middle) < 0) == negative ? low : high) = middle;
  }
  return (low + high) / 2;
}

// Where the distance from zero is least between two places, the function being of one sign at both.
template <class Function> Real LeastBetween(const Function& f, Real low, Real high) {
  const Real sign = f(low) < 0 ? -1 : 1;
  for (int i = 0; i < 40; ++i) {
    const Real third = (high - low) / 3;
    if (sign * f(low + third) < sign * f(high - third))
      high -= third;
    else
      low += third;
  }
  return (low + high) / 2;
}

// The samples themselves need no more than double precision; what they bracket is refined with all digits.
struct Samples {
  double t[kSamples + 1];
  double value[kSamples + 1];

  Samples(const Part& a, const Part& b, Real size) {
    const auto from = static_cast<double>(a.from);
    const auto step = static_cast<double>((a.to - a.from) / kSamples);
    // Relative to the other part, so that coordinates far from the origin cost no digits.
    const Vec base = b.isArc ? b.center : b.a;
    const Vec along = b.b - b.a;
    const auto dx = static_cast<double>(along.x / Size(along));
    const auto dy = static_cast<double>(along.y / Size(along));
    const auto radius = static_cast<double>(b.radius);
    for (int i = 0; i <= kSamples; ++i) {
      t[i] = i == kSamples ? static_cast<double>(a.to) : from + step * i;
      const Place p = At(a, t[i], base);
      value[i] = b.isArc ? std::sqrt(p.x * p.x + p.y * p.y) - radius : p.y * dx - p.x * dy;
      // Near zero the sign needs all digits.
      if (std::fabs(value[i]) < 1e-12 * static_cast<double>(size))
        value[i] = static_cast<double>(b.Side(a.At(t[i])));
    }
  }

 private:
  struct Place {
    double x;
    double y;
  };

  static Place At(const Part& a, double t, const Vec& base) {
    const Vec from = (a.isArc ? a.center : a.a) - base;
    const auto x = static_cast<double>(from.x);
    const auto y = static_cast<double>(from.y);
    if (!a.isArc)
      return {x + static_cast<double>(a.b.x - a.a.x) * t, y + static_cast<double>(a.b.y - a.a.y) * t};
    const double angle = static_cast<double>(a.start) + static_cast<double>(a.sweep) * t;
    const auto radius = static_cast<double>(a.radius);
    return {x + radius * std::cos(angle), y + radius * std::sin(angle)};
  }
};

// All places where the first part changes sides: between samples, or around an extremum between them.
template <class Function> std::vector<Real> SignChanges(const Samples& samples, const Function& f) {
  std::vector<Real> roots;
  const auto change = [&](Real low, Real high) { roots.push_back(Bisect(f, low, high)); };
  const auto& value = samples.value;
  for (int i = 0; i < kSamples; ++i) {
    if ((value[i] < 0) != (value[i + 1] < 0)) change(samples.t[i], samples.t[i + 1]);
  }
  for (int i = 0; i <= kSamples; ++i) {
    const int left = std::max(i - 1, 0);
    const int right = std::min(i + 1, kSamples);
    const bool sameSign = (value[left] < 0) == (value[i] < 0) && (value[right] < 0) == (value[i] < 0);
    const double least = std::fabs(value[i]);
    if (!sameSign || std::fabs(value[left]) < least || std::fabs(value[right]) < least) continue;
    const Real place = LeastBetween(f, samples.t[left], samples.t[right]);
    if ((f(place) < 0) == (value[i] < 0)) continue;
    change(samples.t[left], place);
    change(place, samples.t[right]);
  }
  return roots;
}

template <class Function> Real SlopeAt(const Part& part, const Function& f, Real t) {
  const Real step = 1e-5L * (part.to - part.from);
  return std::fabs(f(t + step) - f(t - step)) / Size(part.At(t + step) - part.At(t - step));
}

void ExploreParts(const Part& a, const Part& b, Real size, Findings& findings) {
  if (!(a.Length() > 0) || !(b.Length() > 0)) return;
  const auto side = [&](Real t) { return b.Side(a.At(t)); };
  const Real margin = 1e-6L * size;
  const Samples samples(a, b, size);
  for (const Real t : SignChanges(samples, side)) {
    const Vec p = a.At(t);
    const Real slope = SlopeAt(a, side, t);
    const Real steps = std::min(t - a.from, a.to - t) * a.Length() / (a.to - a.from);
    const bool nearOwnEnd = (a.hasStart || a.hasEnd) && steps < margin;
    if (slope < 1e-3L || nearOwnEnd || b.Beyond(p) > -margin) continue;
    findings.certain.push_back({p, slope});
  }
  if (a.isArc != b.isArc) return;
  int together = 0;
  for (int i = 0; i <= kSamples && together < 4; ++i) {
    if (std::fabs(samples.value[i]) > 1e-12 * static_cast<double>(size)) {
      together = 0;
      continue;
    }
    const Vec p = a.At(samples.t[i]);
    together = std::fabs(b.Side(p)) < 1e-14L * size && b.Beyond(p) < -margin ? together + 1 : 0;
  }
  if (together >= 4) findings.overlap = true;
}

void AddEndsOn(const Shape& ends, const Shape& other, Findings& findings) {
  const Real slack = 1e-15L * std::max(ends.size, other.size);
  for (const Part& part : ends.parts) {
    if (part.hasStart && Distance(other, part.At(0), slack) <= slack)
      findings.certain.push_back({part.At(0), 1});
    if (part.hasEnd && Distance(other, part.At(1), slack) <= slack)
      findings.certain.push_back({part.At(1), 1});
  }
}

Part PartOf(const ge::CurvePiece& piece, ge::CurveKind kind) {
  Part part;
  part.a = {piece.start.x, piece.start.y};
  part.b = {piece.end.x, piece.end.y};
  part.isArc = piece.isArc;
  if (!piece.isArc) return part;
  if (kind != ge::CurveKind::kPolyline) {
    part.center = {piece.arc.center.x, piece.arc.center.y};
    part.radius = piece.arc.radius;
    part.start = piece.arc.startAngle;
    part.sweep = piece.arc.sweep;
    return part;
  }
  // A bulge by its definition: the height of the arc over the middle of the chord is bulge times half the
  // chord.
  const Vec chord = part.b - part.a;
  const Real half = Size(chord) / 2;
  const Real height = piece.bulge * half;
  const Real signedRadius = (half * half + height * height) / (2 * height);
  const Vec up = {chord.y / (2 * half), -chord.x / (2 * half)}; // from the chord towards a positive bulge
  const Real down = signedRadius - height;
  part.center = {(part.a.x + part.b.x) / 2 - up.x * down, (part.a.y + part.b.y) / 2 - up.y * down};
  part.radius = std::fabs(signedRadius);
  part.start = std::atan2(part.a.y - part.center.y, part.a.x - part.center.x);
  part.sweep = 4 * std::atan(static_cast<Real>(piece.bulge));
  return part;
}

} // namespace

Vec Part::At(Real t) const {
  if (!isArc) return {a.x + (b.x - a.x) * t, a.y + (b.y - a.y) * t};
  const Real angle = start + sweep * t;
  return {center.x + radius * std::cos(angle), center.y + radius * std::sin(angle)};
}

Real Part::Length() const {
  return isArc ? radius * std::fabs(sweep) : Size(b - a);
}

Real Part::Side(const Vec& p) const {
  if (isArc) return Size(p - center) - radius;
  const Vec d = b - a;
  return ((p.y - a.y) * d.x - (p.x - a.x) * d.y) / Size(d);
}

Real Part::Beyond(const Vec& p) const {
  const Real length = Length();
  if (!hasStart && !hasEnd) return -length;
  if (isArc) {
    // The angle from the arc's middle decides.
    const Real middle = start + sweep / 2;
    const Real off = std::fabs(std::remainder(std::atan2(p.y - center.y, p.x - center.x) - middle, kTwoPi));
    return (off - std::fabs(sweep) / 2) * radius;
  }
  const Vec d = b - a;
  const Real along = ((p.x - a.x) * d.x + (p.y - a.y) * d.y) / Size(d);
  Real beyond = -length;
  if (hasStart) beyond = std::max(beyond, -along);
  if (hasEnd) beyond = std::max(beyond, along - length);
  return beyond;
}

Shape ShapeOf(const ge::Curve& curve, bool extended) {
  Shape shape;
  const auto pieces = curve.Pieces();
  // Vertices that coincide at an end are no segment to extend.
  std::size_t first = 0;
  std::size_t last = pieces.size() - 1;
  while (first < last && pieces[first].start.distanceTo(pieces[first].end) == 0) ++first;
  while (last > first && pieces[last].start.distanceTo(pieces[last].end) == 0) --last;
  for (std::size_t i = 0; i < pieces.size(); ++i) {
    Part part = PartOf(pieces[i], curve.Kind());
    const bool open = extended && !curve.IsClosed();
    if (open && i == first) part.hasStart = false;
    if (open && i == last) part.hasEnd = false;
    if (part.isArc) {
      const bool whole = !part.hasStart || !part.hasEnd || std::fabs(part.sweep) > kTwoPi - 1e-12L;
      if (whole) {
        part.hasStart = part.hasEnd = false;
        part.to = kTwoPi / std::fabs(part.sweep);
      }
    } else {
      if (!part.hasStart) part.from = -1000;
      if (!part.hasEnd) part.to = 1001;
    }
    for (const Vec& p : {part.a, part.b, part.center})
      shape.size = std::max({shape.size, std::fabs(p.x) + part.radius, std::fabs(p.y) + part.radius});
    shape.parts.push_back(part);
  }
  return shape;
}

Real Distance(const Shape& shape, const Vec& p, Real slack) {
  Real least = INFINITY;
  for (const Part& part : shape.parts) {
    if (!(part.Length() > 0))
      least = std::min(least, Size(p - part.At(0)));
    else if (part.Beyond(p) <= slack)
      least = std::min(least, std::fabs(part.Side(p)));
    // Near an end at a slope the foot may lie beyond.
    if (part.hasStart) least = std::min(least, Size(p - part.At(0)));
    if (part.hasEnd) least = std::min(least, Size(p - part.At(1)));
  }
  return least;
}

Findings Explore(const Shape& first, const Shape& second) {
  Findings findings;
  const Real size = std::max(first.size, second.size);
  for (const Part& a : first.parts) {
    for (const Part& b : second.parts) ExploreParts(a, b, size, findings);
  }
  AddEndsOn(first, second, findings);
  AddEndsOn(second, first, findings);
  return findings;
}

bool RunTogetherAt(const Shape& first, const Shape& second, const Vec& p, Real slack) {
  for (const Part& part : first.parts) {
    const Real length = part.Length();
    if (!(length > 0) || std::fabs(part.Side(p)) > slack || part.Beyond(p) > slack) continue;
    Real t = 0;
    if (part.isArc) {
      const Real turned = std::atan2(p.y - part.center.y, p.x - part.center.x) - part.start;
      t = std::remainder(turned, kTwoPi) / part.sweep;
      if (t < -slack / length) t += kTwoPi / std::fabs(part.sweep);
    } else {
      const Vec d = part.b - part.a;
      t = ((p.x - part.a.x) * d.x + (p.y - part.a.y) * d.y) / (length * length);
    }
    for (const Real step : {-0.01L, 0.01L}) {
      const Vec q = part.At(t + step);
      if (part.Beyond(q) <= slack && Distance(second, q, slack) <= slack) return true;
    }
  }
  return false;
}

bool RunTogether(const Shape& first, const Shape& second, Real slack) {
  for (const Part& part : first.parts) {
    if (!(part.Length() > 0)) continue;
    for (int i = 0; i <= 4 * kSamples; ++i) {
      const Vec p = part.At(part.from + (part.to - part.from) * i / (4 * kSamples));
      if (Distance(second, p, slack) <= slack && RunTogetherAt(first, second, p, slack)) return true;
    }
  }
  return false;
}

} // namespace oracle
