// To provide a command whose row tells that it is missing, put its handler in place of Missing<...> and take
// its line out of kMissing. A handler that shows a dialog does so inside a ResourceBracket, unless the
// function that it calls has one of its own.
#include "plugin/frame/CommandTable.h"

#include <string_view>

#include "host/ed/AcEdCommand.h"
#include "host/ed/acutPrintf.h"
#include "plugin/fancoil/OldCatalogueImport.h"
#include "plugin/frame/DialogCommands.h"
#include "plugin/layers/LayerService.h"

namespace {

// Commands of which this installation has the name but not the work, and what each would open.
struct MissingCommand {
  const wchar_t* command;
  const wchar_t* title;
};

constexpr MissingCommand kMissing[] = {
    {L"KOR_CADTCKZ", L"当前CAD图纸图层管理"},
};

// A name that the list doesn't have is no constant expression and thus no program.
consteval std::size_t MissingIndex(std::wstring_view command) {
  std::size_t index = 0;
  while (kMissing[index].command != command) ++index;
  return index;
}

template <std::size_t Index> void TellMissing() {
  acutPrintf(L"\n命令 %s（%s）尚未提供。\n", kMissing[Index].command, kMissing[Index].title);
}

// The layer commands forward as they are: no resources, and a result that nobody looks at.
void MakePickedLayerCurrent() {
  ZP::SetCurrentLayer();
}

constexpr int kFlags = ACRX_CMD_USEPICKSET;

#define ZP_MISSING_COMMAND(name)                                                                             \
  { name, TellMissing<MissingIndex(name)>, kFlags }

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
    ZP_MISSING_COMMAND(L"KOR_CADTCKZ"),
    {L"KOR_FJPGGLQ", dialogs::FanCoils, kFlags},
    {L"KOR_FJPG_OLDTONEW", fancoil::ImportOldCatalogue, kFlags},
    {L"KOR_SRQ", dialogs::Radiators, kFlags},
    {L"KOR_SRQJS", dialogs::RadiatorCalculation, kFlags},
};

#undef ZP_MISSING_COMMAND

} // namespace

std::span<const VkCmdTable> CommandTable() {
  return kTable;
}
