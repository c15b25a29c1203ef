// What the catalogues lean on in their arrays.
#include <gtest/gtest.h>

#include "host/afx/CInvalidArgException.h"
#include "plugin/base/CZPArray.h"

namespace {

struct Row {
  double nominal = 7;
  int id = 9;
};

struct Counted {
  explicit Counted(int& alive) : m_alive(alive) { ++m_alive; }
  ~Counted() { --m_alive; }
  int& m_alive;
};

TEST(CZPArray, AddsNothingToTheFrameworksArrayButAType) {
  static_assert(sizeof(CZPArray<int, int>) == sizeof(CArray<int, int>));
  static_assert(std::is_base_of_v<CArray<Row, Row&>, CZPArray<Row, Row&>>);
}

TEST(CZPArray, AnArrayOfPointersFreedWithSetSize0DoesNotDeleteItsObjects) {
  int alive = 0;
  Counted* objects[] = {new Counted(alive), new Counted(alive)};
  CZPArray<Counted*, Counted*> array;
  for (Counted* object : objects) array.Add(object);
  array.SetSize(0);
  EXPECT_EQ(array.GetSize(), 0);
  EXPECT_EQ(array.GetData(), nullptr);
  EXPECT_EQ(alive, 2);
  for (Counted* object : objects) delete object;
}

TEST(CZPArray, SetAtGrowGrowsAsNeeded) {
  CZPArray<int, int> array;
  array.SetAtGrow(3, 5);
  ASSERT_EQ(array.GetSize(), 4);
  EXPECT_EQ(array[3], 5);
  EXPECT_EQ(array[0], 0);
}

TEST(CZPArray, RemoveAtClosesTheGap) {
  CZPArray<int, int> array;
  for (int i = 0; i < 6; ++i) array.Add(i);
  array.RemoveAt(1, 3);
  ASSERT_EQ(array.GetSize(), 3);
  EXPECT_EQ(array[0], 0);
  EXPECT_EQ(array[1], 4);
  EXPECT_EQ(array[2], 5);
}

TEST(CZPArray, InsertAtOpensAGapAndBeyondTheEndDefaultConstructsWhatLiesBetween) {
  CZPArray<Row, Row&> array;
  Row row{20, 1};
  array.Add(row);
  Row other{25, 2};
  array.InsertAt(0, other, 2);
  ASSERT_EQ(array.GetSize(), 3);
  EXPECT_EQ(array[1].id, 2);
  EXPECT_EQ(array[2].id, 1);
  array.InsertAt(5, other);
  ASSERT_EQ(array.GetSize(), 6);
  EXPECT_EQ(array[4].nominal, 7);
  EXPECT_EQ(array[4].id, 9);
}

TEST(CZPArray, AnIndexOutsideRaisesTheInvalidArgumentException) {
  CZPArray<bool, bool> array;
  EXPECT_THROW(array.GetAt(0), CInvalidArgException);
  array.Add(true);
  EXPECT_THROW(array[1], CInvalidArgException);
  EXPECT_THROW(array[-1], CInvalidArgException);
  EXPECT_TRUE(array[0]);
}

} // namespace
