// The host's status for what the curve kernel says.
#pragma once

#include "host/db/AcadStatus.h"
#include "host/ge/CurveStatus.h"

namespace entity {

inline Acad::ErrorStatus statusOf(ge::CurveStatus status) {
  switch (status) {
  case ge::CurveStatus::kOk:
    return Acad::eOk;
  case ge::CurveStatus::kNotFinite:
    return Acad::eInvalidInput;
  case ge::CurveStatus::kDegenerate:
    return Acad::eDegenerateGeometry;
  case ge::CurveStatus::kOutOfRange:
    return Acad::eOutOfRange;
  case ge::CurveStatus::kNotOnCurve:
    return Acad::ePointNotOnEntity;
  case ge::CurveStatus::kNotUniform:
    return Acad::eCannotScaleNonUniformly;
  case ge::CurveStatus::kNotApplicable:
    break;
  }
  return Acad::eNotApplicable;
}

} // namespace entity
