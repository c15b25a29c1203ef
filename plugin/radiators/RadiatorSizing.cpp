// How many sections or metres of a radiator a load needs: F = Q / (K·Δt) · β1·β2·β3 of 《供热工程》, with the
// factor β4 of the design handbooks for the flow, and counted in sections or metres instead of square metres.
#include <cmath>
#include <limits>

#include "plugin/radiators/CZPRadiator.h"
#include "plugin/radiators/RadiatorFormulas.h"

namespace {

struct RoundingClass {
  int code;
  double threshold; // the part of the whole count that may be dropped
};

constexpr RoundingClass kRoundingClasses[] = {{0, 0.075}, {1, 0.05}, {2, 0.025}};
constexpr double kThresholdOfOtherClasses = 0.05;

double ThresholdOf(int roundingClass) {
  for (const RoundingClass& row : kRoundingClasses)
    if (row.code == roundingClass) return row.threshold;
  return kThresholdOfOtherClasses;
}

// Towards zero. What no int holds gives the smallest int, as the processor's own conversion does: unlike the
// nearest end of the range it can't be taken for a count, and 1 may be added to it.
int Truncated(double value) {
  constexpr double kAboveLargest = 2147483648.0;
  constexpr double kBelowSmallest = -2147483649.0;
  if (!(value > kBelowSmallest && value < kAboveLargest)) return std::numeric_limits<int>::min();
  return static_cast<int>(value);
}

// The remainder is measured against the whole count and not against one section. That is on purpose: the
// bigger a radiator, the more it may lack before a section is added.
int WholeSections(double count, int roundingClass) {
  const int whole = Truncated(count);
  const double remainder = (count - whole) / count; // no number for a count of 0, infinity or no number
  return remainder >= ThresholdOf(roundingClass) ? whole + 1 : whole;
}

} // namespace

double radiators::ExponentLaw(const CZPRadiator& radiator, double temperatureDifference) {
  return radiator.m_dA * std::pow(temperatureDifference, radiator.m_dB);
}

double radiators::HeatTransferLaw(const CZPRadiator& radiator, double temperatureDifference) {
  return std::pow(temperatureDifference, radiator.m_dD) * radiator.m_dC * radiator.m_dF *
         temperatureDifference;
}

double radiators::FixedOutput(const CZPRadiator& radiator, double /*temperatureDifference*/) {
  return radiator.m_dQs;
}

void CZPRadiator::Attach(const SZPRadCalData& data) {
  m_calData = data;
}

double CZPRadiator::CalculatePjSrl() const {
  const double difference = (m_calData.dbTg + m_calData.dbTh) * 0.5 - m_calData.dbTn;
  for (const radiators::Formula& formula : radiators::kFormulas)
    if (formula.code == m_nFormula) return formula.unitOutput(*this, difference);
  return 0.0;
}

double CZPRadiator::CalculateNumber() const {
  // Deliberately without a guard: an output of 0 gives infinity, a water colder than the room no number, and
  // both are shown.
  return m_calData.dbQj / CalculatePjSrl() * m_calData.dbBeta1 * m_calData.dbBeta2 * m_calData.dbBeta3 *
         m_calData.dbBeta4;
}

CString CZPRadiator::GetCalNumberResult(int nRoundingClass) const {
  double count = CalculateNumber();
  CString text;
  if (m_strUnit == L"片") {
    text.Format(L"%d%s", WholeSections(count, nRoundingClass), m_strUnit);
    return text;
  }
  // Which sign a result that is no number has depends on the compiler; none is printed.
  if (std::isnan(count)) count = std::numeric_limits<double>::quiet_NaN();
  text.Format(L"%.2f%s", count, m_strUnit);
  return text;
}
