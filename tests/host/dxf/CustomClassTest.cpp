#include "tests/host/dxf/DrawingFiles.h"

#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbDatabaseReactor.h"
#include "host/db/AcDbObjectPointer.h"
#include "host/db/AcDbUnknownEntity.h"
#include "host/db/AcGiWorldDraw.h"
#include "host/db/DxfDecodeContext.h"
#include "host/db/DxfRecordEditor.h"
#include "host/db/EntityMath.h"
#include "host/db/ExtentsDraw.h"

#include <gtest/gtest.h>

namespace {

// As a plug-in would write one: a room with a load, drawn as a point. Its class is registered while the test
// wants it.
class Room : public AcDbEntity {
 public:
  static AcRxClass*& current() {
    static AcRxClass* type = nullptr;
    return type;
  }
  static AcRxClass* desc() { return current(); }
  AcRxClass* isA() const override { return current(); }
  double load = 0;
  AcGePoint3d at;
  Acad::ErrorStatus setLoad(double value) { return assign(load, value); }
  Adesk::Boolean subWorldDraw(AcGiWorldDraw* draw) override {
    draw->subEntityTraits().setColor(3);
    draw->point(at);
    return Adesk::kTrue;
  }

 protected:
  void dxfInFields(DxfTags tags, const DxfDecodeContext& context) override {
    AcDbEntity::dxfInFields(tags, context);
    for (const DxfTag& tag : entity::FieldScope(tags)) {
      if (tag.code == 40) load = context.real(tag);
      if (tag.code == 10) at.x = context.real(tag);
    }
  }
  void dxfOutFields(DxfRecordEditor& editor) const override {
    AcDbEntity::dxfOutFields(editor);
    editor.subclass("VkDbHvacSpace");
    editor.point(10, at);
    editor.real(40, load);
  }
};

class RoomClass {
 public:
  RoomClass()
      : m_class(
            L"VkDbHvacSpace", &AcDbEntity::desc, "VKHVAC_SPACE", +[]() -> AcRxObject* { return new Room; },
            "负荷计算", 0) {
    Room::current() = &m_class;
  }

 private:
  AcRxClass m_class;
};

const std::string kRoom =
    "0 VKHVAC_SPACE\n5 A1\n100 AcDbEntity\n8 0\n100 VkDbHvacSpace\n10 7.0\n20 0.0\n30 0.0\n"
    "40 1250.5\n90 77\n1001 ACAD\n1000 x";

Room* roomAt(const AcDbObjectId& id) {
  return id.object()->isA() == Room::current() ? static_cast<Room*>(id.object()) : nullptr;
}

} // namespace

TEST(CustomClasses, AnEntityOfAPlugInIsReadDrawnAndChanged) {
  const RoomClass registered;
  const Opened opened = Open(DrawingOf(kRoom));
  ASSERT_TRUE(opened.ok()) << opened.error();
  const auto id = EntityAt(*opened.database, 0);
  Room* room = roomAt(id);
  ASSERT_TRUE(room);
  EXPECT_EQ(room->load, 1250.5);
  ExtentsDraw draw;
  room->worldDraw(draw);
  EXPECT_EQ(draw.extents().maxPoint().x, 7);
  EXPECT_EQ(draw.subEntityTraits().color(), 3);
  AcDbObjectPointer<AcDbEntity> open(id, AcDb::kForWrite);
  EXPECT_EQ(room->setLoad(900), Acad::eOk);
  const std::string text(room->record().text());
  EXPECT_NE(text.find(" 40\n900.0\n"), text.npos) << text;
  EXPECT_NE(text.find("90\n77\n"), text.npos) << text; // what the class does not know
}

TEST(CustomClasses, WithoutThePlugInNothingIsLost) {
  const std::string file = DrawingOf(kRoom);
  const Opened opened = Open(file);
  ASSERT_TRUE(opened.ok());
  EXPECT_TRUE(AcDbUnknownEntity::cast(EntityAt(*opened.database, 0).object()));
  EXPECT_NE(opened.saved().find("1250.5\n"), std::string::npos);
  EXPECT_EQ(opened.saved().find("CLASSES"), std::string::npos);
}

TEST(CustomClasses, FilesTellOfThemSoThatOthersKnowWhatTheyAre) {
  const RoomClass registered;
  AcDbDatabase database(false);
  dxf::BuildNewDrawing(database);
  {
    AcDbObjectPointer<AcDbBlockTableRecord> model(database.modelSpaceId(), AcDb::kForWrite);
    auto* room = new Room;
    room->load = 5;
    ASSERT_EQ(model->appendAcDbEntity(room), Acad::eOk);
    room->close();
  }
  std::string saved = dxf::WriteDrawingBytes(database);
  std::erase(saved, '\r');
  const std::string wanted =
      "  0\nCLASS\n  1\nVKHVAC_SPACE\n  2\nVkDbHvacSpace\n  3\n负荷计算\n 90\n0\n 91\n1\n280\n0\n281\n1\n";
  EXPECT_NE(saved.find(wanted), saved.npos);
  // Once, however often it is saved.
  std::string again = dxf::WriteDrawingBytes(database);
  std::erase(again, '\r');
  EXPECT_EQ(again, saved);
  const Opened back = Open(saved);
  ASSERT_TRUE(back.ok()) << back.error();
  Room* room = roomAt(EntityAt(*back.database, 0));
  ASSERT_TRUE(room);
  EXPECT_EQ(room->load, 5);
}

TEST(CustomClasses, ObjectsChangeTheirClassAsThePlugInComesAndGoes) {
  class Listener : public AcDbDatabaseReactor {
   public:
    CString application;
    std::vector<AcDbObjectId> objects;
    void proxyResurrectionCompleted(const AcDbDatabase*, const wchar_t* name,
                                    const std::vector<AcDbObjectId>& ids) override {
      application = name;
      objects = ids;
    }
  } listener;
  const Opened opened = Open(DrawingOf(kRoom));
  AcDbDatabase& database = *opened.database;
  const auto id = EntityAt(database, 0);
  const std::string before(id.object()->record().text());
  database.addReactor(&listener);
  {
    const RoomClass registered;
    ASSERT_FALSE(roomAt(id));
    acrxBuildClassHierarchy();
    ASSERT_TRUE(roomAt(id));
    EXPECT_EQ(listener.application, L"负荷计算");
    EXPECT_EQ(listener.objects, std::vector<AcDbObjectId>{id});
    EXPECT_EQ(id.object()->record().text(), before);
    database.undo().beginCommand(L"改");
    {
      AcDbObjectPointer<AcDbEntity> open(id, AcDb::kForWrite);
      roomAt(id)->setLoad(900);
    }
    database.undo().endCommand();
  }
  EXPECT_TRUE(AcDbUnknownEntity::cast(id.object()));
  EXPECT_NE(id.object()->record().text().find("900.0"), std::string_view::npos);
  // Undo works on records, whatever class they have now.
  EXPECT_EQ(database.undo().undo(), Acad::eOk);
  EXPECT_EQ(id.object()->record().text(), before);
  database.removeReactor(&listener);
}
