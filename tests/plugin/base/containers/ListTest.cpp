// Splicing, turning and cutting lists.
#include <gmock/gmock.h>

#include "plugin/base/containers/VkXList.h"
#include "tests/plugin/base/containers/Contents.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct SmallGroups : VkXList<int> {
  SmallGroups() : VkXList<int>(0, 3) {}
};

template <class List> class ListMember : public testing::Test {
 protected:
  static void Set(List& list, const std::vector<int>& values) { Fill<int>(list, values); }
  List list;
  List other;
};
using Members = testing::Types<VkList<int>, VkDList<int>, VkXList<int>, SmallGroups>;
TYPED_TEST_SUITE(ListMember, Members);

TYPED_TEST(ListMember, RotateWithEqualIndicesDoesNothing) {
  this->Set(this->list, {0, 1, 2, 3, 4});
  this->list.Rotate(0, 0);
  EXPECT_EQ(this->list.GetCur(), 4);
  EXPECT_THAT(Contents<int>(this->list), ElementsAre(0, 1, 2, 3, 4));
}

TYPED_TEST(ListMember, RotateFromTwoToZeroMakesTheThirdOfFiveElementsTheHead) {
  this->Set(this->list, {0, 1, 2, 3, 4});
  this->list.Rotate(2, 0);
  EXPECT_THAT(Contents<int>(this->list), ElementsAre(2, 3, 4, 0, 1));
  EXPECT_EQ(this->list.GetCur(), 0);
  EXPECT_EQ(this->list.GetCurData(), 2);
}

TYPED_TEST(ListMember, RotateBringsTheElementFromItsPlaceToTheOther) {
  for (int from = 0; from < 5; ++from) {
    for (int to = 0; to < 5; ++to) {
      this->Set(this->list, {0, 1, 2, 3, 4});
      this->list.Rotate(from, to);
      EXPECT_EQ(Contents<int>(this->list)[static_cast<std::size_t>(to)], from);
    }
  }
  this->list.Reset();
  this->list.Rotate(1, 0);
  EXPECT_TRUE(this->list.IsEmpty());
}

TYPED_TEST(ListMember, ConbineFromTheOtherListsLengthChangesNothing) {
  this->Set(this->list, {1, 2});
  this->Set(this->other, {3, 4});
  EXPECT_EQ(this->list.Conbine(this->other, 2), 2);
  EXPECT_EQ(this->list.Conbine(this->other, -1), 2);
  EXPECT_EQ(this->list.Conbine(this->list, 0), 2);
  EXPECT_THAT(Contents<int>(this->list), ElementsAre(1, 2));
  EXPECT_THAT(Contents<int>(this->other), ElementsAre(3, 4));
}

TYPED_TEST(ListMember, ConbineMovesTheNodesWithoutCopying) {
  this->Set(this->list, {1, 2});
  this->Set(this->other, {3, 4, 5});
  const int* const moved = this->other.GetTo(1);
  EXPECT_EQ(this->list.Conbine(this->other, 1), 4);
  EXPECT_EQ(this->list.GetTo(2), moved);
  EXPECT_EQ(this->list.GetCur(), 1);
  EXPECT_THAT(Contents<int>(this->list), ElementsAre(1, 2, 4, 5));
  EXPECT_THAT(Contents<int>(this->other), ElementsAre(3));
  EXPECT_EQ(this->other.GetCur(), 0);
  EXPECT_EQ(this->list.Conbine(this->other, 0), 5);
  EXPECT_THAT(Contents<int>(this->other), IsEmpty());
  EXPECT_EQ(this->other.GetCur(), -1);
  this->other.Append(6);
  this->list.Append(7);
  EXPECT_THAT(Contents<int>(this->list), ElementsAre(1, 2, 4, 5, 3, 7));
}

TYPED_TEST(ListMember, ListsOfOtherNodesAreConbinedByValue) {
  VkList<int> single;
  VkDList<int> twoWay;
  Fill<int>(single, {1, 2, 3});
  Fill<int>(twoWay, {4, 5, 6});
  this->Set(this->list, {0});
  EXPECT_EQ(this->list.Conbine(single, 1), 3);
  EXPECT_EQ(this->list.Conbine(twoWay, 2), 4);
  EXPECT_EQ(twoWay.Conbine(this->list, 3), 3);
  EXPECT_EQ(single.Conbine(this->list, 1), 3);
  EXPECT_THAT(Contents<int>(this->list), ElementsAre(0));
  EXPECT_THAT(Contents<int>(single), ElementsAre(1, 2, 3));
  EXPECT_THAT(Contents<int>(twoWay), ElementsAre(4, 5, 6));
}

TYPED_TEST(ListMember, SplitAtHandsOverEverythingFromThereOn) {
  this->Set(this->list, {1, 2, 3, 4});
  this->Set(this->other, {0});
  this->list.SplitAt(2, this->other);
  EXPECT_THAT(Contents<int>(this->list), ElementsAre(1, 2));
  EXPECT_THAT(Contents<int>(this->other), ElementsAre(0, 3, 4));
  this->list.MoveTo(1);
  this->list.SplitAtCur(this->other);
  EXPECT_THAT(Contents<int>(this->list), ElementsAre(1));
  EXPECT_EQ(this->list.GetCur(), 0);
  this->list.SplitAt(7, this->other);
  EXPECT_THAT(Contents<int>(this->other), ElementsAre(0, 3, 4, 2));
}

TYPED_TEST(ListMember, ReverseListLeavesShortListsAsTheyAre) {
  this->list.ReverseList();
  EXPECT_TRUE(this->list.IsEmpty());
  this->Set(this->list, {1});
  this->list.ReverseList();
  EXPECT_THAT(Contents<int>(this->list), ElementsAre(1));
  this->Set(this->list, {1, 2, 3, 4});
  this->list.MoveTo(1);
  this->list.ReverseList();
  EXPECT_THAT(Contents<int>(this->list), ElementsAre(4, 3, 2, 1));
  EXPECT_EQ(this->list.GetCurData(), 3);
}

TYPED_TEST(ListMember, InsertAfterCurBeforeTheFirstElementInsertsAtTheHead) {
  this->Set(this->list, {1, 2});
  this->list.MoveTo(0);
  this->list.InsertAfterCur(3);
  EXPECT_EQ(this->list.GetCur(), 1);
  this->list.MoveTo(-1);
  this->list.InsertAfterCur(4);
  EXPECT_EQ(this->list.GetCur(), 0);
  EXPECT_THAT(Contents<int>(this->list), ElementsAre(4, 1, 3, 2));
}

// Whoever cuts a list has taken over what lay behind, and is the one to free it.
TYPED_TEST(ListMember, DetachingForgetsNodesWithoutFreeingThem) {
  using OwnNode =
      std::conditional_t<std::is_same_v<TypeParam, VkList<int>>, VkListNode<int>, VkDListNode<int>>;
  const auto freeChain = [](VkListNode<int>* node, int count) {
    for (; count > 0; --count) {
      VkListNode<int>* const next = node->next;
      delete static_cast<OwnNode*>(node);
      node = next;
    }
  };
  this->Set(this->list, {1, 2, 3, 4, 5});
  this->list.MoveTo(3);
  VkListNode<int>* const fourth = this->list.GetCurPos();
  EXPECT_EQ(fourth->value, 4);
  this->list.DetachAfter(2);
  EXPECT_THAT(Contents<int>(this->list), ElementsAre(1, 2, 3));
  EXPECT_EQ(this->list.GetCur(), 2);
  freeChain(fourth, 2);
  this->list.DetachAfter(3); // no such index
  this->list.MoveTo(1);
  VkListNode<int>* const second = this->list.GetCurPos();
  this->list.MoveToFirst();
  this->list.DetachAfterCur();
  EXPECT_THAT(Contents<int>(this->list), ElementsAre(1));
  freeChain(second, 2);
  VkListNode<int>* const first = this->list.GetCurPos();
  this->list.Detach();
  EXPECT_TRUE(this->list.IsEmpty());
  EXPECT_EQ(this->list.GetCur(), -1);
  freeChain(first, 1);
  this->list.Append(6);
  EXPECT_THAT(Contents<int>(this->list), ElementsAre(6));
}

TYPED_TEST(ListMember, SetLengthAddsAndDropsAtTheTail) {
  this->Set(this->list, {1, 2, 3});
  this->list.MoveTo(1);
  this->list.SetLength(5, true);
  EXPECT_THAT(Contents<int>(this->list), ElementsAre(1, 2, 3, 0, 0));
  EXPECT_EQ(this->list.GetCurData(), 2);
  this->list.SetLength(1, true);
  EXPECT_THAT(Contents<int>(this->list), ElementsAre(1));
  EXPECT_EQ(this->list.GetCur(), -1);
  this->list.MoveToFirst();
  this->list.SetLength(2, false);
  EXPECT_THAT(Contents<int>(this->list), ElementsAre(0, 0));
  EXPECT_EQ(this->list.GetCur(), 0);
  const TypeParam none;
  EXPECT_TRUE(none.IsEmpty());
}

TEST(VkXList, HasLengthGroupSizeAndAllocationUnit) {
  VkXList<int> list(7, 3, 2);
  EXPECT_EQ(list.GetLength(), 7);
  EXPECT_EQ(list.GetGroupSize(), 3);
  EXPECT_EQ(VkXList<int>(0, 0).GetGroupSize(), 1);
  list[6] = 5;
  list.UpdateGroup(1);
  EXPECT_THAT(Contents<int>(list), ElementsAre(0, 0, 0, 0, 0, 0, 5));
}

TEST(VkList, DeletingWhileWalkingIsLinear) {
  VkList<int> list(1'000'000);
  EXPECT_EQ(list.FindDel(0), 1'000'000);
  for (int i = 0; i < 1'000'000; ++i) list.Append(i % 2);
  EXPECT_EQ(list.FindDel(1), 500'000);
}

} // namespace
