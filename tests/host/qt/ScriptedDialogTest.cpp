// A script goes on in the dialogs that it opens, and answers their message boxes.
#include "host/console/DialogInput.h"
#include "tests/host/qt/DialogView.h"

namespace {

class ScriptedDialog : public DialogView {
 protected:
  ScriptedDialog() { dialogs->scriptLine = console::ObeyModalLine; }
  static void script(const char* bytes) {
    EdSession::instance().input().push(std::make_unique<EdScriptSource>(L"s.scr", bytes));
  }
};

TEST_F(ScriptedDialog, IsDrivenByItsLines) {
  script("set 文字 = 甲\n; 说明\nedit 管材 1 管径 = DN40\n\nclick 确定\nLINE");
  result = dialog.DoModal();
  EXPECT_EQ(IDOK, result);
  EXPECT_EQ(CString(L"甲"), dialog.text.GetText());
  EXPECT_EQ(CString(L"DN40"), dialog.list.GetItemText(0, 1));
  EXPECT_EQ(L"LINE", EdSession::instance().input().read(L"?")->text) << "behind the dialog";
}

TEST_F(ScriptedDialog, IsLeftToTheUserAtTheScriptsEnd) {
  script("set 文字 = 甲");
  show({[&] { EXPECT_EQ(QStringLiteral("甲"), find<QLineEdit>("文字：").text()); }, [&] { press("取消"); }});
  EXPECT_EQ(IDCANCEL, result);
}

TEST_F(ScriptedDialog, IsLeftToTheUserAtALineThatCannotBeObeyed) {
  script("set 没有 = 甲\nclick 确定");
  bool open = false;
  show({[&] { open = top() != nullptr; }, [&] { press("取消"); }});
  EXPECT_TRUE(open);
  EXPECT_EQ(IDCANCEL, result);
  EXPECT_EQ(1, EdSession::instance().refusedLines());
  EXPECT_NE(std::string::npos, said().find("脚本到此停止"));
}

TEST_F(ScriptedDialog, AnswersMessageBoxes) {
  int answer = 0;
  dialog.add.Clicked.Connect(
      [&] { answer = dialog.MessageBox(L"删除吗？", L"提示", MB_YESNO | MB_ICONQUESTION); });
  script("click 添加\nanswer 否\nclick 确定");
  result = dialog.DoModal();
  EXPECT_EQ(IDNO, answer);
  EXPECT_EQ(IDOK, result);
}

TEST_F(ScriptedDialog, CanBeGivenUpByEscape) {
  script("*cancel*\nLINE");
  result = dialog.DoModal();
  EXPECT_EQ(IDCANCEL, result);
}

TEST_F(ScriptedDialog, TakesNoLineOfTheUser) {
  feed.submit(L"click 确定");
  show({[&] { press("取消"); }});
  EXPECT_EQ(IDCANCEL, result);
}

} // namespace
