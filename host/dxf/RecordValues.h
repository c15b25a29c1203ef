// Small looks into the tags of a record that is being read, and the words of messages about it.
#pragma once

#include "host/afx/CString.h"
#include "host/db/DxfTag.h"

namespace dxf {

// The first tag of a code ahead of the first subclass marker and outside 102 groups, or null.
const DxfTag* headTag(DxfTags tags, int code);
// The name of a section, table, table entry or block; empty when the record has none.
CString nameOf(DxfTags tags);
// The beginning of a text of any length, for a message.
CString shown(std::string_view value);
// A message around a name.
CString quoted(const wchar_t* format, const CString& name);

} // namespace dxf
