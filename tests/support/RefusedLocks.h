// Refuses every lock on a document while it lives.
#pragma once

#include "host/ed/AcApDocManager.h"

class RefusedLocks : public AcApDocManagerReactor {
 public:
  RefusedLocks() { acDocManagerPtr()->addReactor(this); }
  ~RefusedLocks() override { acDocManagerPtr()->removeReactor(this); }
  void documentLockModeChanged(AcApDocument*, AcAp::DocLockMode, AcAp::DocLockMode, const wchar_t*) override {
    veto();
  }
};
