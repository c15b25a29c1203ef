#include "plugin/radiators/dialogs/CZPAddRadiatorDlg.h"

#include <utility>

#include "plugin/graph/Notice.h"

namespace {

void TellTaken(const CString& name) {
  CString text;
  text.Format(L"散热器【%s】重名，请重新定义散热器类型！", name);
  notice::Tell(text);
}

// Whether another radiator has the name of this one.
bool IsNameTaken(const CZPRadiatorType& type, const CZPRadiator& radiator) {
  for (const CZPRadiator* other : type.m_arrRadiators)
    if (other && other != &radiator && other->GetName() == radiator.GetName()) return true;
  return false;
}

bool IsNameTaken(const CZPRadiatorManager& catalogue, const CZPRadiator& radiator) {
  for (const CZPRadiatorType* type : catalogue.m_arrTypes)
    if (type && IsNameTaken(*type, radiator)) return true;
  return false;
}

} // namespace

CZPAddRadiatorDlg::CZPAddRadiatorDlg(Mode mode, const CString& typeName, CZPRadiator* radiator, CWnd* parent)
    : CDialog(mode == add ? L"添加散热器" : L"修改散热器", parent),
      m_ok(*this, mode == add ? L"添加" : L"修改", CButton::Role::accept), m_mode(mode), m_typeName(typeName),
      m_oldName(radiator ? radiator->GetName() : CString()), m_pRadiator(radiator) {
  m_properties.ShowCaption(false);
  m_properties.Fill(typeName, radiator);
  m_ok.Clicked.Connect([this] { OnOK(); });
  m_cancel.Clicked.Connect([this] { OnCancel(); });
}

UiLayout CZPAddRadiatorDlg::Layout() {
  return ui::Column({
      ui::Item(m_properties).Stretch(1).Size(360, 340),
      ui::Row({ui::Space(), ui::Item(m_ok), ui::Item(m_cancel)}),
  });
}

void CZPAddRadiatorDlg::OnOK() {
  m_mode == add ? Add() : Modify();
}

// A change that was refused leaves in the radiator what it has read. The file, though, holds each name of a
// type once: where another has this one by now, the old name comes back.
void CZPAddRadiatorDlg::OnCancel() {
  const CZPRadiatorType* type = m_catalogue.GetRadiatorType(m_typeName);
  if (m_mode == modify && type && IsNameTaken(*type, *m_pRadiator)) m_pRadiator->SetName(m_oldName);
  CDialog::OnCancel();
}

bool CZPAddRadiatorDlg::HasNames(const CString& typeName, const CZPRadiator& radiator) const {
  if (!typeName.IsEmpty() && !radiator.GetName().Trim().IsEmpty()) return true;
  notice::Tell(L"散热器类型为空，请重新输入!");
  return false;
}

CZPRadiator* CZPAddRadiatorDlg::AddTo(const CString& typeName, std::unique_ptr<CZPRadiator> radiator) {
  m_catalogue.Add(typeName); // refused where it is in already, which is as well
  if (m_catalogue.GetRadiatorType(typeName)->Add(radiator.get())) return radiator.release();
  TellTaken(radiator->GetName());
  return nullptr;
}

// The names of other types don't matter here, though they do when a radiator is renamed.
void CZPAddRadiatorDlg::Add() {
  auto radiator = std::make_unique<CZPRadiator>();
  const CString typeName = m_properties.Read(*radiator);
  if (!HasNames(typeName, *radiator)) return;
  CZPRadiator* const added = AddTo(typeName, std::move(radiator));
  if (!added) return;
  m_pRadiator = added;
  CDialog::OnOK();
}

void CZPAddRadiatorDlg::Modify() {
  const CString typeName = m_properties.Read(*m_pRadiator);
  if (!HasNames(typeName, *m_pRadiator)) return;
  if (typeName != m_typeName) return Move(typeName);
  // Stricter than the catalogue on purpose: a renamed radiator is to be told from those of all types.
  if (IsNameTaken(m_catalogue, *m_pRadiator)) {
    TellTaken(m_pRadiator->GetName());
    m_pRadiator->SetName(m_oldName);
    return;
  }
  CDialog::OnOK();
}

// A copy, so that the numbers of the formulas that aren't shown go along.
void CZPAddRadiatorDlg::Move(const CString& typeName) {
  CZPRadiator* const moved = AddTo(typeName, std::make_unique<CZPRadiator>(*m_pRadiator));
  if (!moved) return;
  if (CZPRadiatorType* before = m_catalogue.GetRadiatorType(m_typeName)) before->Remove(m_pRadiator);
  m_pRadiator = moved;
  CDialog::OnOK();
}
