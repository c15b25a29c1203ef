// Which function draws which entity, by its record name. A new kind is its file in painters/ and its row in
// the table.
#pragma once

#include <string_view>

namespace scene {

class Pen;
// What of the drawing a painter looks at.
enum class Reach {
  drawing,  // anything
  entities, // its entity and those within, the blocks, layers, linetypes and styles that they name
  shape     // its entity alone, of which it draws nothing but paths, the same ones wherever it stands
};

// What isn't drawn of it on a layer that is switched off or frozen.
enum class Hides {
  all,
  frozen, // contents on layers of their own stay when the layer is only off
  nothing // the painter looks for itself
};

struct Painter {
  void (*draw)(Pen& pen) = nullptr; // null for a kind that has none
  Reach reach = Reach::drawing;
  Hides hides = Hides::all;
};

Painter PainterOf(std::string_view dxfName);

} // namespace scene
