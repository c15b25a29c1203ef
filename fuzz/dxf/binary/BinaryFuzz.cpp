// Any bytes behind the first 22 of a binary drawing.
#include <cstdint>

#include "fuzz/dxf/SavedTwice.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes = std::string("AutoCAD Binary DXF\r\n\x1a\0", 22) +
                            std::string(reinterpret_cast<const char*>(data), size);
  for (const bool recover : {false, true}) fuzz::saveTwice(bytes, recover);
  return 0;
}
