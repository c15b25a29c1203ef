#include "plugin/graph/HostLineWeight.h"

std::optional<AcDb::LineWeight> ZP::HostLineWeight(double hundredths) {
  // The cut is made within the range of int, so that no number of a damaged file is undefined; so is a value
  // of the enumeration only where it has one.
  if (!(hundredths > -1e9 && hundredths < 1e9)) return std::nullopt;
  const int weight = static_cast<int>(hundredths);
  if (!AcDb::isValidLineWeight(weight)) return std::nullopt;
  return static_cast<AcDb::LineWeight>(weight);
}
