// The name of an object while its drawing is in memory. Cheap to copy, null by default; it outlives the
// object (an erased object keeps its id) but not the database.
#pragma once

#include "host/db/AcDbHandle.h"

class AcDbDatabase;
class AcDbObject;

// What an id points at: one for each object of a database, owned by the database.
struct AcDbStub {
  AcDbHandle handle;
  AcDbDatabase* database = nullptr;
  AcDbObject* object = nullptr;
};

class AcDbObjectId {
 public:
  constexpr AcDbObjectId() = default;
  constexpr explicit AcDbObjectId(AcDbStub* stub) : m_stub(stub) {}

  static const AcDbObjectId kNull;

  bool isNull() const { return m_stub == nullptr; }
  // Non-null and its object exists, erased or not.
  bool isValid() const { return m_stub && m_stub->object; }
  bool isErased() const;
  void setNull() { m_stub = nullptr; }
  AcDbHandle handle() const { return m_stub ? m_stub->handle : AcDbHandle(); }
  AcDbDatabase* database() const { return m_stub ? m_stub->database : nullptr; }
  // The object itself, opened or not: for the database's own modules. Others open it.
  AcDbObject* object() const { return m_stub ? m_stub->object : nullptr; }
  AcDbStub* stub() const { return m_stub; }

  bool operator==(const AcDbObjectId& other) const { return m_stub == other.m_stub; }
  bool operator!=(const AcDbObjectId& other) const { return m_stub != other.m_stub; }
  bool operator<(const AcDbObjectId& other) const { return handle() < other.handle(); }
  explicit operator bool() const { return m_stub != nullptr; }

 private:
  friend struct std::hash<AcDbObjectId>;
  AcDbStub* m_stub = nullptr;
};

inline const AcDbObjectId AcDbObjectId::kNull{};

template <> struct std::hash<AcDbObjectId> {
  std::size_t operator()(const AcDbObjectId& id) const noexcept {
    return std::hash<const void*>{}(id.m_stub);
  }
};
