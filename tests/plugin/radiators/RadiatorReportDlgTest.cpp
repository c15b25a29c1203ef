// The window in which a correction factor is chosen from its table.
#include "plugin/radiators/dialogs/CZPRadiatorReportDlg.h"

#include <gtest/gtest.h>

#include "host/afx/Numbers.h"
#include "plugin/base/NumberText.h"
#include "plugin/radiators/CorrectionTables.h"
#include "tests/support/TempInstall.h"
#include "tests/support/UiFrontEndScript.h"

namespace {

class RadiatorReport : public testing::Test {
 protected:
  // Chooses a cell and presses the button; the text that comes of it.
  CString Choose(int table, int row, int column) {
    frontEnd.runs.push_back([=](CDialog& dialog) {
      auto& report = static_cast<CZPRadiatorReportDlg&>(dialog);
      EXPECT_TRUE(report.m_report.UserClick(row, column));
      EXPECT_TRUE(report.m_ok.UserClick());
    });
    CString text = L"as it was";
    EXPECT_EQ(radiators::ChooseCorrectionFactor(table, text, nullptr), IDOK);
    return text;
  }
  // As the field of the calculation shows it.
  CString Shown(int table, int row, int column) {
    return ZP::ftoa(afx::wcstod(Choose(table, row, column), nullptr), 2, true);
  }
  TempInstall install;
  UiFrontEndScript frontEnd;
};

TEST_F(RadiatorReport, GivesTheTextOfTheChosenCell) {
  EXPECT_EQ(Choose(2, 3, 1), L"0.95");
  EXPECT_EQ(Choose(0, 2, 4), L"1.1");
  EXPECT_EQ(Choose(1, 1, 2), L"1.009");
  EXPECT_EQ(Choose(3, 2, 7), L"0.82");
}

TEST_F(RadiatorReport, GivesAFieldOfTwoDecimalsARoundedValueAndZeroForWhatIsNone) {
  EXPECT_EQ(Shown(2, 3, 1), L"0.95");
  EXPECT_EQ(Shown(1, 1, 2), L"1.01");
  EXPECT_EQ(Shown(1, 1, 3), L"0"); // a dash
  EXPECT_EQ(Shown(1, 4, 0), L"0"); // a label
  EXPECT_EQ(Shown(1, 4, 5), L"0"); // the empty corner
}

TEST_F(RadiatorReport, TakesADoubleClickForTheButton) {
  frontEnd.runs.push_back(
      [](CDialog& dialog) { static_cast<CZPRadiatorReportDlg&>(dialog).m_report.UserDoubleClick(2, 2); });
  CString text;
  EXPECT_EQ(radiators::ChooseCorrectionFactor(2, text, nullptr), IDCANCEL) << "no such cell";
  frontEnd.runs.push_back(
      [](CDialog& dialog) { static_cast<CZPRadiatorReportDlg&>(dialog).m_report.UserDoubleClick(2, 1); });
  EXPECT_EQ(radiators::ChooseCorrectionFactor(2, text, nullptr), IDOK);
  EXPECT_EQ(text, L"1.02");
}

TEST_F(RadiatorReport, LeavesTheTextAloneWhenCancelledByButtonKeyOrCloseBox) {
  const std::function<void(CZPRadiatorReportDlg&)> ways[] = {
      [](CZPRadiatorReportDlg& dialog) { dialog.m_cancel.UserClick(); },
      [](CZPRadiatorReportDlg& dialog) { dialog.UserEscape(); },
      [](CZPRadiatorReportDlg& dialog) { dialog.UserClose(); }};
  for (const auto& way : ways) {
    frontEnd.runs.push_back([&](CDialog& dialog) {
      auto& report = static_cast<CZPRadiatorReportDlg&>(dialog);
      report.m_report.UserClick(3, 1);
      way(report);
    });
    CString text = L"1.00";
    EXPECT_EQ(radiators::ChooseCorrectionFactor(2, text, nullptr), IDCANCEL);
    EXPECT_EQ(text, L"1.00");
  }
}

TEST_F(RadiatorReport, GivesTheEmptyTextWhenNoCellWasChosen) {
  frontEnd.runs.push_back([](CDialog& dialog) { dialog.UserEnter(); });
  CString text = L"as it was";
  EXPECT_EQ(radiators::ChooseCorrectionFactor(0, text, nullptr), IDOK);
  EXPECT_EQ(text, L"");
}

TEST_F(RadiatorReport, ShowsEveryCellOfItsTable) {
  for (int index = 0; index < radiators::kCorrectionTableCount; ++index) {
    const radiators::CorrectionTable& table = *radiators::FindCorrectionTable(index);
    CZPRadiatorReportDlg dialog(index, nullptr);
    const CReportCtrl& report = dialog.m_report;
    EXPECT_EQ(dialog.GetCaption(), table.title);
    EXPECT_EQ(report.GetCaption(), table.title);
    EXPECT_FALSE(report.IsEditable());
    ASSERT_EQ(report.GetRowCount(), table.rows);
    ASSERT_EQ(report.GetColumnCount(), table.columns);
    for (int row = 0; row < table.rows; ++row)
      for (int column = 0; column < table.columns; ++column) {
        const radiators::CorrectionCell& cell = table.At(row, column);
        const UiCell& shown = report.Cell(row, column);
        EXPECT_EQ(shown.text, cell.isPicture ? L"" : cell.text);
        EXPECT_EQ(shown.picture, cell.isPicture ? radiators::CorrectionPicturePath(cell.text) : CString());
      }
  }
}

TEST_F(RadiatorReport, HasItsFixedCellsItsMergedHeadsAndItsSizes) {
  const CZPRadiatorReportDlg length(0, nullptr);
  EXPECT_TRUE(length.m_report.Row(0).fixed);
  EXPECT_TRUE(length.m_report.Row(1).fixed);
  EXPECT_FALSE(length.m_report.Row(2).fixed);
  EXPECT_TRUE(length.m_report.Column(0).fixed);
  EXPECT_EQ(length.m_report.Cell(0, 1).spanColumns, 4);
  EXPECT_EQ(length.m_report.Cell(0, 5).spanColumns, 3);
  EXPECT_EQ(length.m_report.GetTotalWidth(), 160 + 7 * 80);
  EXPECT_EQ(length.m_report.GetTotalHeight(), 3 * 25);
  const CZPRadiatorReportDlg connection(1, nullptr);
  EXPECT_TRUE(connection.m_report.Row(3).fixed);
  EXPECT_EQ(connection.m_report.Row(0).height, 55);
  EXPECT_EQ(connection.m_report.GetTotalWidth(), 6 * 120);
  const CZPRadiatorReportDlg flow(3, nullptr);
  EXPECT_EQ(flow.m_report.Cell(0, 0).spanRows, 2);
  EXPECT_EQ(flow.m_report.Cell(0, 1).spanColumns, 7);
  for (int column = 0; column < 8; ++column)
    EXPECT_GT(flow.m_report.Column(column).width, 0) << "a column without width would be hidden";
}

TEST_F(RadiatorReport, OfAnotherIndexIsAnEmptyTable) {
  for (const int index : {-1, 4}) {
    const CZPRadiatorReportDlg dialog(index, nullptr);
    EXPECT_EQ(dialog.m_report.GetRowCount(), 0);
    EXPECT_EQ(dialog.m_report.GetColumnCount(), 0);
  }
}

TEST_F(RadiatorReport, HasTheTableAboveItsTwoButtons) {
  CZPRadiatorReportDlg dialog(2, nullptr);
  const UiLayout layout = dialog.Layout();
  ASSERT_EQ(layout.children.size(), 2u);
  EXPECT_EQ(layout.children[0].control, &dialog.m_report);
  EXPECT_EQ(layout.children[0].width, 480);
  EXPECT_EQ(layout.children[1].children.back().control, &dialog.m_cancel);
}

} // namespace
