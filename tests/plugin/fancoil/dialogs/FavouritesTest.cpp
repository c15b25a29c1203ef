// The remembered list of favourites.
#include "plugin/fancoil/dialogs/Favourites.h"

#include "tests/plugin/fancoil/dialogs/FanCoilDialogs.h"

namespace {

class FanCoilFavourites : public FanCoilDialogs {
 protected:
  FanCoilFavourites() { AddTwoMakers(); }
  CString Read(const wchar_t* remembered) {
    ZP::SetDefaultValue(kListKey, remembered);
    CString text;
    for (const CString& entry : fancoil::ReadFavourites(catalogue)) text += entry + L" ";
    return text;
  }
};

TEST_F(FanCoilFavourites, AreThoseThatWereWritten) {
  EXPECT_EQ(fancoil::ReadFavourites(catalogue).GetSize(), 0);
  CStringArray entries;
  entries.Add(L"B|甲");
  entries.Add(L"A|乙");
  fancoil::WriteFavourites(entries);
  EXPECT_EQ(Remembered(kListKey), L"B|甲;A|乙;");
  EXPECT_EQ(Read(L"B|甲;A|乙;"), L"B|甲 A|乙 ");
}

TEST_F(FanCoilFavourites, LoseWhatStandsBehindTheLastEnd) {
  EXPECT_EQ(Read(L"B|甲;A|乙"), L"B|甲 ");
  EXPECT_EQ(Read(L"A|乙"), L"");
}

TEST_F(FanCoilFavourites, LoseModelsThatAreNotInTheCatalogue) {
  EXPECT_EQ(Read(L"B|甲;D|甲;B|乙;B|丙;A|乙;"), L"B|甲 A|乙 ");
}

TEST_F(FanCoilFavourites, LoseEntriesThatAreNone) {
  EXPECT_EQ(Read(L";;B;|甲;甲|;A|乙;"), L"A|乙 ");
  EXPECT_EQ(Read(L"B|;"), L"B| ") << "without a maker all makers are searched";
}

TEST_F(FanCoilFavourites, ArePartedBehindTheirFirstCharacter) {
  AddModel(first, L"|x");
  EXPECT_EQ(Read(L"|x|甲;"), L"|x|甲 ");
}

TEST_F(FanCoilFavourites, BeginWithTheFirstElevenModels) {
  for (int i = 0; i < 20; ++i) AddModel(second, L"M" + ZP::itoa(i));
  catalogue.m_arrFactories.InsertAt(0, static_cast<CFCUFactory*>(nullptr));
  first->m_arrEquipments.InsertAt(1, static_cast<CFCUEquipment*>(nullptr));
  const CStringArray entries = fancoil::FirstFavourites(catalogue);
  ASSERT_EQ(entries.GetSize(), 11);
  EXPECT_EQ(entries[0], L"A|甲");
  EXPECT_EQ(entries[1], L"B|甲");
  EXPECT_EQ(entries[3], L"A|乙");
  EXPECT_EQ(entries[10], L"M6|乙");
  Empty();
  EXPECT_EQ(fancoil::FirstFavourites(catalogue).GetSize(), 0);
}

} // namespace
