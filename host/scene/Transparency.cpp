#include "host/scene/Transparency.h"

namespace scene {

std::optional<std::uint8_t> EntityAlpha(long long value) {
  constexpr long long kByValue = 0x02000000;
  if ((value & 0xFF000000) != kByValue) return std::nullopt;
  return static_cast<std::uint8_t>(value & 0xFF);
}

std::optional<std::uint8_t> LayerAlpha(DxfTags layerTags) {
  bool inData = false;
  for (const DxfTag& tag : layerTags) {
    if (tag.code == 1001) inData = dxf::trimBlanks(tag.value) == "AcCmTransparency";
    if (inData && tag.code == 1071) return EntityAlpha(dxf::toInteger(tag.value).value_or(0));
  }
  return std::nullopt;
}

} // namespace scene
