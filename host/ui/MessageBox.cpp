#include "host/ui/MessageBox.h"

#include "host/ui/UiFrontEnd.h"

UiMessageBox MakeMessageBox(const CString& text, const CString& caption, unsigned flags) {
  UiMessageBox box;
  box.text = text;
  box.caption = caption;
  const UiMessageBox::Button ok{IDOK, L"确定"}, cancel{IDCANCEL, L"取消"}, yes{IDYES, L"是"}, no{IDNO, L"否"};
  switch (flags & 0xF) {
  case MB_OKCANCEL:
    box.buttons = {ok, cancel};
    break;
  case MB_YESNOCANCEL:
    box.buttons = {yes, no, cancel};
    break;
  case MB_YESNO:
    box.buttons = {yes, no};
    break;
  default:
    box.buttons = {ok};
  }
  using Icon = UiMessageBox::Icon;
  const unsigned icon = flags & 0xF0;
  box.icon = icon == MB_ICONQUESTION      ? Icon::question
             : icon == MB_ICONEXCLAMATION ? Icon::exclamation
             : icon == MB_ICONINFORMATION ? Icon::information
                                          : Icon::none;
  if ((flags & MB_DEFBUTTON2) != 0 && box.buttons.size() > 1) box.defaultButton = 1;
  return box;
}

CString ShownCaption(const UiMessageBox& box) {
  return box.caption.IsEmpty() ? CString(L"zpcad") : box.caption;
}

int AfxMessageBox(const CString& text, const CString& caption, unsigned flags) {
  const UiMessageBox box = MakeMessageBox(text, caption, flags);
  auto* frontEnd = UiFrontEnd::Get();
  return frontEnd ? frontEnd->ShowMessageBox(box) : box.buttons[box.defaultButton].id;
}

int AfxMessageBox(const CString& text, unsigned flags) {
  return AfxMessageBox(text, CString(), flags);
}
