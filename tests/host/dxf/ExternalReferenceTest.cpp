#include "tests/host/dxf/DrawingFiles.h"

#include "host/afx/Paths.h"
#include "host/db/AcDbBlockReference.h"
#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbCurves.h"
#include "host/db/AcDbObjectPointer.h"
#include "host/db/ExternalReferences.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

class ExternalReferenceFiles : public testing::Test {
 protected:
  void SetUp() override {
    m_folder = fs::temp_directory_path() / ("zp_xref_" + std::to_string(::getpid()) + "_" +
                                            testing::UnitTest::GetInstance()->current_test_info()->name());
    fs::create_directories(m_folder);
    dxf::BuildNewDrawing(host);
    ASSERT_EQ(host.saveAs(path("host.dxf")), Acad::eOk);
  }
  void TearDown() override { fs::remove_all(m_folder); }
  CString path(const std::string& name) const { return CString::FromUtf8((m_folder / name).string()); }
  void write(const std::string& name, const std::string& bytes) { std::ofstream(m_folder / name) << bytes; }

  // A drawing with a line from 0,0 to x,0, which refers to others.
  void writeDrawing(const std::string& name, double x, const std::vector<std::string>& others = {}) {
    AcDbDatabase drawing(false);
    dxf::BuildNewDrawing(drawing);
    add(drawing, new AcDbLine({0, 0, 0}, {x, 0, 0}));
    for (const std::string& other : others) {
      AcDbObjectPointer<AcDbBlockTable> blocks(drawing.blockTableId(), AcDb::kForWrite);
      auto* block = new AcDbBlockTableRecord;
      block->setName(CString::FromUtf8("X" + other.substr(0, other.find('.'))));
      AcDbObjectId id;
      ASSERT_EQ(blocks->add(id, block), Acad::eOk);
      ASSERT_EQ(block->makeExternalReference(CString::FromUtf8(other), false), Acad::eOk);
      block->close();
      blocks.close();
      add(drawing, new AcDbBlockReference({}, id));
    }
    ASSERT_EQ(drawing.saveAs(path(name)), Acad::eOk);
  }
  static AcDbObjectId add(AcDbDatabase& drawing, AcDbEntity* entity) {
    AcDbObjectPointer<AcDbBlockTableRecord> model(drawing.modelSpaceId(), AcDb::kForWrite);
    AcDbObjectId id;
    EXPECT_EQ(model->appendAcDbEntity(id, entity), Acad::eOk);
    entity->close();
    return id;
  }
  const AcDbBlockTableRecord& at(const AcDbObjectId& id) const {
    return *static_cast<const AcDbBlockTableRecord*>(id.object());
  }
  std::size_t blockCount() const {
    const auto& blocks = host.tableOf("BLOCK_RECORD")->records();
    return static_cast<std::size_t>(
        std::count_if(blocks.begin(), blocks.end(), [](const auto& id) { return !id.isErased(); }));
  }

  AcDbDatabase host{false};

 private:
  fs::path m_folder;
};

} // namespace

TEST_F(ExternalReferenceFiles, AreReadAndDrawnAsTheyStandInTheirFile) {
  writeDrawing("arch.dxf", 40);
  AcDbObjectId block;
  ASSERT_EQ(acdbAttachXref(&host, L"arch.dxf", L"建筑", block), Acad::eOk);
  EXPECT_EQ(at(block).xrefStatus(), AcDb::kXrfResolved);
  EXPECT_EQ(at(block).pathName(), L"arch.dxf");
  EXPECT_TRUE(at(block).isFromExternalReference());
  EXPECT_FALSE(at(block).isFromOverlayReference());
  ASSERT_TRUE(at(block).xrefDatabase());
  const auto reference = add(host, new AcDbBlockReference({100, 0, 0}, block));
  AcDbExtents box;
  ASSERT_EQ(static_cast<AcDbEntity*>(reference.object())->getGeomExtents(box), Acad::eOk);
  EXPECT_EQ(box.maxPoint(), AcGePoint3d(140, 0, 0));
}

TEST_F(ExternalReferenceFiles, AnOrdinaryBlockIsNone) {
  AcDbObjectPointer<AcDbBlockTable> blocks(host.blockTableId(), AcDb::kForWrite);
  auto* block = new AcDbBlockTableRecord;
  block->setName(L"阀门");
  EXPECT_EQ(block->xrefStatus(), AcDb::kXrfNotAnXref);
  ASSERT_EQ(blocks->add(block), Acad::eOk);
  EXPECT_EQ(block->xrefStatus(), 0);
  EXPECT_TRUE(block->pathName().IsEmpty());
  EXPECT_EQ(block->setPathName(L""), Acad::eOk);
  EXPECT_EQ(block->setPathName(L"a.dxf"), Acad::eNotApplicable);
  const auto id = block->objectId();
  block->close();
  EXPECT_EQ(acdbDetachXref(&host, id), Acad::eNotThatKindOfClass);
  EXPECT_EQ(acdbReloadXrefs(&host, {id}), Acad::eNotThatKindOfClass);
}

TEST_F(ExternalReferenceFiles, AMissingOrDamagedFileLeavesTheDrawingAsItWas) {
  write("bad.dxf", "this is no drawing");
  const auto count = blockCount();
  AcDbObjectId block;
  EXPECT_EQ(acdbAttachXref(&host, L"none.dxf", L"甲", block), Acad::eFileNotFound);
  EXPECT_EQ(acdbAttachXref(&host, L"bad.dxf", L"乙", block), Acad::eDamagedFile);
  EXPECT_EQ(acdbAttachXref(&host, L"", L"丙", block), Acad::eInvalidInput);
  EXPECT_EQ(acdbAttachXref(nullptr, L"x.dxf", L"丁", block), Acad::eNoDatabase);
  EXPECT_TRUE(block.isNull());
  EXPECT_EQ(blockCount(), count);
}

TEST_F(ExternalReferenceFiles, NamesFollowTheRulesOfBlocks) {
  writeDrawing("arch.dxf", 40);
  AcDbObjectId block;
  ASSERT_EQ(acdbAttachXref(&host, L"arch.dxf", L"建筑", block), Acad::eOk);
  EXPECT_EQ(acdbAttachXref(&host, L"arch.dxf", L"建筑", block), Acad::eDuplicateRecordName);
  EXPECT_EQ(acdbAttachXref(&host, L"arch.dxf", L"a|b", block), Acad::eInvalidName);
}

TEST_F(ExternalReferenceFiles, ACircleIsToldAndEnds) {
  writeDrawing("a.dxf", 1, {"b.dxf"});
  writeDrawing("b.dxf", 2, {"a.dxf"});
  AcDbObjectId block;
  EXPECT_EQ(acdbAttachXref(&host, L"a.dxf", L"甲", block), Acad::eCircularReference);
  EXPECT_TRUE(block.isNull());
  writeDrawing("self.dxf", 1, {"host.dxf"});
  EXPECT_EQ(acdbAttachXref(&host, L"self.dxf", L"自身", block), Acad::eCircularReference);
  EXPECT_EQ(acdbAttachXref(&host, L"host.dxf", L"己", block), Acad::eCircularReference);
}

TEST_F(ExternalReferenceFiles, AreNestedAndOverlaysStayOut) {
  writeDrawing("inner.dxf", 7);
  writeDrawing("outer.dxf", 3, {"inner.dxf"});
  AcDbObjectId block;
  ASSERT_EQ(acdbAttachXref(&host, L"outer.dxf", L"外", block), Acad::eOk);
  const auto reference = add(host, new AcDbBlockReference({}, block));
  AcDbExtents box;
  ASSERT_EQ(static_cast<AcDbEntity*>(reference.object())->getGeomExtents(box), Acad::eOk);
  EXPECT_EQ(box.maxPoint().x, 7);
  AcDbObjectId overlay;
  ASSERT_EQ(acdbOverlayXref(&host, L"inner.dxf", L"覆盖", overlay), Acad::eOk);
  EXPECT_TRUE(at(overlay).isFromOverlayReference());
}

TEST_F(ExternalReferenceFiles, AreUnloadedReloadedAndDetached) {
  writeDrawing("arch.dxf", 40);
  AcDbObjectId block;
  ASSERT_EQ(acdbAttachXref(&host, L"arch.dxf", L"建筑", block), Acad::eOk);
  const auto reference = add(host, new AcDbBlockReference({}, block));
  ASSERT_EQ(acdbUnloadXrefs(&host, {block}), Acad::eOk);
  EXPECT_EQ(at(block).xrefStatus(), AcDb::kXrfUnloaded);
  EXPECT_EQ(at(block).xrefDatabase(), nullptr);
  ASSERT_EQ(acdbResolveCurrentXRefs(&host), Acad::eOk); // leaves what was unloaded on purpose
  EXPECT_EQ(at(block).xrefStatus(), AcDb::kXrfUnloaded);
  fs::remove(afx::NativePath(path("arch.dxf")));
  EXPECT_EQ(acdbReloadXrefs(&host, {block}), Acad::eFileNotFound);
  EXPECT_EQ(at(block).xrefStatus(), AcDb::kXrfFileNotFound);
  EXPECT_FALSE(host.xrefs().reason(block).IsEmpty());
  writeDrawing("arch.dxf", 50);
  ASSERT_EQ(acdbReloadXrefs(&host, {block}), Acad::eOk);
  EXPECT_EQ(at(block).xrefStatus(), AcDb::kXrfResolved);
  ASSERT_EQ(acdbDetachXref(&host, block), Acad::eOk);
  EXPECT_TRUE(block.isErased());
  EXPECT_TRUE(reference.isErased());
}

TEST_F(ExternalReferenceFiles, StandInTheFileAndAreResolvedAfterReading) {
  writeDrawing("arch.dxf", 40);
  AcDbObjectId block;
  ASSERT_EQ(acdbAttachXref(&host, L"arch.dxf", L"建筑", block), Acad::eOk);
  add(host, new AcDbBlockReference({}, block));
  ASSERT_EQ(host.saveAs(path("host.dxf")), Acad::eOk);
  AcDbDatabase again(false);
  ASSERT_EQ(again.readDwgFile(path("host.dxf"), 32), Acad::eOk);
  AcDbObjectId read;
  ASSERT_EQ(again.tableOf("BLOCK_RECORD")->getAt(L"建筑", read), Acad::eOk);
  EXPECT_EQ(at(read).xrefStatus(), AcDb::kXrfUnresolved);
  EXPECT_EQ(at(read).pathName(), L"arch.dxf");
  ASSERT_EQ(acdbResolveCurrentXRefs(&again), Acad::eOk);
  EXPECT_EQ(at(read).xrefStatus(), AcDb::kXrfResolved);
}

TEST_F(ExternalReferenceFiles, DrawingFilesSayWhatIsWrong) {
  AcDbDatabase drawing(false);
  EXPECT_EQ(drawing.readDwgFile(path("none.dxf")), Acad::eFileNotFound);
  EXPECT_EQ(drawing.readDwgFile(L""), Acad::eInvalidInput);
  write("bad.dxf", "0\nSECTION\n2\nENTITIES\n0\nLI");
  EXPECT_EQ(drawing.readDwgFile(path("bad.dxf")), Acad::eDamagedFile);
  AcDbDatabase full;
  EXPECT_EQ(full.readDwgFile(path("host.dxf")), Acad::eNotApplicable);
  EXPECT_EQ(full.saveAs(path("no/such/folder.dxf")), Acad::eFileAccessErr);
  ASSERT_EQ(full.saveAs(path("full.Dwg")), Acad::eOk);
  AcDbDatabase back(false);
  ASSERT_EQ(back.readDwgFile(path("full.Dwg"), 64), Acad::eOk);
  EXPECT_EQ(back.form().version, "AC1027");
}

TEST_F(ExternalReferenceFiles, AWholeDrawingIsCopiedToTheByte) {
  for (const std::string& name : SampleNames()) {
    const Opened opened = Open(SampleBytes(name));
    if (!opened.ok()) continue;
    AcDbDatabase* copy = nullptr;
    ASSERT_EQ(opened.database->wblock(copy), Acad::eOk) << name;
    const std::unique_ptr<AcDbDatabase> owner(copy);
    EXPECT_EQ(dxf::WriteDrawingBytes(*copy), opened.saved()) << name;
  }
}
