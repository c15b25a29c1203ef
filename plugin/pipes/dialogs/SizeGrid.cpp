#include "plugin/pipes/dialogs/SizeGrid.h"

#include <algorithm>
#include <memory>

#include "host/afx/Numbers.h"
#include "plugin/base/NumberText.h"
#include "plugin/graph/Notice.h"

namespace pipes {
namespace {

constexpr int kHeading = 1; // rows
constexpr int kWidthColumn = 0;
constexpr int kHeightColumn = 1;

// "0" is a width too, but what is no number isn't 0.
bool IsWidth(const CString& text) {
  return afx::wcstod(text, nullptr) > 0 || text == L"0";
}

void TellNoNumber() {
  notice::Tell(L"输入字符串不满足要求，输入值必须为数值型数据！");
}

} // namespace

SizeGrid::SizeGrid(CFormWnd& form, const CString& caption) : CGridCtrl(form, caption) {
  SetHeading({{}, {}});
  EditEnded.Connect([this](UiEditEnd& end) { EndEdit(end); });
}

void SizeGrid::Show(DuctShape shape) {
  m_shape = shape;
  Fill();
}

CZPArray<CZPDuctDiameter*, CZPDuctDiameter*>& SizeGrid::Sizes() const {
  return m_shape == DuctShape::round ? m_catalogue.m_arrCircleDiameters : m_catalogue.m_arrRectDiameters;
}

void SizeGrid::Fill() {
  const UiQuietly quietly(*this);
  const bool round = m_shape == DuctShape::round;
  SetItemText(0, kWidthColumn, round ? L"直径(mm)" : L"宽度(mm)");
  SetItemText(0, kHeightColumn, round ? L"" : L"高度(mm)");
  SetColumnWidth(kWidthColumn, round ? 190 : 95);
  SetColumnWidth(kHeightColumn, round ? 0 : 95);
  DeleteAllRows(kHeading);
  for (CZPDuctDiameter* size : Sizes())
    if (size) AddRow({size->GetSizeText(), ZP::ftoa(size->m_dHeight, 2, true)}, size);
  SetCellReadOnly(AddRow({}), kHeightColumn, true);
}

// What the sort drops nobody can reach any more but this grid.
void SizeGrid::Sort() {
  const std::vector<CZPDuctDiameter*> before(Sizes().begin(), Sizes().end());
  if (m_shape == DuctShape::round)
    m_catalogue.SortCircleDuctDiameter();
  else
    m_catalogue.SortRectDuctDiameter();
  for (CZPDuctDiameter* size : before)
    if (std::find(Sizes().begin(), Sizes().end(), size) == Sizes().end()) delete size;
}

void SizeGrid::EndEdit(const UiEditEnd& end) {
  if (end.cancelled) return;
  const CString text = CString(end.text).Trim();
  auto* size = static_cast<CZPDuctDiameter*>(GetRowData(end.row));
  if (!size)
    AddSize(end, text);
  else if (end.column == kWidthColumn)
    ChangeWidth(end, text, *size);
  else
    ChangeHeight(end, text, *size);
}

void SizeGrid::AddSize(const UiEditEnd& end, const CString& text) {
  SetItemText(end.row, end.column, CString());
  if (end.column != kWidthColumn || text.IsEmpty()) return;
  if (!IsWidth(text)) {
    if (!end.closing) TellNoNumber();
    return;
  }
  auto size = std::make_unique<CZPDuctDiameter>(afx::wcstod(text, nullptr), 0);
  const bool added = m_shape == DuctShape::round ? m_catalogue.AddCircleDuctDiameter(size.get())
                                                 : m_catalogue.AddRectDuctDiameter(size.get());
  // A round size that is in already doesn't stay in the list.
  if (added && std::find(Sizes().begin(), Sizes().end(), size.get()) != Sizes().end()) size.release();
  Fill();
}

void SizeGrid::ChangeWidth(const UiEditEnd& end, const CString& text, CZPDuctDiameter& size) {
  SetItemText(end.row, end.column, size.GetSizeText());
  if (text.IsEmpty()) {
    CString question;
    question.Format(L"当前字符串为空！删除不可恢复，确定要删除【%s】吗?", size.GetSizeText());
    if (end.closing || !notice::Confirm(question)) return;
    DeleteRow(end.row);
    if (m_shape == DuctShape::round)
      m_catalogue.RemoveCircleDuctDiameter(&size);
    else
      m_catalogue.RemoveRectDuctDiameter(&size);
    return;
  }
  if (!IsWidth(text)) {
    if (!end.closing) TellNoNumber();
    return;
  }
  size.m_dWidth = afx::wcstod(text, nullptr);
  Sort();
  Fill();
}

void SizeGrid::ChangeHeight(const UiEditEnd& end, const CString& text, CZPDuctDiameter& size) {
  if (!text.IsEmpty()) {
    size.m_dHeight = afx::wcstod(text, nullptr);
    return;
  }
  SetItemText(end.row, end.column, CString());
  if (end.closing) return;
  notice::Tell(L"不能为空字符串，请输入数值。");
  SetCurSel(end.row, end.column);
  SetFocus();
}

} // namespace pipes
