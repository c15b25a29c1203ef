// The look of texts that the package writes into a drawing.
#pragma once

#include "plugin/base/ZpExport.h"

class AcDbText;

namespace ZP {

// The one kind of text that there is: what the package annotates.
inline constexpr int kAnnotation = 1;

// Gives a new text the style that the settings of the working drawing ask for, and that style's width factor:
// the package's own style QL_KOR, which is made where the drawing lacks it, or else the current text style.
// Height, place and layer stay. Non-zero on success; 0, with the text as it was, for null, for any other kind
// and where there is no such style.
ZP_EXPORT int SetTextAttribute(AcDbText* text, int kind);

} // namespace ZP
