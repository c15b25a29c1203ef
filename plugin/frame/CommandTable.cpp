// A handler that shows a dialog does so inside a ResourceBracket, unless the function that it calls has one
// of its own.
#include "plugin/frame/CommandTable.h"

#include "host/ed/AcEdCommand.h"
#include "plugin/fancoil/OldCatalogueImport.h"
#include "plugin/frame/DialogCommands.h"
#include "plugin/layers/LayerService.h"

namespace {

// The layer commands forward as they are: no resources, and a result that nobody looks at.
void MakePickedLayerCurrent() {
  ZP::SetCurrentLayer();
}

constexpr int kFlags = ACRX_CMD_USEPICKSET;

constexpr VkCmdTable kTable[] = {
    {L"KOR_GJGLQ", dialogs::PipeMaterials, kFlags},
    {L"KOR_LSGLQ", dialogs::VelocityLimits, kFlags},
    {L"KOR_FGGJGLQ", dialogs::DuctMaterials, kFlags},
    {L"KOR_XTSZ", dialogs::SystemSettings, kFlags},
    {L"KOR_TCGLQ", dialogs::LayerManager, kFlags},
    {L"KOR_SZDQTC", MakePickedLayerCurrent, kFlags},
    {L"KOR_GBTC", ZP::CloseSelectedLayer, kFlags},
    {L"KOR_GBQT", ZP::CloseOtherLayers, kFlags},
    {L"KOR_DJTC", ZP::FrozenSelectedLayer, kFlags},
    {L"KOR_DJQT", ZP::FrozenOtherLayers, kFlags},
    {L"KOR_SDTC", ZP::LockedSelectedLayer, kFlags},
    {L"KOR_SDQT", ZP::LockedOtherLayers, kFlags},
    {L"KOR_TCHF", ZP::ResumeLayers, kFlags},
    {L"KOR_DKQBTC", ZP::OpenAllLayers, kFlags},
    {L"KOR_JDQBTC", ZP::UnFrozenAllLayers, kFlags},
    {L"KOR_JSQBTC", ZP::UnLockedAllLayers, kFlags},
    {L"KOR_CADTCFZ", dialogs::LayerGroups, kFlags},
    {L"KOR_CADTCKZ", dialogs::LayerControl, kFlags},
    {L"KOR_FJPGGLQ", dialogs::FanCoils, kFlags},
    {L"KOR_FJPG_OLDTONEW", fancoil::ImportOldCatalogue, kFlags},
    {L"KOR_SRQ", dialogs::Radiators, kFlags},
    {L"KOR_SRQJS", dialogs::RadiatorCalculation, kFlags},
};

} // namespace

std::span<const VkCmdTable> CommandTable() {
  return kTable;
}
