// The manager of pipe materials: materials, the diameter table of the selected one, its properties and a
// sample of its label. It works on the live catalogue and saves it when it goes, however it was left.
#pragma once

#include "host/ui/CEdit.h"
#include "host/ui/CPropTree.h"
#include "plugin/pipes/CZPPipeMaterialManager.h"
#include "plugin/pipes/dialogs/MaterialList.h"

class CZPPipeManagerDlg : public CDialog {
 public:
  // inUse, which may be null, can't be deleted, and is selected first.
  CZPPipeManagerDlg(CZPPipeMaterial* inUse, CWnd* parent);
  ~CZPPipeManagerDlg() override;
  UiLayout Layout() override;

  // After OK: the selected material, or null. Before it: the one in use.
  CZPPipeMaterial* Material() const { return m_material; }

  using Materials = pipes::MaterialList<CZPPipeMaterialManager, CZPPipeMaterial>;
  Materials m_materials;
  CEditListCtrl m_rows{*this, L"管径"};
  CButton m_addRow{*this, CButton::Image::add, L"新建"};
  CButton m_removeRow{*this, CButton::Image::remove, L"删除"};
  CButton m_rowUp{*this, CButton::Image::up, L"上移"};
  CButton m_rowDown{*this, CButton::Image::down, L"下移"};
  CPropTree m_properties{*this, L"参数"};
  CEdit m_sample{*this, L"标注示例："};
  CButton m_ok{*this, L"确定", CButton::Role::accept};
  CButton m_exit{*this, L"退出", CButton::Role::cancel};

 protected:
  void OnInitDialog() override;
  void OnOK() override;

 private:
  void ShowMaterial();
  void FillRows(int selected);
  void ShowSample();
  void AddRow();
  void RemoveRow();
  void MoveRow(int step);
  void EndRowEdit(UiEditEnd& end);

  CZPPipeMaterialManager& m_catalogue;
  CZPPipeMaterial* m_material;
};
