// One tag of a drawing record: a group code and its value as text. Records are walked with DxfTagReader.
// Text of records in memory is UTF-8 with lines that end in a line feed, whatever the file used.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

struct DxfTag {
  int code = 0;
  std::string_view value; // as it stands, blanks included
};

using DxfTags = std::span<const DxfTag>;

namespace dxf {

// What a group code's value is, by the ranges of the format.
enum class ValueKind : std::uint8_t { text, real, integer, handle, binary, boolean };
ValueKind valueKind(int code);

// The value as a finite number; nothing for text that is none. Blanks around it are skipped.
std::optional<double> toReal(std::string_view value);
std::optional<long long> toInteger(std::string_view value);
std::string_view trimBlanks(std::string_view value);

} // namespace dxf

// Walks the tags of a record's text.
class DxfTagReader {
 public:
  explicit DxfTagReader(std::string_view text) : m_rest(text) {}
  // False at the end, and at a code line that is no integer (a record in memory never has one).
  bool next(DxfTag& tag);

 private:
  std::string_view m_rest;
};

std::vector<DxfTag> dxfTagsOf(std::string_view recordText);

// The tags that are an object's own: groups between 102 braces, embedded objects (101) and extended data
// (1000 and above) are left out. common() ends at the second subclass marker, so that a code which a later
// subclass uses for something else is not mistaken for a property that all entities share.
std::vector<DxfTag> dxfOwnTags(DxfTags tags);
DxfTags dxfCommonTags(DxfTags ownTags);
