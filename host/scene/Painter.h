// Which function draws which entity, by its record name. A new kind is its file in painters/ and its row in
// the table.
#pragma once

#include <string_view>

namespace scene {

class Pen;
struct Painter {
  void (*draw)(Pen& pen) = nullptr; // null for a kind that has none
  // It draws nothing but paths, the same ones wherever the entity stands.
  bool hasShape = false;
};

Painter PainterOf(std::string_view dxfName);

} // namespace scene
