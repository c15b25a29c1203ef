#include "host/ed/ViewState.h"
#include "tests/host/commands/CommandFixture.h"

namespace {

class ZoomCommand : public CommandFixture {
 protected:
  EdView view() { return ed::CurrentView(*curDoc()); }
};

} // namespace

TEST_F(ZoomCommand, AllShowsWhatIsDrawnWithRoomAround) {
  addLine({0, 0, 0}, {100, 10, 0});
  run(L"ZOOM", {L"A"});
  EXPECT_EQ(AcGePoint2d(50, 5), view().centre);
  EXPECT_NEAR(105, view().width(), 1e-9);
  run(L"ZOOM", {L""});
  EXPECT_NEAR(105, view().width(), 1e-9);
}

TEST_F(ZoomCommand, AWindowIsGivenByItsCorners) {
  run(L"ZOOM", {L"0,0", L"1,10"});
  EXPECT_NEAR(10.5, view().height, 1e-9);
  run(L"ZOOM", {L"W", L"20,20", L"0,0"});
  EXPECT_EQ(AcGePoint2d(10, 10), view().centre);
  run(L"ZOOM", {L"W", L"20,20", L"0,20"});
  EXPECT_GE(reason().Find(L"窗口没有大小"), 0);
}

TEST_F(ZoomCommand, PreviousGoesBackToTheFirstView) {
  const auto first = view();
  run(L"ZOOM", {L"C", L"7,8", L"30"});
  EXPECT_EQ(30.0, view().height);
  run(L"ZOOM", {L"S", L"2"});
  EXPECT_EQ(15.0, view().height);
  run(L"ZOOM", {L"P"});
  run(L"ZOOM", {L"P"});
  EXPECT_EQ(first.height, view().height);
  EXPECT_EQ(first.centre, view().centre);
  run(L"ZOOM", {L"P"});
  EXPECT_GE(reason().Find(L"没有上一个视图"), 0);
}

TEST_F(ZoomCommand, ViewsOfNoSizeAreRefused) {
  run(L"ZOOM", {L"S", L"1e-320"});
  EXPECT_TRUE(refused());
  run(L"ZOOM", {L"A"});
  EXPECT_TRUE(frontEnd.said(L"没有可显示的实体"));
}

TEST_F(ZoomCommand, TheViewIsSavedWithTheDrawingAndIsNoChangeOfIt) {
  run(L"ZOOM", {L"C", L"7,8", L"30"});
  EXPECT_FALSE(database().isModified());
  run(L"SAVEAS", {file("view.dxf").GetString()});
  run(L"OPEN", {file("view.dxf").GetString()});
  EXPECT_EQ(30.0, view().height);
  EXPECT_EQ(AcGePoint2d(7, 8), view().centre);
  run(L"SETVAR", {L"VIEWSIZE"});
  EXPECT_TRUE(frontEnd.said(L"30"));
}
