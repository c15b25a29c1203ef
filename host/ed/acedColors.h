// Colours of drawings as windows show them.
#pragma once

#include <cstdint>

// Red, green and blue of a colour index, 8 bits each with red lowest, as a COLORREF. 7 is white; by block, by
// layer and what is no index count as 7.
std::uint32_t acedGetRGB(int colorIndex);
