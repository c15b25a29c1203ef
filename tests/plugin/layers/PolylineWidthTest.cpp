#include "plugin/graph/DrawingSettings.h"
#include "tests/plugin/layers/DrawingFixture.h"

namespace {

class PolylineWidth : public DrawingFixture {
 protected:
  PolylineWidth() {
    definition = Define(L"供水干管", L"暖通-供水");
    definition->SetLineWeight(0.35);
    marked = PolylineOn(ZP::GetUserLayer(L"供水干管"));
    unmarked = PolylineOn(L"甲");
  }
  AcDbObjectId PolylineOn(const wchar_t* layer) {
    auto* polyline = new AcDbPolyline;
    polyline->addVertexAt(0, AcGePoint2d(0, 0));
    polyline->addVertexAt(1, AcGePoint2d(100, 0));
    const AcDbObjectId id = WorkingDrawing::AppendTo(Database(), polyline);
    const AcDbObjectPointer<AcDbEntity> entity(id, AcDb::kForWrite);
    entity->setLayer(layer);
    return id;
  }
  double WidthOf(const AcDbObjectId& id) {
    const AcDbObjectPointer<AcDbPolyline> polyline(id, AcDb::kForRead);
    double width = -1e9;
    polyline->getConstantWidth(width);
    return width;
  }
  CZPLayer* definition;
  AcDbObjectId marked, unmarked;
};

TEST_F(PolylineWidth, IsTheLineWeightOfTheDefinition) {
  EXPECT_EQ(ZP::SetPolyLineWidth(marked, false), 1);
  EXPECT_DOUBLE_EQ(WidthOf(marked), 0.35);
}

TEST_F(PolylineWidth, IsTakenTimesTheOutputScale) {
  EXPECT_EQ(ZP::SetPolyLineWidth(marked, true), 1);
  EXPECT_DOUBLE_EQ(WidthOf(marked), 35.0);
  ZP::SetOutDwgScale(50);
  EXPECT_EQ(ZP::SetPolyLineWidth(marked, true), 1);
  EXPECT_DOUBLE_EQ(WidthOf(marked), 17.5);
}

TEST_F(PolylineWidth, IsNegativeForASpecialWeight) {
  definition->SetLineWeight(-0.03);
  EXPECT_EQ(ZP::SetPolyLineWidth(marked, true), 1);
  EXPECT_DOUBLE_EQ(WidthOf(marked), -3.0);
}

TEST_F(PolylineWidth, StaysOnALayerWithoutAnIdentifierOrDefinition) {
  EXPECT_EQ(ZP::SetPolyLineWidth(unmarked, false), 0);
  EXPECT_EQ(WidthOf(unmarked), 0);
  scheme.RemoveAll();
  EXPECT_EQ(ZP::SetPolyLineWidth(marked, false), 0);
  EXPECT_EQ(WidthOf(marked), 0);
}

TEST_F(PolylineWidth, IsSetOnAnOpenPolyline) {
  const AcDbObjectPointer<AcDbPolyline> polyline(marked, AcDb::kForWrite);
  EXPECT_EQ(ZP::SetPolyLineWidth(polyline.object(), false), 1);
  EXPECT_TRUE(polyline->isWriteEnabled()) << "it stays open";
  EXPECT_EQ(ZP::SetPolyLineWidth(static_cast<AcDbPolyline*>(nullptr), false), 0);
}

TEST_F(PolylineWidth, NeedsAPolylineThatCanBeOpened) {
  EXPECT_EQ(ZP::SetPolyLineWidth(AcDbObjectId(), false), 0);
  EXPECT_EQ(ZP::SetPolyLineWidth(onA, false), 0);
  const AcDbObjectPointer<AcDbPolyline> held(marked, AcDb::kForRead);
  EXPECT_EQ(ZP::SetPolyLineWidth(marked, false), 0);
}

TEST_F(PolylineWidth, OfSeveralGoesOnAfterAFailure) {
  AcArray<AcDbObjectId> ids;
  EXPECT_EQ(ZP::SetPolyLineWidth(ids, false), 1) << "nothing failed";
  ids.append(unmarked);
  ids.append(marked);
  EXPECT_EQ(ZP::SetPolyLineWidth(ids, false), 0);
  EXPECT_DOUBLE_EQ(WidthOf(marked), 0.35);
  ids.removeAt(0);
  EXPECT_EQ(ZP::SetPolyLineWidth(ids, false), 1);
}

} // namespace
