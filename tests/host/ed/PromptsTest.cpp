#include "host/ed/ArxDbgUiPrEntity.h"
#include "host/ed/ArxDbgUiPrPoint.h"
#include "host/ed/acedPrompts.h"
#include "tests/support/EditorFixture.h"

namespace {
using Prompts = EditorFixture;
}

TEST_F(Prompts, APointIsAskedForUntilOneComes) {
  frontEnd.type({L"abc", L"1,2"});
  ads_point point = {};
  EXPECT_EQ(RTNORM, acedGetPoint(nullptr, L"\n点:", point));
  EXPECT_EQ(2.0, point[1]);
  ASSERT_EQ(1u, frontEnd.refusals.size());
  EXPECT_GE(frontEnd.refusals[0].expected.Find(L"x,y"), 0);
  EXPECT_EQ(AcGePoint3d(1, 2, 0), document->edit().lastPoint);
}

TEST_F(Prompts, RelativePointsCountFromTheBaseOrTheLastPoint) {
  document->edit().lastPoint = AcGePoint3d(10, 0, 0);
  frontEnd.type({L"@1,0", L"@1,0"});
  ads_point point = {};
  acedGetPoint(nullptr, nullptr, point);
  EXPECT_EQ(11.0, point[0]);
  const ads_point base = {100, 0, 0};
  acedGetPoint(base, nullptr, point);
  EXPECT_EQ(101.0, point[0]);
}

TEST_F(Prompts, EnterEscapeAndKeywordsHaveTheirOwnResults) {
  ads_point point = {};
  frontEnd.type({L"", L"*cancel*", L"r"});
  EXPECT_EQ(RTNONE, acedGetPoint(nullptr, L"点:", point));
  EXPECT_EQ(RTCAN, acedGetPoint(nullptr, L"点:", point));
  acedInitGet(0, L"R r");
  EXPECT_EQ(RTKWORD, acedGetPoint(nullptr, L"点:", point));
  wchar_t word[8];
  EXPECT_EQ(RTNORM, acedGetInput(word, 8));
  EXPECT_EQ(L"R", CString(word));
  EXPECT_EQ(RTCAN, acedGetPoint(nullptr, L"点:", point)) << "the end of the input";
}

TEST_F(Prompts, FlagsHoldForTheNextPromptOnly) {
  frontEnd.type({L"", L"0", L"-1", L"5", L""});
  acedInitGet(RSG_NONULL | RSG_NOZERO | RSG_NONEG, nullptr);
  int value = 0;
  EXPECT_EQ(RTNORM, acedGetInt(L"数:", &value));
  EXPECT_EQ(5, value);
  EXPECT_EQ(3u, frontEnd.refusals.size());
  EXPECT_EQ(RTNONE, acedGetInt(L"数:", &value));
}

TEST_F(Prompts, NumbersMustBeWhole) {
  frontEnd.type({L"12x", L"1.5", L"2,5", L"2.5"});
  double value = 0;
  EXPECT_EQ(RTNORM, acedGetReal(L"数:", &value));
  EXPECT_EQ(1.5, value);
  EXPECT_EQ(RTNORM, acedGetReal(L"数:", &value));
  EXPECT_EQ(2.5, value);
  EXPECT_EQ(2u, frontEnd.refusals.size());
}

TEST_F(Prompts, ADistanceIsANumberOrTwoPoints) {
  frontEnd.type({L"7", L"0,0", L"3,4", L"6,8"});
  double value = 0;
  EXPECT_EQ(RTNORM, acedGetDist(nullptr, L"距离:", &value));
  EXPECT_EQ(7.0, value);
  EXPECT_EQ(RTNORM, acedGetDist(nullptr, L"距离:", &value));
  EXPECT_EQ(5.0, value);
  const ads_point base = {0, 0, 0};
  EXPECT_EQ(RTNORM, acedGetDist(base, L"距离:", &value));
  EXPECT_EQ(10.0, value);
}

TEST_F(Prompts, TextKeepsItsBlanksWhereTheyCount) {
  frontEnd.type({L" a b ", L" a ", L"", L"abcdef"});
  CString text;
  EXPECT_EQ(RTNORM, acedGetString(1, L"文:", text));
  EXPECT_EQ(L" a b ", text);
  EXPECT_EQ(RTNORM, acedGetString(0, L"文:", text));
  EXPECT_EQ(L"a", text);
  EXPECT_EQ(RTNORM, acedGetString(0, L"文:", text));
  EXPECT_EQ(L"", text);
  wchar_t small[4];
  EXPECT_EQ(RTERROR, acedGetString(0, L"文:", small, 4));
  EXPECT_EQ(L"abc", CString(small));
}

TEST_F(Prompts, AKeywordPromptTakesKeywordsAlone) {
  frontEnd.type({L"z", L"y"});
  acedInitGet(0, L"Yes No");
  CString word;
  EXPECT_EQ(RTNORM, acedGetKword(L"是否:", word));
  EXPECT_EQ(L"Yes", word);
  EXPECT_EQ(1u, frontEnd.refusals.size());
}

TEST_F(Prompts, AnEntityIsPickedByPointOrHandle) {
  const auto id = addLine({0, 0, 0}, {100, 0, 0});
  const CString handle = L"#" + id.handle().ascii();
  frontEnd.type({L"50,0.1", L"50,60", L"#FFFF", handle});
  ads_name name;
  ads_point point;
  EXPECT_EQ(RTNORM, acedEntSel(nullptr, name, point));
  AcDbObjectId picked;
  EXPECT_EQ(Acad::eOk, acdbGetObjectId(picked, name));
  EXPECT_EQ(id, picked);
  EXPECT_EQ(0.1, point[1]);
  EXPECT_EQ(RTNORM, acedEntSel(nullptr, name, point));
  EXPECT_EQ(2u, frontEnd.refusals.size()) << "nothing at the point, no such handle";
}

TEST_F(Prompts, PromptObjectsGiveStatusAndAnswer) {
  const auto id = addLine({0, 0, 0}, {100, 0, 0});
  frontEnd.type({L"10,0", L"r", L"1,1", L""});
  ArxDbgUiPrEntity entity(L"请选择实体");
  EXPECT_EQ(ArxDbgUiPrBase::kOk, entity.go());
  EXPECT_EQ(id, entity.objectId());
  ArxDbgUiPrPoint point(L"\n起点或 [参考点(R)]<退出>", L"R r");
  EXPECT_EQ(ArxDbgUiPrBase::kKeyWord, point.go());
  EXPECT_TRUE(point.isKeyWordPicked(L"R"));
  EXPECT_EQ(ArxDbgUiPrBase::kOk, point.go());
  EXPECT_EQ(AcGePoint3d(1, 1, 0), point.value());
  EXPECT_EQ(ArxDbgUiPrBase::kNone, point.go());
  EXPECT_EQ(ArxDbgUiPrBase::kCancel, point.go());
}

TEST_F(Prompts, AnAlertIsAMessageBoxWithOneButton) {
  acedAlert(L"提示");
  ASSERT_EQ(1u, frontEnd.boxes.size());
  EXPECT_EQ(L"提示", frontEnd.boxes[0].text);
  EXPECT_EQ(1u, frontEnd.boxes[0].buttons.size());
}
