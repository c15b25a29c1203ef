#include "host/scene/LeftOut.h"

#include <algorithm>

namespace scene {

void LeftOut::add(const CString& what, AcDbHandle where) {
  Entry& entry = m_counts[what];
  if (entry.count++ == 0) entry.first = where;
}

std::vector<CString> LeftOut::sentences() const {
  std::vector<std::pair<CString, Entry>> sorted(m_counts.begin(), m_counts.end());
  std::stable_sort(sorted.begin(), sorted.end(),
                   [](const auto& a, const auto& b) { return a.second.count > b.second.count; });
  std::vector<CString> found;
  for (const auto& [what, entry] : sorted) {
    CString text;
    text.Format(L"%s：%d 处（首处句柄 %s）", what, entry.count, CString::FromUtf8(entry.first.toHex()));
    found.push_back(text);
  }
  return found;
}

} // namespace scene
