#include "tests/host/db/DrawingFixture.h"

#include "host/db/AcDbBlockReference.h"
#include "host/db/AcDbText.h"
#include "host/db/AcDbUnknownEntity.h"
#include "host/db/BlockCycle.h"
#include "host/ge/AcGePlane.h"

#include <cmath>
#include <limits>
#include <numbers>

namespace {

constexpr double kPi = std::numbers::pi;
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

class Entities : public Drawing {
 protected:
  // An entity as a file would bring it.
  template <typename T> std::unique_ptr<T> fromText(const std::string& text) {
    auto entity = std::make_unique<T>();
    entity->setRecord(DxfRecord::own(text), DxfDecodeContext(db));
    return entity;
  }
  AcDbObjectId addBlock(const wchar_t* name) {
    AcDbObjectPointer<AcDbBlockTable> blocks(db.blockTableId(), AcDb::kForWrite);
    auto* block = new AcDbBlockTableRecord;
    EXPECT_EQ(block->setName(name), Acad::eOk);
    AcDbObjectId id;
    EXPECT_EQ(blocks->add(id, block), Acad::eOk);
    block->close();
    return id;
  }
  AcDbExtents extentsOf(const AcDbEntity& entity) {
    AcDbExtents extents;
    EXPECT_EQ(entity.getGeomExtents(extents), Acad::eOk);
    return extents;
  }
};

void expectNear(const AcGePoint3d& actual, const AcGePoint3d& wanted) {
  EXPECT_NEAR(actual.x, wanted.x, 1e-9);
  EXPECT_NEAR(actual.y, wanted.y, 1e-9);
  EXPECT_NEAR(actual.z, wanted.z, 1e-9);
}

} // namespace

TEST_F(Entities, ANewLineIsFiledWithItsMarkersInOrder) {
  const auto id = addLine(2);
  const std::string wanted =
      "  0\nLINE\n  5\n" + id.handle().toHex() + "\n330\n" + db.modelSpaceId().handle().toHex() +
      "\n100\nAcDbEntity\n  8\n0\n100\nAcDbLine\n 10\n2.0\n 20\n0.0\n 30\n0.0\n 11\n2.0\n"
      " 21\n10.0\n 31\n0.0\n";
  EXPECT_EQ(id.object()->record().text(), wanted);
}

TEST_F(Entities, PointsThatAreNoNumbersAreRefused) {
  AcDbLine line;
  EXPECT_EQ(line.setStartPoint(AcGePoint3d(kNaN, 0, 0)), Acad::eInvalidInput);
  EXPECT_EQ(line.setEndPoint(AcGePoint3d(0, INFINITY, 0)), Acad::eInvalidInput);
  AcDbCircle circle;
  EXPECT_EQ(circle.setRadius(0), Acad::eInvalidInput);
  EXPECT_EQ(circle.setRadius(-1), Acad::eInvalidInput);
  EXPECT_EQ(circle.setRadius(kNaN), Acad::eInvalidInput);
  AcDbPolyline polyline;
  EXPECT_EQ(polyline.addVertexAt(0, AcGePoint2d(kNaN, 0)), Acad::eInvalidInput);
  EXPECT_EQ(polyline.addVertexAt(1, AcGePoint2d(0, 0)), Acad::eOutOfRange);
}

TEST_F(Entities, ACodeOfALaterSubclassIsNotTakenForACommonProperty) {
  const auto entity = fromText<AcDbUnknownEntity>("  0\nMULTILEADER\n  5\nAB\n100\nAcDbEntity\n  8\n0\n "
                                                  "62\n3\n100\nAcDbMLeader\n 62\n200\n  8\nfalsch\n");
  EXPECT_EQ(entity->colorIndex(), 3);
  EXPECT_EQ(entity->layer(), L"0");
  EXPECT_EQ(entity->dxfName(), L"MULTILEADER");
}

TEST_F(Entities, AnUnknownEntityKeepsEverythingWhenItsLayerChanges) {
  const auto layer = addLayer(L"管线");
  const auto entity = fromText<AcDbUnknownEntity>(
      "  0\nHELIX\n  5\nAB\n102\n{ACAD_REACTORS\n330\nCD\n102\n}\n330\n1F\n100\nAcDbEntity\n  "
      "8\n0\n100\nAcDbSpline\n"
      " 70\n     8\n100\nAcDbHelix\n 90\n29\n1001\nACAD\n1000\nx\n");
  ASSERT_EQ(entity->setLayer(layer), Acad::eOk);
  EXPECT_EQ(entity->record().text(),
            "  0\nHELIX\n  5\nAB\n102\n{ACAD_REACTORS\n330\nCD\n102\n}\n330\n1F\n100\nAcDbEntity\n  8\n管线\n"
            "100\nAcDbSpline\n 70\n     8\n100\nAcDbHelix\n 90\n29\n1001\nACAD\n1000\nx\n");
}

TEST_F(Entities, ArcAnglesKeepTheirDigitsWhenSomethingElseChanges) {
  const auto arc =
      fromText<AcDbArc>("  0\nARC\n100\nAcDbEntity\n  8\n0\n100\nAcDbCircle\n 10\n1.0\n 20\n2.0\n 30\n0.0\n"
                        " 40\n5.0\n100\nAcDbArc\n 50\n33.3333333333\n 51\n271.123456789012\n");
  arc->setRadius(6);
  const std::string text(arc->record().text());
  EXPECT_NE(text.find("33.3333333333\n"), text.npos) << text;
  EXPECT_NE(text.find("271.123456789012\n"), text.npos) << text;
  EXPECT_NE(text.find(" 40\n6.0\n"), text.npos) << text;
}

TEST_F(Entities, AnArcRunsAnticlockwiseAndItsBoxHoldsTheQuarterPoints) {
  const AcDbArc arc(AcGePoint3d(0, 0, 0), AcGeVector3d(0, 0, 1), 10, kPi / 4, 3 * kPi / 4);
  AcGePoint3d start;
  arc.getStartPoint(start);
  expectNear(start, AcGePoint3d(std::sqrt(50.0), std::sqrt(50.0), 0));
  const auto box = extentsOf(arc);
  EXPECT_NEAR(box.maxPoint().y, 10, 1e-9);
  EXPECT_NEAR(box.minPoint().y, std::sqrt(50.0), 1e-9);
}

TEST_F(Entities, AnArcOverTheZeroAngleHasTheRightBox) {
  const AcDbArc arc(AcGePoint3d(0, 0, 0), AcGeVector3d(0, 0, 1), 10, 7 * kPi / 4, kPi / 4);
  const auto box = extentsOf(arc);
  EXPECT_NEAR(box.maxPoint().x, 10, 1e-9);
  EXPECT_NEAR(box.minPoint().x, std::sqrt(50.0), 1e-9);
}

TEST_F(Entities, ABulgeOfOneIsAHalfCircle) {
  AcDbPolyline polyline;
  polyline.addVertexAt(0, AcGePoint2d(0, 0), 1);
  polyline.addVertexAt(1, AcGePoint2d(10, 0));
  const auto box = extentsOf(polyline);
  EXPECT_NEAR(box.minPoint().y, -5, 1e-9); // positive bulges run anticlockwise, below a chord to the right
  EXPECT_NEAR(box.maxPoint().y, 0, 1e-9);
}

TEST_F(Entities, DegenerateGeometryDrawsWithoutEndOrCrash) {
  AcDbPolyline polyline;
  for (const double bulge : {1e300, -1e300, 0.0, 1e-300})
    polyline.addVertexAt(polyline.numVerts(), AcGePoint2d(1, 1), bulge);
  AcDbExtents extents;
  polyline.getGeomExtents(extents);
  const auto circle =
      fromText<AcDbCircle>("  0\nCIRCLE\n 10\n0.0\n 20\n0.0\n 40\n0.0\n210\n0.0\n220\n0.0\n230\n0.0\n");
  circle->getGeomExtents(extents);
  const auto arc = fromText<AcDbArc>("  0\nARC\n 40\n-1e300\n 50\n1e300\n 51\n-1e300\n");
  arc->getGeomExtents(extents);
}

TEST_F(Entities, ConstantWidthReplacesWidthsOfVertices) {
  const auto polyline =
      fromText<AcDbPolyline>("  0\nLWPOLYLINE\n100\nAcDbEntity\n  8\n0\n100\nAcDbPolyline\n 90\n2\n 70\n0\n"
                             " 10\n0.0\n 20\n0.0\n 40\n1.0\n 41\n2.0\n 10\n5.0\n 20\n0.0\n");
  double width = 0;
  EXPECT_EQ(polyline->getConstantWidth(width), Acad::eInvalidInput);
  ASSERT_EQ(polyline->setConstantWidth(-0.03), Acad::eOk);
  EXPECT_EQ(polyline->getConstantWidth(width), Acad::eOk);
  EXPECT_EQ(width, -0.03);
  EXPECT_EQ(polyline->record().text(),
            "  0\nLWPOLYLINE\n100\nAcDbEntity\n  8\n0\n100\nAcDbPolyline\n 90\n2\n 70\n0\n"
            " 43\n-0.03\n 10\n0.0\n 20\n0.0\n 10\n5.0\n 20\n0.0\n");
}

TEST_F(Entities, TextKeepsItsEscapesUntilItIsChanged) {
  const auto text =
      fromText<AcDbText>("  0\nTEXT\n100\nAcDbEntity\n  8\n0\n100\nAcDbText\n 10\n0.0\n 20\n0.0\n 40\n2.5\n"
                         "  1\n\\U+6807\\U+9AD8 %%p0.00\n100\nAcDbText\n");
  EXPECT_EQ(text->textString(), L"标高 %%p0.00");
  text->setHeight(3);
  EXPECT_NE(text->record().text().find("\\U+6807"), std::string_view::npos);
  text->setTextString(L"标高^1\n二");
  const std::string record(text->record().text());
  EXPECT_NE(record.find("  1\n标高^ 1^J二\n"), record.npos) << record;
  EXPECT_EQ(text->textString(), L"标高^1\n二");
}

TEST_F(Entities, AnInsertionIsDrawnThroughItsScaleRotationAndBasePoint) {
  const auto block = addBlock(L"阀门");
  {
    AcDbObjectPointer<AcDbBlockTableRecord> record(block, AcDb::kForWrite);
    auto* line = new AcDbLine(AcGePoint3d(0, 0, 0), AcGePoint3d(10, 0, 0));
    record->appendAcDbEntity(line);
    line->close();
  }
  AcDbBlockReference reference(AcGePoint3d(100, 0, 0), block);
  reference.setScaleFactors(AcGeVector3d(2, 1, 1));
  reference.setRotation(kPi / 2);
  const auto box = extentsOf(reference);
  expectNear(box.minPoint(), AcGePoint3d(100, 0, 0));
  expectNear(box.maxPoint(), AcGePoint3d(100, 20, 0));
}

TEST_F(Entities, ABlockCannotBePutIntoItselfNotEvenThroughAnother) {
  const auto outer = addBlock(L"外");
  const auto inner = addBlock(L"内");
  AcDbObjectPointer<AcDbBlockTableRecord> outerRecord(outer, AcDb::kForWrite);
  auto* reference = new AcDbBlockReference(AcGePoint3d(), inner);
  ASSERT_EQ(outerRecord->appendAcDbEntity(reference), Acad::eOk);
  reference->close();
  auto* self = new AcDbBlockReference(AcGePoint3d(), outer);
  EXPECT_EQ(outerRecord->appendAcDbEntity(self), Acad::eSelfReference);
  AcDbObjectPointer<AcDbBlockTableRecord> innerRecord(inner, AcDb::kForWrite);
  EXPECT_EQ(innerRecord->appendAcDbEntity(self), Acad::eSelfReference);
  EXPECT_FALSE(blockContains(inner, outer));
  delete self;
}

TEST_F(Entities, MirroringKeepsArcsAndBulgesInTheirPlace) {
  AcDbArc arc(AcGePoint3d(10, 0, 0), AcGeVector3d(0, 0, 1), 5, 0, kPi / 2);
  const auto mirror = AcGeMatrix3d::mirroring(AcGePlane(AcGePoint3d(), AcGeVector3d(1, 0, 0)));
  ASSERT_EQ(arc.transformBy(mirror), Acad::eOk);
  const auto box = extentsOf(arc);
  expectNear(box.minPoint(), AcGePoint3d(-15, 0, 0));
  expectNear(box.maxPoint(), AcGePoint3d(-10, 5, 0));
  AcDbPolyline polyline;
  polyline.addVertexAt(0, AcGePoint2d(10, 0), 1);
  polyline.addVertexAt(1, AcGePoint2d(20, 0));
  const auto before = extentsOf(polyline);
  ASSERT_EQ(polyline.transformBy(mirror), Acad::eOk);
  const auto after = extentsOf(polyline);
  EXPECT_NEAR(after.minPoint().x, -before.maxPoint().x, 1e-9);
  EXPECT_NEAR(after.minPoint().y, before.minPoint().y, 1e-9);
}

TEST_F(Entities, UnevenScalingIsRefusedWhereCirclesWouldNotStayCircles) {
  AcGeMatrix3d uneven;
  uneven.entry[0][0] = 2;
  AcDbCircle circle(AcGePoint3d(1, 1, 0), AcGeVector3d(0, 0, 1), 3);
  EXPECT_EQ(circle.transformBy(uneven), Acad::eCannotScaleNonUniformly);
  EXPECT_EQ(circle.radius(), 3);
  AcDbLine line(AcGePoint3d(1, 1, 0), AcGePoint3d(2, 2, 0));
  EXPECT_EQ(line.transformBy(uneven), Acad::eOk);
  expectNear(line.endPoint(), AcGePoint3d(4, 2, 0));
}

TEST_F(Entities, AnUnknownEntityDrawsNothingAndHasNoBox) {
  AcDbUnknownEntity entity;
  AcDbExtents extents;
  EXPECT_EQ(entity.getGeomExtents(extents), Acad::eInvalidExtents);
  EXPECT_EQ(entity.transformBy(AcGeMatrix3d()), Acad::eNotApplicable);
}

TEST_F(Entities, LayersAndLinetypesAreGivenByNameOnlyWhenTheDrawingHasThem) {
  AcDbObjectPointer<AcDbLine> line(addLine(), AcDb::kForWrite);
  EXPECT_EQ(line->setLayer(L"没有"), Acad::eKeyNotFound);
  EXPECT_EQ(line->setLinetype(L"没有"), Acad::eKeyNotFound);
  EXPECT_EQ(line->setLinetype(L"BYLAYER"), Acad::eOk);
  EXPECT_EQ(line->setLinetypeScale(0), Acad::eInvalidInput);
  EXPECT_EQ(line->setLineWeight(static_cast<AcDb::LineWeight>(28)), Acad::eInvalidInput);
  EXPECT_EQ(line->setColorIndex(257), Acad::eInvalidInput);
}
