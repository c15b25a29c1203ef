// Crossing bends on random plans, by the tool and by comparing everything with everything, until the time is
// over or the two differ:
//
//   soak_crossings [SECONDS [SEED]]
//
// Plans are numbered from the seed on; one that differs is told by its number and can be had again by it.
#include <chrono>
#include <cstdio>
#include <cstdlib>

#include "plugin/layers/CZPManagerLayer.h"
#include "tests/support/CrossingPlans.h"
#include "tests/support/TempInstall.h"

namespace {

constexpr double kSeconds = 5; // without arguments, as ctest runs it
constexpr std::uint64_t kSeed = 100'000;

} // namespace

int main(int argc, char** argv) {
  const double seconds = argc > 1 ? std::atof(argv[1]) : kSeconds;
  const std::uint64_t first = argc > 2 ? std::strtoull(argv[2], nullptr, 10) : kSeed;
  const TempInstall install;
  CZPManagerLayer::GetInstance()->RemoveAll();
  using Clock = std::chrono::steady_clock;
  const auto end = Clock::now() + std::chrono::duration<double>(seconds);
  int symbols = 0;
  std::uint64_t seed = first;
  for (; Clock::now() < end; ++seed) {
    const std::string difference = CompareCrossings(seed, symbols);
    if (difference.empty()) continue;
    std::printf("%s\n", difference.c_str());
    return 1;
  }
  std::printf("%llu plans with %d bends, from seed %llu on: no difference\n",
              static_cast<unsigned long long>(seed - first), symbols, static_cast<unsigned long long>(first));
  return 0;
}
