// What the plug-in keeps for one open document and forgets with it.
#pragma once

class CCADLayerDatabaseReactor;

struct CDocData {
  // Watches the document's database for the layer control bar. Not owned; null where nobody watches.
  CCADLayerDatabaseReactor* m_pDatabaseReactor = nullptr;
};
