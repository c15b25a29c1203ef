#include "ZpPaths.h"
#include "tests/host/scene/Picture.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <random>

using Kind = scene::Primitive::Kind;

namespace {

std::string block(const std::string& name, const std::string& entities) {
  return "0 BLOCK|8 0|2 " + name + "|70 0|10 0|20 0|3 " + name + "|" + entities + "|0 ENDBLK|8 0";
}

} // namespace

TEST(Degenerate, ABlockInItselfIsToldAndDrawnOnce) {
  const Picture p(Parts{.entities = "0 INSERT|8 0|2 a|10 0|20 0",
                        .blocks = block("a", "0 POINT|8 0|10 0|20 0|0 INSERT|8 0|2 b|10 0|20 0") + "|" +
                                  block("b", "0 INSERT|8 0|2 a|10 0|20 0")});
  EXPECT_EQ(1u, p.count());
}

TEST(Degenerate, ABillionCopiesAreCutAndTold) {
  const Picture p(Parts{.entities = "0 INSERT|8 0|2 a|10 0|20 0|70 32767|71 32767|44 1|45 1",
                        .blocks = block("a", "0 POINT|8 0|10 0|20 0")});
  EXPECT_EQ(100'000u, p.count());
  EXPECT_TRUE(p.toldOf(L"行列太多"));
}

TEST(Degenerate, BlocksThatMultiplyAreCutAndTold) {
  std::string blocks = block("l0", "0 POINT|8 0|10 0|20 0");
  for (int level = 1; level < 12; ++level) {
    std::string inserts;
    for (int i = 0; i < 10; ++i)
      inserts +=
          (i == 0 ? "" : "|") + std::string("0 INSERT|8 0|2 l") + std::to_string(level - 1) + "|10 0|20 0";
    blocks += "|" + block("l" + std::to_string(level), inserts);
  }
  scene::SceneOptions options;
  options.limits.entities = 50'000;
  const Picture p(Parts{.entities = "0 INSERT|8 0|2 l11|10 0|20 0", .blocks = blocks}, options);
  EXPECT_LE(p.count(), 50'000u);
  EXPECT_TRUE(p.toldOf(L"实体太多"));
}

TEST(Degenerate, TheLimitOfPointsIsTold) {
  scene::SceneOptions options;
  options.limits.points = 10;
  std::string entities = "0 LINE|8 0|10 0|20 0|11 1|21 1";
  for (int i = 0; i < 20; ++i) entities += "|0 LINE|8 0|10 0|20 0|11 1|21 1";
  const Picture p(Parts{.entities = entities}, options);
  EXPECT_EQ(5u, p.count());
  EXPECT_TRUE(p.toldOf(L"图形太大"));
}

TEST(Degenerate, NumbersThatAreNoneAndHugeOnesDoNoHarm) {
  const Picture p(
      "0 LINE|8 0|10 nan|20 inf|11 1|21 1|0 CIRCLE|8 0|10 0|20 0|40 0|0 LINE|8 0|10 1e200|20 0|11 1|21 1|"
      "0 ARC|8 0|10 0|20 0|40 1e308|50 1e300|51 -1e300|0 ELLIPSE|8 0|10 0|20 0|11 0|21 0|40 0|"
      "0 SPLINE|8 0|71 3|0 LWPOLYLINE|8 0|90 0|70 1|0 POLYLINE|8 0|66 1|70 16|71 9999|72 9999|0 SEQEND|8 0|"
      "0 HATCH|8 0|91 1|0 MTEXT|8 0|40 0|1 x|0 TEXT|8 0|40 -1|1 x|0 LEADER|8 0|0 MESH|8 0|93 3|90 99|"
      "0 3DSOLID|8 0|0 VIEWPORT|8 0|41 0|45 0|0 MLINE|8 0|0 MULTILEADER|8 0|0 IMAGE|8 0|0 TOLERANCE|8 0");
  EXPECT_TRUE(p.toldOf(L"坐标超出范围"));
  EXPECT_TRUE(p.toldOf(L"半径为零"));
  EXPECT_TRUE(p.toldOf(L"3DSOLID 未画"));
  for (const auto& point : p.scene.points) EXPECT_TRUE(std::abs(point.x) < 1e16 && std::abs(point.y) < 1e16);
}

TEST(Degenerate, AMissingBlockIsTold) {
  EXPECT_TRUE(Picture("0 DIMENSION|8 0|2 none|70 3").toldOf(L"没有图块的尺寸标注"));
}

TEST(Degenerate, TheSameDrawingGivesTheSameScene) {
  const std::string entities =
      "0 CIRCLE|8 0|10 0|20 0|40 3|0 MTEXT|8 0|10 0|20 0|40 2|1 a\\Pb|0 RAY|8 0|10 0|20 0|11 1";
  const Picture a(entities);
  const Picture b(entities);
  ASSERT_EQ(a.scene.points.size(), b.scene.points.size());
  for (std::size_t i = 0; i < a.scene.points.size(); ++i) {
    EXPECT_EQ(a.scene.points[i].x, b.scene.points[i].x);
    EXPECT_EQ(a.scene.points[i].y, b.scene.points[i].y);
  }
}

// Values of real drawings with characters changed at random: whatever is read of them has a scene.
TEST(Degenerate, DamagedDrawingsHaveAScene) {
  constexpr std::string_view kCharacters = "0123456789-.e{}\\;%/^ ";
  std::mt19937 random(1);
  scene::SceneOptions options;
  options.limits = {.entities = 20'000, .points = 1'000'000, .copies = 1000, .depth = 16, .hatchLines = 1000};
  int scenes = 0;
  for (const char* name :
       {"uncommon", "hatches", "text", "columns_R2018", "insert_nested", "xclip", "poly_R12"}) {
    std::ifstream file(std::string(ZP_SOURCE_DIR) + "/tests/data/drawings/" + name + ".dxf",
                       std::ios::binary);
    const std::string whole{std::istreambuf_iterator<char>(file), {}};
    ASSERT_FALSE(whole.empty()) << name;
    for (int round = 0; round < 12; ++round) {
      std::string bytes = whole;
      for (int change = 0; change < 400; ++change) {
        char& c = bytes[random() % bytes.size()];
        if (c >= '0' && c <= '9') c = kCharacters[random() % kCharacters.size()];
      }
      AcDbDatabase database(false);
      dxf::ReadOptions reading;
      reading.recover = true;
      if (!dxf::ReadDrawingBytes(std::move(bytes), L"damaged.dxf", database, reading).ok) continue;
      for (const auto& space : {database.modelSpaceId(), database.paperSpaceId()})
        scenes += scene::BuildScene(database, space, options).groups.empty() ? 0 : 1;
    }
  }
  EXPECT_GT(scenes, 40);
}

// Real drawings, faulty ones among them.
TEST(Degenerate, EveryDrawingHasAScene) {
  for (const auto& entry :
       std::filesystem::directory_iterator(std::string(ZP_SOURCE_DIR) + "/tests/data/drawings")) {
    if (entry.path().extension() != ".dxf") continue;
    AcDbDatabase database(false);
    dxf::ReadOptions options;
    options.recover = true;
    if (!dxf::ReadDrawing(CString::FromUtf8(entry.path().string()), database, options).ok) continue;
    for (const auto& record : database.tableOf("BLOCK_RECORD")->records()) {
      const auto* space = AcDbBlockTableRecord::cast(record.object());
      if (!space || !space->isLayout()) continue;
      const auto scene = scene::BuildScene(database, record);
      for (const auto& group : scene.groups)
        EXPECT_LE(group.firstPrimitive + group.primitiveCount, scene.primitives.size()) << entry.path();
      for (const auto& primitive : scene.primitives)
        EXPECT_LE(primitive.firstPoint + primitive.pointCount, scene.points.size()) << entry.path();
    }
  }
}
