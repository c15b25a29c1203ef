// Reads the text of a dictionary file into a tree.
#pragma once

#include <string_view>

#include "plugin/base/idp/Reader.h"

class VkDtDictionary;

namespace xml {

// Replaces all of the dictionary. On false it is empty and fault says why. dropped is set when the text holds
// what a dictionary cannot keep: comments and processing instructions.
bool ReadDictionary(VkDtDictionary& dictionary, std::string_view text, idp::Fault& fault, bool& dropped);

} // namespace xml
