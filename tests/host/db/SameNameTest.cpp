// Names as records spell them.
#include "host/db/SameName.h"

#include "host/db/DxfText.h"

#include <gtest/gtest.h>

namespace {

TEST(SameName, IsWhatDecodingAndFoldingBothWouldSay) {
  const std::string_view names[] = {
      "",         "A",          "a",          "AB",         "Ab",     "abc", "管材",  "管径",
      "管",       "管材x",      "管材X",      "扣弯",       "ß",      "Ä",   "ä",     "äX",
      "Ω",        "ω",          "\\U+7BA1",   "\\U+7BA1材", "^J",     "^ ",  "^",     "\\M+1C8A8",
      "\xE7\xAE", "\xE7",       "\xFF",       "k",          "\u212A", "Й",   "й",     " a",
      "a ",       "管\\U+6750", "\U00020000", "\U00020001", "ｇ",     "Ｇ",  "扣弯 ", "_$-"};
  for (const std::string_view a : names) {
    for (const std::string_view b : names) {
      const bool same = dxf::decodeText(a).CompareNoCase(dxf::decodeText(b)) == 0;
      EXPECT_EQ(same, dxf::sameName(a, b)) << '"' << a << "\" and \"" << b << '"';
    }
  }
}

} // namespace
