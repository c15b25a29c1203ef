// The text of the whole system: wide characters, one per code point. At every boundary (files, console,
// toolkit) it is converted to and from UTF-8; see Encoding.h for other code pages.
#pragma once

#include <iosfwd>
#include <string>
#include <string_view>
#include <type_traits>

#include "host/afx/FormatArgument.h"

class CString {
 public:
  CString() = default;
  CString(const wchar_t* text); // null gives the empty text
  CString(const wchar_t* text, int length);
  CString(wchar_t character, int count = 1);
  CString(std::wstring text) : m_text(std::move(text)) {}
  explicit CString(std::wstring_view text) : m_text(text) {}
  static CString FromUtf8(std::string_view utf8); // never fails, see afx::Utf8ToWide
  std::string ToUtf8() const;

  int GetLength() const { return static_cast<int>(m_text.size()); }
  bool IsEmpty() const { return m_text.empty(); }
  void Empty() { m_text.clear(); }
  // Index 0 to the length, where the closing null stands; any other raises CInvalidArgException.
  wchar_t GetAt(int index) const;
  template <class Index>
  requires std::is_integral_v<Index> wchar_t operator[](Index index) const { return GetAt(Checked(index)); }
  // Index 0 to length - 1; any other raises CInvalidArgException.
  void SetAt(int index, wchar_t character);
  const wchar_t* GetString() const { return m_text.c_str(); }
  operator const wchar_t*() const { return m_text.c_str(); }
  std::wstring_view View() const { return m_text; }
  // A text in a condition is nearly always a forgotten IsEmpty().
  explicit operator bool() const = delete;

  CString& operator+=(const CString& text) { return Append(text.View()); }
  CString& operator+=(const wchar_t* text);
  CString& operator+=(wchar_t character);
  CString& Append(std::wstring_view text);

  // Below, at or above 0, by code points; without case every letter of Unicode counts as its small form.
  int Compare(std::wstring_view other) const { return View().compare(other); }
  int Compare(const wchar_t* other) const;
  int CompareNoCase(const wchar_t* other) const;
  int CompareNoCase(std::wstring_view other) const;

  // Parts of the text. Counts and starts outside the text are cut to what is there.
  CString Left(int count) const;
  CString Mid(int first) const;
  CString Mid(int first, int count) const;
  CString Right(int count) const;
  CString SpanIncluding(const wchar_t* characters) const;
  CString SpanExcluding(const wchar_t* characters) const;
  // The next piece between the delimiters from start on, skipping empty pieces. start moves behind it; with
  // nothing left the result is empty and start is -1.
  CString Tokenize(const wchar_t* delimiters, int& start) const;

  // Positions from 0, or -1.
  int Find(const wchar_t* text, int start = 0) const;
  int Find(wchar_t character, int start = 0) const;
  int ReverseFind(wchar_t character) const;
  int FindOneOf(const wchar_t* characters) const;

  // Without an argument: blanks are space, tab, carriage return and line feed.
  CString& Trim();
  CString& TrimLeft();
  CString& TrimRight();
  CString& Trim(const wchar_t* characters);
  CString& TrimLeft(const wchar_t* characters);
  CString& TrimRight(const wchar_t* characters);
  CString& Trim(wchar_t character) { return Trim(CString(character).GetString()); }
  CString& TrimLeft(wchar_t character) { return TrimLeft(CString(character).GetString()); }
  CString& TrimRight(wchar_t character) { return TrimRight(CString(character).GetString()); }

  CString& MakeUpper();
  CString& MakeLower();
  CString& MakeReverse();
  int Replace(const wchar_t* old, const wchar_t* replacement); // number of places
  int Replace(wchar_t old, wchar_t replacement);
  int Remove(wchar_t character);              // number of characters
  int Insert(int index, const wchar_t* text); // the new length; the index is cut to the text
  int Insert(int index, wchar_t character);   // the new length
  int Delete(int index, int count = 1);       // the new length

  // See afx::FormatText for what each directive does with an argument of another type, or with none.
  template <class... Arguments> void Format(const wchar_t* format, const Arguments&... arguments) {
    m_text = Formatted(format, arguments...);
  }
  template <class... Arguments> void AppendFormat(const wchar_t* format, const Arguments&... arguments) {
    m_text += Formatted(format, arguments...);
  }

  friend bool operator==(const CString& a, const CString& b) { return a.m_text == b.m_text; }
  friend bool operator==(const CString& a, const wchar_t* b) { return a.Compare(b) == 0; }
  friend auto operator<=>(const CString& a, const CString& b) { return a.m_text <=> b.m_text; }
  friend auto operator<=>(const CString& a, const wchar_t* b) { return a.Compare(b) <=> 0; }

 private:
  template <class Index> static int Checked(Index index) {
    // An index that no int holds is out of range like any other.
    return static_cast<Index>(static_cast<int>(index)) == index ? static_cast<int>(index) : -1;
  }
  template <class... Arguments>
  static std::wstring Formatted(const wchar_t* format, const Arguments&... arguments) {
    const std::wstring_view text = format ? std::wstring_view(format) : std::wstring_view();
    if constexpr (sizeof...(arguments) == 0) {
      return afx::FormatText(text, nullptr, 0);
    } else {
      const afx::FormatArgument list[] = {afx::FormatArgument(arguments)...};
      return afx::FormatText(text, list, static_cast<int>(sizeof...(arguments)));
    }
  }

  std::wstring m_text;
};

CString operator+(const CString& a, const CString& b);
CString operator+(const CString& a, const wchar_t* b);
CString operator+(const wchar_t* a, const CString& b);
CString operator+(const CString& a, wchar_t b);
CString operator+(wchar_t a, const CString& b);

// Shows a text in messages of failed tests.
void PrintTo(const CString& text, std::ostream* out);

template <> struct std::hash<CString> {
  std::size_t operator()(const CString& text) const noexcept {
    return std::hash<std::wstring_view>()(text.View());
  }
};
