#include "host/ed/PlugInMenu.h"

#include "host/afx/AtomicFile.h"

namespace ed {
namespace {

constexpr std::uint64_t kLargestMenu = 1 << 20;

} // namespace

std::vector<MenuGroup> ParseMenuFile(std::string_view bytes) {
  std::vector<MenuGroup> groups;
  const CString text = CString::FromUtf8(bytes);
  int at = 0;
  for (CString line = text.Tokenize(L"\r\n", at); at != -1; line = text.Tokenize(L"\r\n", at)) {
    line.Trim();
    if (line.IsEmpty() || line[0] == L'#') continue;
    if (line[0] == L'[' && line.View().ends_with(L']')) {
      groups.push_back({line.Mid(1, line.GetLength() - 2), {}});
      continue;
    }
    const int blank = line.FindOneOf(L" \t");
    if (blank > 0 && !groups.empty())
      groups.back().entries.push_back({line.Left(blank), line.Mid(blank).Trim()});
  }
  return groups;
}

std::vector<MenuGroup> ReadPlugInMenu(const CString& plugInFile) {
  const int dot = plugInFile.ReverseFind(L'.');
  std::string bytes;
  if (!afx::ReadWholeFile((dot > 0 ? plugInFile.Left(dot) : plugInFile) + L".menu", bytes, kLargestMenu).ok)
    return {};
  return ParseMenuFile(bytes);
}

CString TitleIn(const std::vector<MenuGroup>& menus, const CString& command) {
  for (const auto& menu : menus)
    for (const auto& entry : menu.entries)
      if (entry.command.CompareNoCase(command) == 0) return entry.title;
  return {};
}

} // namespace ed
