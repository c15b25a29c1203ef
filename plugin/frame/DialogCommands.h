// The commands that open a dialog. The dialog's result is nobody's.
#pragma once

namespace dialogs {

void PipeMaterials();       // KOR_GJGLQ
void VelocityLimits();      // KOR_LSGLQ
void DuctMaterials();       // KOR_FGGJGLQ
void SystemSettings();      // KOR_XTSZ
void LayerManager();        // KOR_TCGLQ
void LayerGroups();         // KOR_CADTCFZ
void LayerControl();        // KOR_CADTCKZ, a bar that stays open
void Radiators();           // KOR_SRQ
void RadiatorCalculation(); // KOR_SRQJS
void FanCoils();            // KOR_FJPGGLQ

} // namespace dialogs
