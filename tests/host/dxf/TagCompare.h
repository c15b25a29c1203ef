// Drawings compared tag by tag, by a reading of the format that shares nothing with the host's.
#pragma once

#include <string>
#include <string_view>
#include <vector>

struct FileTag {
  int code = 0;
  std::string value; // as it stands
  bool operator==(const FileTag&) const = default;
};

// A tag of group code 0 and all up to the next one; the first may begin with comments instead.
using FileRecord = std::vector<FileTag>;

// Every two lines are a tag; what follows EOF is one last record of lines under code 0.
std::vector<FileRecord> RecordsOf(std::string_view file);

// What the saved file has otherwise, a line each: "added LAYER 0", "lost LINE 2F", "changed LAYER 0: 62 7 ->
// -7". A record keeps its place in the order, or it is lost and added.
std::vector<std::string> Differences(const std::vector<FileRecord>& original,
                                     const std::vector<FileRecord>& saved);
