// The element and attribute names of a dictionary file.
#pragma once

namespace xml {

inline constexpr const char* kDictionaryElement = "dictionary"; // the root
inline constexpr const char* kItemElement = "item";             // an item, with what is below it
inline constexpr const char* kAttributeElement = "attr";        // an attribute of the item around it

// A text has two names: the first one where XML can carry the text as it is, else the second one.
struct TextName {
  const char* plain;
  const char* escaped;
};
inline constexpr TextName kName = {"name", "name-escaped"};
inline constexpr TextName kRemark = {"remark", "remark-escaped"};
inline constexpr TextName kValue = {"value", "value-escaped"};

} // namespace xml
