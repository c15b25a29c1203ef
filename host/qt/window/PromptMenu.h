// The menu of a right click in the drawing: the options that the open prompt offers, Enter and Escape.
#pragma once

#include "host/afx/CString.h"

#include <vector>

namespace desktop {

struct PromptOption {
  CString title;   // "闭合(C)"
  CString keyword; // "C"
};
// The options in the brackets of a prompt such as "下一点或 [闭合(C)/放弃(U)]:".
std::vector<PromptOption> PromptOptions(const CString& prompt);

} // namespace desktop
