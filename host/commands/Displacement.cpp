#include "host/commands/Displacement.h"

#include "host/commands/SelectionPreview.h"
#include "host/ed/EdPrompts.h"

namespace commands {
namespace {

ed::Question targetQuestion(const wchar_t* prompt, const std::vector<AcDbObjectId>& ids,
                            const AcGePoint3d& base) {
  ed::Question question{prompt, {}, 0, base};
  question.preview = PreviewThrough(
      ids, [base](const AcGePoint3d& cursor) { return AcGeMatrix3d::translation(cursor - base); });
  return question;
}

} // namespace

std::optional<Displacement> AskDisplacement(const std::vector<AcDbObjectId>& ids) {
  const auto base = ed::AskPoint({L"指定基点或 [位移(D)] <位移>:", L"Displacement", 0, {}});
  if (base.isCancelled()) return std::nullopt;
  if (!base.hasValue()) {
    const auto vector = ed::AskPoint({L"指定位移 dx,dy 或 dx,dy,dz:", {}, RSG_NONULL, {}});
    if (!vector.hasValue()) return std::nullopt;
    return Displacement{vector.point.asVector(), {}};
  }
  const auto target = ed::AskPoint(targetQuestion(L"指定第二个点或 <用第一个点作为位移>:", ids, base.point));
  if (target.isCancelled()) return std::nullopt;
  if (target.isNone()) return Displacement{base.point.asVector(), {}};
  return Displacement{target.point - base.point, base.point};
}

std::optional<AcGeVector3d> AskAnotherTarget(const std::vector<AcDbObjectId>& ids, const AcGePoint3d& base,
                                             bool& cancelled) {
  const auto target = ed::AskPoint(targetQuestion(L"指定下一个目标点或 <结束>:", ids, base));
  cancelled = target.isCancelled();
  if (!target.hasValue()) return std::nullopt;
  return target.point - base;
}

} // namespace commands
