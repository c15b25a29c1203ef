// What a row of velocity limits holds in the parameter file: each key with its field and unit, in the order
// of the file. The defaults are those of the record's own members.
#pragma once

#include "plugin/pipes/limits/CZPPipeLimit.h"

struct PipeLimitField {
  const wchar_t* key;
  SZPRange CZPPipeLimit::*range;
  double SZPRange::*bound;
  const wchar_t* unit;
};

inline constexpr PipeLimitField kPipeLimitFields[] = {
    {L"最小流速", &CZPPipeLimit::m_velocity, &SZPRange::dbMin, L"m/s"},
    {L"最大流速", &CZPPipeLimit::m_velocity, &SZPRange::dbMax, L"m/s"},
    {L"最小比摩阻", &CZPPipeLimit::m_friction, &SZPRange::dbMin, L"Pa/m"},
    {L"最大比摩阻", &CZPPipeLimit::m_friction, &SZPRange::dbMax, L"Pa/m"},
};

inline constexpr const wchar_t* kLimitSection = L"水管界限方案";
