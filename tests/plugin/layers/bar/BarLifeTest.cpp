// The one bar of the process, from the command that shows it to the one that takes it away, and the reactors
// that it leaves behind.
#include "tests/plugin/layers/bar/BarFixture.h"

#include "plugin/graph/DocumentData.h"
#include "plugin/layers/bar/CCADLayerDatabaseReactor.h"
#include "plugin/layers/bar/LayerControlBar.h"

namespace {

class BarLife : public BarFixture {
 protected:
  ~BarLife() override { layers::DestroyControlBar(); }
  static CCADLayerControlBar* BarOf(CFormWnd* shown) { return dynamic_cast<CCADLayerControlBar*>(shown); }
  static CCADLayerDatabaseReactor* Recorded() {
    return DocumentData().GetDocData(acDocManagerPtr()->curDocument()).m_pDatabaseReactor;
  }
};

TEST_F(BarLife, BeginsWithTheCommand) {
  layers::ShowControlBar();
  ASSERT_EQ(ui.shown.size(), 1u);
  CCADLayerControlBar* made = BarOf(ui.shown[0]);
  ASSERT_TRUE(made);
  EXPECT_EQ(made->GetCaption(), L"当前CAD图纸图层管理");
  EXPECT_EQ(made->DockedSide(), CAcUiDockControlBar::kDockLeft);
  EXPECT_TRUE(made->IsWindowVisible());
  EXPECT_EQ(made->m_grid.GetRowCount(), 5);
  EXPECT_EQ(frame.activations, 1);
}

TEST_F(BarLife, GoesOnWhenTheCommandComesAgain) {
  Group(L"采暖", {L"甲"});
  layers::ShowControlBar();
  CCADLayerControlBar* made = BarOf(ui.shown[0]);
  EXPECT_TRUE(made->m_sources.UserSelect(1));
  EXPECT_EQ(made->m_grid.GetRowCount(), 1);
  made->UserClose();
  EXPECT_FALSE(made->IsWindowVisible());
  Group(L"给水");
  WorkingDrawing::AddLayerTo(Database(), L"戊");
  layers::ShowControlBar();
  ASSERT_EQ(ui.shown.size(), 2u);
  EXPECT_EQ(BarOf(ui.shown[1]), made);
  EXPECT_TRUE(made->IsWindowVisible());
  EXPECT_EQ(made->m_sources.GetCount(), 3);
  EXPECT_EQ(made->m_sources.GetCurSel(), 0);
  EXPECT_EQ(made->m_grid.GetRowCount(), 6);
}

TEST_F(BarLife, EndsOnceWithItsWindow) {
  layers::DestroyControlBar();
  EXPECT_TRUE(ui.gone.empty()) << "there was none";
  layers::ShowControlBar();
  const CFormWnd* made = ui.shown[0];
  layers::DestroyControlBar();
  ASSERT_FALSE(ui.gone.empty());
  EXPECT_EQ(ui.gone.front(), made);
  layers::DestroyControlBar();
  layers::ShowControlBar();
  EXPECT_EQ(ui.shown.size(), 2u) << "a fresh one";
}

TEST_F(BarLife, IsPossibleWithoutAFrame) {
  editor.frame = nullptr;
  layers::ShowControlBar();
  EXPECT_TRUE(ui.shown.empty());
}

TEST_F(BarLife, AttachesAReactorToTheDocumentOfItsMaking) {
  EXPECT_EQ(Recorded(), nullptr);
  Open();
  ASSERT_EQ(bar.Reactors().GetSize(), 1);
  EXPECT_EQ(bar.Reactors()[0]->Document(), acDocManagerPtr()->curDocument());
  EXPECT_EQ(Recorded(), bar.Reactors()[0]);
  bar.Refresh();
  bar.DestroyWindow();
  EXPECT_TRUE(bar.Create(nullptr, L"")) << "made again, it has one for this document";
  EXPECT_EQ(bar.Reactors().GetSize(), 1);
}

TEST_F(BarLife, LeavesItsReactorAttached) {
  layers::ShowControlBar();
  const CCADLayerDatabaseReactor* first = Recorded();
  ASSERT_TRUE(first);
  layers::DestroyControlBar();
  EXPECT_EQ(Recorded(), first);
  EXPECT_EQ(first->Document(), acDocManagerPtr()->curDocument());
  layers::ShowControlBar();
  EXPECT_NE(Recorded(), first) << "the record names the newest";
  EXPECT_EQ(first->Document(), acDocManagerPtr()->curDocument());
}

TEST_F(BarLife, LeavesNoReactorInADocumentThatCloses) {
  AcApDocument* other = &acDocManagerPtr()->newDocument();
  Open();
  const CCADLayerDatabaseReactor* reactor = bar.Reactors()[0];
  EXPECT_EQ(reactor->Document(), other);
  EXPECT_EQ(acDocManagerPtr()->closeDocument(other), Acad::eOk);
  EXPECT_EQ(reactor->Document(), nullptr);
}

TEST_F(BarLife, IsNotRefreshedByTheReactor) {
  Open();
  CCADLayerDatabaseReactor* reactor = Recorded();
  Change(L"甲", &AcDbLayerTableRecord::setIsOff);
  reactor->objectModified(&Database(), &Layer(L"甲"));
  reactor->objectModified(&Database(), nullptr);
  reactor->headerSysVarChanged(&Database(), L"CLAYER", true);
  EXPECT_EQ(Icons(L"甲"), L"0 1 2");
}

class DatabaseReactor : public BarLife {};

TEST_F(DatabaseReactor, WatchesNothingWhenDetached) {
  CCADLayerDatabaseReactor reactor(false, acDocManagerPtr()->curDocument());
  EXPECT_EQ(reactor.Document(), nullptr);
  EXPECT_EQ(Recorded(), nullptr);
  const CCADLayerDatabaseReactor without(true, nullptr);
  EXPECT_EQ(without.Document(), nullptr);
}

TEST_F(DatabaseReactor, ClearsTheRecordWhicheverItNamed) {
  auto older = std::make_unique<CCADLayerDatabaseReactor>(true, acDocManagerPtr()->curDocument());
  const CCADLayerDatabaseReactor newer(true, acDocManagerPtr()->curDocument());
  EXPECT_EQ(Recorded(), &newer);
  older.reset();
  EXPECT_EQ(Recorded(), nullptr);
}

} // namespace
