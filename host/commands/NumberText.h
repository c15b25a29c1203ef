// Numbers as the host's commands show them: up to four decimals, without trailing zeros.
#pragma once

#include "host/afx/Numbers.h"
#include "host/ge/AcGePoint3d.h"

#include "host/afx/CString.h"

namespace commands {

inline CString NumberText(double value) {
  return CString(afx::FixedDouble(value, 4, true));
}

inline CString PointText(const AcGePoint3d& point) {
  return NumberText(point.x) + L"," + NumberText(point.y) + L"," + NumberText(point.z);
}

} // namespace commands
