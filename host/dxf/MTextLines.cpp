#include "host/dxf/MTextLines.h"

namespace {

// Codes that take everything up to the next semicolon.
constexpr std::string_view kWithArgument = "ACcFfHQTWp";
// Switches of one letter.
constexpr std::string_view kSwitches = "LlOoKk";

std::string stacked(std::string_view argument) {
  std::string text;
  for (const char c : argument) text += c == '^' || c == '#' ? '/' : c;
  return text;
}

} // namespace

std::vector<std::string> dxf::mtextLines(std::string_view contents) {
  std::vector<std::string> lines(1);
  for (std::size_t i = 0; i < contents.size(); ++i) {
    const char c = contents[i];
    const char next = i + 1 < contents.size() ? contents[i + 1] : '\0';
    if (c == '{' || c == '}') continue;
    if (c == '^' && (next == 'J' || next == 'M')) {
      if (next == 'J') lines.emplace_back();
      ++i;
      continue;
    }
    if (c != '\\' || next == '\0') {
      lines.back() += c;
      continue;
    }
    ++i;
    if (next == 'P' || next == 'X' || next == 'N') {
      lines.emplace_back();
    } else if (next == '~') {
      lines.back() += ' ';
    } else if (next == '\\' || next == '{' || next == '}') {
      lines.back() += next;
    } else if (next == 'S' || kWithArgument.find(next) != kWithArgument.npos) {
      const auto end = contents.find(';', i);
      const std::string_view argument =
          contents.substr(i + 1, end == contents.npos ? contents.npos : end - i - 1);
      if (next == 'S') lines.back() += stacked(argument);
      i = end == contents.npos ? contents.size() : end;
    } else if (kSwitches.find(next) == kSwitches.npos) {
      lines.back() += c; // \U+XXXX and what else is a character
      lines.back() += next;
    }
  }
  bool any = false;
  for (const std::string& line : lines) any = any || !line.empty();
  return any ? lines : std::vector<std::string>();
}
