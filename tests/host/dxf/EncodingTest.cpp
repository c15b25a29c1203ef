// Text in the encodings that drawings come in: read as what it says, saved as the same bytes, and what is
// added is written so that every reader of that file understands it.
#include "host/db/AcDbLayerTable.h"
#include "host/db/AcDbObjectPointer.h"
#include "host/db/AcDbText.h"
#include "tests/host/dxf/DrawingFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::HasSubstr;

// "管线" in two encodings.
const std::string kGbk = "\xB9\xDC\xCF\xDF";
const std::string kUtf8 = "管线";

std::string drawing(const std::string& version, const std::string& codePage, const std::string& text,
                    const char* lineEnd = "\n") {
  const std::string page = codePage.empty() ? "" : "9 $DWGCODEPAGE\n3 " + codePage + "\n";
  return Tags("0 SECTION\n2 HEADER\n9 $ACADVER\n1 " + version + "\n" + page +
                  "0 ENDSEC\n0 SECTION\n2 ENTITIES\n0 TEXT\n8 0\n10 0.0\n20 0.0\n40 2.5\n1 " + text +
                  "\n0 ENDSEC\n0 EOF",
              lineEnd);
}

const AcDbText& textOf(const Opened& opened) {
  return *AcDbText::cast(EntityAt(*opened.database, 0).object());
}

void setText(const Opened& opened, const wchar_t* text) {
  AcDbObjectPointer<AcDbText> entity(EntityAt(*opened.database, 0), AcDb::kForWrite);
  ASSERT_EQ(entity->setTextString(text), Acad::eOk);
}

TEST(Encoding, OfACodePageIsReadAndKept) {
  for (const char* page : {"ANSI_936", "ansi_936", "gb2312", "GBK"}) {
    const Opened opened = Open(drawing("AC1009", page, kGbk));
    EXPECT_EQ(textOf(opened).textString(), L"管线") << page;
    EXPECT_EQ(opened.repairs(), "") << page;
    EXPECT_EQ(opened.saved(), drawing("AC1009", page, kGbk));
  }
  const Opened latin = Open(drawing("AC1009", "ANSI_1252",
                                    "\xD8"
                                    "100 \xB1 0.5"));
  EXPECT_EQ(textOf(latin).textString(), L"Ø100 ± 0.5");
  EXPECT_EQ(latin.saved(), drawing("AC1009", "ANSI_1252",
                                   "\xD8"
                                   "100 \xB1 0.5"));
}

TEST(Encoding, OfARealGbkPlanIsReadAndChangedInPlace) {
  const Opened opened = Open(SampleBytes("plan_gbk_R2000"));
  AcDbObjectId id;
  ASSERT_EQ(opened.database->tableOf("LAYER")->getAt(L"暖通-送风管-管线", id), Acad::eOk);
  AcDbObjectPointer<AcDbLayerTableRecord>(id, AcDb::kForWrite)->setName(L"暖通-送风管-支管");
  const std::string saved = opened.saved();
  EXPECT_THAT(saved, HasSubstr("\xC5\xAF\xCD\xA8-\xCB\xCD\xB7\xE7\xB9\xDC-\xD6\xA7\xB9\xDC\n"));
  EXPECT_THAT(saved, testing::Not(HasSubstr("\xC5\xAF\xCD\xA8-\xCB\xCD\xB7\xE7\xB9\xDC-\xB9\xDC\xCF\xDF\n")));
  EXPECT_EQ(Open(saved).saved(), saved);
}

TEST(Encoding, ThatContradictsTheHeaderIsUtf8WhereItCanBe) {
  const Opened opened = Open(drawing("AC1015", "ANSI_936", kUtf8));
  EXPECT_EQ(textOf(opened).textString(), L"管线");
  EXPECT_THAT(opened.repairs(), HasSubstr("0/-1 文字实为 UTF-8，与文件头的代码页不符，按 UTF-8 读写"));
  EXPECT_THAT(opened.saved(), HasSubstr("\n" + kUtf8 + "\n"));
}

TEST(Encoding, OfANewVersionWithOldBytesIsSavedAsUtf8) {
  const Opened opened = Open(drawing("AC1027", "ANSI_936", kGbk));
  EXPECT_EQ(textOf(opened).textString(), L"管线");
  EXPECT_THAT(opened.repairs(), HasSubstr("1 行文字不是 UTF-8，已按 ANSI_936 读入，将以 UTF-8 保存"));
  EXPECT_THAT(opened.saved(), HasSubstr("\n" + kUtf8 + "\n"));
}

TEST(Encoding, MixedInOneFileIsToldAndSavedInThePage) {
  std::string file = drawing("AC1009", "ANSI_936", kGbk);
  file.replace(file.find("0.0"), 3, "0.0\n999\n" + kUtf8);
  const Opened opened = Open(file);
  EXPECT_EQ(textOf(opened).textString(), L"管线");
  EXPECT_THAT(opened.repairs(), HasSubstr("1 行文字实为 UTF-8，将以 ANSI_936 保存"));
  EXPECT_THAT(opened.saved(), testing::Not(HasSubstr(kUtf8)));
}

TEST(Encoding, EscapesAreReadAndStayAsTheyStand) {
  for (const char* version : {"AC1009", "AC1015", "AC1027"}) {
    const std::string file =
        drawing(version, "ANSI_1252", "\\U+7BA1\\M+5CFDF \\U+D83D\\U+DE00 \\U+12 \\M+9AAAA");
    const Opened opened = Open(file);
    EXPECT_EQ(textOf(opened).textString(), L"管线 😀 \\U+12 \\M+9AAAA");
    EXPECT_THAT(opened.saved(), HasSubstr("\n\\U+7BA1\\M+5CFDF \\U+D83D\\U+DE00 \\U+12 \\M+9AAAA\n"));
  }
}

TEST(Encoding, BytesThatNothingExplainsAreKept) {
  for (const char* page : {"ANSI_936", "ANSI_1252", "ANSI_932", "ANSI_950", ""}) {
    for (const std::string bytes : {"\xFF",
                                    "a\xFF\xFE"
                                    "b",
                                    "\x81", "\xC3\xA9\x81", "\xB9\xDC\xFF\xCF\xDF", "\x80", "\xA0\xC3\xA9"}) {
      const std::string file = drawing("AC1009", page, bytes);
      EXPECT_EQ(Open(file).saved(), file) << page;
    }
    // Beside text that the page explains.
    std::string file = drawing("AC1009", page, kGbk);
    file.replace(file.find("0.0"), 3, "0.0\n999\n\xFF\xC3\xA9\xFF");
    EXPECT_EQ(Open(file).saved(), file) << page;
  }
  EXPECT_THAT(Open(drawing("AC1027", "", "\xFF管线")).saved(), HasSubstr("\n\xFF管线\n"));
}

TEST(Encoding, OfEveryByteInEveryPageIsKept) {
  for (const char* page :
       {"ANSI_936", "ANSI_1252", "ANSI_932", "ANSI_949", "ANSI_950", "ANSI_1251", "ANSI_874", "ANSI_1361"}) {
    std::string all;
    for (int lead = 0x80; lead < 0x100; ++lead)
      for (int trail = 0x30; trail < 0x100; trail += 1)
        all += Tags("1 " + std::string{static_cast<char>(lead), static_cast<char>(trail)});
    std::string file = drawing("AC1009", page, "x");
    file.replace(file.find("1\nx\n"), 4, all);
    EXPECT_TRUE(Open(file).saved() == file) << page;
  }
}

TEST(Encoding, OfAddedTextIsThePageOrAnEscape) {
  const auto added = [](const char* version, const char* page) {
    const Opened opened = Open(drawing(version, page, "abc"));
    setText(opened, L"管线Ø😀");
    EXPECT_EQ(textOf(Open(opened.saved())).textString(), L"管线Ø😀") << version << page;
    const std::string saved = opened.saved();
    const auto at = saved.rfind("\n2.5\n  1\n") + 9;
    return saved.substr(at, saved.find('\n', at) - at);
  };
  EXPECT_EQ(added("AC1009", "ANSI_936"), kGbk + "\\U+00D8\\U+D83D\\U+DE00");
  EXPECT_EQ(added("AC1015", "ANSI_1252"), "\\U+7BA1\\U+7EBF\xD8\\U+D83D\\U+DE00");
  EXPECT_EQ(added("AC1015", ""), "\\U+7BA1\\U+7EBF\\U+00D8\\U+D83D\\U+DE00");
  EXPECT_EQ(added("AC1015", "no_such_page"), "\\U+7BA1\\U+7EBF\\U+00D8\\U+D83D\\U+DE00");
  EXPECT_EQ(added("AC1027", "ANSI_1252"), "管线Ø😀");
}

TEST(Encoding, OfControlCharactersIsTheCaretForm) {
  const Opened opened = Open(drawing("AC1027", "", "a^Ib^ c^Jd"));
  EXPECT_EQ(textOf(opened).textString(), L"a\tb^c\nd");
  setText(opened, L"1\r\n2^3\t");
  EXPECT_THAT(opened.saved(), HasSubstr("\n1^M^J2^ 3^I\n"));
  EXPECT_EQ(textOf(Open(opened.saved())).textString(), L"1\r\n2^3\t");
}

TEST(LineEnd, OfTheFileIsKeptAndUsedForWhatIsAdded) {
  for (const char* lineEnd : {"\n", "\r\n"}) {
    const std::string file = drawing("AC1009", "ANSI_936", kGbk, lineEnd);
    const Opened opened = Open(file);
    EXPECT_EQ(opened.repairs(), "");
    EXPECT_EQ(opened.saved(), file);
    setText(opened, L"abc");
    EXPECT_THAT(opened.saved(), HasSubstr("1" + std::string(lineEnd) + "abc" + lineEnd));
  }
}

TEST(LineEnd, MixedInOneFileBecomesThatOfTheFirstLine) {
  const std::string lf = drawing("AC1009", "", "abc");
  const std::string crlf = drawing("AC1009", "", "abc", "\r\n");
  std::string file = crlf;
  file.erase(file.rfind('\r'), 1);
  EXPECT_EQ(Open(file).saved(), crlf);
  EXPECT_THAT(Open(file).repairs(), HasSubstr("文件混用两种行尾，将统一为回车换行"));
  file = lf;
  file.insert(file.size() - 1, "\r");
  EXPECT_EQ(Open(file).saved(), lf);
  EXPECT_THAT(Open(file).repairs(), HasSubstr("文件混用两种行尾，将统一为换行"));
}

// What is left of them would read as part of the line end when the file is opened again.
TEST(LineEnd, OfSeveralReturnsIsOne) {
  const std::string crlf = drawing("AC1009", "", "abc", "\r\n");
  std::string file = crlf;
  file.insert(file.rfind('\r'), "\r");
  EXPECT_EQ(Open(file).saved(), crlf);
  EXPECT_THAT(Open(file).repairs(), HasSubstr("文件混用两种行尾，将统一为回车换行"));
  const std::string lf = drawing("AC1009", "", "abc");
  EXPECT_EQ(Open(lf.substr(0, lf.size() - 1) + "\r").saved(), lf.substr(0, lf.size() - 1));
}

// Far behind the beginning too.
TEST(LineEnd, MixedLateInALongFileIsSeen) {
  std::string file = Tags("0 SECTION\n2 ENTITIES");
  for (int i = 0; i < 5000; ++i) file += Tags("0 POINT\n8 0\n10 1.0\n20 2.0");
  file += Tags("0 ENDSEC\n0 EOF", "\r\n");
  const Opened opened = Open(file);
  ASSERT_TRUE(opened.ok()) << opened.error();
  EXPECT_EQ(opened.saved().find('\r'), std::string::npos);
}

TEST(LineEnd, MissingOnTheLastLineStaysSo) {
  std::string file = drawing("AC1009", "", "abc");
  file.pop_back();
  EXPECT_EQ(Open(file).saved(), file);
  // Unless something follows now.
  const std::string cut = file.substr(0, file.find("\n0\nEOF"));
  EXPECT_EQ(Open(cut).saved(), cut + "\n  0\nEOF\n");
}

TEST(LineEnd, AByteOrderMarkGoes) {
  const std::string file = drawing("AC1027", "", kUtf8);
  const Opened opened = Open("\xEF\xBB\xBF" + file);
  EXPECT_THAT(opened.repairs(), HasSubstr("文件开头的 UTF-8 字节顺序标记已去掉"));
  EXPECT_EQ(textOf(opened).textString(), L"管线");
  EXPECT_TRUE(opened.saved().starts_with(file.substr(0, 40)));
}

} // namespace
