#include "tests/host/db/DrawingFixture.h"

#include "host/db/AcDbBlockReference.h"
#include "host/db/AcDbText.h"
#include "host/db/AcDbUnknownEntity.h"

#include <numbers>

using Clones = Drawing;

TEST_F(Clones, AreOutsideTheDrawingWithTheSamePropertiesAndData) {
  const auto layer = addLayer(L"管线");
  db.registerApplication(L"甲");
  const auto id = addLine(3);
  AcDbObjectPointer<AcDbLine> line(id, AcDb::kForWrite);
  line->setLayer(layer);
  line->setColorIndex(5);
  line->setLinetypeScale(2);
  line->setXData(ResbufBuilder().text(1001, L"甲").text(1000, L"一").chain());
  const std::unique_ptr<AcRxObject> copy(line->clone());
  const auto* twin = AcDbLine::cast(copy.get());
  ASSERT_TRUE(twin);
  EXPECT_EQ(twin->database(), nullptr);
  EXPECT_TRUE(twin->objectId().isNull());
  EXPECT_EQ(twin->layerId(), layer);
  EXPECT_EQ(twin->colorIndex(), 5);
  EXPECT_EQ(twin->linetypeScale(), 2);
  EXPECT_EQ(twin->startPoint().x, 3);
  EXPECT_TRUE(ResbufPtr(twin->xData(L"甲")));
}

TEST_F(Clones, GetAHandleOfTheirOwnWhenTheyAreAdded) {
  const auto id = addLine(3);
  auto* twin = AcDbLine::cast(at<AcDbLine>(id).clone());
  const auto copy = addToModelSpace(twin);
  EXPECT_NE(copy.handle(), id.handle());
  const std::string text(copy.object()->record().text());
  EXPECT_NE(text.find("  5\n" + copy.handle().toHex() + "\n"), text.npos) << text;
  EXPECT_EQ(text.find("  5\n" + id.handle().toHex() + "\n"), text.npos) << text;
}

TEST_F(Clones, OfAnEntityWithoutALayerGetTheCurrentOneWhenTheyAreAdded) {
  const AcDbCircle circle({1, 2, 0}, {0, 0, 1}, 3);
  auto* twin = AcDbCircle::cast(circle.clone());
  ASSERT_TRUE(twin);
  EXPECT_TRUE(twin->layerId().isNull());
  db.setClayer(addLayer(L"当前"));
  EXPECT_EQ(at<AcDbCircle>(addToModelSpace(twin)).layer(), L"当前");
}

TEST_F(Clones, KeepWhatTheHostDoesNotUnderstand) {
  AcDbUnknownEntity helix;
  helix.setRecord(
      DxfRecord::own(
          "  0\nHELIX\n  5\nAB\n102\n{ACAD_REACTORS\n330\nCD\n102\n}\n102\n{ACAD_XDICTIONARY\n360\n"
          "EE\n102\n}\n330\n1F\n100\nAcDbEntity\n  8\n0\n100\nAcDbHelix\n 90\n29\n"),
      DxfDecodeContext(db));
  const std::unique_ptr<AcRxObject> copy(helix.clone());
  const auto* twin = AcDbUnknownEntity::cast(copy.get());
  ASSERT_TRUE(twin);
  EXPECT_EQ(twin->record().text(), "  0\nHELIX\n100\nAcDbEntity\n  8\n0\n100\nAcDbHelix\n 90\n29\n");
}

TEST_F(Clones, KeepTheirBlockAndTextStyle) {
  AcDbObjectPointer<AcDbBlockTable> blocks(db.blockTableId(), AcDb::kForWrite);
  auto* block = new AcDbBlockTableRecord;
  block->setName(L"阀门");
  AcDbObjectId id;
  ASSERT_EQ(blocks->add(id, block), Acad::eOk);
  block->close();
  AcDbBlockReference reference({1, 2, 3}, id);
  reference.setRotation(0.7);
  const std::unique_ptr<AcRxObject> copy(reference.clone());
  ASSERT_TRUE(AcDbBlockReference::cast(copy.get()));
  EXPECT_EQ(AcDbBlockReference::cast(copy.get())->blockTableRecord(), id);
  EXPECT_NEAR(AcDbBlockReference::cast(copy.get())->rotation(), 0.7, 1e-15);
}

TEST_F(Clones, AnArcKeepsItsAnglesToTheLastDigits) {
  for (const double angle : {0.1, 1.0 / 3.0, 2.0, 6.2}) {
    const AcDbArc arc({1e7, 2e7, 0}, {0, 0, 1}, 123.456, angle, angle + 1);
    const std::unique_ptr<AcRxObject> copy(arc.clone());
    const auto* twin = AcDbArc::cast(copy.get());
    EXPECT_NEAR(twin->startAngle(), angle, 1e-15);
    EXPECT_EQ(twin->radius(), 123.456);
    EXPECT_EQ(twin->center().x, 1e7);
  }
}

TEST_F(Clones, ATransformedCopyLeavesTheOriginal) {
  const AcDbLine line({0, 0, 0}, {1, 0, 0});
  AcDbEntity* copy = nullptr;
  ASSERT_EQ(line.getTransformedCopy(AcGeMatrix3d::translation({5, 0, 0}), copy), Acad::eOk);
  EXPECT_EQ(AcDbLine::cast(copy)->endPoint().x, 6);
  EXPECT_EQ(line.endPoint().x, 1);
  delete copy;
  const AcDbUnknownEntity unknown;
  EXPECT_EQ(unknown.getTransformedCopy(AcGeMatrix3d::scaling(2), copy), Acad::eNotApplicable);
  EXPECT_EQ(copy, nullptr);
}

TEST_F(Clones, NewEntitiesTakeTheDrawingsSettings) {
  AcDbObjectPointer<AcDbHeader> header(db.headerId(), AcDb::kForWrite);
  header->setVariable("$CECOLOR", " 62\n3\n");
  header->setVariable("$CELTSCALE", " 40\n2.5\n");
  header->setVariable("$CELWEIGHT", "370\n30\n");
  header.close();
  AcDbLine line;
  ASSERT_EQ(line.setDatabaseDefaults(&db), Acad::eOk);
  EXPECT_EQ(line.layer(), L"0");
  EXPECT_EQ(line.colorIndex(), 3);
  EXPECT_EQ(line.linetypeScale(), 2.5);
  EXPECT_EQ(line.lineWeight(), AcDb::kLnWt030);
  acdbHostApplicationServices()->setWorkingDatabase(nullptr);
  EXPECT_EQ(AcDbLine().setDatabaseDefaults(), Acad::eNoDatabase);
}
