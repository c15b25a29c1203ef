// A plug-in with one command; definitions make it wrong in one way each.
#include "host/ed/AcEdCommandStack.h"
#include "host/ed/AcRxAppMessages.h"
#include "host/ed/AcRxDictionary.h"
#include "host/ed/AcRxDynamicLinker.h"
#include "host/ed/acutPrintf.h"

#include <stdexcept>

#ifndef SAMPLE_GENERATION
#define SAMPLE_GENERATION ACRX_API_VERSION
#endif

namespace {

[[maybe_unused]] void hello() {
  acutPrintf(L"\nhello from the sample\n");
}

[[maybe_unused]] void unloadMe() {
  if (!acrxDynamicLinker->unloadModule(L"good.so")) acutPrintf(L"\nstill here\n");
}

[[maybe_unused]] int initialise([[maybe_unused]] void* packet) {
#ifdef SAMPLE_REFUSES
  return AcRx::kRetError;
#elif defined(SAMPLE_THROWS)
  throw std::runtime_error("sample fails");
#else
#ifndef SAMPLE_STAYS_LOCKED
  auto* linker = AcRxDynamicLinker::cast(acrxSysRegistry()->at(L"DynamicLinker"));
  linker->unlockApplication(packet);
  linker->registerAppMDIAware(packet);
#endif
  acedRegCmds->addCommand(L"SAMPLE", L"SAMPLEHELLO", L"SAMPLEHELLO", ACRX_CMD_MODAL, hello);
  acedRegCmds->addCommand(L"SAMPLE", L"SAMPLEUNLOAD", L"SAMPLEUNLOAD", ACRX_CMD_MODAL, unloadMe);
  return AcRx::kRetOK;
#endif
}

} // namespace

#ifndef SAMPLE_NO_VERSION
extern "C" int acrxGetApiVersion() {
  return SAMPLE_GENERATION;
}
#endif

#ifndef SAMPLE_NO_ENTRY
extern "C" int acrxEntryPoint(int message, void* packet) {
  if (message == AcRx::kInitAppMsg) return initialise(packet);
#ifndef SAMPLE_KEEPS_COMMANDS
  if (message == AcRx::kUnloadAppMsg) acedRegCmds->removeGroup(L"SAMPLE");
#endif
  return AcRx::kRetOK;
}
#endif
