#include "plugin/pipes/dialogs/LimitRules.h"

#include <algorithm>
#include <cmath>

#include "host/afx/Numbers.h"
#include "plugin/base/NumberText.h"

namespace {

// Names from files may be anything; what can't be compared stands first.
double SortKey(const CZPPipeLimit* limit) {
  const double key = limit ? afx::wcstod(limit->GetName(), nullptr) : 0;
  return std::isnan(key) ? 0 : key;
}

} // namespace

bool pipes::IsLimitName(const CString& text) {
  return afx::wcstod(text, nullptr) > 0 && ZP::GetCStringRightNumber(text) > 0;
}

void pipes::SortLimits(CZPFlowVelocityMng& table) {
  std::stable_sort(table.m_arrLimits.begin(), table.m_arrLimits.end(),
                   [](const CZPPipeLimit* a, const CZPPipeLimit* b) { return SortKey(a) < SortKey(b); });
}
