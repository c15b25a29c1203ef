// The main window of a front end, as far as plug-ins use it.
#pragma once

#include "host/ui/CAcUiDockControlBar.h"

class CFrameWnd : public CWnd {
 public:
  // Shows or hides a bar. delay has no meaning here.
  void ShowControlBar(CAcUiDockControlBar* bar, bool show, bool /*delay*/) {
    if (bar) bar->ShowBar(show);
  }
  // Gives the frame the keyboard.
  virtual void SetActiveWindow() {}
  void SetFocus() override { SetActiveWindow(); }
};
