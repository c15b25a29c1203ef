#include "host/afx/FormatArgument.h"

#include <cmath>
#include <limits>

#include "host/afx/CString.h"
#include "host/afx/Encoding.h"
#include "host/afx/Numbers.h"

namespace afx {
namespace {

std::int64_t CutOff(double value) {
  if (std::isnan(value)) return 0;
  if (value >= 0x1p63) return std::numeric_limits<std::int64_t>::max();
  if (value < -0x1p63) return std::numeric_limits<std::int64_t>::min();
  return static_cast<std::int64_t>(value);
}

} // namespace

FormatArgument::FormatArgument(const CString& text) : FormatArgument(text.View()) {}

std::int64_t FormatArgument::AsSigned() const {
  switch (m_kind) {
  case Kind::Double:
    return CutOff(m_double);
  case Kind::WideText:
  case Kind::NarrowText:
    return _wtoi(AsText().c_str());
  case Kind::Unsigned:
  case Kind::Pointer:
    return static_cast<std::int64_t>(m_unsigned);
  default:
    return m_signed;
  }
}

std::uint64_t FormatArgument::AsUnsigned() const {
  if (m_kind == Kind::Unsigned || m_kind == Kind::Pointer) return m_unsigned;
  const auto bits = static_cast<std::uint64_t>(AsSigned());
  // char and short arrive as int in C, so nothing narrower than int wraps.
  const bool isText = m_kind == Kind::WideText || m_kind == Kind::NarrowText;
  const bool isNarrow = isText || (m_kind != Kind::Double && m_size <= sizeof(int));
  return isNarrow ? bits & 0xFFFFFFFFu : bits;
}

double FormatArgument::AsDouble() const {
  switch (m_kind) {
  case Kind::Double:
    return m_double;
  case Kind::WideText:
  case Kind::NarrowText:
    return _wtof(AsText().c_str());
  case Kind::Unsigned:
  case Kind::Pointer:
    return static_cast<double>(m_unsigned);
  default:
    return static_cast<double>(m_signed);
  }
}

std::wstring FormatArgument::AsText() const {
  switch (m_kind) {
  case Kind::WideText:
    return std::wstring(m_wide);
  case Kind::NarrowText:
    return Utf8ToWide(m_narrow);
  case Kind::Character:
    return std::wstring(1, static_cast<wchar_t>(m_signed));
  case Kind::Signed:
    return std::to_wstring(m_signed);
  case Kind::Double:
    return FormatText(L"%g", this, 1);
  default:
    return std::to_wstring(m_unsigned);
  }
}

} // namespace afx
