// Whether what the user did could be obeyed, and if not, why and what would have been right. Sentences are
// for the user.
#pragma once

#include "host/afx/CString.h"

#include <utility>

struct UiOutcome {
  CString reason; // empty: obeyed
  CString expected;

  UiOutcome() = default;
  UiOutcome(CString why, CString instead) : reason(std::move(why)), expected(std::move(instead)) {}
  explicit operator bool() const { return reason.IsEmpty(); }
};
