// The small controls: what they hold, what they refuse and what they tell.
#include "host/afx/CInvalidArgException.h"
#include "host/ui/CButton.h"
#include "host/ui/CCheckBox.h"
#include "host/ui/CComboBox.h"
#include "host/ui/CListBox.h"
#include "host/ui/CMutiTreeCtrl.h"
#include "host/ui/CNumberEdit.h"
#include "host/ui/CPropTree.h"
#include "host/ui/CRadioGroup.h"
#include "host/ui/CTabSheet.h"
#include "tests/host/ui/OpenForm.h"

namespace {

class Controls : public OpenForm {
 protected:
  int told = 0;
  std::function<void()> Count() {
    return [this] { ++told; };
  }
};

TEST_F(Controls, TellTheUsersEventsAndNotTheProgramsOwn) {
  CCheckBox box(form, L"框");
  box.Clicked.Connect(Count());
  box.SetCheck(true);
  EXPECT_EQ(told, 0);
  EXPECT_TRUE(box.UserCheck(false));
  EXPECT_FALSE(box.GetCheck());
  EXPECT_EQ(told, 1);
}

TEST_F(Controls, RefuseEventsWhileTheyAreDisabledOrHidden) {
  CButton button(form, L"按钮");
  button.Clicked.Connect(Count());
  button.EnableWindow(false);
  const auto refusal = button.UserClick();
  EXPECT_EQ(refusal.reason, L"“按钮”现在不可用。");
  button.EnableWindow(true);
  button.ShowWindow(false);
  EXPECT_FALSE(button.UserClick());
  button.ShowWindow(true);
  form.EnableWindow(false);
  EXPECT_FALSE(button.UserClick()) << "with all of its form";
  form.EnableWindow(true);
  EXPECT_TRUE(button.UserClick());
  EXPECT_EQ(told, 1);
}

TEST_F(Controls, RadioGroupsHaveOneChoice) {
  CRadioGroup radios(form, L"字体", {L"一", L"二"});
  radios.Clicked.Connect(Count());
  EXPECT_EQ(radios.GetCurSel(), -1);
  EXPECT_TRUE(radios.UserSelect(1));
  EXPECT_FALSE(radios.UserSelect(2));
  EXPECT_FALSE(radios.UserSelect(-1));
  EXPECT_EQ(radios.GetCurSel(), 1);
  EXPECT_EQ(told, 1);
  radios.SetCurSel(9);
  EXPECT_EQ(radios.GetCurSel(), -1);
}

TEST_F(Controls, FieldsTellTypingAndLeaving) {
  CEdit edit(form, L"名称");
  int left = 0;
  edit.TextChanged.Connect(Count());
  edit.Left.Connect([&] { ++left; });
  edit.UserLeave();
  EXPECT_EQ(left, 0) << "nothing was typed";
  EXPECT_TRUE(edit.UserType(L"a"));
  EXPECT_TRUE(edit.UserType(L"a"));
  EXPECT_EQ(told, 1);
  edit.UserLeave();
  edit.UserLeave();
  EXPECT_EQ(left, 1);
  edit.SetReadOnly(true);
  EXPECT_FALSE(edit.UserType(L"b"));
  edit.SetText(L"c");
  EXPECT_EQ(told, 1);
  EXPECT_EQ(edit.GetText(), L"c");
}

TEST_F(Controls, AFieldIsLeftBeforeTheNextEventElsewhere) {
  CEdit edit(form, L"名称");
  CButton button(form, L"按钮");
  std::vector<int> order;
  edit.Left.Connect([&] { order.push_back(1); });
  button.Clicked.Connect([&] { order.push_back(2); });
  EXPECT_TRUE(edit.UserType(L"a"));
  EXPECT_TRUE(button.UserClick());
  EXPECT_EQ(order, (std::vector<int>{1, 2}));
}

TEST_F(Controls, NumberFieldsTakeWhatMayBecomeANumber) {
  CNumberEdit edit(form, L"比例");
  for (const wchar_t* text : {L"", L"-", L"1", L"1.", L".5", L"-1.5e", L"1e-3", L" 7 ", L"+3"})
    EXPECT_TRUE(edit.UserType(text)) << CString(text).ToUtf8();
  for (const wchar_t* text : {L"abc", L"1,5", L"1.2.3", L"--1", L"nan", L"inf", L"0x10", L"１"})
    EXPECT_FALSE(edit.UserType(text)) << CString(text).ToUtf8();
  EXPECT_EQ(edit.GetValue(), 3);
  EXPECT_TRUE(edit.UserType(L"-"));
  EXPECT_EQ(edit.GetValue(), 0);
  edit.SetValue(2, 2);
  EXPECT_EQ(edit.GetText(), L"2.00");
  edit.SetValue(2, 2, true);
  EXPECT_EQ(edit.GetText(), L"2");
}

TEST_F(Controls, SpinButtonsStopAtTheirFloor) {
  CNumberEdit edit(form, L"系数", CNumberEdit::Spin{0.1, 0, 2});
  edit.TextChanged.Connect(Count());
  edit.SetText(L"0.05");
  EXPECT_TRUE(edit.UserStep(-1));
  EXPECT_EQ(edit.GetText(), L"0");
  EXPECT_TRUE(edit.UserStep(-1));
  EXPECT_EQ(told, 1) << "0 stays 0";
  EXPECT_TRUE(edit.UserStep(3));
  EXPECT_EQ(edit.GetText(), L"0.3");
  EXPECT_TRUE(edit.UserType(L"-5")) << "typed values are not limited";
  CNumberEdit plain(form, L"无");
  EXPECT_FALSE(plain.UserStep(1));
}

TEST_F(Controls, CombosChooseFromTheirList) {
  CComboBox combo(form, L"方案");
  combo.SelectionChanged.Connect(Count());
  int data = 0;
  combo.AddString(L"默认方案");
  combo.AddString(L"方案二", &data);
  EXPECT_EQ(combo.GetItemData(1), &data);
  EXPECT_TRUE(combo.UserSelect(1));
  EXPECT_FALSE(combo.UserSelect(2));
  EXPECT_FALSE(combo.UserType(L"没有"));
  EXPECT_TRUE(combo.UserType(L"默认方案"));
  EXPECT_EQ(told, 2);
  EXPECT_EQ(combo.GetCurSel(), 0);
  combo.InsertString(0, L"新");
  EXPECT_EQ(combo.GetCurSel(), 1);
  combo.DeleteString(0);
  EXPECT_EQ(combo.GetText(), L"默认方案");
  combo.DeleteString(0);
  EXPECT_EQ(combo.GetCurSel(), -1);
  EXPECT_EQ(combo.GetText(), L"");
  EXPECT_THROW(combo.GetLBText(1), CInvalidArgException);
  combo.SetText(L"没有");
  EXPECT_EQ(combo.GetText(), L"");
}

TEST_F(Controls, CombosMayTakeFreeText) {
  CComboBox combo(form, L"温度", CComboBox::Text::free);
  combo.AddString(L"95");
  EXPECT_TRUE(combo.UserType(L"47.5"));
  EXPECT_EQ(combo.GetText(), L"47.5");
  EXPECT_EQ(combo.GetCurSel(), -1);
  EXPECT_TRUE(combo.UserType(L"95"));
  EXPECT_EQ(combo.GetCurSel(), 0);
}

TEST_F(Controls, ListsSelectAndDoubleClick) {
  CListBox list(form, L"样式");
  int doubled = 0;
  list.SelectionChanged.Connect(Count());
  list.DoubleClicked.Connect([&] { ++doubled; });
  list.AddString(L"甲");
  list.AddString(L"乙");
  EXPECT_TRUE(list.UserDoubleClick(1));
  EXPECT_FALSE(list.UserDoubleClick(2));
  EXPECT_EQ(list.SelectedText(), L"乙");
  EXPECT_EQ(told, 1);
  EXPECT_EQ(doubled, 1);
  list.InsertString(0, L"丙");
  EXPECT_EQ(list.GetCurSel(), 2);
  list.DeleteString(2);
  EXPECT_EQ(list.GetCurSel(), -1);
  EXPECT_EQ(list.SelectedText(), L"");
  EXPECT_EQ(list.FindStringExact(L"甲"), 1);
  EXPECT_THROW(list.DeleteString(2), CInvalidArgException);
  list.ResetContent();
  EXPECT_EQ(list.GetCount(), 0);
}

TEST_F(Controls, TreesHaveItemsBelowItems) {
  CTreeCtrl tree(form, L"树");
  tree.SelectionChanged.Connect(Count());
  HTREEITEM root = tree.InsertItem(L"根", nullptr, this);
  HTREEITEM branch = tree.InsertItem(L"枝", root);
  HTREEITEM leaf = tree.InsertItem(L"叶", branch);
  CString walked;
  tree.Walk([&](HTREEITEM item) {
    walked += item->text;
    return true;
  });
  EXPECT_EQ(walked, L"根枝叶");
  EXPECT_TRUE(tree.UserSelect(leaf));
  EXPECT_TRUE(branch->expanded && root->expanded);
  EXPECT_FALSE(tree.UserSelect(nullptr));
  EXPECT_FALSE(tree.UserDoubleClick(nullptr));
  EXPECT_EQ(tree.Find([](const UiTreeItem& item) { return item.text == L"枝"; }), branch);
  EXPECT_EQ(tree.GetParentItem(leaf), branch);
  tree.DeleteItem(branch);
  EXPECT_EQ(tree.GetSelectedItem(), nullptr) << "it was below";
  EXPECT_FALSE(tree.ItemHasChildren(root));
  EXPECT_EQ(told, 1);
  tree.DeleteAllItems();
  EXPECT_EQ(tree.GetRootItem(), nullptr);
}

TEST_F(Controls, TreesWithTicksPassThemDown) {
  CMutiTreeCtrl tree(form, L"图层");
  HTREEITEM root = tree.InsertItem(L"全部");
  HTREEITEM one = tree.InsertItem(L"一", root);
  tree.CheckChanged.Connect([&](HTREEITEM) { ++told; });
  EXPECT_TRUE(tree.UserCheck(root, true));
  EXPECT_TRUE(tree.GetCheck(one));
  tree.SetCheck(root, false);
  EXPECT_TRUE(tree.GetCheck(one)) << "the program's goes to one item";
  EXPECT_EQ(told, 1);
}

TEST_F(Controls, PropertyListsHoldTheirKinds) {
  CPropTree list(form, L"参数");
  EXPECT_THROW(list.AddItem({}), CInvalidArgException) << "no group yet";
  list.AddGroup(L"一");
  CPropTreeItem item;
  item.label = L"公式";
  item.kind = CPropTreeItem::Kind::choice;
  item.choices = {L"a", L"b"};
  EXPECT_EQ(list.AddItem(item), 0);
  list.AddGroup(L"二");
  item = {};
  item.label = L"系数";
  item.kind = CPropTreeItem::Kind::number;
  EXPECT_EQ(list.AddItem(item), 1);
  list.ItemChanged.Connect([&](int) { ++told; });
  EXPECT_TRUE(list.UserSetText(0, L"b"));
  EXPECT_EQ(list.Item(0).ChoiceIndex(), 1);
  EXPECT_FALSE(list.UserSetText(0, L"c"));
  EXPECT_TRUE(list.UserSetText(1, L"1.5x"));
  EXPECT_EQ(list.GetNumber(1), 1.5);
  list.SetReadOnly(1, true);
  EXPECT_FALSE(list.UserSetText(1, L"2"));
  EXPECT_FALSE(list.UserSetText(2, L"2"));
  EXPECT_FALSE(list.UserSetText(-1, L"2"));
  EXPECT_FALSE(list.UserTick(0, true));
  EXPECT_FALSE(list.UserPress(0));
  EXPECT_EQ(told, 2);
  EXPECT_EQ(list.FindItem(L"系数"), 1);
  EXPECT_THROW(list.Item(2), CInvalidArgException);
}

TEST_F(Controls, SheetsShowOnePage) {
  CTabSheet sheet(form, L"页");
  CPropertyPage first(form, L"一"), second(form, L"二");
  CEdit below(first, L"字段"), behind(second, L"后面");
  EXPECT_EQ(sheet.GetActivePage(), nullptr);
  sheet.AddPage(first);
  sheet.AddPage(second);
  sheet.PageChanged.Connect(Count());
  EXPECT_EQ(sheet.GetActivePage(), &first);
  int left = 0;
  below.Left.Connect([&] { ++left; });
  EXPECT_TRUE(below.UserType(L"x"));
  EXPECT_FALSE(behind.UserType(L"x"));
  EXPECT_FALSE(sheet.UserSelect(2));
  EXPECT_TRUE(sheet.UserSelect(1));
  EXPECT_EQ(left, 1) << "the field on the page is left";
  EXPECT_TRUE(behind.UserType(L"x"));
  EXPECT_EQ(below.TopForm(), &form);
  EXPECT_EQ(told, 1);
}

} // namespace
