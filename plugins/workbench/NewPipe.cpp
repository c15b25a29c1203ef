#include "plugins/workbench/NewPipe.h"

#include "plugin/pipes/CZPPipeMaterial.h"
#include "plugin/pipes/attributes/CZPPipe.h"
#include "plugins/workbench/Asking.h"
#include "plugins/workbench/LayerPlacing.h"
#include "plugins/workbench/PipeQuestions.h"

namespace workbench {
namespace {

CString NameOf(const PipePresets& presets, const wchar_t* what) {
  return CString(presets.kind) + L"\\" + what;
}

} // namespace

bool AskNewPipe(const PipePresets& presets, NewPipe& pipe) {
  if (!AskPlacingLayer(Remembered(NameOf(presets, L"图层标识"), presets.layers[0]), presets.layers,
                       pipe.layer))
    return false;
  pipe.material = AskMaterial(Remembered(NameOf(presets, L"管材"), L""));
  if (!pipe.material) return false;
  const auto diameter = AskDiameter(*pipe.material, Remembered(NameOf(presets, L"管径"), presets.nominal));
  if (diameter) pipe.diameter = *diameter;
  return diameter.has_value();
}

void RememberNewPipe(const PipePresets& presets, const NewPipe& pipe) {
  Remember(NameOf(presets, L"图层标识"), pipe.layer);
  Remember(NameOf(presets, L"管材"), pipe.material->GetName());
  Remember(NameOf(presets, L"管径"), pipe.diameter.dbNominal);
}

void WriteNewPipe(CZPPipe& attributes, const NewPipe& pipe) {
  attributes.InitEntityXdata();
  attributes.SetMaterial(pipe.material->GetName());
  attributes.SetDN(pipe.diameter.dbNominal);
}

} // namespace workbench
