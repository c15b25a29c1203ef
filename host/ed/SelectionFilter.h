// Which entities a selection takes, from a chain of result buffers: group codes with the values they must
// have, texts as patterns; -4 with "<and" "<or" "<xor" "<not" and their ends around groups, or with a
// relation
// ("=", "!=", ">=", ...) for the next value, of which a point counts by its x; -3 ahead of the names (1001)
// of applications whose data must be there.
#pragma once

#include "host/afx/CString.h"

#include <memory>
#include <vector>

class AcDbEntity;
struct resbuf;

class SelectionFilter {
 public:
  // A null chain takes everything. A chain that is none (an unclosed group, an unknown operator) takes
  // nothing, and isValid() is false.
  explicit SelectionFilter(const resbuf* chain);
  ~SelectionFilter();
  SelectionFilter(SelectionFilter&&) noexcept;

  bool isValid() const { return m_valid; }
  bool takes(const AcDbEntity& entity) const;

 private:
  struct Test;
  const resbuf* parseGroup(const resbuf* at, Test& group, const wchar_t* closing);
  static bool holds(const Test& test, const AcDbEntity& entity);

  std::unique_ptr<Test> m_root;
  bool m_valid = true;
};
