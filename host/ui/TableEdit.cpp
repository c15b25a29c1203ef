// In-place editing of tables.
#include "host/ui/CFormWnd.h"
#include "host/ui/CTableWnd.h"

#include <algorithm>

void CTableWnd::SetEditable(bool editable) {
  m_editable = editable;
  Notify(UiChange::Kind::look);
}

bool CTableWnd::CanEdit(int row, int column) const {
  if (!m_editable || !IsCell(row, column) || Row(row).fixed) return false;
  const UiColumn& where = Column(column);
  return !where.fixed && !where.readOnly && !where.pressed && where.width > 0 && !Cell(row, column).readOnly;
}

void CTableWnd::OpenEdit(Edit edit) {
  SetCurSel(edit.row, edit.column);
  m_edit = std::move(edit);
  BeginEditing();
  Notify(UiChange::Kind::edit);
}

bool CTableWnd::EditCell(int row, int column) {
  if (!CanEdit(row, column)) return false;
  CFormWnd* top = TopForm();
  if (top && !top->FinishEditing()) return false;
  // Finishing may have run rules that changed the table.
  if (!CanEdit(row, column) || (top && top->HasEnded())) return false;
  const CString text = GetItemText(row, column);
  OpenEdit({row, column, text, text});
  EditBegun(row, column);
  return true;
}

bool CTableWnd::FinishEdit() {
  return CloseEdit(false);
}

bool CTableWnd::CancelEdit() {
  if (!m_edit) return false;
  CloseEdit(true);
  return true;
}

bool CTableWnd::CloseEdit(bool cancelled) {
  EndEditing();
  if (!m_edit) return true;
  const Edit edit = *std::exchange(m_edit, std::nullopt);
  CFormWnd* top = TopForm();
  UiEditEnd end{edit.row,     edit.column,
                edit.oldText, cancelled ? edit.oldText : edit.text,
                cancelled,    top && top->IsClosing(),
                false};
  SetItemText(edit.row, edit.column, end.text);
  Notify(UiChange::Kind::edit);
  EditEnded(end);
  if (!end.reopen || end.closing || m_edit || (top && top->HasEnded())) return !m_edit;
  if (!CanEdit(edit.row, edit.column)) return true;
  SetItemText(edit.row, edit.column, edit.oldText);
  OpenEdit({edit.row, edit.column, edit.oldText, end.text});
  return false;
}

UiOutcome CTableWnd::UserBeginEdit(int row, int column) {
  UiOutcome outcome = BeginUserEvent();
  if (!outcome) return outcome;
  if (!IsCell(row, column)) return NoSuchCell();
  if (!CanEdit(row, column)) return {L"“" + GetCaption() + L"”的这一单元格不能修改。", L"可以修改的单元格"};
  if (m_edit && m_edit->row == row && m_edit->column == column) return {};
  // The user gets to a cell by clicking it, and what goes with its row is to be shown before it is edited.
  outcome = UserClick(row, column);
  if (!outcome) return outcome;
  if (EditCell(row, column)) return {};
  return {L"正在编辑的内容还没有被接受。", L"先完成编辑，或用 close 关闭"};
}

UiOutcome CTableWnd::UserTypeEdit(const CString& text) {
  if (!m_edit) return {L"“" + GetCaption() + L"”没有正在编辑的单元格。", L"先开始编辑"};
  const UiCell& cell = Cell(m_edit->row, m_edit->column);
  if (cell.choices && !cell.freeText && std::ranges::find(*cell.choices, text) == cell.choices->end())
    return {L"“" + GetCaption() + L"”的这一单元格没有这一选项。", L"下拉列表中的一项"};
  m_edit->text = text;
  Notify(UiChange::Kind::edit);
  return {};
}

UiOutcome CTableWnd::UserEndEdit() {
  if (!m_edit) return {L"“" + GetCaption() + L"”没有正在编辑的单元格。", L"先开始编辑"};
  FinishEdit();
  return {};
}

UiOutcome CTableWnd::UserCancelEdit() {
  if (!m_edit) return {L"“" + GetCaption() + L"”没有正在编辑的单元格。", L"先开始编辑"};
  CancelEdit();
  return {};
}

UiOutcome CTableWnd::UserChoose(int row, int column, const CString& text) {
  UiOutcome outcome = UserBeginEdit(row, column);
  if (outcome) outcome = UserTypeEdit(text);
  if (!outcome) {
    CancelEdit();
    return outcome;
  }
  return UserEndEdit();
}
