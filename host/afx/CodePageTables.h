// The two directions of one code page as plain tables, filled once from the C library's iconv.
// All pages of drawings have one or two bytes a character, so that nothing else is needed at run time.
#pragma once

#include <array>
#include <vector>

namespace afx {

struct CodePageTables {
  // The characters of the bytes 0x80-0xFF, and of pairs by (lead << 8 | trail). 0: undefined.
  std::array<char16_t, 128> single{};
  std::vector<char16_t> pairs; // empty for a page of single bytes
  // The bytes of each character up to U+FFFF, a lead byte in the upper half. 0: the page lacks it.
  std::vector<unsigned short> codes;

  // Fills the tables from iconv's page of that name; false when this machine has none. Pairs that it leaves
  // open are taken from the fallback (null for none) if that loses nothing.
  bool Fill(const char* iconvName, const char* fallback);

 private:
  void AddFallback(const char* iconvName);
};

} // namespace afx
