// The reader's way into an item: it fills what callers may not change.
#pragma once

#include <utility>

#include "plugin/base/VkDtDictionary.h"

namespace xml {

class ItemAccess {
 public:
  static void SetName(VkDtDictItem& item, CString name) { item.m_strName = std::move(name); }
  static void SetRemark(VkDtDictItem& item, CString remark) { item.m_strRemark = std::move(remark); }
  // False when the item has the attribute.
  static bool Append(VkDtDictItem& item, CString name, CString value) {
    return item.AddAttribute(std::move(name), std::move(value));
  }
  static void Clear(VkDtDictionary& dictionary) {
    dictionary.ClearItem();
    dictionary.Reset();
  }
};

} // namespace xml
