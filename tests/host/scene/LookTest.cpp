#include "tests/host/scene/Picture.h"

#include <gtest/gtest.h>

using Kind = scene::Primitive::Kind;
using scene::Color;

namespace {

constexpr const char* kLayers = "0 LAYER|2 0|70 0|62 7|6 Continuous|"
                                "0 LAYER|2 red|70 0|62 1|6 DASHED|370 50|"
                                "0 LAYER|2 green|70 0|62 3|6 Continuous|420 1193046|"
                                "0 LAYER|2 off|70 0|62 -2|6 Continuous|"
                                "0 LAYER|2 frozen|70 1|62 2|6 Continuous|"
                                "0 LAYER|2 draft|70 0|62 5|6 Continuous|290 0|"
                                "0 LAYER|2 glass|70 0|62 5|6 Continuous|1001 AcCmTransparency|1071 33554559";
constexpr const char* kLinetypes = "0 LTYPE|2 DASHED|70 0|3 x|72 65|73 2|40 0.75|49 0.5|49 -0.25";
constexpr const char* kLine = "|10 0|20 0|11 10|21 0";

std::string line(const std::string& properties) {
  return "0 LINE|" + properties + kLine;
}

std::string block(const std::string& name, const std::string& entities) {
  return "0 BLOCK|8 0|2 " + name + "|70 0|10 0|20 0|3 " + name + "|" + entities + "|0 ENDBLK|8 0";
}

Picture picture(const std::string& entities, const std::string& blocks = {},
                scene::SceneOptions options = {}) {
  return Picture(Parts{.entities = entities, .blocks = blocks, .layers = kLayers, .linetypes = kLinetypes},
                 options);
}

} // namespace

TEST(Look, ByLayerTakesTheLayersColourWeightAndLinetype) {
  const Picture p = picture(line("8 red"));
  const auto stroke = p.only(Kind::stroke);
  EXPECT_EQ(Color::fromIndex(1), stroke.color);
  EXPECT_EQ(50, stroke.weight);
  ASSERT_NE(scene::Primitive::kNone, stroke.pattern);
  EXPECT_EQ((std::vector{0.5, -0.25}), p.scene.patterns[0].dashes);
}

TEST(Look, AnEntitysOwnColourWeightAndLinetypeGoFirst) {
  const auto stroke = picture(line("8 red|62 4|370 13|6 Continuous")).only(Kind::stroke);
  EXPECT_EQ(Color::fromIndex(4), stroke.color);
  EXPECT_EQ(13, stroke.weight);
  EXPECT_EQ(scene::Primitive::kNone, stroke.pattern);
}

TEST(Look, TrueColoursGoBeforeIndexes) {
  EXPECT_EQ(Color::fromTrueColor(0x0A0B0C), picture(line("8 red|62 4|420 658188")).only(Kind::stroke).color);
  EXPECT_EQ(Color::fromTrueColor(1193046), picture(line("8 green")).only(Kind::stroke).color);
}

TEST(Look, WeightWithoutAnyIsAQuarterMillimetre) {
  EXPECT_EQ(25, picture(line("8 green")).only(Kind::stroke).weight);
  EXPECT_EQ(25, picture(line("8 red|370 -3")).only(Kind::stroke).weight);
}

TEST(Look, ScalesOfLinetypesMultiply) {
  const Picture p(Parts{.entities = line("8 red|48 3"),
                        .layers = kLayers,
                        .linetypes = kLinetypes,
                        .header = "9 $LTSCALE|40 2"});
  EXPECT_EQ((std::vector{3.0, -1.5}), p.scene.patterns.at(0).dashes);
}

TEST(Look, LettersInLinetypesAreTold) {
  const std::string gas = "0 LTYPE|2 GAS|70 0|3 x|72 65|73 2|40 2|49 1|74 0|49 -1|74 2|75 0|340 0|46 1|9 GAS";
  const Picture p(Parts{.entities = line("8 0|6 GAS"), .linetypes = gas});
  EXPECT_EQ((std::vector{1.0, -1.0}), p.scene.patterns.at(0).dashes);
  EXPECT_TRUE(p.toldOf(L"线型中的文字和形"));
}

TEST(Look, AnInsertionsScaleStretchesDashes) {
  const Picture p = picture("0 INSERT|8 0|2 b|10 0|20 0|41 4|42 4", block("b", line("8 red")));
  EXPECT_EQ((std::vector{2.0, -1.0}), p.scene.patterns.at(0).dashes);
}

TEST(Look, ByBlockIsHandedThroughNestedInsertions) {
  const std::string blocks = block("inner", line("8 green|62 0|370 -2|6 ByBlock")) + "|" +
                             block("outer", "0 INSERT|8 green|62 0|370 -2|6 ByBlock|2 inner|10 0|20 0");
  const auto stroke = picture("0 INSERT|8 red|62 6|370 70|2 outer|10 0|20 0", blocks).only(Kind::stroke);
  EXPECT_EQ(Color::fromIndex(6), stroke.color);
  EXPECT_EQ(70, stroke.weight);
  EXPECT_NE(scene::Primitive::kNone, stroke.pattern); // that of the insertion's layer
}

TEST(Look, ByBlockOutsideOfBlocksIsTheForeground) {
  EXPECT_EQ(Color::Kind::foreground, picture(line("8 red|62 0")).only(Kind::stroke).color.kind);
}

TEST(Look, LayerZeroInABlockIsTheInsertionsLayer) {
  const std::string blocks = block("inner", line("8 0") + "|" + line("8 green")) + "|" +
                             block("outer", "0 INSERT|8 0|2 inner|10 0|20 0");
  const auto strokes = picture("0 INSERT|8 red|2 outer|10 0|20 0", blocks).all(Kind::stroke);
  ASSERT_EQ(2u, strokes.size());
  EXPECT_EQ(Color::fromIndex(1), strokes[0].color);
  EXPECT_EQ(50, strokes[0].weight);
  EXPECT_EQ(Color::fromTrueColor(1193046), strokes[1].color);
}

TEST(Look, OffFrozenAndInvisibleEntitiesAreNotDrawn) {
  EXPECT_EQ(0u, picture(line("8 off") + "|" + line("8 frozen") + "|" + line("8 red|60 1")).count());
}

TEST(Look, AnInsertionOnALayerThatIsOffKeepsWhatStandsOnOthers) {
  const std::string blocks = block("b", line("8 0") + "|" + line("8 red"));
  EXPECT_EQ(1u, picture("0 INSERT|8 off|2 b|10 0|20 0", blocks).count());
  EXPECT_EQ(0u, picture("0 INSERT|8 frozen|2 b|10 0|20 0", blocks).count());
}

TEST(Look, LayersThatAreNotPlottedShowOnTheScreenOnly) {
  EXPECT_EQ(1u, picture(line("8 draft")).count());
  scene::SceneOptions options;
  options.forPlotting = true;
  EXPECT_EQ(0u, picture(line("8 draft"), {}, options).count());
}

TEST(Look, TransparencyComesFromTheEntityOrItsLayer) {
  EXPECT_EQ(127, picture(line("8 glass")).only(Kind::stroke).color.alpha);
  EXPECT_EQ(51, picture(line("8 red|440 33554483")).only(Kind::stroke).color.alpha);
  EXPECT_EQ(255, picture(line("8 red|440 16777216")).only(Kind::stroke).color.alpha);
}

TEST(Look, ATableOfTheDrawingChangesTheOrder) {
  const std::string block = "0 BLOCK|8 0|2 b|70 0|10 0|20 0|3 b|" + line("5 B1|8 0|62 1") + "|" +
                            line("5 B2|8 0|62 2") + "|" + line("5 B3|8 0|62 3") + "|0 ENDBLK|8 0";
  // The first goes in front of the third.
  const Picture p(Parts{.entities = "0 INSERT|8 0|2 b|10 0|20 0",
                        .blocks = block,
                        .objects =
                            "0 DICTIONARY|5 C|3 X|350 D0|0 DICTIONARY|5 D0|330 C|3 ACAD_SORTENTS|360 D1|"
                            "0 SORTENTSTABLE|5 D1|330 D0|100 AcDbSortentsTable|331 B1|5 B4|331 B2|5 B2",
                        .blockRecords = "0 BLOCK_RECORD|5 F0|102 {ACAD_XDICTIONARY|360 D0|102 }|2 b"});
  const auto strokes = p.all(Kind::stroke);
  ASSERT_EQ(3u, strokes.size());
  EXPECT_EQ(Color::fromIndex(2), strokes[0].color);
  EXPECT_EQ(Color::fromIndex(3), strokes[1].color);
  EXPECT_EQ(Color::fromIndex(1), strokes[2].color);
}

TEST(Look, EntitiesComeInTheOrderOfTheFileWithTheirIds) {
  const Picture p = picture(line("5 A1|8 red") + "|" + line("5 A0|8 green"));
  ASSERT_EQ(2u, p.scene.groups.size());
  EXPECT_EQ("A1", p.scene.groups[0].entity.handle().toHex());
  EXPECT_EQ("A0", p.scene.groups[1].entity.handle().toHex());
  EXPECT_EQ(1u, p.scene.groups[1].firstPrimitive);
}
