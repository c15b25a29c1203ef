// Holds the current document under a write lock for the length of a scope. Outside of a command what is
// changed in it is one step of undo, which U tells by its name.
#pragma once

#include "host/ed/AcApDocManager.h"

class DocumentWriteLock {
 public:
  explicit DocumentWriteLock(const wchar_t* step = nullptr) : m_document(acDocManagerPtr()->curDocument()) {
    m_status = acDocManagerPtr()->lockDocument(m_document, AcAp::kWrite, step);
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
