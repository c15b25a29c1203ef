#include "host/dxf/ReadContext.h"

#include "host/db/AcDbObject.h"

#include <algorithm>

namespace {

// Finding the line of a place costs a walk over the text: a file that is broken everywhere is not listed
// whole.
constexpr std::size_t kMaxRepairs = 500;

} // namespace

void dxf::ReadContext::repairedAt(const char* place, int groupCode, const CString& what) const {
  if (m_repairs.size() >= kMaxRepairs) {
    ++m_left;
    return;
  }
  m_repairs.push_back({place ? m_scanner.lineOf(place) : 0, groupCode, what});
}

void dxf::ReadContext::repaired(const DxfTag& tag, const CString& what) const {
  // The value's line is named, which is where the user has to look.
  repairedAt(tag.value.data(), tag.code, what);
}

void dxf::ReadContext::definedMissing(const DxfTag& tag, const AcDbObjectId& record,
                                      const CString& what) const {
  if (m_missing.size() >= kMaxRepairs) {
    ++m_left;
    return;
  }
  // Default names ("0", given for entities without a layer) come from no place of the text.
  m_missing.push_back({{m_scanner.lineOf(tag.value.data()), tag.code, what}, record});
}

void dxf::ReadContext::defined(const AcDbObjectId& record) {
  std::erase_if(m_missing, [&](const Missing& missing) { return missing.record == record; });
}

std::vector<dxf::Repair> dxf::ReadContext::takeRepairs() {
  for (Missing& missing : m_missing)
    if (missing.record.object()->isImplicit() && missing.repair.line > 0) m_repairs.push_back(missing.repair);
  m_missing.clear();
  std::stable_sort(m_repairs.begin(), m_repairs.end(),
                   [](const Repair& a, const Repair& b) { return a.line < b.line; });
  if (m_left > 0) {
    CString more;
    more.Format(L"另有 %d 处未逐一列出", m_left);
    m_repairs.push_back({0, -1, more});
  }
  return std::move(m_repairs);
}
