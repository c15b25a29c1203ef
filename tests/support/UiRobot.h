// A user without a plan: does random things to random controls of a form, sensible and otherwise.
#pragma once

#include <random>

#include "host/ui/CButton.h"
#include "host/ui/CCheckBox.h"
#include "host/ui/CComboBox.h"
#include "host/ui/CDialog.h"
#include "host/ui/CListBox.h"
#include "host/ui/CMutiTreeCtrl.h"
#include "host/ui/CNumberEdit.h"
#include "host/ui/CPropTree.h"
#include "host/ui/CRadioGroup.h"
#include "host/ui/CTabSheet.h"
#include "host/ui/CTableWnd.h"

class UiRobot {
 public:
  explicit UiRobot(unsigned seed) : m_random(seed) {}

  int Below(int limit) { return limit <= 0 ? 0 : std::uniform_int_distribution<int>(0, limit - 1)(m_random); }
  // Also an index before the first and one behind the last.
  int Index(int count) { return Below(count + 2) - 1; }
  CString Text() {
    static const wchar_t* const texts[] = {
        L"",      L" ",  L"0",    L"25",  L"32.5",       L"-7",     L"abc", L"1e400", L"nan", L"甲",
        L"  乙 ", L"\"", L"a\nb", L"0.0", L"\U0001F600", L"%s%d%n", L"150", L"20",    L"5x6", L"DN20"};
    if (Below(200) == 0) return CString(std::wstring(100000, L'长'));
    return texts[Below(static_cast<int>(std::size(texts)))];
  }

  // One event. Dialogs are not closed by it.
  void Act(CFormWnd& form) {
    const auto& controls = form.Controls();
    if (controls.empty()) return;
    CWnd& control = *controls[static_cast<std::size_t>(Below(static_cast<int>(controls.size())))];
    if (auto* button = dynamic_cast<CButton*>(&control); button && button->GetRole() == CButton::Role::none)
      button->UserClick();
    if (auto* box = dynamic_cast<CCheckBox*>(&control)) box->UserCheck(Below(2) == 0);
    if (auto* radios = dynamic_cast<CRadioGroup*>(&control))
      radios->UserSelect(Index(static_cast<int>(radios->Options().size())));
    if (auto* list = dynamic_cast<CListBox*>(&control)) Act(*list);
    if (auto* combo = dynamic_cast<CComboBox*>(&control)) Act(*combo);
    if (auto* edit = dynamic_cast<CEdit*>(&control)) Act(*edit);
    if (auto* tree = dynamic_cast<CTreeCtrl*>(&control)) Act(*tree);
    if (auto* list = dynamic_cast<CPropTree*>(&control)) Act(*list);
    if (auto* sheet = dynamic_cast<CTabSheet*>(&control))
      sheet->UserSelect(Index(static_cast<int>(sheet->Pages().size())));
    if (auto* page = dynamic_cast<CPropertyPage*>(&control)) Act(*page);
    if (auto* table = dynamic_cast<CTableWnd*>(&control)) Act(*table);
  }

 private:
  void Act(CListBox& list) {
    const int index = Index(list.GetCount());
    Below(4) == 0 ? list.UserDoubleClick(index) : list.UserSelect(index);
  }
  void Act(CComboBox& combo) {
    Below(2) == 0 ? combo.UserType(Text()) : combo.UserSelect(Index(combo.GetCount()));
  }
  void Act(CEdit& edit) {
    auto* number = dynamic_cast<CNumberEdit*>(&edit);
    if (number && Below(3) == 0) number->UserStep(Below(7) - 3);
    edit.UserType(Text());
    if (Below(2) == 0) edit.UserLeave();
  }
  void Act(CPropTree& list) {
    const int item = Index(list.GetItemCount());
    CString text = Text();
    if (item >= 0 && item < list.GetItemCount() && !list.Item(item).choices.empty() && Below(4) != 0)
      text = list.Item(item)
                 .choices[static_cast<std::size_t>(Below(static_cast<int>(list.Item(item).choices.size())))];
    if (Below(5) == 0) list.UserTick(item, Below(2) == 0);
    if (Below(5) == 0) list.UserPress(item);
    list.UserSetText(item, text);
  }
  void Act(CTreeCtrl& tree) {
    std::vector<HTREEITEM> items{nullptr};
    tree.Walk([&](HTREEITEM item) {
      items.push_back(item);
      return true;
    });
    HTREEITEM item = items[static_cast<std::size_t>(Below(static_cast<int>(items.size())))];
    const int kind = Below(5);
    if (kind == 0) tree.UserDoubleClick(item);
    if (kind == 1) tree.UserSelect(item);
    if (kind == 2 && tree.UserOpenMenu(item)) ChooseFrom(tree.Menu);
    if (kind == 3) tree.UserExpand(item, Below(2) == 0);
    auto* ticks = dynamic_cast<CMutiTreeCtrl*>(&tree);
    if (kind == 4 && ticks) ticks->UserCheck(item, Below(2) == 0);
  }
  void Act(CTableWnd& table) {
    const int row = Index(table.GetRowCount()), column = Index(table.GetColumnCount());
    switch (Below(10)) {
    case 0:
      table.UserClick(row, column, static_cast<CTableWnd::Pick>(Below(3)));
      break;
    case 1:
      table.UserDoubleClick(row, column);
      break;
    case 2:
      if (table.UserOpenMenu(row, column)) ChooseFrom(table.Menu);
      break;
    case 3:
      table.UserEndEdit();
      break;
    case 4:
      table.UserCancelEdit();
      break;
    case 5:
      table.UserTypeEdit(Text());
      break;
    case 6:
      table.UserPress(row, column);
      break;
    default:
      table.UserBeginEdit(row, column);
      table.UserTypeEdit(Text());
      if (Below(3) != 0) table.UserEndEdit();
    }
  }
  void ChooseFrom(const UiContextMenu& menu) {
    const auto items = menu.Items();
    if (!items.empty())
      menu.UserChoose(items[static_cast<std::size_t>(Below(static_cast<int>(items.size())))].id);
  }

  std::mt19937 m_random;
};
