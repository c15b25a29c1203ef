// The picture that follows its drawing beside one that is made anew.
#include "host/scene/LiveScene.h"

#include "host/db/AcDbAttribute.h"
#include "host/db/AcDbBlockReference.h"
#include "host/db/AcDbCurves.h"
#include "host/db/AcDbHeader.h"
#include "host/db/AcDbLayerTable.h"
#include "host/db/AcDbObjectPointer.h"
#include "host/db/AcDbPolyline.h"
#include "host/db/AcDbText.h"
#include "host/scene/text/TextMetrics.h"
#include "tests/host/scene/GroupTexts.h"
#include "tests/host/scene/Picture.h"

#include <gtest/gtest.h>

#include <ZpPaths.h>
#include <filesystem>
#include <random>

namespace {

using scene::Scene;

class Live : public testing::Test {
 protected:
  void read(std::unique_ptr<AcDbDatabase> drawing) {
    live.show(nullptr, {});
    database = std::move(drawing);
    live.show(database.get(), database->modelSpaceId());
    update();
  }
  void update() {
    std::vector<scene::SceneOptions> workers(2); // the second thread takes part where there is enough to do
    change = live.update(workers);
  }
  ~Live() override { live.show(nullptr, {}); }

  void expectSame() {
    const Scene anew = scene::BuildScene(*database, database->modelSpaceId());
    const auto expected = GroupTexts(anew);
    const auto found = GroupTexts(live);
    ASSERT_EQ(expected.size(), found.size());
    for (std::size_t i = 0; i < expected.size(); ++i)
      ASSERT_TRUE(expected[i] == found[i])
          << "group " << i << " of " << anew.groups[i].entity.handle().toHex();
    EXPECT_EQ(anew.pointMode, live.pageCount() ? live.page(0).pointMode : anew.pointMode);
  }

  AcDbObjectId append(AcDbEntity* entity, const AcDbObjectId& block = {}) {
    AcDbObjectPointer<AcDbBlockTableRecord> owner(block.isNull() ? database->modelSpaceId() : block,
                                                  AcDb::kForWrite);
    AcDbObjectId id;
    EXPECT_EQ(Acad::eOk, owner->appendAcDbEntity(id, entity));
    entity->close();
    return id;
  }
  template <typename Work> void command(Work work) {
    database->undo().beginCommand(L"X");
    work();
    database->undo().endCommand();
  }

  std::unique_ptr<AcDbDatabase> database;
  scene::LiveScene live{8};
  scene::LiveScene::Change change;
};

// Edits of all kinds, at random.
class RandomEdits {
 public:
  RandomEdits(AcDbDatabase& database, unsigned seed) : m_database(database), m_random(seed) {
    AcDbObjectPointer<AcDbBlockTable> blocks(database.blockTableId(), AcDb::kForWrite);
    auto* block = new AcDbBlockTableRecord;
    block->setName(L"样块");
    blocks->add(m_block, block);
    block->close();
    AcDbObjectPointer<AcDbLayerTable> layers(database.layerTableId(), AcDb::kForWrite);
    for (const wchar_t* name : {L"甲", L"乙", L"丙"}) {
      auto* layer = new AcDbLayerTableRecord;
      layer->setName(name);
      layers->add(m_layers.emplace_back(), layer);
      layer->close();
    }
    appendTo(m_block, new AcDbLine(at(), at()));
  }

  void step() {
    auto& undo = m_database.undo();
    const int kind = pick(100);
    if (kind < 12) {
      undo.undo();
      return;
    }
    if (kind < 20) {
      undo.redo();
      return;
    }
    undo.beginCommand(L"X");
    for (int i = 1 + pick(3); i > 0; --i) edit();
    if (kind < 26)
      undo.cancelCommand();
    else
      undo.endCommand();
  }

 private:
  int pick(int count) { return static_cast<int>(m_random() % static_cast<unsigned>(count)); }
  AcGePoint3d at() { return {pick(1000) / 7.0, pick(1000) / 11.0, 0}; }

  AcDbObjectId appendTo(const AcDbObjectId& block, AcDbEntity* entity) {
    AcDbObjectPointer<AcDbBlockTableRecord> owner(block, AcDb::kForWrite);
    AcDbObjectId id;
    owner->appendAcDbEntity(id, entity);
    entity->setLayer(m_layers[static_cast<std::size_t>(pick(3))]);
    entity->close();
    return id;
  }
  AcDbEntity* made() {
    switch (pick(5)) {
    case 0:
      return new AcDbCircle(at(), AcGeVector3d::kZAxis, 1 + pick(9));
    case 1:
      return new AcDbText(at(), L"管 DN25", {}, 1 + pick(4));
    case 2: {
      auto* polyline = new AcDbPolyline;
      for (unsigned i = 0; i < 4; ++i) polyline->addVertexAt(i, {at().x, at().y}, pick(3) / 2.0);
      return polyline;
    }
    case 3:
      return new AcDbBlockReference(at(), m_block);
    default:
      return new AcDbLine(at(), at());
    }
  }
  AcDbObjectId entityOf(const AcDbObjectId& block) {
    AcDbObjectPointer<AcDbBlockTableRecord> owner(block, AcDb::kForRead);
    const auto& ids = owner->entities();
    return ids.empty() ? AcDbObjectId() : ids[static_cast<std::size_t>(pick(static_cast<int>(ids.size())))];
  }
  void change(const AcDbObjectId& id) {
    if (id.isErased()) {
      AcDbObjectPointer<AcDbEntity>(id, AcDb::kForWrite, true)->erase(false);
      return;
    }
    AcDbObjectPointer<AcDbEntity> entity(id, AcDb::kForWrite);
    if (!entity) return;
    switch (pick(6)) {
    case 0:
      entity->setColorIndex(pick(257));
      break;
    case 1:
      entity->setLayer(m_layers[static_cast<std::size_t>(pick(3))]);
      break;
    case 2:
      entity->erase();
      break;
    case 3:
      entity->setVisibility(pick(2) ? AcDb::kInvisible : AcDb::kVisible);
      break;
    default:
      entity->transformBy(AcGeMatrix3d::translation(at().asVector()));
    }
  }
  void addAttribute(const AcDbObjectId& id) {
    AcDbObjectPointer<AcDbEntity> entity(id, AcDb::kForWrite);
    auto* reference = entity ? AcDbBlockReference::cast(&*entity) : nullptr;
    if (!reference) return;
    auto* attribute = new AcDbAttribute;
    attribute->setPosition(at());
    attribute->setTextString(L"V-1");
    attribute->setTag(L"TAG");
    if (reference->appendAttribute(attribute) == Acad::eOk) attribute->close();
  }
  void changeAttribute(const AcDbObjectId& id) {
    const auto* entity = AcDbEntity::cast(id.object());
    if (!entity || entity->subEntities().empty()) return;
    change(entity->subEntities().front());
  }
  void changeLayer() {
    AcDbObjectPointer<AcDbLayerTableRecord> layer(m_layers[static_cast<std::size_t>(pick(3))],
                                                  AcDb::kForWrite);
    if (pick(2))
      layer->setIsOff(pick(2) != 0);
    else
      layer->setColor(AcCmColor(static_cast<short>(1 + pick(255))));
  }
  void edit() {
    const AcDbObjectId space = m_database.modelSpaceId();
    const int kind = pick(100);
    if (kind < 30) {
      appendTo(space, made());
    } else if (kind < 80) {
      if (const auto id = entityOf(space)) change(id);
    } else if (kind < 84) {
      if (const auto id = entityOf(space)) addAttribute(id);
    } else if (kind < 90) {
      if (const auto id = entityOf(space)) changeAttribute(id);
    } else if (kind < 94) {
      changeLayer();
    } else if (kind < 97) {
      pick(2) ? void(appendTo(m_block, new AcDbLine(at(), at()))) : change(entityOf(m_block));
    } else {
      AcDbObjectPointer<AcDbHeader> header(m_database.headerId(), AcDb::kForWrite);
      header->setVariable("$LTSCALE", "40\n" + std::to_string(1 + pick(5)) + ".0\n");
    }
  }

  AcDbDatabase& m_database;
  std::mt19937 m_random;
  AcDbObjectId m_block;
  std::vector<AcDbObjectId> m_layers;
};

} // namespace

TEST_F(Live, ThousandsOfEditsGiveThePictureThatIsMadeAnew) {
  for (unsigned seed = 1; seed <= 3; ++seed) {
    read(std::make_unique<AcDbDatabase>(true));
    RandomEdits edits(*database, seed);
    for (int i = 0; i < 1500; ++i) {
      edits.step();
      if (i % 5 != 0) continue; // several commands may come between two updates
      update();
      expectSame();
      if (HasFatalFailure()) FAIL() << "seed " << seed << ", step " << i;
    }
  }
}

TEST_F(Live, EditsOfRealDrawingsGiveThePictureThatIsMadeAnew) {
  int drawings = 0;
  for (const auto& file : std::filesystem::directory_iterator(ZP_SOURCE_DIR "/tests/data/drawings")) {
    auto drawing = std::make_unique<AcDbDatabase>(false);
    if (!dxf::ReadDrawing(CString::FromUtf8(file.path().string()), *drawing).ok) continue;
    ++drawings;
    read(std::move(drawing));
    expectSame();
    RandomEdits edits(*database, 7);
    for (int i = 0; i < 60; ++i) {
      edits.step();
      update();
      expectSame();
      if (HasFatalFailure()) FAIL() << file.path() << ", step " << i;
    }
  }
  EXPECT_GT(drawings, 20);
}

TEST_F(Live, AnEditMakesOnlyItsPageAnew) {
  read(std::make_unique<AcDbDatabase>(true));
  std::vector<AcDbObjectId> lines;
  for (int i = 0; i < 80; ++i) lines.push_back(append(new AcDbLine({i * 1.0, 0, 0}, {i * 1.0, 5, 0})));
  update();
  EXPECT_EQ(10u, live.pageCount());
  const auto before = live.pagesMade();
  command([&] { AcDbObjectPointer<AcDbLine>(lines[20], AcDb::kForWrite)->setEndPoint({20, 9, 0}); });
  update();
  EXPECT_EQ(before + 1, live.pagesMade());
  EXPECT_FALSE(change.all);
  EXPECT_EQ(20, change.box.minX);
  EXPECT_EQ(20, change.box.maxX);
  EXPECT_EQ(9, change.box.maxY);
  command([&] { append(new AcDbLine({0, 0, 0}, {1, 1, 0})); });
  update();
  EXPECT_EQ(before + 2, live.pagesMade());
  EXPECT_EQ(1, change.box.maxX);
  database->undo().undo();
  database->undo().undo();
  update();
  EXPECT_LE(live.pagesMade(), before + 4);
  EXPECT_FALSE(change.all);
  expectSame();
  update();
  EXPECT_FALSE(change.any);
}

TEST_F(Live, WhatWasErasedIsInTheBoxOfTheChange) {
  read(std::make_unique<AcDbDatabase>(true));
  const auto line = append(new AcDbLine({3, 4, 0}, {5, 6, 0}));
  update();
  command([&] { AcDbObjectPointer<AcDbLine>(line, AcDb::kForWrite)->erase(); });
  update();
  EXPECT_TRUE(change.any);
  EXPECT_EQ(3, change.box.minX);
  EXPECT_EQ(6, change.box.maxY);
  expectSame();
}

TEST_F(Live, ALayerChangesWhatStandsOnIt) {
  read(std::make_unique<AcDbDatabase>(true));
  for (int i = 0; i < 80; ++i) append(new AcDbLine({i * 1.0, 0, 0}, {i * 1.0, 5, 0}));
  update();
  AcDbObjectPointer<AcDbLayerTableRecord>(database->clayer(), AcDb::kForWrite)->setIsOff(true);
  update();
  EXPECT_TRUE(change.all);
  expectSame();
  EXPECT_TRUE(live.box().IsEmpty());
}

TEST_F(Live, ADrawingThatEndsFirstIsForgotten) {
  read(std::make_unique<AcDbDatabase>(true));
  append(new AcDbLine({0, 0, 0}, {1, 1, 0}));
  update();
  database.reset();
  update();
  EXPECT_EQ(0u, live.pageCount());
}
