#include "tests/host/db/DrawingFixture.h"

#include "host/db/AcDbDatabaseReactor.h"
#include "host/db/AcDbObjectReactor.h"
#include "host/db/AcDbXrecord.h"

#include <string>

namespace {

// Writes down what it is told, in words.
class Listener : public AcDbDatabaseReactor {
 public:
  std::vector<std::string> told;
  void objectAppended(const AcDbDatabase*, const AcDbObject*) override { told.push_back("appended"); }
  void objectUnAppended(const AcDbDatabase*, const AcDbObject*) override { told.push_back("unappended"); }
  void objectReAppended(const AcDbDatabase*, const AcDbObject*) override { told.push_back("reappended"); }
  void objectOpenedForModify(const AcDbDatabase*, const AcDbObject*) override { told.push_back("opened"); }
  void objectModified(const AcDbDatabase*, const AcDbObject*) override { told.push_back("modified"); }
  void objectErased(const AcDbDatabase*, const AcDbObject*, bool erased) override {
    told.push_back(erased ? "erased" : "unerased");
  }
  void headerSysVarWillChange(const AcDbDatabase*, const wchar_t* name) override {
    told.push_back("will " + CString(name).ToUtf8());
  }
  void headerSysVarChanged(const AcDbDatabase*, const wchar_t* name, bool success) override {
    told.push_back((success ? "did " : "failed ") + CString(name).ToUtf8());
  }
  void goodbye(const AcDbDatabase*) override { told.push_back("goodbye"); }
};

class ObjectListener : public AcDbObjectReactor {
 public:
  std::vector<std::string> told;
  void openedForModify(const AcDbObject*) override { told.push_back("opened"); }
  void modified(const AcDbObject*) override { told.push_back("modified"); }
  void erased(const AcDbObject*, bool erasing) override { told.push_back(erasing ? "erased" : "unerased"); }
  void objectClosed(const AcDbObjectId&) override { told.push_back("closed"); }
  void unappended(const AcDbObject*) override { told.push_back("unappended"); }
  void reappended(const AcDbObject*) override { told.push_back("reappended"); }
  void goodbye(const AcDbObject*) override { told.push_back("goodbye"); }
};

using Words = std::vector<std::string>;

} // namespace

using Reactors = Drawing;

TEST_F(Reactors, OfTheDrawingHearOfEveryObject) {
  Listener listener;
  db.addReactor(&listener);
  const auto id = addLine();
  EXPECT_EQ(std::count(listener.told.begin(), listener.told.end(), "appended"), 1);
  listener.told.clear();
  AcDbObjectPointer<AcDbLine>(id, AcDb::kForWrite)->setColorIndex(3);
  EXPECT_EQ(listener.told, (Words{"opened", "modified"}));
  listener.told.clear();
  AcDbObjectPointer<AcDbLine>(id, AcDb::kForWrite).close(); // nothing changed
  EXPECT_EQ(listener.told, Words{});
  AcDbObjectPointer<AcDbLine>(id, AcDb::kForWrite)->erase();
  EXPECT_EQ(listener.told.front(), "opened");
  EXPECT_EQ(listener.told[1], "erased");
  listener.told.clear();
  AcDbObjectPointer<AcDbLine>(id, AcDb::kForWrite, true)->erase(false);
  EXPECT_EQ(listener.told[1], "unerased");
  db.removeReactor(&listener);
  addLine();
  EXPECT_EQ(std::count(listener.told.begin(), listener.told.end(), "appended"), 0);
}

TEST_F(Reactors, OfTheDrawingHearOfLayers) {
  struct Layers : AcDbDatabaseReactor {
    std::vector<CString> modified;
    void objectModified(const AcDbDatabase*, const AcDbObject* object) override {
      if (const auto* layer = AcDbLayerTableRecord::cast(object)) modified.push_back(layer->name());
    }
  } layers;
  const auto id = addLayer(L"采暖");
  db.addReactor(&layers);
  {
    AcDbObjectPointer<AcDbLayerTableRecord> open(id, AcDb::kForWrite);
    open->setIsOff(true);
    open->setIsLocked(true);
  }
  addLine();
  EXPECT_EQ(layers.modified, std::vector<CString>{L"采暖"}) << "once for each opening, and of nothing else";
  db.removeReactor(&layers);
}

TEST_F(Reactors, HearOfUndoAndRedo) {
  db.undo().beginCommand(L"LINE");
  addLine();
  db.undo().endCommand();
  Listener listener;
  db.addReactor(&listener);
  db.undo().undo();
  EXPECT_EQ(std::count(listener.told.begin(), listener.told.end(), "unappended"), 1);
  db.undo().redo();
  EXPECT_EQ(std::count(listener.told.begin(), listener.told.end(), "reappended"), 1);
  db.removeReactor(&listener);
}

TEST_F(Reactors, HearOfSettings) {
  Listener listener;
  db.addReactor(&listener);
  db.setClayer(addLayer(L"管线"));
  const auto will = std::find(listener.told.begin(), listener.told.end(), "will CLAYER");
  const auto did = std::find(listener.told.begin(), listener.told.end(), "did CLAYER");
  ASSERT_NE(will, listener.told.end());
  ASSERT_NE(did, listener.told.end());
  EXPECT_LT(will - listener.told.begin(), did - listener.told.begin());
  db.removeReactor(&listener);
}

TEST(ReactorEnds, ADrawingSaysGoodbye) {
  Listener listener;
  {
    AcDbDatabase db;
    db.addReactor(&listener);
    db.addReactor(&listener); // counts once
  }
  EXPECT_EQ(listener.told, Words{"goodbye"});
}

TEST_F(Reactors, OfAnObjectHearOfItAlone) {
  const auto id = addLine();
  const auto other = addLine();
  ObjectListener listener;
  AcDbObjectPointer<AcDbLine>(id, AcDb::kForRead)->addReactor(&listener);
  AcDbObjectPointer<AcDbLine>(other, AcDb::kForWrite)->setColorIndex(1);
  EXPECT_EQ(listener.told, Words{});
  AcDbObjectPointer<AcDbLine>(id, AcDb::kForWrite)->setColorIndex(1);
  EXPECT_EQ(listener.told, (Words{"opened", "modified", "closed"}));
  listener.told.clear();
  AcDbObjectPointer<AcDbLine>(id, AcDb::kForWrite)->erase();
  EXPECT_EQ(listener.told, (Words{"opened", "erased", "modified", "closed"}));
  EXPECT_EQ(id.object()->removeReactor(&listener), Acad::eOk);
  EXPECT_EQ(id.object()->removeReactor(&listener), Acad::eKeyNotFound);
}

TEST_F(Reactors, OfAnObjectOutsideADrawingAreRefused) {
  ObjectListener listener;
  AcDbLine line;
  EXPECT_EQ(line.addReactor(&listener), Acad::eNoDatabase);
  EXPECT_EQ(line.addReactor(nullptr), Acad::eNullObjectPointer);
}

TEST(ReactorEnds, AnObjectSaysGoodbyeWithItsDrawing) {
  ObjectListener listener;
  {
    AcDbDatabase db;
    db.modelSpaceId().object()->addReactor(&listener);
  }
  EXPECT_EQ(listener.told, Words{"goodbye"});
}

TEST_F(Reactors, MayRemoveThemselvesWhileTheyAreTold) {
  class Once : public AcDbObjectReactor {
   public:
    int times = 0;
    void modified(const AcDbObject* object) override {
      ++times;
      const_cast<AcDbObject*>(object)->removeReactor(this);
    }
  } once;
  const auto id = addLine();
  id.object()->addReactor(&once);
  for (int i = 1; i < 4; ++i) AcDbObjectPointer<AcDbLine>(id, AcDb::kForWrite)->setColorIndex(i);
  EXPECT_EQ(once.times, 1);
}

TEST_F(Reactors, PersistentOnesStandInTheRecord) {
  const auto id = addLine();
  const auto watcher = addLine();
  AcDbObjectPointer<AcDbLine> line(id, AcDb::kForWrite);
  EXPECT_EQ(line->addPersistentReactor(watcher), Acad::eOk);
  EXPECT_EQ(line->addPersistentReactor(watcher), Acad::eDuplicateKey);
  EXPECT_TRUE(line->hasPersistentReactor(watcher));
  const std::string text(line->record().text());
  EXPECT_NE(text.find("102\n{ACAD_REACTORS\n330\n" + watcher.handle().toHex() + "\n102\n}\n"), text.npos)
      << text;
  EXPECT_EQ(line->removePersistentReactor(watcher), Acad::eOk);
  EXPECT_EQ(line->removePersistentReactor(watcher), Acad::eKeyNotFound);
  EXPECT_EQ(line->record().text().find("ACAD_REACTORS"), std::string_view::npos);
}
