// What loads are calculated for.
#pragma once

#include "plugin/base/ZpExport.h"
#include "plugin/rooms/CTQObject.h"

class ZP_EXPORT CTQCalObject : public CTQObject {
  DECLARE_DYNAMIC(CTQCalObject)

 public:
  CTQCalObject();
  ~CTQCalObject() override;
  CTQCalObject(const CTQCalObject&) = default;
  CTQCalObject& operator=(const CTQCalObject&) = default;

  double m_dHeatLoad = 0.0; // W, of the winter's design day
  double m_dCoolLoad = 0.0; // W, of the summer's design day
};
