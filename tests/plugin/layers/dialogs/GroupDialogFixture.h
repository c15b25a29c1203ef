// The dialog of layer groups over a drawing with the layers 0, 甲, 乙, 丙 and 丁.
#pragma once

#include "plugin/layers/dialogs/CCADGroupLayerDlg.h"
#include "tests/plugin/layers/DrawingFixture.h"
#include "tests/plugin/layers/groups/GroupFixture.h"
#include "tests/support/DialogFixture.h"

class GroupDialogFixture : public DrawingFixture, protected TestGroups {
 protected:
  using Dlg = CCADGroupLayerDlg;
  static constexpr int kName = Dlg::kNameColumn;

  void In(const std::function<void(Dlg&)>& test) {
    Dlg dialog(nullptr);
    dialogtest::Run<Dlg>(frontEnd, dialog, test);
  }
  static HTREEITEM Item(Dlg& dialog, const wchar_t* name) {
    return dialog.m_layers.Find([&](const UiTreeItem& item) { return item.text == name; });
  }
  static void Tick(Dlg& dialog, const wchar_t* name, bool on = true) {
    EXPECT_TRUE(dialog.m_layers.UserCheck(Item(dialog, name), on));
  }
  // The layers that are ticked, the top left out.
  static CString Ticked(const Dlg& dialog) {
    CString names;
    dialog.m_layers.Walk([&](HTREEITEM item) {
      if (item->checked && item->parent) names += (names.IsEmpty() ? L"" : L" ") + item->text;
      return true;
    });
    return names;
  }
  std::string Saved() const { return install.Read(kFile); }

  UiFrontEndScript frontEnd;
};
