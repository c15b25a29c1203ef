#include "host/db/AcDbDatabase.h"
#include "host/db/AcRxObject.h"

#include <map>
#include <string>

namespace {

// Built on first use, because descriptors in other sources register during static initialisation.
struct Registry {
  std::map<std::string, AcRxClass*, std::less<>> byDxfName;
  std::map<std::wstring, AcRxClass*, std::less<>> byName;
};

Registry& registry() {
  static auto* instance = new Registry; // outlives descriptors of every module
  return *instance;
}

} // namespace

AcRxClass::AcRxClass(const wchar_t* name, BaseGetter base, const char* dxfName, Creator creator,
                     const char* application, int proxyFlags)
    : m_name(name), m_base(base), m_dxfName(dxfName), m_creator(creator), m_application(application),
      m_proxyFlags(proxyFlags) {
  registry().byName[name] = this;
  if (*dxfName) registry().byDxfName[dxfName] = this;
}

AcRxClass::~AcRxClass() {
  if (isCustom()) acrxWithdrawClass(*this);
  std::erase_if(registry().byName, [this](const auto& entry) { return entry.second == this; });
  std::erase_if(registry().byDxfName, [this](const auto& entry) { return entry.second == this; });
}

bool AcRxClass::isDerivedFrom(const AcRxClass* type) const {
  for (const AcRxClass* c = this; c; c = c->myParent())
    if (c == type) return true;
  return false;
}

AcRxClass* AcRxClass::findByDxfName(std::string_view dxfName) {
  const auto found = registry().byDxfName.find(dxfName);
  return found == registry().byDxfName.end() ? nullptr : found->second;
}

AcRxClass* AcRxClass::findByName(std::wstring_view name) {
  const auto found = registry().byName.find(name);
  return found == registry().byName.end() ? nullptr : found->second;
}

std::vector<AcRxClass*> AcRxClass::customClasses() {
  std::vector<AcRxClass*> classes;
  for (const auto& entry : registry().byName)
    if (entry.second->isCustom()) classes.push_back(entry.second);
  return classes;
}

AcRxClass* AcRxObject::desc() {
  static AcRxClass descriptor(L"AcRxObject", nullptr, "", nullptr);
  return &descriptor;
}

AcRxClass* AcRxObject::isA() const {
  return desc();
}
