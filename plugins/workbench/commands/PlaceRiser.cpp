// WB_BZLG: risers between two elevations, point after point, each with the next number.
#include "host/db/AcDbBlockReference.h"
#include "host/ed/acutPrintf.h"
#include "plugin/graph/DrawingSettings.h"
#include "plugin/pipes/attributes/CZPRiserPipe.h"
#include "plugin/tools/RiserBlock.h"
#include "plugins/workbench/Asking.h"
#include "plugins/workbench/Commands.h"
#include "plugins/workbench/LayerPlacing.h"
#include "plugins/workbench/NewPipe.h"
#include "plugins/workbench/PipeQuestions.h"

namespace workbench {
namespace {

constexpr const wchar_t* kUsualLayers[] = {L"采暖供水立管", L"采暖回水立管", L"供水立管",
                                           L"回水立管",     L"冷凝水立管",   nullptr};
constexpr Range kNumbers{0, 99999};
constexpr double kRadiusOnPaper = 1; // mm, of the block unless the user says otherwise
constexpr Range kRadii{0.1, 10000};  // drawing units

constexpr PipePresets kPresets{L"立管", kUsualLayers, 25};

// The blocks that draw a riser, by the word that chooses them.
struct Look {
  const wchar_t* keyword;
  const wchar_t* block;
};
constexpr Look kLooks[] = {{L"空心", L"KOR_PMT_KXG_1.2"}, {L"实心", L"KOR_PMT_SXG_1.2"}};

struct Riser : NewPipe {
  double start = 0; // m
  double end = 0;   // m
  CString look;
  double radius = 0; // drawing units
  CString prefix;
  int number = 0;
};

bool AskElevations(Riser& riser) {
  while (true) {
    const auto start = AskNumber(L"始点标高(m)", Remembered(L"立管\\始点标高", 0), kElevations);
    if (!start) return false;
    const auto end = AskNumber(L"终点标高(m)", Remembered(L"立管\\终点标高", 3), kElevations);
    if (!end) return false;
    riser.start = *start;
    riser.end = *end;
    if (riser.start != riser.end) return true;
    Refuse(L"始点和终点标高相同，立管没有长度。", L"两个不同的标高");
  }
}

bool AskLook(Riser& riser) {
  const CString shown = Remembered(L"立管\\图块", kLooks[0].keyword);
  const auto look = ed::AskKeyword({L"图块 [空心(K)/实心(S)] <" + shown + L">:", L"空心,K 实心,S", 0, {}});
  if (look.isCancelled()) return false;
  riser.look = look.isNone() ? shown : look.text;
  const auto radius =
      AskNumber(L"图块半径", Remembered(L"立管\\半径", kRadiusOnPaper * ZP::GetOutDwgScale()), kRadii);
  if (radius) riser.radius = *radius;
  return radius.has_value();
}

bool AskNumbering(Riser& riser) {
  const auto prefix = AskOptionalText(L"编号前缀", Remembered(L"立管\\编号前缀", L"L"));
  if (!prefix) return false;
  riser.prefix = *prefix;
  const int next = static_cast<int>(Remembered(L"立管\\编号", 0)) + 1;
  const auto number = AskInteger(L"编号", next, kNumbers);
  if (number) riser.number = *number;
  return number.has_value();
}

void RememberRiser(const Riser& riser) {
  RememberNewPipe(kPresets, riser);
  Remember(L"立管\\始点标高", riser.start);
  Remember(L"立管\\终点标高", riser.end);
  Remember(L"立管\\图块", riser.look);
  Remember(L"立管\\半径", riser.radius);
  Remember(L"立管\\编号前缀", riser.prefix);
  Remember(L"立管\\编号", riser.number - 1); // the last one that was given
}

AcDbObjectId BlockOf(const Riser& riser) {
  for (const auto& look : kLooks)
    if (riser.look == look.keyword) return ZP::GetRiserBlockID(look.block);
  return ZP::GetRiserBlockID(kLooks[0].block);
}

bool AppendRiser(const AcGePoint3d& at, const Riser& riser) {
  auto insertion = std::make_unique<AcDbBlockReference>(at, BlockOf(riser));
  insertion->setScaleFactors({riser.radius, riser.radius, riser.radius}); // the block has a radius of 1
  const auto id = AppendOnLayer(std::move(insertion), riser.layer);
  if (id.isNull()) return false;
  CZPRiserPipe attributes(id);
  WriteNewPipe(attributes, riser);
  attributes.SetStartElevation(riser.start);
  attributes.SetEndElevation(riser.end);
  attributes.SetCode(riser.number);
  attributes.SetPreLable(riser.prefix);
  return true;
}

} // namespace

void PlaceRiser() {
  Riser riser;
  if (!AskNewPipe(kPresets, riser) || !AskElevations(riser) || !AskLook(riser) || !AskNumbering(riser))
    return;
  int placed = 0;
  while (true) {
    const auto at =
        ed::AskPoint({L"指定立管 " + riser.prefix + NumberText(riser.number) + L" 的位置:", {}, 0, {}});
    if (at.isCancelled()) return;
    if (at.isNone()) break;
    if (!AppendRiser(OnPlan(at.point), riser)) continue;
    ++placed;
    ++riser.number;
  }
  acutPrintf(L"\n已布置立管 %d 根。\n", placed);
  RememberRiser(riser);
}

} // namespace workbench
