// What the reader, the writer and the table of sub-keys may touch of a node, and nobody else.
#pragma once

#include "plugin/base/CInterDpData.h"

namespace idp {

struct NodeAccess {
  static CompactValue& Value(CInterDpData& node) { return node.m_value; }
  static const CompactValue& Value(const CInterDpData& node) { return node.m_value; }
  // Not const even of a const node: reading by position may close gaps, which changes nothing that is seen.
  static SubKeyTable& Table(const CInterDpData& node) { return node.SubKeyNames.m_table; }
  // The empty text as value, no sub-keys.
  static void Reset(CInterDpData& node) {
    node.m_value.SetText({});
    Table(node).Clear();
  }
};

} // namespace idp
