// APPLOAD: loads, lists and unloads plug-ins.
#include "host/commands/CommandFunctions.h"
#include "host/ed/AcRxDynamicLinker.h"
#include "host/ed/EdPrompts.h"
#include "host/ed/EdSession.h"
#include "host/ed/acutPrintf.h"

namespace commands {
namespace {

void printLoaded() {
  const auto modules = acrxDynamicLinker->loadedModules();
  for (const auto& path : modules)
    acutPrintf(L"%s%s\n", path, acrxDynamicLinker->isApplicationLocked(path) ? L"（不可卸载）" : L"");
  acutPrintf(L"已加载 %d 个插件。\n", static_cast<int>(modules.size()));
}

void unload() {
  const auto answer = ed::AskText({L"输入要卸载的插件文件名:", {}, 0, {}});
  if (!answer.hasValue()) return;
  const CString path = CString(answer.text).Trim();
  if (acrxDynamicLinker->unloadModule(path))
    acutPrintf(L"\n已卸载 %s\n", path);
  else
    EdSession::instance().refuse(acrxDynamicLinker->lastError(), L"已加载且允许卸载的插件");
}

} // namespace

void Appload() {
  const auto answer = ed::AskText({L"输入插件文件名，或 [列表(?)/卸载(U)]:", L"? Unload", 0, {}});
  if (answer.isKeyword(L"?")) return printLoaded();
  if (answer.isKeyword(L"Unload")) return unload();
  if (!answer.hasValue()) return;
  const CString path = CString(answer.text).Trim();
  if (acrxDynamicLinker->loadModule(path))
    acutPrintf(L"\n已加载 %s\n", path);
  else
    EdSession::instance().refuse(acrxDynamicLinker->lastError(), L"为本程序编译的插件（.so）");
}

} // namespace commands
