#include "plugin/pipes/attributes/CZPPipe.h"

#include "host/db/AcDbCurve.h"
#include "host/db/AcDbObjectPointer.h"
#include "plugin/graph/CurveLength.h"
#include "plugin/pipes/CZPPipeMaterialManager.h"
#include "plugin/pipes/attributes/PipeKeys.h"

using namespace pipes;

namespace {

// For an installation without a catalogue of pipes.
constexpr const wchar_t* kFallbackMaterial = L"镀锌钢管";
constexpr double kNewDn = 20;
constexpr double kMillimetresInAMetre = 1000;

} // namespace

CZPPipe::~CZPPipe() = default;

void CZPPipe::AttachEntityId(const AcDbObjectId& id) {
  m_id = id;
}

void CZPPipe::InitCommonXdata() {
  CString material = kFallbackMaterial;
  if (const CZPPipeMaterial* first = CZPPipeMaterialManager::GetInstance()->GetInitialPipeMaterial())
    material = first->GetName();
  SetMaterial(material);
  SetDN(kNewDn);
  SetFlowRate(0);
  SetFlowVelocity(0);
  SetBMZ(0);
  SetYcZl(0);
}

bool CZPPipe::SetMaterial(const CString& name) {
  return SetText(m_id, kMaterialKey, name);
}

bool CZPPipe::GetMaterial(CString& name) const {
  return GetText(m_id, kMaterialKey, name);
}

bool CZPPipe::SetDN(double dn) {
  return SetNumber(m_id, kDnKey, dn);
}

bool CZPPipe::GetDN(double& dn) const {
  return GetNumber(m_id, kDnKey, dn);
}

bool CZPPipe::SetFlowRate(double rate) {
  return SetNumber(m_id, kFlowRateKey, rate);
}

bool CZPPipe::GetFlowRate(double& rate) const {
  return GetNumber(m_id, kFlowRateKey, rate);
}

bool CZPPipe::SetFlowVelocity(double velocity) {
  return SetNumber(m_id, kFlowVelocityKey, velocity);
}

bool CZPPipe::GetFlowVelocity(double& velocity) const {
  return GetNumber(m_id, kFlowVelocityKey, velocity);
}

bool CZPPipe::SetBMZ(double loss) {
  return SetNumber(m_id, kFrictionLossKey, loss);
}

bool CZPPipe::GetBMZ(double& loss) const {
  return GetNumber(m_id, kFrictionLossKey, loss);
}

bool CZPPipe::SetYcZl(double resistance) {
  return SetNumber(m_id, kRunResistanceKey, resistance);
}

bool CZPPipe::GetYcZl(double& resistance) const {
  return GetNumber(m_id, kRunResistanceKey, resistance);
}

bool CZPPipe::SetLength(double metres) {
  return SetNumber(m_id, kLengthKey, metres);
}

bool CZPPipe::GetLength(double& metres) const {
  if (GetNumber(m_id, kLengthKey, metres)) return true;
  const AcDbObjectPointer<AcDbCurve> curve(m_id, AcDb::kForRead);
  const auto measured = curve ? ZP::CurveLength(*curve.object()) : std::nullopt;
  if (!measured) return false;
  metres = *measured / kMillimetresInAMetre;
  return true;
}
