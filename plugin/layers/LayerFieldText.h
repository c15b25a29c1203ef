// The fields of a layer definition as texts of tables and lists.
#pragma once

#include "plugin/layers/LayerFields.h"

namespace layers {

// Numbers with at most two decimals.
CString FieldText(const SZPLayerData& data, const LayerField& field);
// Takes a number as the text begins; 0 for none.
void SetFieldText(SZPLayerData& data, const LayerField& field, const CString& text);

} // namespace layers
