#include "host/scene/text/LineText.h"
#include "host/scene/text/MTextLayout.h"
#include "host/scene/text/TextMetrics.h"
#include "tests/host/scene/Picture.h"

#include <gtest/gtest.h>

using scene::ParseLineText;
using scene::TextSpan;

namespace {

using Spans = std::vector<TextSpan>;

scene::CharacterForm plain() {
  scene::CharacterForm form;
  form.height = 10;
  return form;
}

std::vector<scene::TextPiece> pieces(const wchar_t* text) {
  return scene::ParseMText(text, plain());
}

// Estimated characters are 7 wide, Chinese ones 10.
scene::MTextLayout layout(const wchar_t* text, double width = 0, int attachment = 1) {
  scene::MTextForm form;
  form.height = 10;
  form.width = width;
  form.attachment = attachment;
  return scene::LayOutMText(pieces(text), form, scene::EstimatedMetrics());
}

// An upright line with its height, the base line at y.
std::string text(const std::string& more) {
  return "0 TEXT|8 0|10 100|20 50|40 10|1 abcd|" + more;
}

} // namespace

TEST(LineText, SignsStandForTheirCodes) {
  EXPECT_EQ((Spans{{L"\u00D8"
                    L"100 45\u00B0 \u00B10.1 50%"}}),
            ParseLineText(L"%%c100 45%%D %%p0.1 50%%%"));
  EXPECT_EQ((Spans{{L"A"}}), ParseLineText(L"%%065"));
}

TEST(LineText, LinesUnderOverAndThroughAreSwitched) {
  EXPECT_EQ((Spans{{L"a"}, {L"b", true}, {L"c", true, true}, {L"d", false, true}, {L"e", false, true, true}}),
            ParseLineText(L"a%%ub%%oc%%ud%%ke"));
}

TEST(LineText, HalfCodesAreText) {
  EXPECT_EQ((Spans{{L"100%"}}), ParseLineText(L"100%"));
  EXPECT_EQ((Spans{{L"a%%"}}), ParseLineText(L"a%%"));
  EXPECT_EQ((Spans{{L"%%x"}}), ParseLineText(L"%%x"));
}

TEST(TextEntity, APlainOneBeginsAtItsInsertionPoint) {
  const Picture p(text("72 0|11 7|21 7"));
  EXPECT_DOUBLE_EQ(100, p.text().origin.x);
  EXPECT_DOUBLE_EQ(50, p.text().origin.y);
  EXPECT_DOUBLE_EQ(10, p.text().along.x);
  EXPECT_DOUBLE_EQ(10, p.text().up.y);
  EXPECT_DOUBLE_EQ(2.8, p.text().advance);
}

TEST(TextEntity, AnAlignedOneStandsByItsSecondPoint) {
  const Picture p(text("72 1|11 200|21 80|73 2"));
  EXPECT_NEAR(200 - 14, p.text().origin.x, 1e-9);
  EXPECT_NEAR(75, p.text().origin.y, 1e-9);
  const Picture q(text("72 2|11 200|21 80|73 3"));
  EXPECT_NEAR(200 - 28, q.text().origin.x, 1e-9);
  EXPECT_NEAR(70, q.text().origin.y, 1e-9);
}

TEST(TextEntity, FitChangesTheWidthAndAlignedTheHeight) {
  const Picture fit(text("72 5|11 156|21 50"));
  EXPECT_NEAR(20, fit.text().along.x, 1e-9);
  EXPECT_NEAR(10, fit.text().up.y, 1e-9);
  const Picture aligned(text("72 3|11 156|21 50"));
  EXPECT_NEAR(20, aligned.text().along.x, 1e-9);
  EXPECT_NEAR(20, aligned.text().up.y, 1e-9);
}

TEST(TextEntity, RotationWidthFactorAndSlantShapeTheLetters) {
  const Picture p(text("50 90|41 0.5|51 45"));
  EXPECT_NEAR(0, p.text().along.x, 1e-9);
  EXPECT_NEAR(5, p.text().along.y, 1e-9);
  EXPECT_NEAR(-10, p.text().up.x, 1e-9);
  EXPECT_NEAR(10, p.text().up.y, 1e-9);
}

TEST(TextEntity, BackwardsAndUpsideDownTurnTheLettersOver) {
  EXPECT_NEAR(-10, Picture(text("71 2")).text().along.x, 1e-9);
  EXPECT_NEAR(-10, Picture(text("71 4")).text().up.y, 1e-9);
}

TEST(TextEntity, TheFontIsThatOfItsStyle) {
  const Picture p(Parts{.entities = text("7 Song"),
                        .styles = "0 STYLE|2 Song|70 0|40 0|41 1|50 0|71 0|42 2.5|3 simsun.ttf|4 "});
  EXPECT_EQ(L"simsun.ttf", p.text().font.file);
  EXPECT_FALSE(p.text().font.isStroked());
  EXPECT_TRUE(Picture(text("7 none")).text().font.isStroked());
}

TEST(TextEntity, InvisibleAttributesAreNotDrawn) {
  const std::string insert = "0 INSERT|8 0|66 1|2 b|10 0|20 0|";
  const std::string attribute = "0 ATTRIB|8 0|10 0|20 0|40 5|1 V|2 T|70 ";
  const std::string block =
      "0 BLOCK|8 0|2 b|70 2|10 0|20 0|3 b|0 ATTDEF|8 0|10 0|20 0|40 5|1 default|3 ?|2 T|70 0|"
      "0 ENDBLK|8 0";
  const auto texts = [&](const char* flags, const char* header) {
    const Picture p(
        {.entities = insert + attribute + flags + "|0 SEQEND|8 0", .blocks = block, .header = header});
    return p.scene.texts.size();
  };
  EXPECT_EQ(1u, texts("0", ""));
  EXPECT_EQ(0u, texts("1", ""));
  EXPECT_EQ(1u, texts("1", "9 $ATTMODE|70 2"));
  EXPECT_EQ(0u, texts("0", "9 $ATTMODE|70 0"));
}

TEST(TextEntity, ADefinitionOutsideOfBlocksShowsItsName) {
  EXPECT_EQ(L"TAG", Picture("0 ATTDEF|8 0|10 0|20 0|40 5|1 default|3 ?|2 TAG|70 0").text().text);
}

TEST(MTextCodes, FormsHoldWithinTheirBraces) {
  const auto found = pieces(L"a{\\H2x;\\C1;b}c");
  ASSERT_EQ(3u, found.size());
  EXPECT_DOUBLE_EQ(10, found[0].form.height);
  EXPECT_DOUBLE_EQ(20, found[1].form.height);
  EXPECT_EQ(1, found[1].form.color);
  EXPECT_DOUBLE_EQ(10, found[2].form.height);
  EXPECT_EQ(-1, found[2].form.color);
}

TEST(MTextCodes, FontsComeAsFamiliesOrFiles) {
  const auto family = pieces(L"\\fSimSun|b1|i0|c134|p2;x").at(0).form.font;
  EXPECT_EQ(L"SimSun", family.family);
  EXPECT_TRUE(family.bold);
  const auto files = pieces(L"\\Fgbenor.shx,gbcbig.shx;x").at(0).form.font;
  EXPECT_EQ(L"gbenor.shx", files.file);
  EXPECT_EQ(L"gbcbig.shx", files.bigFile);
}

TEST(MTextCodes, ATrueColourHasBlueHighest) {
  EXPECT_EQ(scene::Color::fromTrueColor(0xFF0000), pieces(L"\\c255;x").at(0).form.trueColor);
}

TEST(MTextCodes, StacksHaveTwoParts) {
  const auto stack = pieces(L"\\S+0.1^-0.2;").at(0);
  EXPECT_EQ(scene::TextPiece::Kind::stack, stack.kind);
  EXPECT_EQ(L"+0.1", stack.text);
  EXPECT_EQ(L"-0.2", stack.lower);
  EXPECT_EQ(L'^', stack.stackKind);
}

TEST(MTextCodes, EscapedAndUnknownCodesAreText) {
  EXPECT_EQ(L"{a\\b}", pieces(L"\\{a\\\\b\\}").at(0).text);
  EXPECT_EQ(L"\u00B0\u00D8", pieces(L"%%d%%c").at(0).text);
}

TEST(MTextCodes, UnfinishedCodesEndWithTheText) {
  for (const wchar_t* text : {L"\\", L"{{{", L"}}}", L"\\H", L"\\S", L"\\f", L"\\pi", L"%%", L"\\C;"})
    EXPECT_NO_FATAL_FAILURE(pieces(text)) << CString(text).ToUtf8();
}

TEST(MTextLayout, WordsBreakAtTheWidth) {
  const auto found = layout(L"aaa bbb ccc", 60);
  ASSERT_EQ(2u, found.texts.size());
  EXPECT_EQ(L"aaa bbb ", found.texts[0].text);
  EXPECT_EQ(L"ccc", found.texts[1].text);
  EXPECT_DOUBLE_EQ(-10, found.texts[0].y);
  EXPECT_NEAR(-10 - 50.0 / 3, found.texts[1].y, 1e-9);
}

TEST(MTextLayout, ChineseBreaksBetweenCharacters) {
  const auto found = layout(L"采暖供水干管", 35);
  ASSERT_EQ(2u, found.texts.size());
  EXPECT_EQ(L"采暖供", found.texts[0].text);
}

TEST(MTextLayout, AttachmentPutsTheTextAroundItsPoint) {
  const auto centred = layout(L"aaaa\\Paa", 0, 5);
  EXPECT_DOUBLE_EQ(-14, centred.texts[0].x);
  EXPECT_DOUBLE_EQ(-7, centred.texts[1].x);
  EXPECT_NEAR(centred.top, -centred.bottom, 1e-9);
  const auto bottomRight = layout(L"aaaa\\Paa", 0, 9);
  EXPECT_DOUBLE_EQ(-28, bottomRight.texts[0].x);
  EXPECT_DOUBLE_EQ(-14, bottomRight.texts[1].x);
  EXPECT_NEAR(0, bottomRight.texts[1].y, 1e-9);
}

TEST(MTextLayout, AParagraphMayAlignItself) {
  EXPECT_DOUBLE_EQ(72, layout(L"\\pqr;aaaa", 100).texts[0].x);
  EXPECT_DOUBLE_EQ(36, layout(L"\\pqc;aaaa", 100).texts[0].x);
}

TEST(MTextLayout, HangingParagraphsIndentTheirOtherLines) {
  const auto found = layout(L"\\pi-10,l20,t20;1\taaa bbb", 60);
  ASSERT_EQ(3u, found.texts.size());
  EXPECT_DOUBLE_EQ(10, found.texts[0].x);
  EXPECT_DOUBLE_EQ(20, found.texts[1].x);
  EXPECT_DOUBLE_EQ(20, found.texts[2].x);
}

TEST(MTextLayout, ColumnsTakeWhatTheOneBeforeHasNoRoomFor) {
  scene::MTextForm form;
  form.height = 10;
  form.width = 50;
  form.gutter = 5;
  form.columnHeights = {30, 30};
  const auto found = scene::LayOutMText(pieces(L"a\\Pb\\Pc"), form, scene::EstimatedMetrics());
  ASSERT_EQ(3u, found.texts.size());
  EXPECT_DOUBLE_EQ(0, found.texts[1].x);
  EXPECT_DOUBLE_EQ(55, found.texts[2].x);
  EXPECT_DOUBLE_EQ(-10, found.texts[2].y);
}

TEST(MTextEntity, ItsTextMayComeInPieces) {
  const Picture p("0 MTEXT|8 0|10 0|20 0|40 10|41 0|71 1|3 ab|3 cd|1 ef");
  EXPECT_EQ(L"abcdef", p.text().text);
}

TEST(MTextEntity, ADirectionTurnsIt) {
  const Picture p("0 MTEXT|8 0|10 0|20 0|40 10|41 0|71 1|1 ab|11 0|21 1|31 0");
  EXPECT_NEAR(10, p.text().along.y, 1e-9);
  EXPECT_NEAR(10, p.text().origin.x, 1e-9);
}
