#include "host/ui/UiSignal.h"

#include <gtest/gtest.h>

#include <optional>

namespace {

TEST(UiSignal, TellsAllObserversInTheirOrder) {
  UiSignal<int> signal;
  std::vector<int> heard;
  signal.Connect([&](int value) { heard.push_back(value); });
  signal.Connect([&](int value) { heard.push_back(-value); });
  signal(3);
  EXPECT_EQ(heard, (std::vector<int>{3, -3}));
}

TEST(UiSignal, ForgetsAnObserverWithItsConnection) {
  UiSignal<> signal;
  int count = 0;
  {
    const UiConnection connection = signal.Watch([&] { ++count; });
    signal();
  }
  signal();
  EXPECT_EQ(count, 1);
}

TEST(UiSignal, AConnectionThatIsMovedGoesOn) {
  UiSignal<> signal;
  int count = 0;
  UiConnection kept;
  {
    UiConnection connection = signal.Watch([&] { ++count; });
    kept = std::move(connection);
  }
  signal();
  kept = {};
  signal();
  EXPECT_EQ(count, 1);
}

TEST(UiSignal, ObserversMayComeAndGoWhileItTells) {
  UiSignal<> signal;
  int later = 0, gone = 0;
  UiConnection second;
  signal.Connect([&] {
    second.Disconnect();
    signal.Connect([&] { ++later; });
  });
  second = signal.Watch([&] { ++gone; });
  signal();
  EXPECT_EQ(gone, 0);
  EXPECT_EQ(later, 0);
  signal();
  EXPECT_EQ(later, 1);
}

TEST(UiSignal, MayGoWhileItTells) {
  auto signal = std::make_unique<UiSignal<>>();
  int after = 0;
  const UiConnection connection = signal->Watch([&] { signal.reset(); });
  const UiConnection second = signal->Watch([&] { ++after; });
  (*signal)();
  EXPECT_FALSE(signal);
  EXPECT_EQ(after, 1) << "it was connected when the telling began";
}

} // namespace
