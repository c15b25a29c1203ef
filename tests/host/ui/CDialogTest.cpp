#include "host/ui/CDialog.h"

#include "host/ui/CAcUiDockControlBar.h"
#include "host/ui/CButton.h"
#include "host/ui/CFrameWnd.h"
#include "host/ui/CNumberEdit.h"
#include "tests/support/UiFrontEndScript.h"

#include <gtest/gtest.h>

namespace {

class SmallDlg : public CDialog {
 public:
  SmallDlg() : CDialog(L"小") {
    m_ok.Clicked.Connect([this] { OnOK(); });
    m_number.Left.Connect([this] { m_closingWhenLeft = IsClosing(); });
  }
  void OnInitDialog() override {
    ++m_inits;
    if (m_endAtOnce) EndDialog(77);
  }
  void OnCancel() override {
    if (!m_refuseCancel) CDialog::OnCancel();
  }
  CNumberEdit m_number{*this, L"数"};
  CButton m_ok{*this, L"确定", CButton::Role::accept};
  int m_inits = 0;
  bool m_endAtOnce = false;
  bool m_refuseCancel = false;
  bool m_closingWhenLeft = false;
};

class Dialogs : public testing::Test {
 protected:
  UiFrontEndScript frontEnd;
  SmallDlg dialog;
};

TEST_F(Dialogs, GiveWhatTheyWereEndedWith) {
  frontEnd.runs = {[&](CDialog&) { EXPECT_TRUE(dialog.m_ok.UserClick()); }};
  EXPECT_EQ(dialog.DoModal(), IDOK);
  frontEnd.runs = {[&](CDialog&) { dialog.UserEscape(); }};
  EXPECT_EQ(dialog.DoModal(), IDCANCEL) << "a second time";
  frontEnd.runs = {[&](CDialog&) { EXPECT_TRUE(dialog.UserEnter()); }};
  EXPECT_EQ(dialog.DoModal(), IDOK);
  frontEnd.runs = {[&](CDialog&) {
    dialog.EndDialog(5);
    dialog.EndDialog(6);
  }};
  EXPECT_EQ(dialog.DoModal(), 5) << "the first end counts";
  EXPECT_EQ(dialog.m_inits, 4);
}

TEST_F(Dialogs, AreNotShownWhenTheirBeginningEndsThem) {
  dialog.m_endAtOnce = true;
  bool shown = false;
  frontEnd.runs = {[&](CDialog&) { shown = true; }};
  EXPECT_EQ(dialog.DoModal(), 77);
  EXPECT_FALSE(shown);
  EXPECT_FALSE(dialog.Create());
}

TEST_F(Dialogs, CanNotBeShownWithoutAFrontEnd) {
  UiFrontEnd::Set(nullptr);
  EXPECT_EQ(dialog.DoModal(), -1);
  EXPECT_FALSE(dialog.Create());
  EXPECT_EQ(AfxMessageBox(L"?", L"", MB_YESNO | MB_DEFBUTTON2), IDNO);
  UiFrontEnd::Set(&frontEnd);
}

TEST_F(Dialogs, TakeNoEventsAfterTheirEnd) {
  frontEnd.runs = {[&](CDialog&) {
    dialog.EndDialog(IDOK);
    EXPECT_FALSE(dialog.m_number.UserType(L"1"));
    EXPECT_FALSE(dialog.m_ok.UserClick());
    dialog.UserEscape();
    dialog.UserClose();
  }};
  EXPECT_EQ(dialog.DoModal(), IDOK);
}

TEST_F(Dialogs, LeaveTheFieldThatIsTypedIntoWhenTheyClose) {
  frontEnd.runs = {[&](CDialog&) {
    EXPECT_TRUE(dialog.m_number.UserType(L"1"));
    EXPECT_EQ(dialog.Editing(), &dialog.m_number);
    dialog.UserClose();
  }};
  EXPECT_EQ(dialog.DoModal(), IDCANCEL);
  EXPECT_TRUE(dialog.m_closingWhenLeft);
  EXPECT_FALSE(dialog.IsClosing());
}

TEST_F(Dialogs, MayRefuseToClose) {
  dialog.m_refuseCancel = true;
  frontEnd.runs = {[&](CDialog&) {
    dialog.UserClose();
    EXPECT_FALSE(dialog.HasEnded());
    EXPECT_FALSE(dialog.IsClosing());
    EXPECT_TRUE(dialog.m_ok.UserClick());
  }};
  EXPECT_EQ(dialog.DoModal(), IDOK);
}

TEST_F(Dialogs, RestWhileTheUserWorksInTheDrawing) {
  frontEnd.runs = {[&](CDialog&) {
    dialog.BeginEditorCommand();
    EXPECT_FALSE(dialog.m_ok.UserClick());
    dialog.CompleteEditorCommand();
    EXPECT_TRUE(dialog.m_ok.UserClick());
  }};
  EXPECT_EQ(dialog.DoModal(), IDOK);
}

TEST_F(Dialogs, TakeThoseBelowThemAlongWhileTheUserWorksInTheDrawing) {
  CDialog below(L"下"), above(L"上", &below);
  std::vector<CString> shown;
  const auto watch = [&](CDialog& watched) {
    return watched.Changed.Watch([&](const UiChange&) {
      if (watched.IsWindowVisible()) shown.push_back(watched.GetCaption());
    });
  };
  const UiConnection watches[] = {watch(below), watch(above)};
  above.BeginEditorCommand();
  EXPECT_FALSE(above.IsWindowVisible());
  EXPECT_FALSE(below.IsWindowVisible());
  above.CancelEditorCommand();
  EXPECT_EQ(shown, (std::vector<CString>{L"下", L"上"})) << "the upper one comes last, and thus on top";
}

TEST_F(Dialogs, TellTheFrontEndThatTheyAreGone) {
  const CFormWnd* gone = nullptr;
  {
    SmallDlg other;
    gone = &other;
    EXPECT_TRUE(other.Create());
    ASSERT_EQ(frontEnd.shown.size(), 1u);
  }
  ASSERT_EQ(frontEnd.gone.size(), 1u);
  EXPECT_EQ(frontEnd.gone[0], gone);
}

TEST_F(Dialogs, ForgetAControlThatGoes) {
  {
    CEdit passing(dialog, L"一时");
    EXPECT_TRUE(dialog.Create());
    EXPECT_TRUE(passing.UserType(L"x"));
    passing.SetFocus();
    EXPECT_EQ(dialog.Controls().size(), 3u);
  }
  EXPECT_EQ(dialog.Controls().size(), 2u);
  EXPECT_EQ(dialog.Editing(), nullptr);
  EXPECT_EQ(dialog.FocusControl(), nullptr);
}

TEST(MessageBoxes, WithoutACaptionShowTheProgramsName) {
  UiFrontEndScript frontEnd;
  EXPECT_EQ(AfxMessageBox(L"文字"), IDOK);
  ASSERT_EQ(frontEnd.boxes.size(), 1u);
  EXPECT_EQ(frontEnd.boxes[0].caption, L"");
  EXPECT_EQ(ShownCaption(frontEnd.boxes[0]), L"zpcad");
  EXPECT_EQ(ShownCaption(MakeMessageBox(L"文字", L"标题", MB_OK)), L"标题");
}

TEST(MessageBoxes, HaveTheButtonsAndTheIconOfTheirFlags) {
  const auto box = MakeMessageBox(L"文字", L"标题", MB_YESNOCANCEL | MB_ICONEXCLAMATION | MB_DEFBUTTON2);
  ASSERT_EQ(box.buttons.size(), 3u);
  EXPECT_EQ(box.buttons[0].caption, L"是");
  EXPECT_EQ(box.buttons[1].id, IDNO);
  EXPECT_EQ(box.buttons[2].id, IDCANCEL);
  EXPECT_EQ(box.defaultButton, 1u);
  EXPECT_EQ(box.icon, UiMessageBox::Icon::exclamation);
  EXPECT_EQ(MakeMessageBox(L"", L"", MB_OK | MB_DEFBUTTON2).defaultButton, 0u);
  EXPECT_EQ(MakeMessageBox(L"", L"", MB_OKCANCEL | MB_ICONQUESTION).icon, UiMessageBox::Icon::question);
  EXPECT_EQ(MakeMessageBox(L"", L"", MB_OK).icon, UiMessageBox::Icon::none);
}

TEST(DockBars, AreShownHiddenAndTakenAway) {
  UiFrontEndScript frontEnd;
  CFrameWnd frame;
  CAcUiDockControlBar bar;
  frame.ShowControlBar(&bar, true, true);
  EXPECT_TRUE(frontEnd.shown.empty()) << "not made yet";
  EXPECT_TRUE(bar.Create(&frame, L"图层"));
  EXPECT_FALSE(bar.Create(&frame, L"又一次"));
  EXPECT_EQ(bar.GetCaption(), L"图层");
  EXPECT_FALSE(bar.IsWindowVisible());
  frame.ShowControlBar(&bar, true, true);
  ASSERT_EQ(frontEnd.shown.size(), 1u);
  EXPECT_TRUE(bar.IsWindowVisible());
  bar.UserClose();
  EXPECT_FALSE(bar.IsWindowVisible());
  EXPECT_TRUE(bar.IsCreated());
  bar.DestroyWindow();
  EXPECT_EQ(frontEnd.gone.size(), 1u);
  EXPECT_TRUE(bar.Create(nullptr, L"图层"));
}

} // namespace
