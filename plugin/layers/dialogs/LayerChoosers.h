// The host's dialogs in which what a layer looks like is chosen, from text to text as tables show it.
#pragma once

#include <optional>

#include "host/afx/CString.h"

namespace layers {

enum class LayerChooser { none, colour, linetype, lineWeight };

// Begins with the text's colour number, linetype or millimetres. Nothing when the user gives up.
std::optional<CString> ChooseLook(LayerChooser chooser, const CString& start);

} // namespace layers
