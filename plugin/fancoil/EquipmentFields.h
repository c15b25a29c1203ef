// What a model holds in FCUData.idp: each key with its field and its unit, in the order of the file. The
// defaults are those of SKTFCUEquipmentData's own members. The maker stands around the record, not in it.
#pragma once

#include <variant>

#include "plugin/fancoil/SKTFCUEquipmentData.h"

struct EquipmentField {
  const wchar_t* key;
  std::variant<CString SKTFCUEquipmentData::*, int SKTFCUEquipmentData::*, double SKTFCUEquipmentData::*>
      member;
  const wchar_t* unit = L"";
};

inline constexpr EquipmentField kEquipmentFields[] = {
    {L"设备型号", &SKTFCUEquipmentData::szMode},
    {L"安装形式", &SKTFCUEquipmentData::szInstallStyle},
    {L"结构形式", &SKTFCUEquipmentData::szStructStyle},
    {L"风量高速", &SKTFCUEquipmentData::dbAirFlowH, L"m^3/h"},
    {L"风量中速", &SKTFCUEquipmentData::dbAirFlowM, L"m^3/h"},
    {L"风量低速", &SKTFCUEquipmentData::dbAirFlowL, L"m^3/h"},
    {L"全冷量", &SKTFCUEquipmentData::dbCTHCapacity, L"kW"},
    {L"显冷量", &SKTFCUEquipmentData::dbCSHCapacity, L"kW"},
    {L"制热量", &SKTFCUEquipmentData::dbHCapacity, L"kW"},
    {L"水流量", &SKTFCUEquipmentData::dbWaterFlow, L"l/s"},
    {L"水压降", &SKTFCUEquipmentData::dbWPD, L"kPa"},
    {L"风机形式", &SKTFCUEquipmentData::szFanStyle},
    {L"风机数量", &SKTFCUEquipmentData::nFanCount},
    {L"电机形式", &SKTFCUEquipmentData::szMotorStyle},
    {L"电机数量", &SKTFCUEquipmentData::nMotorCount},
    {L"功率", &SKTFCUEquipmentData::dbPower, L"W"},
    {L"噪音", &SKTFCUEquipmentData::dbNoiseLevel, L"dBa"},
    {L"盘管形式", &SKTFCUEquipmentData::szCoilStyle},
    {L"盘管数量", &SKTFCUEquipmentData::nCoilCount},
    {L"工作压力", &SKTFCUEquipmentData::dbWorkPress, L"MPa"},
    {L"实际长", &SKTFCUEquipmentData::dbLength, L"mm"},
    {L"实际宽", &SKTFCUEquipmentData::dbWidth, L"mm"},
    {L"实际高", &SKTFCUEquipmentData::dbHeight, L"mm"},
    {L"图块", &SKTFCUEquipmentData::szDwgPath},
    {L"CAD长", &SKTFCUEquipmentData::dbCadLength, L"图形单位"},
    {L"CAD宽", &SKTFCUEquipmentData::dbCadWidth, L"图形单位"},
};
