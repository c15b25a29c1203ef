// Binary drawings: every kind of value, both widths of group codes, and ends that come too early.
#include "host/dxf/BinaryDxf.h"
#include "host/db/AcDbEntity.h"
#include "tests/host/dxf/DrawingFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>
#include <limits>

namespace {

const std::string kSentinel("AutoCAD Binary DXF\r\n\x1a\0", 22);

// Tags as the binary form holds them.
class BinaryWriter {
 public:
  explicit BinaryWriter(bool wideCodes) : m_wide(wideCodes) {}
  BinaryWriter& text(int code, const std::string& value) { return put(code, value + '\0'); }
  template <typename T> BinaryWriter& number(int code, T value) {
    std::string bytes(sizeof value, '\0');
    std::memcpy(bytes.data(), &value, sizeof value);
    return put(code, bytes);
  }
  BinaryWriter& chunk(int code, const std::string& bytes) {
    return put(code, static_cast<char>(bytes.size()) + bytes);
  }
  std::string bytes() const { return kSentinel + m_bytes; }

 private:
  BinaryWriter& put(int code, const std::string& value) {
    const auto wide = static_cast<std::int16_t>(code);
    const char both[] = {static_cast<char>(wide & 0xFF), static_cast<char>(wide >> 8 & 0xFF)};
    if (m_wide)
      m_bytes.append(both, 2);
    else if (code < 255)
      m_bytes += static_cast<char>(code);
    else
      m_bytes.append("\xFF").append(both, 2);
    m_bytes += value;
    return *this;
  }
  std::string m_bytes;
  bool m_wide;
};

std::string everyKind(bool wideCodes) {
  BinaryWriter writer(wideCodes);
  writer.text(0, "SECTION").text(2, "ENTITIES").text(0, "THING").text(5, "2F").text(8, "0");
  writer.number<double>(10, 1.5).number<double>(20, -0.1).number<double>(1040, 1e22).number<double>(140, 0.0);
  writer.number<std::int16_t>(70, -7).number<std::int32_t>(90, -100000).number<std::int16_t>(270, 3);
  writer.number<std::int32_t>(420, 0xFF00FF).number<std::int32_t>(1071, -2).number<std::int16_t>(1070, 32767);
  writer.number<std::int64_t>(160, -5000000000).number<std::uint8_t>(290, 1).number<double>(465, 2.5);
  writer.chunk(310, std::string("\x00\xAB\xFF", 3)).chunk(1004, "").text(1000, "two\nlines").text(330, "1F");
  return writer.text(0, "ENDSEC").text(0, "EOF").bytes();
}

TEST(BinaryDxf, OfEveryKindOfValueIsReadInBothWidthsOfCodes) {
  const std::string expected = Tags("0 SECTION\n2 ENTITIES\n0 THING\n5 2F\n8 0\n10 1.5\n20 -0.1\n1040 "
                                    "1e+22\n140 0.0\n70 -7\n90 -100000\n270 3\n"
                                    "420 16711935\n1071 -2\n1070 32767\n160 -5000000000\n290 1\n465 2.5\n310 "
                                    "00ABFF\n1004 \n1000 two^Jlines\n"
                                    "330 1F\n0 ENDSEC\n0 EOF");
  for (const bool wide : {false, true}) {
    const auto text = dxf::textFromBinary(everyKind(wide));
    EXPECT_EQ(text.text, expected) << wide;
    EXPECT_TRUE(text.error.IsEmpty());
    const Opened opened = Open(everyKind(wide));
    ASSERT_TRUE(opened.ok()) << opened.error();
    EXPECT_EQ(opened.saved(), expected);
  }
}

TEST(BinaryDxf, CutOffAtAnyByteIsRefusedAndCanBeRecovered) {
  for (const bool wide : {false, true}) {
    const std::string whole = everyKind(wide);
    for (std::size_t length = kSentinel.size(); length < whole.size(); ++length) {
      const std::string part = whole.substr(0, length);
      const bool onlyEndMissing = length >= whole.find("ENDSEC") + 7; // the text and its zero
      EXPECT_TRUE(!Open(part).ok() || onlyEndMissing) << length;
      const Opened recovered = Open(part, true);
      if (recovered.ok()) {
        EXPECT_NE(recovered.repairs(), "") << length;
        EXPECT_TRUE(Open(recovered.saved()).ok()) << length;
      }
    }
  }
  EXPECT_EQ(Open(everyKind(true).substr(0, 101)).error(), "图.dxf：二进制文件在第 101 字节处意外结束");
}

TEST(BinaryDxf, NumbersThatAreNoneAreMended) {
  BinaryWriter writer(true);
  writer.text(0, "SECTION").text(2, "ENTITIES").text(0, "POINT").text(8, "0");
  writer.number<double>(10, std::numeric_limits<double>::quiet_NaN());
  writer.number<double>(20, std::numeric_limits<double>::infinity());
  const Opened opened = Open(writer.text(0, "ENDSEC").text(0, "EOF").bytes());
  EXPECT_EQ(opened.repairs(), "10/10 “nan”不是有限的数，已改为 0.0\n12/20 “inf”不是有限的数，已改为 0.0\n");
  EXPECT_THAT(opened.saved(), testing::HasSubstr(" 10\n0.0\n 20\n0.0\n"));
}

TEST(BinaryDxf, TextInACodePageIsRead) {
  BinaryWriter writer(true);
  writer.text(0, "SECTION").text(2, "HEADER").text(9, "$ACADVER").text(1, "AC1015").text(9, "$DWGCODEPAGE");
  writer.text(3, "ANSI_936")
      .text(0, "ENDSEC")
      .text(0, "SECTION")
      .text(2, "ENTITIES")
      .text(0, "TEXT")
      .text(5, "1");
  writer.text(8, "\xB9\xDC").text(0, "ENDSEC").text(0, "EOF");
  const Opened opened = Open(writer.bytes());
  EXPECT_EQ(AcDbEntity::cast(EntityAt(*opened.database, 0).object())->layer(), L"管");
}

} // namespace
