// Blocks whose shapes are made once: each insertion shows what it would show by itself.
#include "host/scene/BuildScene.h"
#include "tests/host/scene/GroupTexts.h"
#include "tests/host/scene/Picture.h"

#include <gtest/gtest.h>

#include <ZpPaths.h>
#include <filesystem>

namespace {

// A symbol with an entity of its own layer, one of layer 0 by block, and a definition of an attribute.
const std::string kSymbol =
    "0 BLOCK|8 0|2 b|70 0|10 0|20 0|3 b|0 LINE|8 0|62 0|6 ByBlock|10 0|20 0|11 4|21 1|"
    "0 LWPOLYLINE|8 own|90 3|70 1|43 0.5|10 0|20 0|42 1|10 4|20 0|10 4|20 4|"
    "0 CIRCLE|8 0|10 1|20 1|40 1|0 ATTDEF|8 0|10 0|20 0|40 1|1 v|3 p|2 TAG|70 0|0 ENDBLK|8 0";
const std::string kOuter =
    "0 BLOCK|8 0|2 outer|70 0|10 0|20 0|3 outer|0 INSERT|8 0|2 b|10 1|20 1|50 30|0 LINE|8 0|10 0|20 0|11 9|"
    "21 0|0 ENDBLK|8 0";
const std::string kLayers = "0 LAYER|2 own|70 0|62 3|6 Continuous|0 LAYER|2 red|70 0|62 1|6 Continuous|"
                            "0 LAYER|2 green|70 0|62 3|6 Continuous|0 LAYER|2 frozen|70 1|62 5|6 Continuous|"
                            "0 LAYER|2 off|70 0|62 -5|6 Continuous";

std::string insertions() {
  std::string text;
  for (const char* layer : {"red", "green", "off", "frozen", "0", "red", "green", "red"})
    for (const char* look : {"", "|62 4", "|62 0", "|370 50", "|48 3"})
      for (const char* place : {"|10 5|20 6", "|10 -1|20 2|50 33|41 2|42 0.5", "|10 1|20 1|41 -1",
                                "|10 3|20 3|210 1|220 1|230 1", "|10 0|20 9|70 2|71 2|44 10|45 10"})
        for (const char* block : {"b", "outer"})
          text += std::string(text.empty() ? "" : "|") + "0 INSERT|8 " + layer + "|2 " + block + look + place;
  return text;
}

std::vector<AcDbObjectId> entitiesOf(AcDbDatabase& database) {
  const auto* space = AcDbBlockTableRecord::cast(database.modelSpaceId().object());
  return {space->entities().begin(), space->entities().end()};
}

// What each entity shows in one picture of all, and by itself.
void expectEachAsAlone(AcDbDatabase& database) {
  const auto ids = entitiesOf(database);
  const auto all = GroupTexts(scene::BuildScene(database, ids));
  std::vector<std::string> alone;
  for (const AcDbObjectId& id : ids)
    for (auto& text : GroupTexts(scene::BuildScene(database, std::span(&id, 1)))) alone.push_back(text);
  ASSERT_EQ(alone.size(), all.size());
  for (std::size_t i = 0; i < all.size(); ++i) EXPECT_EQ(alone[i], all[i]) << i;
}

} // namespace

TEST(BlockShapes, EachInsertionShowsWhatItShowsByItself) {
  const Picture p({.entities = insertions(), .blocks = kSymbol + "|" + kOuter, .layers = kLayers});
  EXPECT_GT(p.scene.groups.size(), 200u);
  expectEachAsAlone(*p.database);
}

TEST(BlockShapes, ASecondInsertionOnAnotherLayerTakesThatLayersColour) {
  const Picture p({.entities = "0 INSERT|8 red|2 b|10 0|20 0|0 INSERT|8 green|2 b|10 0|20 0|"
                               "0 INSERT|8 red|2 b|10 9|20 0",
                   .blocks = kSymbol,
                   .layers = kLayers});
  ASSERT_EQ(9u, p.count());
  const auto colorOf = [&](std::size_t i) { return p.scene.primitives[i].color; };
  EXPECT_EQ(scene::Color::fromIndex(1), colorOf(2));
  EXPECT_EQ(scene::Color::fromIndex(3), colorOf(5));
  EXPECT_EQ(colorOf(2), colorOf(8));
}

TEST(BlockShapes, AnInsertionThatIsNotFlatTakesNothingFromTheOthers) {
  const Picture p({.entities = "0 INSERT|8 red|2 b|10 0|20 0|210 1|220 0|230 0|0 INSERT|8 red|2 b|10 0|20 0",
                   .blocks = kSymbol,
                   .layers = kLayers});
  expectEachAsAlone(*p.database);
}

TEST(BlockShapes, EachViewportFreezesLayersOfItsOwnInThem) {
  const auto viewport = [](const std::string& handle, const std::string& frozen) {
    return "|0 VIEWPORT|5 " + handle + "|67 1|410 Layout1|8 0|10 50|20 50|40 40|41 20|68 " +
           handle.substr(1) + "|69 " + handle.substr(1) + "|12 0|22 0|16 0|26 0|36 1|45 200" + frozen;
  };
  const Picture p({.entities = "0 INSERT|8 red|2 b|10 0|20 0" + viewport("F2", "") +
                               viewport("F3", "|331 A7") + viewport("F4", "|331 A8"),
                   .blocks = "0 BLOCK|8 0|2 b|70 0|10 0|20 0|3 b|0 LINE|8 one|10 0|20 0|11 4|21 1|"
                             "0 LINE|8 two|10 0|20 0|11 4|21 1|0 LINE|8 two|10 0|20 0|11 4|21 9|0 ENDBLK|8 0",
                   .layers = "0 LAYER|5 A7|2 one|70 0|62 1|6 Continuous|0 LAYER|5 A8|2 two|70 0|62 1|6 "
                             "Continuous|0 LAYER|5 A9|2 red|70 0|62 1|6 Continuous"});
  const auto paper = scene::BuildScene(*p.database, p.database->paperSpaceId(), {});
  std::vector<std::uint32_t> shown;
  for (const auto& group : paper.groups) shown.push_back(group.primitiveCount - 1); // but the border
  EXPECT_EQ((std::vector<std::uint32_t>{3, 2, 1}), shown);
}

TEST(BlockShapes, OfALimitedNumberOfEntitiesThoseOfRepeatedBlocksCountToo) {
  std::string text;
  for (int i = 0; i < 40; ++i)
    text += std::string(i == 0 ? "" : "|") + "0 INSERT|8 red|2 b|20 0|10 " + std::to_string(10 * i);
  scene::SceneOptions options;
  options.limits.entities = 50;
  const Picture p({.entities = text, .blocks = kSymbol, .layers = kLayers}, options);
  EXPECT_TRUE(p.toldOf(L"图块展开后的实体太多，其后的未画"));
  EXPECT_LT(p.count(), 50u);
  EXPECT_GT(p.count(), 20u);
}

TEST(BlockShapes, InDrawingsOfOthersEachEntityShowsWhatItShowsByItself) {
  int drawings = 0;
  for (const auto& file : std::filesystem::directory_iterator(ZP_SOURCE_DIR "/tests/data/drawings")) {
    if (file.path().extension() != ".dxf") continue;
    SCOPED_TRACE(file.path().filename().string());
    AcDbDatabase database(false);
    if (!dxf::ReadDrawing(CString::FromUtf8(file.path().string()), database).ok) continue;
    ++drawings;
    expectEachAsAlone(database);
  }
  EXPECT_GT(drawings, 20);
}
