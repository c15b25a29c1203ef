// The conversation in which the path of a CZPMeasureJig is traced.
#include "host/db/AcDbCurves.h"
#include "host/ed/ArxDbgUiPrPoint.h"
#include "plugin/graph/VkHvacSelect.h"
#include "plugin/tools/CZPMeasureJig.h"

namespace {

enum class Asking { line, arcEnd, arcMid, arcNext };

// What each state asks. Its keys answer without Enter; keywords are understood in every state.
struct Request {
  const wchar_t* prompt;
  const wchar_t* keys; // null: those of the state before
  int mode;
  int arcStep; // 0: stays as it was
};
constexpr Request kRequests[] = {
    {L"\n下一点或 [弧线(A)/回退(U)]:", L"A U", 0, 0},
    {L"\n弧线终点或 [直墙(L)]:", L"L", 1, 1},
    {L"\n点取弧上任意点<取消>:", nullptr, 1, 2},
    {L"\n下一点或 [直线(L)/回退(U)]:", L"L U", 1, 1},
};

enum class Input { straight, arc, back, point, end, nothing };

Input InputOf(const CString& key, AcEdJig::DragStatus status) {
  // A key that was pressed counts before what the drag says.
  if (key.CompareNoCase(L"L") == 0) return Input::straight;
  if (key.CompareNoCase(L"A") == 0) return Input::arc;
  if (key.CompareNoCase(L"U") == 0) return Input::back;
  switch (status) {
  case AcEdJig::kKW1:
    return Input::straight;
  case AcEdJig::kKW2:
    return Input::arc;
  case AcEdJig::kKW3:
    return Input::back;
  case AcEdJig::kNormal:
    return Input::point;
  case AcEdJig::kCancel:
  case AcEdJig::kNull:
    return Input::end;
  default:
    return Input::nothing;
  }
}

} // namespace

bool CZPMeasureJig::GetSelectedFirstPoint() {
  ArxDbgUiPrPoint start(L"\n起点或 [参考点(R)]<退出>", L"R r");
  AcGePoint3d point;
  switch (start.go()) {
  case ArxDbgUiPrBase::kOk:
    point = start.value();
    break;
  case ArxDbgUiPrBase::kKeyWord: {
    ArxDbgUiPrPoint reference(L"\n参考点");
    if (reference.go() != ArxDbgUiPrBase::kOk) return false;
    ArxDbgUiPrPoint from(L"\n起点");
    from.setBasePt(reference.value());
    if (from.go() != ArxDbgUiPrBase::kOk) return false;
    point = from.value();
    break;
  }
  default:
    return false;
  }
  CurrentPoint = FirstPoint = point; // the user's coordinates are the world's here
  return true;
}

void CZPMeasureJig::doIt() {
  if (!GetSelectedFirstPoint()) return;
  Entity = new AcDbLine(CurrentPoint, CurrentPoint);
  Points.append(CurrentPoint);
  auto asking = Asking::line;
  CString keys;
  const auto ask = [&](Asking next) {
    asking = next;
    const auto& request = kRequests[static_cast<int>(next)];
    Mode = request.mode;
    if (request.arcStep != 0) ArcStep = request.arcStep;
    if (request.keys) keys = request.keys;
  };
  ask(Asking::line);
  auto* presses = VkHvacSelect::GetInstance();
  while (true) {
    setDispPrompt(kRequests[static_cast<int>(asking)].prompt);
    presses->StartGetPressKey(keys);
    const auto status = drag();
    presses->EndGetPressKey();
    switch (InputOf(presses->GetPressKey(), status)) {
    case Input::straight:
      ask(Asking::line);
      break;
    case Input::arc:
      ask(Asking::arcEnd);
      break;
    case Input::back:
      Undo();
      break;
    case Input::end:
      return;
    case Input::nothing:
      break;
    case Input::point:
      if (asking == Asking::line) {
        Points.append(CurrentPoint);
        AddToModelSpace();
      } else if (asking == Asking::arcMid) {
        CurrentPoint = Points.last();
        AddToModelSpace();
        ask(Asking::arcNext);
      } else {
        Points.append(CurrentPoint); // the arc's end
        delete Entity;
        Entity = new AcDbArc;
        ask(Asking::arcMid);
      }
      break;
    }
  }
}
