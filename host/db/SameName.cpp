#include "host/db/SameName.h"

#include "host/db/DxfText.h"

#include <optional>

namespace {

bool isPlain(char c) {
  return static_cast<unsigned char>(c) < 0x80 && c != '\\' && c != '^' && c != '\0';
}

// First bytes of U+4000 to U+9FFF, which have no case and take three bytes each.
bool beginsIdeograph(char c) {
  return static_cast<unsigned char>(c) >= 0xE4 && static_cast<unsigned char>(c) <= 0xE9;
}

char lower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

// By plain letters and ideographs, character by character; nothing where there are others ahead of the first
// difference.
std::optional<bool> compareSimple(std::string_view a, std::string_view b) {
  std::size_t i = 0; // the same place in both, as long as all characters have been the same
  while (i < a.size() && i < b.size()) {
    if (isPlain(a[i]) && isPlain(b[i])) {
      if (lower(a[i]) != lower(b[i])) return false;
      ++i;
    } else if (beginsIdeograph(a[i]) && beginsIdeograph(b[i])) {
      constexpr std::size_t bytes = 3;
      if (a.size() < i + bytes || b.size() < i + bytes) return std::nullopt;
      if (a.substr(i, bytes) != b.substr(i, bytes)) return false;
      i += bytes;
    } else {
      return std::nullopt;
    }
  }
  if (i == a.size() && i == b.size()) return true;
  // What is left of the longer one stands for something, whatever it is.
  return false;
}

} // namespace

bool dxf::sameName(std::string_view a, std::string_view b) {
  if (const auto same = compareSimple(a, b)) return *same;
  return decodeText(a).CompareNoCase(decodeText(b)) == 0;
}
