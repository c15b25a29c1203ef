// The layer manager over a scheme with two categories and three groups, saved as the default scheme, and over
// a drawing with the layers 0, 甲, 乙, 丙 and 丁.
#pragma once

#include "plugin/layers/SchemeFiles.h"
#include "plugin/layers/dialogs/CZPAddDlg.h"
#include "plugin/layers/dialogs/CZPLayerManagerDlg.h"
#include "plugin/layers/dialogs/CZPRenameDlg.h"
#include "plugin/layers/dialogs/LayerColumns.h"
#include "tests/plugin/layers/DrawingFixture.h"
#include "tests/support/DialogFixture.h"

class LayerManagerFixture : public DrawingFixture {
 protected:
  using Dlg = CZPLayerManagerDlg;
  using Menu = std::vector<UiMenuItem>;

  LayerManagerFixture() {
    CZPSystemLayer* water = AddCategory(L"空调水路");
    CZPGroupLayer* pipes = AddGroup(water, L"管线");
    CZPLayer* supply = AddLayer(pipes, L"供水干管", L"暖通-供水");
    supply->SetColorIndex(3);
    supply->SetLineType(L"Continuous");
    supply->SetLineWeight(0.5);
    supply->SetLayerCode(L"M-LRG");
    supply->SetRemarks(L"供水");
    AddLayer(pipes, L"回水干管", L"暖通-回水");
    AddLayer(AddGroup(water, L"设备"), L"风机盘管", L"暖通-盘管");
    AddLayer(AddGroup(AddCategory(L"采暖"), L"采暖管线"), L"采暖供水", L"暖通-采暖");
    EXPECT_TRUE(scheme.SaveData());
  }
  int In(const std::function<void(Dlg&)>& test) {
    Dlg dialog;
    return dialogtest::Run<Dlg>(frontEnd, dialog, test);
  }
  // A scheme with one layer in a file of its own; the active one stays as it is.
  void SaveScheme(const wchar_t* name, const wchar_t* korLayer, const wchar_t* userLayer) {
    const CString active = scheme.GetPlanName();
    EXPECT_TRUE(scheme.SaveData());
    scheme.RemoveAll();
    scheme.SetPlanName(name);
    Define(korLayer, userLayer);
    EXPECT_TRUE(scheme.SaveData());
    EXPECT_TRUE(scheme.ReadData(active));
  }
  bool HasScheme(const char* name) const {
    return install.Has(std::string("Data/LayerManager/") + name + ".idp");
  }
  CZPLayer& Of(const wchar_t* korLayer) {
    CZPLayer* layer = scheme.GetLayer(korLayer);
    if (!layer) throw std::runtime_error("no such layer");
    return *layer;
  }
  // The identifiers and names of all layers, in tree order.
  CString Layers() const {
    CString text;
    for (const CZPSystemLayer* category : scheme.Categories())
      for (const CZPGroupLayer* group : category->Groups())
        for (const CZPLayer* layer : group->Layers())
          text += (text.IsEmpty() ? L"" : L" ") + layer->GetKorLayer() + L"=" + layer->GetUserLayer();
    return text;
  }
  static CString Data(const CZPLayer& layer) {
    CString text;
    text.Format(L"%s|%s|%d|%s|%g|%g|%s|%s", layer.GetKorLayer(), layer.GetUserLayer(), layer.GetColorIndex(),
                layer.GetLineType(), layer.GetLineTypeScale(), layer.GetLineWeight(), layer.GetLayerCode(),
                layer.GetRemarks());
    return text;
  }

  // "全部图层(空调水路(管线 设备) 采暖(采暖管线))", with ">" before the selected node.
  static CString Tree(const Dlg& dialog) {
    return Nodes(dialog.m_tree.m_tree, dialog.m_tree.m_tree.TopItems());
  }
  static HTREEITEM Node(Dlg& dialog, const wchar_t* text) {
    return dialog.m_tree.m_tree.Find([&](const UiTreeItem& item) { return item.text == text; });
  }
  static void Select(Dlg& dialog, const wchar_t* node) {
    EXPECT_TRUE(dialog.m_tree.m_tree.UserSelect(Node(dialog, node)));
  }
  // The items of a menu, "-" before those that can't be chosen.
  static CString Texts(const UiContextMenu& menu) {
    CString texts;
    for (const UiMenuItem& item : menu.Items())
      texts += (texts.IsEmpty() ? L"" : L" ") + CString(item.enabled ? L"" : L"-") + item.text;
    return texts;
  }
  static UiOutcome Choose(UiContextMenu& menu, const wchar_t* text) {
    for (const UiMenuItem& item : menu.Items())
      if (item.text == text) return menu.UserChoose(item.id);
    return {L"no such item", {}};
  }
  static UiOutcome NodeMenu(Dlg& dialog, const wchar_t* node, const wchar_t* text) {
    EXPECT_TRUE(dialog.m_tree.m_tree.UserOpenMenu(Node(dialog, node)));
    return Choose(dialog.m_tree.m_tree.Menu, text);
  }
  // On no row for -1.
  static UiOutcome RowMenu(Dlg& dialog, int row, const wchar_t* text) {
    EXPECT_TRUE(dialog.m_grid.UserOpenMenu(row, 0));
    return Choose(dialog.m_grid.Menu, text);
  }
  // Selects rows; the last one is the current row.
  static void SelectRows(Dlg& dialog, std::initializer_list<int> rows) {
    auto pick = CTableWnd::Pick::only;
    for (const int row : rows) {
      EXPECT_TRUE(dialog.m_grid.UserClick(row, layers::kNumberColumn, pick));
      pick = CTableWnd::Pick::toggle;
    }
  }
  // The next dialog asks for a name and gets this one.
  void WillName(const wchar_t* title, const CString& name) {
    frontEnd.runs.push_back([title, name](CDialog& dialog) {
      EXPECT_EQ(dialog.GetCaption(), title);
      auto& asked = dynamic_cast<CZPRenameDlg&>(dialog);
      EXPECT_TRUE(asked.m_name.UserType(name));
      EXPECT_TRUE(asked.UserEnter());
    });
  }
  // The next dialog is given up.
  void WillGiveUp(const wchar_t* title) {
    frontEnd.runs.push_back([title](CDialog& dialog) {
      EXPECT_EQ(dialog.GetCaption(), title);
      dialog.UserEscape();
    });
  }
  // The next dialog makes a scheme of that name as a copy of another.
  void WillAdd(const wchar_t* name, const wchar_t* source) {
    frontEnd.runs.push_back([name, source](CDialog& dialog) {
      auto& add = dynamic_cast<CZPAddDlg&>(dialog);
      EXPECT_TRUE(add.m_name.UserType(name));
      EXPECT_TRUE(add.m_source.UserType(source));
      EXPECT_TRUE(add.UserEnter());
    });
  }
  // The schemes of the list, "[...]" around the selected one.
  static CString Schemes(const CComboBox& list) {
    CString names;
    for (int i = 0; i < list.GetCount(); ++i) {
      const CString name = i == list.GetCurSel() ? L"[" + list.GetLBText(i) + L"]" : list.GetLBText(i);
      names += (i == 0 ? L"" : L" ") + name;
    }
    return names;
  }

  UiFrontEndScript frontEnd;

 private:
  static CString Nodes(const CTreeCtrl& tree, const std::vector<std::unique_ptr<UiTreeItem>>& items) {
    CString text;
    for (const auto& item : items) {
      text += (text.IsEmpty() ? L"" : L" ") + CString(item.get() == tree.GetSelectedItem() ? L">" : L"") +
              item->text;
      if (!item->children.empty()) text += L"(" + Nodes(tree, item->children) + L")";
    }
    return text;
  }
};
