// The small dialogs that the layer manager opens: for a name, and for a new scheme.
#include "tests/plugin/layers/dialogs/LayerManagerFixture.h"

namespace {

using namespace dialogtest;

class LayerNameDlg : public LayerManagerFixture {};

TEST_F(LayerNameDlg, InsistsOnAName) {
  CZPRenameDlg dialog(L"标题", L" 旧 ", nullptr);
  const int result = dialogtest::Run<CZPRenameDlg>(frontEnd, dialog, [&](CZPRenameDlg& open) {
    EXPECT_EQ(open.GetCaption(), L"标题");
    EXPECT_EQ(open.m_name.GetCaption(), L"名称：");
    EXPECT_EQ(open.m_name.GetText(), L" 旧 ");
    EXPECT_EQ(open.FocusControl(), &open.m_name);
    EXPECT_TRUE(open.m_name.UserType(L" \t"));
    EXPECT_TRUE(open.m_ok.UserClick());
    ASSERT_EQ(frontEnd.boxes.size(), 1u);
    EXPECT_EQ(frontEnd.boxes[0].caption, L"") << "none of its own";
    EXPECT_EQ(frontEnd.takeBox(), L"命称不能为空字符串，请重新输入。");
    EXPECT_EQ(open.FocusControl(), &open.m_name);
    EXPECT_FALSE(open.HasEnded());
    EXPECT_TRUE(open.m_name.UserType(L"  新 名 "));
    EXPECT_TRUE(open.m_ok.UserClick());
  });
  EXPECT_EQ(result, IDOK);
  EXPECT_EQ(dialog.Name(), L"新 名");
}

class AddSchemeDlg : public LayerManagerFixture {};

TEST_F(AddSchemeDlg, TakesOnlyANewName) {
  SaveScheme(L"乙方案", L"甲标识", L"甲层");
  CZPAddDlg dialog(nullptr);
  const int result = dialogtest::Run<CZPAddDlg>(frontEnd, dialog, [&](CZPAddDlg& open) {
    EXPECT_EQ(open.GetCaption(), L"添加图层方案");
    EXPECT_EQ(open.m_name.GetCaption(), L"方案名称：");
    EXPECT_EQ(open.m_source.GetCaption(), L"从此处复制方案：");
    EXPECT_EQ(open.m_add.GetCaption(), L"添加");
    EXPECT_EQ(open.m_cancel.GetCaption(), L"取消");
    EXPECT_EQ(Schemes(open.m_source), L"[默认方案] 乙方案");
    EXPECT_TRUE(open.m_add.UserClick());
    ASSERT_EQ(frontEnd.boxes.size(), 1u);
    EXPECT_EQ(frontEnd.boxes[0].caption, L"");
    EXPECT_EQ(frontEnd.takeBox(), L"名称不能为空字符串，请重新输入名称。");
    for (const wchar_t* name : {L" 乙方案 ", L"默认方案"}) {
      EXPECT_TRUE(open.m_name.UserType(name));
      EXPECT_TRUE(open.m_add.UserClick());
      ASSERT_EQ(frontEnd.boxes.size(), 1u);
      EXPECT_EQ(frontEnd.boxes[0].caption, L"");
      EXPECT_EQ(frontEnd.takeBox(), L"【" + CString(name).Trim() + L"】已经重名，请重新输入名称。");
      EXPECT_EQ(open.FocusControl(), &open.m_name);
    }
    EXPECT_TRUE(open.m_name.UserType(L"丙方案"));
    EXPECT_TRUE(open.m_add.UserClick());
    EXPECT_TRUE(open.HasEnded());
  });
  EXPECT_EQ(result, IDOK);
  EXPECT_EQ(dialog.Name(), L"丙方案");
  EXPECT_EQ(install.Read("Data/LayerManager/丙方案.idp"), install.Read("Data/LayerManager/默认方案.idp"));
}

TEST_F(AddSchemeDlg, StaysOpenWithoutAWordWhereTheFileCannotBeCopied) {
  std::filesystem::remove(install.Root() / "Data/LayerManager/默认方案.idp");
  CZPAddDlg dialog(nullptr);
  dialogtest::Run<CZPAddDlg>(frontEnd, dialog, [](CZPAddDlg& open) {
    EXPECT_TRUE(open.m_name.UserType(L"乙方案"));
    EXPECT_TRUE(open.m_add.UserClick());
    EXPECT_FALSE(open.HasEnded());
  });
  EXPECT_TRUE(frontEnd.boxes.empty());
  EXPECT_FALSE(HasScheme("乙方案"));
}

} // namespace
