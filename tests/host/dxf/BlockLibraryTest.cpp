// Blocks made of what a user has selected, kept in drawing files of their own, and brought into drawings from
// there.
#include "tests/host/afx/TemporaryFolder.h"
#include "tests/host/dxf/DrawingFiles.h"

#include "host/db/AcDbAttribute.h"
#include "host/db/AcDbBlockReference.h"
#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbCurves.h"
#include "host/db/AcDbIdMapping.h"
#include "host/db/AcDbObjectPointer.h"
#include "host/db/SaveInVersion.h"

#include <gtest/gtest.h>

namespace {

class BlockLibrary : public testing::Test {
 protected:
  BlockLibrary() { dxf::BuildNewDrawing(drawing); }

  static AcDbObjectId add(const AcDbObjectId& space, AcDbEntity* entity) {
    AcDbObjectPointer<AcDbBlockTableRecord> block(space, AcDb::kForWrite);
    AcDbObjectId id;
    EXPECT_EQ(block->appendAcDbEntity(id, entity), Acad::eOk);
    entity->close();
    return id;
  }
  // A block of the drawing, or of another, of copies of what was selected, its base point where it is wanted.
  static AcDbObjectId makeBlock(AcDbDatabase& database, const wchar_t* name, const AcGePoint3d& origin,
                                const std::vector<AcDbObjectId>& selected) {
    AcDbObjectPointer<AcDbBlockTable> blocks(database.blockTableId(), AcDb::kForWrite);
    auto* made = new AcDbBlockTableRecord;
    EXPECT_EQ(made->setName(name), Acad::eOk);
    made->setOrigin(origin);
    AcDbObjectId id;
    EXPECT_EQ(blocks->add(id, made), Acad::eOk);
    made->close();
    blocks.close();
    AcDbIdMapping map;
    EXPECT_EQ(database.deepCloneObjects(selected, id, map), Acad::eOk);
    return id;
  }
  // A coil: a frame of 600 by 300 at 1000,2000 and a label.
  std::vector<AcDbObjectId> coil() {
    auto* frame = new AcDbPolyline;
    const AcGePoint2d corners[] = {{1000, 2000}, {1600, 2000}, {1600, 2300}, {1000, 2300}};
    for (unsigned i = 0; i < 4; ++i) frame->addVertexAt(i, corners[i]);
    frame->setClosed(true);
    return {add(drawing.modelSpaceId(), frame),
            add(drawing.modelSpaceId(), new AcDbCircle({1300, 2150, 0}, {0, 0, 1}, 100))};
  }
  static AcDbExtents boxOf(const AcDbObjectId& id) {
    AcDbExtents box;
    EXPECT_EQ(AcDbEntity::cast(id.object())->getGeomExtents(box), Acad::eOk);
    return box;
  }
  static AcDbObjectId blockNamed(AcDbDatabase& database, const wchar_t* name) {
    AcDbObjectPointer<AcDbBlockTable> blocks(database.blockTableId(), AcDb::kForRead);
    AcDbObjectId id;
    blocks->getAt(name, id);
    return id;
  }

  AcDbDatabase drawing{false};
  TemporaryFolder folder;
};

} // namespace

TEST_F(BlockLibrary, GoesFromASelectionToAFileAndIntoADrawing) {
  const AcGePoint3d insertion(1000, 2000, 0);
  const auto block = makeBlock(drawing, L"123", insertion, coil());

  // Into a drawing of its own, by way of a block there.
  AcDbDatabase* contents = nullptr;
  ASSERT_EQ(drawing.wblock(contents, block), Acad::eOk);
  const std::unique_ptr<AcDbDatabase> owned(contents);
  AcDbDatabase library(false);
  dxf::BuildNewDrawing(library);
  AcDbObjectId temporary;
  ASSERT_EQ(library.insert(temporary, L"123linshi", contents), Acad::eOk);
  const auto shown = add(library.modelSpaceId(), new AcDbBlockReference({0, 0, 0}, temporary));
  const AcDbExtents box = boxOf(shown);
  EXPECT_EQ(box.minPoint(), AcGePoint3d(0, 0, 0)) << "the base point is the origin there";
  EXPECT_EQ(box.maxPoint() - box.minPoint(), AcGeVector3d(600, 300, 0));

  // To a file by any name, in an old version, and back.
  const CString file = folder / "FJPG1.Dwg";
  ASSERT_EQ(acdbSaveAs(&library, file, AcDb::kDwg2000), Acad::eOk);
  AcDbDatabase read(false);
  ASSERT_EQ(read.readDwgFile(file, 64), Acad::eOk);
  EXPECT_EQ(read.form().version, "AC1015");

  // Into a drawing as a block, with its own contents in it.
  AcDbObjectId inserted;
  ASSERT_EQ(drawing.insert(inserted, L"FJPG1", &read), Acad::eOk);
  EXPECT_EQ(blockNamed(drawing, L"FJPG1"), inserted);
  EXPECT_TRUE(blockNamed(drawing, L"123linshi"));
  const auto placed = add(drawing.modelSpaceId(), new AcDbBlockReference({5000, 0, 0}, inserted));
  EXPECT_EQ(boxOf(placed).minPoint(), AcGePoint3d(5000, 0, 0));
  EXPECT_EQ(boxOf(placed).maxPoint(), AcGePoint3d(5600, 300, 0));
  EXPECT_EQ(drawing.insert(inserted, L"FJPG1", &read), Acad::eDuplicateRecordName);
}

TEST_F(BlockLibrary, ABlockOfThatNameIsReplaced) {
  const auto first = makeBlock(drawing, L"123", {0, 0, 0}, coil());
  {
    AcDbObjectPointer<AcDbBlockTableRecord> old(first, AcDb::kForWrite);
    ASSERT_EQ(old->erase(), Acad::eOk);
  }
  const auto second =
      makeBlock(drawing, L"123", {0, 0, 0}, {add(drawing.modelSpaceId(), new AcDbPoint({7, 0, 0}))});
  EXPECT_EQ(blockNamed(drawing, L"123"), second);
  const auto reference = add(drawing.modelSpaceId(), new AcDbBlockReference({0, 0, 0}, second));
  EXPECT_EQ(boxOf(reference).minPoint(), AcGePoint3d(7, 0, 0));
  AcDbObjectPointer<AcDbBlockTableRecord> used(second, AcDb::kForWrite);
  EXPECT_EQ(used->erase(), Acad::eObjectIsReferenced);
  EXPECT_EQ(Open(dxf::WriteDrawingBytes(drawing)).repairs(), "");
}

TEST_F(BlockLibrary, AnotherVersionIsOfTheFileAndNotOfTheDrawing) {
  const std::string own = drawing.form().version;
  const CString file = folder / "a.dxf";
  ASSERT_EQ(acdbSaveAs(&drawing, file, AcDb::kDwg2000), Acad::eOk);
  ASSERT_EQ(drawing.saveAs(folder / "b.dxf"), Acad::eOk);
  AcDbDatabase old(false);
  AcDbDatabase same(false);
  ASSERT_EQ(old.readDwgFile(file), Acad::eOk);
  ASSERT_EQ(same.readDwgFile(folder / "b.dxf"), Acad::eOk);
  EXPECT_EQ(old.form().version, "AC1015");
  EXPECT_EQ(same.form().version, own);
  EXPECT_EQ(acdbSaveAs(&drawing, file, 22), Acad::eInvalidInput);
  EXPECT_EQ(acdbSaveAs(nullptr, file, AcDb::kDwg2000), Acad::eNoDatabase);
  EXPECT_EQ(acdbSaveAs(&drawing, folder / "none" + L"/a.dxf", AcDb::kDwg2000), Acad::eFileAccessErr);
}

TEST_F(BlockLibrary, AnInsertionGetsItsAttributesFromTheDefinitions) {
  const auto block = makeBlock(drawing, L"图签", {0, 0, 0}, {});
  auto* made = new AcDbAttributeDefinition;
  made->setTag(L"图名");
  made->setTextString(L"未定");
  made->setPosition({2, 1, 0});
  const auto definition = add(block, made);
  auto* reference = new AcDbBlockReference({100, 0, 0}, block);
  reference->setScaleFactors({2, 2, 2});
  auto* attribute = new AcDbAttribute;
  const auto* source = AcDbAttributeDefinition::cast(definition.object());
  AcDbAttributeDefinition outside;
  EXPECT_EQ(attribute->setAttributeFromBlock(nullptr, {}), Acad::eNullObjectPointer);
  EXPECT_EQ(attribute->setAttributeFromBlock(&outside, {}), Acad::eNoDatabase);
  ASSERT_EQ(attribute->setAttributeFromBlock(source, reference->blockTransform()), Acad::eOk);
  EXPECT_EQ(attribute->tag(), L"图名");
  EXPECT_EQ(attribute->position(), AcGePoint3d(104, 2, 0));
  EXPECT_EQ(attribute->height(), 5);
  EXPECT_EQ(reference->appendAttribute(attribute), Acad::eOk);
  const auto id = add(drawing.modelSpaceId(), reference);
  const auto kept = AcDbBlockReference::cast(id.object())->attributes();
  ASSERT_EQ(kept.size(), 1u);
  AcDbObjectPointer<AcDbAttribute> open(kept.front(), AcDb::kForWrite);
  EXPECT_EQ(open->setAttributeFromBlock(source, {}), Acad::eAlreadyInDb);
}
