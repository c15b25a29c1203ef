#include "apps/zpcad/RunInWindow.h"

#include "apps/zpcad/LibraryFolders.h"
#include "host/commands/HostCommands.h"
#include "host/console/DialogInput.h"
#include "host/qt/DesktopProgram.h"

#include <dlfcn.h>
#include <iostream>

namespace fs = std::filesystem;

namespace {

void* LoadDesktop(const fs::path& programFolder) {
  const auto file = FindLibrary(programFolder, "libzp_qt.so");
  return file ? dlopen(file->c_str(), RTLD_NOW | RTLD_GLOBAL) : nullptr;
}

} // namespace

int RunInWindow(const Options& options, const fs::path& programFolder, int argc, char** argv) {
  void* library = LoadDesktop(programFolder);
  const auto run = library ? reinterpret_cast<RunDesktopFunction>(dlsym(library, kRunDesktopName)) : nullptr;
  if (!run) {
    std::cout << "这个程序没有桌面窗口（没有安装 Qt 6）。请用 zpcad --console 在终端中运行。\n";
    return desktop::kNoDisplay;
  }
  DesktopJob job;
  job.plugIns = options.job.plugIns;
  job.script = options.job.script;
  job.drawing = options.job.drawing;
  job.commandTitle = commands::Title;
  job.obeyDialogLine = console::ObeyModalLine;
  job.obeyBarLine = console::ObeyBarLine;
  if (options.screenshot) job.screenshot = CString::FromUtf8(*options.screenshot);
  return run(&job, argc, argv);
}
