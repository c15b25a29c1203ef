// The truth value that drawing calls return.
#pragma once

namespace Adesk {

using Boolean = bool;
inline constexpr Boolean kTrue = true;
inline constexpr Boolean kFalse = false;

} // namespace Adesk
