#include "plugin/pipes/dialogs/CZPPipeManagerDlg.h"

#include "plugin/pipes/dialogs/PipeProperties.h"
#include "plugin/pipes/dialogs/PipeRows.h"

CZPPipeManagerDlg::CZPPipeManagerDlg(CZPPipeMaterial* inUse, CWnd* parent)
    : CDialog(L"管材管径管理器", parent),
      m_materials(*this, *CZPPipeMaterialManager::GetInstance(), inUse, Materials::AfterDelete::selectNone),
      m_catalogue(*CZPPipeMaterialManager::GetInstance()), m_material(inUse) {
  m_rows.ShowCaption(false);
  pipes::BuildPipeColumns(m_rows);
  for (CButton* button : {&m_addRow, &m_removeRow, &m_rowUp, &m_rowDown}) button->SetBelongsTo(m_rows);
  m_properties.ShowCaption(false);
  pipes::BuildPipeProperties(m_properties);
  m_sample.SetReadOnly(true);

  m_materials.Selected.Connect([this] { ShowMaterial(); });
  m_materials.NameEdited.Connect([this] { ShowSample(); });
  m_rows.CellClicked.Connect([this](int, int) { ShowSample(); });
  m_rows.EditEnded.Connect([this](UiEditEnd& end) {
    EndRowEdit(end);
    ShowSample();
  });
  m_addRow.Clicked.Connect([this] { AddRow(); });
  m_removeRow.Clicked.Connect([this] { RemoveRow(); });
  m_rowUp.Clicked.Connect([this] { MoveRow(-1); });
  m_rowDown.Clicked.Connect([this] { MoveRow(1); });
  m_properties.ItemChanged.Connect([this](int) {
    if (CZPPipeMaterial* material = m_materials.Current()) pipes::ReadPipeProperties(m_properties, *material);
    ShowSample();
  });
  m_ok.Clicked.Connect([this] { OnOK(); });
  m_exit.Clicked.Connect([this] { OnCancel(); });
}

CZPPipeManagerDlg::~CZPPipeManagerDlg() {
  m_catalogue.SaveData();
}

UiLayout CZPPipeManagerDlg::Layout() {
  return ui::Column({
      ui::Row({
                  m_materials.Layout(),
                  ui::Column({ui::Item(m_rows).Stretch(1).Size(340, 300),
                              ui::Row({ui::Item(m_addRow), ui::Item(m_removeRow), ui::Item(m_rowUp),
                                       ui::Item(m_rowDown), ui::Space()})})
                      .Stretch(1),
                  ui::Item(m_properties).Size(260, 300),
              })
          .Stretch(1),
      ui::Row({ui::Item(m_sample).Size(240, 0), ui::Space(), ui::Item(m_ok), ui::Item(m_exit)}),
  });
}

void CZPPipeManagerDlg::OnInitDialog() {
  m_materials.Fill(m_material);
  ShowMaterial();
}

void CZPPipeManagerDlg::OnOK() {
  m_material = m_materials.Current();
  CDialog::OnOK();
}

void CZPPipeManagerDlg::ShowMaterial() {
  FillRows(-1);
  pipes::ShowPipeProperties(m_properties, m_materials.Current());
  ShowSample();
}

void CZPPipeManagerDlg::FillRows(int selected) {
  const UiQuietly quietly(m_rows);
  m_rows.DeleteAllRows();
  if (const CZPPipeMaterial* material = m_materials.Current())
    for (const SZPPipeDNData& row : material->m_arrDNData) m_rows.AddRow(pipes::PipeRowTexts(row));
  m_rows.SetCurSel(selected);
}

void CZPPipeManagerDlg::ShowSample() {
  const CZPPipeMaterial* material = m_materials.Current();
  const int row = m_rows.GetCurSel();
  CString pipeName;
  if (material && row >= 0) pipeName = material->m_strPrefix + m_rows.GetItemText(row, pipes::kNominalColumn);
  m_sample.SetText(material ? material->GetLabelText(pipeName) : CString());
}

void CZPPipeManagerDlg::AddRow() {
  CZPPipeMaterial* material = m_materials.Current();
  if (!material) return;
  SZPPipeDNData row;
  material->m_arrDNData.Add(row);
  const int index = m_rows.AddRow(pipes::PipeRowTexts(row));
  m_rows.SetCurSel(index);
  ShowSample();
  m_rows.EditCell(index, pipes::kNominalColumn);
}

void CZPPipeManagerDlg::RemoveRow() {
  CZPPipeMaterial* material = m_materials.Current();
  const int row = m_rows.GetCurSel();
  if (!material || row < 0) return;
  material->m_arrDNData.RemoveAt(row);
  m_rows.DeleteRow(row);
  m_rows.SetCurSel(row);
  ShowSample();
}

// The numbers are those that the list shows, as the user last saw them.
void CZPPipeManagerDlg::MoveRow(int step) {
  CZPPipeMaterial* material = m_materials.Current();
  const int row = m_rows.GetCurSel();
  const int target = row + step;
  if (!material || row < 0 || target < 0 || target >= m_rows.GetRowCount()) return;
  SZPPipeDNData data = pipes::ReadPipeRow(m_rows, row);
  material->m_arrDNData.RemoveAt(row);
  material->m_arrDNData.InsertAt(target, data);
  FillRows(target);
  ShowSample();
}

void CZPPipeManagerDlg::EndRowEdit(UiEditEnd& end) {
  CZPPipeMaterial* material = m_materials.Current();
  if (!material || end.cancelled) return;
  if (!pipes::IsPipeNumber(end.text)) {
    if (end.closing) return;
    notice::Tell(L"输入值不能为零，请重新输入。");
    end.reopen = true;
    return;
  }
  pipes::UpdateThickness(m_rows, end.row, end.column);
  material->m_arrDNData[end.row] = pipes::ReadPipeRow(m_rows, end.row);
}
