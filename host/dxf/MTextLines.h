// The plain lines of a text with formatting (MTEXT), as the record holds them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace dxf {

// Paragraphs and line breaks end a line; fonts, heights, colours and the like are left out, stacked fractions
// become "a/b". Escapes of characters (\U+XXXX, %%c) stay for the reader of the line.
std::vector<std::string> mtextLines(std::string_view contents);

} // namespace dxf
