// Questions with a default, which an empty line takes. They ask until the answer fits, and tell what to type
// when one doesn't. Nothing means Escape: the command returns at once, and the host takes back what it did.
#pragma once

#include "host/afx/CString.h"
#include "host/ed/EdPrompts.h"

#include <optional>

namespace workbench {

// Tells why an answer can't be taken and what to type instead. A script stops there.
void Refuse(const CString& reason, const CString& expected = {});

// What a number may be: from and to are allowed themselves.
struct Range {
  double from;
  double to;
};

// subject is what is asked for, with its unit: "相对标高(m)".
std::optional<double> AskNumber(const CString& subject, double preset, const Range& range);
std::optional<int> AskInteger(const CString& subject, int preset, const Range& range);

// A line of text, blanks at its ends cut off, that may be empty: "-" is typed for that.
std::optional<CString> AskOptionalText(const CString& subject, const CString& preset);

// A number as the prompts show it: at most decimals digits behind the point, no trailing zeros.
CString NumberText(double value, int decimals = 3);

// What the user answered last time, in this run of the program or an earlier one; preset the first time.
// name is the subject's: "干管\\管材".
CString Remembered(const CString& name, const CString& preset);
double Remembered(const CString& name, double preset);
void Remember(const CString& name, const CString& value);
void Remember(const CString& name, double value);

} // namespace workbench
