// Looks for what a lenient parser would let pass although it makes the text another one than was meant: bytes
// that are no UTF-8, control characters, references to entities, a document type.
#pragma once

#include <cstddef>
#include <string_view>

namespace xml {

struct TextFault {
  std::size_t offset = 0;
  const wchar_t* reason = nullptr; // null when there is none
};

TextFault CheckText(std::string_view text);

} // namespace xml
