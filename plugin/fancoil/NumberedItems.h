// The lists of FCUData.idp and of its predecessor: items PREFIX0, PREFIX1 and so on below a node, with their
// number under "Count" in the same node.
#pragma once

#include <vector>

#include "plugin/base/CIDPEx.h"

namespace fancoil {

struct NumberedItem {
  CString key;
  CIDPEx* node = nullptr; // borrowed from the list
};

// The key of an item.
CString NumberedKey(const wchar_t* prefix, int number);

// The node's "Count"; 0 where there is none.
int ItemCount(CIDPEx& list);

// The items below the count that are there, by their numbers. Numbers may be missing in a file, and a count
// that a damaged file exaggerates costs nothing.
std::vector<NumberedItem> NumberedItems(CIDPEx& list, const wchar_t* prefix);

// The first item whose text under the key is exactly value; its node is null when there is none. An item
// without the key is no match, not even for the empty text.
NumberedItem FindNumberedItem(CIDPEx& list, const wchar_t* prefix, const wchar_t* key, const CString& value);

// Makes the item, or takes the one that is there with all that it holds. Its value is 0, as in all files.
CIDPEx& MakeNumberedItem(CIDPEx& list, const wchar_t* prefix, int number);

} // namespace fancoil
