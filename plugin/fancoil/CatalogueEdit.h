// One edit in FCUData.idp: the file as it stands at this moment, to be changed and saved as a whole. Dropped
// without Save, the file stays as it was.
#pragma once

#include "plugin/fancoil/CatalogueFile.h"

namespace fancoil {

class CatalogueEdit {
 public:
  CatalogueEdit();

  bool IsOpen() const { return m_open; }
  CIDPEx& Root() { return m_root; }
  // The first maker of exactly that name, or null.
  CIDPEx* FindFactory(const CString& name);
  bool Save();

 private:
  CIDPEx m_root;
  bool m_open = false;
};

} // namespace fancoil
