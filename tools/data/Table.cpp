#include "tools/data/Table.h"

#include <algorithm>
#include <cmath>
#include <sstream>

#include "host/afx/AtomicFile.h"
#include "host/afx/Encoding.h"
#include "host/afx/Numbers.h"

namespace {

std::vector<std::string> SplitAtTabs(const std::string& line) {
  std::vector<std::string> fields(1);
  for (const char c : line) {
    if (c == '\t')
      fields.emplace_back();
    else
      fields.back() += c;
  }
  return fields;
}

} // namespace

Table::Table(const std::string& folder, const std::string& name) : m_name(name) {
  std::string bytes;
  const auto read = afx::ReadWholeFile(CString::FromUtf8(folder + "/" + name), bytes);
  if (!read.ok) throw TableError(read.message.ToUtf8());
  if (!afx::IsUtf8(bytes)) throw TableError(name + ": not UTF-8");
  std::istringstream lines(bytes);
  int number = 0;
  for (std::string line; std::getline(lines, line);) {
    ++number;
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (line.empty() || line[0] == '#') continue;
    const auto fields = SplitAtTabs(line);
    if (m_columns.empty()) {
      m_columns = fields;
      continue;
    }
    Row row{number, {}};
    for (const std::string& field : fields) row.fields.push_back(CString::FromUtf8(field));
    m_rows.push_back(std::move(row));
    if (fields.size() != m_columns.size())
      Fail(RowCount() - 1,
           std::to_string(fields.size()) + " fields, not " + std::to_string(m_columns.size()));
  }
}

void Table::Fail(int row, const std::string& reason) const {
  throw TableError(m_name + ":" + std::to_string(m_rows[static_cast<std::size_t>(row)].line) + ": " + reason);
}

std::size_t Table::ColumnIndex(int row, const char* column) const {
  const auto found = std::find(m_columns.begin(), m_columns.end(), column);
  if (found == m_columns.end()) Fail(row, std::string("no column ") + column);
  return static_cast<std::size_t>(found - m_columns.begin());
}

const CString& Table::Text(int row, const char* column) const {
  return m_rows[static_cast<std::size_t>(row)].fields[ColumnIndex(row, column)];
}

double Table::Number(int row, const char* column) const {
  const CString& text = Text(row, column);
  const wchar_t* end = nullptr;
  const double value = afx::wcstod(text, &end);
  if (text.IsEmpty() || *end != L'\0' || !std::isfinite(value))
    Fail(row, std::string(column) + ": no number: \"" + text.ToUtf8() + "\"");
  return value;
}

int Table::Integer(int row, const char* column) const {
  const double value = Number(row, column);
  if (value != std::floor(value) || std::abs(value) > 1e9)
    Fail(row, std::string(column) + ": no whole number");
  return static_cast<int>(value);
}

double Table::Positive(int row, const char* column) const {
  const double value = Number(row, column);
  if (value <= 0) Fail(row, std::string(column) + ": not above 0");
  return value;
}

void Table::CheckSource(int row) const {
  if (Text(row, "source").IsEmpty()) Fail(row, "source: none");
  const CString& confidence = Text(row, "conf");
  if (confidence != L"H" && confidence != L"M" && confidence != L"L") Fail(row, "conf: not H, M or L");
}
