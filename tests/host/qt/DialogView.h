// A dialog with every kind of control in the window, and a user who clicks and types in it step by step.
#pragma once

#include "tests/host/qt/DialogClicks.h"
#include "tests/host/qt/EveryKind.h"

class DialogView : public DialogClicks {
 protected:
  EveryKind dialog;

  // Shows the dialog, does the steps in it, and closes it where it still stands.
  void show(std::vector<std::function<void()>> steps) {
    std::size_t next = 0;
    QTimer timer;
    bool busy = false;
    QObject::connect(&timer, &QTimer::timeout, [&] {
      if (busy) return;
      busy = true;
      if (next < steps.size() && !dialog.HasEnded())
        steps[next++]();
      else
        dialog.UserClose();
      busy = false;
    });
    timer.start(0);
    result = dialog.DoModal();
  }
  int result = 0;
};
