// Counts what a drawing has and its picture doesn't, and puts it in sentences for the user.
#pragma once

#include "host/afx/CString.h"
#include "host/db/AcDbHandle.h"

#include <map>
#include <vector>

namespace scene {

class LeftOut {
 public:
  void add(const CString& what, AcDbHandle where);
  // "三维实体未画 3 处（首处句柄 2F）", the most frequent first.
  std::vector<CString> sentences() const;
  bool isEmpty() const { return m_counts.empty(); }

 private:
  struct Entry {
    int count = 0;
    AcDbHandle first;
  };
  std::map<CString, Entry> m_counts;
};

} // namespace scene
