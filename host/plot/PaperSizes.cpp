#include "host/plot/PaperSizes.h"

#include "host/afx/Numbers.h"

namespace plot {
namespace {

struct Row {
  const wchar_t* name;
  PaperSize size;
};
constexpr Row kRows[] = {
    {L"A0", {1189, 841}}, {L"A1", {841, 594}}, {L"A2", {594, 420}}, {L"A3", {420, 297}}, {L"A4", {297, 210}}};
constexpr double kLeast = 10;
constexpr double kMost = 5000;

} // namespace

std::optional<PaperSize> PaperOf(const CString& text) {
  CString trimmed = text;
  trimmed.Trim();
  for (const Row& row : kRows)
    if (trimmed.CompareNoCase(row.name) == 0) return row.size;
  const wchar_t* end = nullptr;
  PaperSize size;
  size.width = afx::wcstod(trimmed.GetString(), &end);
  if (*end != L'x' && *end != L'X' && *end != L'*' && *end != L'\u00D7') return std::nullopt;
  const wchar_t* second = end + 1;
  size.height = afx::wcstod(second, &end);
  const auto isUsable = [](double side) { return side >= kLeast && side <= kMost; };
  if (end == second || *end != L'\0' || !isUsable(size.width) || !isUsable(size.height)) return std::nullopt;
  return size;
}

} // namespace plot
