#include "plugin/graph/XdataText.h"

#include "host/db/DrawingForm.h"
#include "plugin/graph/EncodedLength.h"

namespace {

constexpr int kGroupBytes = 255;

bool LooksLikeEscape(std::wstring_view rest) {
  return rest.starts_with(L"\\U+") || rest.starts_with(L"\\u+") || rest.starts_with(L"\\M+");
}

} // namespace

std::vector<CString> xdata::Pieces(const CString& text, const DrawingForm& form) {
  const std::wstring_view all = text.View();
  // As nearly every value is.
  if (text.GetLength() * kMostBytes <= kGroupBytes && text.Find(L'\\') < 0) return {text};
  std::vector<CString> pieces;
  std::size_t begin = 0;
  int bytes = 0;
  const auto cut = [&](std::size_t end) {
    pieces.emplace_back(all.substr(begin, end - begin));
    begin = end;
    bytes = 0;
  };
  for (std::size_t i = 0; i < all.size(); ++i) {
    const int length = EncodedLength(all[i], form);
    if (bytes + length > kGroupBytes) cut(i);
    bytes += length;
    if (LooksLikeEscape(all.substr(i))) cut(i + 1);
  }
  if (begin < all.size() || pieces.empty()) cut(all.size());
  return pieces;
}
