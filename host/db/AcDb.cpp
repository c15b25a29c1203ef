#include "host/db/AcDb.h"

#include <algorithm>
#include <array>

bool AcDb::isValidLineWeight(int code) {
  static constexpr std::array weights{0,  5,  9,  13,  15,  18,  20,  25,  30,  35,  40, 50, 53, 60,
                                      70, 80, 90, 100, 106, 120, 140, 158, 200, 211, -1, -2, -3};
  return std::find(weights.begin(), weights.end(), code) != weights.end();
}
