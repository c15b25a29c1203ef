// What a room's record holds in its tree of parameters: each key with its field, in the order of the record.
// docs/formats/rooms.md describes it.
#pragma once

#include <variant>

#include "plugin/rooms/CTQRoom.h"

namespace rooms {

inline constexpr const wchar_t* kRecordKey = L"TQRoom"; // of the xrecord on the entity
inline constexpr const wchar_t* kVersionKey = L"Version";
inline constexpr const wchar_t* kVersion = L"1.0";

struct RecordField {
  const wchar_t* key;
  std::variant<CString CTQRoom::*, double CTQRoom::*> member;
};

inline constexpr RecordField kRecordFields[] = {
    {L"编号", &CTQRoom::m_strNumber},   {L"名称", &CTQRoom::m_strName},
    {L"楼层", &CTQRoom::m_strFloor},    {L"热负荷", &CTQRoom::m_dHeatLoad},
    {L"冷负荷", &CTQRoom::m_dCoolLoad}, {L"冬季室内温度", &CTQRoom::m_dWinData},
};

} // namespace rooms
