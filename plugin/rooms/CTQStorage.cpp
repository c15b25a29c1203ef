#include "plugin/rooms/CTQStorage.h"

#include "host/afx/MessageLog.h"
#include "plugin/base/CIDPEx.h"
#include "plugin/rooms/RoomRecordFields.h"

int CTQStorage::ReadRoom(CTQRoom* room, CIDPEx* tree) {
  CString version;
  if (!room || !tree || !tree->GetSubValue(rooms::kVersionKey, version)) return 0;
  if (version != rooms::kVersion) {
    afx::LogError(L"房间负荷记录：版本 " + version + L" 未知，未读入");
    return 0;
  }
  for (const auto& field : rooms::kRecordFields)
    std::visit([&](auto member) { tree->GetSubValue(field.key, room->*member); }, field.member);
  return 1;
}

int CTQStorage::WriteRoom(const CTQRoom* room, CIDPEx* tree) {
  if (!room || !tree) return 0;
  tree->SetSubValue(rooms::kVersionKey, CString(rooms::kVersion));
  for (const auto& field : rooms::kRecordFields)
    std::visit([&](auto member) { tree->SetSubValue(field.key, room->*member); }, field.member);
  return 1;
}
