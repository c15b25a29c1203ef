#include "plugin/layers/dialogs/LayerChoosers.h"

#include "host/afx/Numbers.h"
#include "host/ui/UiFrontEnd.h"
#include "plugin/base/NumberText.h"

namespace {

// Hundredths, cut and not rounded; 0 for what is far from any line weight.
int WeightStart(const CString& text) {
  const double hundredths = afx::wcstod(text, nullptr) * 100;
  constexpr double far = 1e6;
  return hundredths > -far && hundredths < far ? static_cast<int>(hundredths) : 0;
}

} // namespace

std::optional<CString> layers::ChooseLook(LayerChooser chooser, const CString& start) {
  auto* frontEnd = UiFrontEnd::Get();
  if (!frontEnd) return std::nullopt;
  constexpr bool byLayerAndBlock = true;
  switch (chooser) {
  case LayerChooser::none:
    break;
  case LayerChooser::colour:
    if (const auto index = frontEnd->ChooseColour(_wtoi(start), byLayerAndBlock)) return ZP::itoa(*index);
    break;
  case LayerChooser::linetype:
    return frontEnd->ChooseLinetype(start);
  case LayerChooser::lineWeight:
    if (const auto weight = frontEnd->ChooseLineWeight(WeightStart(start)))
      return ZP::ftoa(*weight / 100.0, 2, true);
    break;
  }
  return std::nullopt;
}
