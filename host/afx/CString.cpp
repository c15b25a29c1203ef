#include "host/afx/CString.h"

#include <algorithm>
#include <ostream>

#include "host/afx/CInvalidArgException.h"
#include "host/afx/Encoding.h"
#include "host/afx/LetterCase.h"

namespace {

std::wstring_view Borrow(const wchar_t* text) {
  return text ? std::wstring_view(text) : std::wstring_view();
}

int Position(std::size_t found) {
  return found == std::wstring::npos ? -1 : static_cast<int>(found);
}

} // namespace

CString::CString(const wchar_t* text) : m_text(Borrow(text)) {}

CString::CString(const wchar_t* text, int length) {
  if (length < 0 || (!text && length > 0)) AfxThrowInvalidArgException();
  if (length > 0) m_text.assign(text, static_cast<std::size_t>(length));
}

CString::CString(wchar_t character, int count) {
  if (count > 0) m_text.assign(static_cast<std::size_t>(count), character);
}

CString CString::FromUtf8(std::string_view utf8) {
  return CString(afx::Utf8ToWide(utf8));
}

std::string CString::ToUtf8() const {
  return afx::WideToUtf8(m_text);
}

wchar_t CString::GetAt(int index) const {
  if (index < 0 || index > GetLength()) AfxThrowInvalidArgException();
  return m_text[static_cast<std::size_t>(index)];
}

void CString::SetAt(int index, wchar_t character) {
  if (index < 0 || index >= GetLength()) AfxThrowInvalidArgException();
  m_text[static_cast<std::size_t>(index)] = character;
}

CString& CString::Append(std::wstring_view text) {
  m_text.append(text);
  return *this;
}

CString& CString::operator+=(const wchar_t* text) {
  return Append(Borrow(text));
}

CString& CString::operator+=(wchar_t character) {
  m_text += character;
  return *this;
}

int CString::Compare(const wchar_t* other) const {
  return View().compare(Borrow(other));
}

int CString::CompareNoCase(const wchar_t* other) const {
  return CompareNoCase(Borrow(other));
}

int CString::CompareNoCase(std::wstring_view other) const {
  return afx::CompareNoCase(m_text, other);
}

CString CString::Left(int count) const {
  return Mid(0, count);
}

CString CString::Mid(int first) const {
  return Mid(first, GetLength());
}

CString CString::Mid(int first, int count) const {
  first = std::clamp(first, 0, GetLength());
  count = std::clamp(count, 0, GetLength() - first);
  return CString(View().substr(static_cast<std::size_t>(first), static_cast<std::size_t>(count)));
}

CString CString::Right(int count) const {
  count = std::clamp(count, 0, GetLength());
  return Mid(GetLength() - count, count);
}

CString CString::SpanIncluding(const wchar_t* characters) const {
  return CString(View().substr(0, m_text.find_first_not_of(Borrow(characters))));
}

CString CString::SpanExcluding(const wchar_t* characters) const {
  return CString(View().substr(0, m_text.find_first_of(Borrow(characters))));
}

CString CString::Tokenize(const wchar_t* delimiters, int& start) const {
  if (start < 0) AfxThrowInvalidArgException();
  const std::size_t begin = m_text.find_first_not_of(Borrow(delimiters), static_cast<std::size_t>(start));
  if (begin == std::wstring::npos) {
    start = -1;
    return CString();
  }
  const std::size_t end = std::min(m_text.find_first_of(Borrow(delimiters), begin), m_text.size());
  start = static_cast<int>(std::min(end + 1, m_text.size()));
  return CString(View().substr(begin, end - begin));
}

int CString::Find(const wchar_t* text, int start) const {
  if (start < 0 || start > GetLength()) return -1;
  return Position(m_text.find(Borrow(text), static_cast<std::size_t>(start)));
}

int CString::Find(wchar_t character, int start) const {
  if (start < 0) return -1;
  return Position(m_text.find(character, static_cast<std::size_t>(start)));
}

int CString::ReverseFind(wchar_t character) const {
  return Position(m_text.rfind(character));
}

int CString::FindOneOf(const wchar_t* characters) const {
  return Position(m_text.find_first_of(Borrow(characters)));
}
