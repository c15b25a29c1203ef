// The record of a room as the load calculation files it with the room's entity. CTQStorage reads and writes
// it.
#pragma once

#include "plugin/base/ZpExport.h"
#include "plugin/rooms/CTQFloorSub.h"

class ZP_EXPORT CTQRoom : public CTQFloorSub {
  DECLARE_DYNAMIC(CTQRoom)

 public:
  CTQRoom();
  ~CTQRoom() override;
  CTQRoom(const CTQRoom&) = default;
  CTQRoom& operator=(const CTQRoom&) = default;

  double m_dWinData = 0.0; // indoor design temperature in winter, degrees Celsius
};
