// A dialog with every kind of control.
#pragma once

#include "host/ui/CButton.h"
#include "host/ui/CCheckBox.h"
#include "host/ui/CComboBox.h"
#include "host/ui/CDialog.h"
#include "host/ui/CDrawingPreview.h"
#include "host/ui/CEditListCtrl.h"
#include "host/ui/CGridCtrl.h"
#include "host/ui/CListBox.h"
#include "host/ui/CMutiTreeCtrl.h"
#include "host/ui/CNumberEdit.h"
#include "host/ui/CPictureBox.h"
#include "host/ui/CPropTree.h"
#include "host/ui/CRadioGroup.h"
#include "host/ui/CStatic.h"
#include "host/ui/CTabSheet.h"

class NamePage : public CPropertyPage {
 public:
  using CPropertyPage::CPropertyPage;
  UiLayout Layout() override { return ui::Column({ui::Item(name)}); }
  CEdit name{*this, L"名称："};
};

// Every kind of control, and no rules but those that a test adds.
class EveryKind : public CDialog {
 public:
  EveryKind() : CDialog(L"全部控件") {
    list.AddColumn(L"名称", 120);
    list.AddColumn(L"管径", 80);
    list.AddRow({L"镀锌钢管", L"DN20"});
    list.AddRow({L"无缝钢管", L"DN25"});
    list.SetCellChoices(1, 1,
                        std::make_shared<const std::vector<CString>>(std::vector<CString>{L"DN25", L"DN32"}));
    grid.SetHeading({{L"序号", 60}, {L"值", 90}});
    grid.AddRow({L"1", L"0.5"});
    grid.AddRow({L"2", L"0.7"});
    grid.SetCellReadOnly(1, 0, true);
    HTREEITEM top = tree.InsertItem(L"采暖");
    tree.InsertItem(L"供水", top);
    tree.InsertItem(L"回水", top);
    tree.Expand(top);
    properties.AddGroup(L"基本");
    properties.AddItem(
        {L"名称", CPropTreeItem::Kind::text, L"甲", {}, L"设备的名称", false, false, false, nullptr});
    properties.AddItem({L"类型",
                        CPropTreeItem::Kind::choice,
                        L"立式",
                        {L"立式", L"卧式"},
                        {},
                        false,
                        false,
                        false,
                        nullptr});
    properties.AddItem({L"图块", CPropTreeItem::Kind::button, L"a.dwg", {}, {}, false, true, false, nullptr});
    combo.AddString(L"一");
    combo.AddString(L"二");
    free.AddString(L"30");
    free.AddString(L"35");
    names.AddString(L"子");
    names.AddString(L"丑");
    sheet.AddPage(first);
    sheet.AddPage(second);
    ok.Clicked.Connect([this] { OnOK(); });
    cancel.Clicked.Connect([this] { OnCancel(); });
  }
  UiLayout Layout() override {
    return ui::Column({ui::Item(label), ui::Item(text), ui::Item(number), ui::Item(combo), ui::Item(free),
                       ui::Item(tick), ui::Item(choice),
                       ui::Row({ui::Item(names), ui::Item(tree), ui::Item(properties)}),
                       ui::Row({ui::Item(list), ui::Column({ui::Item(add)})}), ui::Item(grid),
                       ui::Item(sheet), ui::Row({ui::Item(picture), ui::Item(preview)}),
                       ui::Row({ui::Space(), ui::Item(ok), ui::Item(cancel)})});
  }
  CStatic label{*this, L"说明"};
  CEdit text{*this, L"文字："};
  CNumberEdit number{*this, L"数值：", {0.5, 0, 2}};
  CComboBox combo{*this, L"选择："};
  CComboBox free{*this, L"自由：", CComboBox::Text::free};
  CCheckBox tick{*this, L"勾选"};
  CRadioGroup choice{*this, L"单选", {L"左", L"右"}};
  CListBox names{*this, L"列表"};
  CMutiTreeCtrl tree{*this, L"树"};
  CPropTree properties{*this, L"特性"};
  CEditListCtrl list{*this, L"管材"};
  CButton add{*this, CButton::Image::add, L"添加"};
  CGridCtrl grid{*this, L"表格"};
  CTabSheet sheet{*this, L"页"};
  NamePage first{*this, L"第一页"};
  NamePage second{*this, L"第二页"};
  CPictureBox picture{*this, L"图片"};
  CDrawingPreview preview{*this, L"预览"};
  CButton ok{*this, L"确定", CButton::Role::accept};
  CButton cancel{*this, L"取消", CButton::Role::cancel};
};
