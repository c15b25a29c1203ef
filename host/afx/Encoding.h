// UTF-8 to wide text and back without ever losing a byte: what is not UTF-8 is carried through as lone
// surrogates. For the code page of an old drawing use CodePage.
#pragma once

#include <string>
#include <string_view>

#include "host/afx/CodePage.h"

namespace afx {

// Never fails. A byte 0x80-0xFF that is no part of a well-formed sequence becomes U+DC80-U+DCFF.
std::wstring Utf8ToWide(std::string_view utf8);

// The inverse: U+DC80-U+DCFF become their single bytes again. Two surrogates that form a pair are written as
// the one character they mean; any other surrogate or value beyond Unicode becomes U+FFFD.
std::string WideToUtf8(std::wstring_view text);

// Whether all of it is well-formed: no overlong forms, no surrogates, nothing above U+10FFFF, nothing cut
// off.
bool IsUtf8(std::string_view bytes);

} // namespace afx
