// Putting a pipe on the layer of an identifier, and asking for it.
#include "host/dxf/DrawingFile.h"
#include "plugin/graph/DrawingSettings.h"
#include "plugin/layers/CZPLayer.h"
#include "plugin/layers/LayerService.h"
#include "tests/plugin/pipes/attributes/PipeFixture.h"

namespace {

class PipeLayer : public PipeFixture {
 protected:
  PipeLayer() : supply(Define(L"供水干管", L"暖通-供水-干管")) {
    supply->SetLineType(L"Continuous");
    supply->SetLineTypeScale(2.5);
    supply->SetLineWeight(0.5);
  }
  struct Look {
    CString layer;
    int color;
    CString linetype;
    double scale;
    int weight;
    bool operator==(const Look&) const = default;
  };
  static Look LookOf(const AcDbObjectId& id) {
    const AcDbObjectPointer<AcDbEntity> entity(id, AcDb::kForRead);
    return {entity->layer(), entity->colorIndex(), entity->linetype(), entity->linetypeScale(),
            entity->lineWeight()};
  }
  int WeightFor(double millimetres) {
    supply->SetLineWeight(millimetres);
    EXPECT_TRUE(CZPMainPipe(line).SetLayerId(L"供水干管"));
    return LookOf(line).weight;
  }
  CZPLayer* supply;
};

TEST_F(PipeLayer, IsMadeAndGivesTheEntityAllButItsOwnColourAndLinetype) {
  {
    const AcDbObjectPointer<AcDbEntity> entity(line, AcDb::kForWrite);
    entity->setColorIndex(1);
    entity->setLinetype(L"Continuous");
  }
  CZPMainPipe pipe(line);
  EXPECT_TRUE(pipe.SetLayerId(L"供水干管"));
  const Look look = LookOf(line);
  EXPECT_EQ(look.layer, L"暖通-供水-干管");
  EXPECT_EQ(look.color, AcCmColor::kByLayer);
  EXPECT_EQ(look.linetype.CompareNoCase(L"ByLayer"), 0);
  EXPECT_EQ(look.scale, 2.5);
  EXPECT_EQ(look.weight, AcDb::kLnWt050);
  CString layerId;
  EXPECT_TRUE(pipe.GetLayerId(layerId));
  EXPECT_EQ(layerId, L"供水干管");
}

TEST_F(PipeLayer, ThatTheSchemeDoesNotKnowChangesNothing) {
  drawing.AddLayer(L"无此标识"); // a layer of that name is none of the scheme
  const Look before = LookOf(line);
  EXPECT_FALSE(CZPMainPipe(line).SetLayerId(L"无此标识"));
  EXPECT_FALSE(CZPMainPipe(line).SetLayerId(L""));
  EXPECT_EQ(LookOf(line), before);
}

TEST_F(PipeLayer, IsNotMadeForAnUnknownIdentifier) {
  EXPECT_FALSE(CZPMainPipe(line).SetLayerId(L"无此标识"));
  EXPECT_TRUE(drawing.Layer(L"无此标识").isNull());
}

TEST_F(PipeLayer, StaysWhereTheEntityIsOnALockedLayer) {
  const AcDbObjectId locked = drawing.AddLayer(L"甲");
  {
    const AcDbObjectPointer<AcDbEntity> entity(line, AcDb::kForWrite);
    entity->setLayer(L"甲");
    const AcDbObjectPointer<AcDbLayerTableRecord> layer(locked, AcDb::kForWrite);
    layer->setIsLocked(true);
  }
  EXPECT_FALSE(CZPMainPipe(line).SetLayerId(L"供水干管"));
  EXPECT_FALSE(CZPMainPipe(line).SetDN(20));
  EXPECT_EQ(LookOf(line).layer, L"甲");
}

TEST_F(PipeLayer, IsNotMadeForAnEntityThatCannotBeOpened) {
  EXPECT_FALSE(CZPMainPipe(AcDbObjectId::kNull).SetLayerId(L"供水干管"));
  {
    const AcDbObjectPointer<AcDbEntity> reader(line, AcDb::kForRead);
    EXPECT_FALSE(CZPMainPipe(line).SetLayerId(L"供水干管"));
  }
  Erase(line);
  EXPECT_FALSE(CZPMainPipe(line).SetLayerId(L"供水干管"));
  EXPECT_TRUE(drawing.Layer(L"暖通-供水-干管").isNull());
}

TEST_F(PipeLayer, LeavesTheEntityClosed) {
  EXPECT_TRUE(CZPMainPipe(line).SetLayerId(L"供水干管"));
  EXPECT_FALSE(CZPMainPipe(line).SetLayerId(L"无此标识"));
  const AcDbObjectPointer<AcDbEntity> entity(line, AcDb::kForWrite);
  EXPECT_TRUE(entity);
}

TEST_F(PipeLayer, GivesTheWeightInMillimetresTimesTheOutputScaleCutToAnInteger) {
  EXPECT_EQ(WeightFor(0.25), AcDb::kLnWt025);
  EXPECT_EQ(WeightFor(0.209), AcDb::kLnWt020); // cut, not rounded
  EXPECT_EQ(WeightFor(-0.01), AcDb::kLnWtByLayer);
  EXPECT_EQ(WeightFor(-0.02), AcDb::kLnWtByBlock);
  EXPECT_EQ(WeightFor(-0.03), AcDb::kLnWtByLwDefault);
}

// The scale is that of the plot, so only at 1:100 is the product the weight in hundredths.
TEST_F(PipeLayer, GivesAnotherWeightAtAnotherOutputScale) {
  ASSERT_TRUE(ZP::SetOutDwgScale(50));
  EXPECT_EQ(WeightFor(0.5), AcDb::kLnWt025);
  ASSERT_TRUE(ZP::SetOutDwgScale(200));
  EXPECT_EQ(WeightFor(0.5), AcDb::kLnWt100);
}

TEST_F(PipeLayer, LeavesTheWeightAndScaleThatTheHostRefuses) {
  EXPECT_EQ(WeightFor(0.3), AcDb::kLnWt030);
  for (const double millimetres : {0.33, 99.0, 1e300, -1.0, std::nan("")})
    EXPECT_EQ(WeightFor(millimetres), AcDb::kLnWt030) << millimetres;
  supply->SetLineTypeScale(0);
  EXPECT_TRUE(CZPMainPipe(line).SetLayerId(L"供水干管"));
  EXPECT_EQ(LookOf(line).scale, 2.5);
}

TEST_F(PipeLayer, IsUnknownForALayerWithoutAMark) {
  drawing.AddLayer(L"甲");
  {
    const AcDbObjectPointer<AcDbEntity> entity(line, AcDb::kForWrite);
    entity->setLayer(L"甲");
  }
  CString layerId = L"before";
  EXPECT_FALSE(CZPMainPipe(line).GetLayerId(layerId));
  EXPECT_FALSE(CZPMainPipe(AcDbObjectId::kNull).GetLayerId(layerId));
  EXPECT_EQ(layerId, L"before");
}

// What the drawing remembers counts, not what the scheme has become.
TEST_F(PipeLayer, IsToldByTheMarkOnTheLayerAlsoWithoutTheScheme) {
  EXPECT_TRUE(CZPMainPipe(line).SetLayerId(L"供水干管"));
  Clear();
  CString layerId;
  EXPECT_TRUE(CZPMainPipe(line).GetLayerId(layerId));
  EXPECT_EQ(layerId, L"供水干管");
}

TEST_F(PipeLayer, TakesAttributesAlong) {
  const std::string file =
      "0\nSECTION\n2\nBLOCKS\n0\nBLOCK\n8\n0\n2\nB\n70\n2\n10\n0\n20\n0\n30\n0\n0\nENDBLK\n0\nENDSEC\n"
      "0\nSECTION\n2\nENTITIES\n"
      "0\nINSERT\n5\nA1\n8\n0\n62\n1\n66\n1\n2\nB\n10\n0\n20\n0\n30\n0\n"
      "0\nATTRIB\n5\nA2\n8\n0\n62\n2\n10\n0\n20\n0\n30\n0\n40\n1\n1\nx\n2\nT\n70\n0\n"
      "0\nSEQEND\n5\nA3\n8\n0\n0\nENDSEC\n0\nEOF\n";
  auto database = std::make_unique<AcDbDatabase>(false);
  const auto report = dxf::ReadDrawingBytes(file, L"test.dxf", *database);
  ASSERT_TRUE(report.ok) << report.error.ToUtf8();
  WorkingDrawing opened(std::move(database));
  AcDbObjectId reference, attribute;
  opened.Database().getAcDbObjectId(reference, false, AcDbHandle(0xA1));
  opened.Database().getAcDbObjectId(attribute, false, AcDbHandle(0xA2));
  EXPECT_TRUE(CZPRiserPipe(reference).SetLayerId(L"供水干管"));
  EXPECT_EQ(LookOf(reference).layer, L"暖通-供水-干管");
  EXPECT_EQ(LookOf(attribute), LookOf(reference));
}

} // namespace
