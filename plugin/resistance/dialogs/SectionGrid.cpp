#include "plugin/resistance/dialogs/SectionGrid.h"

#include <limits>

#include "host/afx/Numbers.h"
#include "plugin/base/NumberText.h"
#include "plugin/resistance/CZPLocalResistanceMng.h"
#include "plugin/resistance/FittingColumns.h"

namespace resistance {
namespace {

enum Column { kName, kDiameter, kCoefficient, kNumber };
constexpr int kHeading = 1;                 // rows
constexpr const wchar_t* kNoFitting = L" "; // the name in the input row

const auto& Store() {
  return CZPLocalResistanceMng::GetInstance()->m_arrPartsCoe;
}

// The store's names in its order, then the empty one, which takes a row away.
std::vector<CString> Choices() {
  std::vector<CString> names;
  for (const CZPPipePartsCoe& fitting : Store()) names.push_back(fitting.szName);
  names.emplace_back();
  return names;
}

CString CoefficientText(const CString& name, const CString& diameter) {
  const CZPPipePartsCoe* fitting = FindFitting(Store(), name);
  return ZP::ftoa(fitting ? fitting->GetCoe(diameter) : 0, 2, true);
}

bool IsBlank(const CString& text) {
  return CString(text).Trim().IsEmpty();
}

} // namespace

SectionGrid::SectionGrid(CFormWnd& form, const CString& caption) : CGridCtrl(form, caption) {
  SetHeading({{L"名称", 150}, {L"管径", 70}, {L"局阻", 70}, {L"数量", 70}});
  SetColumnReadOnly(kDiameter, true);
  SetColumnReadOnly(kCoefficient, true);
  EditEnded.Connect([this](UiEditEnd& end) { EndEdit(end); });
}

void SectionGrid::Fill(const CZPLocalResistanceSettings& section) {
  const UiQuietly quietly(*this);
  m_diameter = section.m_strDN;
  m_names = std::make_shared<const std::vector<CString>>(Choices());
  DeleteAllRows(kHeading);
  AddInputRow();
  for (const CZPPipeParts& fitting : section.m_arrParts) AddFitting(fitting.GetName(), fitting.GetNumber());
}

CZPArray<CZPPipeParts, CZPPipeParts&> SectionGrid::Fittings() const {
  CZPArray<CZPPipeParts, CZPPipeParts&> fittings;
  for (int row = kHeading; row < InputRow(); ++row) {
    CZPPipeParts fitting(GetItemText(row, kName), _wtoi(GetItemText(row, kNumber)));
    fittings.Add(fitting);
  }
  return fittings;
}

// Among the fittings; -1 for none.
int SectionGrid::FindName(const CString& name, int except) const {
  for (int row = kHeading; row < InputRow(); ++row)
    if (row != except && GetItemText(row, kName) == name) return row;
  return -1;
}

void SectionGrid::AddInputRow() {
  const int row = AddRow({kNoFitting});
  SetCellChoices(row, kName, m_names);
  SetCellReadOnly(row, kNumber, true);
}

void SectionGrid::Put(int row, const CString& name, int number) {
  SetItemText(row, kName, name);
  SetItemText(row, kDiameter, m_diameter);
  SetItemText(row, kCoefficient, CoefficientText(name, m_diameter));
  SetItemText(row, kNumber, ZP::itoa(number));
}

void SectionGrid::AddOne(int row) {
  const int number = _wtoi(GetItemText(row, kNumber));
  if (number < std::numeric_limits<int>::max()) SetItemText(row, kNumber, ZP::itoa(number + 1));
}

// Of a name that is there already one more is counted, on purpose whatever the number given.
void SectionGrid::AddFitting(const CString& name, int number) {
  if (const int row = FindName(name); row >= 0) return AddOne(row);
  const int row = InputRow();
  Put(row, name, number);
  SetCellReadOnly(row, kNumber, false);
  AddInputRow();
}

void SectionGrid::EndEdit(const UiEditEnd& end) {
  const bool isInput = end.row == InputRow();
  if (isInput) SetItemText(end.row, kName, kNoFitting);
  if (end.text == end.oldText || (IsBlank(end.text) && IsBlank(end.oldText))) return;
  {
    const UiQuietly quietly(*this);
    if (isInput)
      AddFitting(end.text, 1);
    else if (end.column == kName)
      ChangeName(end.row, end.text);
  }
  Edited();
}

// A row that takes the name of another one goes. On purpose its own number goes with it: the other one counts
// one more.
void SectionGrid::ChangeName(int row, const CString& name) {
  const int other = FindName(name, row);
  if (other >= 0) AddOne(other);
  if (other >= 0 || IsBlank(name))
    DeleteRow(row);
  else
    Put(row, name, 1);
}

} // namespace resistance
