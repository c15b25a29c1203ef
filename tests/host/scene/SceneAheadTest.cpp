// The picture that begins while the drawing is read, beside one that is made when all is there.
#include "host/scene/SceneAhead.h"

#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbCurves.h"
#include "host/db/AcDbDatabase.h"
#include "host/db/AcDbLayerTable.h"
#include "host/db/AcDbObjectPointer.h"
#include "host/dxf/DrawingFile.h"
#include "host/scene/LiveScene.h"
#include "tests/host/scene/GroupTexts.h"
#include "tests/host/scene/Picture.h"

#include <gtest/gtest.h>

#include <ZpPaths.h>
#include <filesystem>

namespace {

constexpr std::size_t kPage = 4;

// Reads no further than the picture has come, so that a test is the same each time.
class Settled : public EntityWatcher {
 public:
  explicit Settled(scene::SceneAhead& ahead) : m_ahead(ahead) {}
  std::size_t together() const override { return m_ahead.together(); }
  void entitiesRead(const AcDbBlockTableRecord& space, std::span<const AcDbObjectId> entities) override {
    m_ahead.entitiesRead(space, entities);
    m_ahead.settle();
  }
  void entitiesEnd() override { m_ahead.entitiesEnd(); }
  void groundChanged() override { m_ahead.groundChanged(); }

 private:
  scene::SceneAhead& m_ahead;
};

class Ahead : public testing::Test {
 protected:
  ~Ahead() override { live.show(nullptr, {}); }

  bool readFile(const CString& path) {
    Settled watcher(ahead);
    dxf::ReadOptions options;
    options.watcher = &watcher;
    return dxf::ReadDrawing(path, *database, options).ok;
  }
  dxf::ReadReport read(const std::string& text, dxf::Progress progress = {}) {
    Settled watcher(ahead);
    dxf::ReadOptions options{.recover = false, .progress = std::move(progress), .watcher = &watcher};
    return dxf::ReadDrawingBytes(text, L"test.dxf", *database, options);
  }
  void read(const Parts& parts) {
    const auto report = read(DrawingText(parts));
    ASSERT_TRUE(report.ok) << report.error.ToUtf8();
  }
  void showIt() {
    live.show(database.get(), database->modelSpaceId(), &ahead);
    std::vector<scene::SceneOptions> workers(2);
    live.update(workers);
  }
  void expectSame() {
    showIt();
    EXPECT_EQ(GroupTexts(scene::BuildScene(*database, database->modelSpaceId())), GroupTexts(live));
  }
  // Pages that were left to be made when all was read.
  std::size_t left() const { return live.pagesMade(); }

  std::unique_ptr<AcDbDatabase> database = std::make_unique<AcDbDatabase>(false);
  scene::SceneAhead ahead{nullptr, kPage};
  scene::LiveScene live{kPage};
};

// Lines on a layer, each with its handle.
std::string Lines(int count, const std::string& layer = "0", int firstHandle = 0x100) {
  std::string text;
  for (int i = 0; i < count; ++i) {
    std::ostringstream line;
    line << (i ? "|" : "") << "0 LINE|5 " << std::hex << firstHandle + i << std::dec << "|100 AcDbEntity|8 "
         << layer << "|100 AcDbLine|10 " << i << "|20 0|11 " << i << "|21 5";
    text += line.str();
  }
  return text;
}

const std::string kLayers =
    "0 LAYER|5 10|2 0|70 0|62 7|6 CONTINUOUS|0 LAYER|5 11|2 甲|70 0|62 1|6 CONTINUOUS";

} // namespace

TEST_F(Ahead, WhatIsReadIsInThePictureBeforeTheDrawingIsWhole) {
  read(Parts{.entities = Lines(21), .layers = kLayers});
  expectSame();
  EXPECT_EQ(6u, live.pageCount());
  EXPECT_EQ(1u, left()); // the last, which may still get more
}

TEST_F(Ahead, ThePictureOfRealDrawingsIsTheOneThatIsMadeOfTheWhole) {
  int drawings = 0;
  for (const auto& file : std::filesystem::directory_iterator(ZP_SOURCE_DIR "/tests/data/drawings")) {
    live.show(nullptr, {});
    database = std::make_unique<AcDbDatabase>(false);
    if (!readFile(CString::FromUtf8(file.path().string()))) continue;
    ++drawings;
    expectSame();
    if (HasFailure()) FAIL() << file.path();
  }
  EXPECT_GT(drawings, 20);
}

TEST_F(Ahead, ALayerThatTheFileLacksIsKnownOnceAllIsRead) {
  read(Parts{.entities = Lines(9, "甲") + "|" + Lines(8, "无", 0x200), .layers = kLayers});
  expectSame();
  EXPECT_EQ(3u, left()); // those of the missing layer
}

TEST_F(Ahead, EntitiesWithoutAHandleWaitForTheirs) {
  std::string unnamed = Lines(1, "甲");
  unnamed.replace(unnamed.find("5 100|"), 6, "");
  read(Parts{.entities = Lines(5, "甲", 0x200) + "|" + unnamed + "|" + Lines(7, "甲", 0x300),
             .layers = kLayers});
  expectSame();
  EXPECT_EQ(2u, left()); // that with it in it, and the last
  for (const AcDbObjectId& id : AcDbBlockTableRecord::cast(database->modelSpaceId().object())->entities())
    EXPECT_NE(std::string::npos,
              std::string(id.object()->record().text()).find(id.handle().toHex())); // and not zero
}

TEST_F(Ahead, VerticesWithoutAHandleWaitForTheirs) {
  std::string polyline = "0 POLYLINE|5 50|100 AcDbEntity|8 甲|66 1|100 AcDb2dPolyline|10 0|20 0|30 0";
  for (int i = 0; i < 3; ++i)
    polyline +=
        "|0 VERTEX|100 AcDbEntity|8 甲|100 AcDbVertex|100 AcDb2dVertex|10 " + std::to_string(i) + "|20 0";
  polyline += "|0 SEQEND|5 51|100 AcDbEntity|8 甲";
  read(Parts{.entities = polyline + "|" + Lines(8, "甲", 0x300), .layers = kLayers});
  expectSame();
  EXPECT_EQ(2u, left()); // that with it in it, and the last
  const auto& model = *AcDbBlockTableRecord::cast(database->modelSpaceId().object());
  const auto* entity = AcDbEntity::cast(model.entities().front().object());
  ASSERT_EQ(4u, entity->subEntities().size());
  for (const AcDbObjectId& id : entity->subEntities()) {
    EXPECT_FALSE(id.handle().isNull());
    EXPECT_NE(std::string::npos, std::string(id.object()->record().text()).find("5\n" + id.handle().toHex()));
  }
}

TEST_F(Ahead, AnInsertionThatMayBeClippedWaitsForItsDictionary) {
  const std::string block = "0 BLOCK|5 20|100 AcDbEntity|8 0|100 AcDbBlockBegin|2 样|70 0|10 0|20 0|3 样|" +
                            Lines(3, "0", 0x30) + "|0 ENDBLK|5 21|100 AcDbEntity|8 0|100 AcDbBlockEnd";
  const std::string records = "0 BLOCK_RECORD|5 1F|2 样";
  const auto insertion = [](const std::string& handle, const std::string& dictionary) {
    return "|0 INSERT|5 " + handle + dictionary +
           "|100 AcDbEntity|8 甲|100 AcDbBlockReference|2 样|10 5|20 6";
  };
  read(Parts{.entities = Lines(3, "甲") + insertion("40", "") + "|" + Lines(3, "甲", 0x200) +
                         insertion("41", "|102 {ACAD_XDICTIONARY|360 42|102 }") + "|" + Lines(1, "甲", 0x300),
             .blocks = block,
             .layers = kLayers,
             .objects = "0 DICTIONARY|5 42|100 AcDbDictionary",
             .blockRecords = records});
  expectSame();
  EXPECT_EQ(3u, live.pageCount());
  EXPECT_EQ(2u, left()); // the second, and the last
}

TEST_F(Ahead, AttributesBelongToTheInsertionThatIsToldOf) {
  const std::string block = "0 BLOCK|5 20|100 AcDbEntity|8 0|100 AcDbBlockBegin|2 样|70 0|10 0|20 0|3 样|" +
                            Lines(1, "0", 0x30) + "|0 ENDBLK|5 21|100 AcDbEntity|8 0|100 AcDbBlockEnd";
  std::string entities;
  for (int i = 0; i < 12; ++i) {
    const std::string tens = std::to_string(10 + i);
    entities += (i ? "|0 INSERT|5 4" : "0 INSERT|5 4") + tens +
                "|100 AcDbEntity|8 甲|100 AcDbBlockReference|66 1|2 样|10 5|20 6|0 ATTRIB|5 5" + tens +
                "|100 AcDbEntity|8 甲|100 AcDbText|10 1|20 2|40 3|1 DN" + tens +
                "|100 AcDbAttribute|2 T|70 0|0 SEQEND|5 6" + tens + "|100 AcDbEntity|8 甲";
  }
  read(Parts{
      .entities = entities, .blocks = block, .layers = kLayers, .blockRecords = "0 BLOCK_RECORD|5 1F|2 样"});
  expectSame();
  EXPECT_EQ(1u, left());
  EXPECT_EQ(4u, live.page(0).texts.size());
}

TEST_F(Ahead, ABlockThatHasToWaitIsNotTakenForWholeInTheNextPage) {
  const std::string block = "0 BLOCK|5 20|100 AcDbEntity|8 0|100 AcDbBlockBegin|2 样|70 0|10 0|20 0|3 样|" +
                            Lines(1, "0", 0x30) +
                            "|0 CIRCLE|100 AcDbEntity|8 0|100 AcDbCircle|10 0|20 0|40 1" +
                            "|0 ENDBLK|5 21|100 AcDbEntity|8 0|100 AcDbBlockEnd";
  std::string entities;
  for (int i = 0; i < 12; ++i)
    entities += (i ? "|0 INSERT|5 4" : "0 INSERT|5 4") + std::to_string(10 + i) +
                "|100 AcDbEntity|8 甲|100 AcDbBlockReference|2 样|20 6|10 " + std::to_string(i);
  read(Parts{
      .entities = entities, .blocks = block, .layers = kLayers, .blockRecords = "0 BLOCK_RECORD|5 1F|2 样"});
  expectSame();
  EXPECT_EQ(3u, left()); // each page
}

TEST_F(Ahead, WhatWasReadAndThenChangedIsMadeAnew) {
  read(Parts{.entities = Lines(21), .layers = kLayers});
  const auto& entities = AcDbBlockTableRecord::cast(database->modelSpaceId().object())->entities();
  AcDbObjectPointer<AcDbLine>(entities[2], AcDb::kForWrite)->setEndPoint({77, 8, 0});
  expectSame();
  EXPECT_EQ(live.pageCount(), left());
}

TEST_F(Ahead, TablesBehindTheEntitiesMakeItAnotherPicture) {
  const std::string text = DrawingText({.entities = Lines(21, "甲"), .layers = kLayers});
  const auto cut = text.find("0\nSECTION\n2\nOBJECTS");
  const std::string again = TagLines(
      "0 SECTION|2 TABLES|0 TABLE|2 LAYER|70 1|0 LAYER|5 12|2 乙|70 0|62 3|6 CONTINUOUS|0 ENDTAB|0 ENDSEC");
  ASSERT_TRUE(read(text.substr(0, cut) + again + text.substr(cut)).ok);
  expectSame();
  EXPECT_EQ(live.pageCount(), left());
}

TEST_F(Ahead, AnotherDrawingOrSpaceGetsNothingOfIt) {
  read(Parts{.entities = Lines(21), .layers = kLayers});
  AcDbDatabase other(true);
  EXPECT_TRUE(ahead.take(other, other.modelSpaceId()).empty());
  EXPECT_TRUE(ahead.take(*database, database->modelSpaceId()).empty()); // it is over with that
}

TEST_F(Ahead, ADrawingThatEndsIsForgotten) {
  read(Parts{.entities = Lines(21), .layers = kLayers});
  database = std::make_unique<AcDbDatabase>(false); // perhaps at the same place
  read(Parts{.entities = Lines(3), .layers = kLayers});
  expectSame();
  EXPECT_EQ(live.pageCount(), left());
}

TEST_F(Ahead, AReadingThatIsCancelledLeavesNothing) {
  int asked = 0;
  const auto report =
      read(DrawingText({.entities = Lines(9000), .layers = kLayers}), [&](double) { return ++asked < 2; });
  EXPECT_FALSE(report.ok);
  database = std::make_unique<AcDbDatabase>(false);
  read(Parts{.entities = Lines(21), .layers = kLayers});
  expectSame();
  EXPECT_EQ(1u, left());
}

TEST_F(Ahead, OldDrawingsWithoutHandlesAreMadeWhenTheyAreRead) {
  std::string text =
      TagLines("0 SECTION|2 HEADER|9 $ACADVER|1 AC1009|0 ENDSEC|0 SECTION|2 TABLES|0 TABLE|2 LAYER|70 "
               "1|0 LAYER|2 甲|70 0|62 1|6 CONTINUOUS|0 ENDTAB|0 ENDSEC|0 SECTION|2 BLOCKS|0 "
               "ENDSEC|0 SECTION|2 ENTITIES");
  for (int i = 0; i < 21; ++i) text += TagLines("0 LINE|8 甲|10 1|20 2|11 3|21 " + std::to_string(i));
  text += TagLines("0 ENDSEC|0 EOF");
  ASSERT_TRUE(read(text).ok);
  expectSame();
  EXPECT_EQ(live.pageCount(), left());
}

// For the sanitizer of threads, from here on the reader goes on as fast as it can.
TEST_F(Ahead, RealDrawingsAreReadBesideTheirPicture) {
  dxf::ReadOptions options;
  options.watcher = &ahead;
  for (const auto& file : std::filesystem::directory_iterator(ZP_SOURCE_DIR "/tests/data/drawings")) {
    live.show(nullptr, {});
    database = std::make_unique<AcDbDatabase>(false);
    if (!dxf::ReadDrawing(CString::FromUtf8(file.path().string()), *database, options).ok) continue;
    expectSame();
    if (HasFailure()) FAIL() << file.path();
  }
}

TEST_F(Ahead, TheReaderDoesNotWait) {
  std::string entities = Lines(20'000, "甲", 0x1000);
  for (int i = 0; i < 300; ++i) entities += "|" + Lines(1, "缺" + std::to_string(i), 0x10000 + i);
  scene::SceneAhead fast;
  dxf::ReadOptions options;
  options.watcher = &fast;
  ASSERT_TRUE(dxf::ReadDrawingBytes(DrawingText({.entities = entities, .layers = kLayers}), L"test.dxf",
                                    *database, options)
                  .ok);
  live.show(database.get(), database->modelSpaceId(), &fast);
  std::vector<scene::SceneOptions> workers(2);
  live.update(workers);
  EXPECT_EQ(GroupTexts(scene::BuildScene(*database, database->modelSpaceId())), GroupTexts(live));
}
