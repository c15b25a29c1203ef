// Makers in FCUData.idp, edited in place.
#include <limits>

#include "plugin/fancoil/CKTDatabaseOperation.h"
#include "plugin/fancoil/CatalogueEdit.h"
#include "plugin/fancoil/NumberedItems.h"

using namespace fancoil;

bool CKTDatabaseOperation::AddFactory(const CString& name) {
  CatalogueEdit edit;
  if (!edit.IsOpen() || edit.FindFactory(name)) return false;
  const int count = ItemCount(edit.Root());
  if (count == std::numeric_limits<int>::max()) return false; // only damage makes such a count
  CIDPEx& factory = MakeNumberedItem(edit.Root(), kFactoryPrefix, count);
  factory.SetSubValue(kFactoryNameKey, name);
  factory.SetSubValue(kCountKey, 0);
  edit.Root().SetSubValue(kCountKey, count + 1);
  return edit.Save();
}

// The entry of the maker stays where it is: what goes is a key that nothing ever sets, and the count falls
// by one, so that the last maker is no longer seen, whichever was named. Installations depend on no entry
// ever leaving the file.
bool CKTDatabaseOperation::RemoveFactory(const CString& name) {
  CatalogueEdit edit;
  if (!edit.IsOpen()) return false;
  if (edit.FindFactory(name)) {
    edit.Root().DeleteSubKey(L"szFactory");
    edit.Root().SetSubValue(kCountKey, ItemCount(edit.Root()) - 1);
  }
  return edit.Save();
}

bool CKTDatabaseOperation::ChangeFactoryName(const CString& oldName, const CString& newName) {
  CatalogueEdit edit;
  if (!edit.IsOpen()) return false;
  if (CIDPEx* factory = edit.FindFactory(oldName)) factory->SetSubValue(kFactoryNameKey, newName);
  return edit.Save();
}
