#include "plugin/resistance/dialogs/CZPLocalResistancePartsDlg.h"

CZPLocalResistancePartsDlg::CZPLocalResistancePartsDlg(CFormWnd& form)
    : CoefficientPage(form, L"常用管道配件") {
  m_list.ShowCaption(false);
  resistance::BuildFittingColumns(m_list);
  m_add.Clicked.Connect([this] { Add(); });
  m_remove.Clicked.Connect([this] { Remove(); });
  m_up.Clicked.Connect([this] { Move(-1); });
  m_down.Clicked.Connect([this] { Move(1); });
}

UiLayout CZPLocalResistancePartsDlg::Layout() {
  return ui::Column({
      ui::Item(m_list).Stretch(1).Size(600, 360),
      ui::Row({ui::Item(m_add), ui::Item(m_remove), ui::Item(m_up), ui::Item(m_down), ui::Space()}),
  });
}

void CZPLocalResistancePartsDlg::Open() {
  m_fittings.Copy(m_store.m_arrPartsCoe);
  Fill();
}

void CZPLocalResistancePartsDlg::Commit() {
  ReadRows();
  m_store.m_arrPartsCoe.Copy(m_fittings);
  m_store.SaveData();
}

void CZPLocalResistancePartsDlg::Fill() {
  const UiQuietly quietly(m_list);
  m_list.DeleteAllRows();
  for (const CZPPipePartsCoe& fitting : m_fittings) m_list.AddRow(resistance::FittingRowTexts(fitting));
}

void CZPLocalResistancePartsDlg::ReadRows() {
  for (int row = 0; row < m_list.GetRowCount(); ++row)
    resistance::ReadFittingRow(m_list, row, m_fittings[row]);
}

void CZPLocalResistancePartsDlg::Add() {
  CZPPipePartsCoe fitting;
  m_fittings.Add(fitting);
  const int row = m_list.AddRow(resistance::FittingRowTexts(fitting));
  m_list.SetCurSel(row, resistance::kNameColumn);
  m_list.EditCell(row, resistance::kNameColumn);
}

void CZPLocalResistancePartsDlg::Remove() {
  const int row = m_list.GetCurSel();
  if (row < 0) return;
  m_fittings.RemoveAt(row);
  m_list.DeleteRow(row);
  m_list.SetCurSel(row, resistance::kNameColumn);
}

void CZPLocalResistancePartsDlg::Move(int step) {
  const int row = m_list.GetCurSel();
  const int target = row + step;
  if (row < 0 || target < 0 || target >= m_list.GetRowCount()) return;
  ReadRows();
  CZPPipePartsCoe moved = m_fittings[row];
  m_fittings.RemoveAt(row);
  m_fittings.InsertAt(target, moved);
  Fill();
  m_list.SetCurSel(target, resistance::kNameColumn);
}
