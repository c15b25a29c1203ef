// Which function draws which entity, by its record name. A new kind is its file in painters/ and its row in
// the table.
#pragma once

#include <string_view>

namespace scene {

class Pen;
using Painter = void (*)(Pen& pen);

// Null for a kind that has none.
Painter PainterOf(std::string_view dxfName);

} // namespace scene
