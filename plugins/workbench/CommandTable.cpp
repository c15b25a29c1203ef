// To add a command: write its function in a file of its own in commands/, declare it in Commands.h, give it a
// row here and a line in ZPWorkbench.menu, and a drawing test, tests/drawings/workbench_NAME. Questions that
// several commands ask stand in Asking.h and PipeQuestions.h, what is put on layers in LayerPlacing.h.
#include "plugins/workbench/CommandTable.h"

#include "plugins/workbench/Commands.h"

namespace workbench {
namespace {

constexpr unsigned kDraws = ACRX_CMD_MODAL;
constexpr unsigned kSelects = ACRX_CMD_MODAL | ACRX_CMD_USEPICKSET;

// clang-format off
constexpr CommandRow kTable[] = {
    {L"WB_HZGG", L"绘制干管", kDraws, DrawMainPipe},
    {L"WB_BZLG", L"布置立管", kDraws, PlaceRiser},
    {L"WB_GXSX", L"管线属性", kDraws, EditPipe},
    {L"WB_GXBZ", L"管线标注", kDraws, LabelPipe},
    {L"WB_GJJS", L"管径计算", kDraws, SizePipe},
    {L"WB_JBZL", L"局部阻力", kDraws, ResistPipe},
    {L"WB_JZXS", L"局阻系数管理器", kDraws, ManageResistance},
    {L"WB_SCKW", L"生成扣弯", kDraws, MakeBends},
    {L"WB_BZFJ", L"布置房间", kDraws, PlaceRoom},
    {L"WB_CXFJ", L"查询房间负荷", kDraws, QueryRoom},
    {L"WB_BZPG", L"布置风机盘管", kDraws, PlaceFanCoil},
    {L"WB_CLCD", L"测量长度", kDraws, MeasureLength},
    {L"WB_CLMJ", L"测量面积", kDraws, MeasureArea},
    {L"WB_CZTD", L"成组拖动", kSelects, DragGroup},
    {L"WB_FZCZ", L"复制外部参照", kDraws, CopyXrefs},
    {L"WB_SCFB", L"删除参照副本", kDraws, DeleteXrefCopies},
};
// clang-format on

} // namespace

std::span<const CommandRow> CommandTable() {
  return kTable;
}

} // namespace workbench
