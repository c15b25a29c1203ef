// What a layer definition holds in the scheme file: each key with its field, in the order of the file, behind
// the flag that belongs to the node. The defaults are those of SZPLayerData's own members.
#pragma once

#include <variant>

#include "plugin/layers/SZPLayerData.h"

struct LayerField {
  const wchar_t* key;
  std::variant<CString SZPLayerData::*, int SZPLayerData::*, double SZPLayerData::*> member;
};

inline constexpr LayerField kLayerFields[] = {
    {L"图层标识", &SZPLayerData::KorLayer},      {L"图层名称", &SZPLayerData::UserLayer},
    {L"颜色", &SZPLayerData::ColorIndex},        {L"线型", &SZPLayerData::LineType},
    {L"线型比例", &SZPLayerData::LineTypeScale}, {L"线宽", &SZPLayerData::LineWeight},
    {L"图层代号", &SZPLayerData::LayerCode},     {L"备注", &SZPLayerData::Remarks},
};

inline constexpr const wchar_t* kSchemeSection = L"方案名称";
inline constexpr const wchar_t* kAllowModifyKey = L"是否允许修改";
