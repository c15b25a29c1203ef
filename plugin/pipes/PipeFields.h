// What a pipe material and a row of its diameter table hold in the parameter file: each key with its field
// and unit, in the order of the file. The defaults are those of the records' own members.
#pragma once

#include <variant>

#include "plugin/pipes/CZPPipeMaterial.h"

struct PipeRowField {
  const wchar_t* key;
  double SZPPipeDNData::*member;
  const wchar_t* unit;
};

inline constexpr PipeRowField kPipeRowFields[] = {
    {L"公称直径", &SZPPipeDNData::dbNominal, L"mm"},
    {L"外径", &SZPPipeDNData::dbOuter, L"mm"},
    {L"内径", &SZPPipeDNData::dbInner, L"mm"},
    {L"壁厚", &SZPPipeDNData::dbThickness, L"mm"},
};

struct PipeMaterialField {
  const wchar_t* key;
  std::variant<double CZPPipeMaterial::*, CString CZPPipeMaterial::*> member;
  const wchar_t* unit;
};

inline constexpr PipeMaterialField kPipeMaterialFields[] = {
    {L"绝对粗糙度", &CZPPipeMaterial::m_dRoughness, L"mm"},
    {L"前缀字符", &CZPPipeMaterial::m_strPrefix, L""},
    {L"参数A", &CZPPipeMaterial::m_strParamA, L""},
    {L"连接字符", &CZPPipeMaterial::m_strConnector, L""},
    {L"参数B", &CZPPipeMaterial::m_strParamB, L""},
    {L"后缀字符", &CZPPipeMaterial::m_strSuffix, L""},
    {L"沿线距离", &CZPPipeMaterial::m_dAlongDistance, L"mm"},
};

inline constexpr const wchar_t* kPipeSection = L"管材管径方案";
inline constexpr const wchar_t* kPipeTable = L"管径数据";
