#include "plugins/workbench/PipeLabelText.h"

#include "plugin/base/NumberText.h"
#include "plugin/pipes/CZPPipeMaterialManager.h"
#include "plugin/pipes/attributes/CZPRiserPipe.h"

namespace workbench {
namespace {

// Decimals of a diameter in a pipe name, as the catalogue writes it.
constexpr int kDecimals = 2;

CString SizeText(const CZPRiserPipe& pipe) {
  CString name;
  double nominal = 0;
  pipe.GetMaterial(name);
  pipe.GetDN(nominal);
  const CString number = ZP::ftoa(nominal, kDecimals, true);
  const auto* material = CZPPipeMaterialManager::GetInstance()->GetPipeMaterial(name);
  return material ? material->GetLabelText(material->m_strPrefix + number) : L"DN" + number;
}

} // namespace

CString LabelTextOf(const PickedPipe& pipe) {
  const CZPRiserPipe attributes(pipe.id);
  const CString size = SizeText(attributes);
  CString prefix;
  int code = 0;
  if (pipe.kind == PipeKind::main || !attributes.GetCode(code)) return size;
  attributes.GetPreLable(prefix);
  return prefix + ZP::itoa(code) + L" " + size;
}

} // namespace workbench
