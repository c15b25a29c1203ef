#include "plugin/pipes/dialogs/CZPDuctManagerDlg.h"

CZPDuctManagerDlg::CZPDuctManagerDlg(CZPDuctMaterial* inUse, CWnd* parent)
    : CDialog(L"风管管材和管径管理器", parent),
      m_materials(*this, *CZPDuctMaterialManager::GetInstance(), inUse, Materials::AfterDelete::selectNext),
      m_catalogue(*CZPDuctMaterialManager::GetInstance()), m_material(inUse) {
  m_thickness.ShowCaption(false);
  m_sizes.ShowCaption(false);
  m_shapes.AddString(L"矩形");
  m_shapes.AddString(L"圆形");
  m_shapes.SetCurSel(0);
  m_materials.Selected.Connect([this] { ShowMaterial(); });
  m_roughness.Left.Connect([this] {
    if (CZPDuctMaterial* material = m_materials.Current()) material->m_dRoughness = m_roughness.GetValue();
  });
  m_shapes.SelectionChanged.Connect([this] { ShowSizes(); });
  m_ok.Clicked.Connect([this] { OnOK(); });
  m_exit.Clicked.Connect([this] { OnCancel(); });
}

CZPDuctManagerDlg::~CZPDuctManagerDlg() {
  m_catalogue.SaveData();
}

UiLayout CZPDuctManagerDlg::Layout() {
  return ui::Column({
      ui::Row(
          {
              m_materials.Layout(),
              ui::Column({ui::Item(m_roughness), ui::Item(m_thickness).Stretch(1).Size(260, 260)}).Stretch(1),
              ui::Column({ui::Item(m_shapes).Size(210, 60), ui::Item(m_sizes).Stretch(1).Size(210, 220)}),
          })
          .Stretch(1),
      ui::Row({ui::Space(), ui::Item(m_ok), ui::Item(m_exit)}),
  });
}

void CZPDuctManagerDlg::OnInitDialog() {
  m_materials.Fill(m_material ? m_material : m_catalogue.GetInitialDuctMaterial());
  ShowMaterial();
  ShowSizes();
}

void CZPDuctManagerDlg::OnOK() {
  m_material = m_materials.Current();
  CDialog::OnOK();
}

void CZPDuctManagerDlg::ShowMaterial() {
  CZPDuctMaterial* material = m_materials.Current();
  constexpr int decimals = 2;
  m_roughness.SetReadOnly(!material);
  m_roughness.SetText(CString());
  if (material) m_roughness.SetValue(material->m_dRoughness, decimals);
  m_thickness.Show(material);
}

void CZPDuctManagerDlg::ShowSizes() {
  m_sizes.Show(m_shapes.GetCurSel() == 1 ? pipes::DuctShape::round : pipes::DuctShape::rectangular);
}
