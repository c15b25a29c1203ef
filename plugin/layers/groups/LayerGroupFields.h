// The keys of CadLayerGroup.idp.
#pragma once

inline constexpr const wchar_t* kLayerGroupVersion = L"1.0";
inline constexpr const wchar_t* kLayerGroupSection = L"当前CAD图纸图层分组";
inline constexpr const wchar_t* kGroupedLayerKey = L"图层";
