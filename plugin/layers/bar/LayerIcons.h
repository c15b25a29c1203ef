// The pictures of layer states, drawn here so that they are sharp at any scale.
#pragma once

#include "host/afx/CString.h"

#include <vector>

namespace layers {

// Their order in LayerIcons: each state's three plain ones first.
enum LayerIcon { kOnIcon, kThawedIcon, kUnlockedIcon, kOffIcon, kFrozenIcon, kLockedIcon };

std::vector<CString> LayerIcons();     // SVG texts
std::vector<CString> LayerIconNames(); // in one or two characters

} // namespace layers
