// Reads the text of a parameter file into a tree.
#pragma once

#include <cstddef>
#include <string>

#include "host/afx/CString.h"

class CInterDpData;

namespace idp {

// Why and where a text is no parameter file.
struct Fault {
  std::size_t offset =
      0; // bytes before the place; for a missing comma or bracket, the token at which it showed
  std::size_t line = 1;
  CString reason;
};

// "第 L 行（字节 N）：reason"
CString Describe(const Fault& fault);

// The text to read. The reader appends zero bytes, which the parser needs, and counts on nothing behind.
struct PaddedText {
  std::string bytes;
  static constexpr std::size_t kPadding = 64;
};

// Replaces value and sub-keys of the node. On false the node is empty and fault says why.
bool ReadTree(CInterDpData& node, PaddedText& text, Fault& fault);

} // namespace idp
