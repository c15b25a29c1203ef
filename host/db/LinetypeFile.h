// Linetype files (.lin): named patterns of dashes, gaps and dots as text. Patterns with shapes or texts in
// them are passed over with a message.
#pragma once

#include "host/afx/CString.h"

#include <string_view>
#include <vector>

struct LinetypeDefinition {
  CString name;
  CString description;
  std::vector<double> dashes; // drawing units; positive a dash, negative a gap, 0 a dot
};

struct LinetypeFile {
  bool readable = true;
  std::vector<LinetypeDefinition> linetypes;
  std::vector<CString> problems; // each names the file and the line
};

// Text is UTF-8. path may be in the callers' form; for readLinetypeText it is for messages only.
LinetypeFile readLinetypeFile(const CString& path);
LinetypeFile readLinetypeText(std::string_view bytes, const CString& path);
