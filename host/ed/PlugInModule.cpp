#include "host/ed/PlugInModule.h"

#include "host/afx/Paths.h"

#include <dlfcn.h>

#include <exception>
#include <filesystem>
#include <fstream>

namespace fs = std::filesystem;

namespace {

bool isSharedObject(const std::string& file) {
  std::ifstream stream(file, std::ios::binary);
  char magic[4] = {};
  stream.read(magic, sizeof magic);
  return stream.gcount() == sizeof magic && std::string_view(magic, sizeof magic) == "\x7F"
                                                                                     "ELF";
}

CString versionText(int version) {
  CString text;
  text.Format(L"0x%X", version);
  return text;
}

} // namespace

std::unique_ptr<PlugInModule> PlugInModule::open(const CString& path, CString& reason) {
  const CString subject = L"插件“" + path + L"”不能加载：";
  std::error_code error;
  const fs::path file = fs::absolute(afx::NativePath(path), error);
  if (!fs::is_regular_file(file, error)) {
    reason = subject + (fs::is_directory(file, error) ? L"这是文件夹。" : L"没有这个文件。");
    return nullptr;
  }
  if (!isSharedObject(file.string())) {
    reason = subject + L"不是本机的共享库（.so）文件。";
    return nullptr;
  }
  void* library = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (!library) {
    reason = subject + CString::FromUtf8(dlerror());
    return nullptr;
  }
  auto module = std::unique_ptr<PlugInModule>(new PlugInModule(path, library));
  module->m_entryPoint = reinterpret_cast<int (*)(int, void*)>(dlsym(library, "acrxEntryPoint"));
  const auto version = reinterpret_cast<int (*)()>(dlsym(library, "acrxGetApiVersion"));
  if (!module->m_entryPoint || !version) {
    reason =
        subject + L"缺少入口函数 " + (module->m_entryPoint ? L"acrxGetApiVersion。" : L"acrxEntryPoint。");
    return nullptr;
  }
  if (const int built = version(); built != ACRX_API_VERSION) {
    reason = subject + L"接口版本为 " + versionText(built) + L"，本程序需要 " +
             versionText(ACRX_API_VERSION) + L"。";
    return nullptr;
  }
  return module;
}

PlugInModule::~PlugInModule() {
  dlclose(m_library);
}

AcRx::AppRetCode PlugInModule::send(AcRx::AppMsgCode message, CString& reason) {
  reason = L"插件“" + m_path + L"”";
  try {
    if (m_entryPoint(message, this) != AcRx::kRetError) return AcRx::kRetOK;
    reason += message == AcRx::kInitAppMsg ? L"拒绝了初始化。" : L"拒绝了卸载。";
  } catch (const std::exception& error) {
    reason += L"出错：" + CString::FromUtf8(error.what());
  } catch (...) {
    reason += L"出错。";
  }
  return AcRx::kRetError;
}

bool PlugInModule::holds(const void* address) const {
  Dl_info ours{};
  Dl_info theirs{};
  return dladdr(reinterpret_cast<const void*>(m_entryPoint), &ours) && dladdr(address, &theirs) &&
         ours.dli_fbase == theirs.dli_fbase;
}
