// The container family beside the standard containers: a million numbers appended, walked, looked for and
// sorted; and reaching elements at random in the list with an index.
#include <algorithm>
#include <list>
#include <memory>
#include <random>
#include <vector>

#include <malloc.h>

#include "bench/RatioReporter.h"
#include "plugin/base/containers/ExportedContainers.h"

namespace {

constexpr int kCount = 1'000'000;
constexpr int kReached = 100'000; // elements of the lists that are reached at random

const std::vector<double>& Numbers() {
  static const std::vector<double> numbers = [] {
    std::mt19937 random(11);
    std::uniform_real_distribution<double> any(0.0, 1000.0);
    std::vector<double> made;
    for (int i = 0; i < kCount; ++i) made.push_back(any(random));
    return made;
  }();
  return numbers;
}

void AppendAll(std::vector<double>& container) {
  for (const double number : Numbers()) container.push_back(number);
}
void AppendAll(std::list<double>& container) {
  for (const double number : Numbers()) container.push_back(number);
}
template <class Member> void AppendAll(Member& container) {
  for (const double number : Numbers()) container.Append(number);
}

// Gives back what was freed before, so that all containers grow in the same kind of heap.
void FreshHeap() {
  Numbers();
  ::malloc_trim(0);
}

// Making, filling and freeing, on a fresh heap.
template <class Container> void Append(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    FreshHeap();
    state.ResumeTiming();
    Container container;
    for (const double number : Numbers()) {
      if constexpr (requires { container.begin(); }) {
        container.push_back(number);
      } else {
        container.Append(number);
      }
    }
    benchmark::DoNotOptimize(&container);
  }
}

template <class Container> void Walk(benchmark::State& state) {
  FreshHeap();
  Container container;
  AppendAll(container);
  for (auto _ : state) {
    double sum = 0;
    if constexpr (requires { container.begin(); }) {
      for (const double number : container) sum += number;
    } else {
      for (const double* at = container.GetFirst(); at; at = container.GetNext(at)) sum += *at;
    }
    benchmark::DoNotOptimize(sum);
  }
}

template <class Container> void WalkByCursor(benchmark::State& state) {
  FreshHeap();
  Container container;
  AppendAll(container);
  for (auto _ : state) {
    double sum = 0;
    for (container.MoveToFirst(); !container.IsOut(); container.MoveToNext()) sum += container.GetCurData();
    benchmark::DoNotOptimize(sum);
  }
}

// Where only the interface is known, each step is a virtual call.
template <class Container> void WalkByInterface(benchmark::State& state) {
  FreshHeap();
  Container container;
  AppendAll(container);
  const VkDynArrayBase<double>* known = &container;
  for (auto _ : state) {
    benchmark::DoNotOptimize(known);
    double sum = 0;
    for (const double* at = known->GetFirst(); at; at = known->GetNext(at)) sum += *at;
    benchmark::DoNotOptimize(sum);
  }
}

template <class Container> void WalkByIndex(benchmark::State& state) {
  FreshHeap();
  Container container;
  AppendAll(container);
  for (auto _ : state) {
    double sum = 0;
    for (int i = 0; i < kCount; ++i) {
      if constexpr (requires { container.GetAt(i); }) {
        sum += container.GetAt(i);
      } else {
        sum += container[static_cast<std::size_t>(i)];
      }
    }
    benchmark::DoNotOptimize(sum);
  }
}

// The last element, so that all are compared.
template <class Container> void Find(benchmark::State& state) {
  FreshHeap();
  Container container;
  AppendAll(container);
  const double wanted = Numbers().back();
  for (auto _ : state) {
    if constexpr (requires { container.begin(); }) {
      benchmark::DoNotOptimize(std::find(container.begin(), container.end(), wanted));
    } else {
      benchmark::DoNotOptimize(container.Find(wanted));
    }
  }
}

// Stable on both sides. Making and freeing what is sorted takes no part.
template <class Container> void Sort(benchmark::State& state) {
  FreshHeap();
  std::unique_ptr<Container> container;
  for (auto _ : state) {
    state.PauseTiming();
    container = std::make_unique<Container>();
    AppendAll(*container);
    state.ResumeTiming();
    if constexpr (requires { container->Sort(true); }) {
      container->Sort(true);
    } else if constexpr (requires { container->sort(); }) {
      container->sort();
    } else {
      std::stable_sort(container->begin(), container->end());
    }
  }
}

template <class List> void MoveToAtRandom(benchmark::State& state) {
  FreshHeap();
  List list(kReached);
  std::mt19937 random(12);
  std::vector<int> indices;
  for (int i = 0; i < 4096; ++i) indices.push_back(static_cast<int>(random() % kReached));
  std::size_t next = 0;
  for (auto _ : state) {
    list.MoveTo(indices[next++ % indices.size()]);
    benchmark::DoNotOptimize(list.GetCurData());
  }
}

using Vector = std::vector<double>;
using List = std::list<double>;
using Array = VkDynArray<double>;
using SingleList = VkList<double>;
using DoubleList = VkDList<double>;
using IndexedList = VkXList<double>;

#define ZP_BENCH_EACH(BENCH)                                                                                 \
  BENCHMARK_TEMPLATE(BENCH, Vector)->Unit(benchmark::kMillisecond);                                          \
  BENCHMARK_TEMPLATE(BENCH, Array)->Unit(benchmark::kMillisecond);                                           \
  BENCHMARK_TEMPLATE(BENCH, List)->Unit(benchmark::kMillisecond);                                            \
  BENCHMARK_TEMPLATE(BENCH, SingleList)->Unit(benchmark::kMillisecond);                                      \
  BENCHMARK_TEMPLATE(BENCH, DoubleList)->Unit(benchmark::kMillisecond);                                      \
  BENCHMARK_TEMPLATE(BENCH, IndexedList)->Unit(benchmark::kMillisecond)

ZP_BENCH_EACH(Append);
ZP_BENCH_EACH(Walk);
BENCHMARK_TEMPLATE(WalkByIndex, Vector)->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(WalkByIndex, Array)->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(WalkByCursor, Array)->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(WalkByCursor, SingleList)->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(WalkByCursor, DoubleList)->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(WalkByCursor, IndexedList)->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(WalkByInterface, Array)->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(WalkByInterface, DoubleList)->Unit(benchmark::kMillisecond);
ZP_BENCH_EACH(Find);
ZP_BENCH_EACH(Sort);
BENCHMARK_TEMPLATE(MoveToAtRandom, DoubleList)->Unit(benchmark::kMicrosecond);
BENCHMARK_TEMPLATE(MoveToAtRandom, IndexedList)->Unit(benchmark::kMicrosecond);

std::vector<bench::Ratio> Ratios() {
  std::vector<bench::Ratio> ratios;
  for (const std::string what : {"Append", "Walk", "Find", "Sort"}) {
    ratios.push_back({what + " array", what + "<Array>", what + "<Vector>"});
    for (const std::string list : {"SingleList", "DoubleList", "IndexedList"})
      ratios.push_back({what + " " + list, what + "<" + list + ">", what + "<List>"});
  }
  ratios.push_back({"WalkByIndex array", "WalkByIndex<Array>", "WalkByIndex<Vector>"});
  for (const std::string walk : {"WalkByCursor", "WalkByInterface"}) {
    ratios.push_back({walk + " array", walk + "<Array>", "Walk<Vector>"});
    for (const std::string list : {"SingleList", "DoubleList", "IndexedList"})
      ratios.push_back({walk + " " + list, walk + "<" + list + ">", "Walk<List>"});
  }
  ratios.push_back(
      {"MoveTo VkDList to VkXList", "MoveToAtRandom<DoubleList>", "MoveToAtRandom<IndexedList>"});
  return ratios;
}

} // namespace

int main(int argc, char** argv) {
  return bench::RunWithRatios(argc, argv, Ratios());
}
