#include "plugin/graph/Xdata.h"
#include "tests/plugin/layers/DrawingFixture.h"

namespace {

using Record = AcDbLayerTableRecord;

constexpr const wchar_t* kLinetypes = L"; test patterns\n*DASHED,__ __ __\nA,12.7,-6.35\n";

class LayerBridge : public DrawingFixture {
 protected:
  LayerBridge() {
    install.Write("Support/acad.lin", CString(kLinetypes).ToUtf8());
    AcDbDatabase::setSupportFolders({CString::FromUtf8((install.Root() / "Support").string())});
    supply = Define(L"供水干管", L"暖通-供水-干管");
    supply->SetColorIndex(3);
    supply->SetLineType(L"Continuous");
    supply->SetLineWeight(0.5);
  }
  ~LayerBridge() override { AcDbDatabase::setSupportFolders({}); }

  CString LinetypeOf(const wchar_t* layer) {
    const auto* linetype = AcDbLinetypeTableRecord::cast(Layer(layer).linetypeObjectId().object());
    return linetype ? linetype->name() : CString(L"(none)");
  }
  std::size_t LayerCount() {
    const AcDbObjectPointer<AcDbLayerTable> table(Database().layerTableId(), AcDb::kForRead);
    return table->records().size();
  }
  CZPLayer* supply;
};

TEST_F(LayerBridge, ReturnsAnUnknownIdentifierAndMakesNoLayer) {
  const std::size_t before = LayerCount();
  EXPECT_EQ(ZP::GetUserLayer(L"无此标识"), L"无此标识");
  EXPECT_EQ(ZP::GetUserLayer(L""), L"");
  EXPECT_EQ(LayerCount(), before);
}

TEST_F(LayerBridge, MakesTheLayerOfADefinition) {
  EXPECT_EQ(ZP::GetUserLayer(L"供水干管"), L"暖通-供水-干管");
  ASSERT_TRUE(HasLayer(L"暖通-供水-干管"));
  const Record& layer = Layer(L"暖通-供水-干管");
  EXPECT_EQ(layer.color().colorIndex(), 3);
  EXPECT_EQ(layer.lineWeight(), AcDb::kLnWt050);
  EXPECT_EQ(LinetypeOf(L"暖通-供水-干管"), L"Continuous");
  CString korLayer;
  EXPECT_TRUE(ZP::GetKOrLayer(L"暖通-供水-干管", korLayer));
  EXPECT_EQ(korLayer, L"供水干管");
}

TEST_F(LayerBridge, StampsALayerAgainThatTheUserChanged) {
  ZP::GetUserLayer(L"供水干管");
  const std::size_t count = LayerCount();
  {
    const AcDbObjectPointer<Record> layer(WorkingDrawing::LayerOf(Database(), L"暖通-供水-干管"),
                                          AcDb::kForWrite);
    layer->setColor(AcCmColor(1));
    layer->setLineWeight(AcDb::kLnWt100);
    layer->setIsOff(true);
  }
  EXPECT_EQ(ZP::GetUserLayer(L"供水干管"), L"暖通-供水-干管");
  EXPECT_EQ(LayerCount(), count);
  EXPECT_EQ(Layer(L"暖通-供水-干管").color().colorIndex(), 3);
  EXPECT_EQ(Layer(L"暖通-供水-干管").lineWeight(), AcDb::kLnWt050);
  EXPECT_TRUE(Layer(L"暖通-供水-干管").isOff()) << "the state is no part of a definition";
}

TEST_F(LayerBridge, StampsALayerThatStoodThereBefore) {
  supply->SetUserLayer(L"甲");
  EXPECT_EQ(ZP::GetUserLayer(L"供水干管"), L"甲");
  EXPECT_EQ(Layer(L"甲").color().colorIndex(), 3);
}

TEST_F(LayerBridge, LoadsALinetypeThatTheDrawingLacks) {
  supply->SetLineType(L"DASHED");
  ZP::GetUserLayer(L"供水干管");
  EXPECT_EQ(LinetypeOf(L"暖通-供水-干管"), L"DASHED");
}

TEST_F(LayerBridge, StampsTheRestWhenNobodyHasTheLinetype) {
  supply->SetLineType(L"NOWHERE");
  ZP::GetUserLayer(L"供水干管");
  EXPECT_EQ(Layer(L"暖通-供水-干管").color().colorIndex(), 3);
  EXPECT_EQ(Layer(L"暖通-供水-干管").lineWeight(), AcDb::kLnWt050);
  CString korLayer;
  EXPECT_TRUE(ZP::GetKOrLayer(L"暖通-供水-干管", korLayer));
}

TEST_F(LayerBridge, StampsTheRestWithoutALinetypeFile) {
  AcDbDatabase::setSupportFolders({});
  supply->SetLineType(L"DASHED");
  ZP::GetUserLayer(L"供水干管");
  EXPECT_EQ(Layer(L"暖通-供水-干管").color().colorIndex(), 3);
}

struct Weight {
  double millimetres;
  int code;
};

TEST_F(LayerBridge, CutsTheLineWeightToHundredths) {
  for (const Weight& weight : {Weight{-0.03, -3}, Weight{-0.02, -2}, Weight{-0.01, -1}, Weight{0.13, 13},
                               Weight{0.18, 18}, Weight{0.35, 35}, Weight{0.7, 70}, Weight{2.119, 211}}) {
    supply->SetLineWeight(weight.millimetres);
    ZP::GetUserLayer(L"供水干管");
    EXPECT_EQ(Layer(L"暖通-供水-干管").lineWeight(), weight.code) << weight.millimetres;
  }
}

TEST_F(LayerBridge, HasTheHostRefuseAWeightThatTheCutMakesUnusable) {
  ZP::GetUserLayer(L"供水干管");
  for (const double millimetres : {0.29, 1e300, -1e300, 99.0}) { // 0.29 is cut to 28
    supply->SetLineWeight(millimetres);
    EXPECT_EQ(ZP::GetUserLayer(L"供水干管"), L"暖通-供水-干管");
    EXPECT_EQ(Layer(L"暖通-供水-干管").lineWeight(), AcDb::kLnWt050) << millimetres;
  }
}

TEST_F(LayerBridge, LeavesAColourByLayerToTheHost) {
  supply->SetColorIndex(256);
  ZP::GetUserLayer(L"供水干管");
  EXPECT_EQ(Layer(L"暖通-供水-干管").color().colorIndex(), 7);
  supply->SetColorIndex(-5);
  ZP::GetUserLayer(L"供水干管");
  EXPECT_EQ(Layer(L"暖通-供水-干管").color().colorIndex(), 7);
}

TEST_F(LayerBridge, MakesNoLayerForANameThatNoneCanHave) {
  const std::size_t before = LayerCount();
  for (const wchar_t* name : {L"", L"a/b", L"a\nb", L" ", L"甲*"}) {
    supply->SetUserLayer(name);
    EXPECT_EQ(ZP::GetUserLayer(L"供水干管"), name);
    EXPECT_EQ(LayerCount(), before);
  }
}

TEST_F(LayerBridge, FindsTheLayerWithoutCaseAndGivesItTheDefinitionsSpelling) {
  WorkingDrawing::AddLayerTo(Database(), L"m-pipe");
  supply->SetUserLayer(L"M-Pipe");
  const std::size_t before = LayerCount();
  EXPECT_EQ(ZP::GetUserLayer(L"供水干管"), L"M-Pipe");
  EXPECT_EQ(LayerCount(), before);
  EXPECT_EQ(Layer(L"m-pipe").name(), L"M-Pipe");
}

TEST_F(LayerBridge, ReturnsTheNameWhileTheTableCannotBeOpened) {
  const AcDbObjectPointer<AcDbLayerTable> held(Database().layerTableId(), AcDb::kForRead);
  EXPECT_EQ(ZP::GetUserLayer(L"供水干管"), L"暖通-供水-干管");
  EXPECT_FALSE(HasLayer(L"暖通-供水-干管"));
}

TEST_F(LayerBridge, ReturnsTheNameWhileTheRecordCannotBeOpened) {
  ZP::GetUserLayer(L"供水干管");
  supply->SetColorIndex(5);
  const AcDbObjectPointer<Record> held(WorkingDrawing::LayerOf(Database(), L"暖通-供水-干管"),
                                       AcDb::kForRead);
  EXPECT_EQ(ZP::GetUserLayer(L"供水干管"), L"暖通-供水-干管");
  EXPECT_EQ(Layer(L"暖通-供水-干管").color().colorIndex(), 3);
}

TEST_F(LayerBridge, ReturnsTheNameWithoutADrawing) {
  acDocManagerPtr()->closeAll();
  EXPECT_EQ(ZP::GetUserLayer(L"供水干管"), L"暖通-供水-干管");
  acDocManagerPtr()->newDocument();
}

TEST_F(LayerBridge, WorksInTheWorkingDatabaseAndIsUndoneWithTheCommand) {
  Register(L"MAKE", [] { ZP::GetUserLayer(L"供水干管"); });
  editor.Run(L"MAKE");
  EXPECT_TRUE(HasLayer(L"暖通-供水-干管"));
  EXPECT_EQ(Database().undo().undo(), Acad::eOk);
  EXPECT_FALSE(HasLayer(L"暖通-供水-干管"));
  EXPECT_EQ(Database().undo().redo(), Acad::eOk);
  EXPECT_EQ(Layer(L"暖通-供水-干管").color().colorIndex(), 3);
}

TEST_F(LayerBridge, ClosesAllThatItOpens) {
  supply->SetLineType(L"DASHED");
  ZP::GetUserLayer(L"供水干管");
  supply->SetUserLayer(L"a/b");
  ZP::GetUserLayer(L"供水干管");
  for (const AcDbObjectId& table :
       {Database().layerTableId(), Database().linetypeTableId(), Database().regAppTableId(),
        WorkingDrawing::LayerOf(Database(), L"暖通-供水-干管")})
    EXPECT_EQ(AcDbObjectPointer<AcDbObject>(table, AcDb::kForWrite).openStatus(), Acad::eOk);
}

TEST_F(LayerBridge, StampsARecordThatIsOpenForRead) {
  const AcDbObjectPointer<Record> record(WorkingDrawing::LayerOf(Database(), L"甲"), AcDb::kForRead);
  EXPECT_TRUE(ZP::SetUserLayerTableRecord(record.object(), L"供水干管"));
  EXPECT_EQ(record->name(), L"暖通-供水-干管");
  EXPECT_TRUE(record->isWriteEnabled()) << "the record stays open, and the caller closes it";
}

TEST_F(LayerBridge, LeavesTheRecordAloneForNullAndForAnUnknownIdentifier) {
  EXPECT_FALSE(ZP::SetUserLayerTableRecord(nullptr, L"供水干管"));
  const AcDbObjectPointer<Record> record(WorkingDrawing::LayerOf(Database(), L"甲"), AcDb::kForWrite);
  EXPECT_FALSE(ZP::SetUserLayerTableRecord(record.object(), L"无此标识"));
  EXPECT_EQ(record->name(), L"甲");
  CString korLayer;
  EXPECT_EQ(ZP::GetXdata(record.object(), L"图层标识", korLayer), 0);
}

TEST_F(LayerBridge, KeepsTheNameOfARecordWhenAnotherHasTheOneOfTheDefinition) {
  supply->SetUserLayer(L"乙");
  const AcDbObjectPointer<Record> record(WorkingDrawing::LayerOf(Database(), L"甲"), AcDb::kForWrite);
  EXPECT_TRUE(ZP::SetUserLayerTableRecord(record.object(), L"供水干管"));
  EXPECT_EQ(record->name(), L"甲");
  EXPECT_EQ(record->color().colorIndex(), 3);
}

TEST_F(LayerBridge, NeverRenamesLayerZero) {
  const AcDbObjectPointer<Record> record(WorkingDrawing::LayerOf(Database(), L"0"), AcDb::kForWrite);
  EXPECT_TRUE(ZP::SetUserLayerTableRecord(record.object(), L"供水干管"));
  EXPECT_EQ(record->name(), L"0");
  EXPECT_EQ(record->color().colorIndex(), 3);
}

TEST_F(LayerBridge, GivesTheNameOfTheSchemeWithoutTouchingTheDrawing) {
  EXPECT_EQ(ZP::GetMngUserLayer(L"供水干管"), L"暖通-供水-干管");
  EXPECT_EQ(ZP::GetMngUserLayer(L"无此标识"), L"");
  EXPECT_FALSE(HasLayer(L"暖通-供水-干管"));
}

TEST_F(LayerBridge, ReadsTheIdentifierFromTheDrawingAndNotFromTheScheme) {
  ZP::GetUserLayer(L"供水干管");
  {
    const AcDbObjectPointer<Record> layer(WorkingDrawing::LayerOf(Database(), L"暖通-供水-干管"),
                                          AcDb::kForWrite);
    layer->setName(L"手改的名称");
  }
  CString korLayer = L"preset";
  EXPECT_FALSE(ZP::GetKOrLayer(L"暖通-供水-干管", korLayer));
  EXPECT_EQ(korLayer, L"preset");
  EXPECT_TRUE(ZP::GetKOrLayer(L"手改的名称", korLayer));
  EXPECT_EQ(korLayer, L"供水干管");
  EXPECT_FALSE(scheme.GetKorLayer(L"手改的名称", korLayer));
  scheme.RemoveAll();
  EXPECT_TRUE(ZP::GetKOrLayer(L"手改的名称", korLayer));
}

TEST_F(LayerBridge, HasNoIdentifierForAnUnmarkedLayer) {
  CString korLayer = L"preset";
  EXPECT_FALSE(ZP::GetKOrLayer(L"甲", korLayer));
  EXPECT_FALSE(ZP::GetKOrLayer(L"无此图层", korLayer));
  EXPECT_FALSE(ZP::GetKOrLayer(L"", korLayer));
  EXPECT_EQ(korLayer, L"preset");
}

TEST_F(LayerBridge, CallsTwoMarkedLayersTheSameWhateverTheirIdentifiers) {
  Define(L"回水干管", L"暖通-回水-干管");
  ZP::GetUserLayer(L"供水干管");
  ZP::GetUserLayer(L"回水干管");
  EXPECT_TRUE(ZP::IsSameKOrLayer(L"暖通-供水-干管", L"暖通-回水-干管"));
  EXPECT_TRUE(ZP::IsSameKOrLayer(L"暖通-供水-干管", L"暖通-供水-干管"));
  EXPECT_FALSE(ZP::IsSameKOrLayer(L"暖通-供水-干管", L"甲"));
  EXPECT_FALSE(ZP::IsSameKOrLayer(L"甲", L"暖通-供水-干管"));
}

} // namespace
