// The header variables of a drawing ($CLAYER, $INSUNITS, ...), in the order of the file and as it stood.
// An object of the database like any other, so that undo covers it.
#pragma once

#include "host/db/AcDbObject.h"

#include <optional>
#include <string>
#include <vector>

class AcDbHeader : public AcDbObject {
  ACRX_DECLARE_MEMBERS(AcDbHeader);

 public:
  // The tags of a variable, without its name; empty when the drawing doesn't have it. Name with the "$".
  std::vector<DxfTag> variable(std::string_view name) const;
  bool has(std::string_view name) const { return !variable(name).empty(); }
  std::optional<double> real(std::string_view name) const;
  std::optional<long long> integer(std::string_view name) const;
  std::optional<CString> text(std::string_view name) const;
  // Replaces the variable's tags, or appends the variable. Must be open for write.
  Acad::ErrorStatus setVariable(std::string_view name, const std::string& tags);
  // The text of header variables with one of them replaced or appended.
  static std::string withVariable(std::string_view text, std::string_view name, const std::string& tags);
};
