// Saving: what is replaced, what stays, and what a save that fails leaves behind.
#include "tests/plugin/resistance/ResistanceFixture.h"
#include "tests/support/FullDisk.h"
#include "tests/support/OrdinaryUser.h"
#include "tests/support/TinyDisk.h"

namespace {

class ResistanceSave : public ResistanceFixture {
 protected:
  // A file with something in each part.
  void StartWithAll() {
    PutFitting(L"弯头", L"1.5");
    PutFitting(L"闸阀", L"0.5");
    PutAllFlows();
    PutPicture(L"3汇", L"3汇.svg");
    Start();
  }
  // The text of an attribute in the file, as another reader sees it.
  CString InFile(const wchar_t* part, const wchar_t* item, const wchar_t* attribute) {
    VkDtDictionary read(nullptr, nullptr);
    if (!read.ReadFromXML(resistance::FilePath())) return L"(unreadable)";
    VkDtDictionary* dictionary = read.FindDict(part);
    dictionary = dictionary ? dictionary->FindDict(item) : nullptr;
    return dictionary ? dictionary->GetAttributeValue(attribute) : CString(L"(missing)");
  }
};

TEST_F(ResistanceSave, OfWhatWasReadChangesNoByte) {
  StartWithAll();
  const std::string before = install.Read(kFile);
  EXPECT_EQ(store.SaveData(), 1);
  EXPECT_EQ(install.Read(kFile), before);
}

TEST_F(ResistanceSave, ReadsBackAsItWas) {
  StartWithAll();
  store.m_arrPartsCoe.RemoveAll();
  for (int i = 0; i < 200; ++i) {
    CZPPipePartsCoe fitting = Fitting(L"件" + ZP::itoa(i));
    double coefficient = i * 0.25;
    for (const auto& column : resistance::kFittingColumns) fitting.*column.coefficient = coefficient += 0.01;
    AddFitting(fitting);
  }
  double coefficient = 20;
  for (const auto& flow : resistance::kTeeFlows) store.m_coe3T4T.*flow.coefficient = coefficient -= 1.5;
  const CZPLocalResistanceMng before = store;
  ASSERT_EQ(store.SaveData(), 1);
  ASSERT_EQ(Reload(), 0);
  ASSERT_EQ(store.m_arrPartsCoe.GetSize(), 200);
  for (int i = 0; i < 200; ++i) {
    EXPECT_EQ(store.m_arrPartsCoe[i].szName, before.m_arrPartsCoe[i].szName);
    for (const auto& column : resistance::kFittingColumns)
      EXPECT_DOUBLE_EQ(store.m_arrPartsCoe[i].*column.coefficient,
                       before.m_arrPartsCoe[i].*column.coefficient);
  }
  for (const auto& flow : resistance::kTeeFlows)
    EXPECT_EQ(store.m_coe3T4T.*flow.coefficient, before.m_coe3T4T.*flow.coefficient);
}

TEST_F(ResistanceSave, WritesFittingsByTheirIndexWithTheAttributesInOrder) {
  StartWithAll();
  VkDtDictionary read(nullptr, nullptr);
  ASSERT_EQ(store.SaveData(), 1);
  ASSERT_TRUE(read.ReadFromXML(resistance::FilePath()));
  VkDtDictionary* fittings = read.FindDict(L"FittingsLocalCoe");
  ASSERT_NE(fittings, nullptr);
  EXPECT_EQ(fittings->GetLength(), 2);
  VkDtDictionary* second = fittings->FindDict(L"1");
  ASSERT_NE(second, nullptr);
  CString attributes;
  for (int i = 0; i < second->GetAttributeNum(); ++i)
    attributes += second->GetAttributeName(i) + L"=" + second->GetAttributeText(i) + L" ";
  EXPECT_EQ(attributes, L"MingCheng=闸阀 DN15=0.5 DN20=0.5 DN25=0.5 DN32=0.5 DN40=0.5 DN50=0.5 ");
}

// 0.125 lies half-way between 0.12 and 0.13 and rounds away from 0.
TEST_F(ResistanceSave, KeepsTwoDecimalsWithoutTrailingZeros) {
  StartWithAll();
  store.m_arrPartsCoe.RemoveAll();
  for (const double coefficient : {0.125, 2.0, 0.5, 16.0, -0.001, 1e20})
    AddFitting(Fitting(L"件", coefficient));
  store.m_coe3T4T.merge3From1 = 1.005; // in binary a little less than that
  ASSERT_EQ(store.SaveData(), 1);
  EXPECT_EQ(InFile(L"FittingsLocalCoe", L"1", L"DN32"), L"2");
  EXPECT_EQ(InFile(L"3T4TLocalCoe", L"Flow0", L"XiShu"), L"1");
  ASSERT_EQ(Reload(), 0);
  EXPECT_EQ(Coefficients(), L"0.13 2 0.5 16 0 100000000000000000000 ");
}

TEST_F(ResistanceSave, KeepsWhatIsNotEditedHere) {
  PutFitting(L"弯头");
  PutFlow(L"3汇1-3", L"1");
  PutFlow(L"别的流向", L"4.25");
  PutPicture(L"3汇", L"3汇.svg");
  Part(resistance::kFlowPart).FindOrAddDict(L"Flow0")->SetAttributeValue(L"备注", L"直流");
  Part(resistance::kFittingPart).SetAttributeValue(L"来源", L"手册");
  Part(L"别的").FindOrAddDict(L"a")->SetAttributeValue(L"b", L"c");
  root.SetAttributeValue(L"root", L"attribute");
  Start();
  store.m_arrPartsCoe.RemoveAll();
  store.m_coe3T4T.merge3From1 = 6;
  ASSERT_EQ(store.SaveData(), 1);
  EXPECT_EQ(InFile(L"3T4TLocalCoe", L"Flow0", L"XiShu"), L"6");
  EXPECT_EQ(InFile(L"3T4TLocalCoe", L"Flow0", L"备注"), L"直流");
  EXPECT_EQ(InFile(L"3T4TLocalCoe", L"Flow1", L"XiShu"), L"4.25");
  EXPECT_EQ(InFile(L"3T4T", L"Picture0", L"BMP"), L"3汇.svg");
  EXPECT_EQ(InFile(L"别的", L"a", L"b"), L"c");
  VkDtDictionary read(nullptr, nullptr);
  ASSERT_TRUE(read.ReadFromXML(resistance::FilePath()));
  EXPECT_EQ(read.GetAttributeValue(L"root"), L"attribute");
  EXPECT_EQ(read.FindDict(L"FittingsLocalCoe")->GetAttributeValue(L"来源"), L"手册");
  EXPECT_TRUE(read.FindDict(L"FittingsLocalCoe")->IsEmpty());
}

TEST_F(ResistanceSave, AddsNoFlowThatTheFileLacksAndIsNoFailureThen) {
  PutFlow(L"3汇1_3", L"7");
  Start();
  store.m_coe3T4T.merge3From1 = 8;
  EXPECT_EQ(store.SaveData(), 1);
  EXPECT_EQ(InFile(L"3T4TLocalCoe", L"Flow0", L"XiShu"), L"7");
  EXPECT_EQ(install.Read(kFile).find("3汇1-3"), std::string::npos);
  Reload();
  EXPECT_EQ(store.m_coe3T4T.merge3From1, 1);
}

TEST_F(ResistanceSave, ChangesTheFirstOfItemsForOneFlow) {
  PutFlow(L"2分2-1", L"5");
  PutFlow(L"2分2-1", L"6");
  Start();
  store.m_coe3T4T.split2To1 = 7;
  ASSERT_EQ(store.SaveData(), 1);
  EXPECT_EQ(InFile(L"3T4TLocalCoe", L"Flow0", L"XiShu"), L"7");
  EXPECT_EQ(InFile(L"3T4TLocalCoe", L"Flow1", L"XiShu"), L"6");
}

TEST_F(ResistanceSave, MakesThePartsThatTheFileLacks) {
  Start();
  AddFitting(Fitting(L"弯头", 1.5));
  ASSERT_EQ(store.SaveData(), 1);
  Reload();
  EXPECT_EQ(Names(), L"弯头 ");
  EXPECT_NE(install.Read(kFile).find("<item name=\"3T4TLocalCoe\" />"), std::string::npos);
}

TEST_F(ResistanceSave, WritesFittingsWithoutANameWhichTheNextReadDrops) {
  StartWithAll();
  AddFitting(Fitting(L"", 3));
  AddFitting(Fitting(L"弯头", 4));
  ASSERT_EQ(store.SaveData(), 1);
  EXPECT_EQ(InFile(L"FittingsLocalCoe", L"2", L"DN15"), L"3");
  Reload();
  EXPECT_EQ(Names(), L"弯头 闸阀 弯头 ");
}

TEST_F(ResistanceSave, KeepsNamesOfAnyKind) {
  const CString awkward[] = {L" ",
                             L"DN15/2#(左)，“引号”",
                             L"a\"b\\c'd",
                             L"a\tb\r\nc\x01\x7f",
                             L"<&>%s%d%n%%",
                             L"\U0001F600\U00020BB7",
                             CString(std::wstring(1, wchar_t(0xDC80))),
                             L"0",
                             L"MingCheng",
                             CString(L'长', 5000)};
  Start();
  for (const CString& name : awkward) AddFitting(Fitting(name, 2.5));
  ASSERT_EQ(store.SaveData(), 1);
  ASSERT_EQ(Reload(), 0);
  int i = 0;
  for (const CString& name : awkward) EXPECT_EQ(store.m_arrPartsCoe[i++].szName, name);
  EXPECT_EQ(store.m_arrPartsCoe.GetSize(), i);
}

TEST_F(ResistanceSave, ReplacesWhatAnotherProgramMadeOfTheFittingsSinceTheStart) {
  StartWithAll();
  PutFitting(L"别人的");
  Part(L"后来的");
  ASSERT_TRUE(root.SaveToXML(resistance::FilePath()));
  EXPECT_EQ(Names(), L"弯头 闸阀 "); // the store doesn't look again
  ASSERT_EQ(store.SaveData(), 1);
  EXPECT_NE(install.Read(kFile).find("后来的"), std::string::npos);
  Reload();
  EXPECT_EQ(Names(), L"弯头 闸阀 ");
}

TEST_F(ResistanceSave, NeverMakesTheFile) {
  AddFitting(Fitting(L"弯头"));
  EXPECT_EQ(store.SaveData(), 0);
  EXPECT_TRUE(std::filesystem::is_empty(install.Root()));
}

TEST_F(ResistanceSave, LeavesADamagedFileAlone) {
  const std::string damaged = "<dictionary><item name='FittingsLocalCoe'></dictionary>";
  install.Write(kFile, damaged);
  EXPECT_EQ(Reload(), 1);
  EXPECT_EQ(store.SaveData(), 0);
  EXPECT_EQ(install.Read(kFile), damaged);
}

TEST_F(ResistanceSave, OnAFullDiskFailsAndLeavesTheOldFileWhole) {
  StartWithAll();
  const std::string before = install.Read(kFile);
  AddFitting(Fitting(L"新的"));
  EXPECT_EQ(OnAFullDisk([&] { return store.SaveData(); }), 0);
  EXPECT_EQ(install.Read(kFile), before);
  EXPECT_EQ(Names(), L"弯头 闸阀 新的 ");
  EXPECT_EQ(store.SaveData(), 1);
}

TEST_F(ResistanceSave, InAFolderThatIsReadOnlyFailsAndLeavesTheOldFileWhole) {
  StartWithAll();
  const std::string before = install.Read(kFile);
  AddFitting(Fitting(L"新的"));
  using std::filesystem::perms;
  std::filesystem::permissions(install.Root(), perms(0555));
  {
    const OrdinaryUser user;
    if (!user.IsOne()) GTEST_SKIP() << "this root keeps its rights";
    EXPECT_EQ(store.SaveData(), 0);
  }
  std::filesystem::permissions(install.Root(), perms(0755));
  EXPECT_EQ(install.Read(kFile), before);
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(install.Root()), {}), 1);
  EXPECT_EQ(store.SaveData(), 1);
}

// The file fits onto the disk once and not twice.
TEST_F(ResistanceSave, OnATinyDiskThatRunsFullFailsAndLeavesTheOldFileWhole) {
  for (int i = 0; i < 40; ++i) PutFitting(L"件" + ZP::itoa(i));
  Start();
  const std::string bytes = install.Read(kFile);
  ASSERT_GT(bytes.size(), 8u << 10);
  ASSERT_LT(bytes.size(), 16u << 10);
  const TinyDiskResult result = OnATinyDisk(install.Root(), [&] {
    install.Write(kFile, bytes);
    const bool fits = install.Read(kFile) == bytes;
    const bool refused = store.SaveData() == 0;
    const auto files = std::distance(std::filesystem::directory_iterator(install.Root()), {});
    return fits && refused && install.Read(kFile) == bytes && files == 1;
  });
  if (result == TinyDiskResult::kNotAllowed) GTEST_SKIP() << "disks cannot be mounted here";
  EXPECT_EQ(result, TinyDiskResult::kPassed);
}

} // namespace
