#include "plugin/graph/EncodedLength.h"

#include <algorithm>
#include <string_view>

#include "host/afx/CodePage.h"
#include "host/db/DrawingForm.h"

namespace {

constexpr int kEscape = 7; // \U+XXXX

int Utf8Length(wchar_t c) {
  if (c < 0x80) return 1;
  if (c < 0x800) return 2;
  return c < 0x10000 ? 3 : 4;
}

int CodePageLength(wchar_t c, const afx::CodePage& page) {
  bool lacking = false;
  const std::string bytes =
      page.Encode(std::wstring_view(&c, 1), [&](wchar_t, std::string&) { lacking = true; });
  if (lacking) return c < 0x10000 ? kEscape : xdata::kMostBytes;
  return static_cast<int>(bytes.size());
}

} // namespace

int xdata::EncodedLength(wchar_t c, const DrawingForm& form) {
  if (c == L'^' || (c >= 0 && c < 0x20)) return 2; // caret form
  if (c >= 0 && c < 0x80) return 1;
  const afx::CodePage* page = afx::CodePage::Find(form.codePage);
  // A drawing of an unknown code page: whatever it is, an escape is the longest.
  const int inPage = page ? CodePageLength(c, *page) : kMostBytes;
  return std::max(Utf8Length(c), inPage);
}
