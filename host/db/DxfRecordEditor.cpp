#include "host/db/DxfRecordEditor.h"

#include "host/afx/Numbers.h"
#include "host/db/DxfText.h"
#include "host/db/SameName.h"

#include <algorithm>

namespace {

constexpr std::size_t npos = static_cast<std::size_t>(-1);

bool isGroupStart(int code, std::string_view value) {
  return code == 102 && !value.empty() && value.front() == '{';
}

} // namespace

DxfRecordEditor::DxfRecordEditor(const DxfRecord& base, bool subclassMarkers)
    : m_base(base), m_markers(subclassMarkers) {
  const std::string_view text = base.text();
  const char* start = text.data();
  const auto tags = base.tags();
  m_items.reserve(tags.size() + 1);
  for (const DxfTag& tag : tags) {
    const char* end = tag.value.data() + tag.value.size();
    if (end < text.data() + text.size()) ++end; // the line feed
    m_items.push_back(
        {tag.code, {}, tag.value, std::string_view(start, static_cast<std::size_t>(end - start))});
    start = end;
    m_hasMarkers = m_hasMarkers || tag.code == 100;
  }
  endOfScope();
}

// The scope reaches from m_begin to the next subclass marker, embedded object or the extended data.
void DxfRecordEditor::endOfScope() {
  m_end = m_begin;
  bool inGroup = false;
  for (; m_end < m_items.size(); ++m_end) {
    const Item& item = m_items[m_end];
    if (item.code == 102) inGroup = isGroupStart(item.code, item.value);
    if (inGroup) continue;
    if (item.code == 100 || item.code == 101 || item.code >= 1000) break;
  }
}

void DxfRecordEditor::type(std::string_view name) {
  if (m_items.empty()) {
    m_items.push_back({0, tag(0, name), {}, {}});
  }
  m_begin = m_cursor = 1;
  endOfScope();
}

void DxfRecordEditor::subclass(std::string_view name) {
  if (m_hasMarkers) {
    for (std::size_t i = 0; i < m_items.size(); ++i) {
      if (m_items[i].code >= 1000) break;
      if (m_items[i].code != 100 || dxf::trimBlanks(m_items[i].value) != name) continue;
      m_begin = m_cursor = i + 1;
      endOfScope();
      return;
    }
  }
  if (!m_markers || (!m_hasMarkers && !m_base.isEmpty())) return; // one scope for all
  const std::size_t at = std::max(m_cursor, m_end);
  m_items.insert(m_items.begin() + static_cast<std::ptrdiff_t>(at), {100, tag(100, name), {}, {}});
  // The view must point at text that stays put when items move: keep the name as an own tag's value.
  m_hasMarkers = true;
  m_begin = m_cursor = at + 1;
  endOfScope();
}

std::size_t DxfRecordEditor::skipGroup(std::size_t at) const {
  for (++at; at < m_items.size(); ++at)
    if (m_items[at].code == 102) return at + 1;
  return at;
}

std::size_t DxfRecordEditor::find(int code) const {
  for (std::size_t i = m_begin; i < m_end;) {
    if (isGroupStart(m_items[i].code, m_items[i].value)) {
      i = skipGroup(i);
      continue;
    }
    if (m_items[i].code == code) return i;
    ++i;
  }
  return npos;
}

void DxfRecordEditor::replaceValue(std::size_t at, std::string value) {
  m_items[at].text = tag(m_items[at].code, value);
  m_items[at].raw = {};
}

void DxfRecordEditor::put(int code, std::string value) {
  const std::size_t at = find(code);
  if (at != npos) {
    if (m_items[at].raw.empty() || m_items[at].value != value) replaceValue(at, std::move(value));
    m_cursor = at + 1;
    return;
  }
  // A field never lands inside a 102 group: those stand closed before or behind the cursor.
  std::size_t where = std::min(m_cursor, m_end);
  // The owner stands behind the groups that follow the handle.
  while (code == 330 && where < m_end && isGroupStart(m_items[where].code, m_items[where].value))
    where = skipGroup(where);
  m_items.insert(m_items.begin() + static_cast<std::ptrdiff_t>(where), {code, tag(code, value), {}, {}});
  m_cursor = where + 1;
  ++m_end;
}

void DxfRecordEditor::text(int code, std::string_view value) {
  put(code, std::string(value));
}

void DxfRecordEditor::text(int code, const CString& value) {
  const std::size_t at = find(code);
  if (at != npos && !m_items[at].raw.empty() && dxf::decodeText(m_items[at].value) == value) {
    m_cursor = at + 1;
    return;
  }
  put(code, dxf::encodeText(value));
}

void DxfRecordEditor::name(int code, const CString& value) {
  const std::size_t at = find(code);
  if (at != npos && !m_items[at].raw.empty() &&
      dxf::decodeText(dxf::trimBlanks(m_items[at].value)).CompareNoCase(value) == 0) {
    m_cursor = at + 1;
    return;
  }
  put(code, dxf::encodeText(value));
}

void DxfRecordEditor::integer(int code, long long value) {
  const std::size_t at = find(code);
  if (at != npos && !m_items[at].raw.empty() && dxf::toInteger(m_items[at].value) == value) {
    m_cursor = at + 1;
    return;
  }
  put(code, std::to_string(value));
}

void DxfRecordEditor::real(int code, double value) {
  const std::size_t at = find(code);
  if (at != npos && !m_items[at].raw.empty() && dxf::toReal(m_items[at].value) == value) {
    m_cursor = at + 1;
    return;
  }
  put(code, afx::ShortestDouble(value));
}

bool DxfRecordEditor::has(int code) const {
  return find(code) != npos;
}

std::optional<double> DxfRecordEditor::realAt(int code) const {
  const std::size_t at = find(code);
  return at == npos || m_items[at].raw.empty() ? std::nullopt : dxf::toReal(m_items[at].value);
}

std::optional<long long> DxfRecordEditor::integerAt(int code) const {
  const std::size_t at = find(code);
  return at == npos || m_items[at].raw.empty() ? std::nullopt : dxf::toInteger(m_items[at].value);
}

void DxfRecordEditor::point(int code, const AcGePoint3d& value) {
  const bool flat = !m_base.isEmpty() && find(code) != npos && find(code + 20) == npos;
  real(code, value.x);
  real(code + 10, value.y);
  if (flat)
    real(code + 20, value.z, 0.0);
  else
    real(code + 20, value.z);
}

void DxfRecordEditor::point2d(int code, double x, double y) {
  real(code, x);
  real(code + 10, y);
}

void DxfRecordEditor::vector(int code, const AcGeVector3d& value) {
  point(code, AcGePoint3d(value.x, value.y, value.z));
}

void DxfRecordEditor::handle(int code, AcDbHandle value) {
  const std::size_t at = find(code);
  if (at != npos && !m_items[at].raw.empty() && AcDbHandle::fromHex(m_items[at].value) == value) {
    m_cursor = at + 1;
    return;
  }
  put(code, value.toHex());
}

void DxfRecordEditor::text(int code, const CString& value, const wchar_t* absent) {
  if (find(code) != npos || value != absent) text(code, value);
}

void DxfRecordEditor::name(int code, const CString& value, const wchar_t* absent) {
  if (find(code) != npos || value.CompareNoCase(absent) != 0) name(code, value);
}

void DxfRecordEditor::integer(int code, long long value, long long absent) {
  if (find(code) != npos || value != absent) integer(code, value);
}

void DxfRecordEditor::real(int code, double value, double absent) {
  if (find(code) != npos || value != absent) real(code, value);
}

void DxfRecordEditor::vector(int code, const AcGeVector3d& value, const AcGeVector3d& absent) {
  if (find(code) != npos || value.x != absent.x || value.y != absent.y || value.z != absent.z)
    vector(code, value);
}

void DxfRecordEditor::handle(int code, AcDbHandle value, AcDbHandle absent) {
  if (find(code) != npos || value != absent) handle(code, value);
}

void DxfRecordEditor::closingMarker(std::string_view name) {
  m_items.insert(m_items.begin() + static_cast<std::ptrdiff_t>(m_end), {100, tag(100, name), {}, {}});
  m_begin = m_cursor = m_end + 1;
  endOfScope();
}

void DxfRecordEditor::remove(int code) {
  const std::size_t at = find(code);
  if (at == npos) return;
  m_items.erase(m_items.begin() + static_cast<std::ptrdiff_t>(at));
  --m_end;
  if (m_cursor > at) --m_cursor;
}

void DxfRecordEditor::replaceRun(std::span<const int> codes, const std::string& newTags) {
  std::size_t first = npos;
  std::size_t last = npos;
  for (std::size_t i = m_begin; i < m_end;) {
    if (isGroupStart(m_items[i].code, m_items[i].value)) {
      i = skipGroup(i);
      continue;
    }
    if (std::find(codes.begin(), codes.end(), m_items[i].code) != codes.end()) {
      if (first == npos) first = i;
      last = i;
    }
    ++i;
  }
  if (first == npos) {
    first = std::min(m_cursor, m_end);
  } else {
    m_items.erase(m_items.begin() + static_cast<std::ptrdiff_t>(first),
                  m_items.begin() + static_cast<std::ptrdiff_t>(last + 1));
    m_end -= last + 1 - first;
  }
  m_cursor = first;
  if (newTags.empty()) return;
  const int code = codes.empty() ? 0 : codes.front();
  m_items.insert(m_items.begin() + static_cast<std::ptrdiff_t>(first), {code, newTags, {}, {}});
  ++m_end;
  m_cursor = first + 1;
}

void DxfRecordEditor::group(std::string_view name, const std::string& innerTags) {
  const auto replacement = [&] { return tag(102, name) + innerTags + tag(102, "}"); };
  for (std::size_t i = 1; i < m_items.size() && m_items[i].code < 1000; ++i) {
    if (m_items[i].code != 102 || dxf::trimBlanks(m_items[i].value) != name) continue;
    const std::size_t end = skipGroup(i);
    m_items.erase(m_items.begin() + static_cast<std::ptrdiff_t>(i),
                  m_items.begin() + static_cast<std::ptrdiff_t>(end));
    if (!innerTags.empty())
      m_items.insert(m_items.begin() + static_cast<std::ptrdiff_t>(i), {-1, replacement(), {}, {}});
    type({});
    return;
  }
  if (innerTags.empty()) return;
  // Groups stand behind the handle and before the owner.
  std::size_t at = 1;
  while (at < m_items.size() && (m_items[at].code == 5 || m_items[at].code == 105)) ++at;
  m_items.insert(m_items.begin() + static_cast<std::ptrdiff_t>(at), {-1, replacement(), {}, {}});
  type({});
}

void DxfRecordEditor::replaceData(const std::string& newTags) {
  std::size_t first = m_begin;
  if (first < m_items.size() && m_items[first].code == 280) ++first;
  std::size_t end = first;
  while (end < m_items.size() && m_items[end].code < 1000) ++end;
  const auto at = m_items.erase(m_items.begin() + static_cast<std::ptrdiff_t>(first),
                                m_items.begin() + static_cast<std::ptrdiff_t>(end));
  if (!newTags.empty()) m_items.insert(at, {-1, newTags, {}, {}});
  m_cursor = m_end = first;
}

DxfRecord DxfRecordEditor::finish() {
  std::string text;
  text.reserve(m_base.text().size() + 64);
  bool changed = m_base.isEmpty();
  for (const Item& item : m_items) {
    if (!item.raw.empty()) {
      text += item.raw;
      if (text.back() != '\n') text += '\n';
    } else {
      changed = true;
      text += item.text;
    }
  }
  return changed || text.size() != m_base.text().size() ? DxfRecord::own(std::move(text)) : m_base;
}

std::string DxfRecordEditor::tag(int code, std::string_view value) {
  std::string line = std::to_string(code);
  if (line.size() < 3) line.insert(0, 3 - line.size(), ' ');
  line += '\n';
  line += value;
  line += '\n';
  return line;
}

std::string DxfRecordEditor::realTag(int code, double value) {
  return tag(code, afx::ShortestDouble(value));
}
