#include "plugin/graph/AcArray.h"

#include <gtest/gtest.h>

namespace {

AcArray<int> Of(std::initializer_list<int> items) {
  AcArray<int> array;
  for (const int item : items) array.append(item);
  return array;
}

void ExpectItems(const AcArray<int>& array, std::initializer_list<int> items) {
  EXPECT_TRUE(std::equal(array.begin(), array.end(), items.begin(), items.end()));
}

TEST(AcArray, IsEmptyAtFirst) {
  const AcArray<int> array;
  EXPECT_TRUE(array.isEmpty());
  EXPECT_EQ(array.length(), 0);
  EXPECT_EQ(array.growLength(), 8);
}

TEST(AcArray, AppendsAndTellsTheIndex) {
  AcArray<int> array;
  EXPECT_EQ(array.append(5), 0);
  EXPECT_EQ(array.append(array[0]), 1);
  ExpectItems(array, {5, 5});
  EXPECT_EQ(array.first(), 5);
}

TEST(AcArray, AppendsAnotherAndItself) {
  AcArray<int> array = Of({1, 2});
  array.append(Of({3}));
  array.append(array);
  ExpectItems(array, {1, 2, 3, 1, 2, 3});
}

TEST(AcArray, InsertsAnElementOfItsOwnWhileItsMemoryMoves) {
  AcArray<int> array(1, 1);
  array.append(7);
  for (int i = 0; i < 100; ++i) array.insertAt(0, array.last());
  EXPECT_EQ(array.length(), 101);
  for (const int item : array) EXPECT_EQ(item, 7);
}

TEST(AcArray, InsertsAndRemoves) {
  AcArray<int> array = Of({1, 3});
  array.insertAt(1, 2).insertAt(3, 4).removeAt(0);
  ExpectItems(array, {2, 3, 4});
  EXPECT_TRUE(array.remove(3));
  EXPECT_FALSE(array.remove(3));
  ExpectItems(array, {2, 4});
  EXPECT_TRUE(array.removeAll().isEmpty());
}

TEST(AcArray, FindsTheFirstFromAStart) {
  const AcArray<int> array = Of({1, 2, 1});
  int index = -1;
  EXPECT_TRUE(array.find(1, index, 1));
  EXPECT_EQ(index, 2);
  EXPECT_FALSE(array.find(9, index));
  EXPECT_EQ(index, 2);
  EXPECT_TRUE(array.contains(2));
}

TEST(AcArray, ReversesAndSwaps) {
  AcArray<int> array = Of({1, 2, 3});
  array.reverse();
  ExpectItems(array, {3, 2, 1});
  array.swap(0, 1);
  ExpectItems(array, {2, 3, 1});
}

TEST(AcArray, IsCopiedByValue) {
  AcArray<int> array = Of({1});
  AcArray<int> copy = array;
  copy.setAt(0, 2);
  EXPECT_EQ(array[0], 1);
}

TEST(AcArray, RaisesAnErrorForAnIndexOutOfRange) {
  AcArray<int> array = Of({1});
  EXPECT_THROW(array.at(1), CInvalidArgException);
  EXPECT_THROW(array.at(-1), CInvalidArgException);
  EXPECT_THROW(array.setAt(1, 0), CInvalidArgException);
  EXPECT_THROW(array.insertAt(2, 0), CInvalidArgException);
  EXPECT_THROW(array.removeAt(1), CInvalidArgException);
  EXPECT_THROW(AcArray<int>().last(), CInvalidArgException);
  EXPECT_THROW(array.setLogicalLength(-1), CInvalidArgException);
}

TEST(AcArray, HasTheLengthThatItIsGiven) {
  AcArray<int> array = Of({1, 2, 3});
  array.setLogicalLength(5);
  ExpectItems(array, {1, 2, 3, 0, 0});
  array.setLogicalLength(1);
  ExpectItems(array, {1});
}

} // namespace
