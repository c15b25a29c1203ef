// Finds the place at which a text cannot be JSON whatever its structure: bytes that are no UTF-8, a control
// character inside a string, a string without an end.
#pragma once

#include <cstddef>
#include <string_view>

namespace idp {

struct TextFault {
  std::size_t offset = 0;
  const wchar_t* reason = nullptr; // null when there is none
};

TextFault FindTextFault(std::string_view text);

// The first byte that is no part of a well-formed character; the size of the text when all are.
std::size_t FirstBadByte(std::string_view text);

} // namespace idp
