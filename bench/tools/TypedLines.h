// A front end whose lines are given beforehand, and whose output nobody reads.
#pragma once

#include <cstddef>
#include <vector>

#include "host/ed/EdFrontEnd.h"

class TypedLines : public EdFrontEnd {
 public:
  void Type(const std::vector<CString>& lines) {
    m_lines = &lines;
    m_next = 0;
  }

  std::optional<CString> readLine(const CString&) override {
    if (!m_lines || m_next == m_lines->size()) return std::nullopt;
    return (*m_lines)[m_next++];
  }
  void echo(const CString&, const CString&, bool) override {}
  void print(const CString&) override {}
  EdBoxResult messageBox(const EdMessageBox& box) override { return {box.defaultButton, false}; }
  void lineRefused(const EdRefusal&) override { ++refused; }

  int refused = 0;

 private:
  const std::vector<CString>* m_lines = nullptr;
  std::size_t m_next = 0;
};
