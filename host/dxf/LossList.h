// What a conversion leaves out, counted by kind, for the user to read.
#pragma once

#include "host/afx/CString.h"

#include <map>
#include <string>
#include <vector>

namespace dxf {

class LossList {
 public:
  void add(const CString& what, std::size_t count = 1) { m_counts[std::wstring(what.View())] += count; }
  bool isEmpty() const { return m_counts.empty(); }
  // A sentence for each kind; version is the name of the one that lacks it.
  std::vector<CString> sentences(const CString& version) const {
    std::vector<CString> list;
    for (const auto& [what, count] : m_counts)
      list.emplace_back().Format(L"%s 格式不能保存：%s（%d 处）", version, CString(what), count);
    return list;
  }

 private:
  std::map<std::wstring, std::size_t> m_counts;
};

} // namespace dxf
