#include "plugin/layers/LayerFields.h"
#include "tests/plugin/layers/SchemeFixture.h"

namespace {

class SchemeFile : public SchemeFixture {
 protected:
  // Nodes of a scheme file, built as the writer of another program might leave them.
  static CIDPEx* Entry(CIDPEx* list, const wchar_t* key, int value = 0) {
    list->SetSubValue(key, value);
    return list->GetSubItem(key);
  }
  CIDPEx* Begin(const wchar_t* version = L"1.0") {
    root.SetSubValue(L"Version", version);
    root.SetSubValue(kSchemeSection, L"x");
    return root.GetSubItem(kSchemeSection);
  }
  bool ReadRoot() {
    EXPECT_TRUE(root.Save(PathOf(L"x")));
    return scheme.ReadData(L"x");
  }
  CIDPEx root;
};

TEST_F(SchemeFile, GivesBackEveryFieldOfEveryLayer) {
  CZPLayer* layer = Define(L"甲", L"暖通-甲");
  double number = 0.1 + 0.2;
  for (const LayerField& field : kLayerFields) {
    number += 1;
    if (const auto* text = std::get_if<CString SZPLayerData::*>(&field.member))
      layer->Data().*(*text) = CString(field.key) + L"的值";
    if (const auto* integer = std::get_if<int SZPLayerData::*>(&field.member))
      layer->Data().*(*integer) = static_cast<int>(number);
    if (const auto* real = std::get_if<double SZPLayerData::*>(&field.member))
      layer->Data().*(*real) = number;
  }
  const SZPLayerData before = layer->Data();
  ASSERT_TRUE(scheme.SaveData());
  ASSERT_TRUE(scheme.ReadData(L"默认方案"));
  const CZPLayer* read = scheme.GetLayer(L"图层标识的值");
  ASSERT_NE(read, nullptr);
  for (const LayerField& field : kLayerFields)
    std::visit(
        [&](auto member) { EXPECT_EQ(read->Data().*member, before.*member) << CString(field.key).ToUtf8(); },
        field.member);
}

TEST_F(SchemeFile, HasItsKeysInTheOrderOfTheSchema) {
  Define(L"甲", L"暖通-甲");
  Define(L"乙", L"暖通-乙");
  ASSERT_TRUE(scheme.SaveData());
  ASSERT_TRUE(root.Open(PathOf(L"默认方案")));
  const auto keys = [](CIDPEx* node) {
    CString joined;
    for (const CString key : node->SubKeyNames) joined += key + L"|";
    return joined;
  };
  EXPECT_EQ(keys(&root), L"Version|方案名称|");
  CIDPEx* section = root.GetSubItem(L"方案名称");
  CString name;
  section->GetValue(name);
  EXPECT_EQ(name, L"默认方案");
  EXPECT_EQ(keys(section), L"0|");
  EXPECT_EQ(keys(section->GetSubItem(L"0")), L"分类|");
  CIDPEx* groups = section->GetSubItem(L"0")->GetSubItem(L"分类");
  EXPECT_EQ(keys(groups), L"0|");
  CIDPEx* layers = groups->GetSubItem(L"0")->GetSubItem(L"分组");
  EXPECT_EQ(keys(layers), L"甲|乙|");
  EXPECT_EQ(keys(layers->GetSubItem(L"甲")),
            L"是否允许修改|图层标识|图层名称|颜色|线型|线型比例|线宽|图层代号|备注|");
}

TEST_F(SchemeFile, KeepsCategoriesAndGroupsInOrderWithEqualNames) {
  CZPSystemLayer* first = AddCategory(L"同名");
  AddCategory(L"同名");
  AddGroup(first, L"组");
  AddGroup(first, L"组");
  AddLayer(first->Groups()[1], L"甲", L"甲层");
  ASSERT_TRUE(scheme.SaveData());
  ASSERT_TRUE(scheme.ReadData(L"默认方案"));
  ASSERT_EQ(scheme.Categories().GetSize(), 2);
  ASSERT_EQ(scheme.Categories()[0]->Groups().GetSize(), 2);
  EXPECT_EQ(scheme.Categories()[0]->Groups()[0]->Layers().GetSize(), 0);
  EXPECT_EQ(scheme.Categories()[0]->Groups()[1]->Layers().GetSize(), 1);
  EXPECT_EQ(scheme.Categories()[0]->GetParent(), &scheme);
}

TEST_F(SchemeFile, MissingKeepsTheTreeButTakesTheName) {
  Define(L"甲", L"甲层");
  EXPECT_FALSE(scheme.ReadData(L"x"));
  EXPECT_EQ(scheme.GetPlanName(), L"x");
  EXPECT_TRUE(scheme.IsExist(L"甲"));
  EXPECT_TRUE(scheme.SaveData());
  EXPECT_TRUE(install.Has("Data/LayerManager/x.idp"));
  scheme.RemoveAll();
  EXPECT_TRUE(scheme.ReadData(L"x"));
  EXPECT_TRUE(scheme.IsExist(L"甲"));
}

TEST_F(SchemeFile, OfAnotherVersionKeepsTheTreeAndIsRescuedBeforeItIsReplaced) {
  Define(L"甲", L"甲层");
  Begin(L"2.0");
  EXPECT_TRUE(ReadRoot());
  EXPECT_EQ(scheme.GetPlanName(), L"x");
  EXPECT_TRUE(scheme.IsExist(L"甲"));
  EXPECT_TRUE(scheme.SaveData());
  EXPECT_TRUE(install.Has("Data/LayerManager/x.idp.rescued-1"));
}

TEST_F(SchemeFile, DamagedKeepsTheTree) {
  Define(L"甲", L"甲层");
  install.Write("Data/LayerManager/x.idp", R"(["",{"Version":"1.0","方案名称":["x",{"0":)");
  EXPECT_FALSE(scheme.ReadData(L"x"));
  EXPECT_TRUE(scheme.IsExist(L"甲"));
}

TEST_F(SchemeFile, WithoutCategoriesIsAnEmptyTree) {
  Define(L"甲", L"甲层");
  Begin();
  EXPECT_TRUE(ReadRoot());
  EXPECT_TRUE(scheme.Categories().IsEmpty());
}

TEST_F(SchemeFile, WithoutTheSchemeSectionIsAnEmptyTree) {
  Define(L"甲", L"甲层");
  root.SetSubValue(L"Version", L"1.0");
  EXPECT_TRUE(ReadRoot());
  EXPECT_TRUE(scheme.Categories().IsEmpty());
}

TEST_F(SchemeFile, LoadsCategoriesAndGroupsAsModifiableWhateverItSays) {
  CZPSystemLayer* category = AddCategory(L"甲");
  CZPGroupLayer* group = AddGroup(category, L"乙");
  CZPLayer* layer = AddLayer(group, L"丙", L"丁");
  for (CZPLayerObject* node : {static_cast<CZPLayerObject*>(category), static_cast<CZPLayerObject*>(group),
                               static_cast<CZPLayerObject*>(layer)})
    node->SetAllowModify(false);
  ASSERT_TRUE(scheme.SaveData());
  const auto flags = [&] {
    CIDPEx file;
    file.Open(PathOf(L"默认方案"));
    CIDPEx* list = file.GetSubItem(L"方案名称")->GetSubItem(L"0");
    int ofCategory = -1, ofGroup = -1, ofLayer = -1;
    list->GetSubValue(L"甲", ofCategory);
    list = list->GetSubItem(L"甲")->GetSubItem(L"0");
    list->GetSubValue(L"乙", ofGroup);
    list->GetSubItem(L"乙")->GetSubItem(L"丙")->GetSubValue(L"是否允许修改", ofLayer);
    return ofCategory * 100 + ofGroup * 10 + ofLayer;
  };
  EXPECT_EQ(flags(), 0);
  ASSERT_TRUE(scheme.ReadData(L"默认方案"));
  EXPECT_TRUE(scheme.Categories()[0]->IsAllowModify());
  EXPECT_TRUE(scheme.Categories()[0]->Groups()[0]->IsAllowModify());
  EXPECT_FALSE(scheme.GetLayer(L"丙")->IsAllowModify());
  ASSERT_TRUE(scheme.SaveData());
  EXPECT_EQ(flags(), 110);
}

TEST_F(SchemeFile, GivesALayerWithoutAFlagTheLastFlagThatWasRead) {
  CIDPEx* category = Entry(Entry(Begin(), L"0"), L"甲", 1);
  CIDPEx* group = Entry(Entry(category, L"0"), L"乙", 1);
  Entry(group, L"first");
  Entry(Entry(group, L"second"), kAllowModifyKey, 0);
  for (const wchar_t* key : {L"first", L"second", L"third"})
    Entry(group, key)->SetSubValue(L"图层标识", CString(key));
  CIDPEx* closed = Entry(Entry(category, L"1", 1), L"丙", 0);
  Entry(closed, L"fourth")->SetSubValue(L"图层标识", L"fourth");
  CIDPEx* open = Entry(Entry(category, L"2", 2), L"丁", 1);
  Entry(open, L"fifth")->SetSubValue(L"图层标识", L"fifth");
  ASSERT_TRUE(ReadRoot());
  EXPECT_TRUE(scheme.GetLayer(L"first")->IsAllowModify());
  EXPECT_FALSE(scheme.GetLayer(L"second")->IsAllowModify());
  EXPECT_FALSE(scheme.GetLayer(L"third")->IsAllowModify());
  EXPECT_FALSE(scheme.GetLayer(L"fourth")->IsAllowModify()) << "the group's flag was the last one read";
  EXPECT_TRUE(scheme.GetLayer(L"fifth")->IsAllowModify());
}

TEST_F(SchemeFile, LeavesFieldsThatItLacksAtTheirDefaults) {
  CIDPEx* group = Entry(Entry(Entry(Entry(Begin(), L"0"), L"甲"), L"0"), L"乙");
  Entry(group, L"丙")->SetSubValue(L"颜色", 3);
  ASSERT_TRUE(ReadRoot());
  const CZPLayer* layer = scheme.GetLayer(L""); // the identifier is a field, not the key
  ASSERT_NE(layer, nullptr);
  EXPECT_EQ(layer->GetColorIndex(), 3);
  EXPECT_EQ(layer->GetUserLayer(), L"0");
  EXPECT_EQ(layer->GetLineType(), L"ByLayer");
  EXPECT_EQ(layer->GetLineWeight(), -0.03);
}

TEST_F(SchemeFile, WithACategoryNodeWithoutAKeyRaisesAnErrorAndKeepsWhatCameBefore) {
  CIDPEx* list = Begin();
  Entry(Entry(list, L"0"), L"甲");
  Entry(list, L"1");
  EXPECT_THROW(ReadRoot(), CInvalidArgException);
  ASSERT_EQ(scheme.Categories().GetSize(), 1);
  EXPECT_EQ(scheme.Categories()[0]->GetName(), L"甲");
}

TEST_F(SchemeFile, WithAGroupNodeWithoutAKeyRaisesAnError) {
  Entry(Entry(Entry(Begin(), L"0"), L"甲"), L"0");
  EXPECT_THROW(ReadRoot(), CInvalidArgException);
}

TEST_F(SchemeFile, WithAGapInItsNumbersRaisesAnError) {
  CIDPEx* list = Begin();
  Entry(Entry(list, L"0"), L"甲");
  Entry(Entry(list, L"2"), L"乙");
  EXPECT_THROW(ReadRoot(), CInvalidArgException);
}

TEST_F(SchemeFile, TakesListsByTheirNumbersAndNotByPosition) {
  CIDPEx* list = Begin();
  Entry(Entry(list, L"1"), L"后");
  Entry(Entry(list, L"0"), L"先");
  ASSERT_TRUE(ReadRoot());
  EXPECT_EQ(scheme.Categories()[0]->GetName(), L"先");
}

TEST_F(SchemeFile, IsNotWrittenForAnEmptyName) {
  scheme.SetPlanName(L"");
  EXPECT_FALSE(scheme.SaveData());
  EXPECT_FALSE(install.Has("Data"));
}

TEST_F(SchemeFile, ThatCannotBeWrittenMakesTheSaveFail) {
  install.Write("Data", "a file where the folder should be");
  EXPECT_FALSE(scheme.SaveData());
}

TEST_F(SchemeFile, IsWrittenWholeAndLosesWhatWasInItBefore) {
  Begin();
  root.SetSubValue(L"别的", L"x");
  ASSERT_TRUE(root.Save(PathOf(L"默认方案")));
  ASSERT_TRUE(scheme.SaveData());
  CIDPEx after;
  ASSERT_TRUE(after.Open(PathOf(L"默认方案")));
  EXPECT_EQ(after.GetSubItem(L"别的"), nullptr);
}

TEST_F(SchemeFile, CutOffAnywhereKeepsTheTree) {
  Define(L"甲", L"甲层");
  ASSERT_TRUE(scheme.SaveData());
  std::string whole = install.Read("Data/LayerManager/默认方案.idp");
  while (!whole.empty() && std::isspace(static_cast<unsigned char>(whole.back()))) whole.pop_back();
  for (std::size_t length = 0; length < whole.size(); ++length) {
    install.Write("Data/LayerManager/cut.idp", whole.substr(0, length));
    EXPECT_FALSE(scheme.ReadData(L"cut")) << length;
    EXPECT_TRUE(scheme.IsExist(L"甲")) << length;
  }
}

// In a process of its own, where the scheme has not been built yet.
TEST(FirstUseOfTheLayerScheme, WithoutAFileIsEmptyAndOnTheDefaultScheme) {
  testing::FLAGS_gtest_death_test_style = "threadsafe";
  EXPECT_EXIT(
      {
        const TempInstall install;
        const CZPManagerLayer& scheme = *CZPManagerLayer::GetInstance();
        const bool ok = scheme.Categories().IsEmpty() && scheme.GetPlanName() == L"默认方案" &&
                        scheme.GetName() == L"全部图层" && !scheme.GetLayer(L"") && !scheme.GetLayer(L"甲") &&
                        !install.Has("Data");
        std::exit(ok ? 0 : 1);
      },
      testing::ExitedWithCode(0), "");
}

TEST(FirstUseOfTheLayerScheme, ReadsTheDefaultScheme) {
  testing::FLAGS_gtest_death_test_style = "threadsafe";
  EXPECT_EXIT(
      {
        const TempInstall install;
        install.Write("Data/LayerManager/默认方案.idp",
                      R"(["",{"Version":"1.0","方案名称":["x",{"0":[0,{"分类":1}]}]}])");
        const CZPManagerLayer& scheme = *CZPManagerLayer::GetInstance();
        std::exit(scheme.Categories().GetSize() == 1 && scheme.GetPlanName() == L"默认方案" ? 0 : 1);
      },
      testing::ExitedWithCode(0), "");
}

} // namespace
