// Draws laid out text, for MTEXT and whatever else holds one.
#pragma once

#include "host/scene/Pen.h"
#include "host/scene/text/MTextLayout.h"

namespace scene {

struct MTextPlace {
  AcGePoint3d at; // world
  AcGeVector3d normal{0, 0, 1};
  AcGeVector3d along{1, 0, 0};
};

struct TextBackground {
  std::optional<Color> fill;
  bool framed = false;
  double border = 0.5; // around the text, of its height
};

void DrawMText(Pen& pen, const CString& text, const StyleLook& style, const MTextForm& form,
               const MTextPlace& place, const TextBackground& background = {});

} // namespace scene
