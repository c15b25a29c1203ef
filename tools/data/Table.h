// A table as text: fields between tabs, one row a line, the column names in the first row. Lines that begin
// with "#" tell where the figures come from and are passed over.
#pragma once

#include <stdexcept>
#include <string>
#include <vector>

#include "host/afx/CString.h"

// What is wrong with a table: file, line and reason.
class TableError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

class Table {
 public:
  // Every row must have as many fields as there are columns. Throws TableError.
  Table(const std::string& folder, const std::string& name);

  int RowCount() const { return static_cast<int>(m_rows.size()); }
  // Throw TableError for a column that the table lacks, and for a field that is no finite number.
  const CString& Text(int row, const char* column) const;
  double Number(int row, const char* column) const;
  int Integer(int row, const char* column) const;
  double Positive(int row, const char* column) const; // refuses what is not above 0
  // Refuses a row that doesn't tell where it comes from, or how far it is to be trusted (H, M or L).
  void CheckSource(int row) const;

  // Throws a TableError that names the row.
  [[noreturn]] void Fail(int row, const std::string& reason) const;

 private:
  struct Row {
    int line = 0;
    std::vector<CString> fields;
  };
  std::size_t ColumnIndex(int row, const char* column) const;

  std::string m_name;
  std::vector<std::string> m_columns;
  std::vector<Row> m_rows;
};
