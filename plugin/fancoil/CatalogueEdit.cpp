#include "plugin/fancoil/CatalogueEdit.h"

#include "plugin/fancoil/NumberedItems.h"

namespace fancoil {

// Edits ask for no version: they change what they find and keep the rest.
CatalogueEdit::CatalogueEdit() {
  bool known = false;
  m_open = OpenCatalogue(m_root, known);
}

CIDPEx* CatalogueEdit::FindFactory(const CString& name) {
  return FindNumberedItem(m_root, kFactoryPrefix, kFactoryNameKey, name).node;
}

bool CatalogueEdit::Save() {
  return m_root.Save(CataloguePath()) != 0;
}

} // namespace fancoil
