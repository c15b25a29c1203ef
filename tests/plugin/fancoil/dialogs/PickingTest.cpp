// The manager of fan-coil units as siblings open it: for reading, and to pick a model.
#include "tests/plugin/fancoil/dialogs/FanCoilDialogs.h"

namespace {

class FanCoilPicking : public FanCoilDialogs {
 protected:
  FanCoilPicking() { AddTwoMakers(); }
};

TEST_F(FanCoilPicking, ReadsOnlyForSiblings) {
  int depth = -1;
  frontEnd.runs = {[&](CDialog& open) {
    auto& dialog = static_cast<Dlg&>(open);
    depth = static_cast<int>(acDocManagerPtr()->resourceDepth());
    for (CButton* button : {&dialog.m_add, &dialog.m_modify, &dialog.m_delete, &dialog.m_save}) {
      EXPECT_FALSE(button->IsWindowVisible());
      EXPECT_FALSE(button->UserClick());
    }
    Find(L"A", L"甲")->SetName(L"in memory");
    EXPECT_TRUE(dialog.m_install.UserType(L"明装"));
    EXPECT_TRUE(dialog.m_ok.UserClick());
  }};
  EXPECT_EQ(ZP::ShowFCUMngDlg(nullptr), IDOK);
  EXPECT_EQ(depth, 1);
  EXPECT_EQ(acDocManagerPtr()->resourceDepth(), 0u);
  EXPECT_EQ(Remembered(kInstallKey), L"明装");
  EXPECT_EQ(FileOutline(), L"") << "the catalogue isn't written";
  frontEnd.runs = {[&](CDialog& open) { open.UserEscape(); }};
  EXPECT_EQ(ZP::ShowFCUMngDlg(nullptr), IDCANCEL);
}

TEST_F(FanCoilPicking, PicksAModelForSiblings) {
  CFCUEquipment* equipment = Find(L"B", L"甲");
  frontEnd.runs = {[&](CDialog& open) {
    auto& dialog = static_cast<Dlg&>(open);
    EXPECT_EQ(Outline(dialog.m_tree), L"风机盘管(甲(A [B] C )乙(A ))");
    EXPECT_FALSE(dialog.m_save.IsWindowVisible());
    EXPECT_TRUE(dialog.m_tree.UserSelect(Item(dialog.m_tree, L"C")));
    EXPECT_TRUE(dialog.UserEnter());
  }};
  EXPECT_EQ(ZP::ShowFCUMngDlg(equipment, nullptr), 1);
  EXPECT_EQ(equipment, Find(L"C", L"甲"));
  frontEnd.runs = {[&](CDialog& open) {
    EXPECT_TRUE(static_cast<Dlg&>(open).m_tree.UserSelect(Item(static_cast<Dlg&>(open).m_tree, L"A")));
    open.UserClose();
  }};
  EXPECT_EQ(ZP::ShowFCUMngDlg(equipment, nullptr), 0);
  EXPECT_EQ(equipment, Find(L"C", L"甲"));
  equipment = nullptr;
  frontEnd.runs = {[](CDialog& open) { EXPECT_TRUE(open.UserEnter()); }};
  EXPECT_EQ(ZP::ShowFCUMngDlg(equipment, nullptr), 0) << "nothing is selected";
  EXPECT_EQ(equipment, nullptr);
}

TEST_F(FanCoilPicking, GivesMinusOneWhereNothingCanBeShown) {
  UiFrontEnd::Set(nullptr);
  CFCUEquipment* equipment = Find(L"B", L"甲");
  EXPECT_EQ(ZP::ShowFCUMngDlg(nullptr), -1);
  EXPECT_EQ(ZP::ShowFCUMngDlg(equipment, nullptr), 0);
  EXPECT_EQ(ZP::ShowCommonFCUMngDlg(equipment), -1);
  EXPECT_EQ(equipment, Find(L"B", L"甲"));
  UiFrontEnd::Set(&frontEnd);
}

} // namespace
