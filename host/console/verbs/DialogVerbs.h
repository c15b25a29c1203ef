// The verbs of lines for dialogs, each in a file of its own. docs/console.md tells what they do.
#pragma once

#include "host/ui/CFormWnd.h"
#include "host/ui/UiOutcome.h"

#include <functional>

namespace console {

// A line that is being obeyed: the form, and what stands behind the verb.
struct DialogOrder {
  CFormWnd& form;
  CString rest;
  const std::function<void(const CString&)>& print; // shows text to the user
};

namespace verbs {

// The outcome tells why the line was not obeyed and what was expected.
UiOutcome Show(const DialogOrder& order);
UiOutcome Click(const DialogOrder& order);
UiOutcome Set(const DialogOrder& order);
UiOutcome Step(const DialogOrder& order);
UiOutcome Select(const DialogOrder& order);
UiOutcome Edit(const DialogOrder& order);
UiOutcome Check(const DialogOrder& order);
UiOutcome Menu(const DialogOrder& order);
UiOutcome DoubleClick(const DialogOrder& order);
UiOutcome Close(const DialogOrder& order);

} // namespace verbs
} // namespace console
