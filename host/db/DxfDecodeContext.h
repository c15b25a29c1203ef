// What decoding a record needs beside its tags: the drawing in which names and handles are looked up, and
// where to report what had to be repaired.
#pragma once

#include "host/afx/CString.h"
#include "host/db/AcDbObjectId.h"
#include "host/db/DxfTag.h"

#include <string>
#include <string_view>
#include <unordered_map>

class DxfDecodeContext {
 public:
  explicit DxfDecodeContext(AcDbDatabase& database) : m_database(database) {}
  virtual ~DxfDecodeContext() = default;

  AcDbDatabase& database() const { return m_database; }

  // The table record of a name as it stands in a record. A layer, linetype or block that the drawing lacks is
  // defined as an implicit record, so that no entity is without one, and told to definedMissing; a file may
  // still bring it. Null for an empty name, and for a text style that isn't there.
  AcDbObjectId layer(std::string_view name) const;
  AcDbObjectId linetype(std::string_view name) const;
  AcDbObjectId textStyle(std::string_view name) const;
  AcDbObjectId block(std::string_view name) const;
  AcDbObjectId objectByHandle(std::string_view hex) const;

  // The number in a tag; one that is none (NaN, infinite, no digits) is reported and gives fallback.
  double real(const DxfTag& tag, double fallback = 0.0) const;
  long long integer(const DxfTag& tag, long long fallback = 0) const;
  // The same for a field that holds only low to high; what lies outside is reported too.
  long long integerIn(const DxfTag& tag, long long low, long long high, long long fallback) const;

  // Tells of a name that was used at a tag and had to be defined. The default writes to the message log.
  virtual void definedMissing(const DxfTag& tag, const AcDbObjectId& record, const CString& what) const;

  // Tells of a repair at a tag. The default writes to the message log.
  virtual void repaired(const DxfTag& tag, const CString& what) const;

 private:
  struct Hash {
    using is_transparent = void;
    std::size_t operator()(std::string_view s) const { return std::hash<std::string_view>{}(s); }
  };
  using Cache = std::unordered_map<std::string, AcDbObjectId, Hash, std::equal_to<>>;

  AcDbDatabase& m_database;
  mutable Cache m_layers;
  mutable Cache m_linetypes;
  mutable Cache m_blocks;
  mutable Cache m_textStyles;
};
