// What all members of the family do alike, tried on each of them.
#include <gmock/gmock.h>

#include "plugin/base/containers/VkDynArray.h"
#include "plugin/base/containers/VkXList.h"
#include "tests/plugin/base/containers/Contents.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct SmallGroups : VkXList<int> {
  SmallGroups() : VkXList<int>(0, 2) {}
};

template <class Container> class Family : public testing::Test {
 protected:
  void Set(const std::vector<int>& values) { Fill<int>(m_container, values); }
  std::vector<int> Get() const { return Contents<int>(m_container); }
  Container m_container;
};
template <class Container> class Lists : public Family<Container> {};
class Arrays : public Family<VkDynArray<int>> {};

using ListMembers = testing::Types<VkList<int>, VkDList<int>, VkXList<int>, SmallGroups>;
using AllMembers = testing::Types<VkDynArray<int>, VkList<int>, VkDList<int>, VkXList<int>, SmallGroups>;
TYPED_TEST_SUITE(Family, AllMembers);
TYPED_TEST_SUITE(Lists, ListMembers);

TYPED_TEST(Family, AFreshContainerHasItsCursorBeforeTheFirstElement) {
  EXPECT_EQ(this->m_container.GetCur(), -1);
  EXPECT_TRUE(this->m_container.IsBegin());
  EXPECT_TRUE(this->m_container.IsOut());
  EXPECT_TRUE(this->m_container.IsEmpty());
  EXPECT_EQ(this->m_container.GetMaxIndex(), -1);
  EXPECT_EQ(this->m_container.GetFirst(), nullptr);
  EXPECT_EQ(this->m_container.GetLast(), nullptr);
}

TEST_F(Arrays, AWalkToTheEndLeavesTheCursorAtTheLength) {
  Set({7, 8, 9});
  int steps = 0;
  for (m_container.MoveToFirst(); !m_container.IsOut(); m_container.MoveToNext()) ++steps;
  EXPECT_EQ(steps, 3);
  EXPECT_EQ(m_container.GetCur(), 3);
  EXPECT_TRUE(m_container.IsEnd());
  EXPECT_FALSE(m_container.MoveToNext());
  EXPECT_EQ(m_container.GetCur(), 3);
}

TYPED_TEST(Lists, AWalkToTheEndLeavesTheCursorAtMinusOneAndTheNextStepStartsOver) {
  this->Set({7, 8, 9});
  auto& list = this->m_container;
  int steps = 0;
  for (list.MoveToFirst(); !list.IsOut(); list.MoveToNext()) ++steps;
  EXPECT_EQ(steps, 3);
  EXPECT_EQ(list.GetCur(), -1);
  EXPECT_TRUE(list.IsOut());
  EXPECT_TRUE(list.MoveToNext());
  EXPECT_EQ(list.GetCur(), 0);
  EXPECT_EQ(list.GetCurData(), 7);
  list.MoveToPre();
  EXPECT_EQ(list.GetCur(), -1);
  list.MoveToPre();
  EXPECT_EQ(list.GetCurData(), 9);
}

TYPED_TEST(Lists, AnIndexOutOfRangeLeadsToTheSentinelWhereAnInsertionAppends) {
  this->Set({1, 2});
  EXPECT_FALSE(this->m_container.MoveTo(2));
  EXPECT_EQ(this->m_container.GetCur(), -1);
  this->m_container.MoveTo(0);
  EXPECT_FALSE(this->m_container.MoveTo(-7));
  EXPECT_EQ(this->m_container.GetCur(), -1);
  this->m_container.Insert(99, 3);
  EXPECT_EQ(this->m_container.GetCur(), 2);
  EXPECT_THAT(this->Get(), ElementsAre(1, 2, 3));
}

TEST_F(Arrays, AnInsertionBeforeTheFirstElementGoesToTheHeadAndOneBeyondTheEndToTheEnd) {
  Set({1, 2});
  m_container.Insert(-5, 0);
  EXPECT_EQ(m_container.GetCur(), 0);
  m_container.Insert(99, 3);
  EXPECT_EQ(m_container.GetCur(), 3);
  EXPECT_THAT(Get(), ElementsAre(0, 1, 2, 3));
}

TYPED_TEST(Family, InsertionsLeaveTheCursorOnTheNewValue) {
  auto& container = this->m_container;
  EXPECT_EQ(container.Append(5), 0);
  EXPECT_EQ(container.Append(6), 1);
  EXPECT_EQ(container.GetCur(), 1);
  container.Insert(1, 7);
  EXPECT_EQ(container.GetCur(), 1);
  EXPECT_EQ(container.GetCurData(), 7);
  container.InsertHead(4);
  EXPECT_EQ(container.GetCur(), 0);
  container.MoveTo(2);
  container.InsertCur(8);
  EXPECT_EQ(container.GetCur(), 2);
  EXPECT_THAT(this->Get(), ElementsAre(4, 5, 8, 7, 6));
}

TYPED_TEST(Family, DelCurStepsBackSoThatMoveToNextReachesTheElementBehind) {
  this->Set({1, 2, 3});
  auto& container = this->m_container;
  container.MoveTo(1);
  EXPECT_TRUE(container.DelCur());
  EXPECT_EQ(container.GetCur(), 0);
  EXPECT_TRUE(container.MoveToNext());
  EXPECT_EQ(container.GetCurData(), 3);
  container.MoveToFirst();
  EXPECT_TRUE(container.DelCur());
  EXPECT_EQ(container.GetCur(), -1);
  EXPECT_TRUE(container.MoveToNext());
  EXPECT_EQ(container.GetCurData(), 3);
  EXPECT_TRUE(container.DelCur());
  EXPECT_FALSE(container.DelCur());
  EXPECT_TRUE(container.IsEmpty());
}

TYPED_TEST(Family, DelOfABadIndexDeletesNothing) {
  this->Set({1, 2, 3});
  EXPECT_FALSE(this->m_container.Del(3));
  EXPECT_FALSE(this->m_container.Del(-1));
  EXPECT_TRUE(this->m_container.DelTail());
  EXPECT_TRUE(this->m_container.DelHead());
  EXPECT_THAT(this->Get(), ElementsAre(2));
}

TYPED_TEST(Family, FindDelWithEveryElementEqualEmptiesTheContainerAndGivesTheOldLength) {
  this->Set({4, 4, 4, 4, 4});
  EXPECT_EQ(this->m_container.FindDel(4), 5);
  EXPECT_TRUE(this->m_container.IsEmpty());
  EXPECT_EQ(this->m_container.FindDel(4), 0);
}

TYPED_TEST(Family, FindDelTakesOneOfTheElementsAsItsArgument) {
  this->Set({4, 1, 4, 2, 4});
  EXPECT_EQ(this->m_container.FindDel(this->m_container.GetAt(0)), 3);
  EXPECT_THAT(this->Get(), ElementsAre(1, 2));
  EXPECT_TRUE(this->m_container.IsOut());
}

TYPED_TEST(Family, AWritingSubscriptGrowsTheContainerAndMovesTheCursor) {
  auto& container = this->m_container;
  container[2] = 5;
  EXPECT_EQ(container.GetCur(), 2);
  EXPECT_THAT(this->Get(), ElementsAre(0, 0, 5));
  EXPECT_EQ(container[1], 0);
  EXPECT_EQ(container.GetCur(), 1);
  const TypeParam& constant = container;
  EXPECT_EQ(constant[2], 5);
  EXPECT_EQ(container.GetCur(), 1);
  EXPECT_EQ(container.GetLength(), 3);
}

TYPED_TEST(Family, MovingAnElementToWhereItStandsGivesFalseAndChangesNothing) {
  this->Set({0, 1, 2, 3, 4, 5});
  this->m_container.MoveTo(1);
  EXPECT_FALSE(this->m_container.Move(3, 3));
  EXPECT_FALSE(this->m_container.Move(3, 4));
  EXPECT_FALSE(this->m_container.Move(6, 0));
  EXPECT_FALSE(this->m_container.Move(0, 7));
  EXPECT_EQ(this->m_container.GetCur(), 1);
  EXPECT_THAT(this->Get(), ElementsAre(0, 1, 2, 3, 4, 5));
}

TYPED_TEST(Family, MovePutsTheElementBeforeTheOtherAndLeavesTheCursorOnIt) {
  this->Set({0, 1, 2, 3, 4, 5});
  EXPECT_TRUE(this->m_container.Move(3, 1));
  EXPECT_THAT(this->Get(), ElementsAre(0, 3, 1, 2, 4, 5));
  EXPECT_EQ(this->m_container.GetCur(), 1);
  EXPECT_TRUE(this->m_container.Move(0, 6));
  EXPECT_THAT(this->Get(), ElementsAre(3, 1, 2, 4, 5, 0));
  EXPECT_EQ(this->m_container.GetCur(), 5);
  EXPECT_TRUE(this->m_container.Move(1, 3));
  EXPECT_THAT(this->Get(), ElementsAre(3, 2, 1, 4, 5, 0));
  EXPECT_EQ(this->m_container.GetCurData(), 1);
}

TYPED_TEST(Family, SortIntoRefusesAPresentValueUnlessDuplicatesAreAllowed) {
  auto& container = this->m_container;
  for (const int value : {5, 1, 3, 9, 7}) EXPECT_TRUE(container.SortInto(value, false));
  EXPECT_THAT(this->Get(), ElementsAre(1, 3, 5, 7, 9));
  EXPECT_FALSE(container.SortInto(3, false));
  EXPECT_EQ(container.GetCur(), 1);
  EXPECT_TRUE(container.SortInto(3, true));
  EXPECT_EQ(container.GetCur(), 2) << "behind its equals";
  EXPECT_TRUE(container.SortInto(9, true));
  EXPECT_EQ(container.GetCur(), 6);
  EXPECT_THAT(this->Get(), ElementsAre(1, 3, 3, 5, 7, 9, 9));
}

TEST_F(Arrays, BFindToLeavesTheCursorWhereTheValueWouldHaveToGo) {
  EXPECT_FALSE(m_container.BFindTo(1));
  EXPECT_EQ(m_container.GetCur(), 0) << "in an empty container";
  Set({10, 20, 30, 40});
  EXPECT_FALSE(m_container.BFindTo(5));
  EXPECT_EQ(m_container.GetCur(), 0);
  EXPECT_FALSE(m_container.BFindTo(25));
  EXPECT_EQ(m_container.GetCur(), 2);
  EXPECT_FALSE(m_container.BFindTo(45));
  EXPECT_EQ(m_container.GetCur(), 4);
  EXPECT_FALSE(m_container.BFindTo(45, 0, 1));
  EXPECT_EQ(m_container.GetCur(), 2) << "behind the end of the range";
  EXPECT_FALSE(m_container.BFindTo(5, 1, 2));
  EXPECT_EQ(m_container.GetCur(), 1);
  EXPECT_TRUE(m_container.BFindTo(30));
  EXPECT_EQ(m_container.GetCur(), 2);
}

TYPED_TEST(Lists, BFindToBehindTheLastElementLeavesTheCursorOnTheSentinel) {
  EXPECT_FALSE(this->m_container.BFindTo(1));
  EXPECT_EQ(this->m_container.GetCur(), -1) << "an empty list has no index 0";
  this->Set({10, 20, 30});
  EXPECT_FALSE(this->m_container.BFindTo(35));
  EXPECT_EQ(this->m_container.GetCur(), -1);
  EXPECT_FALSE(this->m_container.BFindTo(15));
  EXPECT_EQ(this->m_container.GetCur(), 1);
}

TYPED_TEST(Family, FindTakesARangeAndLeavesTheCursorAlone) {
  this->Set({5, 6, 5, 6, 5});
  const auto& container = this->m_container;
  this->m_container.MoveTo(3);
  EXPECT_EQ(container.Find(5), 0);
  EXPECT_EQ(container.Find(5, 1), 2);
  EXPECT_EQ(container.Find(6, 2, 2), -1);
  EXPECT_EQ(container.Find(5, 3, 99), 4);
  EXPECT_EQ(container.Find(5, 5), -1);
  EXPECT_EQ(container.Find(6, -3, -1), 1);
  EXPECT_EQ(container.Find(7), -1);
  VkQuene<long> hits;
  hits.Append(77);
  EXPECT_EQ(container.Find(5, hits, 1), 2);
  EXPECT_EQ(hits.GetLength(), 3);
  EXPECT_EQ(hits.TakeHead(), 77);
  EXPECT_EQ(hits.TakeHead(), 2);
  EXPECT_EQ(hits.GetHead(), 4);
  EXPECT_EQ(container.GetCur(), 3);
  const VkDynArrayBase<int>& base = container;
  EXPECT_EQ(base.Find(6, 2), 3) << "through the interface as well";
  EXPECT_TRUE(this->m_container.FindTo(6, 2));
  EXPECT_EQ(container.GetCur(), 3);
  EXPECT_FALSE(this->m_container.FindTo(7));
  EXPECT_EQ(container.GetCur(), 3);
}

TYPED_TEST(Family, FindOrAppendAndFindOrInsertHeadAddOnlyWhatIsMissing) {
  this->Set({5, 6});
  EXPECT_EQ(this->m_container.FindOrAppend(6), 1);
  EXPECT_EQ(this->m_container.FindOrAppend(7), 2);
  EXPECT_EQ(this->m_container.FindOrInsertHead(7), 2);
  EXPECT_EQ(this->m_container.FindOrInsertHead(4), 0);
  EXPECT_THAT(this->Get(), ElementsAre(4, 5, 6, 7));
}

TYPED_TEST(Family, SlicesIncludeBothEndsAndMayReplaceTheirOwnContainer) {
  this->Set({0, 1, 2, 3, 4});
  TypeParam out;
  out.Append(99);
  this->m_container.Left(2, out);
  EXPECT_THAT(Contents<int>(out), ElementsAre(0, 1));
  this->m_container.Right(2, out);
  EXPECT_THAT(Contents<int>(out), ElementsAre(3, 4));
  this->m_container.Mid(1, 3, out);
  EXPECT_THAT(Contents<int>(out), ElementsAre(1, 2, 3));
  this->m_container.Mid(3, -1, out);
  EXPECT_THAT(Contents<int>(out), ElementsAre(3, 4));
  this->m_container.Mid(4, 2, out);
  EXPECT_THAT(Contents<int>(out), IsEmpty());
  this->m_container.Left(99, out);
  EXPECT_EQ(out, this->m_container);
  this->m_container.Mid(1, 3, this->m_container);
  EXPECT_THAT(this->Get(), ElementsAre(1, 2, 3));
  this->m_container.Right(-1, this->m_container);
  EXPECT_THAT(this->Get(), IsEmpty());
}

TYPED_TEST(Family, StreamingAppendsOneOrAllAndTakesItself) {
  this->Set({1, 2});
  VkList<int> other;
  other << 3 << 4;
  this->m_container << other;
  EXPECT_THAT(this->Get(), ElementsAre(1, 2, 3, 4));
  this->m_container << this->m_container;
  EXPECT_THAT(this->Get(), ElementsAre(1, 2, 3, 4, 1, 2, 3, 4));
}

TYPED_TEST(Family, ComparisonsLookAtValuesForEqualityAndAtTheLengthForOrder) {
  this->Set({1, 2, 3});
  VkDynArray<int> other;
  Fill<int>(other, {1, 2, 3});
  EXPECT_TRUE(this->m_container == other);
  EXPECT_FALSE(this->m_container != other);
  other.SetCurData(4);
  EXPECT_TRUE(this->m_container != other);
  EXPECT_FALSE(this->m_container < other);
  EXPECT_FALSE(this->m_container > other);
  other.DelHead();
  EXPECT_TRUE(this->m_container > other);
  EXPECT_TRUE(other < this->m_container);
}

TYPED_TEST(Family, ACopyIsItsOwnContainerWhateverTheKinds) {
  this->Set({1, 2, 3});
  TypeParam copy(this->m_container);
  EXPECT_EQ(copy.GetCur(), -1);
  copy.Append(4);
  VkDynArray<int> array;
  array = copy;
  VkList<int> list;
  list = copy;
  VkXList<int> indexed;
  indexed = list;
  EXPECT_EQ(array, copy);
  EXPECT_EQ(list, copy);
  EXPECT_EQ(indexed, copy);
  this->m_container = this->m_container;
  EXPECT_THAT(this->Get(), ElementsAre(1, 2, 3));
  copy = this->m_container;
  EXPECT_EQ(copy, this->m_container);
}

TYPED_TEST(Family, ReverseTakesARangeAndMinusOneForTheLastIndex) {
  this->Set({0, 1, 2, 3, 4});
  this->m_container.Reverse(1, 3);
  EXPECT_THAT(this->Get(), ElementsAre(0, 3, 2, 1, 4));
  this->m_container.Reverse(2, -1);
  EXPECT_THAT(this->Get(), ElementsAre(0, 3, 4, 1, 2));
  this->m_container.Reverse(7, 9);
  EXPECT_THAT(this->Get(), ElementsAre(0, 3, 4, 1, 2));
}

TYPED_TEST(Family, ValuesOfTheContainerItselfMayBeArguments) {
  auto& container = this->m_container;
  this->Set({7});
  for (int i = 0; i < 100; ++i) container.Append(container.GetAt(0));
  for (int i = 0; i < 100; ++i) container.InsertHead(container.GetAt(container.GetMaxIndex()));
  EXPECT_EQ(container.Find(7, 0), 0);
  EXPECT_EQ(Contents<int>(container), std::vector<int>(201, 7));
  container.SetCurData(8);
  container.SetAll(container.GetCurData());
  EXPECT_EQ(Contents<int>(container), std::vector<int>(201, 8));
}

TYPED_TEST(Family, TheLengthNeverGoesBelowZero) {
  this->Set({1, 2});
  this->m_container.IncreaseSize(2);
  EXPECT_THAT(this->Get(), ElementsAre(1, 2, 0, 0));
  this->m_container.DecreaseSize(3);
  EXPECT_THAT(this->Get(), ElementsAre(1));
  this->m_container.DecreaseSize(9);
  EXPECT_THAT(this->Get(), IsEmpty());
  this->m_container.ReAllocate(-4);
  EXPECT_THAT(this->Get(), IsEmpty());
}

} // namespace
