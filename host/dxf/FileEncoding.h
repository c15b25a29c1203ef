// The bytes of a drawing file as the text that records are made of (UTF-8, lines ending in a line feed), and
// back in the encoding that the file had.
#pragma once

#include "host/afx/CString.h"
#include "host/db/DrawingForm.h"

#include <string>
#include <string_view>
#include <vector>

namespace dxf {

// The code page of a drawing that names none: our users' own.
inline constexpr const char* kDefaultCodePage = "ANSI_936";

struct DecodedFile {
  std::string text;
  std::vector<CString> notes; // what was not as the header says, a sentence each
};

// Sets version, code page, utf8 and crlf of form from the bytes. Text that contradicts the header is tried as
// UTF-8 and then in the code page; bytes that neither explains are kept and written back.
DecodedFile decodeFile(std::string bytes, DrawingForm& form);

// A piece of record text for a file of that form. Whole tags only.
std::string encodeForFile(std::string_view text, const DrawingForm& form);
// Whether encodeForFile would give the same bytes for every text, so that nothing needs converting.
bool isPlainForm(const DrawingForm& form);

// Puts a replacement character in the place of each byte that decodeFile kept because nothing explained it.
// Gives their number.
std::size_t replaceUnexplainedBytes(std::string& text);

} // namespace dxf
