#include "host/ed/AcRxDynamicLinker.h"

#include "host/afx/MessageLog.h"
#include "host/afx/Paths.h"
#include "host/ed/AcApDocManager.h"
#include "host/ed/AcEdCommandStack.h"
#include "host/ed/EdFrontEnd.h"
#include "host/ed/EdSession.h"
#include "host/ed/PlugInModule.h"
#include "host/ed/acutPrintf.h"

#include <algorithm>
#include <filesystem>
#include <utility>

ACRX_NO_CONS_DEFINE_MEMBERS(AcRxDynamicLinker, AcRxObject)

namespace fs = std::filesystem;

namespace {

bool isSameFile(const CString& a, const CString& b) {
  const fs::path first(afx::NativePath(a));
  const fs::path second(afx::NativePath(b));
  std::error_code error;
  return first == second || fs::equivalent(first, second, error) ||
         (!second.has_parent_path() && first.filename() == second);
}

std::vector<AcRxClass*> classesOf(const PlugInModule& module) {
  auto classes = AcRxClass::customClasses();
  std::erase_if(classes, [&](const AcRxClass* type) { return !module.holds(type); });
  return classes;
}

// What entities look like depends on whether their class is there.
void regenerateAll() {
  auto* frontEnd = EdSession::instance().frontEnd();
  if (!frontEnd) return;
  const std::unique_ptr<AcApDocumentIterator> documents(acDocManager->newAcApDocumentIterator());
  for (; !documents->done(); documents->step()) frontEnd->regenerate(*documents->document());
}

const void* addressOf(const AcEdCommand& command) {
  return reinterpret_cast<const void*>(command.functionAddr());
}

} // namespace

AcRxDynamicLinker::AcRxDynamicLinker() = default;
AcRxDynamicLinker::~AcRxDynamicLinker() = default;

AcRxDynamicLinker::Modules::const_iterator AcRxDynamicLinker::find(const CString& file) const {
  return std::find_if(m_modules.begin(), m_modules.end(),
                      [&](const auto& module) { return isSameFile(module->path(), file); });
}

bool AcRxDynamicLinker::fail(const CString& reason, bool print) {
  m_error = reason;
  afx::LogError(reason);
  if (print) acutPrintText(L"\n" + reason + L"\n");
  return false;
}

bool AcRxDynamicLinker::loadModule(const wchar_t* file, bool print) {
  if (find(file) != m_modules.end()) return true;
  CString reason;
  auto opened = PlugInModule::open(file, reason);
  if (!opened) return fail(reason, print);
  // In the list before it is called: its entry point hands its packet back to this object.
  m_modules.push_back(std::move(opened));
  auto* module = m_modules.back().get();
  if (module->send(AcRx::kInitAppMsg, reason) == AcRx::kRetOK) {
    acrxBuildClassHierarchy();
    if (!classesOf(*module).empty()) regenerateAll();
    return true;
  }
  const auto own = std::find_if(m_modules.begin(), m_modules.end(),
                                [&](const auto& candidate) { return candidate.get() == module; });
  auto refused = std::move(*own);
  m_modules.erase(own);
  release(std::move(refused));
  return fail(reason, print);
}

bool AcRxDynamicLinker::unloadModule(const wchar_t* file, bool print) {
  const auto found = find(file);
  if (found == m_modules.end()) return fail(L"插件“" + CString(file) + L"”没有加载。", print);
  const auto& module = **found;
  if (module.isLocked()) return fail(L"插件“" + module.path() + L"”不允许卸载。", print);
  for (const auto& command : acedCommandStack()->commands())
    if (module.holds(addressOf(*command)) && EdSession::instance().isRunning(command->functionAddr()))
      return fail(L"插件“" + module.path() + L"”的命令正在运行，不能卸载。", print);
  auto owned = std::move(const_cast<std::unique_ptr<PlugInModule>&>(*found));
  m_modules.erase(found);
  CString reason;
  if (owned->send(AcRx::kUnloadAppMsg, reason) != AcRx::kRetOK) afx::LogError(reason);
  release(std::move(owned));
  return true;
}

void AcRxDynamicLinker::unloadAll() {
  while (!m_modules.empty()) {
    auto module = std::move(m_modules.back());
    m_modules.pop_back();
    CString reason;
    if (module->send(AcRx::kUnloadAppMsg, reason) != AcRx::kRetOK) afx::LogError(reason);
    release(std::move(module));
  }
}

// A command whose code is no longer there must not stay in the table, nor an object in a drawing.
void AcRxDynamicLinker::release(std::unique_ptr<PlugInModule> module) {
  acedCommandStack()->removeIf([&](const AcEdCommand& command) { return module->holds(addressOf(command)); });
  const auto classes = classesOf(*module);
  for (const AcRxClass* type : classes) acrxWithdrawClass(*type);
  module.reset();
  if (!classes.empty()) regenerateAll();
}

bool AcRxDynamicLinker::isModuleLoaded(const wchar_t* file) const {
  return find(file) != m_modules.end();
}

std::vector<CString> AcRxDynamicLinker::loadedModules() const {
  std::vector<CString> paths;
  for (const auto& module : m_modules) paths.push_back(module->path());
  return paths;
}

PlugInModule* AcRxDynamicLinker::fromPacket(void* packet) const {
  for (const auto& module : m_modules)
    if (module.get() == packet) return module.get();
  return nullptr;
}

bool AcRxDynamicLinker::unlockApplication(void* packet) {
  auto* module = fromPacket(packet);
  if (module) module->setLocked(false);
  return module != nullptr;
}

bool AcRxDynamicLinker::lockApplication(void* packet) {
  auto* module = fromPacket(packet);
  if (module) module->setLocked(true);
  return module != nullptr;
}

bool AcRxDynamicLinker::registerAppMDIAware(void* packet) {
  auto* module = fromPacket(packet);
  if (module) module->setMdiAware(true);
  return module != nullptr;
}

bool AcRxDynamicLinker::registerAppNotMDIAware(void* packet) {
  auto* module = fromPacket(packet);
  if (module) module->setMdiAware(false);
  return module != nullptr;
}

bool AcRxDynamicLinker::isApplicationLocked(const wchar_t* file) const {
  const auto found = find(file);
  return found != m_modules.end() && (*found)->isLocked();
}

AcRxDynamicLinker* acrxDynamicLinkerPtr() {
  static auto* linker = new AcRxDynamicLinker; // never destroyed: plug-ins reach it while they are unloaded
  return linker;
}
