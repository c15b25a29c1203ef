// The layer manager: keeps layer schemes, edits the tree and the definitions of the active one, and brings
// the layers of the drawing up to them. It works on the live scheme; however it is left, what was not saved
// goes.
#pragma once

#include "host/ui/CButton.h"
#include "host/ui/CComboBox.h"
#include "plugin/layers/dialogs/CZPLayerGridCtrl.h"
#include "plugin/layers/dialogs/LayerMenu.h"
#include "plugin/layers/dialogs/SchemeTree.h"

class CZPLayerManagerDlg : public CDialog {
 public:
  CZPLayerManagerDlg();
  ~CZPLayerManagerDlg() override;
  UiLayout Layout() override;

  CComboBox m_schemes{*this, L"当前方案"};
  CButton m_add{*this, L"添加"};
  CButton m_remove{*this, L"删除"};
  CButton m_rename{*this, L"重命名"};
  layers::SchemeTree m_tree;
  CZPLayerGridCtrl m_grid{*this};
  layers::LayerMenu m_menu{*this, m_grid, m_tree};
  CButton m_restore{*this, L"恢复默认值"}; // does nothing, as its users know it
  CButton m_apply{*this, L"应用到当前图纸"};
  CButton m_cancel{*this, L"取消", CButton::Role::cancel};
  CButton m_ok{*this, L"确定", CButton::Role::accept};

 protected:
  void OnInitDialog() override;
  void OnOK() override;

 private:
  void FillSchemes(const CString& selected);
  void ShowButtons();
  void ShowScheme();
  void Load(const CString& name);
  void SelectScheme();
  void AddScheme();
  void RemoveScheme();
  void RenameScheme();

  CZPManagerLayer& m_scheme;
};
