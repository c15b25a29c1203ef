// A dialog: controls, the rules connected to their signals, and how it ends. DoModal hands it to the front
// end and returns when it has ended; Create shows it beside other work.
#pragma once

#include "host/ui/CFormWnd.h"

class CDialog : public CFormWnd {
 public:
  // The parent is the window above which it is shown; may be null.
  explicit CDialog(const CString& caption, CWnd* parent = nullptr);

  UiKind Kind() const override { return UiKind::dialog; }
  CWnd* GetParent() const { return m_parent; }

  // What EndDialog was given: IDOK, IDCANCEL or a number of the dialog's own. -1 when it could not be shown.
  // May be called again afterwards.
  int DoModal();
  // Shows it without waiting. False when it could not be shown.
  bool Create();
  // Ends the dialog once the event that is being handled is done.
  void EndDialog(int result);
  bool HasEnded() const override { return m_state == State::ended; }
  int Result() const { return m_result; }
  bool IsClosing() const override { return m_closing; }

  // Steps aside while the user works in the drawing, and comes back; so do the dialogs above which it is
  // shown.
  void BeginEditorCommand();
  void CompleteEditorCommand();
  void CancelEditorCommand() { CompleteEditorCommand(); }

  // --- what the user does
  // The close box. An edit that stands open is finished with IsClosing() set, and cannot be refused.
  void UserClose();
  // Escape: gives up the edit that stands open, or else cancels the dialog.
  void UserEscape();
  // Enter outside of controls that use it themselves: presses the default button, if there is one.
  UiOutcome UserEnter();

 protected:
  // Before it is shown. Calling EndDialog here keeps it from being shown.
  virtual void OnInitDialog() {}
  // Both end the dialog unless they are overridden.
  virtual void OnOK() { EndDialog(IDOK); }
  virtual void OnCancel() { EndDialog(IDCANCEL); }

 private:
  enum class State { fresh, running, ended };
  CWnd* m_parent;
  State m_state = State::fresh;
  int m_result = -1;
  bool m_closing = false;
};
