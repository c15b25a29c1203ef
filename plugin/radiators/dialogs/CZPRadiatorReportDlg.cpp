#include "plugin/radiators/dialogs/CZPRadiatorReportDlg.h"

#include "plugin/radiators/CorrectionTables.h"

using radiators::CorrectionCell;
using radiators::CorrectionTable;
using radiators::FindCorrectionTable;

namespace {

// Pixels, of columns whose width is left to the control: room for a factor.
constexpr int kColumnWidth = 80;

CString Title(int table) {
  const CorrectionTable* found = FindCorrectionTable(table);
  return found ? found->title : L"参数数据对话框";
}

void FillCell(CReportCtrl& report, int row, int column, const CorrectionCell& cell) {
  if (cell.isPicture) {
    report.SetCellPicture(row, column, radiators::CorrectionPicturePath(cell.text));
  } else {
    report.SetItemText(row, column, cell.text);
  }
}

void Fill(CReportCtrl& report, const CorrectionTable& table) {
  for (const int width : table.columnWidths) report.AddColumn(L"", width > 0 ? width : kColumnWidth);
  report.SetColumnFixed(0, true);
  for (int row = 0; row < table.rows; ++row) {
    report.AddRow({});
    report.SetRowHeight(row, table.rowHeights[static_cast<std::size_t>(row)]);
    for (int column = 0; column < table.columns; ++column)
      FillCell(report, row, column, table.At(row, column));
  }
  for (const int row : table.fixedRows) report.SetRowFixed(row, true);
  for (const radiators::CellBlock& block : table.merged)
    report.MergeCells(block.row, block.column, block.row + block.rows - 1, block.column + block.columns - 1);
}

} // namespace

CZPRadiatorReportDlg::CZPRadiatorReportDlg(int table, CWnd* parent)
    : CDialog(Title(table), parent), m_report(*this, Title(table)) {
  if (const CorrectionTable* found = FindCorrectionTable(table)) Fill(m_report, *found);
  m_report.CellDoubleClicked.Connect([this](int, int) { OnOK(); });
  m_ok.Clicked.Connect([this] { OnOK(); });
  m_cancel.Clicked.Connect([this] { OnCancel(); });
}

UiLayout CZPRadiatorReportDlg::Layout() {
  return ui::Column({
      ui::Item(m_report).Size(m_report.GetTotalWidth(), m_report.GetTotalHeight()),
      ui::Row({ui::Space(), ui::Item(m_ok), ui::Item(m_cancel)}),
  });
}

int radiators::ChooseCorrectionFactor(int table, CString& text, CWnd* parent) {
  CZPRadiatorReportDlg dialog(table, parent);
  const int result = dialog.DoModal();
  if (result == IDOK) dialog.m_report.GetSelData(text);
  return result;
}
