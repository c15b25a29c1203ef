// The names are the keys of the nodes themselves; nothing is stored twice.
#include "plugin/base/CSubKeyNames.h"

#include "host/afx/CInvalidArgException.h"
#include "plugin/base/idp/StoredText.h"

CSubKeyNames::~CSubKeyNames() = default;

int CSubKeyNames::GetSize() const {
  return m_table.GetCount();
}

CString CSubKeyNames::GetAt(int index) const {
  if (index < 0 || index >= GetSize()) AfxThrowInvalidArgException();
  return idp::FromStoredText(m_table.At(index).key.Text());
}

CSubKeyNames::operator CStringArray() const {
  CStringArray copy;
  for (const CString& name : *this) copy.Add(name);
  return copy;
}
