// Sizes of paper by name.
#pragma once

#include "host/afx/CString.h"

#include <optional>

namespace plot {

struct PaperSize {
  double width = 0; // millimetres
  double height = 0;
};

// "A0" to "A4", or "420x297" in millimetres; each side 10 to 5000. Nothing for another text.
std::optional<PaperSize> PaperOf(const CString& text);

} // namespace plot
