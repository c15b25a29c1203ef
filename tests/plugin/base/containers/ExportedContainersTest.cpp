// The containers that siblings share with the plug-in, used through their one copy.
#include <gmock/gmock.h>

#include "plugin/base/VkDtDictItem.h"
#include "plugin/base/containers/ExportedContainers.h"
#include "tests/plugin/base/containers/Contents.h"

namespace {

using testing::ElementsAre;

template <class T> class ExportedNumbers : public testing::Test {};
using Numbers = testing::Types<char, int, long, double>;
TYPED_TEST_SUITE(ExportedNumbers, Numbers);

TYPED_TEST(ExportedNumbers, StandInEveryMember) {
  VkDynArray<TypeParam> array;
  VkList<TypeParam> list;
  VkDList<TypeParam> twoWay;
  VkXList<TypeParam> indexed;
  for (VkDynArrayBase<TypeParam>* member :
       std::initializer_list<VkDynArrayBase<TypeParam>*>{&array, &list, &twoWay, &indexed}) {
    for (const int value : {3, 1, 2}) member->Append(static_cast<TypeParam>(value));
    member->Sort(true);
    EXPECT_THAT(Contents<TypeParam>(*member), ElementsAre(1, 2, 3));
  }
  Vk2dArray<TypeParam> table(1, 2);
  table.SetAll(TypeParam(5));
  EXPECT_EQ(table[0][1], TypeParam(5));
}

// A sibling's class need not be known to be pointed to.
TEST(ExportedPointers, OfClassesThatAreKnownByNameAloneStandInArrays) {
  int owner[2] = {};
  VkDynArray<VkGraphNode*> nodes;
  nodes.Append(reinterpret_cast<VkGraphNode*>(&owner[1]));
  nodes.Append(reinterpret_cast<VkGraphNode*>(&owner[0]));
  nodes.Sort(true);
  EXPECT_EQ(nodes.GetAt(0), reinterpret_cast<VkGraphNode*>(&owner[0]));
  EXPECT_EQ(nodes.Find(nullptr), -1);
}

TEST(ExportedPointers, OfDictionaryItemsStandInTheOwningMembersToo) {
  VkDynPArray<VkDtDictItem> array;
  VkPDList<VkDtDictItem> list;
  EXPECT_EQ(array.PlaceIn(new VkDtDictItem(L"a", nullptr)), 0);
  list.Append(array.TakeOffHead());
  EXPECT_EQ(list.GetDataNum(), 1);
}

} // namespace
