// The contents of drawings that a drawing refers to, and what stands in their place when they are missing.
#include "host/db/ExternalReferences.h"
#include "tests/host/afx/TemporaryFolder.h"
#include "tests/host/scene/Picture.h"

#include <gtest/gtest.h>

#include <algorithm>

using Kind = scene::Primitive::Kind;

namespace {

struct Reference {
  std::string block;
  std::string path;
};

// A drawing with an insertion of each at 100,0.
Parts referring(const std::vector<Reference>& references, const std::string& layer = "0") {
  Parts parts;
  int number = 100;
  const auto add = [](std::string& to, const std::string& tags) { to += (to.empty() ? "" : "|") + tags; };
  for (const auto& [block, path] : references) {
    const std::string handle = std::to_string(number++);
    add(parts.blockRecords, "0 BLOCK_RECORD|5 " + handle + "|2 " + block);
    add(parts.blocks, "0 BLOCK|8 0|330 " + handle + "|2 " + block + "|70 4|10 0|20 0|3 " + block + "|1 " +
                          path + "|0 ENDBLK|8 0|330 " + handle);
    add(parts.entities, "0 INSERT|8 " + layer + "|2 " + block + "|10 100|20 0");
  }
  return parts;
}

class References : public testing::Test {
 protected:
  // "~" stands for the bar in names of layers, which parts tags here.
  static std::string text(const Parts& parts) {
    std::string made = DrawingText(parts);
    std::replace(made.begin(), made.end(), '~', '|');
    return made;
  }
  void write(const char* name, const Parts& parts) { m_folder.Put(name, text(parts)); }
  // The picture of a drawing beside those files, its references resolved.
  Picture picture(const Parts& parts) {
    Picture made{Parts()};
    made.database = std::make_unique<AcDbDatabase>(false);
    EXPECT_TRUE(dxf::ReadDrawingBytes(text(parts), L"host.dxf", *made.database).ok);
    made.database->setFileName(m_folder / "host.dxf");
    acdbResolveCurrentXRefs(made.database.get());
    show(made);
    return made;
  }
  static void show(Picture& picture) {
    picture.scene = scene::BuildScene(*picture.database, picture.database->modelSpaceId(), {});
  }
  static scene::Color color(int index) { return scene::Color::fromIndex(index); }

 private:
  TemporaryFolder m_folder;
};

const Parts kWall = {.entities = "0 LINE|8 WALL|10 0|20 0|11 10|21 0",
                     .layers = "0 LAYER|2 WALL|70 0|62 1|6 Continuous"};

} // namespace

TEST_F(References, ShowTheirDrawingWithItsLayers) {
  Parts arch = kWall;
  arch.entities += "|0 LINE|8 AXIS|10 0|20 5|11 10|21 5";
  arch.layers += "|0 LAYER|2 AXIS|70 1|62 2|6 Continuous";
  write("arch.dxf", arch);
  Parts host = referring({{"ARCH", "arch.dxf"}});
  host.layers = "0 LAYER|2 WALL|70 0|62 5|6 Continuous"; // of the same name, and another all the same
  const Picture p = picture(host);
  const auto wall = p.only(Kind::stroke);
  EXPECT_EQ(color(1), wall.color);
  EXPECT_DOUBLE_EQ(110, p.points(wall)[1].x);
  EXPECT_TRUE(p.scene.leftOut.empty());
}

TEST_F(References, LayerZeroIsThatOfTheInsertion) {
  write("arch.dxf", {.entities = "0 LINE|8 0|10 0|20 0|11 10|21 0"});
  Parts host = referring({{"ARCH", "arch.dxf"}}, "MEP");
  host.layers = "0 LAYER|2 MEP|70 0|62 6|6 Continuous";
  EXPECT_EQ(color(6), picture(host).only(Kind::stroke).color);
}

TEST_F(References, TheDrawingMayKeepChangesOfTheirLayers) {
  write("arch.dxf", kWall);
  Parts host = referring({{"ARCH", "arch.dxf"}});
  host.layers = "0 LAYER|2 ARCH~WALL|70 0|62 3|6 Continuous";
  EXPECT_EQ(color(3), picture(host).only(Kind::stroke).color);
  host.header = "9 $VISRETAIN|70 0";
  EXPECT_EQ(color(1), picture(host).only(Kind::stroke).color) << "as their file has them";
  host.header.clear();
  host.layers = "0 LAYER|2 ARCH~WALL|70 1|62 3|6 Continuous";
  EXPECT_EQ(0u, picture(host).count()) << "frozen here";
}

TEST_F(References, DashesAreOfTheirLinetypesAndOfThisScale) {
  Parts arch = kWall;
  arch.linetypes = "0 LTYPE|2 DASHED|70 0|3 x|72 65|73 2|40 3|49 2|49 -1";
  arch.layers = "0 LAYER|2 WALL|70 0|62 1|6 DASHED";
  arch.header = "9 $LTSCALE|40 50";
  write("arch.dxf", arch);
  Parts host = referring({{"ARCH", "arch.dxf"}});
  host.header = "9 $LTSCALE|40 3";
  EXPECT_DOUBLE_EQ(6, picture(host).scene.patterns.at(0).dashes.at(0));
}

TEST_F(References, TextsAreInTheirStyles) {
  const std::string style = "0 STYLE|2 Standard|70 0|40 0|41 1|50 0|71 0|42 2.5|3 ";
  write("arch.dxf", {.entities = "0 TEXT|8 0|10 0|20 0|40 2|1 A", .styles = style + "theirs.shx|4 "});
  Parts host = referring({{"ARCH", "arch.dxf"}});
  host.styles = style + "ours.shx|4 ";
  EXPECT_EQ(L"theirs.shx", picture(host).text().font.file);
}

TEST_F(References, AreNestedWithTheLayersOfEach) {
  write("inner.dxf", kWall);
  Parts outer = referring({{"IN", "inner.dxf"}});
  outer.layers = "0 LAYER|2 WALL|70 0|62 2|6 Continuous";
  write("outer.dxf", outer);
  const Picture p = picture(referring({{"OUT", "outer.dxf"}}));
  EXPECT_EQ(color(1), p.only(Kind::stroke).color);
  EXPECT_DOUBLE_EQ(210, p.points(p.only(Kind::stroke))[1].x);
}

TEST_F(References, TwoMayShowOneFile) {
  write("arch.dxf", kWall);
  Parts host = referring({{"A", "arch.dxf"}, {"B", "arch.dxf"}});
  host.layers = "0 LAYER|2 B~WALL|70 0|62 3|6 Continuous";
  const auto strokes = picture(host).all(Kind::stroke);
  ASSERT_EQ(2u, strokes.size());
  EXPECT_EQ(color(1), strokes[0].color);
  EXPECT_EQ(color(3), strokes[1].color);
}

TEST_F(References, OneThatIsMissingShowsItsName) {
  Parts host = referring({{"ARCH", "lost/arch.dxf"}});
  host.header = "9 $TEXTSIZE|40 3.5|9 $DIMSCALE|40 100";
  Picture p = picture(host);
  ASSERT_EQ(1u, p.scene.texts.size());
  EXPECT_EQ(L"lost/arch.dxf", p.text().text);
  EXPECT_DOUBLE_EQ(100, p.text().origin.x);
  EXPECT_DOUBLE_EQ(250, p.text().up.length()) << "2.5 on a paper of 1 to 100";
  EXPECT_TRUE(p.toldOf(L"外部参照未载入"));
  acdbUnloadXrefs(p.database.get(), acdbXrefBlocks(*p.database));
  show(p);
  EXPECT_EQ(0u, p.count()) << "unloaded on purpose";
}

TEST_F(References, WhatIsReadAnewIsShown) {
  Picture p = picture(referring({{"ARCH", "arch.dxf"}}));
  EXPECT_EQ(1u, p.scene.texts.size());
  write("arch.dxf", kWall);
  EXPECT_EQ(Acad::eOk, acdbReloadXrefs(p.database.get(), acdbXrefBlocks(*p.database)));
  show(p);
  EXPECT_EQ(1u, p.all(Kind::stroke).size());
  EXPECT_TRUE(p.scene.texts.empty());
}
