// A line of text as drawings write it: %%c, %%d, %%p for signs, %%nnn for a character by number, %%u, %%o and
// %%k to begin and end a line under, over and through it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace scene {

struct TextSpan {
  std::wstring text;
  bool underlined = false;
  bool overlined = false;
  bool struck = false;
  bool operator==(const TextSpan&) const = default;
};

// In parts of one decoration each; empty parts are left out.
std::vector<TextSpan> ParseLineText(std::wstring_view text);
// The sign of a code letter (c, d, p, %), or 0.
wchar_t SignOf(wchar_t code);

} // namespace scene
