// Reading and writing whole files so that no failure, not even a power cut, leaves half a file or none.
// Paths may be in the callers' form (drive letters, backslashes) or native; see Paths.h.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "host/afx/FileResult.h"

namespace afx {

// Replaces or creates the file. The folder must exist. Until the new content is safely on the disk the old
// file stays, and on any failure it stays for good. Permissions of the old file are kept; a symbolic link is
// followed.
FileResult WriteFileAtomically(const CString& path, std::string_view bytes);

// The same for content that comes in pieces. Until Commit, and for good without it, the old file stays.
class AtomicFileWriter {
 public:
  explicit AtomicFileWriter(const CString& path);
  ~AtomicFileWriter();
  AtomicFileWriter(const AtomicFileWriter&) = delete;
  AtomicFileWriter& operator=(const AtomicFileWriter&) = delete;

  // False after a failure, of this piece or one before it; Commit tells which.
  bool Write(std::string_view bytes);
  // Puts the new file in the old one's place. Once.
  FileResult Commit();

 private:
  class TemporaryFile;

  void Open();
  void Fail(int errnoValue);

  CString m_path;
  std::string m_target; // native, behind symbolic links
  FileResult m_result;
  std::unique_ptr<TemporaryFile> m_temporary;
};

constexpr std::uint64_t kDefaultReadLimit = 1024ull * 1024 * 1024;

// Reads all of a regular file. Fails, with an empty out, for a missing or unreadable one, for a folder, and
// for more than limit bytes.
FileResult ReadWholeFile(const CString& path, std::string& out, std::uint64_t limit = kDefaultReadLimit);

// Copies a file that is about to be replaced to PATH.rescued-1, or the first free number, and says so in the
// message log. Returns the copy's path in the form of the argument; empty, with the reason in the log, when
// no copy could be made: the caller must then leave the file alone.
CString RescueFile(const CString& path);

} // namespace afx
