// What a crossing bend carries as extended data, beside the attributes of a riser.
#pragma once

namespace crossings {

inline constexpr const wchar_t* kMarkKey = L"扣弯";   // marks the symbol; its value is empty
inline constexpr const wchar_t* kRadiusKey = L"半径"; // drawing units, two decimals
// The symbol's layer is the one whose identifier is that of the pipe's layer with this behind it.
inline constexpr const wchar_t* kLayerSuffix = L"扣弯";

} // namespace crossings
