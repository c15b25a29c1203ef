// How long a character becomes in a drawing file.
#pragma once

struct DrawingForm;

namespace xdata {

// The most bytes that the character takes in the drawing, whether the file is written in UTF-8 or in the
// drawing's code page, escapes included: a text measured so fits also after the drawing has been saved in
// another version.
inline constexpr int kMostBytes = 14; // of two escapes \U+XXXX
int EncodedLength(wchar_t character, const DrawingForm& form);

} // namespace xdata
