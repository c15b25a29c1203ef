// Name patterns as filters and layer prompts take them: "*" any text, "?" any character, "#" a digit, "@" a
// letter, "." neither of them, "[abc]" and "[a-z]" one of a set, "[~abc]" none of it, "~" first: all but, "`"
// the next character as it stands, "," between patterns of which one must fit.
#pragma once

#include <string_view>

namespace ed {

bool MatchesPattern(std::wstring_view text, std::wstring_view pattern, bool ignoreCase);

} // namespace ed

// As above, with case. Null matches nothing.
bool acutWcMatch(const wchar_t* text, const wchar_t* pattern);
