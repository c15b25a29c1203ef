// A field for a coefficient, which keeps all digits of what it shows: a coefficient that nobody touches comes
// back from it as it was.
#pragma once

#include "host/ui/CNumberEdit.h"

namespace resistance {

// The button beside it steps by 0.1 and not below 0; what is typed may be less.
inline constexpr CNumberEdit::Spin kCoefficientSpin{0.1, 0, 9};

void ShowCoefficient(CNumberEdit& field, double coefficient);

} // namespace resistance
