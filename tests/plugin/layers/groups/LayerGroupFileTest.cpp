#include "tests/plugin/layers/groups/GroupFixture.h"

#include "tests/support/ReadOnlyFolder.h"

namespace {

class LayerGroupFile : public GroupFixture {};

// The sample of the form, for readers to come.
constexpr const char* kSample = R"(["",{"Version":"1.0",
"当前CAD图纸图层分组":["",{
"0":[0,{
"采暖":["",{
"0":[0,{"图层":"采暖供水"}],
"1":[1,{"图层":"采暖回水"}]}]}],
"1":[1,{"空组":""}]}]}]
)";

TEST_F(LayerGroupFile, IsWrittenAsDocumented) {
  Group(L"采暖", {L"采暖供水", L"采暖回水"});
  Group(L"空组");
  EXPECT_EQ(manager.SaveData(), 1);
  EXPECT_EQ(install.Read(kFile), kSample);
}

TEST_F(LayerGroupFile, IsReadAsItWasWritten) {
  EXPECT_EQ(ReadText(kSample), 1);
  EXPECT_EQ(Everything(), L"采暖(采暖供水,采暖回水) 空组()");
  EXPECT_TRUE(afx::LoggedMessages().empty());
}

TEST_F(LayerGroupFile, ThatIsMissingGivesNoGroups) {
  EXPECT_EQ(Reload(), 0);
  EXPECT_TRUE(manager.Groups().IsEmpty());
  EXPECT_TRUE(afx::LoggedMessages().empty());
}

TEST_F(LayerGroupFile, OfNoGroupsCanBeReadBack) {
  EXPECT_EQ(manager.SaveData(), 1);
  EXPECT_EQ(Reload(), 1);
  EXPECT_TRUE(manager.Groups().IsEmpty());
}

TEST_F(LayerGroupFile, OfAnotherVersionIsNotReadAndKeptInACopy) {
  for (const char* version : {"1.00", "2.0", "", " 1.0"}) {
    EXPECT_EQ(ReadText(std::string(R"(["",{"Version":")") + version +
                       R"(","当前CAD图纸图层分组":["",{"0":[0,{"甲":""}]}]}])"),
              1);
    EXPECT_TRUE(manager.Groups().IsEmpty()) << version;
  }
  EXPECT_EQ(ReadText(R"(["",{"当前CAD图纸图层分组":["",{"0":[0,{"甲":""}]}]}])"), 1);
  EXPECT_TRUE(manager.Groups().IsEmpty());
  EXPECT_EQ(manager.SaveData(), 1);
  EXPECT_TRUE(IsRescued());
}

TEST_F(LayerGroupFile, OfAnotherVersionLeavesTheListAsItIs) {
  Group(L"甲");
  install.Write(kFile, R"(["",{"Version":"2.0"}])");
  EXPECT_EQ(manager.ReadData(), 1);
  EXPECT_EQ(Everything(), L"甲()");
}

TEST_F(LayerGroupFile, WithoutItsSectionGivesNoGroups) {
  EXPECT_EQ(ReadText(R"(["",{"Version":"1.0"}])"), 1);
  EXPECT_TRUE(manager.Groups().IsEmpty());
  EXPECT_EQ(afx::LoggedMessages().size(), 1u);
}

TEST_F(LayerGroupFile, SkipsRecordsThatAreMissingOrHaveNoKey) {
  EXPECT_EQ(ReadText(R"(["",{"Version":"1.0","当前CAD图纸图层分组":["",{
      "0":[0,{"甲":""}],"1":1,"5":[5,{"远":""}],"3":[3,{"丁":""}]}]}])"),
            1);
  EXPECT_EQ(Everything(), L"甲() 丁()") << "numbers below the count are looked for, 2 is none and 5 too high";
  EXPECT_EQ(manager.SaveData(), 1);
  EXPECT_TRUE(IsRescued()) << "what was passed over is not lost";
}

TEST_F(LayerGroupFile, TakesTheFirstKeyOfARecordAsTheName) {
  EXPECT_EQ(ReadText(R"(["",{"Version":"1.0","当前CAD图纸图层分组":["",{
      "0":[0,{"甲":[7,{"0":[0,{"图层":"a"}]}],"乙":""}]}]}])"),
            1);
  EXPECT_EQ(Everything(), L"甲(a)");
}

TEST_F(LayerGroupFile, TakesTheFirstKeyOfALayerWhateverItIsCalled) {
  EXPECT_EQ(ReadText(R"(["",{"Version":"1.0","当前CAD图纸图层分组":["",{
      "0":[0,{"甲":["",{"0":[0,{"名称":"a","图层":"b"}],"1":[1,{"":"c"}],"2":[2,{"图层":20}]}]}]}]}])"),
            1);
  EXPECT_EQ(Everything(), L"甲(a,c,20)");
}

TEST_F(LayerGroupFile, SkipsLayersThatAreMissingOrHaveNoKey) {
  EXPECT_EQ(ReadText(R"(["",{"Version":"1.0","当前CAD图纸图层分组":["",{
      "0":[0,{"甲":["",{"0":[0,{"图层":"a"}],"1":1,"3":[3,{"图层":"d"}],"9":[9,{"图层":"z"}]}]}]}]}])"),
            1);
  EXPECT_EQ(Everything(), L"甲(a,d)");
  EXPECT_EQ(manager.SaveData(), 1);
  EXPECT_TRUE(IsRescued());
}

TEST_F(LayerGroupFile, LoadsTheFirstOfTwoGroupsOfOneName) {
  EXPECT_EQ(ReadText(R"(["",{"Version":"1.0","当前CAD图纸图层分组":["",{
      "0":[0,{"甲":["",{"0":[0,{"图层":"a"}]}]}],"1":[1,{"甲":["",{"0":[0,{"图层":"b"}]}]}],"2":[2,{"乙":""}]}]}])"),
            1);
  EXPECT_EQ(Everything(), L"甲(a) 乙()");
  EXPECT_EQ(manager.SaveData(), 1);
  EXPECT_TRUE(IsRescued());
  Reload();
  EXPECT_EQ(Everything(), L"甲(a) 乙()") << "the next save has only the first";
}

TEST_F(LayerGroupFile, ThatIsDamagedGivesNoGroupsAndIsKeptInACopy) {
  for (std::size_t length = 0; length < std::string_view(kSample).size() - 2; ++length) {
    EXPECT_EQ(ReadText(std::string(kSample).substr(0, length)), 0) << length;
    EXPECT_TRUE(manager.Groups().IsEmpty());
  }
  EXPECT_EQ(manager.SaveData(), 1);
  EXPECT_TRUE(IsRescued());
}

TEST_F(LayerGroupFile, KeepsAnyNameOfGroupsAndLayers) {
  const CString awkward[] = {L"",
                             L" 空格 ",
                             L"Version",
                             L"\"%s\\n{}[],:",
                             L"a\nb",
                             L"\U0001F600",
                             CString(std::wstring(1, wchar_t(0xD83D))),
                             CString(std::wstring(100000, L'长'))};
  for (const CString& name : awkward) {
    auto* group = Group(name);
    for (const CString& layer : awkward) group->Layers.Add(layer);
  }
  const CString before = Everything();
  EXPECT_EQ(manager.SaveData(), 1);
  EXPECT_EQ(Reload(), 1);
  EXPECT_EQ(Everything().ToUtf8(), before.ToUtf8());
}

TEST_F(LayerGroupFile, StaysWhereItCannotBeWritten) {
  EXPECT_EQ(manager.SaveData(), 1);
  const std::string before = install.Read(kFile);
  Group(L"甲");
  {
    const ReadOnlyFolder folder((install.Root() / kFile).parent_path());
    if (!folder.Holds()) GTEST_SKIP() << "permissions do not hold root back";
    EXPECT_EQ(manager.SaveData(), 0);
  }
  EXPECT_EQ(install.Read(kFile), before);
}

} // namespace
