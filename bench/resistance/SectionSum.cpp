// The sum of a pipe section with ten fittings and four kinds of tees, over stores of 50 to 800 fittings,
// beside the same sum from an index of the names, and from copies of the store's records.
#include <benchmark/benchmark.h>

#include <string>
#include <unordered_map>
#include <vector>

#include "bench/RatioReporter.h"
#include "bench/resistance/AllocationCount.h"
#include "plugin/base/NumberText.h"
#include "plugin/resistance/CZPLocalResistanceMng.h"
#include "plugin/resistance/CZPLocalResistanceSettings.h"
#include "plugin/resistance/FittingColumns.h"
#include "plugin/resistance/TeeFlows.h"

namespace {

constexpr int kFittings = 10;

// Of one length and with one beginning, as the sizes of a maker's fittings are called.
CString Name(int number) {
  return L"截止阀(丝扣连接)" + ZP::itoa(1000 + number);
}

// Of one length, with one beginning and one end: every comparison has to look into the text.
CString AlikeName(int number) {
  return L"截止阀" + ZP::itoa(1000 + number) + L"(丝扣连接)";
}

// Fills the store and gives a section whose fittings are spread evenly over it.
CZPLocalResistanceSettings Prepare(benchmark::State& state, CString (*name)(int) = Name) {
  const int storeSize = static_cast<int>(state.range(0));
  CZPLocalResistanceMng& store = *CZPLocalResistanceMng::GetInstance();
  store.m_arrPartsCoe.RemoveAll();
  for (int i = 0; i < storeSize; ++i) {
    CZPPipePartsCoe fitting;
    fitting.szName = name(i);
    double coefficient = i * 0.01;
    for (const auto& column : resistance::kFittingColumns) fitting.*column.coefficient = coefficient += 0.25;
    store.m_arrPartsCoe.Add(fitting);
  }
  CZPLocalResistanceSettings section;
  for (int i = 0; i < kFittings; ++i) {
    CZPPipeParts part(name((2 * i + 1) * storeSize / (2 * kFittings)), i + 1);
    section.m_arrParts.Add(part);
  }
  section.m_num3T4T.merge3From1 = 2;
  section.m_num3T4T.split1To2 = 1;
  section.m_num3T4T.obliqueMerge1From3 = 1;
  section.m_num3T4T.cross1To3 = 1;
  section.m_dOtherCoe = 0.5;
  section.m_dAdditionCoe = 0.25;
  return section;
}

double TeesAndRest(const CZPLocalResistanceSettings& section) {
  const CZPLocalResistanceMng& store = *CZPLocalResistanceMng::GetInstance();
  double sum = 0;
  for (const auto& flow : resistance::kTeeFlows)
    sum += section.m_num3T4T.*flow.count * store.m_coe3T4T.*flow.coefficient;
  return sum + section.m_dOtherCoe + section.m_dAdditionCoe;
}

// Runs the sum for each iteration and tells what one of them allocates. Every sum must come to the section's.
template <typename Sum>
void Measure(benchmark::State& state, const CZPLocalResistanceSettings& section, Sum sum) {
  const double expected = section.GetCoefficient();
  double difference = 0;
  const std::size_t before = AllocationCount();
  for (auto _ : state) {
    const double result = sum();
    benchmark::DoNotOptimize(result);
    difference += result - expected;
  }
  const std::size_t allocated = AllocationCount() - before;
  state.counters["allocations"] = static_cast<double>(allocated) / static_cast<double>(state.iterations());
  state.SetItemsProcessed(state.iterations());
  if (difference > 1e-3 || difference < -1e-3) state.SkipWithError("another sum");
}

void Section(benchmark::State& state) {
  const CZPLocalResistanceSettings section = Prepare(state);
  Measure(state, section, [&] { return section.GetCoefficient(); });
}

void Alike(benchmark::State& state) {
  const CZPLocalResistanceSettings section = Prepare(state, AlikeName);
  Measure(state, section, [&] { return section.GetCoefficient(); });
}

// As a caller does that asks the store by the interface, which hands out copies.
void Copies(benchmark::State& state) {
  const CZPLocalResistanceSettings section = Prepare(state);
  const CZPLocalResistanceMng& store = *CZPLocalResistanceMng::GetInstance();
  Measure(state, section, [&] {
    double sum = 0;
    for (const CZPPipeParts& part : section.m_arrParts) {
      CZPPipePartsCoe fitting;
      if (store.GetPipePartsCoe(part.GetName(), fitting))
        sum += fitting.GetCoe(section.m_strDN) * part.GetNumber();
    }
    return sum + TeesAndRest(section);
  });
}

// The names in an index that is made beforehand, as nobody could who lets callers edit the list in place. The
// section's names are copied out beforehand too.
void Index(benchmark::State& state) {
  const CZPLocalResistanceSettings section = Prepare(state);
  std::unordered_map<CString, const CZPPipePartsCoe*> index;
  for (const CZPPipePartsCoe& fitting : CZPLocalResistanceMng::GetInstance()->m_arrPartsCoe)
    index.emplace(fitting.szName, &fitting);
  std::vector<std::pair<CString, int>> parts;
  for (const CZPPipeParts& part : section.m_arrParts) parts.emplace_back(part.GetName(), part.GetNumber());
  Measure(state, section, [&] {
    double sum = 0;
    for (const auto& [name, number] : parts)
      if (const auto found = index.find(name); found != index.end())
        sum += found->second->GetCoe(section.m_strDN) * number;
    return sum + TeesAndRest(section);
  });
}

BENCHMARK(Section)->Arg(50)->Arg(200)->Arg(800)->Iterations(1000000);
BENCHMARK(Alike)->Arg(200)->Iterations(1000000);
BENCHMARK(Copies)->Arg(200)->Iterations(1000000);
BENCHMARK(Index)->Arg(200)->Iterations(1000000);

} // namespace

int main(int argc, char** argv) {
  return bench::RunWithRatios(argc, argv,
                              {{"Alike to Section, 200", "Alike/200", "Section/200"},
                               {"Copies to Section, 200", "Copies/200", "Section/200"},
                               {"Section to Index, 200", "Section/200", "Index/200"},
                               {"Section 200 to 50", "Section/200", "Section/50"},
                               {"Section 800 to 200", "Section/800", "Section/200"}});
}
