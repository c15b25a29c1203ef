// The program: options, folders, then one of the front ends.
#include "apps/zpcad/DataFolder.h"
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

// The plug-in that comes with the program, unless others were asked for.
void addOwnPlugIn(Options& options) {
  const auto file = programFolder() / "ZPPipeManager.so";
  std::error_code error;
  if (options.job.plugIns.empty() && fs::exists(file, error))
    options.job.plugIns.push_back(CString::FromUtf8(file.string()));
}

} // namespace

int main(int argc, char** argv) {
  Options options;
  if (const auto status = ParseOptions(argc, argv, options)) return *status;
  if (!setUpFolders(options)) return console::kUnusable;
  addOwnPlugIn(options);
  commands::RegisterHostCommands();
  if (!options.console) return RunInWindow(options, programFolder(), argc, argv);
  const ConsoleStreams streams{isatty(STDIN_FILENO) != 0, isatty(STDOUT_FILENO) != 0};
  return console::RunConsole(options.job, std::cin, std::cout, streams);
}
