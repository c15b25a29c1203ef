// What users should not do to the layer manager, and do.
#include "host/afx/MessageLog.h"
#include "plugin/layers/dialogs/CZPBatchModifyDlg.h"
#include "tests/plugin/layers/dialogs/LayerManagerFixture.h"
#include "tests/support/AwkwardNames.h"
#include "tests/support/ReadOnlyFolder.h"

namespace {

using namespace dialogtest;

constexpr const char* kFile = "Data/LayerManager/默认方案.idp";
constexpr int kTextColumns[] = {2, 7, 8};

std::vector<CString> AwkwardTexts() {
  auto texts = AwkwardNames();
  texts.push_back(CString(std::wstring(100000, L'层')));
  return texts;
}

class BadLayerInput : public LayerManagerFixture {};

TEST_F(BadLayerInput, InTextsIsKeptAsItIs) {
  for (const CString& text : AwkwardTexts()) {
    In([&](Dlg& dialog) {
      for (const int column : kTextColumns) EXPECT_TRUE(Edit(dialog.m_grid, 1, column, text));
      EXPECT_TRUE(dialog.m_ok.UserClick());
    });
    const CZPLayer& layer = Of(L"供水干管");
    EXPECT_EQ(layer.GetUserLayer(), text);
    EXPECT_EQ(layer.GetLayerCode(), text);
    EXPECT_EQ(layer.GetRemarks(), text);
  }
  EXPECT_TRUE(frontEnd.boxes.empty());
}

TEST_F(BadLayerInput, InNamesOfNodesIsKeptAsItIs) {
  for (const CString& text : AwkwardTexts()) {
    const CString name = CString(text).Trim();
    if (name.IsEmpty()) continue;
    In([&](Dlg& dialog) {
      for (HTREEITEM node : {dialog.m_tree.m_tree.GetRootItem()->children[0].get(),
                             dialog.m_tree.m_tree.GetRootItem()->children[0]->children[0].get()}) {
        WillName(L"重命名", text);
        EXPECT_TRUE(dialog.m_tree.m_tree.UserOpenMenu(node));
        EXPECT_TRUE(Choose(dialog.m_tree.m_tree.Menu, L"重命名"));
      }
      EXPECT_TRUE(dialog.m_ok.UserClick());
    });
    EXPECT_EQ(scheme.Categories()[0]->GetName(), name);
    EXPECT_EQ(scheme.Categories()[0]->Groups()[0]->GetName(), name);
  }
}

TEST_F(BadLayerInput, InNamesOfSchemesIsAFileOrNone) {
  for (const CString& text : AwkwardTexts()) {
    const CString name = CString(text).Trim();
    if (name.IsEmpty()) continue;
    CZPAddDlg dialog(nullptr);
    const int result = dialogtest::Run<CZPAddDlg>(frontEnd, dialog, [&](CZPAddDlg& open) {
      EXPECT_TRUE(open.m_name.UserType(text));
      EXPECT_TRUE(open.m_add.UserClick());
    });
    const auto names = layers::SchemeNames();
    const bool made = std::find(names.begin(), names.end(), name) != names.end();
    EXPECT_EQ(result == IDOK, made) << Utf8(name.Left(40));
    if (!made) continue;
    EXPECT_TRUE(scheme.ReadData(name));
    EXPECT_EQ(Layers(), L"供水干管=暖通-供水 回水干管=暖通-回水 风机盘管=暖通-盘管 采暖供水=暖通-采暖");
    EXPECT_TRUE(layers::DeleteScheme(name));
  }
  EXPECT_TRUE(frontEnd.boxes.empty());
  int files = 0;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(install.Root()))
    files += entry.is_regular_file() ? 1 : 0;
  EXPECT_EQ(files, 1) << "nothing is left anywhere else";
}

TEST_F(BadLayerInput, NeverLeavesTheFolderOfTheSchemes) {
  for (const wchar_t* name : {L"../外面", L"..\\外面", L"a/b", L"/x/y", L"C:\\x"}) {
    EXPECT_FALSE(layers::CopyScheme(L"默认方案", name)) << Utf8(name);
    EXPECT_FALSE(layers::DeleteScheme(name)) << Utf8(name);
  }
  EXPECT_FALSE(install.Has("Data/外面.idp"));
}

TEST_F(BadLayerInput, IsForgottenWhenTheWindowCloses) {
  const std::string before = install.Read(kFile);
  CloseInTheMiddleOfEachEdit<Dlg>(frontEnd, &Dlg::m_grid, [] { return std::make_unique<Dlg>(); });
  EXPECT_EQ(install.Read(kFile), before);
  EXPECT_EQ(Data(Of(L"供水干管")), L"供水干管|暖通-供水|3|Continuous|1|0.5|M-LRG|供水");
}

TEST_F(BadLayerInput, DoesNotSurviveTheRowOrTheNodeThatIsDeleted) {
  In([&](Dlg& dialog) {
    frontEnd.answers = {IDOK, IDOK};
    EXPECT_TRUE(dialog.m_grid.UserBeginEdit(1, 2));
    EXPECT_TRUE(dialog.m_grid.UserTypeEdit(L"x"));
    EXPECT_TRUE(RowMenu(dialog, 1, L"删除图层"));
    EXPECT_EQ(frontEnd.takeBox(), L"删除不可恢复，确定要删除[x]图层吗？") << "the edit is finished first";
    EXPECT_FALSE(dialog.m_grid.CurrentEdit());
    EXPECT_TRUE(dialog.m_grid.UserBeginEdit(1, 2));
    EXPECT_TRUE(dialog.m_grid.UserTypeEdit(L"y"));
    EXPECT_TRUE(NodeMenu(dialog, L"管线", L"删除分组"));
    EXPECT_FALSE(dialog.m_grid.CurrentEdit());
    EXPECT_EQ(Layers(), L"风机盘管=暖通-盘管 采暖供水=暖通-采暖");
  });
}

TEST_F(BadLayerInput, IsFinishedBeforeAnotherSchemeIsChosen) {
  SaveScheme(L"乙方案", L"甲标识", L"甲层");
  In([&](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_grid.UserBeginEdit(1, 2));
    EXPECT_TRUE(dialog.m_grid.UserTypeEdit(L"打完的"));
    EXPECT_TRUE(dialog.m_schemes.UserSelect(1));
    EXPECT_TRUE(dialog.m_schemes.UserSelect(0));
    EXPECT_EQ(Of(L"供水干管").GetUserLayer(), L"打完的");
  });
}

TEST_F(BadLayerInput, IntoAFolderThatIsReadOnlyLeavesTheFileAndTellsTheLog) {
  SaveScheme(L"乙方案", L"甲标识", L"甲层");
  std::filesystem::permissions(install.Root(), std::filesystem::perms(0755)); // others may look, too
  const std::string before = install.Read(kFile);
  afx::ClearLoggedMessages();
  {
    const ReadOnlyFolder folder((install.Root() / kFile).parent_path());
    if (!folder.Holds()) GTEST_SKIP() << "permissions do not hold root back";
    In([&](Dlg& dialog) {
      EXPECT_TRUE(Edit(dialog.m_grid, 1, 2, L"改名"));
      EXPECT_TRUE(dialog.m_apply.UserClick());
      EXPECT_EQ(Of(L"供水干管").GetUserLayer(), L"改名") << "while the window is open";
      WillAdd(L"丙方案", L"默认方案");
      EXPECT_TRUE(dialog.m_add.UserClick());
      EXPECT_EQ(Schemes(dialog.m_schemes), L"[默认方案] 乙方案") << "no copy was made";
      EXPECT_TRUE(dialog.m_schemes.UserSelect(1));
      frontEnd.answers = {IDOK};
      EXPECT_TRUE(dialog.m_remove.UserClick());
      EXPECT_EQ(Schemes(dialog.m_schemes), L"默认方案 [乙方案]");
    });
  }
  EXPECT_EQ(install.Read(kFile), before);
  EXPECT_TRUE(HasScheme("乙方案"));
  EXPECT_FALSE(afx::LoggedMessages().empty());
}

TEST_F(BadLayerInput, InTheLinesForSeveralLayersIsKeptAsItIs) {
  for (const CString& text : AwkwardTexts())
    In([&](Dlg& dialog) {
      frontEnd.runs.push_back([&](CDialog& open) {
        auto& lines = dynamic_cast<CZPBatchModifyDlg&>(open).m_lines;
        for (const wchar_t* label : {L"图层名称", L"线型比例", L"图层代号", L"图层备注"})
          EXPECT_TRUE(lines.UserSetText(lines.FindItem(label), text));
        EXPECT_TRUE(open.UserEnter());
      });
      EXPECT_TRUE(RowMenu(dialog, 1, L"批量修改"));
      EXPECT_EQ(Of(L"供水干管").GetUserLayer(), text);
      EXPECT_EQ(Of(L"供水干管").GetLineTypeScale(), 0);
      EXPECT_EQ(Of(L"供水干管").GetLayerCode(), text);
      EXPECT_EQ(Of(L"供水干管").GetRemarks(), text);
    });
}

} // namespace
