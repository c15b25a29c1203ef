// Files that are cut off, or lack or repeat what the form promises, and saves that fail.
#include "ZpPaths.h"
#include "host/afx/MessageLog.h"
#include "tests/plugin/radiators/RadiatorCatalogueFixture.h"
#include "tests/support/FullDisk.h"
#include "tests/support/OrdinaryUser.h"
#include "tests/support/TinyDisk.h"

namespace {

class DamagedRadiatorFile : public RadiatorCatalogueFixture {
 protected:
  DamagedRadiatorFile() { afx::ClearLoggedMessages(); }
  static bool IsLogged(const wchar_t* text) {
    for (const auto& message : afx::LoggedMessages())
      if (message.Find(text) >= 0) return true;
    return false;
  }
  void ExpectEmptyWhereverCutOff(const char* sample) {
    std::ifstream file(std::string(ZP_SOURCE_DIR) + "/tests/plugin/radiators/samples/" + sample,
                       std::ios::binary);
    std::string whole{std::istreambuf_iterator<char>(file), {}};
    ASSERT_TRUE(ReadText(whole));
    ASSERT_EQ(catalogue.m_arrTypes.GetSize(), 3);
    while (!whole.empty() && std::isspace(static_cast<unsigned char>(whole.back()))) whole.pop_back();
    for (std::size_t length = 0; length < whole.size(); ++length) {
      EXPECT_FALSE(ReadText(whole.substr(0, length))) << length;
      EXPECT_EQ(Names(), L"") << length;
    }
  }
};

TEST_F(DamagedRadiatorFile, OfTheOldVersionCutOffAnywhereGivesNothing) {
  ExpectEmptyWhereverCutOff("Srq-1.0.idp");
}

TEST_F(DamagedRadiatorFile, OfTheNewVersionCutOffAnywhereGivesNothing) {
  ExpectEmptyWhereverCutOff("Srq-2.0.idp");
}

TEST_F(DamagedRadiatorFile, IsKeptAsACopyWhenItIsReplaced) {
  const std::string cut = R"(["Version:2.0",{"0":["",{"甲")";
  EXPECT_FALSE(ReadText(cut));
  EXPECT_TRUE(catalogue.SaveData());
  EXPECT_EQ(install.Read(std::string(kFile) + ".rescued-1"), cut);
}

TEST_F(DamagedRadiatorFile, WithANumberedEntryWithoutATypeRaisesAnErrorAndKeepsWhatCameBefore) {
  EXPECT_THROW(ReadText(R"(["Version:2.0",{"0":["",{"甲":[0,{"1":""}]}],"1":"","2":["",{"乙":2}]}])"),
               CInvalidArgException);
  EXPECT_EQ(Names(), L"甲(1)");
  EXPECT_TRUE(IsLogged(L"Srq.idp：1：缺少名称"));
}

TEST_F(DamagedRadiatorFile, OfTheOldVersionWithANumberedEntryWithoutARadiatorRaisesAnError) {
  EXPECT_THROW(ReadText(R"(["Version:1.0",{"0":["",{"甲":[0,{"0":["",{"1":""}]}]}],
                           "1":["",{"乙":[1,{"0":["",{"2":""}],"1":""}]}]}])"),
               CInvalidArgException);
  EXPECT_EQ(Names(), L"甲(1)");
  EXPECT_TRUE(IsLogged(L"1\\乙\\1：缺少名称"));
}

TEST_F(DamagedRadiatorFile, OfTheNewVersionUnderTheOldMarkRaisesAnErrorOrTakesKeysForNames) {
  EXPECT_THROW(ReadText(R"(["Version:1.0",{"0":["",{"甲":[0,{"1":""}]}]}])"), CInvalidArgException);
  // The first field of a radiator stands where the old form has its name.
  EXPECT_TRUE(ReadText(R"(["Version:1.0",{"0":["",{"甲":[0,{"1":["",{"计算方法":1}]}]}]}])"));
  EXPECT_EQ(Names(), L"甲(计算方法)");
}

TEST_F(DamagedRadiatorFile, WithATypeWithoutRadiatorsIsWhole) {
  for (const char* type : {"0", "[0,{}]", "\"\"", "[\"x\",{}]"}) {
    EXPECT_TRUE(ReadText(std::string(R"(["Version:2.0",{"0":["",{"甲":)") + type + "}]}]")) << type;
    EXPECT_EQ(Names(), L"甲()") << type;
  }
}

TEST_F(DamagedRadiatorFile, WithANameTwiceInATypeDropsTheLaterRadiatorAndKeepsACopyOfTheFile) {
  const std::string text = R"(["Version:1.0",{"0":["",{"甲":[0,{"0":["",{"1":["",{"实验系数a":1.0}]}],
    "1":["",{"1":["",{"实验系数a":2.0}]}],"2":["",{"2":""}]}]}],"1":["",{"乙":[1,{"0":["",{"1":""}]}]}]}])";
  ASSERT_TRUE(ReadText(text));
  EXPECT_EQ(Names(), L"甲(1 2) 乙(1)"); // another type may have the name
  EXPECT_EQ(catalogue.GetInitialRadiator()->m_dA, 1);
  EXPECT_TRUE(IsLogged(L"0\\甲\\1：重名"));
  ASSERT_TRUE(catalogue.SaveData());
  EXPECT_EQ(install.Read(std::string(kFile) + ".rescued-1"), text);
}

TEST_F(DamagedRadiatorFile, WithATypeTwiceDropsTheLaterOneWithItsRadiators) {
  ASSERT_TRUE(ReadText(R"(["Version:2.0",{"0":["",{"甲":[0,{"1":""}]}],"1":["",{"甲":[1,{"2":""}]}],
                          "2":["",{"乙":2}]}])"));
  EXPECT_EQ(Names(), L"甲(1) 乙()");
  EXPECT_TRUE(IsLogged(L"Srq.idp：1：重名"));
}

TEST_F(DamagedRadiatorFile, WithAKeyTwiceInANodeIsUnreadable) {
  EXPECT_FALSE(ReadText(R"(["Version:2.0",{"0":["",{"甲":[0,{"1":"","1":""}]}]}])"));
}

TEST_F(DamagedRadiatorFile, StaysWhenASaveFails) {
  AddRadiator(AddType(L"甲"), L"1");
  ASSERT_TRUE(catalogue.SaveData());
  const std::string before = install.Read(kFile);
  AddType(L"乙");
  EXPECT_FALSE(OnAFullDisk([&] { return catalogue.SaveData(); }));
  EXPECT_EQ(install.Read(kFile), before);
  EXPECT_EQ(Names(), L"甲(1) 乙()");
  EXPECT_TRUE(catalogue.SaveData());
  EXPECT_NE(install.Read(kFile), before);
}

TEST_F(DamagedRadiatorFile, StaysWhenItsFolderIsReadOnly) {
  namespace fs = std::filesystem;
  AddRadiator(AddType(L"甲"), L"1");
  ASSERT_TRUE(catalogue.SaveData());
  const std::string before = install.Read(kFile);
  AddType(L"乙");
  const fs::path folder = install.Root() / "HeatingData";
  constexpr auto kWrite = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
  fs::permissions(install.Root(), fs::perms::all);
  fs::permissions(folder, kWrite, fs::perm_options::remove);
  {
    const OrdinaryUser user;
    if (user.IsOne()) {
      EXPECT_FALSE(catalogue.SaveData());
    }
  }
  fs::permissions(folder, kWrite, fs::perm_options::add);
  EXPECT_EQ(install.Read(kFile), before);
  EXPECT_EQ(std::distance(fs::directory_iterator(folder), fs::directory_iterator()), 1)
      << "nothing beside it";
}

TEST_F(DamagedRadiatorFile, StaysWholeOnADiskThatRunsFull) {
  const TinyDiskResult result = OnATinyDisk(install.Root() / "HeatingData", [&] {
    AddRadiator(AddType(L"甲"), L"1");
    if (!catalogue.SaveData()) return false;
    const std::string before = install.Read(kFile);
    FillDisk(install.Root() / "HeatingData");
    AddType(L"乙");
    return !catalogue.SaveData() && install.Read(kFile) == before;
  });
  if (result == TinyDiskResult::kNotAllowed) GTEST_SKIP() << "disks cannot be mounted here";
  EXPECT_EQ(result, TinyDiskResult::kPassed);
}

TEST_F(DamagedRadiatorFile, FailsTheSaveWhereTheFolderCannotBe) {
  install.Write("HeatingData", "a file where the folder should be");
  AddType(L"甲");
  EXPECT_FALSE(catalogue.SaveData());
  EXPECT_EQ(install.Read("HeatingData"), "a file where the folder should be");
}

} // namespace
