#include "host/ed/WildcardMatch.h"

#include "host/afx/LetterCase.h"

#include <optional>

namespace ed {
namespace {

bool isDigit(wchar_t c) {
  return c >= L'0' && c <= L'9';
}
bool isLetter(wchar_t c) {
  return afx::ToLower(c) != c || afx::ToUpper(c) != c || c >= 0x2E80;
}

class Matcher {
 public:
  explicit Matcher(bool ignoreCase) : m_ignoreCase(ignoreCase) {}

  // One pattern without commas. Goes back to the latest "*" only, so its cost is at most the product of both
  // lengths.
  bool fits(std::wstring_view text, std::wstring_view pattern) const {
    std::size_t t = 0;
    std::size_t p = 0;
    std::optional<std::size_t> starPattern;
    std::size_t starText = 0;
    while (true) {
      if (p < pattern.size() && pattern[p] == L'*') {
        starPattern = ++p;
        starText = t;
        continue;
      }
      if (t == text.size() && p == pattern.size()) return true;
      std::size_t next = p;
      if (t < text.size() && p < pattern.size() && fitsOne(text[t], pattern, next)) {
        ++t;
        p = next;
      } else if (starPattern && starText < text.size()) {
        t = ++starText;
        p = *starPattern;
      } else {
        return false;
      }
    }
  }

 private:
  bool same(wchar_t a, wchar_t b) const {
    return a == b || (m_ignoreCase && afx::ToLower(a) == afx::ToLower(b));
  }

  // Whether c fits the pattern's element at p, which moves behind it.
  bool fitsOne(wchar_t c, std::wstring_view pattern, std::size_t& p) const {
    const wchar_t element = pattern[p++];
    switch (element) {
    case L'?':
      return true;
    case L'#':
      return isDigit(c);
    case L'@':
      return isLetter(c);
    case L'.':
      return !isDigit(c) && !isLetter(c);
    case L'`':
      return p < pattern.size() ? same(c, pattern[p++]) : same(c, element);
    case L'[':
      return fitsSet(c, pattern, p);
    default:
      return same(c, element);
    }
  }

  bool fitsSet(wchar_t c, std::wstring_view pattern, std::size_t& p) const {
    const auto close = pattern.find(L']', p + 1);
    if (close == std::wstring_view::npos) return same(c, L'['); // no set: the bracket itself
    auto set = pattern.substr(p, close - p);
    p = close + 1;
    const bool negated = set.starts_with(L'~') && set.size() > 1;
    if (negated) set.remove_prefix(1);
    bool found = false;
    for (std::size_t i = 0; i < set.size() && !found; ++i) {
      if (i + 2 < set.size() && set[i + 1] == L'-') {
        found = (c >= set[i] && c <= set[i + 2]) ||
                (m_ignoreCase && ((afx::ToLower(c) >= set[i] && afx::ToLower(c) <= set[i + 2]) ||
                                  (afx::ToUpper(c) >= set[i] && afx::ToUpper(c) <= set[i + 2])));
        i += 2;
      } else {
        found = same(c, set[i]);
      }
    }
    return found != negated;
  }

  bool m_ignoreCase;
};

// Where the pattern that begins at from ends: a comma outside brackets and not marked with "`".
std::size_t endOfPattern(std::wstring_view patterns, std::size_t from) {
  for (std::size_t i = from; i < patterns.size(); ++i) {
    if (patterns[i] == L'`') {
      ++i;
    } else if (patterns[i] == L'[') {
      const auto close = patterns.find(L']', i + 1);
      if (close != std::wstring_view::npos) i = close;
    } else if (patterns[i] == L',') {
      return i;
    }
  }
  return patterns.size();
}

} // namespace

bool MatchesPattern(std::wstring_view text, std::wstring_view patterns, bool ignoreCase) {
  const Matcher matcher(ignoreCase);
  for (std::size_t begin = 0; begin <= patterns.size();) {
    const auto end = endOfPattern(patterns, begin);
    auto pattern = patterns.substr(begin, end - begin);
    const bool negated = pattern.starts_with(L'~');
    if (negated) pattern.remove_prefix(1);
    if (matcher.fits(text, pattern) != negated) return true;
    begin = end + 1;
  }
  return false;
}

} // namespace ed

bool acutWcMatch(const wchar_t* text, const wchar_t* pattern) {
  return text && pattern && ed::MatchesPattern(text, pattern, false);
}
