#include <gtest/gtest.h>

#include "host/afx/CodePage.h"
#include "host/db/DrawingForm.h"
#include "host/db/DxfText.h"
#include "plugin/graph/EncodedLength.h"
#include "plugin/graph/XdataText.h"

namespace {

CString Joined(const std::vector<CString>& pieces) {
  CString all;
  for (const CString& piece : pieces) all += piece;
  return all;
}

DrawingForm FormOf(const char* version, const char* codePage) {
  DrawingForm form;
  form.version = version;
  form.codePage = codePage;
  form.utf8 = form.version >= "AC1021";
  return form;
}

// The bytes of the text in a file of the drawing's code page, with escapes for what the page lacks.
std::size_t BytesInCodePage(const CString& text, const DrawingForm& form) {
  std::string escaped;
  const std::string bytes =
      afx::CodePage::Find(form.codePage)
          ->Encode(CString::FromUtf8(dxf::encodeText(text)).View(),
                   [](wchar_t c, std::string& out) { out += c < 0x10000 ? "\\U+XXXX" : "\\U+XXXX\\U+XXXX"; });
  return bytes.size();
}

TEST(XdataPieces, OfAShortTextAreOne) {
  const DrawingForm form;
  EXPECT_EQ(xdata::Pieces(L"镀锌钢管", form).size(), 1u);
  EXPECT_EQ(xdata::Pieces(CString(L'x', 255), form).size(), 1u);
  EXPECT_EQ(xdata::Pieces(CString(L'x', 256), form).size(), 2u);
}

TEST(XdataPieces, OfTheEmptyTextAreOneEmptyPiece) {
  const auto pieces = xdata::Pieces(L"", DrawingForm());
  ASSERT_EQ(pieces.size(), 1u);
  EXPECT_TRUE(pieces[0].IsEmpty());
}

TEST(XdataPieces, FitInEveryEncodingAndJoinToTheText) {
  const CString character[] = {L"x", L"é", L"管", L"\U0001F600", L"^", L"\n", L"×"};
  for (const DrawingForm& form : {FormOf("AC1009", "ANSI_936"), FormOf("AC1015", "ANSI_1252"),
                                  FormOf("AC1018", "ANSI_932"), FormOf("AC1027", "ANSI_936")}) {
    for (const CString& c : character) {
      CString text = L"abc";
      for (int i = 0; i < 700; ++i) text += c;
      const auto pieces = xdata::Pieces(text, form);
      EXPECT_EQ(Joined(pieces), text);
      for (const CString& piece : pieces) {
        EXPECT_LE(dxf::encodeText(piece).size(), 255u) << c.ToUtf8();
        EXPECT_LE(BytesInCodePage(piece, form), 255u) << c.ToUtf8() << " in " << form.codePage;
      }
    }
  }
}

TEST(XdataPieces, AreMeasuredAtTheWorstForAnUnknownCodePage) {
  const DrawingForm form = FormOf("AC1009", "no such page");
  EXPECT_EQ(xdata::EncodedLength(L'管', form), 14);
  EXPECT_EQ(xdata::EncodedLength(L'x', form), 1);
}

TEST(XdataPieces, BreakUpWhatReadsLikeAnEscape) {
  for (const CString text : {L"\\U+4E2D", L"a\\U+4E2Db\\M+5D6D0", L"\\u+4e2d\\U+4E2D", L"\\", L"\\U"}) {
    const auto pieces = xdata::Pieces(text, DrawingForm());
    EXPECT_EQ(Joined(pieces), text);
    for (const CString& piece : pieces)
      EXPECT_EQ(dxf::decodeText(dxf::encodeText(piece)), piece) << piece.ToUtf8();
  }
}

} // namespace
