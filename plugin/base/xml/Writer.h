// Writes a dictionary as the text of a file.
#pragma once

#include <string>

#include "host/afx/CString.h"

class VkDtDictionary;

namespace xml {

// False, with the reason, when the text would be beyond the limits.
bool WriteDictionary(const VkDtDictionary& dictionary, std::string& text, CString& reason);

} // namespace xml
