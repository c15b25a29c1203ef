// Building the tree of a parameter file from above.
#pragma once

#include "plugin/base/CIDPEx.h"
#include "plugin/base/NumberText.h"

namespace layers {

// Sets a list's entry and gives its node.
template <typename Value> CIDPEx& Entry(CIDPEx& list, const CString& key, Value value) {
  list.SetSubValue(key, value);
  return *list.GetSubItem(key);
}

// The entry of a numbered list, whose value is its number again.
inline CIDPEx& NumberedEntry(CIDPEx& list, int number) {
  return Entry(list, ZP::itoa(number), number);
}

} // namespace layers
