// The parts of FCUData.idp that its two writers share: where it stands, its mark, its keys, and the way
// between a model's record and its node. docs/formats/fcudata.md describes the file.
#pragma once

#include "plugin/base/CIDPEx.h"
#include "plugin/fancoil/SKTFCUEquipmentData.h"

namespace fancoil {

inline constexpr const wchar_t* kVersionMark = L"Version:1.0";
inline constexpr const wchar_t* kCountKey = L"Count";
inline constexpr const wchar_t* kFactoryPrefix = L"Factory";
inline constexpr const wchar_t* kFactoryNameKey = L"Name";
inline constexpr const wchar_t* kEquipmentPrefix = L"Equipment";
inline constexpr const wchar_t* kModelKey = L"设备型号";

CString CataloguePath();

// False when the file can't be read. A mark that is not known is logged, and the next save keeps a copy of
// the file; what to do about it is for the caller, who is told by known.
bool OpenCatalogue(CIDPEx& root, bool& known);

// A key that the node lacks leaves its field as it is.
void ReadEquipment(CIDPEx& node, SKTFCUEquipmentData& data);
void WriteEquipment(CIDPEx& node, const SKTFCUEquipmentData& data);

} // namespace fancoil
