// The program: options, folders, then one of the front ends.
#include "apps/zpcad/DataFolder.h"
#include "apps/zpcad/LibraryFolders.h"
#include "apps/zpcad/Options.h"
#include "apps/zpcad/RunInWindow.h"

#include "host/afx/Paths.h"
#include "host/commands/HostCommands.h"
#include "host/console/ConsoleProgram.h"
#include "host/db/AcDbDatabase.h"

#include <iostream>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

fs::path programFolder() {
  std::error_code error;
  return fs::read_symlink("/proc/self/exe", error).parent_path();
}

bool setUpFolders(const Options& options) {
  const auto data = FindDataFolder(options.dataFolder, programFolder());
  if (!data.problem.empty()) std::cout << data.problem << '\n';
  if (data.path.empty() && options.dataFolder) return false;
  const CString root = CString::FromUtf8(data.path.string());
  afx::SetInstallRoot(root);
  AcDbDatabase::setSupportFolders({root, root + L"/Support"});
  return true;
}

// The plug-ins that come with the program, unless others were asked for.
void addOwnPlugIns(Options& options) {
  if (!options.job.plugIns.empty()) return;
  for (const char* name : {"ZPPipeManager.so", "ZPWorkbench.so"})
    if (const auto file = FindLibrary(programFolder(), name))
      options.job.plugIns.push_back(CString::FromUtf8(file->string()));
}

} // namespace

int main(int argc, char** argv) {
  Options options;
  if (const auto status = ParseOptions(argc, argv, options)) return *status;
  if (!setUpFolders(options)) return console::kUnusable;
  addOwnPlugIns(options);
  commands::RegisterHostCommands();
  if (!options.console) return RunInWindow(options, programFolder(), argc, argv);
  const ConsoleStreams streams{isatty(STDIN_FILENO) != 0, isatty(STDOUT_FILENO) != 0};
  return console::RunConsole(options.job, std::cin, std::cout, streams);
}
