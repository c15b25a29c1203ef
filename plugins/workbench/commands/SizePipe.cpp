// WB_GJJS: the diameter that a flow needs by the velocity limits, then velocity and friction in it. The
// result is written onto the pipe.
#include "host/ed/acutPrintf.h"
#include "plugin/base/NumberText.h"
#include "plugin/pipes/CZPPipeMaterial.h"
#include "plugin/pipes/attributes/CZPRiserPipe.h"
#include "plugin/pipes/limits/CZPFlowVelocityMng.h"
#include "plugins/workbench/Asking.h"
#include "plugins/workbench/Commands.h"
#include "plugins/workbench/FlowQuestions.h"
#include "plugins/workbench/PickPipe.h"
#include "plugins/workbench/PipeQuestions.h"
#include "plugins/workbench/hydraulics/FrictionFactor.h"
#include "plugins/workbench/hydraulics/PipeFlow.h"
#include "plugins/workbench/hydraulics/PipeSizing.h"

#include <cmath>
#include <vector>

namespace workbench {
namespace {

using hydraulics::PipeFlow;
using hydraulics::PipeSize;

const CZPPipeLimit* LimitOf(const SZPPipeDNData& row) {
  return CZPFlowVelocityMng::GetInstance()->GetPipeLimit(ZP::ftoa(row.dbNominal, 2, true), 1);
}

// Its own, or another that the user chooses where the catalogue lacks it. Null for Escape.
const CZPPipeMaterial* MaterialToSize(const PickedPipe& pipe) {
  if (const auto* material = MaterialOf(pipe.id)) return material;
  acutPrintf(L"\n目录中没有这条管线的管材，请另选。\n");
  return AskMaterial(L"");
}

// The nominal diameter, mm. Nothing, with the reason told, when the flow is too fast in every size.
std::optional<double> NeededDiameter(const CZPPipeMaterial& material, double rate) {
  std::vector<PipeSize> sizes;
  for (const auto& row : material.m_arrDNData)
    sizes.push_back({row.dbNominal, row.dbInner, LimitOf(row)->m_velocity.dbMax});
  if (const auto index = hydraulics::SmallestSize(sizes, rate)) return sizes[*index].nominal;
  PipeSize widest;
  for (const auto& size : sizes)
    if (size.inner > widest.inner) widest = size;
  const CString largest = material.m_strPrefix + NumberText(widest.nominal);
  Refuse(L"流量 " + NumberText(rate) + L" m³/h 太大：在最大的 " + largest + L" 中流速为 " +
             NumberText(hydraulics::Velocity(rate, widest.inner)) + L" m/s，超过界限 " +
             NumberText(widest.highestVelocity) + L" m/s。",
         L"较小的流量，或有更大管径的管材；界限用 KOR_LSGLQ 修改");
  return std::nullopt;
}

// Metres; nothing when the pipe has no length.
std::optional<double> LengthOf(const PickedPipe& picked) {
  const CZPRiserPipe pipe(picked.id);
  double metres = 0;
  double start = 0;
  double end = 0;
  if (pipe.GetLength(metres)) return metres;
  if (picked.kind != PipeKind::riser || !pipe.GetStartElevation(start) || !pipe.GetEndElevation(end))
    return std::nullopt;
  return std::fabs(end - start);
}

const wchar_t* RegimeOf(double reynolds) {
  if (reynolds <= hydraulics::kLaminarReynolds) return L"层流";
  return reynolds < hydraulics::kTurbulentReynolds ? L"过渡区" : L"紊流";
}

CString AgainstRange(double value, const SZPRange& range) {
  const CString limits = NumberText(range.dbMin) + L"～" + NumberText(range.dbMax);
  if (value < range.dbMin) return L"低于界限 " + limits;
  return (value > range.dbMax ? L"超过界限 " : L"在界限内 ") + limits;
}

void Tell(const FlowRequest& request, const hydraulics::Water& water, const CString& pipeName,
          const SZPPipeDNData& row, const PipeFlow& flow) {
  const auto* limit = LimitOf(row);
  acutPrintf(L"\n流量 %s m³/h，水温 %s ℃，密度 %s kg/m³，运动粘度 %s×10⁻⁶ m²/s", NumberText(request.rate, 4),
             NumberText(request.celsius), NumberText(water.density, 2),
             NumberText(water.kinematicViscosity() * 1e6, 4));
  acutPrintf(L"\n%s，内径 %s mm，流速 %s m/s（%s）", pipeName, NumberText(row.dbInner),
             NumberText(flow.velocity), AgainstRange(flow.velocity, limit->m_velocity));
  acutPrintf(L"\n雷诺数 %s（%s），摩擦系数 %s", NumberText(flow.reynolds, 0), RegimeOf(flow.reynolds),
             NumberText(flow.frictionFactor, 5));
  acutPrintf(L"\n比摩阻 %s Pa/m（%s）\n", NumberText(flow.specificFriction, 2),
             AgainstRange(flow.specificFriction, limit->m_friction));
}

void Write(const PickedPipe& picked, const CZPPipeMaterial& material, const SZPPipeDNData& row, double rate,
           const PipeFlow& flow) {
  CZPRiserPipe pipe(picked.id);
  pipe.SetMaterial(material.GetName());
  pipe.SetDN(row.dbNominal);
  pipe.SetFlowRate(rate);
  pipe.SetFlowVelocity(flow.velocity);
  pipe.SetBMZ(flow.specificFriction);
  const auto length = LengthOf(picked);
  if (!length) return;
  pipe.SetYcZl(flow.specificFriction * *length);
  acutPrintf(L"长度 %s m，沿程阻力 %s Pa\n", NumberText(*length),
             NumberText(flow.specificFriction * *length, 1));
}

} // namespace

void SizePipe() {
  if (CZPFlowVelocityMng::GetInstance()->m_arrLimits.GetSize() == 0)
    return Refuse(L"流速界限是空的。", L"先用 KOR_LSGLQ（管道流速管理器）建立界限");
  const auto picked = PickPipe(L"选择要计算的管线:", PickFor::changing);
  if (!picked) return;
  const CZPRiserPipe pipe(picked->id);
  const auto* material = MaterialToSize(*picked);
  if (!material) return;
  double present = 0;
  pipe.GetFlowRate(present);
  std::optional<FlowRequest> request;
  std::optional<double> needed;
  while (!needed) {
    request = AskFlow(present);
    if (!request) return;
    needed = NeededDiameter(*material, request->rate);
  }
  const auto row = AskDiameter(*material, *needed);
  if (!row) return;
  const auto water = hydraulics::WaterAt(request->celsius).value();
  const auto flow = hydraulics::FlowThrough({row->dbInner, material->m_dRoughness}, request->rate, water);
  if (!flow)
    return Refuse(L"管材“" + material->GetName() + L"”的内径或粗糙度不能计算。",
                  L"用 KOR_GJGLQ 改正管材的内径和粗糙度");
  Tell(*request, water, PipeNameOf(*material, *row), *row, *flow);
  Write(*picked, *material, *row, request->rate, *flow);
}

} // namespace workbench
