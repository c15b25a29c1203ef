// The folders of the installation.
#include <gtest/gtest.h>

#include "host/afx/Paths.h"
#include "plugin/base/Folders.h"

namespace {

class Folders : public testing::Test {
 protected:
  void SetUp() override { m_before = afx::InstallRoot(); }
  void TearDown() override { afx::SetInstallRoot(m_before); }

 private:
  CString m_before;
};

TEST_F(Folders, TheSystemPathIsTheInstallationRootWithASeparator) {
  afx::SetInstallRoot(L"/opt/安装");
  EXPECT_EQ(ZP::GetSystemPath(), L"/opt/安装/");
}

TEST_F(Folders, TheDataPathAndTheSystemPathWithDataAppendedAreOnePlace) {
  afx::SetInstallRoot(L"/opt/zp");
  EXPECT_EQ(afx::NativePath(ZP::GetDataPath() + L"LayerManager\\"),
            afx::NativePath(ZP::GetSystemPath() + L"Data\\LayerManager\\"));
}

TEST_F(Folders, EveryFolderEndsInASeparator) {
  afx::SetInstallRoot(L"/opt/zp");
  for (const CString& folder :
       {ZP::GetSystemPath(), ZP::GetDataPath(), ZP::GetDataBmpPath(), ZP::GetFCUDwgFilesPath()}) {
    EXPECT_EQ(folder.GetAt(folder.GetLength() - 1), L'/') << folder.ToUtf8();
  }
}

TEST_F(Folders, WithoutAnInstallationTheyLieUnderTheCurrentFolder) {
  afx::SetInstallRoot(L"");
  EXPECT_EQ(ZP::GetDataPath(), L"./Data/");
}

} // namespace
