// Holds an object open for the length of a scope.
#pragma once

#include "host/db/AcDbDatabase.h"

template <typename T> class AcDbObjectPointer {
 public:
  AcDbObjectPointer() = default;
  AcDbObjectPointer(const AcDbObjectId& id, AcDb::OpenMode mode, bool openErased = false) {
    open(id, mode, openErased);
  }
  // Takes over an object that is open already.
  explicit AcDbObjectPointer(T* opened) : m_object(opened), m_status(Acad::eOk) {}
  ~AcDbObjectPointer() { close(); }
  AcDbObjectPointer(const AcDbObjectPointer&) = delete;
  AcDbObjectPointer& operator=(const AcDbObjectPointer&) = delete;
  AcDbObjectPointer(AcDbObjectPointer&& other) noexcept
      : m_object(std::exchange(other.m_object, nullptr)), m_status(other.m_status) {}

  Acad::ErrorStatus open(const AcDbObjectId& id, AcDb::OpenMode mode, bool openErased = false) {
    close();
    return m_status = acdbOpenObject(m_object, id, mode, openErased);
  }
  Acad::ErrorStatus close() {
    if (!m_object) return Acad::eNullObjectPointer;
    const auto status = m_object->close();
    m_object = nullptr;
    return status;
  }
  // eOk while it holds an object, otherwise why not.
  Acad::ErrorStatus openStatus() const { return m_status; }
  explicit operator bool() const { return m_object != nullptr; }
  T* object() const { return m_object; }
  T* operator->() const { return m_object; }
  operator T*() const { return m_object; }

 private:
  T* m_object = nullptr;
  Acad::ErrorStatus m_status = Acad::eNullObjectPointer;
};
