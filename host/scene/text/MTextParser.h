// Takes the text of an MTEXT apart: words, blanks, breaks and stacked fractions, each with the form that the
// codes before it gave.
#pragma once

#include "host/scene/Color.h"
#include "host/scene/text/Font.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace scene {

struct CharacterForm {
  Font font;
  double height = 1;
  double widthFactor = 1;
  double oblique = 0; // radians
  int color = -1;     // index, 256 by layer, 0 by block; below 0 the entity's own
  std::optional<Color> trueColor;
  bool underlined = false;
  bool overlined = false;
  bool struck = false;
  int alignment = 0; // of a fraction on its line: 0 bottom, 1 middle, 2 top
  bool operator==(const CharacterForm&) const = default;
};

struct ParagraphForm {
  double firstIndent = 0; // all in drawing units
  double leftIndent = 0;
  double rightIndent = 0;
  wchar_t alignment = L'\0'; // l, c, r, j, d; 0 as the whole text
  std::vector<double> tabs;
  bool operator==(const ParagraphForm&) const = default;
};

struct TextPiece {
  enum class Kind { word, blank, tab, newLine, newColumn, stack };
  Kind kind = Kind::word;
  std::wstring text; // of a stack the upper part
  std::wstring lower;
  wchar_t stackKind = L'\0'; // / with a line, # slanted, ^ without
  CharacterForm form;
  ParagraphForm paragraph;
};

// Fonts of styles and family names are told by the codes themselves, so that nothing of a drawing is needed.
std::vector<TextPiece> ParseMText(std::wstring_view text, const CharacterForm& initial);

} // namespace scene
