// Holds the current document under a write lock for the length of a scope.
#pragma once

#include "host/ed/AcApDocManager.h"

class DocumentWriteLock {
 public:
  DocumentWriteLock() : m_document(acDocManagerPtr()->curDocument()) {
    m_status = acDocManagerPtr()->lockDocument(m_document, AcAp::kWrite);
  }
  ~DocumentWriteLock() {
    if (IsHeld()) acDocManagerPtr()->unlockDocument(m_document);
  }
  DocumentWriteLock(const DocumentWriteLock&) = delete;
  DocumentWriteLock& operator=(const DocumentWriteLock&) = delete;

  // False where there is no document or somebody refuses the lock.
  bool IsHeld() const { return m_status == Acad::eOk; }

 private:
  AcApDocument* m_document;
  Acad::ErrorStatus m_status;
};
