// The drop-down list of layer schemes.
#pragma once

class CComboBox;

namespace layers {

// All schemes that have a file, the default one first. None is selected.
void FillSchemes(CComboBox& list);

} // namespace layers
