// A dictionary as text, for comparing trees in tests: one line an item, indented, with all that it holds.
#pragma once

#include <string>

#include "plugin/base/VkDtDictionary.h"

inline std::string DictionaryText(VkDtDictItem& item, int depth = 0) {
  std::string text = std::string(static_cast<std::size_t>(depth), ' ') + "[" + item.GetName().ToUtf8() + "|" +
                     item.GetRemark().ToUtf8() + "]";
  for (int i = 0; i < item.GetAttributeNum(); ++i) {
    text += " ";
    text += item.GetAttributeName(i).ToUtf8() + "=" + item.GetAttributeText(i).ToUtf8();
  }
  text += "\n";
  auto* dictionary = dynamic_cast<VkDtDictionary*>(&item);
  if (!dictionary) return text;
  for (VkDtDictItem** slot = dictionary->GetFirst(); slot; slot = dictionary->GetNext(slot))
    text += *slot ? DictionaryText(**slot, depth + 1) : "null\n";
  return text;
}
