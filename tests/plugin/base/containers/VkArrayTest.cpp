// The fixed block and the table.
#include <gmock/gmock.h>

#include "plugin/base/containers/Vk2dArray.h"

namespace {

using testing::ElementsAre;

std::vector<int> Values(const VkArray<int>& array) {
  return std::vector<int>(array.GetDataBuffer(), array.GetDataBuffer() + array.GetLength());
}

int Downwards(const int& a, const int& b) {
  return b - a;
}

TEST(VkArray, ReAllocateKeepsTheValuesOrDropsThem) {
  VkArray<int> array(2);
  EXPECT_TRUE(array.SetAt(0, 5));
  EXPECT_TRUE(array.SetAt(1, 6));
  EXPECT_FALSE(array.SetAt(2, 7));
  EXPECT_FALSE(array.SetAt(-1, 7));
  array.ReAllocate(3, true);
  EXPECT_THAT(Values(array), ElementsAre(5, 6, 0));
  array.ReAllocate(1, true);
  EXPECT_THAT(Values(array), ElementsAre(5));
  array.ReAllocate(2, false);
  EXPECT_THAT(Values(array), ElementsAre(0, 0));
  array.Reset();
  EXPECT_TRUE(array.IsEmpty());
  EXPECT_EQ(array.GetDataBuffer(), nullptr);
}

TEST(VkArray, HasTheVocabularyOfTheFamily) {
  VkArray<int> array;
  EXPECT_EQ(array.Append(4), 0);
  EXPECT_EQ(array.Append(2), 1);
  EXPECT_TRUE(array.Insert(1, array[0]));
  EXPECT_TRUE(array.Insert(3, 1));
  EXPECT_FALSE(array.Insert(5, 1));
  EXPECT_THAT(Values(array), ElementsAre(4, 4, 2, 1));
  EXPECT_TRUE(array.Del(0));
  EXPECT_FALSE(array.Del(3));
  EXPECT_EQ(array.Find(2), 1);
  EXPECT_EQ(array.Find(2, 2), -1);
  array.Sort(true);
  EXPECT_THAT(Values(array), ElementsAre(1, 2, 4));
  EXPECT_EQ(array.BFind(4), 2);
  EXPECT_EQ(array.BFind(3), -1);
  EXPECT_EQ(VkArray<int>().BFind(3), -1);
  array.Sort(Downwards);
  EXPECT_THAT(Values(array), ElementsAre(4, 2, 1));
  array.Reverse(1, -1);
  EXPECT_THAT(Values(array), ElementsAre(4, 1, 2));
  EXPECT_TRUE(array.Exchange(0, 2));
  EXPECT_FALSE(array.Exchange(0, 3));
  EXPECT_THAT(Values(array), ElementsAre(2, 1, 4));
  VkArray<int> copy(array);
  EXPECT_EQ(copy, array);
  copy.SetAll(copy[2]);
  EXPECT_NE(copy, array);
  EXPECT_THAT(Values(copy), ElementsAre(4, 4, 4));
  copy = array;
  EXPECT_EQ(copy, array);
}

TEST(Vk2dArray, ReAllocatesRowsAndColumnsAndSetsAllCells) {
  Vk2dArray<int> table(2, 3);
  EXPECT_EQ(table.GetLength(), 2);
  EXPECT_EQ(table[1].GetLength(), 3);
  table.SetAll(7);
  EXPECT_THAT(Values(table[1]), ElementsAre(7, 7, 7));
  table.ReAllocate(3, 2, true);
  EXPECT_THAT(Values(table[1]), ElementsAre(7, 7));
  EXPECT_THAT(Values(table[2]), ElementsAre(0, 0));
  table.ReAllocate(1, 1, false);
  EXPECT_THAT(Values(table[0]), ElementsAre(0));
  Vk2dArray<int> copy = table;
  copy[0][0] = 1;
  EXPECT_EQ(table[0][0], 0);
}

} // namespace
