// The orders that sorting gives, held against the plain quadratic algorithms that define them.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "plugin/base/containers/VkArray.h"
#include "plugin/base/containers/VkDynPArray.h"
#include "plugin/base/containers/VkPDList.h"
#include "plugin/base/containers/VkXList.h"
#include "tests/plugin/base/containers/Contents.h"

namespace {

// Elements that compare by key alone: the tag tells equal ones apart.
struct Tagged {
  int key = 0;
  int tag = 0;
  bool Same(const Tagged& other) const { return key == other.key && tag == other.tag; }
  friend bool operator==(const Tagged& a, const Tagged& b) { return a.key == b.key; }
  friend auto operator<=>(const Tagged& a, const Tagged& b) { return a.key <=> b.key; }
};

int ByKey(const Tagged& a, const Tagged& b) {
  return a.key - b.key;
}
int ByKeyDownwards(const Tagged& a, const Tagged& b) {
  return b.key - a.key;
}

// The final place of each element: one more for each that it is beyond behind it, one less for each that is
// beyond it before.
template <class T, class Beyond> std::vector<T> CountingSort(const std::vector<T>& values, Beyond beyond) {
  const int length = static_cast<int>(values.size());
  std::vector<int> place(values.size());
  for (int i = 0; i < length; ++i) place[static_cast<std::size_t>(i)] = i;
  for (std::size_t i = 0; i < values.size(); ++i) {
    for (std::size_t j = i + 1; j < values.size(); ++j) {
      if (!beyond(values[i], values[j])) continue;
      ++place[i];
      --place[j];
    }
  }
  std::vector<T> sorted(values.size());
  for (std::size_t i = 0; i < values.size(); ++i) sorted[static_cast<std::size_t>(place[i])] = values[i];
  return sorted;
}

// Each element goes before the first one of those sorted already that is beyond it.
template <class T, class Beyond> std::vector<T> InsertionSort(const std::vector<T>& values, Beyond beyond) {
  std::vector<T> sorted;
  for (const T& value : values) {
    auto at = sorted.begin();
    while (at != sorted.end() && !beyond(*at, value)) ++at;
    sorted.insert(at, value);
  }
  return sorted;
}

template <class Container> class Sorting : public testing::Test {};
using Members = testing::Types<VkDynArray<Tagged>, VkList<Tagged>, VkDList<Tagged>, VkXList<Tagged>>;
TYPED_TEST_SUITE(Sorting, Members);

template <class Container>
void ExpectSame(const Container& container, const std::vector<Tagged>& expected, int round) {
  ASSERT_EQ(container.GetLength(), static_cast<int>(expected.size()));
  for (int i = 0; i < container.GetLength(); ++i)
    ASSERT_TRUE(container[i].Same(expected[static_cast<std::size_t>(i)]))
        << "round " << round << " index " << i;
}

TYPED_TEST(Sorting, TwoEqualValuesStayInPlace) {
  TypeParam container;
  container << Tagged{5, 0} << Tagged{5, 1};
  for (const bool ascending : {true, false}) {
    container.Sort(ascending);
    ExpectSame(container, {{5, 0}, {5, 1}}, 0);
  }
  container.Sort(ByKeyDownwards);
  ExpectSame(container, {{5, 0}, {5, 1}}, 0);
}

TYPED_TEST(Sorting, GivesTheOrderOfItsDefinition) {
  std::mt19937 random(5);
  for (int round = 0; round < 400; ++round) {
    std::vector<Tagged> values;
    const int length = static_cast<int>(random() % 60);
    const unsigned kinds = 1 + random() % 20;
    for (int i = 0; i < length; ++i) values.push_back({static_cast<int>(random() % kinds), i});
    TypeParam container;
    Fill<Tagged>(container, values);
    const int cursor = static_cast<int>(random() % 10) - 1;
    container.MoveTo(cursor);
    const int before = container.GetCur();
    const bool upwards = random() % 2;
    const auto beyond = [&](const Tagged& a, const Tagged& b) { return upwards ? a > b : a < b; };
    if (random() % 2) {
      container.Sort(upwards);
    } else {
      container.Sort(upwards ? ByKey : ByKeyDownwards);
    }
    ExpectSame(container, CountingSort(values, beyond), round);
    ExpectSame(container, InsertionSort(values, beyond), round);
    EXPECT_EQ(container.GetCur(), before);
    if (!container.IsOut()) {
      EXPECT_TRUE(container.GetCurData().Same(container.GetAt(before)));
    }
  }
}

TEST(Sorting, ANumberThatIsNoneIsPassedByInListsAsInsertionWouldDoIt) {
  std::mt19937 random(6);
  for (int round = 0; round < 400; ++round) {
    std::vector<double> values;
    for (unsigned i = random() % 30; i > 0; --i)
      values.push_back(random() % 3 ? random() % 8 : std::numeric_limits<double>::quiet_NaN());
    VkDList<double> list;
    Fill<double>(list, values);
    const bool upwards = random() % 2;
    list.Sort(upwards);
    const auto expected = InsertionSort(values, [&](double a, double b) { return upwards ? a > b : a < b; });
    for (std::size_t i = 0; i < expected.size(); ++i) {
      const double value = list.GetAt(static_cast<int>(i));
      ASSERT_TRUE(std::isnan(value) ? std::isnan(expected[i]) : value == expected[i]) << round;
    }
  }
}

TEST(Sorting, ANumberThatIsNoneKeepsItsPlaceInArrays) {
  const double none = std::numeric_limits<double>::quiet_NaN();
  VkDynArray<double> array;
  VkArray<double> plain;
  for (const double value : {3.0, none, 1.0, 2.0}) {
    array.Append(value);
    plain.Append(value);
  }
  array.Sort(true);
  plain.Sort(false);
  EXPECT_EQ(array.GetAt(0), 1);
  EXPECT_TRUE(std::isnan(array.GetAt(1)));
  EXPECT_EQ(array.GetAt(2), 2);
  EXPECT_EQ(array.GetAt(3), 3);
  EXPECT_EQ(plain.GetAt(0), 3);
  EXPECT_TRUE(std::isnan(plain.GetAt(1)));
  EXPECT_EQ(plain.GetAt(3), 1);
}

struct Owned : Tagged {
  Owned(int newKey, int newTag) : Tagged{newKey, newTag} {}
  virtual ~Owned() = default;
};

int ByOwnedKey(const Owned& a, const Owned& b) {
  return a.key - b.key;
}

std::string Keys(const VkDynArrayBase<Owned*>& owner) {
  std::string keys;
  for (Owned* const* slot = owner.GetFirst(); slot; slot = owner.GetNext(slot))
    keys += *slot ? std::to_string((*slot)->key) + "ab"[(*slot)->tag] + " " : std::string("- ");
  return keys;
}

TEST(Sorting, NullSlotsKeepTheirPlacesInAnOwningArray) {
  VkDynPArray<Owned> array;
  for (const int key : {3, 1}) array << new Owned(key, 0);
  array << nullptr << nullptr;
  for (const int key : {2, 1, 0}) array << new Owned(key, 1);
  array << nullptr;
  array.SortEx(true);
  EXPECT_EQ(Keys(array), "0b 1a - - 1b 2b 3a - ");
  array.SortEx(false);
  EXPECT_EQ(Keys(array), "3a 2b - - 1a 1b 0b - ");
  array.Sort(ByOwnedKey);
  EXPECT_EQ(Keys(array), "0b 1a - - 1b 2b 3a - ");
}

// Without a null slot that an element has to pass, the definition holds for SortEx, too.
TEST(Sorting, NullSlotsAtTheEndsAreSkippedAsTheDefinitionHasIt) {
  std::mt19937 random(7);
  for (int round = 0; round < 200; ++round) {
    VkDynPArray<Owned> array;
    for (unsigned i = random() % 3; i > 0; --i) array << nullptr;
    for (unsigned i = random() % 20; i > 0; --i) array << new Owned(static_cast<int>(random() % 5), 0);
    for (unsigned i = random() % 3; i > 0; --i) array << nullptr;
    std::vector<Owned*> expected = Contents<Owned*>(array);
    expected = CountingSort(expected, [](Owned* a, Owned* b) { return a && b && *a > *b; });
    array.SortEx(true);
    ASSERT_EQ(Contents<Owned*>(array), expected);
  }
}

TEST(Sorting, AnOwningListSortsByValuesAndItsArrayByAddressesWithoutThem) {
  VkPDList<Owned> list;
  for (const int key : {3, 1, 2}) list << new Owned(key, 0);
  list << nullptr << new Owned(1, 1);
  list.Sort(ByOwnedKey);
  EXPECT_EQ(Keys(list), "1a 1b 2a 3a - ");
  list.FindDel(nullptr);
  list.Sort(true);
  const auto addresses = Contents<Owned*>(list);
  EXPECT_TRUE(std::is_sorted(addresses.begin(), addresses.end(), std::less<>()));
}

} // namespace
