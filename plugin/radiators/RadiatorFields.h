// What a radiator holds in the parameter file: each key with its field, in the order of the file. Defaults
// and units are those of the radiator's own members. docs/formats/srq.md describes the file.
#pragma once

#include <variant>

#include "plugin/radiators/CZPRadiator.h"

struct RadiatorField {
  const wchar_t* key;
  std::variant<int CZPRadiator::*, CString CZPRadiator::*, double CZPRadiator::*> member;
};

inline constexpr RadiatorField kRadiatorFields[] = {
    {L"计算方法", &CZPRadiator::m_nFormula}, {L"单位", &CZPRadiator::m_strUnit},
    {L"实验系数a", &CZPRadiator::m_dA},      {L"实验系数b", &CZPRadiator::m_dB},
    {L"实验系数c", &CZPRadiator::m_dC},      {L"实验系数d", &CZPRadiator::m_dD},
    {L"单位散热面积", &CZPRadiator::m_dF},   {L"单位散热量", &CZPRadiator::m_dQs},
};
