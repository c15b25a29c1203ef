// What the catalogue knows of one model of fan-coil unit. The keys and units of the fields are listed in
// EquipmentFields.h.
#pragma once

#include "host/afx/CString.h"
#include "plugin/base/ZpExport.h"

struct ZP_EXPORT SKTFCUEquipmentData {
  CString szFactory; // the maker that owns the record; never stored with it
  CString szMode;    // the model
  CString szInstallStyle = L"暗装";
  CString szStructStyle = L"卧式";
  double dbAirFlowH = 0.0; // air flow at high, medium and low speed
  double dbAirFlowM = 0.0;
  double dbAirFlowL = 0.0;
  double dbCTHCapacity = 0.0; // cooling, total
  double dbCSHCapacity = 0.0; // cooling, sensible
  double dbHCapacity = 0.0;   // heating
  double dbWaterFlow = 0.0;
  double dbWPD = 0.0; // pressure drop of the water
  CString szFanStyle;
  int nFanCount = 0;
  CString szMotorStyle;
  int nMotorCount = 0;
  double dbPower = 0.0;
  double dbNoiseLevel = 0.0;
  CString szCoilStyle;
  int nCoilCount = 0;
  double dbWorkPress = 0.0;
  double dbLength = 100.0; // the unit itself
  double dbWidth = 100.0;
  double dbHeight = 100.0;
  CString szDwgPath;        // the name of the block that draws the unit
  double dbCadLength = 1.0; // that block as drawn
  double dbCadWidth = 1.0;
};
