// Objects of the host by name, as plug-ins look them up: "ACAD_REGISTERED_COMMANDS" (AcEdCommandStack),
// "DynamicLinker" (AcRxDynamicLinker) and "ClassDictionary" (AcRxClassDictionary).
#pragma once

#include "host/afx/CString.h"
#include "host/db/AcRxObject.h"

#include <map>

class AcRxDictionary : public AcRxObject {
  ACRX_DECLARE_MEMBERS(AcRxDictionary);

 public:
  // Null for an unknown name. The dictionary doesn't own what it names.
  AcRxObject* at(const wchar_t* name) const;
  // What stood under the name before, or null.
  AcRxObject* atPut(const wchar_t* name, AcRxObject* object);
  AcRxObject* remove(const wchar_t* name);

 private:
  std::map<CString, AcRxObject*> m_objects;
};

// Class descriptors by class name, those of loaded plug-ins included.
class AcRxClassDictionary : public AcRxObject {
  ACRX_DECLARE_MEMBERS(AcRxClassDictionary);

 public:
  AcRxClass* at(const wchar_t* className) const;
};

AcRxDictionary* acrxSysRegistry();
