// Copies of external references, with the files that they refer to.
#include "plugin/tools/XrefClones.h"
#include "host/db/AcDbBlockReference.h"
#include "host/db/AcDbBlockTable.h"
#include "host/db/ExternalReferences.h"
#include "tests/support/EditorFixture.h"

#include <filesystem>

namespace {

namespace fs = std::filesystem;

class XrefClones : public EditorFixture {
 protected:
  XrefClones() {
    std::string pattern = (fs::temp_directory_path() / "zpxref-XXXXXX").string();
    m_folder = mkdtemp(pattern.data());
  }
  ~XrefClones() override {
    std::error_code ignored;
    fs::remove_all(m_folder, ignored);
  }
  // A drawing file with one line of 10 along x.
  CString makeFile(const char* name) {
    AcDbDatabase drawing(true);
    AcDbObjectPointer<AcDbBlockTableRecord> space(drawing.modelSpaceId(), AcDb::kForWrite);
    auto* line = new AcDbLine({0, 0, 0}, {10, 0, 0});
    EXPECT_EQ(Acad::eOk, space->appendAcDbEntity(line));
    line->close();
    space.close();
    const CString path = CString::FromUtf8((m_folder / name).string());
    EXPECT_EQ(Acad::eOk, drawing.saveAs(path));
    return path;
  }
  // A reference to the file, at a place, twice as large.
  AcDbObjectId refer(const CString& file, const wchar_t* name) {
    AcDbObjectId block;
    EXPECT_EQ(Acad::eOk, acdbAttachXref(&database(), file, name, block));
    auto* reference = new AcDbBlockReference({100, 0, 0}, block);
    reference->setScaleFactors(AcGeVector3d(2, 2, 2));
    return add(reference);
  }
  const AcDbLine* onlyLine() {
    AcDbObjectPointer<AcDbBlockTableRecord> space(database().modelSpaceId(), AcDb::kForRead);
    for (const auto& id : space->entities())
      if (const auto* line = AcDbLine::cast(id.object()); line && !line->isErased()) return line;
    return nullptr;
  }
  bool isHidden(const AcDbObjectId& id) { return document->edit().hidden.contains(id); }

  fs::path m_folder;
};

} // namespace

TEST_F(XrefClones, OfADrawingWithoutReferencesFail) {
  addLine({0, 0, 0}, {1, 0, 0});
  EXPECT_FALSE(ZP::CloneXrefBlock());
}

TEST_F(XrefClones, OfOrdinaryBlocksAddNothing) {
  AcDbObjectId block;
  {
    AcDbObjectPointer<AcDbBlockTable> blocks(database().blockTableId(), AcDb::kForWrite);
    auto* record = new AcDbBlockTableRecord;
    record->setName(L"阀门");
    ASSERT_EQ(Acad::eOk, blocks->add(block, record));
    record->close();
  }
  const auto reference = add(new AcDbBlockReference({0, 0, 0}, block));
  EXPECT_TRUE(ZP::CloneXrefBlock());
  EXPECT_EQ(1u, entityCount());
  EXPECT_FALSE(isHidden(reference));
}

TEST_F(XrefClones, StandAtTheReferencesPlaceInItsScalesAndHideIt) {
  const auto reference = refer(makeFile("ref.dxf"), L"底图");
  EXPECT_TRUE(ZP::CloneXrefBlock());
  const auto* line = onlyLine();
  ASSERT_NE(nullptr, line);
  // The file's geometry is moved by the position first and scaled about the origin then.
  EXPECT_EQ(AcGePoint3d(200, 0, 0), line->startPoint());
  EXPECT_EQ(AcGePoint3d(220, 0, 0), line->endPoint());
  EXPECT_TRUE(isHidden(reference));
  EXPECT_EQ(2u, entityCount());

  EXPECT_TRUE(ZP::DeleteCloneXrefBlock());
  EXPECT_EQ(1u, entityCount());
  EXPECT_FALSE(isHidden(reference));
}

TEST_F(XrefClones, OfAFileThatIsGoneAreToldAndTheReferenceStays) {
  const auto file = makeFile("ref.dxf");
  const auto reference = refer(file, L"底图");
  fs::remove(file.ToUtf8());
  EXPECT_TRUE(ZP::CloneXrefBlock());
  EXPECT_TRUE(frontEnd.said(L"打开外部参照块:底图失败!"));
  EXPECT_EQ(1u, entityCount());
  EXPECT_FALSE(isHidden(reference));
}

TEST_F(XrefClones, MadeAgainForgetTheFirstOnes) {
  refer(makeFile("ref.dxf"), L"底图");
  EXPECT_TRUE(ZP::CloneXrefBlock());
  EXPECT_TRUE(ZP::CloneXrefBlock());
  EXPECT_TRUE(ZP::DeleteCloneXrefBlock());
  EXPECT_EQ(2u, entityCount()) << "the reference, and the copy of the first time";
}

TEST_F(XrefClones, AreErasedOnLockedAndFrozenLayersWhichAreSoAgainAfterwards) {
  refer(makeFile("ref.dxf"), L"底图");
  const auto locked = addLayer(L"锁");
  ASSERT_TRUE(ZP::CloneXrefBlock());
  {
    AcDbObjectPointer<AcDbEntity> copy(onlyLine()->objectId(), AcDb::kForWrite);
    ASSERT_EQ(Acad::eOk, copy->setLayer(L"锁"));
  }
  {
    AcDbObjectPointer<AcDbLayerTableRecord> layer(locked, AcDb::kForWrite);
    layer->setIsLocked(true);
    layer->setIsFrozen(true);
  }
  EXPECT_TRUE(ZP::DeleteCloneXrefBlock());
  EXPECT_EQ(nullptr, onlyLine());
  const auto* layer = AcDbLayerTableRecord::cast(locked.object());
  EXPECT_TRUE(layer->isLocked());
  EXPECT_TRUE(layer->isFrozen());
}

TEST_F(XrefClones, ThatTheUserErasedMakeTheDeletionFail) {
  refer(makeFile("ref.dxf"), L"底图");
  ASSERT_TRUE(ZP::CloneXrefBlock());
  {
    AcDbObjectPointer<AcDbEntity> copy(onlyLine()->objectId(), AcDb::kForWrite);
    copy->erase();
  }
  EXPECT_FALSE(ZP::DeleteCloneXrefBlock());
}

TEST_F(XrefClones, AreForgottenWithTheirDrawing) {
  refer(makeFile("ref.dxf"), L"底图");
  ASSERT_TRUE(ZP::CloneXrefBlock());
  acDocManagerPtr()->closeAll();
  document = &acDocManagerPtr()->newDocument();
  EXPECT_TRUE(ZP::DeleteCloneXrefBlock());
}
