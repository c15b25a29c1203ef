// A tree whose items have ticks. A tick that the user sets or takes off goes to all items below.
#pragma once

#include "host/ui/CTreeCtrl.h"

class CMutiTreeCtrl : public CTreeCtrl {
 public:
  using CTreeCtrl::CTreeCtrl;
  bool HasTicks() const override { return true; }

  bool GetCheck(HTREEITEM item) const { return item->checked; }
  // That item alone.
  void SetCheck(HTREEITEM item, bool checked);

  UiOutcome UserCheck(HTREEITEM item, bool checked);

  UiSignal<HTREEITEM> CheckChanged; // the item that the user clicked
};
