#include "host/dxf/FileVersion.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr dxf::FileVersion kWritable[] = {
    {dxf::kR12, L"R12"},     {dxf::kR2000, L"R2000"}, {dxf::kR2004, L"R2004"}, {dxf::kR2007, L"R2007"},
    {dxf::kR2010, L"R2010"}, {dxf::kR2013, L"R2013"}, {dxf::kR2018, L"R2018"},
};

// Drawings of these stay in them and are not made anew.
constexpr dxf::FileVersion kReadOnly[] = {
    {"AC1002", L"R2.5"}, {"AC1003", L"R2.6"}, {"AC1004", L"R9"},
    {"AC1006", L"R10"},  {"AC1012", L"R13"},  {"AC1014", L"R14"},
};

template <std::size_t N>
const dxf::FileVersion* find(const dxf::FileVersion (&table)[N], std::string_view mark) {
  const auto* found = std::find_if(std::begin(table), std::end(table),
                                   [&](const dxf::FileVersion& version) { return version.mark == mark; });
  return found == std::end(table) ? nullptr : found;
}

} // namespace

std::span<const dxf::FileVersion> dxf::writableVersions() {
  return kWritable;
}

const dxf::FileVersion* dxf::findWritableVersion(std::string_view mark) {
  return find(kWritable, mark);
}

CString dxf::versionName(std::string_view mark) {
  if (const FileVersion* version = find(kWritable, mark)) return version->name;
  if (const FileVersion* version = find(kReadOnly, mark)) return version->name;
  return CString::FromUtf8(mark);
}
