#include "tests/plugin/layers/SchemeFixture.h"

namespace {

using LayerTree = SchemeFixture;

TEST(SZPLayerData, HasTheDefaultsOfANewLayer) {
  const SZPLayerData data;
  EXPECT_EQ(data.KorLayer, L"");
  EXPECT_EQ(data.UserLayer, L"0");
  EXPECT_EQ(data.ColorIndex, 256);
  EXPECT_EQ(data.LineType, L"ByLayer");
  EXPECT_EQ(data.LineTypeScale, 1.0);
  EXPECT_EQ(data.LineWeight, -0.03);
  EXPECT_EQ(data.LayerCode, L"");
  EXPECT_EQ(data.Remarks, L"");
}

TEST(CZPLayerObject, IsNamelessFreeAndModifiableAtFirst) {
  CZPLayerObject object;
  EXPECT_EQ(object.GetName(), L"");
  EXPECT_EQ(object.GetParent(), nullptr);
  EXPECT_TRUE(object.IsAllowModify());
}

TEST(CZPLayerObject, HasANameOfItsOwnBesideTheOneOfItsBase) {
  CZPLayerObject object;
  CZPObject& base = object;
  base.SetName(L"甲");
  EXPECT_EQ(object.GetName(), L"甲");
  EXPECT_EQ(base.GetName(), L"");
}

TEST(CZPLayerObject, TellsItsClassAtRunTime) {
  CZPGroupLayer group;
  CZPLayer layer;
  EXPECT_EQ(group.GetClassName(), L"CZPGroupLayer");
  EXPECT_EQ(layer.GetRuntimeClass(), CZPLayer::GetThisClass());
  EXPECT_EQ(CZPLayer::_GetBaseClass(), CZPLayerObject::GetThisClass());
  EXPECT_EQ(CZPSystemLayer::_GetBaseClass(), CZPLayerObject::GetThisClass());
  EXPECT_TRUE(CZPManagerLayer::GetThisClass()->IsDerivedFrom(CZPObject::GetThisClass()));
}

TEST(CZPLayer, CopiesAllValuesButTheIdentifier) {
  CZPLayer source;
  source.SetKorLayer(L"甲");
  source.SetUserLayer(L"暖通-甲");
  source.SetColorIndex(3);
  source.SetLineType(L"DASHED");
  source.SetLineTypeScale(2);
  source.SetLineWeight(0.35);
  source.SetLayerCode(L"M-1");
  source.SetRemarks(L"备注");
  CZPLayer target;
  target.SetKorLayer(L"乙");
  EXPECT_TRUE(target.Copy(&source));
  EXPECT_EQ(target.GetKorLayer(), L"乙");
  EXPECT_EQ(target.GetUserLayer(), L"暖通-甲");
  EXPECT_EQ(target.GetColorIndex(), 3);
  EXPECT_EQ(target.GetLineType(), L"DASHED");
  EXPECT_EQ(target.GetLineTypeScale(), 2);
  EXPECT_EQ(target.GetLineWeight(), 0.35);
  EXPECT_EQ(target.GetLayerCode(), L"M-1");
  EXPECT_EQ(target.GetRemarks(), L"备注");
}

TEST(CZPLayer, CopiesNothingFromNull) {
  CZPLayer target;
  target.SetColorIndex(3);
  EXPECT_FALSE(target.Copy(nullptr));
  EXPECT_EQ(target.GetColorIndex(), 3);
}

TEST_F(LayerTree, IsOneSchemeOfAllLayers) {
  EXPECT_EQ(CZPManagerLayer::GetInstance(), &scheme);
  EXPECT_EQ(scheme.GetName(), L"全部图层");
}

TEST_F(LayerTree, AppendsNodesUnderTheirOwner) {
  CZPSystemLayer* category = AddCategory(L"甲");
  CZPGroupLayer* group = AddGroup(category, L"乙");
  CZPLayer* layer = AddLayer(group, L"丙", L"丁");
  EXPECT_EQ(layer->GetParent(), group);
  EXPECT_EQ(group->GetParent(), category);
  EXPECT_EQ(category->GetParent(), &scheme);
  AddLayer(group, L"戊", L"己");
  EXPECT_EQ(group->Layers()[1]->GetKorLayer(), L"戊");
}

TEST_F(LayerTree, RefusesANodeTwiceButNotANameTwice) {
  CZPSystemLayer* category = AddCategory(L"甲");
  CZPGroupLayer* group = AddGroup(category, L"乙");
  CZPLayer* layer = AddLayer(group, L"丙", L"丁");
  EXPECT_FALSE(scheme.Add(category));
  EXPECT_FALSE(category->Add(group));
  EXPECT_FALSE(group->Add(layer));
  AddCategory(L"甲");
  AddGroup(category, L"乙");
  AddLayer(group, L"丙", L"丁");
  EXPECT_EQ(scheme.Categories().GetSize(), 2);
  EXPECT_EQ(category->Groups().GetSize(), 2);
  EXPECT_EQ(group->Layers().GetSize(), 2);
}

TEST_F(LayerTree, RefusesNull) {
  CZPSystemLayer* category = AddCategory(L"甲");
  CZPGroupLayer* group = AddGroup(category, L"乙");
  EXPECT_FALSE(scheme.Add(nullptr));
  EXPECT_FALSE(category->Add(nullptr));
  EXPECT_FALSE(group->Add(nullptr));
  EXPECT_FALSE(scheme.Remove(nullptr));
  EXPECT_FALSE(category->Remove(nullptr));
  EXPECT_FALSE(group->Remove(nullptr));
}

// Tells when it is destroyed.
class Watched : public CZPLayer {
 public:
  explicit Watched(int& destroyed) : m_destroyed(destroyed) {}
  ~Watched() override { ++m_destroyed; }

 private:
  int& m_destroyed;
};

TEST_F(LayerTree, DestroysARemovedNodeWithAllBelowIt) {
  int destroyed = 0;
  CZPSystemLayer* category = AddCategory(L"甲");
  CZPGroupLayer* group = AddGroup(category, L"乙");
  auto* first = new Watched(destroyed);
  group->Add(first);
  group->Add(new Watched(destroyed));
  group->Add(new Watched(destroyed));
  CZPLayer stranger;
  EXPECT_FALSE(group->Remove(&stranger));
  EXPECT_TRUE(group->Remove(first));
  EXPECT_EQ(destroyed, 1);
  EXPECT_EQ(group->Layers().GetSize(), 2);
  EXPECT_TRUE(category->Remove(group));
  EXPECT_EQ(destroyed, 3);
  EXPECT_TRUE(scheme.Remove(category));
  EXPECT_TRUE(scheme.Categories().IsEmpty());
}

TEST_F(LayerTree, IsEmptyAfterRemoveAll) {
  int destroyed = 0;
  AddGroup(AddCategory(L"甲"), L"乙")->Add(new Watched(destroyed));
  AddCategory(L"丙");
  scheme.RemoveAll();
  EXPECT_EQ(destroyed, 1);
  EXPECT_TRUE(scheme.Categories().IsEmpty());
  EXPECT_EQ(scheme.GetLayer(L"x"), nullptr);
}

TEST_F(LayerTree, RemovesAndChangesWhatMayNotBeModified) {
  CZPSystemLayer* category = AddCategory(L"甲");
  CZPGroupLayer* group = AddGroup(category, L"乙");
  CZPLayer* layer = AddLayer(group, L"丙", L"丁");
  for (CZPLayerObject* node : {static_cast<CZPLayerObject*>(category), static_cast<CZPLayerObject*>(group),
                               static_cast<CZPLayerObject*>(layer)})
    node->SetAllowModify(false);
  layer->SetUserLayer(L"戊");
  EXPECT_EQ(layer->GetUserLayer(), L"戊");
  AddLayer(group, L"己", L"庚");
  EXPECT_TRUE(group->Remove(layer));
  EXPECT_TRUE(scheme.Remove(category));
}

TEST_F(LayerTree, FindsALayerByItsIdentifierAndByItsName) {
  CZPLayer* layer = Define(L"供水干管", L"暖通-供水");
  Define(L"回水干管", L"暖通-回水");
  EXPECT_EQ(scheme.GetLayer(L"供水干管"), layer);
  EXPECT_EQ(scheme.GetLayer(L"供水"), nullptr);
  EXPECT_EQ(scheme.GetLayerFromUserLayer(L"暖通-供水"), layer);
  EXPECT_EQ(scheme.GetLayerFromUserLayer(L"供水干管"), nullptr);
  EXPECT_TRUE(scheme.IsExist(L"回水干管"));
  EXPECT_FALSE(scheme.IsExist(L"暖通-回水"));
}

TEST_F(LayerTree, ComparesIdentifiersAndNamesWithCase) {
  Define(L"Pipe", L"M-Pipe");
  EXPECT_EQ(scheme.GetLayer(L"pipe"), nullptr);
  EXPECT_EQ(scheme.GetLayerFromUserLayer(L"m-pipe"), nullptr);
}

TEST_F(LayerTree, ResolvesASharedNameToTheFirstInTreeOrder) {
  CZPSystemLayer* first = AddCategory(L"甲");
  CZPGroupLayer* late = AddGroup(AddCategory(L"乙"), L"组");
  AddLayer(late, L"后", L"共用");
  AddLayer(AddGroup(first, L"组"), L"先", L"共用"); // added later, stands earlier
  CString korLayer;
  EXPECT_TRUE(scheme.GetKorLayer(L"共用", korLayer));
  EXPECT_EQ(korLayer, L"先");
}

TEST_F(LayerTree, LeavesTheIdentifierAloneForAnUnknownName) {
  CString korLayer = L"preset";
  EXPECT_FALSE(scheme.GetKorLayer(L"无此图层", korLayer));
  EXPECT_EQ(korLayer, L"preset");
}

TEST_F(LayerTree, FindsALayerWithAnEmptyIdentifier) {
  EXPECT_EQ(scheme.GetLayer(L""), nullptr);
  CZPLayer* layer = Define(L"", L"暖通");
  EXPECT_EQ(scheme.GetLayer(L""), layer);
}

// A layer that a sibling plug-in derives with a name of its own.
class Renaming : public CZPLayer {
 public:
  CString GetUserLayer() const override { return L"另名"; }
};

TEST_F(LayerTree, AsksALayerForItsNameThroughTheVirtualCall) {
  auto* layer = new Renaming;
  AddGroup(AddCategory(L"甲"), L"乙")->Add(layer);
  EXPECT_EQ(scheme.GetLayerFromUserLayer(L"另名"), layer);
  EXPECT_EQ(scheme.GetLayerFromUserLayer(L"0"), nullptr);
}

TEST_F(LayerTree, SharesItsChildrenWithACopy) {
  CZPGroupLayer* group = AddGroup(AddCategory(L"甲"), L"乙");
  CZPSystemLayer copy(*scheme.Categories()[0]);
  EXPECT_EQ(copy.GetName(), L"甲");
  ASSERT_EQ(copy.Groups().GetSize(), 1);
  EXPECT_EQ(copy.Groups()[0], group);
  copy.Groups().SetSize(0); // or both would destroy it
  CZPManagerLayer copiedScheme(scheme);
  EXPECT_EQ(copiedScheme.GetPlanName(), scheme.GetPlanName());
  EXPECT_EQ(copiedScheme.Categories()[0], scheme.Categories()[0]);
  copiedScheme.Categories().SetSize(0);
}

} // namespace
