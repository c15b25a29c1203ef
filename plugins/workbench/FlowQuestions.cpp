#include "plugins/workbench/FlowQuestions.h"

#include "plugins/workbench/Asking.h"
#include "plugins/workbench/hydraulics/PipeFlow.h"

#include <numeric>

namespace workbench {
namespace {

constexpr Range kRates{1e-4, 1e6}; // m3/h
constexpr Range kLoads{1e-3, 1e7}; // kW
constexpr Range kTemperatures{hydraulics::kColdestWater, hydraulics::kHottestWater};
constexpr const wchar_t* kWaterTemperature = L"计算\\水温";
constexpr double kUsualTemperature = 60;

// Asks with what was answered last, and remembers what is answered now.
std::optional<double> AskRemembered(const CString& subject, const CString& name, double preset,
                                    const Range& range) {
  const auto answer = AskNumber(subject, Remembered(name, preset), range);
  if (answer) Remember(name, *answer);
  return answer;
}

std::optional<FlowRequest> AskRate(double presentRate) {
  const double preset = presentRate > 0 ? presentRate : Remembered(L"计算\\流量", 1);
  const auto rate = AskNumber(L"流量(m³/h)", preset, kRates);
  if (!rate) return std::nullopt;
  Remember(L"计算\\流量", *rate);
  const auto celsius = AskRemembered(L"水温(℃)", kWaterTemperature, kUsualTemperature, kTemperatures);
  if (!celsius) return std::nullopt;
  return FlowRequest{*rate, *celsius};
}

std::optional<FlowRequest> AskLoad() {
  const auto load = AskRemembered(L"负荷(kW)", L"计算\\负荷", 10, kLoads);
  if (!load) return std::nullopt;
  while (true) {
    const auto supply = AskRemembered(L"供水温度(℃)", L"计算\\供水温度", 75, kTemperatures);
    if (!supply) return std::nullopt;
    const auto back = AskRemembered(L"回水温度(℃)", L"计算\\回水温度", 50, kTemperatures);
    if (!back) return std::nullopt;
    if (const auto rate = hydraulics::FlowRateOfLoad(*load, *supply, *back))
      return FlowRequest{*rate, std::midpoint(*supply, *back)};
    Refuse(L"供水和回水温度相同，不能输送负荷。", L"两个不同的温度");
  }
}

} // namespace

double LastWaterTemperature() {
  const double celsius = Remembered(kWaterTemperature, kUsualTemperature);
  const bool known = celsius >= kTemperatures.from && celsius <= kTemperatures.to;
  return known ? celsius : kUsualTemperature; // the file of defaults is open to all
}

std::optional<FlowRequest> AskFlow(double presentRate) {
  const auto by = ed::AskKeyword({L"计算依据 [流量(F)/负荷(Q)] <流量>:", L"流量,F 负荷,Q", 0, {}});
  if (by.isCancelled()) return std::nullopt;
  return by.isKeyword(L"负荷") ? AskLoad() : AskRate(presentRate);
}

} // namespace workbench
