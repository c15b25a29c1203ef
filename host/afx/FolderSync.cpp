#include "host/afx/FolderSync.h"

#include <fcntl.h>

#include "host/afx/FileDescriptor.h"

namespace afx {

std::string FolderOf(const std::string& nativePath) {
  const std::size_t slash = nativePath.rfind('/');
  if (slash == std::string::npos) return ".";
  return slash == 0 ? "/" : nativePath.substr(0, slash);
}

void SyncFolder(const std::string& nativeFolder) {
  const FileDescriptor folder(::open(nativeFolder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (folder.IsOpen()) ::fsync(folder.Get());
}

} // namespace afx
