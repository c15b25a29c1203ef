#include "plugin/pipes/dialogs/ThicknessGrid.h"

#include "host/afx/Numbers.h"
#include "plugin/base/NumberText.h"
#include "plugin/graph/Notice.h"

namespace pipes {
namespace {

constexpr int kHeading = 1; // rows
constexpr double SZPDuctThickness::*kMembers[] = {&SZPDuctThickness::dbMin, &SZPDuctThickness::dbMax,
                                                  &SZPDuctThickness::dbThickness};

std::vector<CString> Texts(const SZPDuctThickness& row) {
  std::vector<CString> texts;
  for (const auto member : kMembers) texts.push_back(ZP::ftoa(row.*member, 2, true));
  return texts;
}

} // namespace

ThicknessGrid::ThicknessGrid(CFormWnd& form, const CString& caption) : CGridCtrl(form, caption) {
  SetHeading({{L"风管最大边(mm)", 80}, {L"", 80}, {L"壁厚(mm)", 80}});
  MergeCells(0, 0, 0, 1);
  EditEnded.Connect([this](UiEditEnd& end) { EndEdit(end); });
  Menu.SetProvider([this] {
    return std::vector<UiMenuItem>{{kNew, L"新建", m_material != nullptr},
                                   {kDelete, L"删除", IsTableRow(GetFocusRow())}};
  });
  Menu.Chosen.Connect([this](int command) { DoMenu(command); });
}

void ThicknessGrid::Show(CZPDuctMaterial* material) {
  m_material = material;
  Fill();
}

void ThicknessGrid::Fill() {
  const UiQuietly quietly(*this);
  DeleteAllRows(kHeading);
  if (!m_material) return;
  for (const SZPDuctThickness& row : m_material->m_arrThickness) AddRow(Texts(row));
  AddEmptyRow();
}

void ThicknessGrid::AddEmptyRow() {
  const int row = AddRow({});
  SetCellReadOnly(row, 1, true);
  SetCellReadOnly(row, 2, true);
}

bool ThicknessGrid::IsTableRow(int row) const {
  return m_material && row >= kHeading && row - kHeading < m_material->m_arrThickness.GetSize();
}

// The empty row becomes one of the table before its text is looked at, and stays one when the text is
// refused.
void ThicknessGrid::EndEdit(const UiEditEnd& end) {
  if (!m_material || end.cancelled) return;
  if (end.text.IsEmpty()) return SetItemText(end.row, end.column, end.oldText);
  if (!IsTableRow(end.row)) {
    SZPDuctThickness zero;
    m_material->m_arrThickness.Add(zero);
    for (const int column : {1, 2}) {
      SetCellReadOnly(end.row, column, false);
      SetItemText(end.row, column, Texts(zero)[static_cast<std::size_t>(column)]);
    }
    AddEmptyRow();
  }
  double& value = m_material->m_arrThickness[end.row - kHeading].*kMembers[end.column];
  const double typed = afx::wcstod(end.text, nullptr);
  if (typed == 0 && end.text != L"0") {
    SetItemText(end.row, end.column, ZP::ftoa(value, 2, true));
    if (!end.closing) notice::Tell(L"输入的数据不是数值型，请重新输入！");
    return;
  }
  value = typed;
}

void ThicknessGrid::DoMenu(int command) {
  if (!m_material) return;
  if (command == kNew) {
    SZPDuctThickness zero;
    m_material->m_arrThickness.Add(zero);
    Fill();
  } else if (IsTableRow(GetFocusRow())) {
    const int row = GetFocusRow();
    m_material->m_arrThickness.RemoveAt(row - kHeading);
    DeleteRow(row);
  }
}

} // namespace pipes
