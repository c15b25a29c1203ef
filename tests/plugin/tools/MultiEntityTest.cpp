// Groups of entities that are not in the drawing yet.
#include "host/afx/CInvalidArgException.h"
#include "host/db/AcDbBlockReference.h"
#include "host/db/AcGiWorldDraw.h"
#include "plugin/layers/CZPGroupLayer.h"
#include "plugin/layers/CZPLayer.h"
#include "plugin/layers/CZPManagerLayer.h"
#include "plugin/layers/CZPSystemLayer.h"
#include "plugin/layers/LayerService.h"
#include "plugin/tools/CZPMultiEntity.h"
#include "tests/support/EditorFixture.h"

#include <numbers>

namespace {

using std::numbers::pi;
using Status = CZPMultiEntity::MultiEntityStatus;

// Lines with the colours that they are drawn in.
struct ColourDraw : AcGiWorldDraw {
  void point(const AcGePoint3d&) override {}
  void polyline(std::span<const AcGePoint3d> points) override {
    colours.push_back(subEntityTraits().color());
    ends.push_back(points.back());
  }
  void circularArc(const AcGePoint3d&, double, const AcGeVector3d&, const AcGeVector3d&, double,
                   double) override {
    colours.push_back(subEntityTraits().color());
  }
  void text(const AcGePoint3d&, const AcGeVector3d&, const AcGeVector3d&, double, double,
            const CString&) override {}
  void pushModelTransform(const AcGeMatrix3d&) override {}
  void popModelTransform() override {}
  std::vector<int> colours;
  std::vector<AcGePoint3d> ends;
};

class MultiEntity : public EditorFixture {
 protected:
  // A line from the origin, handed to a group.
  AcDbLine* give(int group, const AcGePoint3d& end = {10, 0, 0}) {
    auto* line = new AcDbLine(AcGePoint3d(), end);
    EXPECT_EQ(Status::eOk, groups.AddEntityToGroup(line, group));
    return line;
  }
  // A block with one line along x and one circle.
  AcDbObjectId makeBlock() {
    AcDbObjectPointer<AcDbBlockTable> blocks(database().blockTableId(), AcDb::kForWrite);
    auto* block = new AcDbBlockTableRecord;
    block->setName(L"阀门");
    AcDbObjectId id;
    EXPECT_EQ(Acad::eOk, blocks->add(id, block));
    for (AcDbEntity* entity : {static_cast<AcDbEntity*>(new AcDbLine({0, 0, 0}, {1, 0, 0})),
                               static_cast<AcDbEntity*>(new AcDbCircle({0, 0, 0}, {0, 0, 1}, 1))}) {
      EXPECT_EQ(Acad::eOk, block->appendAcDbEntity(entity));
      entity->close();
    }
    block->close();
    return id;
  }

  CZPMultiEntity groups;
};

} // namespace

TEST_F(MultiEntity, AnEntityForAHigherGroupMakesTheGroupsBelow) {
  EXPECT_EQ(0, groups.GetSize());
  give(3);
  EXPECT_EQ(4, groups.GetSize());
}

TEST_F(MultiEntity, ANegativeGroupTakesNothing) {
  AcDbLine line;
  EXPECT_EQ(Status::eBadIndex, groups.AddEntityToGroup(&line, -1));
  EXPECT_EQ(Status::eFailed, groups.AddEntityToGroup(nullptr, 0));
  EXPECT_EQ(0, groups.GetSize());
}

TEST_F(MultiEntity, WithoutGroupsThereIsNothingToCloseOrPlace) {
  EXPECT_EQ(Status::eNoGroups, groups.Close(-1));
  EXPECT_EQ(Status::eNoGroups, groups.Close(7));
  EXPECT_EQ(Status::eNoGroups, groups.AddtoCurrentSpace(0));
  EXPECT_EQ(Status::eNoGroups, groups.RemoveGroup(-1));
  EXPECT_EQ(Status::eNoGroups, groups.RemoveGroupEntity(-1));
  EXPECT_THROW(groups.SetPosition({1, 1, 0}, 0), CInvalidArgException);
  EXPECT_THROW(groups.GetRotation(0), CInvalidArgException);
}

TEST_F(MultiEntity, IndexesAreCheckedInTheirTwoWays) {
  give(1);
  EXPECT_EQ(Status::eBadIndex, groups.Close(2));
  EXPECT_EQ(Status::eBadIndex, groups.Close(-2));
  EXPECT_EQ(Status::eBadIndex, groups.SetGroupOrigin({}, -1));
  EXPECT_EQ(Status::eBadIndex, groups.SetRotation(1, 3));
  EXPECT_THROW(groups.SetRotation(1, 2), CInvalidArgException) << "an index that equals the number of groups";
  EXPECT_THROW(groups.GetPosition(2), CInvalidArgException);
  EXPECT_EQ(AcGePoint3d(), groups.GetPosition(-1));
  EXPECT_EQ(0.0, groups.GetRotation(3));
}

TEST_F(MultiEntity, APositionMovesWithAndAnOriginMovesAgainst) {
  const auto* line = give(0);
  EXPECT_EQ(Status::eOk, groups.SetPosition({5, 1, 0}, 0));
  EXPECT_EQ(AcGePoint3d(5, 1, 0), line->startPoint());
  EXPECT_EQ(Status::eOk, groups.SetGroupOrigin({2, 0, 0}, 0));
  EXPECT_EQ(AcGePoint3d(3, 1, 0), line->startPoint());
  EXPECT_EQ(AcGePoint3d(5, 1, 0), groups.GetPosition(0));
}

TEST_F(MultiEntity, ARotationIsBroughtIntoOneTurn) {
  give(0);
  groups.SetRotation(7.0, 0);
  EXPECT_NEAR(7.0 - 2 * pi, groups.GetRotation(0), 1e-12);
  groups.SetRotation(-1.0, 0);
  EXPECT_NEAR(2 * pi - 1.0, groups.GetRotation(0), 1e-12);
  groups.SetRotation(1e300, 0);
  EXPECT_LT(groups.GetRotation(0), 2 * pi);
  EXPECT_EQ(Status::eFailed, groups.SetRotation(std::numeric_limits<double>::infinity(), 0));
}

TEST_F(MultiEntity, ARotationAlmostAsBeforeChangesNothing) {
  const auto* line = give(0);
  groups.SetRotation(1.0, 0);
  const auto end = line->endPoint();
  EXPECT_EQ(Status::eOk, groups.SetRotation(1.0009, 0));
  EXPECT_EQ(1.0, groups.GetRotation(0));
  EXPECT_EQ(end.x, line->endPoint().x);
}

TEST_F(MultiEntity, ARotationTurnsAboutThePosition) {
  const auto* line = give(0);
  groups.SetPosition({5, 0, 0}, 0);
  groups.SetRotation(pi / 2, 0);
  EXPECT_TRUE(line->startPoint().isEqualTo({5, 0, 0}));
  EXPECT_TRUE(line->endPoint().isEqualTo({5, 10, 0}));
}

TEST_F(MultiEntity, GroupsMoveByThemselves) {
  const auto* first = give(0);
  const auto* second = give(1);
  groups.SetPosition({5, 0, 0}, 1);
  EXPECT_EQ(AcGePoint3d(0, 0, 0), first->startPoint());
  EXPECT_EQ(AcGePoint3d(5, 0, 0), second->startPoint());
}

TEST_F(MultiEntity, CommittedEntitiesStandInTheDrawingWithTheirIds) {
  give(0);
  give(0, {0, 7, 0});
  give(1);
  EXPECT_EQ(Status::eOk, groups.AddtoCurrentSpace(0));
  EXPECT_EQ(2u, entityCount());
  AcArray<AcDbObjectId> ids;
  EXPECT_EQ(Status::eOk, groups.GetEntitysObjectID(ids, 0));
  ASSERT_EQ(2, ids.length());
  EXPECT_EQ(AcGePoint3d(0, 7, 0), AcDbLine::cast(ids[1].object())->endPoint());
  EXPECT_EQ(Status::eOk, groups.AddtoCurrentSpace(-1));
  EXPECT_EQ(3u, entityCount());
  EXPECT_EQ(Status::eOk, groups.GetEntitysObjectID(ids, -1));
  EXPECT_EQ(3, ids.length());
}

TEST_F(MultiEntity, IdsAreEmptiedEvenForAnIndexThatThereIsNot) {
  give(1);
  AcArray<AcDbObjectId> ids;
  ids.append(AcDbObjectId());
  EXPECT_EQ(Status::eBadIndex, groups.GetEntitysObjectID(ids, 5));
  EXPECT_EQ(0, ids.length());
}

TEST_F(MultiEntity, WhatTheHostRefusesTakesTheWholeGroupOutAgain) {
  give(0);
  const auto placed = addLine({0, 0, 0}, {1, 1, 0});
  AcDbEntity* there = nullptr;
  ASSERT_EQ(Acad::eOk, acdbOpenObject(there, placed, AcDb::kForWrite));
  groups.AddEntityToGroup(there, 0); // it is in the drawing already
  EXPECT_EQ(Status::eFailed, groups.AddtoCurrentSpace(0));
  EXPECT_EQ(1u, entityCount()) << "the one that was there before";
}

TEST_F(MultiEntity, RemovingLeavesOrTakesTheGroup) {
  give(0);
  give(1);
  groups.SetPosition({5, 0, 0}, 1);
  EXPECT_EQ(Status::eOk, groups.RemoveGroupEntity(1));
  EXPECT_EQ(2, groups.GetSize());
  EXPECT_EQ(AcGePoint3d(), groups.GetPosition(1));
  groups.SetRotation(1, 1);
  EXPECT_EQ(Status::eOk, groups.RemoveGroup(0));
  EXPECT_EQ(1, groups.GetSize());
  EXPECT_EQ(1.0, groups.GetRotation(0)) << "the higher group moved down";
  EXPECT_EQ(Status::eOk, groups.RemoveGroup(-1));
  EXPECT_EQ(0, groups.GetSize());
}

TEST_F(MultiEntity, ABlockReferenceIsDrawnByItsPartsAndCommittedWhole) {
  auto* reference = new AcDbBlockReference({100, 0, 0}, makeBlock());
  groups.AddEntityToGroup(reference, 0);
  ColourDraw draw;
  EXPECT_TRUE(groups.subWorldDraw(&draw));
  EXPECT_EQ(2u, draw.colours.size());
  ASSERT_EQ(1u, draw.ends.size());
  EXPECT_EQ(AcGePoint3d(101, 0, 0), draw.ends[0]);
  groups.SetPosition({0, 50, 0}, 0);
  ColourDraw moved;
  groups.subWorldDraw(&moved);
  EXPECT_EQ(AcGePoint3d(101, 50, 0), moved.ends[0]);
  EXPECT_EQ(Status::eOk, groups.AddtoCurrentSpace(0));
  EXPECT_EQ(1u, entityCount());
}

TEST_F(MultiEntity, AnEntityOnALayerWithoutIdentifierIsDrawnInColour0) {
  give(0);
  ColourDraw draw;
  groups.subWorldDraw(&draw);
  EXPECT_EQ(std::vector<int>{0}, draw.colours);
}

TEST_F(MultiEntity, AnEntityIsDrawnInTheColourThatTheSchemeGivesItsLayer) {
  auto& scheme = *CZPManagerLayer::GetInstance();
  scheme.RemoveAll();
  auto* category = new CZPSystemLayer;
  auto* group = new CZPGroupLayer;
  auto* definition = new CZPLayer;
  definition->SetKorLayer(L"采暖供水");
  definition->SetUserLayer(L"供水");
  definition->SetColorIndex(30);
  scheme.Add(category);
  category->Add(group);
  group->Add(definition);
  ASSERT_EQ(L"供水", ZP::GetUserLayer(L"采暖供水")) << "makes the layer and stamps it";
  AcDbObjectId layer;
  AcDbLayerTable::cast(database().layerTableId().object())->getAt(L"供水", layer);
  auto* line = new AcDbLine(AcGePoint3d(), {1, 0, 0});
  auto* reference = new AcDbBlockReference({5, 0, 0}, makeBlock());
  for (AcDbEntity* entity : {static_cast<AcDbEntity*>(line), static_cast<AcDbEntity*>(reference)}) {
    ASSERT_EQ(Acad::eOk, entity->setLayer(layer));
    groups.AddEntityToGroup(entity, 0);
  }
  ColourDraw draw;
  groups.subWorldDraw(&draw);
  EXPECT_EQ((std::vector<int>{30, 30, 30}), draw.colours) << "the line, and both parts of the reference";
  EXPECT_EQ(256, line->colorIndex()) << "the entity itself stays as it was";
  scheme.RemoveAll();
}

TEST_F(MultiEntity, ACopySharesTheEntities) {
  const auto* line = give(0);
  CZPMultiEntity copy(groups);
  copy.SetPosition({5, 0, 0}, 0);
  EXPECT_EQ(AcGePoint3d(5, 0, 0), line->startPoint());
  EXPECT_EQ(AcGePoint3d(), groups.GetPosition(0));
  EXPECT_EQ(Status::eOk, groups.AddtoCurrentSpace(0));
  copy.SetRotation(1.0, 0); // the copy still has it, open as it was
  EXPECT_EQ(1u, entityCount());
}

TEST_F(MultiEntity, ColoursStayWithTheirPositionsAfterAClose) {
  give(0);
  groups.Close(0);
  give(0);
  groups.Close(-1);
  SZPMultiEntityData data;
  data.HoldEntity(new AcDbLine, 3);
  data.CloseEntities();
  data.HoldEntity(new AcDbLine, 5);
  EXPECT_EQ(2, data.Colors.GetSize());
  EXPECT_EQ(3, data.Colors[0]) << "the first entity now is drawn in the colour of the one before";
  data.CloseEntities();
}
