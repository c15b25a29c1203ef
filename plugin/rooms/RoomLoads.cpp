#include "plugin/rooms/RoomLoads.h"

#include "host/db/AcDbObjectPointer.h"
#include "host/ed/ArxDbgRbList.h"
#include "plugin/graph/DocumentWriteLock.h"
#include "plugin/graph/VkHvacSelect.h"
#include "plugin/rooms/CTQRoom.h"
#include "plugin/rooms/RoomRecord.h"
#include "plugin/rooms/VkDbHvacSpace.h"

namespace {

using Room = AcDbObjectPointer<VkDbHvacSpace>;

// Hands the room that the user picks to take, which says whether it has what it wants.
template <class Take> int TakeFromPicked(Take take) {
  const DocumentWriteLock lock; // the pick goes on without it
  AcDbObjectId id;
  return ZP::SelectedSingleVkDbHvacSpace(id) && take(id) ? 1 : 0;
}

} // namespace

int ZP::SelectedSingleVkDbHvacSpace(AcDbObjectId& id) {
  const ArxDbgRbList filter(
      acutBuildList(RTDXF0, CString::FromUtf8(VkDbHvacSpace::desc()->dxfName()), RTNONE));
  return VkHvacSelect::GetInstance()->SingleSelectEntity(L"\n请选择房间编号", id, filter) == RTNORM ? 1 : 0;
}

int ZP::GetSelHvacSpaceHMLoad(double& total, double& most) {
  return TakeFromPicked([&](const AcDbObjectId& id) {
    const Room room(id, AcDb::kForRead);
    if (!room) return false;
    total = room->GetTotalHeatLoad();
    most = room->GetWinTotalMostLoad();
    return true;
  });
}

int ZP::GetSelHvacSpaceCMLoad(double& total, double& most) {
  return TakeFromPicked([&](const AcDbObjectId& id) {
    const Room room(id, AcDb::kForRead);
    if (!room) return false;
    total = room->GetTotalCoolLoad();
    most = room->GetSumTotalMostLoad();
    return true;
  });
}

int ZP::GetSelHvacSpaceWinData(double& total, double& temperature) {
  return TakeFromPicked([&](const AcDbObjectId& id) {
    CTQRoom record;
    if (!GetTQRoom(id, &record)) return false;
    const Room room(id, AcDb::kForRead);
    if (!room) return false;
    total = room->GetTotalHeatLoad();
    temperature = record.m_dWinData;
    return true;
  });
}
