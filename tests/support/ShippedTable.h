// A table of tools/data/tables as its rows, each a map from column to cell, for tests that hold the program
// against its sources.
#pragma once

#include "ZpPaths.h"
#include <fstream>
#include <map>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

inline std::vector<std::map<std::string, std::string>> ShippedTable(const std::string& name) {
  std::ifstream file(std::string(ZP_SOURCE_DIR) + "/tools/data/tables/" + name);
  std::vector<std::string> columns;
  std::vector<std::map<std::string, std::string>> rows;
  for (std::string line; std::getline(file, line);) {
    if (line.empty() || line[0] == '#') continue;
    std::vector<std::string> cells(1);
    for (const char c : line) {
      if (c == '\t')
        cells.emplace_back();
      else
        cells.back() += c;
    }
    if (columns.empty()) {
      columns = cells;
      continue;
    }
    auto& row = rows.emplace_back();
    for (std::size_t i = 0; i < columns.size(); ++i) row[columns[i]] = cells.at(i);
  }
  if (rows.empty()) throw std::runtime_error("no rows in " + name);
  return rows;
}
