// A drawing with rooms while the plug-in comes and goes.
#include <filesystem>
#include <fstream>

#include "ZpPaths.h"
#include "host/db/AcDbUnknownEntity.h"
#include "host/db/AcGiWorldDraw.h"
#include "host/dxf/DrawingFile.h"
#include "host/ed/AcRxDynamicLinker.h"
#include "tests/support/EditorFixture.h"

namespace {

class RoomsOfThePlugIn : public EditorFixture {
 protected:
  ~RoomsOfThePlugIn() override { acrxDynamicLinkerPtr()->unloadModule(m_file); }

  static std::string Sample() {
    std::ifstream file(std::filesystem::path(ZP_SOURCE_DIR) / "tests/drawings/rooms_without_plugin/input.dxf",
                       std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  static std::unique_ptr<AcDbDatabase> Open(const std::string& bytes) {
    auto opened = std::make_unique<AcDbDatabase>(false);
    const auto report = dxf::ReadDrawingBytes(bytes, L"rooms.dxf", *opened);
    EXPECT_TRUE(report.ok) << report.error.ToUtf8();
    return opened;
  }
  static std::vector<AcDbEntity*> RoomsIn(AcDbDatabase& database) {
    std::vector<AcDbEntity*> rooms;
    const AcDbObjectPointer<AcDbBlockTableRecord> space(database.modelSpaceId(), AcDb::kForRead);
    for (const auto& id : space->entities())
      if (auto* entity = AcDbEntity::cast(id.object()); entity && entity->dxfName() == L"VKHVAC_SPACE")
        rooms.push_back(entity);
    return rooms;
  }
  static bool AreUnderstood(AcDbDatabase& database) {
    const auto rooms = RoomsIn(database);
    EXPECT_EQ(rooms.size(), 3u);
    int understood = 0;
    AcDbExtents extents;
    for (const AcDbEntity* room : rooms) {
      understood += !room->isKindOf(AcDbUnknownEntity::desc());
      EXPECT_EQ(room->getGeomExtents(extents) == Acad::eOk, !room->isKindOf(AcDbUnknownEntity::desc()));
    }
    EXPECT_TRUE(understood == 0 || understood == 3);
    return understood == 3;
  }
  void Load() {
    ASSERT_TRUE(acrxDynamicLinkerPtr()->loadModule(m_file)) << acrxDynamicLinkerPtr()->lastError().ToUtf8();
  }

  const CString m_file = CString::FromUtf8(ZP_PLUGIN_FILE);
};

TEST_F(RoomsOfThePlugIn, AreSavedTheSameWithAndWithoutIt) {
  const auto without = Open(Sample());
  EXPECT_FALSE(AreUnderstood(*without));
  const std::string saved = dxf::WriteDrawingBytes(*without);
  Load();
  const auto with = Open(Sample());
  EXPECT_TRUE(AreUnderstood(*with));
  EXPECT_EQ(dxf::WriteDrawingBytes(*with), saved);
}

TEST_F(RoomsOfThePlugIn, AwakeWhenItIsLoadedAndSleepWhenItGoes) {
  const auto drawing = Open(Sample());
  const std::string saved = dxf::WriteDrawingBytes(*drawing);
  for (int i = 0; i < 3; ++i) {
    EXPECT_FALSE(AreUnderstood(*drawing));
    Load();
    EXPECT_TRUE(AreUnderstood(*drawing));
    EXPECT_EQ(dxf::WriteDrawingBytes(*drawing), saved);
    ASSERT_TRUE(acrxDynamicLinkerPtr()->unloadModule(m_file));
    EXPECT_EQ(dxf::WriteDrawingBytes(*drawing), saved);
  }
}

TEST_F(RoomsOfThePlugIn, ThatWereMovedKeepThatWhenItGoesAndUndoBringsThemBack) {
  const auto drawing = Open(Sample());
  Load();
  const std::string before = dxf::WriteDrawingBytes(*drawing);
  const AcDbObjectId id = RoomsIn(*drawing).front()->objectId();
  drawing->undo().beginCommand(L"MOVE");
  {
    const AcDbObjectPointer<AcDbEntity> room(id, AcDb::kForWrite);
    ASSERT_EQ(Acad::eOk, room->transformBy(AcGeMatrix3d::translation({100, 0, 0})));
  }
  drawing->undo().endCommand();
  const std::string moved = dxf::WriteDrawingBytes(*drawing);
  EXPECT_NE(moved, before);
  ASSERT_TRUE(acrxDynamicLinkerPtr()->unloadModule(m_file));
  EXPECT_EQ(dxf::WriteDrawingBytes(*drawing), moved);
  ASSERT_EQ(Acad::eOk, drawing->undo().undo());
  EXPECT_EQ(dxf::WriteDrawingBytes(*drawing), before);
}

} // namespace
