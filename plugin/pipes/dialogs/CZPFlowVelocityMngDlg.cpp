#include "plugin/pipes/dialogs/CZPFlowVelocityMngDlg.h"

#include <memory>

#include "host/afx/Numbers.h"
#include "plugin/base/NumberText.h"
#include "plugin/graph/Notice.h"
#include "plugin/pipes/dialogs/LimitRules.h"

namespace {

constexpr int kHeading = 1; // rows
constexpr int kNameColumn = 0;
constexpr int kMinColumn = 1;
constexpr int kMaxColumn = 2;
constexpr COLORREF kNameColour = 15133164;

} // namespace

CZPFlowVelocityMngDlg::CZPFlowVelocityMngDlg(CWnd* parent) : CDialog(L"管道流速管理器", parent) {
  m_grid.ShowCaption(false);
  m_grid.SetHeading({{L"管径", 100}, {L"最小流速(m/s)", 110}, {L"最大流速(m/s)", 110}});
  m_grid.EditEnded.Connect([this](UiEditEnd& end) { EndEdit(end); });
  m_ok.Clicked.Connect([this] { OnOK(); });
}

CZPFlowVelocityMngDlg::~CZPFlowVelocityMngDlg() {
  m_table.SaveData();
}

UiLayout CZPFlowVelocityMngDlg::Layout() {
  return ui::Column({ui::Item(m_grid).Stretch(1).Size(360, 320), ui::Row({ui::Space(), ui::Item(m_ok)})});
}

void CZPFlowVelocityMngDlg::Fill() {
  const UiQuietly quietly(m_grid);
  m_grid.DeleteAllRows(kHeading);
  for (CZPPipeLimit* limit : m_table.m_arrLimits) {
    if (!limit) continue;
    const SZPRange& velocity = limit->m_velocity;
    const int row = m_grid.AddRow(
        {limit->GetName(), ZP::ftoa(velocity.dbMin, 2, true), ZP::ftoa(velocity.dbMax, 2, true)}, limit);
    m_grid.SetCellColours(row, kNameColumn, kNameColour);
  }
  const int empty = m_grid.AddRow({});
  m_grid.SetCellReadOnly(empty, kMinColumn, true);
  m_grid.SetCellReadOnly(empty, kMaxColumn, true);
}

void CZPFlowVelocityMngDlg::EndEdit(const UiEditEnd& end) {
  if (end.row < kHeading || end.cancelled) return;
  const CString text = CString(end.text).Trim();
  auto* limit = static_cast<CZPPipeLimit*>(m_grid.GetRowData(end.row));
  if (!limit)
    AddLimit(end, text);
  else if (end.column == kNameColumn)
    Rename(end, text, *limit);
  else
    ChangeVelocity(end, text, *limit);
}

void CZPFlowVelocityMngDlg::ReturnTo(const UiEditEnd& end, const CString& text) {
  m_grid.SetItemText(end.row, end.column, text);
  m_grid.SetCurSel(end.row, end.column);
  m_grid.SetFocus();
}

namespace {
void TellNoSize() {
  notice::Tell(L"输入字符串不满足要求，输入值必须为整型数据！");
}
} // namespace

void CZPFlowVelocityMngDlg::AddLimit(const UiEditEnd& end, const CString& text) {
  m_grid.SetItemText(end.row, end.column, CString());
  if (end.column != kNameColumn || text.IsEmpty()) return;
  if (!pipes::IsLimitName(text)) {
    if (!end.closing) TellNoSize();
    return;
  }
  auto limit = std::make_unique<CZPPipeLimit>();
  limit->SetName(text);
  if (!m_table.Add(limit.get())) {
    if (end.closing) return;
    CString message;
    message.Format(L"当前管道已经[%s]存在，请重新输入。", text);
    notice::Tell(message);
    ReturnTo(end, CString());
    return;
  }
  limit.release();
  pipes::SortLimits(m_table);
  Fill();
}

// Neither tested against other names nor sorted in: the row stays where the user is looking at it.
void CZPFlowVelocityMngDlg::Rename(const UiEditEnd& end, const CString& text, CZPPipeLimit& limit) {
  if (text.IsEmpty()) {
    CString question;
    question.Format(L"当前字符串为空！删除不可恢复，确定要删除【%s】吗?", limit.GetName());
    if (!end.closing && notice::Confirm(question)) {
      m_grid.DeleteRow(end.row);
      m_table.Remove(&limit);
      return;
    }
  } else if (pipes::IsLimitName(text)) {
    limit.SetName(text);
  } else if (!end.closing) {
    TellNoSize();
  }
  m_grid.SetItemText(end.row, end.column, limit.GetName());
}

void CZPFlowVelocityMngDlg::ChangeVelocity(const UiEditEnd& end, const CString& text, CZPPipeLimit& limit) {
  if (text.IsEmpty()) {
    if (end.closing) return;
    notice::Tell(L"不能为空字符串，请输入数值。");
    ReturnTo(end, CString());
    return;
  }
  double& bound = end.column == kMinColumn ? limit.m_velocity.dbMin : limit.m_velocity.dbMax;
  bound = afx::wcstod(text, nullptr);
}
