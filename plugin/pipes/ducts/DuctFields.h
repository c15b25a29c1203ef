// What the catalogue of ducts holds in the parameter file: each key with its field and unit, in the order of
// the file. The defaults are those of the records' own members.
#pragma once

#include "plugin/pipes/ducts/CZPDuctDiameter.h"
#include "plugin/pipes/ducts/CZPDuctMaterial.h"

struct DuctThicknessField {
  const wchar_t* key;
  double SZPDuctThickness::*member;
  const wchar_t* unit;
};

inline constexpr DuctThicknessField kDuctThicknessFields[] = {
    {L"最小值", &SZPDuctThickness::dbMin, L"mm"},
    {L"最大值", &SZPDuctThickness::dbMax, L"mm"},
    {L"壁厚", &SZPDuctThickness::dbThickness, L"mm"},
};

struct DuctMaterialField {
  const wchar_t* key;
  double CZPDuctMaterial::*member;
  const wchar_t* unit;
};

inline constexpr DuctMaterialField kDuctMaterialFields[] = {
    {L"绝对粗糙度", &CZPDuctMaterial::m_dRoughness, L"mm"},
};

struct DuctSizeField {
  const wchar_t* key;
  double CZPDuctDiameter::*member;
  const wchar_t* unit;
};

inline constexpr DuctSizeField kDuctSizeFields[] = {
    {L"宽度", &CZPDuctDiameter::m_dWidth, L"mm"},
    {L"高度", &CZPDuctDiameter::m_dHeight, L"mm"},
};

inline constexpr const wchar_t* kDuctMaterialSection = L"风管管材方案";
inline constexpr const wchar_t* kDuctThicknessTable = L"壁厚数据";
inline constexpr const wchar_t* kDuctSizeSection = L"风管管径方案";
inline constexpr const wchar_t* kRectSizes = L"矩形风管管径方案";
inline constexpr const wchar_t* kCircleSizes = L"圆形风管管径方案";
