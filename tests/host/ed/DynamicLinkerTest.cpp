#include "ZpPaths.h"
#include "host/db/AcDbUnknownEntity.h"
#include "host/dxf/DrawingFile.h"
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

// --- entity classes of plug-ins ---

namespace {

class MarkClass : public DynamicLinker {
 protected:
  // A drawing with a mark that nobody understands yet.
  void SetUp() override {
    const std::string tags =
        "0\nSECTION\n2\nENTITIES\n0\nSAMPLEMARK\n5\nA1\n100\nAcDbEntity\n8\n0\n100\nSampleMark\n"
        "10\n5.0\n20\n6.0\n30\n0.0\n40\n2.0\n1\n水泵\n90\n77\n0\nENDSEC\n0\nEOF\n";
    auto read = std::make_unique<AcDbDatabase>(false);
    ASSERT_TRUE(dxf::ReadDrawingBytes(tags, L"marks.dxf", *read).ok);
    m_drawing = std::move(read);
    ASSERT_EQ(Acad::eOk, m_drawing->getAcDbObjectId(m_mark, false, AcDbHandle(0xA1)));
  }
  bool isUnderstood() const { return !AcDbUnknownEntity::cast(m_mark.object()); }
  AcDbEntity& mark() const { return *AcDbEntity::cast(m_mark.object()); }
  std::string saved() const { return dxf::WriteDrawingBytes(*m_drawing); }

  std::unique_ptr<AcDbDatabase> m_drawing;
  AcDbObjectId m_mark;
};

} // namespace

TEST_F(MarkClass, ObjectsOfOpenDrawingsWakeUpAndFallAsleepAgain) {
  const std::string before = saved();
  EXPECT_FALSE(isUnderstood());
  ASSERT_TRUE(acrxDynamicLinker->loadModule(sample("mark"))) << acrxDynamicLinker->lastError().ToUtf8();
  EXPECT_TRUE(isUnderstood());
  AcDbExtents box;
  EXPECT_EQ(Acad::eOk, mark().getGeomExtents(box));
  EXPECT_EQ(AcGePoint3d(3, 4, 0), box.minPoint());
  EXPECT_EQ(1, frontEnd.regenerations) << "it looks different now";
  ASSERT_TRUE(acrxDynamicLinker->unloadModule(sample("mark")));
  EXPECT_FALSE(isUnderstood());
  EXPECT_EQ(2, frontEnd.regenerations);
  EXPECT_EQ(before, saved()) << "nobody changed it";
}

TEST_F(MarkClass, WhatThePlugInChangedIsKeptWhenItGoes) {
  ASSERT_TRUE(acrxDynamicLinker->loadModule(sample("mark")));
  {
    AcDbObjectPointer<AcDbEntity> open(m_mark, AcDb::kForWrite);
    ASSERT_EQ(Acad::eOk, open->transformBy(AcGeMatrix3d::translation({10, 0, 0})));
  }
  ASSERT_TRUE(acrxDynamicLinker->unloadModule(sample("mark")));
  EXPECT_NE(std::string::npos, saved().find("15.0\n"));
  EXPECT_NE(std::string::npos, saved().find("77\n")) << "what the class does not know";
}

TEST_F(MarkClass, APlugInWithoutClassesDrawsNothingAnew) {
  ASSERT_TRUE(acrxDynamicLinker->loadModule(sample("good")));
  EXPECT_EQ(0, frontEnd.regenerations);
}
