#include "host/dxf/RecordScanner.h"

#include "host/afx/Encoding.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>

namespace {

constexpr int kCodeCount = 1072;

// Whether the value of a group code is a real number, looked up for every tag of a file.
const std::array<bool, kCodeCount>& isRealCode() {
  static const auto table = [] {
    std::array<bool, kCodeCount> real{};
    for (int code = 0; code < kCodeCount; ++code)
      real[static_cast<std::size_t>(code)] = dxf::valueKind(code) == dxf::ValueKind::real;
    return real;
  }();
  return table;
}

const char* skipDigits(const char* at, const char* end) {
  while (at < end && static_cast<unsigned>(*at - '0') < 10) ++at;
  return at;
}

// Looks at the form and parses only where the number may be too large to hold.
bool isFiniteNumber(std::string_view value) {
  value = dxf::trimBlanks(value);
  const char* at = value.data();
  const char* const end = at + value.size();
  if (at < end && (*at == '-' || *at == '+')) ++at;
  const char* const whole = at;
  at = skipDigits(at, end);
  std::ptrdiff_t digits = at - whole;
  if (at < end && *at == '.') {
    const char* const fraction = ++at;
    at = skipDigits(at, end);
    digits += at - fraction;
  }
  if (at == end && digits > 0 && digits < 300) return true;
  return dxf::toReal(value).has_value();
}

CString shown(std::string_view value) {
  CString text(afx::Utf8ToWide(value.substr(0, 60)));
  for (int i = 0; i < text.GetLength(); ++i)
    if (text[i] < 0x20) text.SetAt(i, L'?');
  if (text.GetLength() > 40) text = text.Left(40) + L"…";
  return text;
}

} // namespace

dxf::RecordScanner::RecordScanner(std::string_view text)
    : m_text(text), m_at(text.data()), m_end(text.data() + text.size()), m_countedTo(text.data()) {
  while (m_at < m_end) {
    const char* start = m_at;
    if (!readTag(m_pending)) break;
    if (m_pending.code == 0) {
      m_hasPending = true;
      m_pendingStart = start;
      break;
    }
  }
  const char* preambleEnd = m_hasPending ? m_pendingStart : m_at;
  m_preamble = m_text.substr(0, static_cast<std::size_t>(preambleEnd - m_text.data()));
}

// A group code as nearly every line has it, blanks and up to four digits. Gives the start of the value's
// line, null for everything else.
const char* dxf::RecordScanner::readPlainCode(int& code) const {
  const char* at = m_at;
  while (at < m_end && *at == ' ') ++at;
  const char* const first = at;
  const char* const last = m_end - at > 5 ? at + 5 : m_end;
  for (code = 0; at < last; ++at) {
    const unsigned digit = static_cast<unsigned>(*at) - '0';
    if (digit > 9) break;
    code = code * 10 + static_cast<int>(digit);
  }
  const bool plain = at > first && at < last && *at == '\n' && at + 1 < m_end;
  return plain ? at + 1 : nullptr;
}

bool dxf::RecordScanner::readTag(DxfTag& tag) {
  const char* const plain = readPlainCode(tag.code);
  if (!plain && !readOddCode(tag.code)) return false;
  if (plain) m_at = plain;
  const auto* valueEnd =
      static_cast<const char*>(std::memchr(m_at, '\n', static_cast<std::size_t>(m_end - m_at)));
  tag.value = {m_at, static_cast<std::size_t>((valueEnd ? valueEnd : m_end) - m_at)};
  m_at = valueEnd ? valueEnd + 1 : m_end;
  return true;
}

// A code line of any form, up to the start of the value's line.
bool dxf::RecordScanner::readOddCode(int& code) {
  const char* const start = m_at;
  const auto* codeEnd =
      static_cast<const char*>(std::memchr(m_at, '\n', static_cast<std::size_t>(m_end - m_at)));
  const char* first = m_at;
  const char* last = codeEnd ? codeEnd : m_end;
  while (first < last && (*first == ' ' || *first == '\t')) ++first;
  while (first < last && (last[-1] == ' ' || last[-1] == '\t')) --last;
  const auto [end, error] = std::from_chars(first, last, code);
  if (error != std::errc{} || end != last) {
    if (first == last &&
        std::all_of(m_at, m_end, [](char c) { return c == ' ' || c == '\n' || c == '\t'; })) {
      m_at = m_end; // blank lines at the end of a file
      return false;
    }
    CString problem;
    problem.Format(L"应为组码（整数），实际为“%s”", shown({first, static_cast<std::size_t>(last - first)}));
    fail(start, problem);
    return false;
  }
  if (!codeEnd || codeEnd + 1 == m_end) {
    CString problem;
    problem.Format(L"文件在组码 %d 之后意外结束，缺少它的值", code);
    fail(start, problem);
    return false;
  }
  m_at = codeEnd + 1;
  return true;
}

void dxf::RecordScanner::fail(const char* place, const CString& problem) {
  m_problem = problem;
  m_problemLine = lineOf(place);
}

bool dxf::RecordScanner::next() {
  if (!m_hasPending) return false;
  const auto& realCodes = isRealCode();
  const char* start = m_pendingStart;
  m_type = trimBlanks(m_pending.value);
  m_tags.clear();
  m_badReals.clear();
  m_tags.push_back(m_pending);
  m_hasPending = false;
  if (m_type == "EOF") {
    m_record = {start, static_cast<std::size_t>(m_at - start)};
    return true;
  }
  DxfTag tag;
  for (;;) {
    const char* tagStart = m_at;
    if (m_at >= m_end || !readTag(tag)) {
      m_record = {start, static_cast<std::size_t>(tagStart - start)};
      return true; // what stands before a broken line is a record; the next call ends
    }
    if (tag.code == 0) {
      m_hasPending = true;
      m_pending = tag;
      m_pendingStart = tagStart;
      m_record = {start, static_cast<std::size_t>(tagStart - start)};
      return true;
    }
    if (static_cast<unsigned>(tag.code) < kCodeCount && realCodes[static_cast<std::size_t>(tag.code)] &&
        !isFiniteNumber(tag.value))
      m_badReals.push_back(m_tags.size());
    m_tags.push_back(tag);
  }
}

std::string_view dxf::RecordScanner::restFromRecord() const {
  return m_text.substr(static_cast<std::size_t>(m_record.data() - m_text.data()));
}

std::string_view dxf::RecordScanner::rest() const {
  return m_text.substr(static_cast<std::size_t>(m_at - m_text.data()));
}

bool dxf::RecordScanner::resynchronise() {
  m_problem.Empty();
  while (m_at < m_end) {
    const auto* lineEnd =
        static_cast<const char*>(std::memchr(m_at, '\n', static_cast<std::size_t>(m_end - m_at)));
    if (!lineEnd) break;
    m_at = lineEnd + 1;
    // "0" on a line, then a word in capitals: the beginning of a record.
    const char* start = m_at;
    DxfTag tag;
    const std::string_view line = m_text.substr(static_cast<std::size_t>(m_at - m_text.data()), 16);
    if (trimBlanks(line.substr(0, line.find('\n'))) != "0") continue;
    if (!readTag(tag)) continue;
    const std::string_view word = trimBlanks(tag.value);
    const bool isType = !word.empty() && word.front() >= 'A' && word.front() <= 'Z';
    if (!isType) {
      m_at = start;
      continue;
    }
    m_pending = tag;
    m_pendingStart = start;
    m_hasPending = true;
    m_problem.Empty();
    return true;
  }
  m_at = m_end;
  return false;
}

std::size_t dxf::RecordScanner::lineOf(const char* place) const {
  if (place < m_text.data() || place > m_end) return 0;
  if (place < m_countedTo) {
    m_countedTo = m_text.data();
    m_linesCounted = 0;
  }
  m_linesCounted += static_cast<std::size_t>(std::count(m_countedTo, place, '\n'));
  m_countedTo = place;
  return 1 + m_linesCounted;
}

double dxf::RecordScanner::progress() const {
  return m_text.empty() ? 1.0
                        : static_cast<double>(m_at - m_text.data()) / static_cast<double>(m_text.size());
}
