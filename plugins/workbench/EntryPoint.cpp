// What the host finds by name in the workbench.
#include "host/afx/MessageLog.h"
#include "host/ed/AcEdCommandStack.h"
#include "host/ed/AcRxAppMessages.h"
#include "host/ed/AcRxDynamicLinker.h"
#include "plugins/workbench/CommandTable.h"

namespace {

constexpr const wchar_t* kGroup = L"WORKBENCH";

void Initialise(void* packet) {
  acrxDynamicLinker->unlockApplication(packet); // the user may unload it
  acrxDynamicLinker->registerAppMDIAware(packet);
  for (const auto& row : workbench::CommandTable()) {
    const auto status = acedRegCmds->addCommand(kGroup, row.command, row.title, row.flags, row.function);
    if (status != Acad::eOk)
      afx::LogError(CString(L"工作台：命令 ") + row.command + L" 不能注册（" + acadErrorStatusText(status) +
                    L"）");
  }
}

} // namespace

extern "C" __attribute__((visibility("default"))) int acrxGetApiVersion() {
  return ACRX_API_VERSION;
}

extern "C" __attribute__((visibility("default"))) int acrxEntryPoint(int message, void* packet) {
  if (message == AcRx::kInitAppMsg) Initialise(packet);
  if (message == AcRx::kUnloadAppMsg) acedRegCmds->removeGroup(kGroup);
  return AcRx::kRetOK;
}
