// COPY: copies entities to one place after the other, or in a row.
#include "host/commands/CommandFunctions.h"
#include "host/commands/Displacement.h"
#include "host/commands/EntityCopies.h"
#include "host/commands/ForEachSelected.h"
#include "host/commands/SelectionPreview.h"
#include "host/ed/EdSession.h"
#include "host/ed/SystemVariables.h"
#include "host/ed/acutPrintf.h"

namespace commands {
namespace {

constexpr long kMaxInRow = 32767;             // as many as an insertion may have in a row
constexpr std::size_t kMaxCopies = 1'000'000; // at once: a slip must not fill the memory
constexpr long kCopiesOnce = 1;               // of COPYMODE

// Escape gives nothing; otherwise whether it goes on.
bool askMode() {
  const bool once = SystemVariables::integer(L"COPYMODE") == kCopiesOnce;
  const auto mode =
      ed::AskKeyword({CString(L"输入复制模式 [单个(S)/多个(M)] <") + (once ? L"单个" : L"多个") + L">:",
                      L"Single Multiple",
                      0,
                      {}});
  if (mode.isKeyword(L"Single")) SystemVariables::set(L"COPYMODE", kCopiesOnce);
  if (mode.isKeyword(L"Multiple")) SystemVariables::set(L"COPYMODE", 0L);
  return !mode.isCancelled();
}

std::vector<AcGeMatrix3d> row(const AcGeVector3d& step, long count) {
  std::vector<AcGeMatrix3d> matrices;
  for (long i = 1; i < count; ++i)
    matrices.push_back(AcGeMatrix3d::translation(step * static_cast<double>(i)));
  return matrices;
}

// A row of copies: the second point is that of the next copy, or that of the last. Nothing for Escape.
std::optional<std::vector<AcGeMatrix3d>> askRow(const std::vector<AcDbObjectId>& ids,
                                                const AcGePoint3d& base) {
  ed::Answer count;
  for (;;) {
    count = ed::AskInteger({L"输入一排的项目数（含原来的一个）:", {}, RSG_NONULL, {}});
    if (count.isCancelled()) return std::nullopt;
    if (count.integer < 2 || count.integer > kMaxInRow)
      EdSession::instance().refuse(L"这不是一排的项目数。", L"2 至 32767 的整数");
    else if (ids.size() * static_cast<std::size_t>(count.integer - 1) > kMaxCopies)
      EdSession::instance().refuse(L"一次复制的实体太多。", L"较小的数，一次至多复制 1000000 个");
    else
      break;
  }
  const auto question = [&](const wchar_t* prompt, const wchar_t* keywords, double share) {
    ed::Question asked{prompt, keywords, RSG_NONULL, base};
    asked.preview = PreviewThroughAll(
        ids, [=, n = count.integer](const AcGePoint3d& cursor) { return row((cursor - base) * share, n); });
    return asked;
  };
  const double fit = 1.0 / static_cast<double>(count.integer - 1);
  const auto next = ed::AskPoint(question(L"指定第二个点或 [布满(F)]:", L"Fit", 1));
  if (next.hasValue()) return row(next.point - base, count.integer);
  if (!next.isKeyword(L"Fit")) return std::nullopt;
  const auto last = ed::AskPoint(question(L"指定最后一个的位置:", L"", fit));
  if (!last.hasValue()) return std::nullopt;
  return row((last.point - base) * fit, count.integer);
}

// The first copy, with Enter for the base point as displacement. Whether more are to follow.
bool copyFirst(EntityCopies& copies, const std::vector<AcDbObjectId>& ids, const AcGePoint3d& base) {
  const auto target =
      ed::AskPoint(TargetQuestion(L"指定第二个点或 [阵列(A)] <用第一个点作为位移>:", L"Array", ids, base));
  if (target.isCancelled()) return false;
  if (target.isNone()) {
    copies.add({AcGeMatrix3d::translation(base.asVector())});
    return false;
  }
  if (target.hasValue()) return copies.add({AcGeMatrix3d::translation(target.point - base)});
  const auto matrices = askRow(ids, base);
  return matrices && copies.add(*matrices);
}

void copyMore(EntityCopies& copies, const std::vector<AcDbObjectId>& ids, const AcGePoint3d& base) {
  for (;;) {
    const auto target = ed::AskPoint(
        TargetQuestion(L"指定第二个点或 [阵列(A)/退出(E)/放弃(U)] <退出>:", L"Array Exit Undo", ids, base));
    if (target.isCancelled() || target.isNone() || target.isKeyword(L"Exit")) return;
    if (target.isKeyword(L"Undo")) {
      acutPrintText(copies.undo() ? L"\n已放弃上一步复制。\n" : L"\n没有可放弃的复制。\n");
    } else if (target.isKeyword(L"Array")) {
      const auto matrices = askRow(ids, base);
      if (!matrices) return;
      copies.add(*matrices);
    } else {
      copies.add({AcGeMatrix3d::translation(target.point - base)});
    }
  }
}

} // namespace

void Copy() {
  const auto ids = AskEntities();
  if (ids.empty()) return;
  EntityCopies copies(ids);
  ed::Answer base;
  do {
    base = ed::AskPoint({L"指定基点或 [位移(D)/模式(O)] <位移>:", L"Displacement mOde", 0, {}});
  } while (base.isKeyword(L"mOde") && askMode());
  if (base.isCancelled() || base.isKeyword(L"mOde")) return;
  if (base.hasValue()) {
    if (copyFirst(copies, ids, base.point) && SystemVariables::integer(L"COPYMODE") != kCopiesOnce)
      copyMore(copies, ids, base.point);
  } else if (const auto vector = AskVector()) {
    copies.add({AcGeMatrix3d::translation(*vector)});
  }
  acutPrintf(L"\n复制了 %d 个。\n", copies.count());
}

} // namespace commands
