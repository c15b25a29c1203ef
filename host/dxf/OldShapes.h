// Entities that R12 lacks in the words of R12: records without handle whose tags follow a common head.
#pragma once

#include "host/db/DxfTag.h"

#include <string>
#include <string_view>

namespace dxf {

struct OldShape {
  std::string text;              // empty: R12 has no words for it
  const wchar_t* loss = nullptr; // what became coarser; null when nothing did
};

// tags: the entity's own. The others are tags as text: every record that is made gets the properties (layer,
// colour, linetype, space), the first one also the handle and the extended data.
OldShape oldShapeOf(std::string_view type, DxfTags tags, const std::string& handle,
                    const std::string& properties, const std::string& extendedData);

} // namespace dxf
