// Run-time classes of the host: every object tells its class, and a class tells its name, its name in drawing
// files and how an instance is made.
#pragma once

#include "host/db/AcRxClass.h"

class AcRxObject {
 public:
  AcRxObject() = default;
  AcRxObject(const AcRxObject&) = default;
  AcRxObject& operator=(const AcRxObject&) = default;
  virtual ~AcRxObject() = default;

  static AcRxClass* desc();
  virtual AcRxClass* isA() const;
  bool isKindOf(const AcRxClass* type) const { return isA()->isDerivedFrom(type); }
};

// In the class: ACRX_DECLARE_MEMBERS(AcDbLine); in the source: ACRX_DXF_DEFINE_MEMBERS(AcDbLine, AcDbCurve,
// "LINE") for classes that are made when a file is read, ACRX_NO_CONS_DEFINE_MEMBERS(AcDbCurve, AcDbEntity)
// for the others.
#define ACRX_DECLARE_MEMBERS(CLASS)                                                                          \
 public:                                                                                                     \
  static AcRxClass* desc();                                                                                  \
  AcRxClass* isA() const override;                                                                           \
  static CLASS* cast(const AcRxObject* object) {                                                             \
    return object && object->isKindOf(CLASS::desc()) ? static_cast<CLASS*>(const_cast<AcRxObject*>(object))  \
                                                     : nullptr;                                              \
  }                                                                                                          \
                                                                                                             \
 private:                                                                                                    \
  static AcRxClass s_class

#define ACRX_NO_CONS_DEFINE_MEMBERS(CLASS, BASE)                                                             \
  AcRxClass CLASS::s_class(L"" #CLASS, &BASE::desc, "", nullptr);                                            \
  AcRxClass* CLASS::desc() {                                                                                 \
    return &s_class;                                                                                         \
  }                                                                                                          \
  AcRxClass* CLASS::isA() const {                                                                            \
    return &s_class;                                                                                         \
  }

#define ACRX_DXF_DEFINE_MEMBERS(CLASS, BASE, DXF_NAME)                                                       \
  AcRxClass CLASS::s_class(                                                                                  \
      L"" #CLASS, &BASE::desc, DXF_NAME, +[]() -> AcRxObject* { return new CLASS; });                        \
  AcRxClass* CLASS::desc() {                                                                                 \
    return &s_class;                                                                                         \
  }                                                                                                          \
  AcRxClass* CLASS::isA() const {                                                                            \
    return &s_class;                                                                                         \
  }

// For the classes of a plug-in: APP is a text that names the plug-in for those who open the drawing without
// it, PROXY_FLAGS says what they may do with its objects (0: nothing but erase).
#define ACRX_DXF_CUSTOM_DEFINE_MEMBERS(CLASS, BASE, DXF_NAME, APP, PROXY_FLAGS)                              \
  AcRxClass CLASS::s_class(                                                                                  \
      L"" #CLASS, &BASE::desc, DXF_NAME, +[]() -> AcRxObject* { return new CLASS; }, APP, PROXY_FLAGS);      \
  AcRxClass* CLASS::desc() {                                                                                 \
    return &s_class;                                                                                         \
  }                                                                                                          \
  AcRxClass* CLASS::isA() const {                                                                            \
    return &s_class;                                                                                         \
  }
