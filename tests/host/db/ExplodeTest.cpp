#include "tests/host/db/DrawingFixture.h"

#include "host/db/AcDbAttribute.h"
#include "host/db/AcDbBlockReference.h"
#include "host/db/AcDbText.h"
#include "host/db/AcDbUnknownEntity.h"

#include <numbers>

namespace {

constexpr double kPi = std::numbers::pi;

class Explosions : public Drawing {
 protected:
  ~Explosions() override {
    for (AcDbEntity* part : parts) delete part;
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
  AcDbObjectId addTo(const AcDbObjectId& block, AcDbEntity* entity) {
    AcDbObjectPointer<AcDbBlockTableRecord> record(block, AcDb::kForWrite);
    AcDbObjectId id;
    EXPECT_EQ(record->appendAcDbEntity(id, entity), Acad::eOk);
    entity->close();
    return id;
  }
  std::vector<AcDbEntity*> parts;
};

AcDbExtents boxOf(const AcDbEntity& entity) {
  AcDbExtents box;
  EXPECT_EQ(entity.getGeomExtents(box), Acad::eOk);
  return box;
}

void expectNear(const AcGePoint3d& actual, const AcGePoint3d& wanted) {
  EXPECT_NEAR(actual.x, wanted.x, 1e-9);
  EXPECT_NEAR(actual.y, wanted.y, 1e-9);
  EXPECT_NEAR(actual.z, wanted.z, 1e-9);
}

} // namespace

TEST_F(Explosions, PartsStandWhereTheInsertionShowedThem) {
  const auto block = addBlock(L"阀");
  addTo(block, new AcDbLine({0, 0, 0}, {10, 0, 0}));
  addTo(block, new AcDbCircle({10, 0, 0}, {0, 0, 1}, 1));
  AcDbBlockReference reference({100, 50, 0}, block);
  reference.setRotation(kPi / 2);
  reference.setScaleFactors({2, 2, 2});
  ASSERT_EQ(reference.explode(parts), Acad::eOk);
  ASSERT_EQ(parts.size(), 2u);
  expectNear(AcDbLine::cast(parts[0])->endPoint(), {100, 70, 0});
  expectNear(AcDbCircle::cast(parts[1])->center(), {100, 70, 0});
  EXPECT_NEAR(AcDbCircle::cast(parts[1])->radius(), 2, 1e-12);
  EXPECT_EQ(parts[0]->database(), nullptr);
}

TEST_F(Explosions, PartsLookAsTheyDidInTheInsertion) {
  const auto layer = addLayer(L"管线");
  const auto own = addLayer(L"自有");
  const auto block = addBlock(L"阀");
  auto* byBlock = new AcDbLine({0, 0, 0}, {1, 0, 0});
  byBlock->setColorIndex(AcCmColor::kByBlock);
  byBlock->setLineWeight(AcDb::kLnWtByBlock);
  byBlock->setLinetype(db.tableOf("LTYPE")->filedUnder(L"ByBlock").front());
  addTo(block, byBlock);
  auto* fixed = new AcDbLine({0, 0, 0}, {1, 0, 0});
  fixed->setLayer(own);
  fixed->setColorIndex(4);
  addTo(block, fixed);
  AcDbBlockReference reference({}, block);
  reference.setLayer(layer);
  reference.setColorIndex(2);
  reference.setLineWeight(AcDb::kLnWt050);
  reference.setLinetype(db.tableOf("LTYPE")->filedUnder(L"Continuous").front());
  ASSERT_EQ(reference.explode(parts), Acad::eOk);
  EXPECT_EQ(parts[0]->layerId(), layer);
  EXPECT_EQ(parts[0]->colorIndex(), 2);
  EXPECT_EQ(parts[0]->lineWeight(), AcDb::kLnWt050);
  EXPECT_EQ(parts[0]->linetype(), L"Continuous");
  EXPECT_EQ(parts[1]->layerId(), own);
  EXPECT_EQ(parts[1]->colorIndex(), 4);
}

TEST_F(Explosions, MirroredInsertionsKeepTheirShape) {
  const auto block = addBlock(L"弯");
  addTo(block, new AcDbArc({0, 0, 0}, {0, 0, 1}, 5, 0, kPi / 2));
  AcDbBlockReference reference({10, 0, 0}, block);
  reference.setScaleFactors({-1, 1, 1});
  const auto before = boxOf(reference);
  ASSERT_EQ(reference.explode(parts), Acad::eOk);
  ASSERT_TRUE(AcDbArc::cast(parts[0]));
  expectNear(boxOf(*parts[0]).minPoint(), before.minPoint());
  expectNear(boxOf(*parts[0]).maxPoint(), before.maxPoint());
}

TEST_F(Explosions, WhatCannotFollowUnevenScalesComesInABlockOfItsOwn) {
  const auto block = addBlock(L"罐");
  addTo(block, new AcDbLine({0, 0, 0}, {1, 0, 0}));
  addTo(block, new AcDbCircle({1, 0, 0}, {0, 0, 1}, 1));
  AcDbBlockReference reference({10, 0, 0}, block);
  reference.setScaleFactors({3, 1, 1});
  reference.setRotation(0.5);
  const auto before = boxOf(reference);
  ASSERT_EQ(reference.explode(parts), Acad::eOk);
  ASSERT_EQ(parts.size(), 2u);
  EXPECT_TRUE(AcDbLine::cast(parts[0]));
  const auto* wrapped = AcDbBlockReference::cast(parts[1]);
  ASSERT_TRUE(wrapped);
  EXPECT_TRUE(at<AcDbBlockTableRecord>(wrapped->blockTableRecord()).isAnonymous());
  AcDbExtents after = boxOf(*parts[0]);
  after.addExt(boxOf(*parts[1]));
  expectNear(after.minPoint(), before.minPoint());
  expectNear(after.maxPoint(), before.maxPoint());
}

TEST_F(Explosions, NestedInsertionsStayWithTheirAttributes) {
  const auto inner = addBlock(L"内");
  addTo(inner, new AcDbLine({0, 0, 0}, {1, 0, 0}));
  const auto outer = addBlock(L"外");
  auto* nested = new AcDbBlockReference({5, 0, 0}, inner);
  auto* attribute = new AcDbAttribute;
  attribute->setTag(L"编号");
  attribute->setTextString(L"V-1");
  attribute->setPosition({5, 1, 0});
  nested->appendAttribute(attribute);
  addTo(outer, nested);
  AcDbBlockReference reference({100, 0, 0}, outer);
  ASSERT_EQ(reference.explode(parts), Acad::eOk);
  ASSERT_EQ(parts.size(), 1u);
  const auto* part = AcDbBlockReference::cast(parts[0]);
  ASSERT_TRUE(part);
  expectNear(part->position(), {105, 0, 0});
  const auto id = addToModelSpace(parts[0]);
  parts.clear();
  const auto attributes = at<AcDbBlockReference>(id).attributes();
  ASSERT_EQ(attributes.size(), 1u);
  EXPECT_EQ(at<AcDbAttribute>(attributes[0]).textString(), L"V-1");
  expectNear(at<AcDbAttribute>(attributes[0]).position(), {105, 1, 0});
}

TEST_F(Explosions, AttributeDefinitionsComeOutAndAttributesStay) {
  const auto block = addBlock(L"图框");
  auto* definition = new AcDbAttributeDefinition;
  definition->setTag(L"图名");
  definition->setPrompt(L"图名:");
  definition->setTextString(L"未定");
  addTo(block, definition);
  AcDbBlockReference reference({100, 0, 0}, block);
  ASSERT_EQ(reference.explode(parts), Acad::eOk);
  ASSERT_EQ(parts.size(), 1u);
  const auto* part = AcDbAttributeDefinition::cast(parts[0]);
  ASSERT_TRUE(part);
  EXPECT_EQ(part->tag(), L"图名");
  EXPECT_EQ(part->prompt(), L"图名:");
  expectNear(part->position(), {100, 0, 0});
}

TEST_F(Explosions, EachCopyInRowsAndColumnsComesOut) {
  const auto block = addBlock(L"格");
  addTo(block, new AcDbPoint({0, 0, 0}));
  AcDbBlockReference reference;
  reference.setRecord(
      DxfRecord::own("  0\nINSERT\n100\nAcDbEntity\n  8\n0\n100\nAcDbBlockReference\n  2\n格\n 10\n1.0\n"
                     " 20\n0.0\n 30\n0.0\n 70\n3\n 71\n2\n 44\n10.0\n 45\n5.0\n"),
      DxfDecodeContext(db));
  ASSERT_EQ(reference.explode(parts), Acad::eOk);
  ASSERT_EQ(parts.size(), 6u);
  expectNear(AcDbPoint::cast(parts[5])->position(), {21, 5, 0});
}

TEST_F(Explosions, WithoutABlockOrWithTooManyCopiesIsRefused) {
  AcDbBlockReference none;
  EXPECT_EQ(none.explode(parts), Acad::eNullObjectId);
  const auto block = addBlock(L"格");
  addTo(block, new AcDbPoint({0, 0, 0}));
  AcDbBlockReference many;
  many.setRecord(
      DxfRecord::own(
          "  0\nINSERT\n100\nAcDbEntity\n  8\n0\n100\nAcDbBlockReference\n  2\n格\n 10\n1.0\n 20\n0.0\n"
          " 70\n30000\n 71\n30000\n"),
      DxfDecodeContext(db));
  EXPECT_EQ(many.explode(parts), Acad::eCannotExplodeEntity);
  EXPECT_TRUE(parts.empty());
}

TEST_F(Explosions, UnknownEntitiesComeInABlockOfTheirOwn) {
  const auto block = addBlock(L"块");
  auto* helix = new AcDbUnknownEntity;
  helix->setRecord(DxfRecord::own("  0\nHELIX\n100\nAcDbEntity\n  8\n0\n100\nAcDbHelix\n 90\n29\n"),
                   DxfDecodeContext(db));
  addTo(block, helix);
  AcDbBlockReference reference({7, 0, 0}, block);
  ASSERT_EQ(reference.explode(parts), Acad::eOk);
  const auto* wrapped = AcDbBlockReference::cast(parts[0]);
  ASSERT_TRUE(wrapped);
  expectNear(wrapped->position(), {7, 0, 0});
  const auto& inside = at<AcDbBlockTableRecord>(wrapped->blockTableRecord()).entities();
  ASSERT_EQ(inside.size(), 1u);
  EXPECT_EQ(at<AcDbEntity>(inside[0]).dxfName(), L"HELIX");
}
