#include "host/afx/AtomicFile.h"

#include <csignal>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include "host/afx/Paths.h"
#include "tests/host/afx/TemporaryFolder.h"
#include "tests/support/OrdinaryUser.h"

namespace {

using afx::ReadWholeFile;
using afx::WriteFileAtomically;
using testing::ElementsAre;
using testing::HasSubstr;

mode_t ModeOf(const std::filesystem::path& path) {
  struct stat status {};
  return ::stat(path.c_str(), &status) == 0 ? status.st_mode & 07777 : 0;
}

// While it lives no file of this process grows beyond so many bytes: as good as a full disk, even for root.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t bytes) : m_handler(std::signal(SIGXFSZ, SIG_IGN)) {
    ::getrlimit(RLIMIT_FSIZE, &m_before);
    const rlimit now{bytes, m_before.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &now);
  }
  ~FileSizeLimit() {
    ::setrlimit(RLIMIT_FSIZE, &m_before);
    std::signal(SIGXFSZ, m_handler);
  }

 private:
  rlimit m_before{};
  void (*m_handler)(int);
};

TEST(WriteFileAtomically, CreatesTheFileAndLeavesNothingElse) {
  const TemporaryFolder folder;
  const std::string bytes("a\0\xFF风", 6);
  const afx::FileResult result = WriteFileAtomically(folder / "材料.idp", bytes);
  EXPECT_TRUE(result.ok);
  EXPECT_TRUE(result.message.IsEmpty());
  EXPECT_EQ(folder.Get("材料.idp"), bytes);
  EXPECT_THAT(folder.Names(), ElementsAre("材料.idp"));
}

TEST(WriteFileAtomically, ReplacesTheOldFileWhole) {
  const TemporaryFolder folder;
  folder.Put("a", "a long old content");
  EXPECT_TRUE(WriteFileAtomically(folder / "a", "new").ok);
  EXPECT_EQ(folder.Get("a"), "new");
  EXPECT_TRUE(WriteFileAtomically(folder / "a", "").ok);
  EXPECT_EQ(folder.Get("a"), "");
  EXPECT_THAT(folder.Names(), ElementsAre("a"));
}

TEST(WriteFileAtomically, ANewFileHasTheUsualPermissions) {
  const TemporaryFolder folder;
  const mode_t before = ::umask(027);
  WriteFileAtomically(folder / "a", "x");
  ::umask(before);
  EXPECT_EQ(ModeOf(folder.Path() / "a"), 0640u);
}

TEST(WriteFileAtomically, KeepsThePermissionsOfTheOldFile) {
  const TemporaryFolder folder;
  folder.Put("a", "old");
  ::chmod((folder.Path() / "a").c_str(), 0604);
  EXPECT_TRUE(WriteFileAtomically(folder / "a", "new").ok);
  EXPECT_EQ(ModeOf(folder.Path() / "a"), 0604u);
}

TEST(WriteFileAtomically, FollowsASymbolicLink) {
  const TemporaryFolder folder;
  std::filesystem::create_directory(folder.Path() / "real");
  folder.Put("real/a", "old");
  std::filesystem::create_symlink("real/a", folder.Path() / "link");
  std::filesystem::create_symlink("link", folder.Path() / "link2");
  EXPECT_TRUE(WriteFileAtomically(folder / "link2", "new").ok);
  EXPECT_EQ(folder.Get("real/a"), "new");
  EXPECT_TRUE(std::filesystem::is_symlink(folder.Path() / "link"));
  EXPECT_TRUE(std::filesystem::is_symlink(folder.Path() / "link2"));
}

TEST(WriteFileAtomically, CreatesTheTargetOfALinkThatLeadsNowhereYet) {
  const TemporaryFolder folder;
  std::filesystem::create_symlink(folder.Path() / "later", folder.Path() / "link");
  EXPECT_TRUE(WriteFileAtomically(folder / "link", "new").ok);
  EXPECT_EQ(folder.Get("later"), "new");
}

TEST(WriteFileAtomically, ALoopOfLinksIsRefused) {
  const TemporaryFolder folder;
  std::filesystem::create_symlink("b", folder.Path() / "a");
  std::filesystem::create_symlink("a", folder.Path() / "b");
  const afx::FileResult result = WriteFileAtomically(folder / "a", "x");
  EXPECT_FALSE(result.ok);
  EXPECT_THAT(result.message.ToUtf8(), HasSubstr("符号链接循环"));
}

TEST(WriteFileAtomically, AMissingFolderIsNamedWithTheReason) {
  const TemporaryFolder folder;
  const afx::FileResult result = WriteFileAtomically(folder / "none/a.idp", "x");
  EXPECT_FALSE(result.ok);
  EXPECT_THAT(result.message.ToUtf8(), HasSubstr("none/a.idp"));
  EXPECT_THAT(result.message.ToUtf8(), HasSubstr("文件或文件夹不存在"));
  EXPECT_THAT(result.message.ToUtf8(), HasSubstr("No such file or directory"));
}

TEST(WriteFileAtomically, AParentThatIsAFileIsRefused) {
  const TemporaryFolder folder;
  folder.Put("file", "old");
  EXPECT_FALSE(WriteFileAtomically(folder / "file/a", "x").ok);
  EXPECT_EQ(folder.Get("file"), "old");
}

TEST(WriteFileAtomically, AFolderOrDeviceIsNotReplaced) {
  const TemporaryFolder folder;
  std::filesystem::create_directory(folder.Path() / "sub");
  EXPECT_FALSE(WriteFileAtomically(folder / "sub", "x").ok);
  EXPECT_FALSE(WriteFileAtomically(folder / "sub/", "x").ok);
  EXPECT_THAT(folder.Names(), ElementsAre("sub"));
  const afx::FileResult result = WriteFileAtomically(L"/dev/full", "x");
  EXPECT_FALSE(result.ok);
  EXPECT_THAT(result.message.ToUtf8(), HasSubstr("不是普通文件"));
}

TEST(WriteFileAtomically, AnEmptyPathIsRefused) {
  EXPECT_FALSE(WriteFileAtomically(L"", "x").ok);
}

TEST(WriteFileAtomically, AFullDiskLeavesTheOldFileAndNoRest) {
  const TemporaryFolder folder;
  folder.Put("a", "old");
  afx::FileResult result;
  {
    const FileSizeLimit limit(4096);
    result = WriteFileAtomically(folder / "a", std::string(100000, 'x'));
  }
  EXPECT_FALSE(result.ok);
  EXPECT_THAT(result.message.ToUtf8(), HasSubstr("文件过大"));
  EXPECT_EQ(folder.Get("a"), "old");
  EXPECT_THAT(folder.Names(), ElementsAre("a"));
}

TEST(WriteFileAtomically, AReadOnlyFileStaysAsItIs) {
  const TemporaryFolder folder;
  folder.Put("a", "old");
  ::chmod((folder.Path() / "a").c_str(), 0444);
  ::chmod(folder.Path().c_str(), 0777);
  const OrdinaryUser user;
  if (!user.IsOne()) GTEST_SKIP() << "permissions do not hold root back";
  const afx::FileResult result = WriteFileAtomically(folder / "a", "new");
  EXPECT_FALSE(result.ok);
  EXPECT_THAT(result.message.ToUtf8(), HasSubstr("没有访问权限"));
  EXPECT_EQ(folder.Get("a"), "old");
  EXPECT_TRUE(WriteFileAtomically(folder / "b", "new").ok);
}

TEST(WriteFileAtomically, AReadOnlyFolderIsNamedWithTheReason) {
  const TemporaryFolder folder;
  folder.Put("a", "old");
  ::chmod((folder.Path() / "a").c_str(), 0666);
  ::chmod(folder.Path().c_str(), 0555);
  {
    const OrdinaryUser user;
    if (!user.IsOne()) GTEST_SKIP() << "permissions do not hold root back";
    const afx::FileResult result = WriteFileAtomically(folder / "a", "new");
    EXPECT_FALSE(result.ok);
    EXPECT_THAT(result.message.ToUtf8(), HasSubstr("没有访问权限"));
    EXPECT_EQ(folder.Get("a"), "old");
  }
  ::chmod(folder.Path().c_str(), 0755);
}

TEST(WriteFileAtomically, ANameOfTheGreatestLengthCanBeWritten) {
  const TemporaryFolder folder;
  EXPECT_TRUE(WriteFileAtomically(folder / std::string(255, 'n'), "x").ok);
  EXPECT_TRUE(WriteFileAtomically(folder / std::string(255, 'n'), "y").ok);
  const afx::FileResult result = WriteFileAtomically(folder / std::string(256, 'n'), "x");
  EXPECT_THAT(result.message.ToUtf8(), HasSubstr("文件名过长"));
}

TEST(WriteFileAtomically, PathsWithDriveLettersFallUnderTheInstallation) {
  const TemporaryFolder folder;
  std::filesystem::create_directories(folder.Path() / "drive_c/数据");
  const CString before = afx::InstallRoot();
  afx::SetInstallRoot(folder / "");
  EXPECT_TRUE(WriteFileAtomically(L"C:\\数据\\a.idp", "x").ok);
  std::string out;
  EXPECT_TRUE(ReadWholeFile(L"c:/数据\\a.idp", out).ok);
  afx::SetInstallRoot(before);
  EXPECT_EQ(out, "x");
  EXPECT_EQ(folder.Get("drive_c/数据/a.idp"), "x");
}

TEST(ReadWholeFile, ReadsAllBytes) {
  const TemporaryFolder folder;
  for (const std::size_t size : {std::size_t{0}, std::size_t{1}, std::size_t{4095}, std::size_t{4096},
                                 std::size_t{4097}, std::size_t{3000000}}) {
    std::string bytes(size, '\0');
    for (std::size_t i = 0; i < size; ++i) bytes[i] = static_cast<char>(i * 7);
    folder.Put("a", bytes);
    std::string out = "before";
    EXPECT_TRUE(ReadWholeFile(folder / "a", out).ok);
    EXPECT_EQ(out, bytes);
  }
}

TEST(ReadWholeFile, ReadsFilesThatStateNoSize) {
  std::string out;
  EXPECT_TRUE(ReadWholeFile(L"/proc/self/status", out).ok);
  EXPECT_THAT(out, HasSubstr("Pid:"));
}

TEST(ReadWholeFile, MoreThanTheLimitIsRefusedAndExactlyTheLimitIsNot) {
  const TemporaryFolder folder;
  folder.Put("a", "12345");
  std::string out;
  EXPECT_TRUE(ReadWholeFile(folder / "a", out, 5).ok);
  const afx::FileResult result = ReadWholeFile(folder / "a", out, 4);
  EXPECT_FALSE(result.ok);
  EXPECT_TRUE(out.empty());
  EXPECT_THAT(result.message.ToUtf8(), HasSubstr("4 字节"));
  EXPECT_FALSE(ReadWholeFile(L"/proc/self/status", out, 10).ok);
  EXPECT_TRUE(out.empty());
}

TEST(ReadWholeFile, WhatIsNoReadableFileGivesAReasonAndNoBytes) {
  const TemporaryFolder folder;
  ::mkfifo((folder.Path() / "pipe").c_str(), 0600);
  folder.Put("file", "x");
  for (const auto& [name, reason] :
       std::vector<std::pair<std::string, std::string>>{{"missing", "文件或文件夹不存在"},
                                                        {"", "这是一个文件夹"},
                                                        {"pipe", "不是普通文件"},
                                                        {"file/a", "路径中有不是文件夹的部分"}}) {
    std::string out = "before";
    const afx::FileResult result = ReadWholeFile(folder / name, out);
    EXPECT_FALSE(result.ok) << name;
    EXPECT_TRUE(out.empty()) << name;
    EXPECT_THAT(result.message.ToUtf8(), HasSubstr("无法读取文件"));
    EXPECT_THAT(result.message.ToUtf8(), HasSubstr(reason));
  }
}

TEST(AtomicFileWriter, TakesItsContentInPieces) {
  const TemporaryFolder folder;
  folder.Put("a", "old");
  afx::AtomicFileWriter file(folder / "a");
  EXPECT_TRUE(file.Write("one "));
  EXPECT_EQ(folder.Get("a"), "old");
  EXPECT_TRUE(file.Write("two"));
  EXPECT_TRUE(file.Commit().ok);
  EXPECT_EQ(folder.Get("a"), "one two");
  EXPECT_THAT(folder.Names(), ElementsAre("a"));
}

TEST(AtomicFileWriter, WithoutCommitLeavesTheOldFileAndNothingElse) {
  const TemporaryFolder folder;
  folder.Put("a", "old");
  {
    afx::AtomicFileWriter file(folder / "a");
    EXPECT_TRUE(file.Write("new"));
  }
  EXPECT_EQ(folder.Get("a"), "old");
  EXPECT_THAT(folder.Names(), ElementsAre("a"));
}

TEST(AtomicFileWriter, AfterAFailureTakesNothingMore) {
  const TemporaryFolder folder;
  folder.Put("a", "old");
  const FileSizeLimit limit(1000);
  afx::AtomicFileWriter file(folder / "a");
  EXPECT_TRUE(file.Write("begin"));
  EXPECT_FALSE(file.Write(std::string(2000, 'x')));
  EXPECT_FALSE(file.Write("end"));
  const afx::FileResult result = file.Commit();
  EXPECT_FALSE(result.ok);
  EXPECT_THAT(result.message.ToUtf8(), HasSubstr("无法写入文件"));
  EXPECT_EQ(folder.Get("a"), "old");
}

} // namespace
