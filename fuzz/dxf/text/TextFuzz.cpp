// Any bytes as a drawing in text form, strictly and with recovery.
#include <cstdint>

#include "fuzz/dxf/SavedTwice.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  for (const bool recover : {false, true}) fuzz::saveTwice(bytes, recover);
  return 0;
}
