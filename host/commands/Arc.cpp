// ARC: through three points; by start, centre and end or angle; by start, end and angle or radius.
#include "host/commands/AppendEntity.h"
#include "host/commands/CommandFunctions.h"
#include "host/db/AcDbArc.h"
#include "host/ed/EdPrompts.h"
#include "host/ed/EdSession.h"
#include "host/ge/AcGeCircArc3d.h"
#include "host/ge/AcGePlane.h"

#include <cmath>
#include <numbers>

namespace commands {
namespace {

using std::numbers::pi;

constexpr wchar_t kNoArc[] = L"这些值不成圆弧。";

void refuse(const wchar_t* reason, const wchar_t* expected) {
  EdSession::instance().refuse(reason, expected);
}

double DirectionTo(const AcGePoint3d& from, const AcGePoint3d& to) {
  return std::atan2(to.y - from.y, to.x - from.x);
}

// Anticlockwise, in the plane at the centre's height.
void append(const AcGePoint3d& centre, double radius, double startAngle, double endAngle) {
  if (!(radius > 0) || !std::isfinite(radius) ||
      std::fabs(std::remainder(endAngle - startAngle, 2 * pi)) < 1e-12) {
    refuse(kNoArc, L"半径大于零、起点和端点不同的圆弧");
    return;
  }
  AppendEntity(std::make_unique<AcDbArc>(centre, AcGeVector3d::kZAxis, radius, startAngle, endAngle));
}

// From the start over an angle, negative for clockwise.
void appendSweep(const AcGePoint3d& centre, double radius, double startAngle, double sweep) {
  if (sweep < 0)
    append(centre, radius, startAngle + sweep, startAngle);
  else
    append(centre, radius, startAngle, startAngle + sweep);
}

// An entity's angles count from its plane's own axis.
std::unique_ptr<AcDbArc> entityOf(const AcGeCircArc3d& arc) {
  const double offset = arc.refVec().angleOnPlane(AcGePlane(arc.center(), arc.normal()));
  return std::make_unique<AcDbArc>(arc.center(), arc.normal(), arc.radius(), arc.startAng() + offset,
                                   arc.endAng() + offset);
}

void appendThrough(const AcGePoint3d& start, const AcGePoint3d& on, const AcGePoint3d& end) {
  AcGeCircArc3d arc;
  AcGeError status = AcGe::eOk;
  arc.set(start, on, end, status);
  if (status != AcGe::eOk) {
    refuse(L"三点在一条直线上，没有圆弧。", L"不共线的三点");
    return;
  }
  if (start.z == on.z && on.z == end.z) {
    const double from = DirectionTo(arc.center(), start);
    const double to = DirectionTo(arc.center(), end);
    const AcGePoint3d centre(arc.center().x, arc.center().y, start.z);
    if (arc.normal().z > 0)
      append(centre, arc.radius(), from, to);
    else
      append(centre, arc.radius(), to, from);
    return;
  }
  AppendEntity(entityOf(arc));
}

// The start and the centre are known.
void askEndAbout(const AcGePoint3d& start, const AcGePoint3d& centre) {
  const double radius = (AcGePoint3d(start.x, start.y, centre.z) - centre).length();
  const double from = DirectionTo(centre, start);
  ed::Question question{L"指定圆弧的端点或 [角度(A)]:", L"Angle", RSG_NONULL, centre};
  question.preview = [&](AcGiWorldDraw& draw, const AcGePoint3d& cursor) {
    AcDbArc(centre, AcGeVector3d::kZAxis, radius, from, DirectionTo(centre, cursor)).worldDraw(draw);
  };
  const auto end = ed::AskPoint(question);
  if (end.hasValue()) append(centre, radius, from, DirectionTo(centre, end.point));
  if (!end.isKeyword(L"Angle")) return;
  const auto sweep = ed::AskAngle({L"指定包含角:", {}, RSG_NONULL, centre});
  if (sweep.hasValue()) appendSweep(centre, radius, from, sweep.real);
}

// The start and the end are known: the centre lies left of the way from start to end for an anticlockwise
// arc of less than half a turn.
void askBetween(const AcGePoint3d& start, const AcGePoint3d& end) {
  const AcGeVector3d chord(end.x - start.x, end.y - start.y, 0);
  const double length = chord.length();
  if (length == 0) return refuse(kNoArc, L"起点和端点不同的圆弧");
  const AcGePoint3d middle((start.x + end.x) / 2, (start.y + end.y) / 2, start.z);
  const AcGeVector3d left(-chord.y / length, chord.x / length, 0);
  const auto how = ed::AskKeyword({L"输入选项 [角度(A)/半径(R)]:", L"Angle Radius", RSG_NONULL, {}});
  if (how.isKeyword(L"Angle")) {
    const auto sweep = ed::AskAngle({L"指定包含角:", {}, RSG_NONULL, start});
    if (!sweep.hasValue()) return;
    const double half = sweep.real / 2;
    if (std::fabs(std::sin(half)) < 1e-12) return refuse(kNoArc, L"不是整圈的包含角");
    const AcGePoint3d centre = middle + left * (length / 2 * std::cos(half) / std::sin(half));
    const double radius = std::fabs(length / 2 / std::sin(half));
    appendSweep(centre, radius, DirectionTo(centre, start), sweep.real);
  } else if (how.isKeyword(L"Radius")) {
    const auto radius = ed::AskDistance({L"指定半径:", {}, RSG_NONULL | RSG_NOZERO, start});
    if (!radius.hasValue()) return;
    const double square = radius.real * radius.real - length * length / 4;
    if (square < 0) return refuse(L"半径小于弦长的一半。", L"较大的半径；负数取大弧");
    const double height = std::copysign(std::sqrt(square), radius.real);
    const AcGePoint3d centre = middle + left * height;
    append(centre, std::fabs(radius.real), DirectionTo(centre, start), DirectionTo(centre, end));
  }
}

void askFrom(const AcGePoint3d& start) {
  const auto second =
      ed::AskPoint({L"指定圆弧的第二个点或 [圆心(C)/端点(E)]:", L"Center End", RSG_NONULL, start});
  if (second.isKeyword(L"Center")) {
    const auto centre = ed::AskPoint({L"指定圆弧的圆心:", {}, RSG_NONULL, start});
    if (centre.hasValue()) askEndAbout(start, centre.point);
  } else if (second.isKeyword(L"End")) {
    const auto end = ed::AskPoint({L"指定圆弧的端点:", {}, RSG_NONULL, start});
    if (end.hasValue()) askBetween(start, end.point);
  } else if (second.hasValue()) {
    ed::Question question{L"指定圆弧的端点:", {}, RSG_NONULL, second.point};
    question.preview = [&](AcGiWorldDraw& draw, const AcGePoint3d& cursor) {
      const AcGeCircArc3d arc(start, second.point, cursor);
      if (arc.radius() <= 0) return;
      entityOf(arc)->worldDraw(draw);
    };
    const auto end = ed::AskPoint(question);
    if (end.hasValue()) appendThrough(start, second.point, end.point);
  }
}

} // namespace

void Arc() {
  const auto start = ed::AskPoint({L"指定圆弧的起点或 [圆心(C)]:", L"Center", RSG_NONULL, {}});
  if (start.hasValue()) return askFrom(start.point);
  if (!start.isKeyword(L"Center")) return;
  const auto centre = ed::AskPoint({L"指定圆弧的圆心:", {}, RSG_NONULL, {}});
  if (!centre.hasValue()) return;
  const auto from = ed::AskPoint({L"指定圆弧的起点:", {}, RSG_NONULL, centre.point});
  if (from.hasValue()) askEndAbout(from.point, centre.point);
}

} // namespace commands
