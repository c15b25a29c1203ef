// Commands for the drawing tests that call what the plug-in offers to siblings and has no command of its own.
#include "host/ed/AcEdCommandStack.h"
#include "host/ed/AcRxAppMessages.h"
#include "host/ed/AcRxDynamicLinker.h"
#include "host/ed/acedPrompts.h"
#include "host/ed/acutPrintf.h"
#include "plugin/graph/DrawingSettings.h"
#include "plugin/layers/LayerService.h"
#include "tests/plugin/sibling/PipeCommands.h"

namespace {

// Asks for an identifier and makes its layer.
void GetUserLayer() {
  CString identifier;
  if (acedGetString(0, L"\n图层标识:", identifier) != RTNORM) return;
  acutPrintf(L"\n图层: %s\n", ZP::GetUserLayer(identifier));
}

// Asks for a layer and tells its identifier.
void GetKOrLayer() {
  CString layer;
  if (acedGetString(1, L"\n图层:", layer) != RTNORM) return;
  CString identifier = L"（无）";
  ZP::GetKOrLayer(layer, identifier);
  acutPrintf(L"\n图层标识: %s\n", identifier);
}

void SetOutDwgScale() {
  double scale = 0;
  if (acedGetReal(L"\n出图比例 1:", &scale) != RTNORM) return;
  ZP::SetOutDwgScale(scale);
  acutPrintf(L"\n出图比例 1:%g\n", ZP::GetOutDwgScale());
}

constexpr const wchar_t* kGroup = L"ZPTEST";

} // namespace

extern "C" __attribute__((visibility("default"))) int acrxGetApiVersion() {
  return ACRX_API_VERSION;
}

extern "C" __attribute__((visibility("default"))) int acrxEntryPoint(int message, void* packet) {
  if (message == AcRx::kInitAppMsg) {
    acrxDynamicLinker->unlockApplication(packet);
    acedRegCmds->addCommand(kGroup, L"TEST_USERLAYER", L"TEST_USERLAYER", 0, GetUserLayer);
    acedRegCmds->addCommand(kGroup, L"TEST_KORLAYER", L"TEST_KORLAYER", 0, GetKOrLayer);
    acedRegCmds->addCommand(kGroup, L"TEST_SCALE", L"TEST_SCALE", 0, SetOutDwgScale);
    AddPipeCommands(kGroup);
  }
  if (message == AcRx::kUnloadAppMsg) acedRegCmds->removeGroup(kGroup);
  return AcRx::kRetOK;
}
