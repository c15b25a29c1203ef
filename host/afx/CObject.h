// The common base of objects that can be asked for their class at run time. A class takes part with
// DECLARE_DYNAMIC(Class) in its body and IMPLEMENT_DYNAMIC(Class, Base) in its source.
// Nothing is stored through Serialize: files are written through the parameter store.
#pragma once

class CArchive;
class CDumpContext;

struct CRuntimeClass {
  const wchar_t* m_lpszClassName; // the name as declared
  CRuntimeClass* m_pBaseClass;    // null for CObject

  // Whether this is the base or derived from it, over any number of steps.
  bool IsDerivedFrom(const CRuntimeClass* base) const;
};

class CObject {
 public:
  virtual CRuntimeClass* GetRuntimeClass() const;
  virtual ~CObject() = default;
  virtual void Serialize(CArchive& archive);
  virtual void AssertValid() const;
  virtual void Dump(CDumpContext& context) const;

  bool IsKindOf(const CRuntimeClass* runtimeClass) const;
  static CRuntimeClass* GetThisClass() { return &classCObject; }

  static CRuntimeClass classCObject;

 protected:
  CObject() = default;
  CObject(const CObject&) = default;
  CObject& operator=(const CObject&) = default;
};

#define RUNTIME_CLASS(class_name) (class_name::GetThisClass())

// maybe_unused: a class that stands in one source only need not use all of them.
#define DECLARE_DYNAMIC(class_name)                                                                          \
 public:                                                                                                     \
  static CRuntimeClass class##class_name;                                                                    \
  [[maybe_unused]] static CRuntimeClass* GetThisClass();                                                     \
  [[maybe_unused]] static CRuntimeClass* _GetBaseClass();                                                    \
  [[maybe_unused]] CRuntimeClass* GetRuntimeClass() const override;

// The record is complete before any code runs, whatever the order in which sources are initialised.
#define IMPLEMENT_DYNAMIC(class_name, base_class_name)                                                       \
  constinit CRuntimeClass class_name::class##class_name = {L## #class_name,                                  \
                                                           &base_class_name::class##base_class_name};        \
  CRuntimeClass* class_name::GetThisClass() {                                                                \
    return &class_name::class##class_name;                                                                   \
  }                                                                                                          \
  CRuntimeClass* class_name::_GetBaseClass() {                                                               \
    return base_class_name::GetThisClass();                                                                  \
  }                                                                                                          \
  CRuntimeClass* class_name::GetRuntimeClass() const {                                                       \
    return class_name::GetThisClass();                                                                       \
  }
