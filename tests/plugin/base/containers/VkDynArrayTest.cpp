// Space and blocks of the array.
#include <gmock/gmock.h>

#include "plugin/base/containers/VkDynArray.h"
#include "tests/plugin/base/containers/Contents.h"

namespace {

using testing::ElementsAre;

TEST(VkDynArray, HasTheSpaceItWasMadeWithAndAnAllocationUnitOfTen) {
  const VkDynArray<int> array;
  EXPECT_EQ(array.GetSpaceSize(), 0);
  EXPECT_EQ(array.GetAllocUnit(), 10);
  const VkDynArray<int> spacious(20, 5);
  EXPECT_EQ(spacious.GetSpaceSize(), 20);
  EXPECT_EQ(spacious.GetLength(), 0);
  EXPECT_EQ(spacious.GetAllocUnit(), 5);
}

TEST(VkDynArray, ReAllocateBeyondTheSpaceAddsTheAllocationUnitAndKeepsTheValues) {
  VkDynArray<int> array(4, 3);
  Fill<int>(array, {1, 2});
  EXPECT_EQ(array.GetSpaceSize(), 4) << "Reset leaves no space, and the first element made 1 + 3";
  array.ReAllocate(4);
  EXPECT_EQ(array.GetSpaceSize(), 4) << "within the space only the length changes";
  array.ReAllocate(6);
  EXPECT_EQ(array.GetSpaceSize(), 9);
  EXPECT_THAT(Contents<int>(array), ElementsAre(1, 2, 0, 0, 0, 0));
}

TEST(VkDynArray, ReAllocateWithinTheSpaceBringsBackWhatStoodThere) {
  VkDynArray<int> array;
  Fill<int>(array, {1, 2, 3});
  array.ReAllocate(1);
  array.ReAllocate(3);
  EXPECT_THAT(Contents<int>(array), ElementsAre(1, 2, 3));
  array.ReAllocate(1);
  array.ReAllocate(array.GetSpaceSize() + 1); // a new block takes along only what is in the length
  EXPECT_EQ(array.Find(2), -1);
}

TEST(VkDynArray, SetLengthReallocatesToExactlyThatLength) {
  VkDynArray<int> array(0, 10);
  Fill<int>(array, {1, 2, 3});
  array.SetLength(5, true);
  EXPECT_EQ(array.GetSpaceSize(), 5);
  EXPECT_THAT(Contents<int>(array), ElementsAre(1, 2, 3, 0, 0));
  array.SetLength(2, true);
  EXPECT_EQ(array.GetSpaceSize(), 2);
  EXPECT_THAT(Contents<int>(array), ElementsAre(1, 2));
  array.SetLength(3, false);
  EXPECT_THAT(Contents<int>(array), ElementsAre(0, 0, 0));
}

// The exception that callers know: with the space at that size already, nothing but the length changes.
TEST(VkDynArray, SetLengthToTheSpaceSizeKeepsTheValuesEvenWhenToldToDropThem) {
  VkDynArray<int> array(3);
  array.SetSpaceSize(3);
  array << 1 << 2;
  array.SetLength(3, false);
  EXPECT_THAT(Contents<int>(array), ElementsAre(1, 2, 0));
}

TEST(VkDynArray, SetSpaceSizeRefusesLessThanTheLength) {
  VkDynArray<int> array;
  Fill<int>(array, {1, 2, 3});
  EXPECT_FALSE(array.SetSpaceSize(2));
  EXPECT_TRUE(array.SetSpaceSize(100));
  EXPECT_EQ(array.GetSpaceSize(), 100);
  EXPECT_TRUE(array.SetSpaceSize(3));
  EXPECT_EQ(array.GetSpaceSize(), 3);
  EXPECT_THAT(Contents<int>(array), ElementsAre(1, 2, 3));
}

TEST(VkDynArray, ACursorBehindTheNewEndGoesToTheEnd) {
  VkDynArray<int> array;
  Fill<int>(array, {1, 2, 3});
  array.ReAllocate(1);
  EXPECT_EQ(array.GetCur(), 1);
  EXPECT_TRUE(array.IsEnd());
}

TEST(VkDynArray, AttachTakesOverABlockAndDetachHandsItOut) {
  VkDynArray<std::string> array;
  array.Append("gone");
  array.Attach(2, new std::string[2]{"a", "b"});
  EXPECT_EQ(array.GetSpaceSize(), 2);
  EXPECT_EQ(array.GetCur(), -1);
  array.Append("c");
  const std::unique_ptr<std::string[]> block(array.Detach());
  EXPECT_EQ(block[2], "c");
  EXPECT_TRUE(array.IsEmpty());
  EXPECT_EQ(array.GetSpaceSize(), 0);
  EXPECT_EQ(array.Detach(), nullptr);
  array.Append("usable");
  EXPECT_EQ(array[0], "usable");
}

TEST(VkDynArray, AppendingCostsConstantTimeWhateverTheUnit) {
  VkDynArray<int> array(0, 0); // one block for each element would not come to an end here
  for (int i = 0; i < 3'000'000; ++i) array.Append(i);
  EXPECT_EQ(array.GetSpaceSize(), 3'000'000);
  EXPECT_EQ(array.Find(2'999'999), 2'999'999);
}

TEST(VkDynArray, ADeletedElementIsLetGoAtOnce) {
  const auto shared = std::make_shared<int>(5);
  VkDynArray<std::shared_ptr<int>> array;
  array << shared << shared << shared;
  array.DelHead();
  EXPECT_EQ(shared.use_count(), 3);
  EXPECT_EQ(array.FindDel(shared), 2);
  EXPECT_EQ(shared.use_count(), 1);
}

} // namespace
