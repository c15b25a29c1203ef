// What a model held in the catalogue of the older installation: each key with the field that takes its value,
// in the order of reading. Units are those of EquipmentFields.h; numbers pass over as they stand.
#pragma once

#include <variant>

#include "plugin/fancoil/SKTFCUEquipmentData.h"

// Stored as an integer where the field is a double.
struct WidenedInteger {
  double SKTFCUEquipmentData::*member;
};

struct OldCatalogueField {
  const wchar_t* key;
  std::variant<CString SKTFCUEquipmentData::*, int SKTFCUEquipmentData::*, double SKTFCUEquipmentData::*,
               WidenedInteger>
      target;
};

inline constexpr OldCatalogueField kOldCatalogueFields[] = {
    {L"WaterFlow", &SKTFCUEquipmentData::dbWaterFlow},
    {L"dbCSHCapacity", &SKTFCUEquipmentData::dbCSHCapacity},
    {L"dbCTHCapacity", &SKTFCUEquipmentData::dbCTHCapacity},
    {L"dbHCapacity", &SKTFCUEquipmentData::dbHCapacity},
    {L"dbHeight", &SKTFCUEquipmentData::dbHeight},
    {L"dbWidth", &SKTFCUEquipmentData::dbWidth},
    {L"dbLength", &SKTFCUEquipmentData::dbLength},
    {L"dbWorkPress", &SKTFCUEquipmentData::dbWorkPress},
    {L"nAirFlowH", WidenedInteger{&SKTFCUEquipmentData::dbAirFlowH}},
    {L"nAirFlowL", WidenedInteger{&SKTFCUEquipmentData::dbAirFlowL}},
    {L"nAirFlowM", WidenedInteger{&SKTFCUEquipmentData::dbAirFlowM}},
    {L"nCoilCount", &SKTFCUEquipmentData::nCoilCount},
    {L"nFanCount", &SKTFCUEquipmentData::nFanCount},
    {L"nMotorCount", &SKTFCUEquipmentData::nMotorCount},
    {L"nNoiseLevel", WidenedInteger{&SKTFCUEquipmentData::dbNoiseLevel}},
    {L"nPower", WidenedInteger{&SKTFCUEquipmentData::dbPower}},
    {L"nWPD", &SKTFCUEquipmentData::dbWPD}, // a double, whatever its name says
    {L"szCoilStyle", &SKTFCUEquipmentData::szCoilStyle},
    {L"szDwgPath", &SKTFCUEquipmentData::szDwgPath},
    {L"szFanStyle", &SKTFCUEquipmentData::szFanStyle},
    {L"szMode", &SKTFCUEquipmentData::szMode},
    {L"szMotorStyle", &SKTFCUEquipmentData::szMotorStyle},
};
