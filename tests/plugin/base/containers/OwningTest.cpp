// Members that own what they point to: what is deleted, and when.
#include <gmock/gmock.h>

#include "plugin/base/containers/VkDynPArray.h"
#include "plugin/base/containers/VkPDList.h"
#include "plugin/base/containers/VkPXList.h"
#include "tests/plugin/base/containers/Contents.h"
#include "tests/plugin/base/containers/Counted.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

template <class Owner> class Owning : public testing::Test {
 protected:
  Owning() { Counted::Deleted().clear(); }
  ~Owning() override {
    m_owner.Reset();
    EXPECT_EQ(Counted::Alive(), 0);
  }
  void Set(std::initializer_list<int> ids) { // 0 for a null slot
    for (const int id : ids) m_owner.Append(id ? new Counted(id) : nullptr);
  }
  std::vector<int> Get() const { return Ids(m_owner); }
  Owner m_owner;
};
using Members = testing::Types<VkDynPArray<Counted>, VkPDList<Counted>, VkPXList<Counted>>;
TYPED_TEST_SUITE(Owning, Members);

TYPED_TEST(Owning, ReleaseAllLeavesTheLengthWithAllSlotsNull) {
  this->Set({1, 2, 0, 3});
  EXPECT_EQ(this->m_owner.GetDataNum(), 3);
  this->m_owner.ReleaseAll();
  EXPECT_THAT(Counted::Deleted(), ElementsAre(1, 2, 3));
  EXPECT_EQ(this->m_owner.GetLength(), 4);
  EXPECT_EQ(this->m_owner.GetDataNum(), 0);
  EXPECT_TRUE(this->m_owner.IsEmptyData(0));
}

TYPED_TEST(Owning, ReleaseDeletesTheObjectAndLeavesNull) {
  this->Set({1, 2});
  this->m_owner.Release(0);
  EXPECT_THAT(Counted::Deleted(), ElementsAre(1));
  EXPECT_TRUE(this->m_owner.IsCurEmpty());
  this->m_owner.Release(7);
  this->m_owner.MoveTo(1);
  this->m_owner.ReleaseCur();
  EXPECT_THAT(Counted::Deleted(), ElementsAre(1, 2));
  EXPECT_THAT(this->Get(), ElementsAre(0, 0));
}

TYPED_TEST(Owning, DelCurDeletesTheObjectAndItsSlot) {
  this->Set({1, 2, 3});
  this->m_owner.Del(1);
  EXPECT_THAT(Counted::Deleted(), ElementsAre(2));
  EXPECT_THAT(this->Get(), ElementsAre(1, 3));
  EXPECT_EQ(this->m_owner.GetCur(), 0);
}

TYPED_TEST(Owning, ResetAndTheDestructorDeleteAllObjects) {
  {
    TypeParam other;
    other.Append(new Counted(7));
    other.Append(nullptr);
    other.Append(new Counted(8));
  }
  EXPECT_THAT(Counted::Deleted(), ElementsAre(7, 8));
  this->Set({1, 2});
  this->m_owner.Reset();
  EXPECT_THAT(Counted::Deleted(), ElementsAre(7, 8, 1, 2));
  EXPECT_EQ(this->m_owner.GetLength(), 0);
}

TYPED_TEST(Owning, TakeOffHandsTheObjectOverAndRemovesTheSlot) {
  this->Set({1, 2, 3, 4});
  const std::unique_ptr<Counted> second(this->m_owner.TakeOff(1));
  EXPECT_EQ(second->id, 2);
  EXPECT_EQ(this->m_owner.GetCur(), 0);
  const std::unique_ptr<Counted> head(this->m_owner.TakeOffHead());
  const std::unique_ptr<Counted> tail(this->m_owner.TakeOffTail());
  EXPECT_EQ(head->id, 1);
  EXPECT_EQ(tail->id, 4);
  EXPECT_EQ(this->m_owner.TakeOff(5), nullptr);
  this->m_owner.MoveTo(-1);
  EXPECT_EQ(this->m_owner.TakeOffCur(), nullptr);
  EXPECT_THAT(this->Get(), ElementsAre(3));
  EXPECT_THAT(Counted::Deleted(), IsEmpty());
}

TYPED_TEST(Owning, PlaceInTakesTheFirstNullSlotOrAppends) {
  this->Set({1, 0, 0});
  EXPECT_EQ(this->m_owner.PlaceIn(new Counted(5)), 1);
  EXPECT_EQ(this->m_owner.PlaceIn(new Counted(6)), 2);
  EXPECT_EQ(this->m_owner.PlaceIn(new Counted(7)), 3);
  EXPECT_THAT(this->Get(), ElementsAre(1, 5, 6, 7));
}

TYPED_TEST(Owning, AShrinkingLengthDeletesTheObjectsOfTheDroppedSlotsAndAGrowingOneAddsNull) {
  this->Set({1, 2, 3, 4});
  this->m_owner.ReAllocate(2);
  EXPECT_THAT(Counted::Deleted(), ElementsAre(3, 4));
  this->m_owner.ReAllocate(4);
  EXPECT_THAT(this->Get(), ElementsAre(1, 2, 0, 0));
  this->m_owner.SetLength(1, true);
  EXPECT_THAT(Counted::Deleted(), ElementsAre(3, 4, 2));
  this->m_owner.SetLength(2, false);
  EXPECT_THAT(Counted::Deleted(), ElementsAre(3, 4, 2, 1));
  EXPECT_THAT(this->Get(), ElementsAre(0, 0));
}

TYPED_TEST(Owning, MoveMovesThePointerWithoutTouchingTheObject) {
  this->Set({1, 2, 3, 4});
  EXPECT_TRUE(this->m_owner.Move(0, 3));
  EXPECT_THAT(this->Get(), ElementsAre(2, 3, 1, 4));
  EXPECT_TRUE(this->m_owner.Move(3, 0));
  EXPECT_THAT(this->Get(), ElementsAre(4, 2, 3, 1));
  EXPECT_THAT(Counted::Deleted(), IsEmpty());
  EXPECT_EQ(Counted::Alive(), 4);
}

// A copy points to the same objects; one of both has to let go of them.
TYPED_TEST(Owning, ACopySharesTheObjects) {
  this->Set({1, 2});
  TypeParam copy(this->m_owner);
  EXPECT_EQ(Contents<Counted*>(copy), Contents<Counted*>(this->m_owner));
  EXPECT_EQ(Counted::Alive(), 2);
  copy.SetAll(nullptr);
  copy.PlaceIn(new Counted(3));
  copy = this->m_owner;
  EXPECT_THAT(Counted::Deleted(), ElementsAre(3)) << "what was held before";
  copy = this->m_owner;
  EXPECT_THAT(Counted::Deleted(), ElementsAre(3)) << "what is shared stays";
  copy.SetAll(nullptr);
}

TYPED_TEST(Owning, ReferencesGoToThePointedToValues) {
  this->Set({1, 2});
  this->m_owner.MoveTo(0);
  EXPECT_EQ(this->m_owner.GetCurPData().id, 1);
  EXPECT_EQ(this->m_owner.GetPData(1).id, 2);
  EXPECT_EQ(this->m_owner(1).id, 2);
}

TYPED_TEST(Owning, FindDelByPointerDeletesTheObjectOnceHoweverManySlotsHaveIt) {
  this->Set({1, 2, 0});
  Counted* const first = *this->m_owner.GetTo(0);
  this->m_owner.Append(first);
  EXPECT_EQ(this->m_owner.FindDel(first), 2);
  EXPECT_THAT(Counted::Deleted(), ElementsAre(1));
  EXPECT_THAT(this->Get(), ElementsAre(2, 0));
  EXPECT_EQ(this->m_owner.FindDel(nullptr), 1);
  EXPECT_THAT(this->Get(), ElementsAre(2));
}

TYPED_TEST(Owning, TheDataFormsCompareValuesAndPassOverNull) {
  this->Set({0, 10, 0, 20, 10, 0});
  auto& owner = this->m_owner;
  EXPECT_EQ(owner.FindData(Counted(10)), 1);
  EXPECT_EQ(owner.FindData(Counted(10), 2), 4);
  EXPECT_EQ(owner.FindData(Counted(10), 2, 3), -1);
  EXPECT_TRUE(owner.FindDataTo(Counted(20)));
  EXPECT_EQ(owner.GetCur(), 3);
  EXPECT_FALSE(owner.FindDataTo(Counted(30)));
  EXPECT_EQ(owner.FindDataOrAppend(Counted(20)), 3);
  EXPECT_EQ(owner.FindDataOrAppend(Counted(30)), 6);
  EXPECT_EQ(owner.FindDataOrInsertHead(Counted(30)), 6);
  EXPECT_EQ(owner.FindDataOrInsertHead(Counted(40)), 0);
  EXPECT_THAT(this->Get(), ElementsAre(40, 0, 10, 0, 20, 10, 0, 30));
  Counted::Deleted().clear();
  EXPECT_EQ(owner.FindDataDel(owner.GetPData(2)), 2);
  EXPECT_THAT(Counted::Deleted(), ElementsAre(10, 10));
  EXPECT_THAT(this->Get(), ElementsAre(40, 0, 0, 20, 0, 30));
}

TYPED_TEST(Owning, BinarySearchByValuesPassesOverNull) {
  this->Set({0, 10, 0, 0, 20, 0, 30, 0, 0});
  auto& owner = this->m_owner;
  for (const int id : {10, 20, 30}) {
    EXPECT_EQ(owner.GetPData(owner.BFindData(Counted(id))).id, id);
    EXPECT_TRUE(owner.BFindDataTo(Counted(id)));
    EXPECT_EQ(owner.GetCurPData().id, id);
  }
  EXPECT_EQ(owner.BFindData(Counted(15)), -1);
  EXPECT_FALSE(owner.BFindDataTo(Counted(5)));
  EXPECT_EQ(owner.GetCur(), 1);
  EXPECT_FALSE(owner.BFindDataTo(Counted(35)));
  EXPECT_EQ(owner.GetCur(), 7);
  owner.ReleaseAll();
  EXPECT_EQ(owner.BFindData(Counted(5)), -1);
  EXPECT_FALSE(owner.BFindDataTo(Counted(5)));
  EXPECT_EQ(owner.GetCur(), 0);
}

TYPED_TEST(Owning, SlicingAContainerIntoItselfDeletesWhatIsCutOff) {
  this->Set({1, 2, 3, 4, 5});
  this->m_owner.Mid(1, 3, this->m_owner);
  EXPECT_THAT(this->Get(), ElementsAre(2, 3, 4));
  std::sort(Counted::Deleted().begin(), Counted::Deleted().end());
  EXPECT_THAT(Counted::Deleted(), ElementsAre(1, 5));
}

TEST(OwningArray, SetLengthToTheSpaceSizeKeepsTheObjects) {
  {
    Counted::Deleted().clear();
    VkDynPArray<Counted> array(3);
    array << new Counted(1) << new Counted(2);
    array.SetLength(3, false);
    EXPECT_THAT(Counted::Deleted(), IsEmpty());
    EXPECT_EQ(array.GetDataNum(), 2);
  }
  EXPECT_EQ(Counted::Alive(), 0);
}

TEST(OwningArray, DetachHandsOutTheObjectsWithTheBlock) {
  VkDynPArray<Counted> array;
  array << new Counted(1) << new Counted(2);
  const std::unique_ptr<Counted*[]> block(array.Detach());
  EXPECT_EQ(Counted::Alive(), 2);
  delete block[0];
  delete block[1];
}

TEST(OwningList, ConbineMovesTheObjectsToTheirNewOwner) {
  Counted::Deleted().clear();
  VkPDList<Counted> list;
  {
    VkPXList<Counted> other;
    other << new Counted(1) << new Counted(2) << new Counted(3);
    EXPECT_EQ(list.Conbine(other, 1), 2);
  }
  EXPECT_THAT(Counted::Deleted(), ElementsAre(1));
  EXPECT_THAT(Ids(list), ElementsAre(2, 3));
}

} // namespace
