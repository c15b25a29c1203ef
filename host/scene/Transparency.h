// Transparency as drawings keep it: a number whose lowest byte is how opaque something is.
#pragma once

#include "host/db/DxfTag.h"

#include <cstdint>
#include <optional>

namespace scene {

// Group 440 of an entity; nothing where it follows its layer or its block.
std::optional<std::uint8_t> EntityAlpha(long long value);
// A layer keeps it in extended data.
std::optional<std::uint8_t> LayerAlpha(DxfTags layerTags);

} // namespace scene
