// One argument of a formatted text with its type, so that a directive of the wrong kind can be served
// without reading foreign memory. Texts are borrowed: an argument lives no longer than the call it is made
// for.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>

class CString;

namespace afx {

class FormatArgument {
 public:
  enum class Kind { Signed, Unsigned, Character, Double, WideText, NarrowText, Pointer };

  FormatArgument(bool value) : m_kind(Kind::Unsigned), m_size(1), m_unsigned(value ? 1 : 0) {}
  FormatArgument(char value)
      : m_kind(Kind::Character), m_size(1), m_signed(static_cast<unsigned char>(value)) {}
  FormatArgument(wchar_t value) : m_kind(Kind::Character), m_size(sizeof value), m_signed(value) {}
  template <class T>
  requires(std::is_integral_v<T>&& std::is_signed_v<T>) FormatArgument(T value)
      : m_kind(Kind::Signed), m_size(sizeof value), m_signed(value) {}
  template <class T>
  requires(std::is_integral_v<T>&& std::is_unsigned_v<T>) FormatArgument(T value)
      : m_kind(Kind::Unsigned), m_size(sizeof value), m_unsigned(value) {}
  template <class T>
  requires std::is_enum_v<T> FormatArgument(T value)
      : FormatArgument(static_cast<std::underlying_type_t<T>>(value)) {}
  FormatArgument(double value) : m_kind(Kind::Double), m_size(sizeof value), m_double(value) {}
  FormatArgument(float value) : FormatArgument(static_cast<double>(value)) {}
  FormatArgument(long double value) : FormatArgument(static_cast<double>(value)) {}
  // A null text prints nothing.
  FormatArgument(const wchar_t* text)
      : FormatArgument(text ? std::wstring_view(text) : std::wstring_view()) {}
  FormatArgument(const char* text) : FormatArgument(text ? std::string_view(text) : std::string_view()) {}
  FormatArgument(std::wstring_view text) : m_kind(Kind::WideText), m_size(0), m_wide(text) {}
  FormatArgument(std::string_view utf8) : m_kind(Kind::NarrowText), m_size(0), m_narrow(utf8) {}
  FormatArgument(const std::wstring& text) : FormatArgument(std::wstring_view(text)) {}
  FormatArgument(const std::string& utf8) : FormatArgument(std::string_view(utf8)) {}
  FormatArgument(const CString& text);
  FormatArgument(const void* address)
      : m_kind(Kind::Pointer), m_size(sizeof address), m_unsigned(reinterpret_cast<std::uintptr_t>(address)) {
  }

  Kind GetKind() const { return m_kind; }
  // What the argument means to a directive that wants a whole number, a real number or a text. A text is read
  // as _wtoi and _wtof read it; a real number is cut off towards zero and held within the range of 64 bits.
  std::int64_t AsSigned() const;
  std::uint64_t AsUnsigned() const; // a negative number wraps at the width of its own type, as C has it
  double AsDouble() const;
  std::wstring AsText() const;

 private:
  Kind m_kind;
  unsigned m_size; // bytes of the number's own type
  union {
    std::int64_t m_signed;
    std::uint64_t m_unsigned;
    double m_double;
    std::wstring_view m_wide;
    std::string_view m_narrow;
  };
};

// The text that a printf-like format and its arguments give. It never fails, so the format may come from
// data: a directive without an argument prints nothing, arguments left over are ignored, "%%" is one percent
// sign, a percent sign that begins no directive stands for itself, and %n prints and writes nothing. Widths
// and precisions beyond 4096 are cut to that. The decimal point is '.' whatever the locale.
std::wstring FormatText(std::wstring_view format, const FormatArgument* arguments, int count);

} // namespace afx
