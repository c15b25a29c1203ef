// A disk of 16 KB that a child process of the test mounts over a folder. Only the child sees it, and it goes
// with the child.
#pragma once

#include <filesystem>
#include <fstream>

#include <sched.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

enum class TinyDiskResult { kPassed, kFailed, kNotAllowed };

// What the call, which is given nothing and says whether all was right, found out with the disk in place.
// kNotAllowed where the machine lets nobody mount.
template <typename Call> TinyDiskResult OnATinyDisk(const std::filesystem::path& folder, Call call) {
  std::filesystem::create_directories(folder);
  const pid_t child = ::fork();
  if (child < 0) return TinyDiskResult::kFailed;
  if (child == 0) {
    const bool mounted = ::unshare(CLONE_NEWNS) == 0 &&
                         ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
                         ::mount("tmpfs", folder.c_str(), "tmpfs", 0, "size=16k") == 0;
    ::_exit(!mounted ? 2 : call() ? 0 : 1);
  }
  int status = 0;
  if (::waitpid(child, &status, 0) != child || !WIFEXITED(status)) return TinyDiskResult::kFailed;
  switch (WEXITSTATUS(status)) {
  case 0:
    return TinyDiskResult::kPassed;
  case 2:
    return TinyDiskResult::kNotAllowed;
  default:
    return TinyDiskResult::kFailed;
  }
}

// Writes until nothing more fits.
inline void FillDisk(const std::filesystem::path& folder) {
  std::ofstream filler(folder / "filler", std::ios::binary);
  while (filler.put('x')) {
  }
}
