// The system variables: one table of names with what they are, where they live and what they accept. Those of
// the drawing stand in its header and are undone with it; those of the session live with the program.
#pragma once

#include "host/afx/CString.h"
#include "host/ge/AcGePoint3d.h"

#include <variant>
#include <vector>

class SystemVariables {
 public:
  using Value = std::variant<long, double, CString, AcGePoint3d>;
  enum class Result { ok, unknown, readOnly, wrongType, outOfRange, noDocument };

  // Names go in any case.
  static Result get(const CString& name, Value& value);
  static Result set(const CString& name, const Value& value);
  // 0 for a variable that is no whole number.
  static long integer(const CString& name);
  static bool isReadOnly(const CString& name);
  static bool isReal(const CString& name);
  static bool isInteger(const CString& name);
  // All names in alphabetical order.
  static std::vector<CString> names();
  // What the variable is, in Chinese; empty for an unknown one.
  static CString title(const CString& name);
  // Session variables back to their start values.
  static void reset();
  // A sentence on why set or get failed.
  static CString reason(Result result, const CString& name);
};
