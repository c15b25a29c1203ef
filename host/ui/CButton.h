// A push button, with its caption or with an image and a tool tip.
#pragma once

#include "host/ui/CWnd.h"

class CButton : public CWnd {
 public:
  // Pictures that every front end has.
  enum class Image { none, add, remove, up, down, left, right };
  // What the button is to the dialog: Enter presses the default one, Escape the cancelling one.
  enum class Role { none, accept, cancel };

  CButton(CFormWnd& form, CString caption, Role role = Role::none)
      : CWnd(form, std::move(caption)), m_role(role) {}
  // The tool tip is its caption too, by which it is called.
  CButton(CFormWnd& form, Image image, const CString& toolTip) : CWnd(form, toolTip), m_image(image) {
    SetToolTip(toolTip);
    ShowCaption(false);
  }
  UiKind Kind() const override { return UiKind::button; }

  Image GetImage() const { return m_image; }
  Role GetRole() const { return m_role; }
  bool IsDefault() const { return m_role == Role::accept; }

  UiOutcome UserClick() {
    UiOutcome outcome = BeginUserEvent();
    if (outcome) Clicked();
    return outcome;
  }

  UiSignal<> Clicked;

 private:
  Image m_image = Image::none;
  Role m_role = Role::none;
};
