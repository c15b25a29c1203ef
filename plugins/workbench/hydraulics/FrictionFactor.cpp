#include "plugins/workbench/hydraulics/FrictionFactor.h"

#include <cmath>
#include <limits>
#include <numbers>

namespace hydraulics {
namespace {

constexpr double kRoughnessDivisor = 3.71;
constexpr double kSmoothFactor = 2.51;
// Newton's steps double the digits; from the rough start below a handful do. More than these are a bug.
constexpr int kMostSteps = 60;

constexpr double kNoFactor = std::numeric_limits<double>::quiet_NaN();

bool IsPossible(double reynolds, double relativeRoughness) {
  return reynolds > 0 && std::isfinite(reynolds) && relativeRoughness >= 0 && relativeRoughness < 1;
}

} // namespace

double ColebrookFactor(double reynolds, double relativeRoughness) {
  if (!IsPossible(reynolds, relativeRoughness)) return kNoFactor;
  const double rough = relativeRoughness / kRoughnessDivisor;
  const double smooth = kSmoothFactor / reynolds;
  // Solved for x = 1/sqrt(f): g(x) = x + 2 lg(rough + smooth x) rises everywhere and is concave, so that from
  // the left of the root every step but the first stays there and comes nearer.
  const double perLg = 2 / std::numbers::ln10;
  double x = 1;
  for (int step = 0; step < kMostSteps; ++step) {
    const double inner = rough + smooth * x;
    const double next = x - (x + perLg * std::log(inner)) / (1 + perLg * smooth / inner);
    // A start to the right of a root close to 0 may jump below it.
    const double bounded = next > 0 ? next : x / 4;
    const bool isDone = std::fabs(bounded - x) <= 2 * std::numeric_limits<double>::epsilon() * bounded;
    x = bounded;
    if (isDone) break;
  }
  return 1 / (x * x);
}

double FrictionFactor(double reynolds, double relativeRoughness) {
  if (!IsPossible(reynolds, relativeRoughness)) return kNoFactor;
  if (reynolds <= kLaminarReynolds) return 64 / reynolds;
  if (reynolds >= kTurbulentReynolds) return ColebrookFactor(reynolds, relativeRoughness);
  const double laminar = 64 / kLaminarReynolds;
  const double turbulent = ColebrookFactor(kTurbulentReynolds, relativeRoughness);
  return std::lerp(laminar, turbulent,
                   (reynolds - kLaminarReynolds) / (kTurbulentReynolds - kLaminarReynolds));
}

} // namespace hydraulics
