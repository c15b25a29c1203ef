// Saving where there is no room: the old file stays, nothing else is left, and the user is told why.
#include "tests/host/dxf/DrawingFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

#include <sys/mount.h>
#include <sys/resource.h>

namespace {

namespace fs = std::filesystem;

class Folder {
 public:
  Folder() : m_pattern((fs::temp_directory_path() / "zp-full-XXXXXX").string()) {
    m_path = ::mkdtemp(m_pattern.data());
  }
  ~Folder() {
    if (m_mounted) ::umount(m_path.c_str());
    std::error_code ignored;
    fs::remove_all(m_path, ignored);
  }
  // A file system of so many kilobytes in its place, where the test may do so.
  bool mountSmall(int kilobytes) {
    const std::string options = "size=" + std::to_string(kilobytes) + "k";
    m_mounted = ::mount("zp-test", m_path.c_str(), "tmpfs", 0, options.c_str()) == 0;
    return m_mounted;
  }
  std::string file(const char* name) const { return (m_path / name).string(); }
  std::size_t count() const {
    return static_cast<std::size_t>(std::distance(fs::directory_iterator(m_path), fs::directory_iterator()));
  }

 private:
  std::string m_pattern;
  fs::path m_path;
  bool m_mounted = false;
};

std::string contentOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

void expectOldFileStays(const Folder& folder) {
  const std::string path = folder.file("plan.dxf");
  std::ofstream(path, std::ios::binary) << "the old file";
  const Opened opened = Open(SampleBytes("many_lines"));
  const dxf::WriteReport report = dxf::WriteDrawing(*opened.database, CString::FromUtf8(path));
  EXPECT_FALSE(report.ok);
  EXPECT_THAT(report.error.ToUtf8(), testing::HasSubstr(path));
  EXPECT_EQ(contentOf(path), "the old file");
  EXPECT_EQ(folder.count(), 1u);
}

TEST(FullDisk, LeavesTheOldFile) {
  Folder folder;
  if (!folder.mountSmall(512)) GTEST_SKIP() << "may not mount a file system";
  expectOldFileStays(folder);
}

// A limit of the process is met in the same place, and needs no rights.
TEST(FullDisk, AsALimitOfTheProcessLeavesTheOldFile) {
  const Folder folder;
  rlimit before{};
  ::getrlimit(RLIMIT_FSIZE, &before);
  auto* const handler = std::signal(SIGXFSZ, SIG_IGN);
  const rlimit small{512 * 1024, before.rlim_max};
  ::setrlimit(RLIMIT_FSIZE, &small);
  expectOldFileStays(folder);
  ::setrlimit(RLIMIT_FSIZE, &before);
  std::signal(SIGXFSZ, handler);
}

} // namespace
