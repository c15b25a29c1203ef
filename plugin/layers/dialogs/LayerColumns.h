// How the layer table and the dialog that changes several layers name each field, and how the field is
// changed. The table has a column with the running number before them.
#pragma once

#include <iterator>

#include "plugin/layers/LayerFields.h"
#include "plugin/layers/dialogs/LayerChoosers.h"

namespace layers {

struct LayerColumn {
  const wchar_t* title;
  int width;
  LayerChooser chooser;        // none: typed
  const wchar_t* batchLine;    // null: not to be changed for several layers
  const wchar_t* chooserStart; // of the dialog for several layers
};

// In the order of kLayerFields.
inline constexpr LayerColumn kLayerColumns[] = {
    {L"图层标识", 124, LayerChooser::none, nullptr, nullptr},
    {L"图层名称", 190, LayerChooser::none, L"图层名称", nullptr},
    {L"颜色", 46, LayerChooser::colour, L"图层颜色", L"256"},
    {L"线型", 100, LayerChooser::linetype, L"图层线型", nullptr},
    {L"线型比例", 72, LayerChooser::none, L"线型比例", nullptr},
    {L"线宽(mm)", 76, LayerChooser::lineWeight, L"线宽(mm)", L"-0.01"},
    {L"图层代号", 128, LayerChooser::none, L"图层代号", nullptr},
    {L"备注", 140, LayerChooser::none, L"图层备注", nullptr},
};
static_assert(std::size(kLayerColumns) == std::size(kLayerFields));

inline constexpr int kNumberColumn = 0;
inline constexpr int kIdentifierColumn = 1;
inline constexpr int kNameColumn = 2;
inline constexpr int kColourColumn = 3;
inline constexpr int kLinetypeColumn = 4;
inline constexpr int kLineWeightColumn = 6;

} // namespace layers
