// The file that the catalogues of pipes and of ducts share. Each writes its own sections and keeps the
// other's, so each save begins by reading what the file holds at that moment.
#pragma once

#include "plugin/base/Folders.h"

namespace pipes {

inline CString PipeMaterialPath() {
  return ZP::GetSystemPath() + L"Data\\PipeMaterial.idp";
}

// Its mark, in the sub-key "Version". Both write it.
inline constexpr const wchar_t* kPipeMaterialVersion = L"1.0";

} // namespace pipes
