#include "host/db/AcDbHandle.h"

#include <charconv>

AcDbHandle AcDbHandle::fromHex(std::string_view text) {
  while (!text.empty() && (text.front() == ' ' || text.front() == '\t')) text.remove_prefix(1);
  while (!text.empty() && (text.back() == ' ' || text.back() == '\t')) text.remove_suffix(1);
  std::uint64_t value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value, 16);
  if (error != std::errc{} || end != text.data() + text.size()) return {};
  return AcDbHandle(value);
}

std::string AcDbHandle::toHex() const {
  char digits[16];
  const auto end = std::to_chars(digits, digits + sizeof digits, m_value, 16).ptr;
  std::string hex(digits, end);
  for (char& c : hex)
    if (c >= 'a' && c <= 'f') c = static_cast<char>(c - 'a' + 'A');
  return hex;
}

CString AcDbHandle::ascii() const {
  return CString::FromUtf8(toHex());
}
