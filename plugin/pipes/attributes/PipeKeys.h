// The keys under which a pipe's engineering data stands on its entity, and the texts of their values.
#pragma once

#include "host/afx/CString.h"
#include "host/db/AcDbObjectId.h"

namespace pipes {

inline constexpr const wchar_t* kMaterialKey = L"管材";
inline constexpr const wchar_t* kDnKey = L"管径"; // mm
inline constexpr const wchar_t* kFlowRateKey = L"流量";
inline constexpr const wchar_t* kFlowVelocityKey = L"流速";
inline constexpr const wchar_t* kFrictionLossKey = L"比摩阻";
inline constexpr const wchar_t* kRunResistanceKey = L"沿程阻力";
inline constexpr const wchar_t* kLengthKey = L"长度";             // m
inline constexpr const wchar_t* kElevationKey = L"相对标高";      // of a main, above its floor
inline constexpr const wchar_t* kStartElevationKey = L"始点标高"; // of a riser
inline constexpr const wchar_t* kEndElevationKey = L"终点标高";
inline constexpr const wchar_t* kCodeKey = L"编号";
inline constexpr const wchar_t* kCodePrefixKey = L"编号前缀";

// Decimals of the numbers as the classes write them.
inline constexpr int kDigits = 5;

// True when the entity took the value. Trailing zeros of the decimals are dropped.
bool SetText(const AcDbObjectId& id, const wchar_t* key, const CString& value);
bool SetNumber(const AcDbObjectId& id, const wchar_t* key, double value, int digits = kDigits);

// True when the entity has the key; else value stays as it was. A text that begins with no number is 0.
bool GetText(const AcDbObjectId& id, const wchar_t* key, CString& value);
bool GetNumber(const AcDbObjectId& id, const wchar_t* key, double& value);

} // namespace pipes
