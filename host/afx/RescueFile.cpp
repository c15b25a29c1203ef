// Copying a damaged or foreign file aside before something replaces it.
#include <cerrno>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>

#include "host/afx/AtomicFile.h"
#include "host/afx/FileDescriptor.h"
#include "host/afx/FileErrors.h"
#include "host/afx/FolderSync.h"
#include "host/afx/MessageLog.h"
#include "host/afx/Paths.h"

namespace afx {
namespace {

// 0 or an errno.
int CopyAll(int from, int to) {
  std::vector<char> buffer(1 << 16);
  for (;;) {
    const ssize_t got = ReadSome(from, buffer.data(), buffer.size());
    if (got < 0) return errno;
    if (got == 0) return ::fsync(to) == 0 ? 0 : errno;
    if (const int error = WriteAll(to, {buffer.data(), static_cast<std::size_t>(got)})) return error;
  }
}

CString Refused(const CString& path, const CString& reason) {
  LogError(FileFailure(L"备份", path, reason).message);
  return CString();
}

} // namespace

CString RescueFile(const CString& path) {
  const std::string source = NativePath(path);
  const FileDescriptor from(::open(source.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  struct stat status {};
  if (!from.IsOpen() || ::fstat(from.Get(), &status) != 0) return Refused(path, ErrorReason(errno));
  if (!S_ISREG(status.st_mode)) return Refused(path, L"不是普通文件");

  for (int number = 1;; ++number) {
    CString suffix;
    suffix.Format(L".rescued-%d", number);
    const std::string copy = source + suffix.ToUtf8();
    FileDescriptor to(::open(copy.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, status.st_mode & 0777));
    if (!to.IsOpen()) {
      if (errno == EEXIST) continue;
      return Refused(path, ErrorReason(errno));
    }
    int error = CopyAll(from.Get(), to.Get());
    if (error == 0) error = to.Close();
    if (error != 0) {
      ::unlink(copy.c_str());
      return Refused(path, ErrorReason(error));
    }
    SyncFolder(FolderOf(copy));
    CString message;
    message.Format(L"文件“%s”已备份为“%s”", path, path + suffix);
    LogMessage(message);
    return path + suffix;
  }
}

} // namespace afx
