// WB_BZPG: fan-coil units of a model picked from the favourites, point after point.
#include "host/ed/acutPrintf.h"
#include "host/ui/MessageBox.h"
#include "plugin/fancoil/CFCUEquipment.h"
#include "plugin/fancoil/dialogs/ShowFanCoilDialogs.h"
#include "plugins/workbench/Asking.h"
#include "plugins/workbench/Commands.h"
#include "plugins/workbench/FanCoilSymbol.h"
#include "plugins/workbench/LayerPlacing.h"
#include "plugins/workbench/PipeQuestions.h"

namespace workbench {
namespace {

constexpr const wchar_t* kLayer = L"风机盘管";
constexpr const wchar_t* kAngleName = L"风机盘管\\旋转角";
constexpr Range kAngles{-360, 360};                           // degrees
constexpr double kRadians = 3.141592653589793238462643 / 180; // of a degree

} // namespace

void PlaceFanCoil() {
  CFCUEquipment* picked = nullptr;
  if (ZP::ShowCommonFCUMngDlg(picked) != IDOK || !picked) return;
  const SKTFCUEquipmentData unit = picked->m_data;
  if (!PrepareLayer(kLayer)) return;
  const auto degrees = AskNumber(L"旋转角(度)", Remembered(kAngleName, 0), kAngles);
  if (!degrees) return;
  const AcDbObjectId block = FanCoilBlock(unit);
  if (block.isNull())
    acutPrintf(L"\n型号 %s 没有图块，按实际长和宽画成矩形。图块在 KOR_FJPGGLQ 中用“图面选取”制作。\n",
               unit.szMode);
  int placed = 0;
  while (true) {
    const auto at = ed::AskPoint({L"指定风机盘管 " + unit.szMode + L" 的位置:", {}, 0, {}});
    if (at.isCancelled()) return;
    if (at.isNone()) break;
    const auto id = AppendOnLayer(FanCoilSymbol(unit, block, OnPlan(at.point), *degrees * kRadians), kLayer);
    placed += id.isNull() ? 0 : 1;
  }
  acutPrintf(L"\n已布置风机盘管 %s 共 %d 台。\n", unit.szMode, placed);
  Remember(kAngleName, *degrees);
}

} // namespace workbench
