#include "plugin/frame/EntryPoint.h"

#include "host/ed/AcEdCommandStack.h"
#include "host/ed/AcRxAppMessages.h"
#include "host/ed/AcRxDictionary.h"
#include "host/ed/AcRxDynamicLinker.h"
#include "host/ui/AcUi.h"
#include "plugin/frame/CommandTable.h"
#include "plugin/graph/ModuleResources.h"

namespace {

// Attached from the moment the module is mapped until it is unmapped.
struct MappedModule {
  MappedModule() {
    module::Attach();
    InitAcUiDLL();
  }
  ~MappedModule() { module::Detach(); }
} const s_mapped;

void Initialise(void* packet) {
  if (auto* linker = AcRxDynamicLinker::cast(acrxSysRegistry()->at(L"DynamicLinker"))) {
    linker->unlockApplication(packet); // the user may unload it
    linker->registerAppMDIAware(packet);
  }
  const auto table = CommandTable();
  VkDefineCommand(module::LoadString(module::kApplicationName), table.data(), static_cast<int>(table.size()),
                  0);
}

// Null in a host without a command stack. Its class is looked up once by name and kept.
AcEdCommandStack* CommandStack() {
  static const AcRxClass* const type = [] {
    const auto* classes = AcRxClassDictionary::cast(acrxSysRegistry()->at(L"ClassDictionary"));
    return classes ? classes->at(L"AcEdCommandStack") : nullptr;
  }();
  AcRxObject* object = acrxSysRegistry()->at(L"ACAD_REGISTERED_COMMANDS");
  return object && type && object->isKindOf(type) ? static_cast<AcEdCommandStack*>(object) : nullptr;
}

// Both groups, whatever was registered: a group that the host doesn't know is no reason to stop.
void Unload() {
  for (const wchar_t* group : {kTransparentCommandGroup, kCommandGroup})
    if (AcEdCommandStack* stack = CommandStack()) stack->removeGroup(group);
}

} // namespace

int acrxEntryPoint(int message, void* packet) {
  if (message == AcRx::kInitAppMsg) Initialise(packet);
  if (message == AcRx::kUnloadAppMsg) Unload();
  return AcRx::kRetOK;
}

int acrxGetApiVersion() {
  return 0x120000;
}
