// An open file of the operating system, closed at the end of its scope.
#pragma once

#include <cerrno>
#include <string_view>
#include <utility>

#include <unistd.h>

namespace afx {

class FileDescriptor {
 public:
  explicit FileDescriptor(int descriptor = -1) : m_descriptor(descriptor) {}
  FileDescriptor(FileDescriptor&& other) noexcept : m_descriptor(std::exchange(other.m_descriptor, -1)) {}
  FileDescriptor& operator=(FileDescriptor&& other) noexcept {
    std::swap(m_descriptor, other.m_descriptor);
    return *this;
  }
  ~FileDescriptor() { Close(); }

  int Get() const { return m_descriptor; }
  bool IsOpen() const { return m_descriptor >= 0; }
  // 0, or the errno of a write that the system had put off.
  int Close() {
    if (!IsOpen()) return 0;
    return ::close(std::exchange(m_descriptor, -1)) == 0 ? 0 : errno;
  }

 private:
  int m_descriptor;
};

// Writes all of it; 0 or the errno of the failure.
inline int WriteAll(int descriptor, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
    if (written >= 0)
      bytes.remove_prefix(static_cast<std::size_t>(written));
    else if (errno != EINTR)
      return errno;
  }
  return 0;
}

// Reads up to count bytes: their number, 0 at the end, -1 with errno on failure.
inline ssize_t ReadSome(int descriptor, char* buffer, std::size_t count) {
  ssize_t got = 0;
  do got = ::read(descriptor, buffer, count);
  while (got < 0 && errno == EINTR);
  return got;
}

} // namespace afx
