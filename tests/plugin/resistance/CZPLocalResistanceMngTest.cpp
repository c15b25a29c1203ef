// What the store answers, and what it makes of a file.
#include "plugin/resistance/CZPLocalResistanceMng.h"

#include "tests/plugin/resistance/ResistanceFixture.h"

namespace {

using ResistanceStore = ResistanceFixture;

TEST_F(ResistanceStore, WithoutAFileIsEmptyHasTheDefaultsAndIsSilent) {
  EXPECT_EQ(store.GetOpenStatus(), 1);
  EXPECT_EQ(store.m_arrPartsCoe.GetSize(), 0);
  ExpectDefaults(store.m_coe3T4T);
  CString path = L"预置";
  for (const auto& flow : resistance::kTeeFlows) EXPECT_EQ(store.GetBmp(flow.form, path), 0);
  EXPECT_EQ(path, L"预置");
}

TEST_F(ResistanceStore, IsOneForTheWholeProgram) {
  EXPECT_EQ(CZPLocalResistanceMng::GetInstance(), &store);
}

TEST_F(ResistanceStore, ReadsFittingsFlowsAndPicturesInFileOrder) {
  PutFitting(L"弯头", L"1.5");
  PutFitting(L"闸阀", L"0.5");
  PutAllFlows();
  PutPicture(L"3汇", L"3汇.svg");
  Start();
  EXPECT_EQ(Names(), L"弯头 闸阀 ");
  EXPECT_EQ(Coefficients(), L"1.5 0.5 ");
  double expected = 0;
  for (const auto& flow : resistance::kTeeFlows)
    EXPECT_EQ(store.m_coe3T4T.*flow.coefficient, expected += 0.25) << CString(flow.key).ToUtf8();
  CString path;
  EXPECT_EQ(store.GetBmp(L"3汇", path), 1);
  EXPECT_EQ(path, ZP::GetDataBmpPath() + L"3汇.svg");
}

TEST_F(ResistanceStore, ReadsEachColumnFromItsAttribute) {
  VkDtDictionary& item = PutFitting(L"截止阀");
  int number = 0;
  for (const auto& column : resistance::kFittingColumns)
    item.SetAttributeValue(column.attribute, ZP::itoa(++number));
  Start();
  const CZPPipePartsCoe& fitting = store.m_arrPartsCoe[0];
  EXPECT_EQ(fitting.dbDN15, 1);
  EXPECT_EQ(fitting.dbDN20, 2);
  EXPECT_EQ(fitting.dbDN25, 3);
  EXPECT_EQ(fitting.dbDN32, 4);
  EXPECT_EQ(fitting.dbDN40, 5);
  EXPECT_EQ(fitting.dbDN50, 6);
}

// In a file the flow 1-3 of the cross stands before 1-4, in the record behind it.
TEST_F(ResistanceStore, GoesByTheKeysOfTheCrossAndNotByTheirOrder) {
  PutFlow(L"4通1-2", L"12");
  PutFlow(L"4通1-3", L"13");
  PutFlow(L"4通1-4", L"14");
  Start();
  EXPECT_EQ(store.m_coe3T4T.cross1To2, 12);
  EXPECT_EQ(store.m_coe3T4T.cross1To3, 13);
  EXPECT_EQ(store.m_coe3T4T.cross1To4, 14);
}

TEST_F(ResistanceStore, FindsTheFirstOfFittingsOfOneName) {
  PutFitting(L"弯头", L"1");
  PutFitting(L"弯头", L"2");
  Start();
  EXPECT_EQ(store.m_arrPartsCoe.GetSize(), 2);
  CZPPipePartsCoe found;
  EXPECT_EQ(store.GetPipePartsCoe(L"弯头", found), 1);
  EXPECT_EQ(found.dbDN15, 1);
}

TEST_F(ResistanceStore, ComparesNamesExactlyAndLeavesTheResultOfAMissAlone) {
  AddFitting(Fitting(L"Ball valve", 0.1));
  CZPPipePartsCoe found = Fitting(L"预置", 9);
  for (const wchar_t* name : {L"ball valve", L"Ball valve ", L"Ball", L""}) {
    EXPECT_EQ(store.GetPipePartsCoe(name, found), 0);
    EXPECT_EQ(found.szName, L"预置");
    EXPECT_EQ(found.dbDN50, 9);
  }
  EXPECT_EQ(store.GetPipePartsCoe(L"Ball valve", found), 1);
  EXPECT_EQ(found.dbDN50, 0.1);
}

TEST_F(ResistanceStore, TellsNamesApartThatDifferInOneCharacter) {
  const wchar_t* names[] = {L"甲乙丙", L"丁乙丙", L"甲丁丙", L"甲乙丁", L"甲乙", L"丙", L""};
  double coefficient = 0;
  for (const wchar_t* name : names) AddFitting(Fitting(name, ++coefficient));
  coefficient = 0;
  for (const wchar_t* name : names) {
    CZPPipePartsCoe found;
    EXPECT_EQ(store.GetPipePartsCoe(name, found), 1);
    EXPECT_EQ(found.dbDN15, ++coefficient) << CString(name).ToUtf8();
  }
  CZPPipePartsCoe found;
  EXPECT_EQ(store.GetPipePartsCoe(L"乙乙丙", found), 0);
  EXPECT_EQ(store.GetPipePartsCoe(L"甲", found), 0);
}

TEST_F(ResistanceStore, DropsFittingsWithoutAName) {
  PutFitting(L"", L"1");
  PutFitting(L"弯头", L"2");
  Part(resistance::kFittingPart).FindOrAddDict(L"无名")->SetAttributeValue(L"DN15", L"3");
  Start();
  EXPECT_EQ(Names(), L"弯头 ");
}

TEST_F(ResistanceStore, TakesAMissingCoefficientAsZeroAndNotAsADefault) {
  Part(resistance::kFittingPart).FindOrAddDict(L"0")->SetAttributeValue(resistance::kName, L"弯头");
  Part(resistance::kFlowPart).FindOrAddDict(L"0")->SetAttributeValue(resistance::kFlowKey, L"3汇1-3");
  Start();
  EXPECT_EQ(Coefficients(), L"0 ");
  EXPECT_EQ(store.m_coe3T4T.merge3From1, 0);
}

TEST_F(ResistanceStore, TakesTextsForTheNumbersThatTheyBeginWith) {
  for (const wchar_t* text : {L"2.5 左右", L" 1.5", L"不详", L"", L"nan", L"0x10", L"-0.5", L"1e1"})
    PutFitting(L"件", text);
  PutFlow(L"3汇1-3", L"未知");
  Start();
  EXPECT_EQ(Coefficients(), L"2.5 1.5 0 0 0 0 -0.5 10 ");
  EXPECT_EQ(store.m_coe3T4T.merge3From1, 0);
}

TEST_F(ResistanceStore, LeavesAFlowThatTheFileLacksOrMisspellsAtItsDefault) {
  PutFlow(L"3汇1-3 ", L"7");
  PutFlow(L"1分1－2", L"7");
  PutFlow(L"2汇1-2", L"0.7");
  Start();
  EXPECT_EQ(store.m_coe3T4T.merge3From1, 1);
  EXPECT_EQ(store.m_coe3T4T.merge3From2, 2);
  EXPECT_EQ(store.m_coe3T4T.split1To2, 3);
  EXPECT_EQ(store.m_coe3T4T.merge2From1, 0.7);
}

TEST_F(ResistanceStore, TakesTheFirstOfItemsForOneFlow) {
  PutFlow(L"2分2-1", L"5");
  PutFlow(L"2分2-1", L"6");
  Start();
  EXPECT_EQ(store.m_coe3T4T.split2To1, 5);
}

TEST_F(ResistanceStore, CountsAFileWithoutAnyPartAsRead) {
  Start();
  EXPECT_EQ(store.GetOpenStatus(), 0);
  EXPECT_EQ(store.m_arrPartsCoe.GetSize(), 0);
  ExpectDefaults(store.m_coe3T4T);
  CString path;
  EXPECT_EQ(store.GetBmp(L"3汇", path), 0);
}

TEST_F(ResistanceStore, LeavesWhatAMissingPartWouldTellAtItsDefault) {
  PutAllFlows();
  Start();
  EXPECT_EQ(store.m_arrPartsCoe.GetSize(), 0);
  EXPECT_EQ(store.m_coe3T4T.cross1To3, 3.75);
  root.Reset();
  PutFitting(L"弯头");
  Start();
  EXPECT_EQ(Names(), L"弯头 ");
  ExpectDefaults(store.m_coe3T4T);
}

TEST_F(ResistanceStore, TakesTheLastPictureOfAForm) {
  PutPicture(L"4通", L"old.svg");
  PutPicture(L"4通", L"new.svg");
  PutPicture(L"", L"nameless.svg");
  Start();
  CString path;
  EXPECT_EQ(store.GetBmp(L"4通", path), 1);
  EXPECT_EQ(path, ZP::GetDataBmpPath() + L"new.svg");
  EXPECT_EQ(store.GetBmp(L"", path), 1);
  EXPECT_EQ(path, ZP::GetDataBmpPath() + L"nameless.svg");
  EXPECT_EQ(store.GetBmp(L"4通 ", path), 0);
}

TEST_F(ResistanceStore, IsCopiedWithEverythingThatWasRead) {
  PutFitting(L"弯头", L"1.5");
  PutPicture(L"4通", L"4.svg");
  Start();
  store.m_coe3T4T.cross1To4 = 9;
  CZPLocalResistanceMng copy(store);
  store.m_arrPartsCoe.RemoveAll();
  EXPECT_EQ(copy.m_arrPartsCoe.GetSize(), 1);
  EXPECT_EQ(copy.m_coe3T4T.cross1To4, 9);
  EXPECT_EQ(copy.GetOpenStatus(), 0);
  CString path;
  EXPECT_EQ(copy.GetBmp(L"4通", path), 1);
}

} // namespace
