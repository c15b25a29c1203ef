#include "plugins/workbench/PipeLabelText.h"

#include "plugin/base/NumberText.h"
#include "plugin/pipes/CZPPipeMaterial.h"
#include "plugin/pipes/attributes/CZPRiserPipe.h"
#include "plugins/workbench/PipeQuestions.h"

namespace workbench {
namespace {

// Decimals of a diameter in a pipe name, as the catalogue writes it.
constexpr int kDecimals = 2;

CString SizeText(const AcDbObjectId& pipe) {
  double nominal = 0;
  CZPRiserPipe(pipe).GetDN(nominal);
  const CString number = ZP::ftoa(nominal, kDecimals, true);
  const auto* material = MaterialOf(pipe);
  return material ? material->GetLabelText(material->m_strPrefix + number) : L"DN" + number;
}

} // namespace

CString LabelTextOf(const PickedPipe& pipe) {
  const CZPRiserPipe attributes(pipe.id);
  const CString size = SizeText(pipe.id);
  CString prefix;
  int code = 0;
  if (pipe.kind == PipeKind::main || !attributes.GetCode(code)) return size;
  attributes.GetPreLable(prefix);
  if (prefix.IsEmpty() && code == 0) return size; // what a riser has that nobody numbered
  return prefix + ZP::itoa(code) + L" " + size;
}

} // namespace workbench
