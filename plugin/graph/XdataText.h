// Long texts in extended data: one group holds at most 255 bytes.
#pragma once

#include <vector>

#include "host/afx/CString.h"

struct DrawingForm;

namespace xdata {

// Cuts the text between characters into pieces that fit a group each; the empty text is one empty piece.
// Joined they give the text again. A text that looks like an escape of drawing files (\U+4E2D) is cut inside,
// so that no reader takes it for the character.
std::vector<CString> Pieces(const CString& text, const DrawingForm& form);

} // namespace xdata
