#include "host/ed/AcApDocManager.h"

#include "host/afx/Paths.h"
#include "host/db/ExternalReferences.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

namespace fs = std::filesystem;

template <typename Call> void AcApDocManager::tell(Call call) {
  const auto reactors = m_reactors; // one may take itself off while it is told
  for (auto* reactor : reactors)
    if (std::find(m_reactors.begin(), m_reactors.end(), reactor) != m_reactors.end()) call(*reactor);
}

bool AcApDocManager::isOpen(const AcApDocument* document) const {
  return document && std::any_of(m_documents.begin(), m_documents.end(),
                                 [&](const auto& open) { return open.get() == document; });
}

AcApDocument* AcApDocManager::document(const AcDbDatabase* database) const {
  for (const auto& open : m_documents)
    if (open->database() == database) return open.get();
  return nullptr;
}

AcApDocument* AcApDocManager::documentOfFile(const CString& fileName) const {
  const fs::path path(afx::NativePath(fileName));
  for (const auto& open : m_documents) {
    if (!open->isNamed()) continue;
    std::error_code error;
    const fs::path other(afx::NativePath(open->fileName()));
    if (path == other || fs::equivalent(path, other, error)) return open.get();
  }
  return nullptr;
}

AcApDocument& AcApDocManager::add(std::unique_ptr<AcDbDatabase> database, const CString& fileName,
                                  const CString& title) {
  m_documents.push_back(std::make_unique<AcApDocument>(std::move(database), fileName, title));
  auto* document = m_documents.back().get();
  tell([&](auto& reactor) { reactor.documentCreated(document); });
  makeCurrent(document);
  return *document;
}

void AcApDocManager::makeCurrent(AcApDocument* document) {
  if (document == m_current) return;
  if (m_current) tell([this](auto& reactor) { reactor.documentToBeDeactivated(m_current); });
  m_current = document;
  acdbHostApplicationServices()->setWorkingDatabase(document ? document->database() : nullptr);
  if (document) tell([&](auto& reactor) { reactor.documentBecameCurrent(document); });
}

Acad::ErrorStatus AcApDocManager::activateDocument(AcApDocument* document) {
  if (!isOpen(document)) return Acad::eNoDocument;
  makeCurrent(document);
  return Acad::eOk;
}

AcApDocument& AcApDocManager::newDocument() {
  auto database = std::make_unique<AcDbDatabase>(false);
  dxf::BuildNewDrawing(*database);
  database->setModified(false);
  CString title;
  title.Format(L"图形%d", ++m_newDrawings);
  return add(std::move(database), CString(), title);
}

AcApDocument* AcApDocManager::openDocument(const CString& fileName, dxf::ReadReport& report,
                                           const dxf::ReadOptions& options) {
  if (auto* open = documentOfFile(fileName)) {
    makeCurrent(open);
    report = {};
    report.ok = true;
    return open;
  }
  auto database = std::make_unique<AcDbDatabase>(false);
  report = dxf::ReadDrawing(fileName, *database, options);
  if (!report.ok) return nullptr;
  // Those that can't be resolved keep their reason, see acdbXrefProblems.
  acdbResolveCurrentXRefs(database.get());
  // An empty drawing that nobody touched was only there because there was nothing else.
  AcApDocument* untouched = m_current && !m_current->isNamed() && m_current->isQuiescent() &&
                                    !m_current->database()->isModified() &&
                                    m_current->database()->undo().commandCount() == 0
                                ? m_current
                                : nullptr;
  auto& document = add(std::move(database), fileName, CString());
  if (untouched) destroy(untouched);
  return &document;
}

Acad::ErrorStatus AcApDocManager::closeDocument(AcApDocument* document) {
  if (!isOpen(document)) return Acad::eNoDocument;
  if (!document->isQuiescent()) return Acad::eDocumentLocked;
  destroy(document);
  return Acad::eOk;
}

void AcApDocManager::closeAll() {
  while (!m_documents.empty()) destroy(m_documents.back().get());
  m_newDrawings = 0;
}

void AcApDocManager::destroy(AcApDocument* document) {
  tell([&](auto& reactor) { reactor.documentToBeDestroyed(document); });
  std::erase_if(m_pending, [&](const auto& pending) { return pending.document == document; });
  const auto found = std::find_if(m_documents.begin(), m_documents.end(),
                                  [&](const auto& open) { return open.get() == document; });
  const auto owned = std::move(*found);
  m_documents.erase(found);
  if (m_current == document) makeCurrent(m_documents.empty() ? nullptr : m_documents.back().get());
  const CString name = owned->fileName();
  tell([&](auto& reactor) { reactor.documentDestroyed(name); });
}

void AcApDocManager::titleChanged(AcApDocument& document) {
  tell([&](auto& reactor) { reactor.documentTitleUpdated(&document); });
}

Acad::ErrorStatus AcApDocManager::lockDocument(AcApDocument* document, AcAp::DocLockMode mode,
                                               const wchar_t* globalCommand, const wchar_t*, bool) {
  const auto status = lockForCommand(document, mode, globalCommand);
  if (status != Acad::eOk || document->lockCount() > 1 || mode == AcAp::kRead) return status;
  document->m_lockIsStep = true;
  document->database()->undo().beginCommand(globalCommand ? globalCommand : L"修改");
  return status;
}

Acad::ErrorStatus AcApDocManager::lockForCommand(AcApDocument* document, AcAp::DocLockMode mode,
                                                 const wchar_t* globalCommand) {
  if (!isOpen(document)) return Acad::eNoDocument;
  if (mode == AcAp::kNone || mode == AcAp::kNotLocked) return Acad::eInvalidInput;
  const auto before = document->lockMode();
  document->m_locks.push_back(mode);
  bool vetoed = false;
  tell([&](auto& reactor) {
    reactor.m_vetoed = false;
    reactor.documentLockModeChanged(document, before, document->lockMode(), globalCommand);
    vetoed = vetoed || reactor.m_vetoed;
  });
  if (!vetoed) return Acad::eOk;
  document->m_locks.pop_back();
  return Acad::eLockViolation;
}

Acad::ErrorStatus AcApDocManager::unlockDocument(AcApDocument* document) {
  if (!isOpen(document)) return Acad::eNoDocument;
  if (document->m_locks.empty()) return Acad::eNotApplicable;
  const auto before = document->lockMode();
  document->m_locks.pop_back();
  if (document->m_locks.empty() && std::exchange(document->m_lockIsStep, false))
    document->database()->undo().endCommand();
  tell([&](auto& reactor) {
    reactor.documentLockModeChanged(document, before, document->lockMode(), nullptr);
  });
  return Acad::eOk;
}

Acad::ErrorStatus AcApDocManager::sendStringToExecute(AcApDocument* document, const wchar_t* text,
                                                      bool activate, bool, bool echo) {
  if (!isOpen(document)) return Acad::eNoDocument;
  if (activate) makeCurrent(document);
  m_pending.push_back({document, text, echo});
  return Acad::eOk;
}

bool AcApDocManager::hasPendingText() const {
  return std::any_of(m_pending.begin(), m_pending.end(),
                     [this](const auto& pending) { return pending.document == m_current; });
}

std::optional<AcApDocManager::PendingText> AcApDocManager::takePendingText() {
  const auto found = std::find_if(m_pending.begin(), m_pending.end(),
                                  [this](const auto& pending) { return pending.document == m_current; });
  if (found == m_pending.end()) return std::nullopt;
  PendingText text = std::move(*found);
  m_pending.erase(found);
  return text;
}

Acad::ErrorStatus AcApDocManager::pushResourceHandle(void* resource) {
  m_resources.push_back(resource);
  return Acad::eOk;
}

Acad::ErrorStatus AcApDocManager::popResourceHandle() {
  if (m_resources.empty()) return Acad::eInvalidInput;
  m_resources.pop_back();
  return Acad::eOk;
}

void AcApDocManager::addReactor(AcApDocManagerReactor* reactor) {
  if (reactor && std::find(m_reactors.begin(), m_reactors.end(), reactor) == m_reactors.end())
    m_reactors.push_back(reactor);
}

void AcApDocManager::removeReactor(AcApDocManagerReactor* reactor) {
  std::erase(m_reactors, reactor);
}

AcApDocManager* acDocManagerPtr() {
  static auto* manager = new AcApDocManager; // never destroyed: plug-ins reach it from their own destructors
  return manager;
}

AcApDocument* curDoc() {
  return acDocManagerPtr()->curDocument();
}

AcApDocumentIterator* AcApDocManager::newAcApDocumentIterator() const {
  return new AcApDocumentIterator(*this);
}

AcApDocumentIterator::AcApDocumentIterator(const AcApDocManager& manager) {
  for (const auto& document : manager.m_documents) m_documents.push_back(document.get());
}
