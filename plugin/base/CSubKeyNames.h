// The names of a node's direct sub-keys, in the order of their creation: what a caller reads of them, length
// and elements. Only the node itself changes them.
#pragma once

#include <iterator>

#include "host/afx/CString.h"
#include "host/afx/CStringArray.h"
#include "plugin/base/ZpExport.h"
#include "plugin/base/idp/SubKeyTable.h"

namespace idp {
struct NodeAccess;
} // namespace idp

class ZP_EXPORT CSubKeyNames {
 public:
  CSubKeyNames() = default;
  CSubKeyNames(const CSubKeyNames&) = delete;
  CSubKeyNames& operator=(const CSubKeyNames&) = delete;
  ~CSubKeyNames();

  int GetSize() const;
  int GetCount() const { return GetSize(); }
  int GetUpperBound() const { return GetSize() - 1; }
  bool IsEmpty() const { return GetSize() == 0; }

  // 0 to GetSize() - 1; any other index raises CInvalidArgException.
  CString GetAt(int index) const;
  CString operator[](int index) const { return GetAt(index); }

  // A copy that keeps what is here now, for a walk that removes keys on its way.
  operator CStringArray() const;

  class Iterator {
   public:
    using difference_type = std::ptrdiff_t;
    using value_type = CString;
    Iterator() = default;
    Iterator(const CSubKeyNames* names, int index) : m_names(names), m_index(index) {}
    CString operator*() const { return m_names->GetAt(m_index); }
    Iterator& operator++() {
      ++m_index;
      return *this;
    }
    Iterator operator++(int) { return {m_names, m_index++}; }
    bool operator==(const Iterator&) const = default;

   private:
    const CSubKeyNames* m_names = nullptr;
    int m_index = 0;
  };
  Iterator begin() const { return {this, 0}; }
  Iterator end() const { return {this, GetSize()}; }

 private:
  friend struct idp::NodeAccess;

  mutable idp::SubKeyTable m_table; // reading by position may close gaps in it
};
