// The number by which a drawing file names an object, unique in its drawing and never 0 for one that has it.
#pragma once

#include "host/afx/CString.h"

#include <compare>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

class AcDbHandle {
 public:
  constexpr AcDbHandle() = default;
  constexpr explicit AcDbHandle(std::uint64_t value) : m_value(value) {}

  // Up to 16 hexadecimal digits, blanks around them allowed; anything else gives the null handle.
  static AcDbHandle fromHex(std::string_view text);

  std::uint64_t value() const { return m_value; }
  bool isNull() const { return m_value == 0; }
  std::string toHex() const;
  CString ascii() const;

  auto operator<=>(const AcDbHandle&) const = default;

 private:
  std::uint64_t m_value = 0;
};

template <> struct std::hash<AcDbHandle> {
  std::size_t operator()(AcDbHandle h) const noexcept { return std::hash<std::uint64_t>{}(h.value()); }
};
