#include "host/ed/AcRxDictionary.h"

#include "host/ed/AcEdCommandStack.h"
#include "host/ed/AcRxDynamicLinker.h"

#include <utility>

ACRX_NO_CONS_DEFINE_MEMBERS(AcRxDictionary, AcRxObject)
ACRX_NO_CONS_DEFINE_MEMBERS(AcRxClassDictionary, AcRxObject)

AcRxObject* AcRxDictionary::at(const wchar_t* name) const {
  const auto found = m_objects.find(CString(name));
  return found == m_objects.end() ? nullptr : found->second;
}

AcRxObject* AcRxDictionary::atPut(const wchar_t* name, AcRxObject* object) {
  return std::exchange(m_objects[CString(name)], object);
}

AcRxObject* AcRxDictionary::remove(const wchar_t* name) {
  auto node = m_objects.extract(CString(name));
  return node ? node.mapped() : nullptr;
}

AcRxClass* AcRxClassDictionary::at(const wchar_t* className) const {
  return className ? AcRxClass::findByName(className) : nullptr;
}

AcRxDictionary* acrxSysRegistry() {
  static AcRxDictionary* const registry = [] {
    auto* made = new AcRxDictionary; // never destroyed: plug-ins reach it while they are unloaded
    made->atPut(L"ACAD_REGISTERED_COMMANDS", acedCommandStack());
    made->atPut(L"DynamicLinker", acrxDynamicLinkerPtr());
    made->atPut(L"ClassDictionary", new AcRxClassDictionary);
    return made;
  }();
  return registry;
}
