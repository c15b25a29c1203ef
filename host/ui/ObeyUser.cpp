#include "host/ui/ObeyUser.h"

#include "host/afx/CFileException.h"
#include "host/afx/MessageLog.h"
#include "host/ui/MessageBox.h"

UiOutcome ObeyUser(const std::function<UiOutcome()>& event) {
  try {
    return event();
  } catch (const CFileException& failure) {
    afx::LogError(failure.Message());
    AfxMessageBox(failure.Message(), MB_OK | MB_ICONEXCLAMATION);
  }
  return {};
}
