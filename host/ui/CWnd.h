// Everything that can be seen: dialogs, bars and their controls. A window is plain state; front ends observe
// it and hand it what the user does. Nothing here knows a toolkit.
//
// Functions named User... are what a user does. They respect what is disabled or read-only, finish an edit
// that is open elsewhere in the window, and then tell the signals that dialogs connect their rules to. All
// other functions are for the program: they change state, tell Changed, and nothing else.
#pragma once

#include "host/ui/MessageBox.h"
#include "host/ui/UiChange.h"
#include "host/ui/UiKind.h"
#include "host/ui/UiOutcome.h"
#include "host/ui/UiSignal.h"

class CFormWnd;

struct UiFont {
  CString face;   // empty for the front end's own
  int height = 0; // pixels at 96 dpi; 0 for the front end's own
};

class CWnd {
 public:
  // A window of its own.
  CWnd() = default;
  // A control on a form, which must outlive it. The caption is the name by which the control is called.
  CWnd(CFormWnd& form, CString caption);
  virtual ~CWnd();
  CWnd(const CWnd&) = delete;
  CWnd& operator=(const CWnd&) = delete;

  virtual UiKind Kind() const { return UiKind::window; }

  // The title of a dialog, the text of a button or check box, the label beside or above a field or table.
  const CString& GetCaption() const { return m_caption; }
  void SetCaption(const CString& caption);
  // A caption that is not shown still names the control.
  bool IsCaptionShown() const { return m_captionShown; }
  void ShowCaption(bool show);
  const CString& GetToolTip() const { return m_toolTip; }
  void SetToolTip(const CString& text);
  // Tells controls of one caption apart: a button beside a list belongs to that list.
  void SetBelongsTo(const CWnd& other) { m_belongsTo = &other; }
  const CWnd* BelongsTo() const { return m_belongsTo; }

  const UiFont& GetFont() const { return m_font; }
  void SetFont(const UiFont& font);

  bool IsWindowEnabled() const { return m_enabled; }
  void EnableWindow(bool enable);
  bool IsWindowVisible() const { return m_visible; }
  void ShowWindow(bool show);
  // Puts the keyboard on it.
  virtual void SetFocus();

  // While redrawing is off, changes are not told; turning it on again tells that the content changed. May be
  // nested.
  void SetRedraw(bool redraw);

  // The form that it stands on; null for a window of its own.
  CFormWnd* Form() const { return m_form; }
  // The dialog or bar that it is part of, or itself; null for a window that is no form.
  CFormWnd* TopForm();

  // Shows a message box, see MakeMessageBox.
  int MessageBox(const CString& text, const CString& caption, unsigned flags) {
    return AfxMessageBox(text, caption, flags);
  }

  UiSignal<const UiChange&> Changed;

  // Ends what is being edited in this control. False when the edit was refused and stands open again.
  virtual bool FinishEdit() { return true; }
  // Gives up what is being edited. False when there was nothing to give up.
  virtual bool CancelEdit() { return false; }

 protected:
  void Notify(UiChange::Kind kind, int row = -1);
  // To be called first by everything that a user does to the window; what it refuses is not to be done. It
  // may run rules of other controls, so look at the state only afterwards.
  UiOutcome BeginUserEvent();
  // The window is where the user is typing, until FinishEdit.
  void BeginEditing();
  void EndEditing();

 private:
  CFormWnd* m_form = nullptr;
  CString m_caption;
  CString m_toolTip;
  UiFont m_font;
  const CWnd* m_belongsTo = nullptr;
  bool m_captionShown = true;
  bool m_enabled = true;
  bool m_visible = true;
  int m_redrawOff = 0;
};

// Turns redrawing off for a scope.
class UiQuietly {
 public:
  explicit UiQuietly(CWnd& window) : m_window(window) { m_window.SetRedraw(false); }
  ~UiQuietly() { m_window.SetRedraw(true); }
  UiQuietly(const UiQuietly&) = delete;
  UiQuietly& operator=(const UiQuietly&) = delete;

 private:
  CWnd& m_window;
};
