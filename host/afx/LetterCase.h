// Capital and small letters of all scripts, one character for one, whatever locale the process runs in.
// Names of layers, blocks and commands compare without case through these.
#pragma once

#include <string_view>

namespace afx {

wchar_t ToUpper(wchar_t character);
wchar_t ToLower(wchar_t character);

// Below, at or above 0; letters count as their small forms.
int CompareNoCase(std::wstring_view a, std::wstring_view b);

} // namespace afx
