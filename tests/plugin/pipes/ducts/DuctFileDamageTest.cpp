// Duct files that are cut off or changed, and saves that fail.
#include <sys/stat.h>

#include "tests/plugin/pipes/ducts/DuctFixture.h"
#include "tests/support/FullDisk.h"
#include "tests/support/OrdinaryUser.h"
#include "tests/support/TinyDisk.h"

namespace {

class DamagedDuctFile : public DuctFixture {
 protected:
  // A file of both halves with a little of everything.
  std::string Sample() {
    AddNamed(L"镀锌钢板");
    SZPDuctThickness row(0, 320, 0.5);
    AddNamed(L"“乙”\"\n")->m_arrThickness.Add(row);
    AddRect(500, 250);
    AddCircle(100);
    install.Write(kFile,
                  R"(["",{"Version":"1.0","管材管径方案":["",{"0":[0,{"甲":["",{"管径数据":""}]}]}]}])");
    EXPECT_TRUE(catalogue.SaveData());
    return install.Read(kFile);
  }
  std::vector<std::string> FilesInFolder() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator((install.Root() / kFile).parent_path()))
      names.push_back(entry.path().filename().string());
    return names;
  }
};

TEST_F(DamagedDuctFile, CutOffAnywhereGivesNothingAndNoCrash) {
  std::string whole = Sample();
  while (!whole.empty() && std::isspace(static_cast<unsigned char>(whole.back()))) whole.pop_back();
  for (std::size_t length = 0; length < whole.size(); ++length) {
    EXPECT_FALSE(ReadText(whole.substr(0, length))) << length;
    EXPECT_TRUE(IsEmpty()) << length;
  }
  EXPECT_TRUE(ReadText(whole));
}

TEST_F(DamagedDuctFile, ChangedInAnyByteIsReadOrRefusedButNeverBreaksTheReader) {
  const std::string whole = Sample();
  int read = 0;
  for (std::size_t at = 0; at < whole.size(); ++at) {
    for (const char byte : {'\0', '"', '{', ']', '0', '\xFF'}) {
      if (whole[at] == byte) continue;
      std::string changed = whole;
      changed[at] = byte;
      if (ReadText(changed)) ++read;
    }
  }
  EXPECT_GT(read, 0); // such as other digits
}

TEST_F(DamagedDuctFile, WithAKeyTwiceIsUnreadable) {
  EXPECT_FALSE(ReadText(R"(["",{"Version":"1.0","风管管材方案":"","风管管材方案":"","风管管径方案":""}])"));
  EXPECT_TRUE(IsLogged(L"PipeMaterial.idp"));
}

TEST_F(DamagedDuctFile, IsKeptAsACopyWhenItIsReplaced) {
  const std::string cut = Sample().substr(0, 100);
  EXPECT_FALSE(ReadText(cut));
  EXPECT_TRUE(catalogue.SaveData());
  EXPECT_EQ(install.Read(std::string(kFile) + ".rescued-1"), cut);
}

TEST_F(DamagedDuctFile, StaysWholeWhenTheDiskIsFull) {
  const std::string before = Sample();
  AddNamed(L"丙");
  EXPECT_FALSE(OnAFullDisk([this] { return catalogue.SaveData(); }));
  EXPECT_EQ(install.Read(kFile), before);
  EXPECT_EQ(FilesInFolder(), std::vector<std::string>{"PipeMaterial.idp"});
  EXPECT_EQ(catalogue.m_arrMaterials.GetSize(), 3);
  EXPECT_TRUE(catalogue.SaveData());
  EXPECT_NE(install.Read(kFile), before);
}

TEST_F(DamagedDuctFile, StaysWholeOnARealDiskThatIsFull) {
  Sample();
  const std::filesystem::path folder = (install.Root() / kFile).parent_path();
  const TinyDiskResult result = OnATinyDisk(folder, [&] {
    if (!catalogue.SaveData()) return false;
    const std::string before = install.Read(kFile);
    FillDisk(folder);
    AddNamed(CString(std::wstring(2000, L'长'))); // more than a page of the disk may still hold
    if (catalogue.SaveData() || install.Read(kFile) != before || FilesInFolder().size() != 2) return false;
    std::filesystem::remove(folder / "filler");
    return catalogue.SaveData() && install.Read(kFile) != before;
  });
  if (result == TinyDiskResult::kNotAllowed) GTEST_SKIP() << "disks cannot be mounted here";
  EXPECT_EQ(result, TinyDiskResult::kPassed);
}

TEST_F(DamagedDuctFile, StaysWholeInAFolderThatIsReadOnly) {
  const std::string before = Sample();
  const std::filesystem::path folder = (install.Root() / kFile).parent_path();
  ::chmod(install.Root().c_str(), 0755);
  ::chmod(folder.c_str(), 0555);
  AddNamed(L"丙");
  {
    const OrdinaryUser user;
    if (!user.IsOne()) GTEST_SKIP() << "permissions do not hold root back";
    EXPECT_FALSE(catalogue.SaveData());
  }
  ::chmod(folder.c_str(), 0755);
  EXPECT_EQ(install.Read(kFile), before);
  EXPECT_EQ(FilesInFolder(), std::vector<std::string>{"PipeMaterial.idp"});
}

TEST_F(DamagedDuctFile, FailsTheSaveWhereTheFolderCannotBe) {
  install.Write("Data", "a file where the folder should be");
  AddNamed(L"甲");
  EXPECT_FALSE(catalogue.SaveData());
  EXPECT_EQ(install.Read("Data"), "a file where the folder should be");
}

TEST_F(DamagedDuctFile, OfManySizesIsReadInProportion) {
  for (int i = 0; i < 20000; ++i) {
    catalogue.m_arrRectDiameters.Add(new CZPDuctDiameter(20000 - i, i));
    catalogue.m_arrCircleDiameters.Add(new CZPDuctDiameter(20000 - i, 0));
  }
  ASSERT_TRUE(catalogue.SaveData());
  EXPECT_TRUE(Reload()); // a sort after each size would take minutes
  EXPECT_EQ(catalogue.m_arrRectDiameters.GetSize(), 20000);
  EXPECT_EQ(catalogue.m_arrCircleDiameters[0]->m_dWidth, 1);
}

} // namespace
