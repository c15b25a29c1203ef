#include "host/scene/Cubic.h"

namespace scene {
namespace {

AcGePoint2d mix(const AcGePoint2d& a, const AcGePoint2d& b, double t) {
  return {a.x + (b.x - a.x) * t, a.y + (b.y - a.y) * t};
}

// The polar form: at(t) with each of the three factors at a parameter of its own.
AcGePoint2d blossom(const Cubic& c, double r, double s, double t) {
  const AcGePoint2d a = mix(mix(c.start, c.control1, r), mix(c.control1, c.control2, r), s);
  const AcGePoint2d b = mix(mix(c.control1, c.control2, r), mix(c.control2, c.end, r), s);
  return mix(a, b, t);
}

} // namespace

Cubic Cubic::between(double from, double to) const {
  return {blossom(*this, from, from, from), blossom(*this, from, from, to), blossom(*this, from, to, to),
          blossom(*this, to, to, to)};
}

} // namespace scene
