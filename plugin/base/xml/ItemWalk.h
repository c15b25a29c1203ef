// The walk over the items of a dictionary, and the search among them by an attribute.
#pragma once

#include "plugin/base/VkDtDictionary.h"

namespace xml {

// Calls visit for each direct child, in the order of the list, until it gives false.
template <typename Visit> void WalkItems(VkDtDictionary& dictionary, Visit visit) {
  for (dictionary.MoveToFirst(); !dictionary.IsOut(); dictionary.MoveToNext()) {
    VkDtDictItem* item = dictionary.GetCurData();
    if (item && !visit(*item)) return;
  }
}

// The first direct child that matches; null for none and without a dictionary.
template <typename Matches> VkDtDictItem* FindItem(VkDtDictionary* dictionary, Matches matches) {
  VkDtDictItem* found = nullptr;
  if (!dictionary) return found;
  WalkItems(*dictionary, [&](VkDtDictItem& item) {
    if (matches(item)) found = &item;
    return !found;
  });
  return found;
}

} // namespace xml
