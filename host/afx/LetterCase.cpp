#include "host/afx/LetterCase.h"

#include <algorithm>

#include <locale.h>
#include <wctype.h>

namespace afx {
namespace {

// The C library's own Unicode tables, which need no installed locale. Without them only ASCII letters have
// case.
locale_t UnicodeTables() {
  static const locale_t tables = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
  return tables;
}

} // namespace

wchar_t ToUpper(wchar_t character) {
  if (character < 0x80) return character >= L'a' && character <= L'z' ? character - (L'a' - L'A') : character;
  const locale_t tables = UnicodeTables();
  return tables ? static_cast<wchar_t>(towupper_l(static_cast<wint_t>(character), tables)) : character;
}

wchar_t ToLower(wchar_t character) {
  if (character < 0x80) return character >= L'A' && character <= L'Z' ? character + (L'a' - L'A') : character;
  const locale_t tables = UnicodeTables();
  return tables ? static_cast<wchar_t>(towlower_l(static_cast<wint_t>(character), tables)) : character;
}

int CompareNoCase(std::wstring_view a, std::wstring_view b) {
  const std::size_t common = std::min(a.size(), b.size());
  for (std::size_t i = 0; i < common; ++i) {
    const wchar_t left = ToLower(a[i]);
    const wchar_t right = ToLower(b[i]);
    if (left != right) return left < right ? -1 : 1;
  }
  if (a.size() == b.size()) return 0;
  return a.size() < b.size() ? -1 : 1;
}

} // namespace afx
