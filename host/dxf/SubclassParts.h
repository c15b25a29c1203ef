// Where the tags of an R12 record go in newer files, whose records are cut into subclasses by markers.
#pragma once

#include "host/db/DxfTag.h"

#include <span>
#include <string_view>
#include <vector>

namespace dxf {

// One subclass: its marker and its tags in their order.
struct SubclassPart {
  std::string_view marker; // empty where the record has none, as SEQEND behind its entity's
  std::vector<DxfTag> tags;
};

// The subclasses behind the head of a record of R12, in their order. own: the record's tags without type,
// handle, owner, groups and extended data. Empty for a type that R12 doesn't have.
std::vector<SubclassPart> subclassParts(std::string_view type, DxfTags own);

} // namespace dxf
