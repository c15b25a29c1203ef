// What belongs to a floor of the building.
#pragma once

#include "plugin/base/ZpExport.h"
#include "plugin/rooms/CTQMngObject.h"

class ZP_EXPORT CTQFloorSub : public CTQMngObject {
  DECLARE_DYNAMIC(CTQFloorSub)

 public:
  CTQFloorSub();
  ~CTQFloorSub() override;
  CTQFloorSub(const CTQFloorSub&) = default;
  CTQFloorSub& operator=(const CTQFloorSub&) = default;

  CString m_strFloor; // the floor's name
};
