// Where VacCal.xml stands, its three parts, and the attributes of their items. docs/formats/vaccal.md
// describes the file; the diameter columns are in FittingColumns.h, the keys of the flows in TeeFlows.h.
#pragma once

#include "plugin/base/Folders.h"

namespace resistance {

inline constexpr const wchar_t* kFittingPart = L"FittingsLocalCoe";
inline constexpr const wchar_t* kFlowPart = L"3T4TLocalCoe";
inline constexpr const wchar_t* kPicturePart = L"3T4T";

inline constexpr const wchar_t* kName = L"MingCheng"; // of a fitting; in the picture part, of a form
inline constexpr const wchar_t* kFlowKey = L"TID";
inline constexpr const wchar_t* kCoefficient = L"XiShu";
inline constexpr const wchar_t* kPicture = L"BMP"; // the name of the picture's file

inline CString FilePath() {
  return ZP::GetSystemPath() + L"VacCal.xml";
}

} // namespace resistance
