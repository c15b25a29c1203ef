#include "host/ui/CRadioGroup.h"

void CRadioGroup::SetCurSel(int option) {
  m_chosen = option >= 0 && option < static_cast<int>(m_options.size()) ? option : -1;
  Notify(UiChange::Kind::content);
}

UiOutcome CRadioGroup::UserSelect(int option) {
  UiOutcome outcome = BeginUserEvent();
  if (!outcome) return outcome;
  if (option < 0 || option >= static_cast<int>(m_options.size())) return {L"没有这一选项。", L"一个选项"};
  SetCurSel(option);
  Clicked();
  return {};
}
