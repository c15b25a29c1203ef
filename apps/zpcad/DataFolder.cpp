#include "apps/zpcad/DataFolder.h"

#include <cstdlib>
#include <system_error>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

fs::path shippedData(const fs::path& programFolder) {
  std::error_code error;
  for (const char* place : {"../share/zppipemanager/data", "../data"})
    if (const auto folder = programFolder / place; fs::is_directory(folder, error))
      return fs::weakly_canonical(folder, error);
  return {};
}

fs::path userDataHome() {
  if (const char* home = std::getenv("XDG_DATA_HOME"); home && *home == '/') return home;
  if (const char* home = std::getenv("HOME"); home && *home) return fs::path(home) / ".local" / "share";
  return {};
}

// Copies under another name first, so that a copy that was cut off is never taken for a whole one.
bool copyWhole(const fs::path& from, const fs::path& to) {
  std::error_code error;
  const fs::path part = to.string() + ".part-" + std::to_string(getpid());
  fs::create_directories(to.parent_path(), error);
  if (!error) fs::copy(from, part, fs::copy_options::recursive, error);
  if (!error) fs::rename(part, to, error);
  const bool copied = !error;
  fs::remove_all(part, error);
  return copied || fs::is_directory(to, error); // another run may have been faster
}

} // namespace

DataFolder FindDataFolder(const std::optional<std::string>& asked, const fs::path& programFolder) {
  std::error_code error;
  if (asked) {
    if (fs::is_directory(*asked, error)) return {fs::absolute(*asked, error).lexically_normal(), {}};
    return {{}, "数据文件夹“" + *asked + "”不存在或不是文件夹。"};
  }
  const fs::path home = userDataHome();
  const fs::path own = home.empty() ? home : home / "zppipemanager";
  if (!own.empty() && fs::is_directory(own, error)) return {own, {}};
  const fs::path shipped = shippedData(programFolder);
  if (shipped.empty()) {
    if (!own.empty()) fs::create_directories(own, error);
    return {own, "程序旁边没有随附的数据文件夹，从空的数据开始。"};
  }
  if (!own.empty() && copyWhole(shipped, own)) return {own, {}};
  return {shipped, "不能在用户数据文件夹中建立数据副本，直接使用随附的数据。"};
}
