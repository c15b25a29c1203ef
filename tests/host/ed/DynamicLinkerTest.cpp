#include "ZpPaths.h"
#include "host/ed/AcRxDynamicLinker.h"
#include "tests/support/EditorFixture.h"

namespace {

class DynamicLinker : public EditorFixture {
 protected:
  ~DynamicLinker() override { acrxDynamicLinker->unloadAll(); }
  static CString sample(const char* name) {
    return CString::FromUtf8(std::string(ZP_BINARY_DIR "/tests/sampleplugins/") + name + ".so");
  }
  static CString reason(const CString& file) {
    EXPECT_FALSE(acrxDynamicLinker->loadModule(file));
    EXPECT_GE(acrxDynamicLinker->lastError().Find(file), 0) << acrxDynamicLinker->lastError().ToUtf8();
    return acrxDynamicLinker->lastError();
  }
};

} // namespace

TEST_F(DynamicLinker, LoadsAPlugInAndTakesItOutAgain) {
  const auto good = sample("good");
  ASSERT_TRUE(acrxDynamicLinker->loadModule(good)) << acrxDynamicLinker->lastError().ToUtf8();
  EXPECT_TRUE(acrxDynamicLinker->loadModule(good)) << "loaded already";
  EXPECT_EQ(1u, acrxDynamicLinker->loadedModules().size());
  EXPECT_FALSE(acrxDynamicLinker->isApplicationLocked(good));
  run(L"samplehello");
  EXPECT_TRUE(frontEnd.said(L"hello from the sample"));
  EXPECT_TRUE(acrxDynamicLinker->unloadModule(good));
  EXPECT_FALSE(acrxDynamicLinker->isModuleLoaded(good));
  EXPECT_FALSE(acedRegCmds->hasGroup(L"SAMPLE"));
}

TEST_F(DynamicLinker, SaysWhyAFileIsNoPlugIn) {
  EXPECT_GE(reason(L"no-such-file.so").Find(L"没有这个文件"), 0);
  EXPECT_GE(reason(CString::FromUtf8(ZP_SOURCE_DIR)).Find(L"文件夹"), 0);
  EXPECT_GE(reason(CString::FromUtf8(ZP_SOURCE_DIR "/CMakeLists.txt")).Find(L"不是本机的共享库"), 0);
  EXPECT_GE(reason(sample("no_entry")).Find(L"acrxEntryPoint"), 0);
  EXPECT_GE(reason(sample("no_version")).Find(L"acrxGetApiVersion"), 0);
  EXPECT_GE(reason(sample("wrong_generation")).Find(L"0x110000"), 0);
  EXPECT_GE(reason(sample("refusing")).Find(L"拒绝了初始化"), 0);
  EXPECT_GE(reason(sample("throwing")).Find(L"sample fails"), 0);
  EXPECT_TRUE(acrxDynamicLinker->loadedModules().empty());
}

TEST_F(DynamicLinker, ALockedPlugInStays) {
  ASSERT_TRUE(acrxDynamicLinker->loadModule(sample("locked")));
  EXPECT_FALSE(acrxDynamicLinker->unloadModule(sample("locked")));
  EXPECT_GE(acrxDynamicLinker->lastError().Find(L"不允许卸载"), 0);
  EXPECT_NE(nullptr, acedRegCmds->lookupCmd(L"SAMPLEHELLO"));
}

TEST_F(DynamicLinker, CommandsThatAPlugInForgetsAreGoneWithIt) {
  ASSERT_TRUE(acrxDynamicLinker->loadModule(sample("forgetful")));
  ASSERT_NE(nullptr, acedRegCmds->lookupCmd(L"SAMPLEHELLO"));
  EXPECT_TRUE(acrxDynamicLinker->unloadModule(sample("forgetful")));
  EXPECT_EQ(nullptr, acedRegCmds->lookupCmd(L"SAMPLEHELLO"));
}

TEST_F(DynamicLinker, APlugInDoesNotGoWhileItsCommandRuns) {
  ASSERT_TRUE(acrxDynamicLinker->loadModule(sample("good")));
  run(L"SAMPLEUNLOAD");
  EXPECT_TRUE(frontEnd.said(L"still here"));
  EXPECT_TRUE(acrxDynamicLinker->isModuleLoaded(sample("good")));
}

TEST_F(DynamicLinker, ForeignPacketsAreRefused) {
  int packet = 0;
  EXPECT_FALSE(acrxDynamicLinker->unlockApplication(&packet));
  EXPECT_FALSE(acrxDynamicLinker->registerAppMDIAware(nullptr));
}
