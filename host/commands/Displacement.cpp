#include "host/commands/Displacement.h"

#include "host/commands/SelectionPreview.h"

namespace commands {

ed::Question TargetQuestion(const CString& prompt, const wchar_t* keywords,
                            const std::vector<AcDbObjectId>& ids, const AcGePoint3d& base) {
  ed::Question question{prompt, keywords, 0, base};
  question.preview = PreviewThrough(
      ids, [base](const AcGePoint3d& cursor) { return AcGeMatrix3d::translation(cursor - base); });
  return question;
}

std::optional<AcGeVector3d> AskVector() {
  const auto vector = ed::AskPoint({L"指定位移 dx,dy 或 dx,dy,dz:", {}, RSG_NONULL, {}});
  return vector.hasValue() ? std::optional(vector.point.asVector()) : std::nullopt;
}

std::optional<AcGeVector3d> AskDisplacement(const std::vector<AcDbObjectId>& ids) {
  const auto base = ed::AskPoint({L"指定基点或 [位移(D)] <位移>:", L"Displacement", 0, {}});
  if (base.isCancelled()) return std::nullopt;
  if (!base.hasValue()) return AskVector();
  const auto target =
      ed::AskPoint(TargetQuestion(L"指定第二个点或 <用第一个点作为位移>:", L"", ids, base.point));
  if (target.isCancelled()) return std::nullopt;
  return target.isNone() ? base.point.asVector() : target.point - base.point;
}

} // namespace commands
