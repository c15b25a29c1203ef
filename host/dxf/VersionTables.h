// What each version of the format has, as tables: tags, header variables and records by the version that
// brought them, and the record types of R12 with their group codes. Facts only; VersionConverter applies
// them.
#pragma once

#include "host/db/DxfTag.h"

#include <span>
#include <string_view>

namespace dxf {

// A group code that a subclass has since a version.
struct NewerTag {
  std::string_view subclass;
  int first; // codes from first to last
  int last;
  std::string_view since;
  const wchar_t* name;       // what is missing in older files
  std::string_view plain{};  // a value that means the same as a missing tag
  std::string_view plain2{}; // another one
};
// The rows of a subclass; a code that none of them names is in R2000 already.
std::span<const NewerTag> newerTags(std::string_view subclass);
// Whether the tag's value means the same as a missing tag.
bool isPlain(const NewerTag& row, std::string_view value);

// The version that brought a header variable, R12 for the old ones; R2000 for those that no table names.
std::string_view variableSince(std::string_view name);
// Variables of R12 that later became settings of the program and left the file.
bool isR12OnlyVariable(std::string_view name);

// A record type that R12 has.
struct R12Record {
  std::string_view type;
  std::span<const int> codes; // of its own data, beside type, handle, layer and the like
};
// Null for what R12 doesn't know.
const R12Record* r12Record(std::string_view type);
bool r12Has(const R12Record& record, int code);

// What a tag that R12 lacks says to a user; null where it has no name of its own. isPlain: the value means
// the same as a missing tag.
const wchar_t* nameOfTagR12Lacks(std::string_view type, const DxfTag& tag, bool& isPlain);

} // namespace dxf
