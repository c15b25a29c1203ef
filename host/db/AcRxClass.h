// The descriptor of one run-time class. Descriptors register themselves while they live, so that a plug-in's
// classes come and go with the plug-in.
#pragma once

#include <string_view>

class AcRxObject;

class AcRxClass {
 public:
  using Creator = AcRxObject* (*)();
  using BaseGetter = AcRxClass* (*)();

  // dxfName is the record name in drawing files, empty for classes that have none.
  AcRxClass(const wchar_t* name, BaseGetter base, const char* dxfName, Creator creator);
  ~AcRxClass();
  AcRxClass(const AcRxClass&) = delete;
  AcRxClass& operator=(const AcRxClass&) = delete;

  const wchar_t* name() const { return m_name; }
  const char* dxfName() const { return m_dxfName; }
  AcRxClass* myParent() const { return m_base ? m_base() : nullptr; }
  bool isDerivedFrom(const AcRxClass* type) const;
  // A new object of the class, owned by the caller; null for classes that can't be made.
  AcRxObject* create() const { return m_creator ? m_creator() : nullptr; }

  // The class registered for a record name of a drawing file, or null.
  static AcRxClass* findByDxfName(std::string_view dxfName);
  static AcRxClass* findByName(std::wstring_view name);

 private:
  const wchar_t* m_name;
  BaseGetter m_base;
  const char* m_dxfName;
  Creator m_creator;
};
