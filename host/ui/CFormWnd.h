// A window that holds controls and tells how they are arranged: a dialog, a page of a tab sheet, a dock bar.
#pragma once

#include "host/ui/CWnd.h"
#include "host/ui/UiLayout.h"

#include <vector>

class CFormWnd : public CWnd {
 public:
  using CWnd::CWnd;
  ~CFormWnd() override;

  // Its arrangement, fixed once the window has been constructed. Controls that it leaves out are not shown.
  virtual UiLayout Layout() { return {}; }
  // The controls on it, in the order of their construction; those on pages of a tab sheet are with their
  // page.
  const std::vector<CWnd*>& Controls() const { return m_controls; }

  // The control with the keyboard, or null.
  CWnd* FocusControl() const { return m_focus; }
  UiSignal<> FocusMoved;

  // The control in which the user is typing, or null.
  CWnd* Editing() const { return m_editing; }
  // Finishes what is being edited outside of the control `except`. False when that was refused.
  bool FinishEditing(const CWnd* except = nullptr);

  // Takes no more events.
  virtual bool HasEnded() const { return false; }
  // The close box was pressed, and the window is on its way out: edits end now whatever is in them.
  virtual bool IsClosing() const { return false; }

 private:
  friend class CWnd;
  void Register(CWnd& control) { m_controls.push_back(&control); }
  void Unregister(CWnd& control);
  void MoveFocus(CWnd* control);
  void SetEditing(CWnd* control) { m_editing = control; }

  std::vector<CWnd*> m_controls;
  CWnd* m_focus = nullptr;
  CWnd* m_editing = nullptr;
};
