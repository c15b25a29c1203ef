// Breaks an MTEXT into lines and columns, and puts every part of it in its place.
#pragma once

#include "host/scene/text/MTextParser.h"

namespace scene {

class TextMetrics;

struct MTextForm {
  double height = 2.5;
  double width = 0;          // lines break beyond it; 0: never
  double lineSpacing = 1;    // times the usual distance of 5/3 of the height
  bool exactSpacing = false; // high letters don't part the lines
  int attachment = 1;        // 1 to 9: top left, top middle, top right, middle left, ...
  double gutter = 0;
  std::vector<double> columnHeights; // one for each column, the last without end; empty: no columns
};

// A piece of one form on its line. Coordinates count from the insertion point, y up.
struct PlacedText {
  std::wstring text; // empty: only a line, of a fraction
  CharacterForm form;
  double x = 0;
  double y = 0; // of the base line
  double advance = 0;
  double slashTo = 0; // of a line: how far up it ends
};

struct MTextLayout {
  std::vector<PlacedText> texts;
  double left = 0; // the box that the text fills
  double right = 0;
  double top = 0;
  double bottom = 0;
};

MTextLayout LayOutMText(const std::vector<TextPiece>& pieces, const MTextForm& form,
                        const TextMetrics& metrics);

} // namespace scene
