// The tags of one entity as painters read them: common properties in front and extended data behind left out.
// They are views of the entity's record, which must stay as it is. The record is taken apart only when
// someone asks: most painters find in their entity's fields what they need.
#pragma once

#include "host/afx/CString.h"
#include "host/db/DxfRecord.h"
#include "host/ge/AcGePoint3d.h"
#include "host/ge/AcGeVector3d.h"

#include <optional>
#include <vector>

namespace scene {

class EntityTags {
 public:
  EntityTags() = default;
  explicit EntityTags(const DxfRecord& record) : m_text(record.text()) {}
  EntityTags(EntityTags&&) = default;
  EntityTags& operator=(EntityTags&&) = default;

  // The whole record, extended data and all.
  std::vector<DxfTag> all() const { return dxfTagsOf(m_text); }
  DxfTags own() const; // the entity's geometry
  auto begin() const { return own().begin(); }
  auto end() const { return own().end(); }

  // The first tag of a code; numbers that are none, and missing ones, give the fallback.
  const DxfTag* find(int code) const;
  bool has(int code) const { return find(code) != nullptr; }
  double real(int code, double fallback = 0) const;
  long long integer(int code, long long fallback = 0) const;
  double radians(int code, double fallbackDegrees = 0) const;
  CString text(int code) const;
  // The point of codes code, code + 10 and code + 20.
  AcGePoint3d point(int code) const;
  std::optional<AcGePoint3d> optionalPoint(int code) const;
  // Group 210; the z axis where there is none or it is zero.
  AcGeVector3d normal() const;
  // All points of a code, in their order.
  std::vector<AcGePoint3d> points(int code) const;

 private:
  std::string_view m_text;
  mutable bool m_isRead = false;
  mutable std::vector<DxfTag> m_all; // up to the extended data
  mutable DxfTags m_own;
};

// Whether a record names a dictionary of further data, looked up by nobody.
bool HasExtensionDictionary(const DxfRecord& record);

double RealOf(const DxfTag& tag, double fallback = 0);
long long IntegerOf(const DxfTag& tag, long long fallback = 0);
// Sets the coordinate that the tag is of a point of code; false when it is none.
bool ReadCoordinate(const DxfTag& tag, int code, AcGePoint3d& point);

} // namespace scene
