// What the catalogue of radiators, its types and its radiators share: a name. Which of the three an object is
// tells IsKindOf.
#pragma once

#include "host/afx/CObject.h"
#include "host/afx/CString.h"
#include "plugin/base/ZpExport.h"

// The order of the virtual operations is part of the binary interface towards sibling plug-ins: new ones go
// to the end, and the derived classes add none.
class ZP_EXPORT CZPRadiatorObject : public CObject {
  DECLARE_DYNAMIC(CZPRadiatorObject)

 public:
  CZPRadiatorObject();
  CZPRadiatorObject(const CZPRadiatorObject& other);
  CZPRadiatorObject& operator=(const CZPRadiatorObject& other);
  ~CZPRadiatorObject() override;

  virtual CString GetName() const; // a copy; empty at first
  // Tests nothing: that names are unique is up to whoever renames an object that is in a catalogue.
  void SetName(const CString& name);

 private:
  CString m_strName;
};
