// All open documents: which is current, their locks, what is told to observers, and text that is to run as if
// it were typed once the running command is done.
#pragma once

#include "host/dxf/DrawingFile.h"
#include "host/ed/AcApDocManagerReactor.h"
#include "host/ed/AcApDocument.h"

#include <deque>
#include <optional>

class AcApDocumentIterator;

class AcApDocManager {
 public:
  // --- the documents
  // ----------------------------------------------------------------------------------------
  AcApDocument* curDocument() const { return m_current; }
  AcApDocument* mdiActiveDocument() const { return m_current; }
  AcApDocument* document(const AcDbDatabase* database) const;
  // The document of a file that is open, or null.
  AcApDocument* documentOfFile(const CString& fileName) const;
  std::size_t documentCount() const { return m_documents.size(); }
  // The caller deletes it.
  AcApDocumentIterator* newAcApDocumentIterator() const;
  // Makes it current; its database becomes the working one. eNoDocument for one that isn't open.
  Acad::ErrorStatus activateDocument(AcApDocument* document);

  // An empty drawing under a title of its own, made current.
  AcApDocument& newDocument();
  // Reads a drawing and makes it current; one that is open already is only made current. Null when it can't
  // be read, with the reason in the report.
  AcApDocument* openDocument(const CString& fileName, dxf::ReadReport& report,
                             const dxf::ReadOptions& options = {});
  // Throws away what is not saved. eNoDocument, eDocumentLocked while someone holds a lock on it.
  Acad::ErrorStatus closeDocument(AcApDocument* document);
  // Locked ones too; for the end of the program.
  void closeAll();
  void titleChanged(AcApDocument& document);

  // --- locks
  // ------------------------------------------------------------------------------------------------
  // eNoDocument, eInvalidInput for a mode that is none, eLockViolation when an observer refuses. What is
  // changed under a lock for writing outside of any command, as bars and windows do that stay open, is one
  // step of undo, under the name of globalCommand where there is one.
  Acad::ErrorStatus lockDocument(AcApDocument* document, AcAp::DocLockMode mode = AcAp::kWrite,
                                 const wchar_t* globalCommand = nullptr,
                                 const wchar_t* localCommand = nullptr, bool prompt = true);
  // The same around a command, whose step of undo the editor begins itself.
  Acad::ErrorStatus lockForCommand(AcApDocument* document, AcAp::DocLockMode mode,
                                   const wchar_t* globalCommand);
  // Takes the latest lock off. eNoDocument, eNotApplicable when there is none.
  Acad::ErrorStatus unlockDocument(AcApDocument* document);

  // --- text for later
  // --------------------------------------------------------------------------------------- Runs as if typed
  // while the document is current, after the running command has returned. A blank or a line end is Enter.
  // wrapUp asks for no more than the order of calls gives anyway. eNoDocument.
  Acad::ErrorStatus sendStringToExecute(AcApDocument* document, const wchar_t* text, bool activate = true,
                                        bool wrapUp = false, bool echo = true);
  struct PendingText {
    AcApDocument* document = nullptr;
    CString text;
    bool echo = true;
  };
  // The next text for the current document, taken out.
  std::optional<PendingText> takePendingText();
  bool hasPendingText() const;
  void clearPendingText() { m_pending.clear(); }

  // --- resources of the module whose code is running
  // -------------------------------------------------------- eInvalidInput is what popping an empty stack
  // gives.
  Acad::ErrorStatus pushResourceHandle(void* resource);
  Acad::ErrorStatus popResourceHandle();
  std::size_t resourceDepth() const { return m_resources.size(); }

  void addReactor(AcApDocManagerReactor* reactor);
  void removeReactor(AcApDocManagerReactor* reactor);

 private:
  friend class AcApDocumentIterator;
  AcApDocument& add(std::unique_ptr<AcDbDatabase> database, const CString& fileName, const CString& title);
  void makeCurrent(AcApDocument* document);
  bool isOpen(const AcApDocument* document) const;
  void destroy(AcApDocument* document);
  template <typename Call> void tell(Call call);

  std::vector<std::unique_ptr<AcApDocument>> m_documents;
  AcApDocument* m_current = nullptr;
  std::vector<AcApDocManagerReactor*> m_reactors;
  std::deque<PendingText> m_pending;
  std::vector<void*> m_resources;
  int m_newDrawings = 0;
};

// Walks the documents in the order in which they were opened.
class AcApDocumentIterator {
 public:
  explicit AcApDocumentIterator(const AcApDocManager& manager);
  bool done() const { return m_at >= m_documents.size(); }
  void step() { ++m_at; }
  AcApDocument* document() const { return done() ? nullptr : m_documents[m_at]; }

 private:
  std::vector<AcApDocument*> m_documents;
  std::size_t m_at = 0;
};

// The one document manager; it outlives every plug-in.
AcApDocManager* acDocManagerPtr();
#define acDocManager acDocManagerPtr()
AcApDocument* curDoc();
