#include "plugin/layers/bar/CCADLayerDatabaseReactor.h"

#include <memory>
#include <vector>

#include "plugin/graph/DocumentData.h"

CCADLayerDatabaseReactor::CCADLayerDatabaseReactor(bool attach, AcApDocument* document) {
  if (!attach || !document) return;
  m_pDocument = document;
  document->database()->addReactor(this);
  DocumentData().GetDocData(document).m_pDatabaseReactor = this;
}

void CCADLayerDatabaseReactor::Detach() {
  if (!m_pDocument) return;
  DocumentData().GetDocData(m_pDocument).m_pDatabaseReactor = nullptr;
  m_pDocument->database()->removeReactor(this);
  m_pDocument = nullptr;
}

void CCADLayerDatabaseReactor::objectModified(const AcDbDatabase*, const AcDbObject*) {}

void CCADLayerDatabaseReactor::headerSysVarChanged(const AcDbDatabase*, const wchar_t*, bool) {}

namespace {

// Bars forget their reactors without detaching them. They are kept here, so that none is left in a database
// that outlives this module, or holds a document that is gone.
class ReactorKeeper : public AcApDocManagerReactor {
 public:
  ReactorKeeper() { acDocManagerPtr()->addReactor(this); }
  ~ReactorKeeper() override { acDocManagerPtr()->removeReactor(this); }

  CCADLayerDatabaseReactor* Keep(std::unique_ptr<CCADLayerDatabaseReactor> reactor) {
    m_reactors.push_back(std::move(reactor));
    return m_reactors.back().get();
  }
  void documentToBeDestroyed(AcApDocument* document) override {
    for (const auto& reactor : m_reactors)
      if (reactor->Document() == document) reactor->Detach();
  }

 private:
  std::vector<std::unique_ptr<CCADLayerDatabaseReactor>> m_reactors;
};

} // namespace

CCADLayerDatabaseReactor* layers::WatchLayers(AcApDocument* document) {
  auto reactor = std::make_unique<CCADLayerDatabaseReactor>(true, document);
  // Made behind the records of documents, and so gone before them.
  static ReactorKeeper keeper;
  return keeper.Keep(std::move(reactor));
}
