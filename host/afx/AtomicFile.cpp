#include "host/afx/AtomicFile.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <filesystem>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>

#include "host/afx/FileDescriptor.h"
#include "host/afx/FileErrors.h"
#include "host/afx/FolderSync.h"
#include "host/afx/Paths.h"

namespace afx {
namespace {

constexpr const wchar_t* kWriting = L"写入";
constexpr const wchar_t* kReading = L"读取";

// The path behind any chain of symbolic links, whether or not its last file exists. 0 or an errno.
int FollowLinks(std::string& path) {
  for (int hop = 0; hop < 40; ++hop) {
    std::error_code error;
    if (!std::filesystem::is_symlink(std::filesystem::symlink_status(path, error))) return 0;
    const std::filesystem::path target = std::filesystem::read_symlink(path, error);
    if (error) return error.value();
    // An absolute target replaces the folder.
    path = (std::filesystem::path(path).parent_path() / target).string();
  }
  return ELOOP;
}

} // namespace

// A new file beside the target, removed again unless it was renamed over it. Its name is short whatever the
// target's, so that a target of the longest allowed name can be written too.
class AtomicFileWriter::TemporaryFile {
 public:
  explicit TemporaryFile(const std::string& folder) {
    static std::atomic<unsigned> counter{0};
    do {
      m_path = folder + "/.saving-" + std::to_string(::getpid()) + "-" + std::to_string(++counter) + ".tmp";
      m_file = FileDescriptor(::open(m_path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
    } while (!m_file.IsOpen() && errno == EEXIST);
    m_error = m_file.IsOpen() ? 0 : errno;
    m_exists = m_file.IsOpen();
  }
  ~TemporaryFile() {
    if (m_exists) ::unlink(m_path.c_str());
  }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  int Error() const { return m_error; } // of its creation

  // Each gives 0 or an errno.

  int TakeOwnerAndPermissions(const struct stat& old) {
    // Only root may give a file away; for anybody else the owner is his own already or cannot be kept.
    [[maybe_unused]] const int kept = ::fchown(m_file.Get(), old.st_uid, old.st_gid);
    return ::fchmod(m_file.Get(), old.st_mode & 07777) == 0 ? 0 : errno;
  }
  int Write(std::string_view bytes) { return WriteAll(m_file.Get(), bytes); }
  // Puts everything onto the disk.
  int Finish() { return ::fsync(m_file.Get()) == 0 ? m_file.Close() : errno; }
  int RenameOver(const std::string& target) {
    if (::rename(m_path.c_str(), target.c_str()) != 0) return errno;
    m_exists = false;
    return 0;
  }

 private:
  std::string m_path;
  FileDescriptor m_file;
  int m_error = 0;
  bool m_exists = false;
};

AtomicFileWriter::AtomicFileWriter(const CString& path) : m_path(path), m_target(NativePath(path)) {
  Open();
}

AtomicFileWriter::~AtomicFileWriter() = default;

void AtomicFileWriter::Fail(int errnoValue) {
  m_result = FileFailure(kWriting, m_path, errnoValue);
}

void AtomicFileWriter::Open() {
  if (const int error = FollowLinks(m_target)) return Fail(error);

  struct stat old {};
  const bool exists = ::stat(m_target.c_str(), &old) == 0;
  if (!exists && errno != ENOENT) return Fail(errno);
  if (exists && S_ISDIR(old.st_mode)) return Fail(EISDIR);
  if (exists && !S_ISREG(old.st_mode)) {
    m_result = FileFailure(kWriting, m_path, L"不是普通文件");
    return;
  }
  // A rename needs no right to the old file; one that is marked read-only is to stay nevertheless.
  if (exists && ::faccessat(AT_FDCWD, m_target.c_str(), W_OK, AT_EACCESS) != 0) return Fail(errno);

  m_temporary = std::make_unique<TemporaryFile>(FolderOf(m_target));
  if (m_temporary->Error()) return Fail(m_temporary->Error());
  if (!exists) return;
  if (const int error = m_temporary->TakeOwnerAndPermissions(old)) Fail(error);
}

bool AtomicFileWriter::Write(std::string_view bytes) {
  if (!m_result.ok) return false;
  if (const int error = m_temporary->Write(bytes)) Fail(error);
  return m_result.ok;
}

FileResult AtomicFileWriter::Commit() {
  if (!m_result.ok) return m_result;
  int error = m_temporary->Finish();
  if (!error) error = m_temporary->RenameOver(m_target);
  if (error)
    Fail(error);
  else
    SyncFolder(FolderOf(m_target));
  return m_result;
}

FileResult WriteFileAtomically(const CString& path, std::string_view bytes) {
  AtomicFileWriter file(path);
  file.Write(bytes);
  return file.Commit();
}

FileResult ReadWholeFile(const CString& path, std::string& out, std::uint64_t limit) {
  out.clear();
  const auto tooLarge = [&] {
    out.clear();
    CString reason;
    reason.Format(L"文件超过 %u 字节的上限", limit);
    return FileFailure(kReading, path, reason);
  };
  // Not blocking: a named pipe without a writer would hold the program for ever.
  const FileDescriptor file(::open(NativePath(path).c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  struct stat status {};
  if (!file.IsOpen() || ::fstat(file.Get(), &status) != 0) return FileFailure(kReading, path, errno);
  if (S_ISDIR(status.st_mode)) return FileFailure(kReading, path, EISDIR);
  if (!S_ISREG(status.st_mode)) return FileFailure(kReading, path, L"不是普通文件");
  const auto expected = static_cast<std::uint64_t>(status.st_size);
  if (expected > limit) return tooLarge();

  // The stated size may be wrong (0 for files that the system makes up), so the end is where nothing more
  // comes.
  std::size_t size = 0;
  out.resize(std::max<std::size_t>(expected + 1, 4096));
  for (;;) {
    if (size == out.size()) out.resize(size * 2);
    const ssize_t got = ReadSome(file.Get(), out.data() + size, out.size() - size);
    if (got < 0) {
      const int error = errno;
      out.clear();
      return FileFailure(kReading, path, error);
    }
    if (got == 0) break;
    size += static_cast<std::size_t>(got);
    if (size > limit) return tooLarge();
  }
  out.resize(size);
  return {};
}

} // namespace afx
