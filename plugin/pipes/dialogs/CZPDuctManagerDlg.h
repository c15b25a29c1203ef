// The manager of duct materials and duct sizes: materials with their roughness and wall thicknesses, and the
// standard sizes that all materials share. It works on the live catalogue and saves it when it goes, however
// it was left.
#pragma once

#include "host/ui/CListBox.h"
#include "host/ui/CNumberEdit.h"
#include "plugin/pipes/dialogs/MaterialList.h"
#include "plugin/pipes/dialogs/SizeGrid.h"
#include "plugin/pipes/dialogs/ThicknessGrid.h"

class CZPDuctManagerDlg : public CDialog {
 public:
  // inUse, which may be null, can't be deleted, and is selected first.
  CZPDuctManagerDlg(CZPDuctMaterial* inUse, CWnd* parent);
  ~CZPDuctManagerDlg() override;
  UiLayout Layout() override;

  // After OK: the selected material, or null. Before it: the one in use.
  CZPDuctMaterial* Material() const { return m_material; }

  using Materials = pipes::MaterialList<CZPDuctMaterialManager, CZPDuctMaterial>;
  Materials m_materials;
  CNumberEdit m_roughness{*this, L"绝对粗糙度(mm)："};
  pipes::ThicknessGrid m_thickness{*this, L"风管壁厚"};
  CListBox m_shapes{*this, L"截面形状："};
  pipes::SizeGrid m_sizes{*this, L"风管规格"};
  CButton m_ok{*this, L"确定", CButton::Role::accept};
  CButton m_exit{*this, L"退出", CButton::Role::cancel};

 protected:
  void OnInitDialog() override;
  void OnOK() override;

 private:
  void ShowMaterial();
  void ShowSizes();

  CZPDuctMaterialManager& m_catalogue;
  CZPDuctMaterial* m_material;
};
