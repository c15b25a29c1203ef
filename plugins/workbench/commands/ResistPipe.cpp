// WB_JBZL: the local resistances of a picked pipe, which are kept with it, and the pressure that they take
// where the velocity of the pipe is known.
#include "host/ed/acedWindows.h"
#include "host/ed/acutPrintf.h"
#include "plugin/pipes/CZPPipeMaterial.h"
#include "plugin/pipes/attributes/CZPMainPipe.h"
#include "plugin/resistance/dialogs/ShowResistanceDialogs.h"
#include "plugins/workbench/Asking.h"
#include "plugins/workbench/Commands.h"
#include "plugins/workbench/FlowQuestions.h"
#include "plugins/workbench/PickPipe.h"
#include "plugins/workbench/PipeQuestions.h"
#include "plugins/workbench/SectionRecord.h"
#include "plugins/workbench/hydraulics/WaterProperties.h"

namespace workbench {
namespace {

// "DN20", with the prefix of the pipe's material where the catalogue has it.
CString DiameterText(const AcDbObjectId& id) {
  double nominal = 0;
  CZPMainPipe(id).GetDN(nominal);
  const auto* material = MaterialOf(id);
  return (material ? material->m_strPrefix : CString(L"DN")) + NumberText(nominal);
}

void TellLoss(const CZPMainPipe& pipe, double coefficient) {
  double velocity = 0;
  if (!pipe.GetFlowVelocity(velocity) || velocity <= 0) {
    acutPrintf(L"管线没有流速，用 WB_GJJS 计算后可以得到局部阻力。\n");
    return;
  }
  const double celsius = LastWaterTemperature();
  const double density = hydraulics::WaterAt(celsius).value().density;
  const double loss = coefficient * density * velocity * velocity / 2;
  acutPrintf(L"流速 %s m/s，水温 %s ℃，局部阻力 %s Pa\n", NumberText(velocity), NumberText(celsius),
             NumberText(loss, 1));
  double friction = 0;
  if (pipe.GetYcZl(friction))
    acutPrintf(L"沿程阻力 %s Pa，总阻力 %s Pa\n", NumberText(friction, 1), NumberText(friction + loss, 1));
}

} // namespace

void ResistPipe() {
  const auto picked = PickPipe(L"选择管线:", PickFor::changing);
  if (!picked) return;
  CZPLocalResistanceSettings section = ReadSection(picked->id);
  section.m_strDN = DiameterText(picked->id);
  if (!ZP::ShowLRSDlg(section, acedGetAcadDwgView())) return;
  if (!WriteSection(picked->id, section)) return Refuse(L"局部阻力不能写到管线上。");
  const double coefficient = section.GetCoefficient();
  acutPrintf(L"\n%s，总局部阻力系数 %s\n", section.m_strDN, NumberText(coefficient, 2));
  TellLoss(CZPMainPipe(picked->id), coefficient);
}

} // namespace workbench
