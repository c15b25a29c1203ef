#include "host/afx/Paths.h"

#include <gtest/gtest.h>

namespace {

using afx::NativePath;

class Paths : public testing::Test {
 protected:
  Paths() : m_before(afx::InstallRoot()) { afx::SetInstallRoot(L"/opt/暖通"); }
  ~Paths() override { afx::SetInstallRoot(m_before); }

 private:
  CString m_before;
};

TEST_F(Paths, BackslashesBecomeSlashes) {
  EXPECT_EQ(NativePath(L"Data\\LayerManager\\a.idp"), "Data/LayerManager/a.idp");
  EXPECT_EQ(NativePath(L"/opt/暖通/Data\\风机盘管\\x.dwg"), "/opt/暖通/Data/风机盘管/x.dwg");
  EXPECT_EQ(NativePath(L"\\rooted"), "/rooted");
}

TEST_F(Paths, DriveLettersAreFoldersOfTheInstallation) {
  EXPECT_EQ(NativePath(L"C:\\数据\\a.idp"), "/opt/暖通/drive_c/数据/a.idp");
  EXPECT_EQ(NativePath(L"d:/x/y"), "/opt/暖通/drive_d/x/y");
  EXPECT_EQ(NativePath(L"e:x"), "/opt/暖通/drive_e/x");
  EXPECT_EQ(NativePath(L"C:\\"), "/opt/暖通/drive_c/");
  EXPECT_EQ(NativePath(L"C:"), "/opt/暖通/drive_c/");
  EXPECT_EQ(NativePath(L"Z:\\\\x"), "/opt/暖通/drive_z/x");
}

TEST_F(Paths, NativePathsStay) {
  EXPECT_EQ(NativePath(L"/var/图纸/a b.dxf"), "/var/图纸/a b.dxf");
  EXPECT_EQ(NativePath(L"a.dxf"), "a.dxf");
  EXPECT_EQ(NativePath(L"./a:b"), "./a:b");
  EXPECT_EQ(NativePath(L"1:x"), "1:x");
  EXPECT_EQ(NativePath(L"风:x"), "风:x");
  EXPECT_EQ(NativePath(L""), "");
}

TEST_F(Paths, DotsStayAsWritten) {
  EXPECT_EQ(NativePath(L"C:\\a\\..\\b"), "/opt/暖通/drive_c/a/../b");
  EXPECT_EQ(NativePath(L"..\\x"), "../x");
}

TEST_F(Paths, CarriedBytesBecomeThemselves) {
  EXPECT_EQ(NativePath(L"/a\xDCE9"), "/a\xE9");
}

TEST_F(Paths, TheRootLosesItsClosingSeparator) {
  afx::SetInstallRoot(L"/opt/zp//");
  EXPECT_EQ(afx::InstallRoot(), L"/opt/zp");
  afx::SetInstallRoot(L"/");
  EXPECT_EQ(NativePath(L"C:\\x"), "/drive_c/x");
  afx::SetInstallRoot(L"");
  EXPECT_EQ(NativePath(L"C:\\x"), "drive_c/x");
}

} // namespace
