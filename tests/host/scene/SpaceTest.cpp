#include "host/db/AcDbBlockReference.h"
#include "host/db/AcDbEntity.h"
#include "host/db/AcGiWorldDraw.h"
#include "host/scene/InfiniteLine.h"
#include "host/scene/Layouts.h"
#include "host/scene/PointMark.h"
#include "tests/host/scene/Picture.h"

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>

using Kind = scene::Primitive::Kind;

namespace {

// What a plug-in may bring: an entity that only knows how to draw itself.
class Radiator : public AcDbEntity {
 public:
  void worldDraw(AcGiWorldDraw& draw) const override {
    const AcGePoint3d frame[] = {{0, 0, 0}, {4, 0, 0}, {4, 1, 0}};
    draw.pushModelTransform(AcGeMatrix3d::translation(AcGeVector3d(10, 0, 0)));
    draw.polyline(frame);
    draw.popModelTransform();
    draw.circularArc({0, 0, 0}, 1, {0, 0, 1}, {1, 0, 0}, 0, 1);
    draw.text({0, 0, 0}, {0, 0, 1}, {1, 0, 0}, 2.5, 1, L"14片");
  }
};

// A layout with its sheet's viewport and one that shows model space at a tenth.
Parts layoutParts(const std::string& viewport = {}) {
  const std::string paper = "|67 1|410 Layout1";
  return {.entities = "0 LINE|8 0|10 100|20 100|11 200|21 100|0 LINE|8 hidden|10 100|20 100|11 200|21 100|"
                      "0 LINE|8 0|10 9000|20 9000|11 9001|21 9001|"
                      "0 VIEWPORT|5 F0" +
                      paper +
                      "|8 0|10 0|20 0|40 400|41 300|68 1|69 1|12 0|22 0|45 300|"
                      "0 VIEWPORT|5 F1" +
                      paper +
                      "|8 0|10 50|20 50|40 40|41 20|68 2|69 2|12 150|22 100|16 0|26 0|36 1|"
                      "45 200" +
                      viewport,
          .layers = "0 LAYER|5 A7|2 hidden|70 0|62 1|6 Continuous"};
}

Picture layout(const std::string& viewport = {}) {
  Picture p(layoutParts(viewport));
  p.scene = scene::BuildScene(*p.database, p.database->paperSpaceId(), {});
  return p;
}

} // namespace

TEST(Space, EntitiesOfPlugInsDrawThemselves) {
  Picture p("0 POINT|8 0|10 0|20 0");
  AcDbObjectId id;
  {
    AcDbObjectPointer<AcDbBlockTableRecord> space(p.database->modelSpaceId(), AcDb::kForWrite);
    auto* radiator = new Radiator;
    ASSERT_EQ(Acad::eOk, space->appendAcDbEntity(id, radiator));
    radiator->close();
  }
  p.scene = scene::BuildScene(*p.database, std::span(&id, 1), {});
  ASSERT_EQ(2u, p.all(Kind::stroke).size());
  EXPECT_DOUBLE_EQ(10, p.points(p.all(Kind::stroke)[0])[0].x);
  EXPECT_EQ(L"14片", p.text().text);
  ASSERT_EQ(1u, p.scene.groups.size());
  EXPECT_EQ(id, p.scene.groups[0].entity);
}

namespace {

// One that sets with what it draws, and shows others.
class Sign : public AcDbEntity {
 public:
  std::function<void(AcGiWorldDraw&)> drawing;
  Adesk::Boolean subWorldDraw(AcGiWorldDraw* draw) override {
    drawing(*draw);
    return Adesk::kTrue;
  }
  static void line(AcGiWorldDraw& draw, double y) {
    const AcGePoint3d ends[] = {{0, y, 0}, {4, y, 0}};
    draw.polyline(ends);
  }
};

// The picture of a sign of colour 2 on a layer of colour 1.
Picture signPicture(const std::function<void(AcGiWorldDraw&)>& drawing,
                    const std::string& others = "0 POINT|8 0|10 0|20 0") {
  Picture p(Parts{
      .entities = others,
      .layers = "0 LAYER|5 A1|2 OWN|70 0|62 1|6 DASHED|370 50|0 LAYER|5 A2|2 OTHER|70 0|62 3|6 Continuous|"
                "370 30|0 LAYER|5 A3|2 FROZEN|70 1|62 4|6 Continuous",
      .linetypes = "0 LTYPE|5 A4|2 DASHED|70 0|3 x|72 65|73 2|40 3|49 2|49 -1"});
  AcDbObjectId id;
  {
    AcDbObjectPointer<AcDbBlockTableRecord> space(p.database->modelSpaceId(), AcDb::kForWrite);
    auto* sign = new Sign;
    sign->drawing = drawing;
    EXPECT_EQ(Acad::eOk, space->appendAcDbEntity(id, sign));
    EXPECT_EQ(Acad::eOk, sign->setLayer(L"OWN"));
    EXPECT_EQ(Acad::eOk, sign->setColorIndex(2));
    sign->close();
  }
  p.scene = scene::BuildScene(*p.database, std::span(&id, 1), {});
  return p;
}

AcDbObjectId objectOf(AcDbDatabase& database, std::uint64_t handle) {
  AcDbObjectId id;
  EXPECT_EQ(Acad::eOk, database.getAcDbObjectId(id, false, AcDbHandle(handle)));
  return id;
}

} // namespace

TEST(Space, WhatAnEntitySetsHoldsForWhatItDrawsNext) {
  const Picture p = signPicture([](AcGiWorldDraw& draw) {
    auto& traits = draw.subEntityTraits();
    Sign::line(draw, 0);
    traits.setColor(5);
    Sign::line(draw, 1);
    traits.setColor(256);
    Sign::line(draw, 2);
    traits.setLineWeight(AcDb::kLnWt070);
    Sign::line(draw, 3);
    traits.setLayer(objectOf(*traits.layer().database(), 0xA2));
    traits.setLineWeight(AcDb::kLnWtByLayer);
    Sign::line(draw, 4);
    traits.setLayer(objectOf(*traits.layer().database(), 0xA3));
    Sign::line(draw, 5);
  });
  const auto strokes = p.all(Kind::stroke);
  ASSERT_EQ(5u, strokes.size()) << "nothing is drawn on a frozen layer";
  EXPECT_EQ(scene::Color::fromIndex(2), strokes[0].color) << "its own at first";
  EXPECT_EQ(scene::Color::fromIndex(5), strokes[1].color);
  EXPECT_EQ(scene::Color::fromIndex(1), strokes[2].color) << "by its layer";
  EXPECT_EQ(50, strokes[2].weight);
  EXPECT_NE(scene::Primitive::kNone, strokes[2].pattern);
  EXPECT_EQ(70, strokes[3].weight);
  EXPECT_EQ(scene::Color::fromIndex(3), strokes[4].color);
  EXPECT_EQ(30, strokes[4].weight);
  EXPECT_EQ(scene::Primitive::kNone, strokes[4].pattern);
}

TEST(Space, AnEntityMayShowAnInsertionOfABlock) {
  const Parts block = {
      .blocks = "0 BLOCK|8 0|2 B|70 0|10 0|20 0|3 B|1 |0 LINE|8 0|10 0|20 0|11 1|21 0|62 0|"
                "0 HATCH|8 0|10 0|20 0|30 0|210 0|220 0|230 1|2 SOLID|70 1|71 0|91 1|92 2|72 0|73 1|93 4|"
                "10 0|20 0|10 1|20 0|10 1|20 1|10 0|20 1|97 0|75 0|76 1|98 0|0 ENDBLK|8 0"};
  Picture p(block);
  AcDbObjectId id;
  AcDbObjectId blockId;
  {
    AcDbObjectPointer<AcDbBlockTable> blocks(p.database->blockTableId(), AcDb::kForRead);
    ASSERT_EQ(Acad::eOk, blocks->getAt(L"B", blockId));
    AcDbObjectPointer<AcDbBlockTableRecord> space(p.database->modelSpaceId(), AcDb::kForWrite);
    auto* sign = new Sign;
    sign->drawing = [&](AcGiWorldDraw& draw) {
      AcDbBlockReference reference({7, 0, 0}, blockId);
      draw.pushModelTransform(AcGeMatrix3d::translation({0, 3, 0}));
      reference.worldDraw(draw);
      draw.popModelTransform();
    };
    ASSERT_EQ(Acad::eOk, space->appendAcDbEntity(id, sign));
    sign->setColorIndex(4);
    sign->close();
  }
  p.scene = scene::BuildScene(*p.database, std::span(&id, 1), {});
  EXPECT_EQ(scene::Color::fromIndex(4), p.only(Kind::stroke).color) << "by block is the entity's";
  EXPECT_DOUBLE_EQ(7, p.points(p.only(Kind::stroke))[0].x);
  EXPECT_DOUBLE_EQ(3, p.points(p.only(Kind::stroke))[0].y);
  EXPECT_EQ(1u, p.all(Kind::fill).size()) << "kinds that only the picture knows come too";
}

TEST(Space, AnEntityThatFailsToDrawIsTold) {
  const Picture p = signPicture([](AcGiWorldDraw& draw) {
    Sign::line(draw, 0);
    throw std::runtime_error("x");
  });
  EXPECT_TRUE(p.toldOf(L"实体画图时出错"));
  EXPECT_EQ(1u, p.count());
}

TEST(Space, ALayoutShowsModelSpaceThroughItsViewport) {
  const Picture p = layout();
  const auto strokes = p.all(Kind::stroke); // the border, two lines; the far one is left out
  ASSERT_EQ(3u, strokes.size());
  const auto points = p.points(strokes[1]);
  EXPECT_NEAR(45, points[0].x, 1e-9);
  EXPECT_NEAR(50, points[0].y, 1e-9);
  EXPECT_NEAR(55, points[1].x, 1e-9);
  ASSERT_NE(scene::Primitive::kNone, strokes[1].clip);
  const ge::Box2d clip = scene::BoxOf(p.scene.clips[static_cast<std::size_t>(strokes[1].clip)].path.view());
  EXPECT_DOUBLE_EQ(30, clip.minX);
  EXPECT_DOUBLE_EQ(60, clip.maxY);
}

TEST(Space, AViewportHidesLayersOfItsOwn) {
  EXPECT_EQ(2u, layout("|331 A7").all(Kind::stroke).size());
}

TEST(Space, AViewportMayBeTurned) {
  const Picture p = layout("|51 90|17 150|27 100|37 0");
  // About its target, which then lies where the view's centre of 150,100 counts from.
  for (const auto& stroke : p.all(Kind::stroke)) EXPECT_LE(p.points(stroke).size(), 4u);
  EXPECT_FALSE(p.scene.groups.empty());
}

TEST(Space, AViewportThatIsOffShowsItsBorderOnly) {
  EXPECT_EQ(1u, layout("|90 131072").count());
}

TEST(Space, DashesThroughAViewportKeepTheirLengthOnPaper) {
  Parts parts = layoutParts();
  parts.linetypes = "0 LTYPE|2 DASHED|70 0|3 x|72 65|73 2|40 3|49 2|49 -1";
  parts.layers = "0 LAYER|2 0|70 0|62 7|6 DASHED";
  const auto dash = [&](const char* header) {
    parts.header = header;
    Picture p(parts);
    return scene::BuildScene(*p.database, p.database->paperSpaceId(), {}).patterns.at(0).dashes.at(0);
  };
  EXPECT_DOUBLE_EQ(2, dash("9 $PSLTSCALE|70 1"));
  EXPECT_DOUBLE_EQ(0.2, dash("9 $PSLTSCALE|70 0"));
}

TEST(Space, GroupsHaveTheBoxOfWhatTheyDraw) {
  const Picture p("0 LINE|8 0|10 1|20 2|11 3|21 4|0 LWPOLYLINE|8 0|90 2|43 2|10 0|20 0|10 10|20 0");
  ASSERT_EQ(2u, p.scene.groups.size());
  EXPECT_DOUBLE_EQ(3, p.scene.groups[0].box.maxX);
  EXPECT_DOUBLE_EQ(-1, p.scene.groups[1].box.minY); // with its width
}

TEST(PointMark, ModesAddTheirFigures) {
  EXPECT_EQ(2u, scene::PointMark(0, {1, 1}, 10).verbs.size());
  EXPECT_TRUE(scene::PointMark(1, {1, 1}, 10).isEmpty());
  const ge::Box2d cross = scene::BoxOf(scene::PointMark(2, {0, 0}, 10).view());
  EXPECT_DOUBLE_EQ(10, cross.maxX);
  const ge::Box2d square = scene::BoxOf(scene::PointMark(64, {0, 0}, 10).view());
  EXPECT_DOUBLE_EQ(5, square.maxX);
  EXPECT_DOUBLE_EQ(5, scene::PointMarkSize(0, 100));
  EXPECT_DOUBLE_EQ(10, scene::PointMarkSize(-10, 100));
  EXPECT_DOUBLE_EQ(3, scene::PointMarkSize(3, 100));
}

TEST(InfiniteLine, IsCutToTheWindow) {
  const ge::Box2d box{0, 0, 10, 10};
  const auto line = scene::CutToBox({5, 5}, {6, 5}, false, box);
  ASSERT_TRUE(line);
  EXPECT_DOUBLE_EQ(0, line->first.x);
  EXPECT_DOUBLE_EQ(10, line->second.x);
  const auto ray = scene::CutToBox({5, 5}, {6, 5}, true, box);
  ASSERT_TRUE(ray);
  EXPECT_DOUBLE_EQ(5, ray->first.x);
  EXPECT_FALSE(scene::CutToBox({5, 50}, {6, 50}, false, box));
  EXPECT_FALSE(scene::CutToBox({50, 5}, {51, 5}, true, box));
}
