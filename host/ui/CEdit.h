// A field of text. Typing tells TextChanged each time; Left tells that the user has gone on to something
// else.
#pragma once

#include "host/ui/CWnd.h"

class CEdit : public CWnd {
 public:
  explicit CEdit(CFormWnd& form, CString caption = {}) : CWnd(form, std::move(caption)) {}
  UiKind Kind() const override { return UiKind::edit; }

  const CString& GetText() const { return m_text; }
  void SetText(const CString& text);
  bool IsReadOnly() const { return m_readOnly; }
  void SetReadOnly(bool readOnly);
  bool IsMultiLine() const { return m_multiLine; }
  void SetMultiLine(bool multiLine) { m_multiLine = multiLine; }

  // The whole text after a keystroke.
  UiOutcome UserType(const CString& text);
  // The user leaves the field.
  void UserLeave() { FinishEdit(); }

  UiSignal<> TextChanged;
  UiSignal<> Left; // only after typing

  bool FinishEdit() override;
  bool CancelEdit() override;

 protected:
  // Whether the field takes such a text at all.
  virtual UiOutcome CheckTyped(const CString&) const { return {}; }
  void ChangeByUser(const CString& text);

 private:
  CString m_text;
  bool m_typing = false;
  bool m_readOnly = false;
  bool m_multiLine = false;
};
