#include "plugin/graph/XdataKey.h"

#include <gtest/gtest.h>

#include "host/db/AcDbSymbolTableRecord.h"
#include "host/db/DrawingForm.h"
#include "host/db/resbuf.h"
#include "plugin/graph/Xdata.h"
#include "tests/support/WorkingDrawing.h"

namespace {

DrawingForm FormOf(const char* version, const char* codePage = "ANSI_936") {
  DrawingForm form;
  form.version = version;
  form.codePage = codePage;
  return form;
}

// The keys that the package itself writes.
const CString kOwnKeys[] = {L"管材",        L"管径",        L"流量",        L"流速",        L"比摩阻",
                            L"沿程阻力",    L"长度",        L"相对标高",    L"始点标高",    L"终点标高",
                            L"编号",        L"编号前缀",    L"图层标识",    L"半径",        L"扣弯",
                            L"ZP_出图比例", L"ZP_绘图比例", L"ZP_中文字高", L"ZP_西文字高", L"ZP_文字样式",
                            L"ZP_字体方式"};

TEST(XdataKey, OfThePackageIsAnApplicationNameInEveryVersionAndCodePage) {
  for (const char* version : {"AC1009", "AC1014", "AC1015", "AC1032"})
    for (const char* codePage : {"ANSI_936", "ANSI_1252", "ANSI_950", "ANSI_932"})
      for (const CString& key : kOwnKeys)
        EXPECT_TRUE(xdata::IsApplicationName(key, FormOf(version, codePage)))
            << key.ToUtf8() << " " << version << " " << codePage;
}

TEST(XdataKey, WithAForbiddenCharacterIsNoApplicationName) {
  for (const CString key :
       {L"", L"a/b", L"a\\b", L"a|b", L"a\nb", L" a", L"a ", L"ACAD", L"Acad_x", L"ZP$1", L"zp$1"})
    EXPECT_FALSE(xdata::IsApplicationName(key, FormOf("AC1032"))) << key.ToUtf8();
  EXPECT_TRUE(xdata::IsApplicationName(L"a b", FormOf("AC1032")));
}

TEST(XdataKey, OfOldDrawingsIsShortAndOfFewCharacters) {
  EXPECT_TRUE(xdata::IsApplicationName(CString(L'x', 31), FormOf("AC1009")));
  EXPECT_FALSE(xdata::IsApplicationName(CString(L'x', 32), FormOf("AC1009")));
  EXPECT_FALSE(xdata::IsApplicationName(CString(L'x', 32), FormOf("AC1014")));
  EXPECT_TRUE(xdata::IsApplicationName(CString(L'x', 255), FormOf("AC1015")));
  EXPECT_FALSE(xdata::IsApplicationName(CString(L'x', 256), FormOf("AC1015")));
  EXPECT_FALSE(xdata::IsApplicationName(L"a b", FormOf("AC1009")));
}

TEST(XdataKey, HasACarrierThatIsAlwaysAName) {
  const CString carrier = xdata::CarrierName(L"a/b");
  EXPECT_EQ(carrier.GetLength(), 19);
  EXPECT_TRUE(AcDbSymbolTableRecord::isValidSymbolName(carrier));
  EXPECT_NE(carrier, xdata::CarrierName(L"a/c"));
  EXPECT_EQ(carrier, xdata::CarrierName(L"a/b"));
}

class CarriedKey : public testing::Test {
 protected:
  CString Get(const wchar_t* key) {
    CString value = L"(none)";
    ZP::GetXdata(line, key, value);
    return value;
  }
  bool HasApplication(const CString& name) {
    const AcDbObjectPointer<AcDbObject> object(line, AcDb::kForRead);
    return ResbufPtr(object->xData(name)) != nullptr;
  }
  WorkingDrawing drawing;
  AcDbObjectId line = drawing.AppendLine();
};

TEST_F(CarriedKey, GivesBackItsValue) {
  const CString keys[] = {L"风机盘管/型号", L"ACAD", L"ZP$ABC", L" 两端空格 ", L"a\nb", CString(L'长', 300)};
  for (const CString& key : keys) {
    EXPECT_NE(ZP::SetXdata(line, key, L"值：" + key), 0) << key.ToUtf8();
    EXPECT_FALSE(HasApplication(key)) << key.ToUtf8();
  }
  for (const CString& key : keys) EXPECT_EQ(Get(key), L"值：" + key);
}

TEST_F(CarriedKey, StandsInTheDataAsItIs) {
  ZP::SetXdata(line, L"a/b", L"c");
  const AcDbObjectPointer<AcDbObject> object(line, AcDb::kForRead);
  const ResbufPtr chain(object->xData(xdata::CarrierName(L"a/b")));
  CString all;
  for (const resbuf* rb = chain->rbnext; rb; rb = rb->rbnext)
    all.AppendFormat(L"%d=%s|", rb->restype, rb->resval.rstring);
  EXPECT_EQ(all, L"1002={|1000=a/b|1002=}|1000=c|");
}

TEST_F(CarriedKey, IsToldFromAnotherOfTheSameCarrier) {
  const CString carrier = xdata::CarrierName(L"a/b");
  drawing.Database().registerApplication(carrier);
  {
    const AcDbObjectPointer<AcDbObject> object(line, AcDb::kForWrite);
    ResbufBuilder data;
    data.text(1001, carrier).text(1002, L"{").text(1000, L"other").text(1002, L"}").text(1000, L"value");
    ASSERT_EQ(object->setXData(data.chain()), Acad::eOk);
  }
  EXPECT_EQ(Get(L"a/b"), L"(none)");
  EXPECT_EQ(ZP::SetXdata(line, L"a/b", L"mine"), 0) << "the other key's value must stay";
}

TEST_F(CarriedKey, DamagedIsAMiss) {
  const CString carrier = xdata::CarrierName(L"a/b");
  drawing.Database().registerApplication(carrier);
  const auto store = [&](ResbufBuilder& data) {
    const AcDbObjectPointer<AcDbObject> object(line, AcDb::kForWrite);
    ASSERT_EQ(object->setXData(data.chain()), Acad::eOk);
  };
  store(ResbufBuilder().text(1001, carrier).text(1000, L"a/b"));
  EXPECT_EQ(Get(L"a/b"), L"(none)");
  store(ResbufBuilder().text(1001, carrier).text(1002, L"{").text(1000, L"a/b"));
  EXPECT_EQ(Get(L"a/b"), L"(none)");
}

TEST_F(CarriedKey, MovesToItsOwnNameWhenTheDrawingComesToAllowIt) {
  const CString key = L"一个对旧版本图形来说过长的名称";
  drawing.Database().form().version = "AC1009";
  ASSERT_NE(ZP::SetXdata(line, key, L"old"), 0);
  EXPECT_FALSE(HasApplication(key));
  drawing.Database().form().version = "AC1027";
  EXPECT_EQ(Get(key), L"old");
  ASSERT_NE(ZP::SetXdata(line, key, L"new"), 0);
  EXPECT_TRUE(HasApplication(key));
  EXPECT_FALSE(HasApplication(xdata::CarrierName(key)));
  drawing.Database().form().version = "AC1009";
  EXPECT_EQ(Get(key), L"new");
  ASSERT_NE(ZP::SetXdata(line, key, L"again"), 0);
  EXPECT_FALSE(HasApplication(key));
  EXPECT_EQ(Get(key), L"again");
}

} // namespace
