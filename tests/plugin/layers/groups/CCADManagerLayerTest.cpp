#include "tests/plugin/layers/groups/GroupFixture.h"

#include <memory>

namespace {

class LayerGroups : public GroupFixture {};

TEST_F(LayerGroups, AreKeptInOneListWithANameOfItsOwn) {
  EXPECT_EQ(CCADManagerLayer::GetInstance(), &manager);
  EXPECT_EQ(manager.GetName(), L"全部分组");
  EXPECT_EQ(manager.GetClassName(), L"CCADManagerLayer");
}

TEST_F(LayerGroups, AreToldFromTheirListByTheirClass) {
  const std::unique_ptr<CZPObject> group = std::make_unique<CCADGroupLayer>();
  EXPECT_FALSE(group->IsKindOf(RUNTIME_CLASS(CCADManagerLayer)));
  EXPECT_TRUE(static_cast<const CZPObject&>(manager).IsKindOf(RUNTIME_CLASS(CCADManagerLayer)));
  EXPECT_EQ(group->GetName(), L"");
}

TEST_F(LayerGroups, AreAddedBehindTheOthers) {
  Group(L"乙");
  Group(L"甲");
  EXPECT_EQ(Everything(), L"乙() 甲()");
}

TEST_F(LayerGroups, AreRefusedForNullTheSamePointerAndTheSameName) {
  CCADGroupLayer* group = Group(L"Group");
  EXPECT_EQ(manager.Add(nullptr), 0);
  EXPECT_EQ(manager.Add(group), 0);
  group->SetName(L"Other");
  EXPECT_EQ(manager.Add(group), 0) << "the same pointer, whatever its name";
  CCADGroupLayer again;
  again.SetName(L"Other");
  EXPECT_EQ(manager.Add(&again), 0);
  EXPECT_EQ(manager.Groups().GetSize(), 1);
}

TEST_F(LayerGroups, MayDifferInTheCaseOfLettersAndInBlanks) {
  Group(L"Group");
  Group(L"GROUP");
  Group(L" Group");
  Group(L"");
  EXPECT_EQ(manager.Groups().GetSize(), 4);
}

TEST_F(LayerGroups, AreDestroyedWhenRemoved) {
  CCADGroupLayer* first = Group(L"甲");
  Group(L"乙");
  CCADGroupLayer stranger;
  EXPECT_EQ(manager.Remove(nullptr), 0);
  EXPECT_EQ(manager.Remove(&stranger), 0);
  EXPECT_EQ(manager.Remove(first), 1);
  EXPECT_EQ(Everything(), L"乙()");
}

} // namespace
