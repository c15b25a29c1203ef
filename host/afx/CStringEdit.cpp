// The operations of CString that change the text in place, and joining.
#include <algorithm>
#include <ostream>

#include "host/afx/CString.h"
#include "host/afx/LetterCase.h"

namespace {

constexpr const wchar_t* kBlanks = L" \t\r\n";

std::wstring_view Borrow(const wchar_t* text) {
  return text ? std::wstring_view(text) : std::wstring_view();
}

} // namespace

CString& CString::Trim() {
  return Trim(kBlanks);
}

CString& CString::TrimLeft() {
  return TrimLeft(kBlanks);
}

CString& CString::TrimRight() {
  return TrimRight(kBlanks);
}

CString& CString::Trim(const wchar_t* characters) {
  TrimRight(characters);
  return TrimLeft(characters);
}

CString& CString::TrimLeft(const wchar_t* characters) {
  m_text.erase(0, std::min(m_text.find_first_not_of(Borrow(characters)), m_text.size()));
  return *this;
}

CString& CString::TrimRight(const wchar_t* characters) {
  // npos + 1 is 0: a text of nothing but such characters becomes empty.
  m_text.erase(m_text.find_last_not_of(Borrow(characters)) + 1);
  return *this;
}

CString& CString::MakeUpper() {
  for (wchar_t& character : m_text) character = afx::ToUpper(character);
  return *this;
}

CString& CString::MakeLower() {
  for (wchar_t& character : m_text) character = afx::ToLower(character);
  return *this;
}

CString& CString::MakeReverse() {
  std::reverse(m_text.begin(), m_text.end());
  return *this;
}

int CString::Replace(const wchar_t* old, const wchar_t* replacement) {
  const std::wstring_view wanted = Borrow(old);
  const std::wstring_view instead = Borrow(replacement);
  if (wanted.empty()) return 0;
  std::wstring result;
  std::size_t done = 0;
  int count = 0;
  for (std::size_t at = m_text.find(wanted); at != std::wstring::npos; at = m_text.find(wanted, done)) {
    result.append(m_text, done, at - done).append(instead);
    done = at + wanted.size();
    ++count;
  }
  if (count > 0) m_text = result.append(m_text, done);
  return count;
}

int CString::Replace(wchar_t old, wchar_t replacement) {
  const auto count = std::count(m_text.begin(), m_text.end(), old);
  std::replace(m_text.begin(), m_text.end(), old, replacement);
  return static_cast<int>(count);
}

int CString::Remove(wchar_t character) {
  return static_cast<int>(std::erase(m_text, character));
}

int CString::Insert(int index, const wchar_t* text) {
  m_text.insert(static_cast<std::size_t>(std::clamp(index, 0, GetLength())), std::wstring(Borrow(text)));
  return GetLength();
}

int CString::Insert(int index, wchar_t character) {
  m_text.insert(static_cast<std::size_t>(std::clamp(index, 0, GetLength())), 1, character);
  return GetLength();
}

int CString::Delete(int index, int count) {
  index = std::clamp(index, 0, GetLength());
  count = std::clamp(count, 0, GetLength() - index);
  m_text.erase(static_cast<std::size_t>(index), static_cast<std::size_t>(count));
  return GetLength();
}

CString operator+(const CString& a, const CString& b) {
  return CString(a) += b;
}

CString operator+(const CString& a, const wchar_t* b) {
  return CString(a) += b;
}

CString operator+(const wchar_t* a, const CString& b) {
  return CString(a) += b;
}

CString operator+(const CString& a, wchar_t b) {
  return CString(a) += b;
}

CString operator+(wchar_t a, const CString& b) {
  return CString(a) += b;
}

void PrintTo(const CString& text, std::ostream* out) {
  *out << '"' << text.ToUtf8() << '"';
}
