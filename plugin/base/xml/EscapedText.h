// Texts that XML cannot carry, written with backslashes: control characters, surrogates, U+FFFE and U+FFFF.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "host/afx/CString.h"

namespace xml {

// Whether XML can carry every character, if need be as a character reference.
bool IsPlain(std::wstring_view text);

// "\\" for a backslash, "\uXXXX" for what XML cannot carry. What is no code point at all becomes U+FFFD.
std::string Escape(std::wstring_view text);

// The inverse; nothing for a backslash that begins neither.
std::optional<CString> Unescape(std::string_view utf8);

} // namespace xml
