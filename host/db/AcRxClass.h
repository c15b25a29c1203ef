// The descriptor of one run-time class. Descriptors register themselves while they live, so that a plug-in's
// classes come and go with the plug-in.
#pragma once

#include <string_view>
#include <vector>

class AcRxObject;

class AcRxClass {
 public:
  using Creator = AcRxObject* (*)();
  using BaseGetter = AcRxClass* (*)();

  // dxfName is the record name in drawing files, empty for classes that have none.
  // application names the program that a class of a plug-in belongs to; null for the host's own classes.
  AcRxClass(const wchar_t* name, BaseGetter base, const char* dxfName, Creator creator,
            const char* application = nullptr, int proxyFlags = 0);
  ~AcRxClass();
  AcRxClass(const AcRxClass&) = delete;
  AcRxClass& operator=(const AcRxClass&) = delete;

  const wchar_t* name() const { return m_name; }
  const char* dxfName() const { return m_dxfName; }
  // A class that other programs know only through CLASSES.
  bool isCustom() const { return m_application != nullptr; }
  const char* application() const { return m_application ? m_application : ""; }
  // What other programs may do with objects of the class, as CLASSES counts it.
  int proxyFlags() const { return m_proxyFlags; }
  AcRxClass* myParent() const { return m_base ? m_base() : nullptr; }
  bool isDerivedFrom(const AcRxClass* type) const;
  // A new object of the class, owned by the caller; null for classes that can't be made.
  AcRxObject* create() const { return m_creator ? m_creator() : nullptr; }

  // The class registered for a record name of a drawing file, or null.
  static AcRxClass* findByDxfName(std::string_view dxfName);
  static AcRxClass* findByName(std::wstring_view name);
  // Those of plug-ins that are registered now.
  static std::vector<AcRxClass*> customClasses();

 private:
  const wchar_t* m_name;
  BaseGetter m_base;
  const char* m_dxfName;
  Creator m_creator;
  const char* m_application;
  int m_proxyFlags;
};

// Objects that were kept without being understood, because their class was missing, become objects of it, in
// all drawings. Called when a plug-in is loaded; one that registers classes later calls it itself. Nobody may
// have such an object open.
void acrxBuildClassHierarchy();
// The other way: the objects of a class are kept so again. Called before a plug-in goes, while its code can
// still tell what the objects hold; a class that goes by itself does it too.
void acrxWithdrawClass(const AcRxClass& type);
