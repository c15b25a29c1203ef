// Told of what happens to documents. Not owned by the document manager; take it off before it dies.
#pragma once

#include "host/ed/AcApDocLockMode.h"

class AcApDocument;

class AcApDocManagerReactor {
 public:
  virtual ~AcApDocManagerReactor() = default;
  virtual void documentCreated(AcApDocument*) {}
  // The document and its database are still whole.
  virtual void documentToBeDestroyed(AcApDocument*) {}
  // fileName stays valid for the length of the call only.
  virtual void documentDestroyed(const wchar_t* /*fileName*/) {}
  virtual void documentToBeDeactivated(AcApDocument*) {}
  virtual void documentBecameCurrent(AcApDocument*) {}
  virtual void documentTitleUpdated(AcApDocument*) {}
  // A lock was asked for, or given back (newMode is then weaker). veto() inside it refuses the lock.
  virtual void documentLockModeChanged(AcApDocument*, AcAp::DocLockMode /*oldMode*/,
                                       AcAp::DocLockMode /*newMode*/, const wchar_t* /*commandName*/) {}

  void veto() { m_vetoed = true; }

 private:
  friend class AcApDocManager;
  bool m_vetoed = false;
};
