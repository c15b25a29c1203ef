// A room of 6 m by 4 m from the origin in the working drawing, with a load and, unless told otherwise, the
// record that the load calculation files.
#pragma once

#include "host/ed/ArxDbgUtils.h"
#include "plugin/rooms/CTQRoom.h"
#include "plugin/rooms/RoomRecord.h"
#include "plugin/rooms/VkDbHvacSpace.h"

inline void AddCalculatedRoom(double load, double temperature, bool hasRecord = true) {
  auto* room = new VkDbHvacSpace;
  room->SetPosition({1000, 2000, 0});
  room->SetBoundary({{0, 0, 0}, {6000, 0, 0}, {6000, 4000, 0}, {0, 4000, 0}});
  room->SetTotalHeatLoad(load);
  if (ArxDbgUtils::addToCurrentSpace(room) != Acad::eOk) return delete room;
  const AcDbObjectId id = room->objectId();
  room->close();
  CTQRoom record;
  record.m_dWinData = temperature;
  if (hasRecord) ZP::SetTQRoom(id, &record);
}
