#include "host/db/EntityMath.h"

#include "host/db/DxfDecodeContext.h"
#include "host/db/DxfRecordEditor.h"
#include "host/ge/ArbitraryAxis.h"

#include <cmath>
#include <numbers>

namespace {

constexpr double kPi = std::numbers::pi;

bool isWorldNormal(const AcGeVector3d& n) {
  return n.x == 0 && n.y == 0 && n.z == 1;
}

} // namespace

bool entity::isFinite(const AcGePoint3d& p) {
  return std::isfinite(p.x) && std::isfinite(p.y) && std::isfinite(p.z);
}

bool entity::isFinite(const AcGeVector3d& v) {
  return std::isfinite(v.x) && std::isfinite(v.y) && std::isfinite(v.z);
}

bool entity::isFinite(const AcGeMatrix3d& matrix) {
  for (const auto& row : matrix.entry)
    for (const double number : row)
      if (!std::isfinite(number)) return false;
  return true;
}

AcGePoint3d entity::toWorld(const AcGePoint3d& p, const AcGeVector3d& normal) {
  return isWorldNormal(normal) ? p : AcGeMatrix3d::planeToWorld(normal) * p;
}

AcGePoint3d entity::toObject(const AcGePoint3d& p, const AcGeVector3d& normal) {
  return isWorldNormal(normal) ? p : AcGeMatrix3d::worldToPlane(normal) * p;
}

AcGeVector3d entity::xAxis(const AcGeVector3d& normal) {
  return isWorldNormal(normal) ? AcGeVector3d(1, 0, 0) : ge::ArbitraryAxis(normal).xAxis;
}

AcGeVector3d entity::transformedNormal(const AcGeVector3d& normal, const AcGeMatrix3d& matrix) {
  // Through the plane's own axes, so that a plane that is sheared keeps its true normal.
  const ge::ObjectAxes axes = ge::ArbitraryAxis(normal);
  const AcGeVector3d x = matrix * axes.xAxis;
  const AcGeVector3d y = matrix * axes.yAxis;
  AcGeVector3d moved = x.crossProduct(y);
  if (matrix.det() < 0) moved = -moved;
  return moved.isZeroLength() || !isFinite(moved) ? normal : moved.normal();
}

double entity::fromDegrees(double degrees) {
  return degrees * (kPi / 180);
}

void entity::writeDegrees(DxfRecordEditor& editor, int code, double radians, bool onlyIfSet) {
  double degrees = radians * (180 / kPi);
  // Turning degrees to radians and back must not change the digits that were read.
  const double rounded = std::round(degrees * 1e10) / 1e10;
  if (fromDegrees(rounded) == radians) degrees = rounded;
  if (const auto kept = editor.realAt(code); kept && fromDegrees(*kept) == radians) degrees = *kept;
  if (onlyIfSet)
    editor.real(code, degrees, 0.0);
  else
    editor.real(code, degrees);
}

double entity::angleOf(const AcGeVector3d& v) {
  const double angle = std::atan2(v.y, v.x);
  return angle < 0 ? angle + 2 * kPi : angle;
}

double entity::sweep(double start, double end) {
  double turn = std::fmod(end - start, 2 * kPi);
  if (turn <= 0) turn += 2 * kPi;
  return turn;
}

AcGePoint3d entity::onCircle(const AcGePoint3d& objectCentre, const AcGeVector3d& normal, double radius,
                             double angle) {
  return toWorld(AcGePoint3d(objectCentre.x + radius * std::cos(angle),
                             objectCentre.y + radius * std::sin(angle), objectCentre.z),
                 normal);
}

void entity::readVector(const DxfTag& tag, int code, AcGeVector3d& vector, const DxfDecodeContext& context) {
  if (tag.code != code && tag.code != code + 10 && tag.code != code + 20) return;
  AcGeVector3d changed = vector;
  (tag.code == code ? changed.x : tag.code == code + 10 ? changed.y : changed.z) = context.real(tag);
  vector = changed;
}

entity::FieldScope::FieldScope(DxfTags tags) {
  std::size_t end = 0;
  while (end < tags.size() && tags[end].code < 1000 && tags[end].code != 101) ++end;
  std::size_t begin = 0;
  for (std::size_t i = 0; i < end; ++i)
    if (tags[i].code == 102 && tags[i].value == "}") begin = i + 1; // groups stand ahead of the geometry
  for (std::size_t i = begin; i < end; ++i) {
    if (tags[i].code == 100 && tags[i].value.starts_with("AcDbEntity")) {
      begin = i + 1;
      break;
    }
  }
  m_tags = tags.subspan(begin, end - begin);
}
