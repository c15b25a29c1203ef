// A window of controls that stays open beside the drawing, docked or floating, while commands go on.
#pragma once

#include "host/ui/CFormWnd.h"

class CFrameWnd;

class CAcUiDockControlBar : public CFormWnd {
 public:
  // Sides, to be joined by |.
  static constexpr unsigned kDockLeft = 1;
  static constexpr unsigned kDockRight = 2;
  static constexpr unsigned kDockTop = 4;
  static constexpr unsigned kDockBottom = 8;

  UiKind Kind() const override { return UiKind::dockBar; }

  // Makes the window, hidden until the frame shows it. False when it exists already. The parent may be null,
  // as in a program without windows.
  bool Create(CWnd* parent, const CString& title);
  bool IsCreated() const { return m_created; }
  // Takes the window away; Create may be called again. The destructor does so too.
  void DestroyWindow();

  // By which the front end remembers where the user left it.
  void SetToolID(const CString& id) { m_toolId = id; }
  const CString& ToolID() const { return m_toolId; }
  void EnableDocking(unsigned sides) { m_sides = sides; }
  unsigned DockingSides() const { return m_sides; }
  // Where it is docked first; 0 floats.
  void DockTo(unsigned side) { m_docked = side; }
  unsigned DockedSide() const { return m_docked; }

  // Shows or hides it.
  void ShowBar(bool show);
  // The bar's own close box hides it.
  void UserClose() { ShowBar(false); }

 protected:
  virtual void OnCreate() {} // the window has been made

 private:
  CString m_toolId;
  unsigned m_sides = 0;
  unsigned m_docked = 0;
  bool m_created = false;
};
