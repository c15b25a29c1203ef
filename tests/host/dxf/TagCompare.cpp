#include "tests/host/dxf/TagCompare.h"

#include <algorithm>
#include <charconv>

namespace {

std::string_view takeLine(std::string_view& rest) {
  const auto end = rest.find('\n');
  std::string_view line = rest.substr(0, end);
  rest.remove_prefix(end == rest.npos ? rest.size() : end + 1);
  if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
  return line;
}

std::string trimmed(std::string_view text) {
  while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
  while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
  return std::string(text);
}

// Type and name or handle, for a message.
std::string titleOf(const FileRecord& record) {
  std::string title = trimmed(record.front().value);
  for (const int code : {2, 5})
    for (const FileTag& tag : record)
      if (tag.code == code) return title + " " + trimmed(tag.value);
  return title;
}

std::string shown(const FileTag& tag) {
  return std::to_string(tag.code) + " " + tag.value;
}

bool isSame(const FileRecord& a, const FileRecord& b) {
  return !a.empty() && !b.empty() && a.front() == b.front() && titleOf(a) == titleOf(b);
}

// The tags that differ between two states of one record; tags keep their order.
std::string changes(const FileRecord& before, const FileRecord& after) {
  std::string text;
  std::size_t b = 0;
  for (std::size_t a = 0; a < after.size(); ++a) {
    if (b < before.size() && before[b] == after[a]) {
      ++b;
      continue;
    }
    if (b < before.size() && before[b].code == after[a].code) {
      text.append(" ").append(shown(before[b++])).append(" -> ").append(trimmed(after[a].value)).append(";");
      continue;
    }
    const auto again = std::find(before.begin() + static_cast<std::ptrdiff_t>(std::min(b, before.size())),
                                 before.end(), after[a]);
    if (again == before.end()) {
      text.append(" +").append(shown(after[a])).append(";");
      continue;
    }
    while (before.begin() + static_cast<std::ptrdiff_t>(b) != again)
      text.append(" -").append(shown(before[b++])).append(";");
    ++b;
  }
  while (b < before.size()) text.append(" -").append(shown(before[b++])).append(";");
  return text;
}

} // namespace

std::vector<FileRecord> RecordsOf(std::string_view file) {
  std::vector<FileRecord> records;
  while (!file.empty()) {
    const std::string_view codeLine = takeLine(file);
    const std::string code = trimmed(codeLine);
    FileTag tag;
    std::from_chars(code.data(), code.data() + code.size(), tag.code);
    tag.value = takeLine(file);
    if (records.empty() || tag.code == 0) records.emplace_back();
    const bool isEnd = tag.code == 0 && trimmed(tag.value) == "EOF";
    records.back().push_back(std::move(tag));
    if (isEnd) break;
  }
  if (!file.empty()) records.push_back({{0, std::string(file)}});
  return records;
}

std::vector<std::string> Differences(const std::vector<FileRecord>& original,
                                     const std::vector<FileRecord>& saved) {
  std::vector<std::string> found;
  std::size_t s = 0;
  for (const FileRecord& record : original) {
    // The record itself, changed or not, is looked for from where the last one stood.
    std::size_t at = s;
    while (at < saved.size() && saved[at] != record) ++at;
    if (at == saved.size()) {
      at = s;
      while (at < saved.size() && !isSame(record, saved[at])) ++at;
      if (at == saved.size()) {
        found.push_back("lost " + titleOf(record));
        continue;
      }
    }
    for (; s < at; ++s) found.push_back("added " + titleOf(saved[s]));
    if (saved[s] != record) found.push_back("changed " + titleOf(record) + ":" + changes(record, saved[s]));
    ++s;
  }
  for (; s < saved.size(); ++s) found.push_back("added " + titleOf(saved[s]));
  return found;
}
