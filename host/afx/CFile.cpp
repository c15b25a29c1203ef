#include "host/afx/CFile.h"

#include <cerrno>
#include <string>

#include <fcntl.h>
#include <stdio.h>
#include <sys/stat.h>
#include <unistd.h>

#include "host/afx/CFileException.h"
#include "host/afx/FileErrors.h"
#include "host/afx/FolderSync.h"
#include "host/afx/Paths.h"

namespace {

// Each gives 0 or an errno.
int Exists(const std::string& path) {
  struct stat status {};
  return ::lstat(path.c_str(), &status) == 0 ? 0 : errno;
}

// For file systems that can't refuse to replace: a second name first, which they do refuse.
int RenameByLink(const std::string& from, const std::string& to) {
  if (::link(from.c_str(), to.c_str()) != 0) return errno;
  return ::unlink(from.c_str()) == 0 ? 0 : errno;
}

int RenameToFreeName(const std::string& from, const std::string& to) {
  if (from == to) return Exists(from);
  if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) return 0;
  const int refused = errno;
  return refused == EINVAL || refused == ENOSYS ? RenameByLink(from, to) : refused;
}

} // namespace

void CFile::Rename(const CString& oldName, const CString& newName) {
  const std::string from = afx::NativePath(oldName);
  const std::string to = afx::NativePath(newName);
  // The system would read no further than a zero, and thus mean another file.
  const bool cut = (from + to).find('\0') != std::string::npos;
  if (const int error = cut ? EINVAL : RenameToFreeName(from, to)) {
    CString message;
    message.Format(L"无法把文件“%s”改名为“%s”：%s", oldName, newName, afx::ErrorReason(error));
    throw CFileException(message);
  }
  afx::SyncFolder(afx::FolderOf(from));
  if (afx::FolderOf(to) != afx::FolderOf(from)) afx::SyncFolder(afx::FolderOf(to));
}
