// ZOOM: which part of the drawing is shown.
#include "host/commands/CommandFunctions.h"
#include "host/commands/NumberText.h"
#include "host/ed/AcApDocManager.h"
#include "host/ed/EdPrompts.h"
#include "host/ed/EdSession.h"
#include "host/ed/ViewState.h"
#include "host/ed/acutPrintf.h"

namespace commands {
namespace {

void refuse(const wchar_t* reason, const wchar_t* expected = L"") {
  EdSession::instance().refuse(reason, expected);
}

bool showBox(AcApDocument& document, const AcGePoint3d& a, const AcGePoint3d& b) {
  const auto box = ge::Box2d::FromCorners({a.x, a.y}, {b.x, b.y});
  if (box.maxX > box.minX && box.maxY > box.minY) return ed::SetView(document, ed::ViewOf(document, box));
  refuse(L"窗口没有大小。", L"不在一条水平或竖直线上的两个角点");
  return false;
}

bool showAll(AcApDocument& document) {
  const auto box = ed::DrawnBox(document);
  if (box) return ed::SetView(document, ed::ViewOf(document, *box));
  acutPrintf(L"\n图形中没有可显示的实体。\n");
  return false;
}

bool showWindow(AcApDocument& document, const std::optional<AcGePoint3d>& corner) {
  AcGePoint3d first;
  if (corner) {
    first = *corner;
  } else {
    const auto answer = ed::AskPoint({L"指定第一个角点:", {}, RSG_NONULL, {}});
    if (!answer.hasValue()) return false;
    first = answer.point;
  }
  const auto second = ed::AskCorner({L"指定对角点:", {}, RSG_NONULL, first});
  return second.hasValue() && showBox(document, first, second.point);
}

bool showAround(AcApDocument& document) {
  auto view = ed::CurrentView(document);
  const auto centre = ed::AskPoint({L"指定中心点:", {}, RSG_NONULL, {}});
  if (!centre.hasValue()) return false;
  const auto height = ed::AskDistance(
      {L"输入视图高度 <" + NumberText(view.height) + L">:", {}, RSG_NOZERO | RSG_NONEG, centre.point});
  if (height.isCancelled()) return false;
  view.centre = {centre.point.x, centre.point.y};
  if (height.hasValue()) view.height = height.real;
  return ed::SetView(document, view);
}

bool showScaled(AcApDocument& document) {
  const auto factor =
      ed::AskReal({L"输入放大倍数（相对当前视图）:", {}, RSG_NONULL | RSG_NOZERO | RSG_NONEG, {}});
  if (!factor.hasValue()) return false;
  auto view = ed::CurrentView(document);
  view.height /= factor.real;
  if (ed::SetView(document, view)) return true;
  refuse(L"这样的视图太大或太小。", L"另一个倍数");
  return false;
}

bool showPrevious(AcApDocument& document) {
  if (ed::SetPreviousView(document)) return true;
  refuse(L"没有上一个视图。");
  return false;
}

} // namespace

void Zoom() {
  auto& document = *curDoc();
  const auto how =
      ed::AskPoint({L"指定窗口的角点，或 [全部(A)/范围(E)/窗口(W)/中心(C)/比例(S)/上一个(P)] <全部>:",
                    L"All Extents Window Center Scale Previous",
                    0,
                    {}});
  if (how.isCancelled()) return;
  bool shown = false;
  if (how.hasValue())
    shown = showWindow(document, how.point);
  else if (how.isKeyword(L"Window"))
    shown = showWindow(document, std::nullopt);
  else if (how.isKeyword(L"Center"))
    shown = showAround(document);
  else if (how.isKeyword(L"Scale"))
    shown = showScaled(document);
  else if (how.isKeyword(L"Previous"))
    shown = showPrevious(document);
  else
    shown = showAll(document);
  if (!shown) return;
  const auto view = ed::CurrentView(document);
  acutPrintf(L"\n视图中心 %s,%s，高度 %s\n", NumberText(view.centre.x), NumberText(view.centre.y),
             NumberText(view.height));
}

} // namespace commands
