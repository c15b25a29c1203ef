// The versions of drawing files: their marks in $ACADVER, their names, and which of them are written on
// demand.
#pragma once

#include "host/afx/CString.h"

#include <span>
#include <string>
#include <string_view>

namespace dxf {

inline constexpr std::string_view kR12 = "AC1009";
inline constexpr std::string_view kR2000 = "AC1015";
inline constexpr std::string_view kR2004 = "AC1018";
inline constexpr std::string_view kR2007 = "AC1021";
inline constexpr std::string_view kR2010 = "AC1024";
inline constexpr std::string_view kR2013 = "AC1027";
inline constexpr std::string_view kR2018 = "AC1032";

struct FileVersion {
  std::string_view mark; // as $ACADVER has it
  const wchar_t* name;   // "R2000"
};

// Those that a drawing of any version can be saved in, oldest first.
std::span<const FileVersion> writableVersions();
// Null for a mark that is not among them.
const FileVersion* findWritableVersion(std::string_view mark);
// The version's name, also of those that are only read; the mark itself where it has none.
CString versionName(std::string_view mark);

} // namespace dxf
