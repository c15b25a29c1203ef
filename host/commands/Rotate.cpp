// ROTATE: turns entities about a point, by an angle or from one direction to another.
#include "host/commands/CommandFunctions.h"
#include "host/commands/ForEachSelected.h"
#include "host/commands/SelectionPreview.h"
#include "host/db/AcDbEntity.h"
#include "host/ed/EdPrompts.h"
#include "host/ed/acutPrintf.h"

#include <cmath>

namespace commands {
namespace {

AcGeMatrix3d turn(double angle, const AcGePoint3d& about) {
  return AcGeMatrix3d::rotation(angle, AcGeVector3d::kZAxis, about);
}

ed::Question angleQuestion(const wchar_t* prompt, const wchar_t* keywords,
                           const std::vector<AcDbObjectId>& ids, const AcGePoint3d& base, double reference) {
  ed::Question question{prompt, keywords, RSG_NONULL, base};
  question.preview = PreviewThrough(ids, [=](const AcGePoint3d& cursor) {
    return turn(std::atan2(cursor.y - base.y, cursor.x - base.x) - reference, base);
  });
  return question;
}

// The direction that is to come to stand elsewhere: an angle, or two points.
std::optional<double> askReference(const AcGePoint3d& base) {
  const auto first = ed::AskAngle({L"指定参照角（度），或参照方向的第一点:", {}, RSG_NONULL, base});
  if (!first.hasValue()) return std::nullopt;
  if (!first.isPoint) return first.real;
  const auto second = ed::AskPoint({L"指定参照方向的第二点:", {}, RSG_NONULL, first.point});
  if (!second.hasValue()) return std::nullopt;
  return std::atan2(second.point.y - first.point.y, second.point.x - first.point.x);
}

std::optional<double> askAngle(const std::vector<AcDbObjectId>& ids, const AcGePoint3d& base) {
  const auto angle =
      ed::AskAngle(angleQuestion(L"指定旋转角度（度），或 [参照(R)]:", L"Reference", ids, base, 0));
  if (angle.hasValue()) return angle.real;
  if (!angle.isKeyword(L"Reference")) return std::nullopt;
  const auto reference = askReference(base);
  if (!reference) return std::nullopt;
  const auto target = ed::AskAngle(angleQuestion(L"指定新角度（度）:", L"", ids, base, *reference));
  if (!target.hasValue()) return std::nullopt;
  return target.real - *reference;
}

} // namespace

void Rotate() {
  const auto ids = AskEntities();
  if (ids.empty()) return;
  const auto base = ed::AskPoint({L"指定基点:", {}, RSG_NONULL, {}});
  if (!base.hasValue()) return;
  const auto angle = askAngle(ids, base.point);
  if (!angle) return;
  const auto matrix = turn(*angle, base.point);
  const int turned =
      ForEachForWrite(ids, [&](AcDbEntity& entity) { return entity.transformBy(matrix) == Acad::eOk; });
  acutPrintf(L"\n旋转了 %d 个。\n", turned);
}

} // namespace commands
