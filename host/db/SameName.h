// Comparing names as records spell them, for those who look through many of them.
#pragma once

#include <string_view>

namespace dxf {

// Whether two values of a record are one name: they decode to the same text but for case. Most pairs are told
// apart without decoding them.
bool sameName(std::string_view a, std::string_view b);

} // namespace dxf
