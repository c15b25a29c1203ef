// Message boxes: what they show, and the numbers by which callers ask for buttons and icons and hear the
// answer.
#pragma once

#include "host/afx/CString.h"

#include <vector>

inline constexpr int IDOK = 1;
inline constexpr int IDCANCEL = 2;
inline constexpr int IDYES = 6;
inline constexpr int IDNO = 7;

// One set of buttons, one icon, and which button Enter presses; to be joined by |.
inline constexpr unsigned MB_OK = 0x0;
inline constexpr unsigned MB_OKCANCEL = 0x1;
inline constexpr unsigned MB_YESNOCANCEL = 0x3;
inline constexpr unsigned MB_YESNO = 0x4;
inline constexpr unsigned MB_ICONQUESTION = 0x20;
inline constexpr unsigned MB_ICONEXCLAMATION = 0x30;
inline constexpr unsigned MB_ICONINFORMATION = 0x40;
inline constexpr unsigned MB_DEFBUTTON2 = 0x100;

struct UiMessageBox {
  enum class Icon { none, information, question, exclamation };
  struct Button {
    int id = IDOK;
    CString caption;
  };
  CString caption; // empty: none of its own, see ShownCaption
  CString text;
  Icon icon = Icon::none;
  std::vector<Button> buttons; // at least one
  std::size_t defaultButton = 0;
};

// What flags ask for.
UiMessageBox MakeMessageBox(const CString& text, const CString& caption, unsigned flags);

// What front ends show above the text: the caption, or the program's name for a box without one.
CString ShownCaption(const UiMessageBox& box);

// Shows it and gives the id of the button. Without a front end the default button answers.
int AfxMessageBox(const CString& text, const CString& caption, unsigned flags);
// The same without a caption of its own.
int AfxMessageBox(const CString& text, unsigned flags = MB_OK);
