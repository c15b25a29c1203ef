// Any bytes as the text of a linetype file: what is read of it is usable, and everything else is a problem
// that names its line.
#include "host/db/LinetypeFile.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace {

void require(bool holds) {
  if (!holds) std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const LinetypeFile file =
      readLinetypeText(std::string_view(reinterpret_cast<const char*>(data), size), L"fuzz.lin");
  for (const LinetypeDefinition& linetype : file.linetypes) {
    require(!linetype.name.IsEmpty());
    for (const double dash : linetype.dashes) require(std::isfinite(dash));
  }
  for (const CString& problem : file.problems) require(problem.Find(L"fuzz.lin") >= 0);
  return 0;
}
