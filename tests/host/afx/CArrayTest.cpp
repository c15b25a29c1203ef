#include "host/afx/CArray.h"

#include <memory>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/afx/CStringArray.h"

namespace {

using testing::ElementsAre;

struct Size {
  double diameter = 20;
  std::string name = "DN20";
};

CArray<int> Numbers(std::initializer_list<int> values) {
  CArray<int> array;
  for (const int value : values) array.Add(value);
  return array;
}

// The sizes at which the memory moves while elements are added one by one.
std::vector<int> ReallocationsUpTo(int size, int growBy) {
  CArray<int> array;
  array.SetSize(0, growBy);
  std::vector<int> moves;
  for (int i = 0; i < size; ++i) {
    const int* before = array.GetData();
    array.Add(i);
    if (array.GetData() != before) moves.push_back(array.GetSize());
  }
  return moves;
}

TEST(CArray, AddGivesTheIndexOfTheNewElement) {
  CArray<int> array;
  EXPECT_TRUE(array.IsEmpty());
  EXPECT_EQ(array.GetUpperBound(), -1);
  EXPECT_EQ(array.Add(7), 0);
  EXPECT_EQ(array.Add(8), 1);
  EXPECT_EQ(array.GetSize(), 2);
  EXPECT_EQ(array.GetCount(), 2);
  EXPECT_EQ(array.GetUpperBound(), 1);
  EXPECT_THAT(array, ElementsAre(7, 8));
}

TEST(CArray, AnIndexOutsideRaisesTheInvalidArgumentException) {
  CArray<int> array = Numbers({1});
  const CArray<int>& constant = array;
  EXPECT_THROW(array[1], CInvalidArgException);
  EXPECT_THROW(array[-1], CInvalidArgException);
  EXPECT_THROW(constant[1], CInvalidArgException);
  EXPECT_THROW(array.GetAt(1), CInvalidArgException);
  EXPECT_THROW(array.ElementAt(-1), CInvalidArgException);
  EXPECT_THROW(array.SetAt(1, 0), CInvalidArgException);
  EXPECT_THROW(array.SetAtGrow(-1, 0), CInvalidArgException);
  EXPECT_THROW(array.InsertAt(-1, 0), CInvalidArgException);
  EXPECT_THROW(array.InsertAt(0, 0, -1), CInvalidArgException);
  EXPECT_THROW(array.RemoveAt(1), CInvalidArgException);
  EXPECT_THROW(array.RemoveAt(0, 2), CInvalidArgException);
  EXPECT_THROW(array.RemoveAt(0, 2147483647), CInvalidArgException);
  EXPECT_THROW(array.RemoveAt(0, -1), CInvalidArgException);
  EXPECT_THROW(array.SetSize(-1), CInvalidArgException);
  EXPECT_THROW(array.SetAtGrow(2147483647, 0), CInvalidArgException);
  EXPECT_THROW(array.InsertAt(2147483647, 0), CInvalidArgException);
  EXPECT_THROW(array.InsertAt(1, 0, 2147483647), CInvalidArgException);
  EXPECT_THROW(CArray<int>()[0], CInvalidArgException);
  EXPECT_THAT(array, ElementsAre(1));
}

TEST(CArray, NewElementsHaveTheirDefaults) {
  CArray<Size> sizes;
  sizes.SetSize(2);
  EXPECT_EQ(sizes[1].diameter, 20);
  EXPECT_EQ(sizes[1].name, "DN20");
  CArray<int> numbers;
  numbers.SetSize(3);
  EXPECT_THAT(numbers, ElementsAre(0, 0, 0));
  CArray<Size*, Size*> pointers;
  pointers.SetSize(1);
  EXPECT_EQ(pointers[0], nullptr);
}

TEST(CArray, SizeZeroFreesTheMemoryButNotThePointedAt) {
  const auto owned = std::make_shared<int>(5);
  CArray<const int*, const int*> pointers;
  pointers.Add(owned.get());
  pointers.SetSize(0);
  EXPECT_EQ(pointers.GetData(), nullptr);
  EXPECT_EQ(*owned, 5);
}

TEST(CArray, DestroysTheElementsThatItDrops) {
  const auto shared = std::make_shared<int>(1);
  CArray<std::shared_ptr<int>> array;
  for (int i = 0; i < 10; ++i) array.Add(shared);
  EXPECT_EQ(shared.use_count(), 11);
  array.SetSize(6);
  EXPECT_EQ(shared.use_count(), 7);
  array.RemoveAt(1, 2);
  EXPECT_EQ(shared.use_count(), 5);
  array.RemoveAll();
  EXPECT_EQ(shared.use_count(), 1);
}

TEST(CArray, SetAtGrowFillsUpToTheIndex) {
  CArray<Size, Size&> sizes;
  Size large{100, "DN100"};
  sizes.SetAtGrow(2, large);
  EXPECT_EQ(sizes.GetSize(), 3);
  EXPECT_EQ(sizes[0].name, "DN20");
  EXPECT_EQ(sizes[2].name, "DN100");
  Size small{15, "DN15"};
  sizes.SetAtGrow(0, small);
  EXPECT_EQ(sizes.GetSize(), 3);
  EXPECT_EQ(sizes[0].name, "DN15");
}

TEST(CArray, InsertAtOpensAGap) {
  CArray<int> array = Numbers({1, 2, 3});
  array.InsertAt(1, 9, 2);
  EXPECT_THAT(array, ElementsAre(1, 9, 9, 2, 3));
  array.InsertAt(5, 7);
  EXPECT_THAT(array, ElementsAre(1, 9, 9, 2, 3, 7));
  array.InsertAt(0, 5, 0);
  EXPECT_EQ(array.GetSize(), 6);
}

TEST(CArray, InsertAtBeyondTheEndGrows) {
  CArray<int> array = Numbers({1});
  array.InsertAt(3, 9, 2);
  EXPECT_THAT(array, ElementsAre(1, 0, 0, 9, 9));
}

TEST(CArray, InsertAtOfItsOwnElementIsSafe) {
  CArray<std::string> array;
  for (const char* name : {"a long name that lives on the heap", "b", "c", "d"}) array.Add(name);
  array.FreeExtra();
  array.InsertAt(0, array[3]);
  array.InsertAt(1, array[4], 40);
  EXPECT_EQ(array[0], "d");
  EXPECT_EQ(array[40], "d");
  EXPECT_EQ(array[41], "a long name that lives on the heap");
  array.FreeExtra();
  array.Add(array[41]);
  EXPECT_EQ(array[array.GetUpperBound()], "a long name that lives on the heap");
}

TEST(CArray, InsertsAndAppendsWholeArraysEvenItself) {
  CArray<int> array = Numbers({1, 2});
  array.InsertAt(1, Numbers({8, 9}));
  EXPECT_THAT(array, ElementsAre(1, 8, 9, 2));
  array.InsertAt(2, array);
  EXPECT_THAT(array, ElementsAre(1, 8, 1, 8, 9, 2, 9, 2));
  CArray<int> twice = Numbers({1, 2});
  EXPECT_EQ(twice.Append(twice), 2);
  EXPECT_THAT(twice, ElementsAre(1, 2, 1, 2));
  EXPECT_EQ(twice.Append(CArray<int>()), 4);
}

TEST(CArray, RemoveAtClosesTheGap) {
  CArray<int> array = Numbers({1, 2, 3, 4, 5});
  array.RemoveAt(1, 2);
  EXPECT_THAT(array, ElementsAre(1, 4, 5));
  array.RemoveAt(2);
  EXPECT_THAT(array, ElementsAre(1, 4));
  array.RemoveAt(2, 0);
  EXPECT_EQ(array.GetSize(), 2);
}

TEST(CArray, CopiesAreIndependent) {
  CArray<int> array = Numbers({1, 2});
  CArray<int> copy(array);
  copy[0] = 9;
  EXPECT_EQ(array[0], 1);
  array = copy;
  EXPECT_THAT(array, ElementsAre(9, 2));
  array.Copy(array);
  EXPECT_THAT(array, ElementsAre(9, 2));
  const CArray<int> moved(std::move(copy));
  EXPECT_THAT(moved, ElementsAre(9, 2));
  array.Copy(CArray<int>());
  EXPECT_TRUE(array.IsEmpty());
}

TEST(CArray, GrowsByFourWhileSmall) {
  EXPECT_THAT(ReallocationsUpTo(14, 0), ElementsAre(1, 2, 6, 10, 14));
}

TEST(CArray, GrowsByTheStepThatWasSet) {
  EXPECT_THAT(ReallocationsUpTo(250, 100), ElementsAre(1, 101, 201));
}

TEST(CArray, GrowsByAnEighthAndNeverByMoreThan1024) {
  std::vector<int> moves = ReallocationsUpTo(30000, 0);
  int largest = 0;
  for (std::size_t i = 2; i < moves.size(); ++i) {
    const int step = moves[i] - moves[i - 1];
    EXPECT_EQ(step, std::clamp((moves[i - 1] - 1) / 8, 4, 1024)) << "at size " << moves[i - 1];
    largest = std::max(largest, step);
  }
  EXPECT_EQ(largest, 1024);
}

TEST(CArray, WorksForBool) {
  CArray<bool, bool> flags;
  flags.SetSize(2);
  flags[1] = true;
  EXPECT_FALSE(flags[0]);
  EXPECT_TRUE(*(flags.GetData() + 1));
}

TEST(CStringArray, HoldsTexts) {
  CStringArray names;
  names.Add(L"供水");
  names.SetAtGrow(2, L"回水");
  EXPECT_EQ(names.GetSize(), 3);
  EXPECT_EQ(names[0], L"供水");
  EXPECT_TRUE(names[1].IsEmpty());
  EXPECT_THROW(names[3], CInvalidArgException);
  CStringArray copy = names;
  copy[0] = L"x";
  EXPECT_EQ(names[0], L"供水");
  int length = 0;
  for (const CString& name : names) length += name.GetLength();
  EXPECT_EQ(length, 4);
}

} // namespace
