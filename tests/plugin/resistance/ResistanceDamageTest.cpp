// Files that no program of ours has written: cut off, with bytes changed, with items that belong elsewhere.
#include "host/afx/MessageLog.h"
#include "tests/plugin/resistance/ResistanceFixture.h"

namespace {

class ResistanceDamage : public ResistanceFixture {
 protected:
  std::string Whole() {
    PutFitting(L"\"弯头\"\U0001F600\\\x01", L"1.5");
    PutFlow(L"3汇1-3", L"1.5");
    PutPicture(L"4通", L"4通.svg");
    Start();
    return install.Read(kFile);
  }
  // A file that takes the place of another, not its content: file systems flush the latter to the disk.
  void PutText(const std::string& text) const {
    std::filesystem::remove(install.Root() / kFile);
    install.Write(kFile, text);
  }
  void ExpectNothingRead() {
    EXPECT_EQ(store.GetOpenStatus(), 1);
    EXPECT_EQ(store.m_arrPartsCoe.GetSize(), 0);
    ExpectDefaults(store.m_coe3T4T);
    CString path;
    EXPECT_EQ(store.GetBmp(L"4通", path), 0);
  }
};

TEST_F(ResistanceDamage, CutOffAtAnyByteReadsAsNothingAndIsNotSavedOver) {
  const std::string text = Whole();
  ASSERT_EQ(text.back(), '\n');
  for (std::size_t length = 0; length < text.size() - 1; ++length) {
    PutText(text.substr(0, length));
    Reload();
    ExpectNothingRead();
    EXPECT_EQ(store.SaveData(), 0);
    ASSERT_FALSE(HasFailure()) << length;
  }
  EXPECT_EQ(install.Read(kFile), text.substr(0, text.size() - 2));
  PutText(text.substr(0, text.size() - 1)); // all but the last line feed
  EXPECT_EQ(Reload(), 0);
}

TEST_F(ResistanceDamage, AChangedByteIsReadOrRefusedButNeverHalfRead) {
  const std::string text = Whole();
  int read = 0;
  for (std::size_t at = 0; at < text.size(); ++at)
    for (const char byte : {'\0', '"', '<', '&', '9', '\x80'}) {
      std::string changed = text;
      changed[at] = byte;
      PutText(changed);
      if (Reload() == 0)
        ++read;
      else
        ExpectNothingRead();
      ASSERT_FALSE(HasFailure()) << at;
    }
  EXPECT_GT(read, 100); // inside names and values
}

TEST_F(ResistanceDamage, IsToldInTheLogWithFileAndPlace) {
  install.Write(kFile, "<dictionary>\n<fitting/></dictionary>");
  afx::ClearLoggedMessages();
  EXPECT_EQ(Reload(), 1);
  ASSERT_EQ(afx::LoggedMessages().size(), 1u);
  EXPECT_NE(afx::LoggedMessages()[0].Find(L"VacCal.xml"), -1);
  EXPECT_NE(afx::LoggedMessages()[0].Find(L"第 2 行"), -1);
}

TEST_F(ResistanceDamage, OfAnotherKindReadsAsNothing) {
  for (const char* text :
       {"", "\xEF\xBB\xBF", "[\"\",{}]", "<items/>", "<dictionary/><dictionary/>",
        "<?xml version='1.0' encoding='GBK'?><dictionary/>", "<!DOCTYPE d [<!ENTITY a 'a'>]><dictionary/>"}) {
    PutText(text);
    Reload();
    ExpectNothingRead();
    EXPECT_EQ(store.SaveData(), 0);
    EXPECT_EQ(install.Read(kFile), text);
  }
  std::filesystem::remove(install.Root() / kFile);
  std::filesystem::create_directory(install.Root() / kFile);
  Reload();
  ExpectNothingRead();
  EXPECT_EQ(store.SaveData(), 0);
}

TEST_F(ResistanceDamage, OfOneStartIsGoneAtTheNextWithAMendedFile) {
  const std::string text = Whole();
  PutText("");
  EXPECT_EQ(Reload(), 1);
  PutText(text);
  EXPECT_EQ(Reload(), 0);
  EXPECT_EQ(store.m_arrPartsCoe.GetSize(), 1);
  EXPECT_EQ(store.SaveData(), 1);
  EXPECT_EQ(install.Read(kFile), text);
}

// Parts may stand twice, be nested, be empty or have attributes only: the first below the root counts.
TEST_F(ResistanceDamage, OddlyArrangedPartsAreReadAsFarAsTheyGo) {
  install.Write(kFile, R"(<dictionary>
    <item name="outer"><item name="FittingsLocalCoe"><item name="0"><attr name="MingCheng" value="深"/></item></item></item>
    <item name="FittingsLocalCoe"><attr name="MingCheng" value="部分"/>
      <item name="x"><item name="y"><attr name="MingCheng" value="内"/></item></item>
      <item name="0"><attr name="DN15" value="1"/><attr name="MingCheng" value="甲"/></item>
      <item name="0"><attr name="MingCheng" value="乙"/></item></item>
    <item name="FittingsLocalCoe"><item name="0"><attr name="MingCheng" value="丙"/></item></item>
    <item name="3T4TLocalCoe"/>
    <item name="3T4T"><item/></item>
  </dictionary>)");
  EXPECT_EQ(Reload(), 0);
  EXPECT_EQ(Names(), L"甲 乙 ");
  ExpectDefaults(store.m_coe3T4T);
  EXPECT_EQ(store.SaveData(), 1);
  EXPECT_EQ(Reload(), 0);
  EXPECT_EQ(Names(), L"甲 乙 ");
  EXPECT_NE(install.Read(kFile).find("深"), std::string::npos);
  EXPECT_NE(install.Read(kFile).find("丙"), std::string::npos);
}

TEST_F(ResistanceDamage, NumbersBeyondAllBoundsAreTakenAndWrittenWithoutHarm) {
  for (const wchar_t* text : {L"1e308", L"1e999", L"-1e999", L"1e-999"}) PutFitting(L"件", text);
  Start();
  ASSERT_EQ(store.SaveData(), 1);
  EXPECT_EQ(Reload(), 0);
  EXPECT_EQ(store.m_arrPartsCoe[0].dbDN15, 1e308);
  EXPECT_EQ(store.m_arrPartsCoe[1].dbDN15, 0); // "inf" is no number of the file
  EXPECT_EQ(store.m_arrPartsCoe[2].dbDN15, 0);
  EXPECT_EQ(store.m_arrPartsCoe[3].dbDN15, 0);
}

} // namespace
