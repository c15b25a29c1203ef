#include "host/ed/EdKeywords.h"

#include "host/afx/LetterCase.h"

namespace {

// What must be typed at least: the first run of capitals and digits, or the whole word where there is none.
CString leastOf(const CString& word) {
  std::wstring least;
  for (const wchar_t c : word.View()) {
    const bool capital = afx::ToLower(c) != c || (c >= L'0' && c <= L'9') || c == L'?';
    if (capital)
      least += c;
    else if (!least.empty())
      break;
  }
  return least.empty() ? word : CString(least);
}

bool sameText(std::wstring_view a, std::wstring_view b) {
  return afx::CompareNoCase(a, b) == 0;
}

} // namespace

EdKeywords::EdKeywords(const CString& list) {
  int at = 0;
  bool globals = false;
  std::size_t index = 0;
  for (CString word = list.Tokenize(L" \t", at); at != -1; word = list.Tokenize(L" \t", at)) {
    if (word == L"_") {
      globals = true;
    } else if (globals) {
      if (index < m_words.size()) m_words[index++].global = word.SpanExcluding(L",");
    } else {
      const int comma = word.Find(L',');
      const CString full = comma < 0 ? word : word.Left(comma);
      m_words.push_back({full, comma < 0 ? leastOf(word) : word.Mid(comma + 1), full});
    }
  }
}

std::optional<std::size_t> EdKeywords::matchIndex(const CString& typed) const {
  std::wstring_view text = typed.View();
  if (text.starts_with(L'_')) text.remove_prefix(1);
  if (text.empty()) return std::nullopt;
  for (std::size_t i = 0; i < m_words.size(); ++i) {
    const auto& word = m_words[i];
    const auto full = word.word.View();
    const bool abbreviates = text.size() <= full.size() && text.size() >= word.least.View().size() &&
                             sameText(text, full.substr(0, text.size()));
    if (abbreviates || sameText(text, word.least.View()) || sameText(text, word.global.View())) return i;
  }
  return std::nullopt;
}

std::optional<CString> EdKeywords::match(const CString& typed) const {
  const auto index = matchIndex(typed);
  if (!index) return std::nullopt;
  return m_words[*index].global;
}

CString EdKeywords::text() const {
  CString text;
  for (const auto& word : m_words) {
    if (!text.IsEmpty()) text += L"、";
    text += word.least;
    if (word.word != word.least) text += L"(" + word.word + L")";
  }
  return text;
}
