// A change through the interface changes the tags that say it, and no other.
#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbEntity.h"
#include "host/db/AcDbLayerTable.h"
#include "host/db/AcDbObjectPointer.h"
#include "tests/host/dxf/DrawingFiles.h"
#include "tests/host/dxf/TagCompare.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::AnyOf;
using testing::ContainsRegex;

// The first layer that the file has.
AcDbObjectId firstLayer(const AcDbDatabase& database) {
  for (const AcDbObjectId& id : database.tableOf("LAYER")->records())
    if (!id.object()->isImplicit()) return id;
  return {};
}

// The first entity of model space that stands on a layer of the file which is not locked.
AcDbObjectId firstEntity(const AcDbDatabase& database) {
  const auto* model = AcDbBlockTableRecord::cast(database.modelSpaceId().object());
  for (const AcDbObjectId& id : model->entities()) {
    const auto* entity = AcDbEntity::cast(id.object());
    const auto* layer = AcDbLayerTableRecord::cast(entity->layerId().object());
    if (layer && !layer->isLocked()) return id;
  }
  return {};
}

class Edit : public testing::TestWithParam<std::string> {};

TEST_P(Edit, OfOneLayerAndOneEntityChangesTwoTagsAndIsTakenBackWhole) {
  const Opened opened = Open(SampleBytes(GetParam()));
  AcDbDatabase& database = *opened.database;
  const std::string before = opened.saved();
  const AcDbObjectId layerId = firstLayer(database);
  const AcDbObjectId entityId = firstEntity(database);
  const bool hasLayer = !layerId.isNull();
  const bool hasEntity = !entityId.isNull();
  database.undo().beginCommand(L"改");
  if (hasLayer) {
    AcDbObjectPointer<AcDbLayerTableRecord> layer(layerId, AcDb::kForWrite);
    ASSERT_TRUE(layer);
    EXPECT_EQ(layer->setIsOff(!layer->isOff()), Acad::eOk);
  }
  if (hasEntity) {
    AcDbObjectPointer<AcDbEntity> entity(entityId, AcDb::kForWrite);
    ASSERT_TRUE(entity) << entity.openStatus();
    EXPECT_EQ(entity->setColorIndex(entity->colorIndex() == 3 ? 4 : 3, false), Acad::eOk);
  }
  database.undo().endCommand();

  const auto differences = Differences(RecordsOf(before), RecordsOf(opened.saved()));
  EXPECT_EQ(differences.size(), static_cast<std::size_t>(hasLayer) + static_cast<std::size_t>(hasEntity))
      << testing::PrintToString(differences);
  for (const std::string& difference : differences)
    EXPECT_THAT(difference,
                AnyOf(ContainsRegex("^changed LAYER .*: 62 +[0-9-]+ -> [0-9-]+;( -420 [0-9]+;)?$"),
                      ContainsRegex("^changed [A-Z_]+ ?.*: (\\+62 [34]|62 +[0-9]+ * -> [34]);$")));

  if (hasLayer || hasEntity) {
    ASSERT_EQ(database.undo().undo(), Acad::eOk);
    EXPECT_TRUE(opened.saved() == before)
        << testing::PrintToString(Differences(RecordsOf(before), RecordsOf(opened.saved())));
  }
}

INSTANTIATE_TEST_SUITE_P(Drawings, Edit, testing::ValuesIn(SampleNames()),
                         [](const auto& sample) { return sample.param; });

TEST(Edit, OfTheIndexTakesATrueColourAway) {
  const Opened opened = Open(DrawingOf("0 POINT\n5 20\n100 AcDbEntity\n8 0\n62 5\n420 255\n430 BOOK$RED\n"
                                       "100 AcDbPoint\n10 1\n20 2\n30 3"));
  const auto* entity = AcDbEntity::cast(EntityAt(*opened.database, 0).object());
  EXPECT_EQ(255, entity->trueColor());
  AcDbObjectPointer<AcDbEntity>(EntityAt(*opened.database, 0), AcDb::kForWrite)->setColorIndex(6);
  EXPECT_EQ(-1, entity->trueColor());
  EXPECT_EQ(EntityAt(*opened.database, 0).object()->record().text().find("420"), std::string::npos);
  EXPECT_EQ(EntityAt(*opened.database, 0).object()->record().text().find("430"), std::string::npos);
}

TEST(Edit, OfTheIndexAndBackAgainLeavesNoTrueColour) {
  const Opened opened = Open(DrawingOf("0 POINT\n5 20\n100 AcDbEntity\n8 0\n62 5\n420 255\n440 33554559\n"
                                       "100 AcDbPoint\n10 1\n20 2\n30 3"));
  AcDbObjectPointer<AcDbEntity> entity(EntityAt(*opened.database, 0), AcDb::kForWrite);
  entity->setColorIndex(6);
  entity->setColorIndex(5);
  EXPECT_EQ(-1, entity->trueColor());
  EXPECT_EQ(0x0200007F, entity->transparency());
  EXPECT_EQ(entity->record().text().find("420"), std::string::npos);
  EXPECT_NE(entity->record().text().find("440\n33554559\n"), std::string::npos);
}

TEST(Edit, OfSomethingElseLeavesATrueColourAlone) {
  const Opened opened = Open(DrawingOf("0 POINT\n5 20\n100 AcDbEntity\n8 0\n62 5\n420 255\n100 AcDbPoint\n"
                                       "10 1\n20 2\n30 3"));
  AcDbObjectPointer<AcDbEntity>(EntityAt(*opened.database, 0), AcDb::kForWrite)->setLinetypeScale(2);
  EXPECT_NE(EntityAt(*opened.database, 0).object()->record().text().find("420\n255\n"), std::string::npos);
}

} // namespace
