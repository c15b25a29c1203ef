// WB_GXSX: shows the data of a picked pipe, and changes them one by one.
#include "host/ed/acutPrintf.h"
#include "plugin/pipes/attributes/CZPMainPipe.h"
#include "plugins/workbench/Commands.h"
#include "plugins/workbench/PipeFields.h"

namespace workbench {
namespace {

void ShowField(const PipeField& field, const AcDbObjectId& id) {
  const auto value = field.read(id);
  acutPrintf(L"\n%s：%s%s", field.title, value ? *value : CString(L"（无）"),
             value && *field.unit ? CString(L" ") + field.unit : CString());
}

void ShowPipe(const PickedPipe& pipe) {
  for (const auto& field : PipeFields())
    if (field.isOf(pipe.kind)) ShowField(field, pipe.id);
  acutPrintf(L"\n");
}

ed::Answer AskField(PipeKind kind) {
  CString choices;
  CString keywords;
  for (const auto& field : PipeFields()) {
    if (!field.isOf(kind)) continue;
    choices += (choices.IsEmpty() ? L"" : L"/") + CString(field.title) + L"(" + field.key + L")";
    keywords += CString(field.title) + L"," + field.key + L" ";
  }
  return ed::AskKeyword({L"修改 [" + choices + L"] <完成>:", keywords, 0, {}});
}

const PipeField* FindField(PipeKind kind, const CString& title) {
  for (const auto& field : PipeFields())
    if (field.isOf(kind) && title == field.title) return &field;
  return nullptr;
}

} // namespace

void EditPipe() {
  const auto pipe = PickPipe(L"选择管线:", PickFor::looking);
  if (!pipe) return;
  ShowPipe(*pipe);
  if (const auto obstacle = ObstacleToChange(pipe->id)) {
    acutPrintf(L"\n%s\n", *obstacle);
    return;
  }
  bool isFlowOld = false;
  while (true) {
    const auto choice = AskField(pipe->kind);
    if (choice.isCancelled()) return;
    if (choice.isNone()) break;
    const PipeField* field = FindField(pipe->kind, choice.text);
    if (!field->change(*field, pipe->id)) return;
    ShowField(*field, pipe->id);
    acutPrintf(L"\n");
    isFlowOld = isFlowOld || field->decidesFlow;
  }
  double rate = 0;
  if (isFlowOld && CZPMainPipe(pipe->id).GetFlowRate(rate) && rate > 0)
    acutPrintf(L"\n流速、比摩阻和沿程阻力仍是原来的，用 WB_GJJS 重新计算。\n");
}

} // namespace workbench
