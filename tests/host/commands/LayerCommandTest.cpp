#include "host/commands/LayerText.h"
#include "tests/host/commands/CommandFixture.h"

namespace {
using LayerCommand = CommandFixture;
}

TEST_F(LayerCommand, MakesLayersAndSetsTheirLook) {
  run(L"LAYER", {L"N", L"供水,回水", L"C", L"红", L"供水", L"LW", L"0.5", L"供水,回水", L"M", L"立管", L""});
  EXPECT_FALSE(refused()) << reason().ToUtf8();
  EXPECT_EQ(1, layer(L"供水")->color().colorIndex());
  EXPECT_EQ(AcDb::kLnWt050, layer(L"回水")->lineWeight());
  EXPECT_EQ(layer(L"立管")->objectId(), database().clayer());
  run(L"U");
  EXPECT_EQ(nullptr, layer(L"供水")) << "one command, one step";
}

TEST_F(LayerCommand, ChangesStatesByPattern) {
  for (const wchar_t* name : {L"采暖-供", L"采暖-回", L"墙"}) addLayer(name);
  run(L"LAYER", {L"OFF", L"采暖*", L"F", L"墙", L"LO", L"采暖-供,墙", L""});
  EXPECT_TRUE(layer(L"采暖-供")->isOff());
  EXPECT_TRUE(layer(L"采暖-回")->isOff());
  EXPECT_FALSE(layer(L"墙")->isOff());
  EXPECT_TRUE(layer(L"墙")->isFrozen());
  EXPECT_TRUE(layer(L"墙")->isLocked());
  run(L"LAYER", {L"ON", L"*", L"T", L"*", L"U", L"*", L""});
  EXPECT_FALSE(layer(L"采暖-供")->isOff());
  EXPECT_FALSE(layer(L"墙")->isFrozen());
  EXPECT_FALSE(layer(L"墙")->isLocked());
}

TEST_F(LayerCommand, TheCurrentLayerIsNotFrozen) {
  run(L"LAYER", {L"F", L"0", L""});
  EXPECT_FALSE(layer(L"0")->isFrozen());
  EXPECT_TRUE(frontEnd.said(L"是当前图层，不能冻结"));
}

TEST_F(LayerCommand, AFrozenLayerDoesNotBecomeCurrent) {
  addLayer(L"冻");
  run(L"LAYER", {L"F", L"冻", L"S", L"冻", L""});
  EXPECT_GE(reason().Find(L"已冻结"), 0);
  run(L"CLAYER", {L"没有"});
  EXPECT_GE(reason().Find(L"没有图层"), 0);
}

TEST_F(LayerCommand, SaysWhatIsWrong) {
  run(L"LAYER", {L"XYZ", L"C", L"粉", L"C", L"256", L"LW", L"0.07", L"N", L"a/b", L"ON", L"没有这样的", L"L",
                 L"没有的线型", L""});
  ASSERT_EQ(7u, frontEnd.refusals.size());
  EXPECT_GE(frontEnd.refusals[0].reason.Find(L"没有选项“XYZ”"), 0);
  EXPECT_GE(frontEnd.refusals[1].reason.Find(L"“粉”不是颜色"), 0);
  EXPECT_GE(frontEnd.refusals[3].reason.Find(L"不是线宽"), 0);
  EXPECT_GE(frontEnd.refusals[4].reason.Find(L"不能作图层名"), 0);
  EXPECT_GE(frontEnd.refusals[5].reason.Find(L"没有图层符合"), 0);
  EXPECT_GE(frontEnd.refusals[6].reason.Find(L"没有线型"), 0);
}

TEST_F(LayerCommand, ListsNamesStatesAndLooks) {
  addLayer(L"采暖");
  run(L"LAYER", {L"?", L"", L""});
  EXPECT_TRUE(frontEnd.said(L"采暖：开 解冻 解锁，颜色 7(白)，线型 Continuous，线宽 默认"));
  EXPECT_TRUE(frontEnd.said(L"共 2 个图层"));
}

TEST(LayerText, ReadsWhatItWrites) {
  for (int index = 1; index <= 255; ++index) {
    const CString text = commands::ColorText(index);
    EXPECT_EQ(index, *commands::ParseColor(text.SpanExcluding(L"(")));
  }
  for (int code = 0; code <= 211; ++code) {
    if (!AcDb::isValidLineWeight(code)) continue;
    const CString text = commands::WeightText(static_cast<AcDb::LineWeight>(code));
    EXPECT_EQ(code, *commands::ParseWeight(text.SpanExcluding(L" ")));
  }
  EXPECT_EQ(AcDb::kLnWtByLwDefault, *commands::ParseWeight(L"Default"));
  for (const wchar_t* text : {L"", L"-1", L"0.07", L"1e9", L"红"}) EXPECT_FALSE(commands::ParseWeight(text));
  for (const wchar_t* text : {L"", L"0", L"256", L"1.5", L"粉"}) EXPECT_FALSE(commands::ParseColor(text));
}
