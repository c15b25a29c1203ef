// A dialog with one control of each kind, for lines to work on.
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
#include "host/ui/CReportCtrl.h"
#include "host/ui/CStatic.h"
#include "host/ui/CTabSheet.h"

class FirstPage : public CPropertyPage {
 public:
  explicit FirstPage(CFormWnd& form) : CPropertyPage(form, L"常用") {}
  UiLayout Layout() override { return ui::Item(m_note); }
  CEdit m_note{*this, L"备注"};
};

class SecondPage : public CPropertyPage {
 public:
  explicit SecondPage(CFormWnd& form) : CPropertyPage(form, L"其他") {}
  UiLayout Layout() override { return ui::Item(m_flag); }
  CCheckBox m_flag{*this, L"启用"};
};

class EveryControlDlg : public CDialog {
 public:
  EveryControlDlg() : CDialog(L"控件") {
    for (const wchar_t* text : {L"甲", L"乙 丙", L"3"}) {
      m_list.AddString(text);
      m_combo.AddString(text);
      m_freeCombo.AddString(text);
    }
    HTREEITEM root = m_tree.InsertItem(L"全部图层");
    m_tree.InsertItem(L"0", root);
    m_tree.InsertItem(L"墙 体", root);
    m_tree.Expand(root);
    m_tree.Menu.SetProvider([] { return std::vector<UiMenuItem>{{1, L"新建分类..."}, {2, L"删除", false}}; });
    m_tree.Menu.Chosen.Connect([this](int id) { m_menu = id; });
    m_grid.SetHeading({{L"名称", 80}, {L"隐藏", 0}, {L"数 量", 80}});
    m_grid.AddRow({L"弯头", L"x", L"1"});
    m_grid.AddRow({L"三通 90", L"x", L"2"});
    m_grid.SetCellChoices(
        2, 0, std::make_shared<const std::vector<CString>>(std::vector<CString>{L"弯头", L"四通"}));
    m_grid.SetMultiSelect(true);
    m_grid.Menu.SetProvider([] { return std::vector<UiMenuItem>{{7, L"复制"}}; });
    m_grid.Menu.Chosen.Connect([this](int id) { m_menu = id; });
    m_grid.CellClicked.Connect([this](int row, int column) { m_cell.Format(L"%d,%d", row, column); });
    m_grid.CellDoubleClicked.Connect([this](int, int) { m_cell += L"!"; });
    m_grid.EditEnded.Connect([](UiEditEnd& end) { end.reopen = end.text == L"bad"; });
    m_edits.AddColumn(L"常用", 80);
    m_edits.AddRow({L"行=1"});
    m_properties.AddGroup(L"组");
    m_properties.AddItem(
        {L"线宽(mm)", CPropTreeItem::Kind::number, L"0.25", {}, L"出图线宽", false, true, true, nullptr});
    m_properties.AddItem({L"颜色", CPropTreeItem::Kind::button, L"7", {}, L"", false, false, false, nullptr});
    m_properties.AddItem(
        {L"单位", CPropTreeItem::Kind::choice, L"片", {L"片", L"m"}, L"", false, false, false, nullptr});
    m_properties.ButtonPressed.Connect([this](int) { ++m_presses; });
    m_sheet.AddPage(m_first);
    m_sheet.AddPage(m_second);
    m_gridButton.SetBelongsTo(m_grid);
    m_listButton.SetBelongsTo(m_list);
    m_press.Clicked.Connect([this] { ++m_presses; });
    m_gridButton.Clicked.Connect([this] { m_presses += 10; });
    m_off.EnableWindow(false);
    m_gone.ShowWindow(false);
  }
  UiLayout Layout() override {
    std::vector<UiLayout> items;
    for (CWnd* control : Controls())
      if (control->Kind() != UiKind::page) items.push_back(ui::Item(*control));
    return ui::Group(L"全部", std::move(items));
  }

  CStatic m_label{*this, L"说明文字"};
  CPictureBox m_picture{*this, L"示意图"};
  CButton m_press{*this, L"应用到当前图纸...", CButton::Role::accept};
  CButton m_off{*this, L"停用"};
  CButton m_gone{*this, L"隐藏的"};
  CCheckBox m_box{*this, L"显示全部"};
  CRadioGroup m_radios{*this, L"字体", {L"使用当前字体", L"使用文字样式"}};
  CEdit m_edit{*this, L"方案   名称："};
  CNumberEdit m_number{*this, L"系数", CNumberEdit::Spin{0.1, 0, 2}};
  CComboBox m_combo{*this, L"方案"};
  CComboBox m_freeCombo{*this, L"温度", CComboBox::Text::free};
  CListBox m_list{*this, L"列表"};
  CButton m_listButton{*this, CButton::Image::add, L"新建"};
  CMutiTreeCtrl m_tree{*this, L"图层树"};
  CGridCtrl m_grid{*this, L"配件"};
  CButton m_gridButton{*this, CButton::Image::add, L"新建"};
  CEditListCtrl m_edits{*this, L"行表"};
  CPropTree m_properties{*this, L"参数"};
  CTabSheet m_sheet{*this, L"页"};
  FirstPage m_first{*this};
  SecondPage m_second{*this};
  CDrawingPreview m_preview{*this, L"图块"};
  int m_menu = 0;
  int m_presses = 0;
  CString m_cell;
};
