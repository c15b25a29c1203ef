// The groups of drawing layers: their list on the left, the layers of the current drawing with ticks on the
// right. It works on the live list and saves it when it goes, however it was left.
#pragma once

#include "host/ui/CButton.h"
#include "host/ui/CDialog.h"
#include "host/ui/CEditListCtrl.h"
#include "host/ui/CMutiTreeCtrl.h"
#include "plugin/layers/groups/CCADManagerLayer.h"

class CCADGroupLayerDlg : public CDialog {
 public:
  explicit CCADGroupLayerDlg(CWnd* parent);
  ~CCADGroupLayerDlg() override;
  UiLayout Layout() override;

  static constexpr int kNameColumn = 1; // behind one that stays hidden and empty

  CEditListCtrl m_groups{*this, L"分组"};
  CButton m_add{*this, CButton::Image::add, L"新建"};
  CButton m_remove{*this, CButton::Image::remove, L"删除"};
  CMutiTreeCtrl m_layers{*this, L"当前图纸所有图层"};
  CButton m_modify{*this, L"修改"};
  CButton m_exit{*this, L"退出", CButton::Role::cancel};

 protected:
  void OnInitDialog() override;

 private:
  CCADGroupLayer* At(int row) const { return static_cast<CCADGroupLayer*>(m_groups.GetRowData(row)); }
  void Add();
  void Modify();
  void Remove();
  void Drop(int row);
  void EndNameEdit(UiEditEnd& end);

  CCADManagerLayer& m_manager = *CCADManagerLayer::GetInstance();
};
