// Watches a document's database for the layer control bar. It deliberately does nothing with what it is told:
// the bar shows what its layers were when it was filled. A live refresh would come in here.
#pragma once

#include "host/db/AcDbDatabaseReactor.h"

class AcApDocument;

class CCADLayerDatabaseReactor : public AcDbDatabaseReactor {
 public:
  // Attached, it watches the database of the document and stands in the document's record; else it watches
  // nothing.
  CCADLayerDatabaseReactor(bool attach, AcApDocument* document);
  ~CCADLayerDatabaseReactor() override { Detach(); }
  CCADLayerDatabaseReactor(const CCADLayerDatabaseReactor&) = delete;
  CCADLayerDatabaseReactor& operator=(const CCADLayerDatabaseReactor&) = delete;

  AcApDocument* Document() const { return m_pDocument; } // null when detached
  // Leaves the document, whose record then names no reactor, whichever it named.
  void Detach();

  void objectModified(const AcDbDatabase* database, const AcDbObject* object) override;
  void headerSysVarChanged(const AcDbDatabase* database, const wchar_t* name, bool success) override;

 private:
  AcApDocument* m_pDocument = nullptr;
};

namespace layers {

// A new reactor attached to the document. It is valid until the module goes, and attached until then or until
// its document is closed.
CCADLayerDatabaseReactor* WatchLayers(AcApDocument* document);

} // namespace layers
