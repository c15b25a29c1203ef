// The check that every reader of a catalogue makes before it takes anything from a parameter file.
#pragma once

#include <initializer_list>

#include "host/afx/CString.h"
#include "plugin/base/ZpExport.h"

namespace ZP {

// Whether mark, read from the file at path, is one of the marks that the reader knows. If not, the message
// log names file and mark, and the next save to that path keeps a copy of the file. An empty mark is foreign
// too, unless it is among the known ones.
ZP_EXPORT bool CheckVersionMark(const CString& path, const CString& mark,
                                std::initializer_list<const wchar_t*> known);

} // namespace ZP
