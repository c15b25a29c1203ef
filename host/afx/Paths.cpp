#include "host/afx/Paths.h"

#include <algorithm>
#include <mutex>

namespace afx {
namespace {

std::mutex g_mutex;
CString g_installRoot;

// The letter of a drive in small, or 0.
char DriveOf(std::string_view path) {
  if (path.size() < 2 || path[1] != ':') return 0;
  const char letter = path[0];
  if (letter >= 'a' && letter <= 'z') return letter;
  return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : '\0';
}

} // namespace

void SetInstallRoot(const CString& native) {
  const std::lock_guard lock(g_mutex);
  g_installRoot = native;
  while (g_installRoot.GetLength() > 1 && g_installRoot[g_installRoot.GetLength() - 1] == L'/')
    g_installRoot.Delete(g_installRoot.GetLength() - 1);
}

CString InstallRoot() {
  const std::lock_guard lock(g_mutex);
  return g_installRoot;
}

std::string NativePath(const CString& path) {
  std::string native = path.ToUtf8();
  std::replace(native.begin(), native.end(), '\\', '/');
  const char drive = DriveOf(native);
  if (drive == 0) return native;

  std::string root = InstallRoot().ToUtf8();
  if (!root.empty() && root.back() != '/') root += '/';
  // "c:x" has no separator of its own.
  const std::size_t rest = native.find_first_not_of('/', 2);
  return root + "drive_" + drive + "/" + (rest == std::string::npos ? std::string() : native.substr(rest));
}

} // namespace afx
