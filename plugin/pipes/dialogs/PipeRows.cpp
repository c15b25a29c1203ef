#include "plugin/pipes/dialogs/PipeRows.h"

#include "host/afx/Numbers.h"
#include "plugin/base/NumberText.h"
#include "plugin/base/Tolerance.h"

namespace {

struct PipeColumn {
  const wchar_t* title;
  double SZPPipeDNData::*member;
};
constexpr PipeColumn kColumns[] = {
    {L"公称直径", &SZPPipeDNData::dbNominal},
    {L"外径(mm)", &SZPPipeDNData::dbOuter},
    {L"内径(mm)", &SZPPipeDNData::dbInner},
    {L"壁厚(mm)", &SZPPipeDNData::dbThickness},
};
constexpr int kWidth = 80;

} // namespace

void pipes::BuildPipeColumns(CEditListCtrl& list) {
  for (const PipeColumn& column : kColumns) list.AddColumn(column.title, kWidth);
}

std::vector<CString> pipes::PipeRowTexts(const SZPPipeDNData& row) {
  std::vector<CString> texts;
  for (const PipeColumn& column : kColumns) texts.push_back(ZP::ftoa(row.*column.member, 2, true));
  return texts;
}

SZPPipeDNData pipes::ReadPipeRow(const CEditListCtrl& list, int row) {
  SZPPipeDNData data;
  int index = 0;
  for (const PipeColumn& column : kColumns)
    data.*column.member = afx::wcstod(list.GetItemText(row, index++), nullptr);
  return data;
}

bool pipes::IsPipeNumber(const CString& text) {
  constexpr double tolerance = 0.001;
  return !ZP::IsEqual(afx::wcstod(text, nullptr), 0, tolerance);
}

void pipes::UpdateThickness(CEditListCtrl& list, int row, int editedColumn) {
  if (editedColumn != kOuterColumn && editedColumn != kInnerColumn) return;
  const SZPPipeDNData data = ReadPipeRow(list, row);
  list.SetItemText(row, kThicknessColumn, ZP::ftoa((data.dbOuter - data.dbInner) * 0.5, 2, true));
}
