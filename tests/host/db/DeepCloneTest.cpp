#include "tests/host/db/DrawingFixture.h"

#include "host/db/AcDbAttribute.h"
#include "host/db/AcDbBlockReference.h"
#include "host/db/AcDbDictionary.h"
#include "host/db/AcDbIdMapping.h"
#include "host/db/AcDbText.h"
#include "host/db/AcDbUnknownEntity.h"
#include "host/db/AcDbUnknownObject.h"
#include "host/db/AcDbXrecord.h"

#include <algorithm>

namespace {

class DeepClones : public Drawing {
 protected:
  AcDbObjectId addBlock(const wchar_t* name, const AcGePoint3d& origin = {}) {
    AcDbObjectPointer<AcDbBlockTable> blocks(db.blockTableId(), AcDb::kForWrite);
    auto* block = new AcDbBlockTableRecord;
    EXPECT_EQ(block->setName(name), Acad::eOk);
    EXPECT_EQ(block->setOrigin(origin), Acad::eOk);
    AcDbObjectId id;
    EXPECT_EQ(blocks->add(id, block), Acad::eOk);
    block->close();
    return id;
  }
  AcDbObjectId addTo(const AcDbObjectId& block, AcDbEntity* entity) {
    AcDbObjectPointer<AcDbBlockTableRecord> record(block, AcDb::kForWrite);
    AcDbObjectId id;
    EXPECT_EQ(record->appendAcDbEntity(id, entity), Acad::eOk);
    entity->close();
    return id;
  }
  AcDbObjectId addUnknown(const std::string& text) {
    auto* entity = new AcDbUnknownEntity;
    entity->setRecord(DxfRecord::own(text), DxfDecodeContext(db));
    return addToModelSpace(entity);
  }
  AcDbObjectId copied(const AcDbObjectId& id) {
    AcDbIdMapping map;
    EXPECT_EQ(db.deepCloneObjects({id}, db.modelSpaceId(), map), Acad::eOk);
    return map.valueOf(id);
  }
  static const std::vector<AcDbObjectId>& modelOf(const AcDbDatabase& database) {
    return static_cast<AcDbBlockTableRecord*>(database.modelSpaceId().object())->entities();
  }
  static AcDbObjectId recordOf(const AcDbDatabase& database, const char* table, const wchar_t* name) {
    AcDbObjectId id;
    database.tableOf(table)->getAt(name, id);
    return id;
  }
};

std::string textOf(const AcDbObjectId& id) {
  return std::string(id.object()->record().text());
}

} // namespace

TEST_F(DeepClones, ACopyHasItsOwnHandleAndItsOriginalsProperties) {
  const auto layer = addLayer(L"管线");
  const auto id = addLine(4);
  AcDbObjectPointer<AcDbLine>(id, AcDb::kForWrite)->setLayer(layer);
  const auto copy = copied(id);
  ASSERT_TRUE(copy);
  EXPECT_NE(copy, id);
  EXPECT_EQ(at<AcDbLine>(copy).layerId(), layer);
  EXPECT_EQ(at<AcDbLine>(copy).startPoint().x, 4);
  EXPECT_NE(textOf(copy).find("  5\n" + copy.handle().toHex() + "\n"), std::string::npos);
  EXPECT_EQ(modelOf(db).back(), copy);
  EXPECT_EQ(AcDbObjectPointer<AcDbLine>(copy, AcDb::kForWrite).openStatus(), Acad::eOk); // closed
}

TEST_F(DeepClones, WhatCannotBeCopiedIsToldBeforeAnythingIs) {
  const auto id = addLine();
  const auto erased = addLine();
  AcDbObjectPointer<AcDbLine>(erased, AcDb::kForWrite)->erase();
  AcDbDatabase other;
  AcDbIdMapping map;
  const auto count = modelOf(db).size();
  EXPECT_EQ(db.deepCloneObjects({id, erased}, db.modelSpaceId(), map), Acad::eWasErased);
  EXPECT_EQ(db.deepCloneObjects({id, AcDbObjectId()}, db.modelSpaceId(), map), Acad::eNullObjectId);
  EXPECT_EQ(db.deepCloneObjects({id, db.layerTableId()}, db.modelSpaceId(), map), Acad::eNotThatKindOfClass);
  EXPECT_EQ(db.deepCloneObjects({id}, id, map), Acad::eNotThatKindOfClass);
  EXPECT_EQ(db.deepCloneObjects({id}, other.modelSpaceId(), map), Acad::eWrongDatabase);
  EXPECT_EQ(other.deepCloneObjects({id}, other.modelSpaceId(), map), Acad::eWrongDatabase);
  EXPECT_EQ(modelOf(db).size(), count);
  EXPECT_TRUE(map.pairs().empty());
}

TEST_F(DeepClones, ABlockIsNotCopiedIntoItself) {
  const auto block = addBlock(L"阀门");
  const auto reference = addToModelSpace(new AcDbBlockReference({}, block));
  AcDbIdMapping map;
  EXPECT_EQ(db.deepCloneObjects({reference}, block, map), Acad::eSelfReference);
}

TEST_F(DeepClones, ExtensionDictionariesComeAlongAndArePrivateToTheCopy) {
  const auto id = addLine();
  AcDbObjectPointer<AcDbLine> line(id, AcDb::kForWrite);
  ASSERT_EQ(line->createExtensionDictionary(), Acad::eOk);
  {
    AcDbObjectPointer<AcDbDictionary> dictionary(line->extensionDictionary(), AcDb::kForWrite);
    auto* data = new AcDbXrecord;
    data->setFromRbChain(*ResbufBuilder().text(1, L"数据").chain());
    AcDbObjectId dataId;
    ASSERT_EQ(dictionary->setAt(L"TQRoom", data, dataId), Acad::eOk);
    data->close();
  }
  line.close();
  const auto copy = copied(id);
  const auto dictionaryId = copy.object()->extensionDictionary();
  ASSERT_TRUE(dictionaryId);
  EXPECT_NE(dictionaryId, id.object()->extensionDictionary());
  AcDbObjectId data;
  ASSERT_EQ(at<AcDbDictionary>(dictionaryId).getAt(L"TQRoom", data), Acad::eOk);
  AcDbObjectId original;
  at<AcDbDictionary>(id.object()->extensionDictionary()).getAt(L"TQRoom", original);
  EXPECT_NE(data, original);
  resbuf* chain = nullptr;
  ASSERT_EQ(at<AcDbXrecord>(data).rbChain(&chain), Acad::eOk);
  EXPECT_STREQ(ResbufPtr(chain)->resval.rstring, L"数据");
}

TEST_F(DeepClones, PointersAmongTheCopiedLeadToTheCopies) {
  const auto target = addLine();
  const auto outside = addLine();
  const auto pointing = addUnknown("  0\nLEADER\n100\nAcDbEntity\n  8\n0\n100\nAcDbLeader\n340\n" +
                                   target.handle().toHex() + "\n330\n" + outside.handle().toHex() +
                                   "\n1001\nACAD\n1005\n" + target.handle().toHex() + "\n");
  AcDbIdMapping map;
  ASSERT_EQ(db.deepCloneObjects({pointing, target}, db.modelSpaceId(), map), Acad::eOk);
  const std::string text = textOf(map.valueOf(pointing));
  const std::string copy = map.valueOf(target).handle().toHex();
  EXPECT_NE(text.find("340\n" + copy + "\n"), text.npos) << text;
  EXPECT_NE(text.find("1005\n" + copy + "\n"), text.npos) << text;
  EXPECT_NE(text.find("330\n" + outside.handle().toHex() + "\n"), text.npos) << text;
}

TEST_F(DeepClones, AnInsertionComesWithItsAttributes) {
  const auto block = addBlock(L"标题");
  auto* reference = new AcDbBlockReference({1, 2, 0}, block);
  auto* attribute = new AcDbAttribute;
  attribute->setTag(L"图名");
  attribute->setTextString(L"一层平面");
  ASSERT_EQ(reference->appendAttribute(attribute), Acad::eOk);
  const auto id = addToModelSpace(reference);
  ASSERT_EQ(at<AcDbBlockReference>(id).attributes().size(), 1u);
  EXPECT_NE(textOf(id).find(" 66\n1\n"), std::string::npos);
  const auto copy = copied(id);
  const auto attributes = at<AcDbBlockReference>(copy).attributes();
  ASSERT_EQ(attributes.size(), 1u);
  EXPECT_NE(attributes[0], at<AcDbBlockReference>(id).attributes()[0]);
  EXPECT_EQ(at<AcDbAttribute>(attributes[0]).textString(), L"一层平面");
  EXPECT_EQ(attributes[0].object()->ownerId(), copy);
  // The run of attributes ends with its mark.
  EXPECT_TRUE(AcDbSequenceEnd::cast(at<AcDbBlockReference>(copy).subEntities().back().object()));
  // A clone outside the drawing brings them too.
  auto* clone = AcDbBlockReference::cast(at<AcDbBlockReference>(id).clone());
  EXPECT_EQ(at<AcDbBlockReference>(addToModelSpace(clone)).attributes().size(), 1u);
}

TEST_F(DeepClones, ADimensionGetsAPictureOfItsOwn) {
  const auto picture = addBlock(L"*D");
  addTo(picture, new AcDbLine({0, 0, 0}, {1, 0, 0}));
  const CString name = at<AcDbBlockTableRecord>(picture).name();
  EXPECT_EQ(name, L"*D1");
  const auto dimension =
      addUnknown("  0\nDIMENSION\n100\nAcDbEntity\n  8\n0\n100\nAcDbDimension\n  2\n*D1\n  3\n"
                 "Standard\n100\nAcDbAlignedDimension\n");
  const std::string text = textOf(copied(dimension));
  EXPECT_NE(text.find("  2\n*D2\n"), text.npos) << text;
  const auto second = recordOf(db, "BLOCK_RECORD", L"*D2");
  ASSERT_TRUE(second);
  EXPECT_EQ(at<AcDbBlockTableRecord>(second).entities().size(), 1u);
}

TEST_F(DeepClones, AreTakenBackAndRepeatedAsOneStep) {
  const auto id = addLine();
  db.undo().beginCommand(L"COPY");
  const auto copy = copied(id);
  db.undo().endCommand();
  ASSERT_EQ(db.undo().undo(), Acad::eOk);
  EXPECT_TRUE(copy.isErased());
  ASSERT_EQ(db.undo().redo(), Acad::eOk);
  EXPECT_FALSE(copy.isErased());
  EXPECT_EQ(at<AcDbLine>(copy).endPoint().y, 10);
}

TEST_F(DeepClones, AnotherDrawingGetsWhatTheCopiesName) {
  const auto layer = addLayer(L"管线");
  AcDbObjectPointer<AcDbLayerTableRecord>(layer, AcDb::kForWrite)->setColor(AcCmColor(3));
  const auto inner = addBlock(L"内");
  addTo(inner, new AcDbCircle({0, 0, 0}, {0, 0, 1}, 1));
  const auto outer = addBlock(L"外", {5, 0, 0});
  addTo(outer, new AcDbBlockReference({1, 1, 0}, inner));
  const auto id = addToModelSpace(new AcDbBlockReference({}, outer));
  db.registerApplication(L"管材");
  {
    AcDbObjectPointer<AcDbBlockReference> reference(id, AcDb::kForWrite);
    reference->setLayer(layer);
    reference->setXData(ResbufBuilder().text(1001, L"管材").text(1003, L"管线").chain());
  }
  AcDbDatabase other;
  AcDbIdMapping map;
  ASSERT_EQ(db.wblockCloneObjects({id}, other.modelSpaceId(), map), Acad::eOk);
  const auto copy = map.valueOf(id);
  ASSERT_EQ(copy.database(), &other);
  const auto copiedLayer = recordOf(other, "LAYER", L"管线");
  ASSERT_TRUE(copiedLayer);
  EXPECT_EQ(at<AcDbLayerTableRecord>(copiedLayer).color().colorIndex(), 3);
  EXPECT_EQ(at<AcDbBlockReference>(copy).layerId(), copiedLayer);
  EXPECT_TRUE(recordOf(other, "APPID", L"管材"));
  const auto copiedOuter = recordOf(other, "BLOCK_RECORD", L"外");
  ASSERT_TRUE(copiedOuter);
  EXPECT_EQ(at<AcDbBlockReference>(copy).blockTableRecord(), copiedOuter);
  EXPECT_EQ(at<AcDbBlockTableRecord>(copiedOuter).origin().x, 5);
  ASSERT_EQ(at<AcDbBlockTableRecord>(copiedOuter).entities().size(), 1u);
  const auto copiedInner = recordOf(other, "BLOCK_RECORD", L"内");
  ASSERT_TRUE(copiedInner);
  EXPECT_EQ(at<AcDbBlockTableRecord>(copiedInner).entities().size(), 1u);
  AcDbExtents extents;
  EXPECT_EQ(at<AcDbBlockReference>(copy).getGeomExtents(extents), Acad::eOk);
}

TEST_F(DeepClones, WhatTheOtherDrawingHasStaysOrIsReplaced) {
  const auto layer = addLayer(L"管线");
  AcDbObjectPointer<AcDbLayerTableRecord>(layer, AcDb::kForWrite)->setColor(AcCmColor(3));
  const auto block = addBlock(L"阀");
  addTo(block, new AcDbLine({0, 0, 0}, {1, 0, 0}));
  addTo(block, new AcDbLine({0, 0, 0}, {2, 0, 0}));
  const auto id = addToModelSpace(new AcDbBlockReference({}, block));
  AcDbObjectPointer<AcDbBlockReference>(id, AcDb::kForWrite)->setLayer(layer);
  for (const auto mode : {AcDb::kDrcIgnore, AcDb::kDrcReplace}) {
    AcDbDatabase other;
    AcDbObjectId theirLayer;
    AcDbObjectId theirBlock;
    {
      AcDbObjectPointer<AcDbLayerTable> layers(other.layerTableId(), AcDb::kForWrite);
      auto* own = new AcDbLayerTableRecord;
      own->setName(L"管线");
      own->setColor(AcCmColor(5));
      layers->add(theirLayer, own);
      own->close();
      AcDbObjectPointer<AcDbBlockTable> blocks(other.blockTableId(), AcDb::kForWrite);
      auto* ownBlock = new AcDbBlockTableRecord;
      ownBlock->setName(L"阀");
      blocks->add(theirBlock, ownBlock);
      ownBlock->close();
    }
    AcDbIdMapping map;
    ASSERT_EQ(db.wblockCloneObjects({id}, other.modelSpaceId(), map, mode), Acad::eOk);
    const bool replaced = mode == AcDb::kDrcReplace;
    EXPECT_EQ(at<AcDbLayerTableRecord>(theirLayer).color().colorIndex(), replaced ? 3 : 5);
    EXPECT_EQ(at<AcDbLayerTableRecord>(theirLayer).name(), L"管线");
    const auto& inside = at<AcDbBlockTableRecord>(theirBlock).entities();
    EXPECT_EQ(std::count_if(inside.begin(), inside.end(), [](const auto& e) { return !e.isErased(); }),
              replaced ? 2 : 0);
    EXPECT_EQ(at<AcDbBlockReference>(map.valueOf(id)).blockTableRecord(), theirBlock);
  }
}

TEST_F(DeepClones, AnonymousBlocksGetFreeNumbersInAnotherDrawing) {
  const auto block = addBlock(L"*U");
  addTo(block, new AcDbLine({0, 0, 0}, {1, 0, 0}));
  const auto id = addToModelSpace(new AcDbBlockReference({}, block));
  AcDbDatabase other;
  {
    AcDbObjectPointer<AcDbBlockTable> blocks(other.blockTableId(), AcDb::kForWrite);
    auto* own = new AcDbBlockTableRecord;
    own->setName(L"*U");
    ASSERT_EQ(blocks->add(own), Acad::eOk);
    EXPECT_EQ(own->name(), L"*U1");
    own->close();
  }
  AcDbIdMapping map;
  ASSERT_EQ(db.wblockCloneObjects({id}, other.modelSpaceId(), map), Acad::eOk);
  const auto& copy = at<AcDbBlockReference>(map.valueOf(id));
  EXPECT_EQ(static_cast<AcDbBlockTableRecord*>(copy.blockTableRecord().object())->name(), L"*U2");
  EXPECT_NE(std::string(copy.record().text()).find("  2\n*U2\n"), std::string::npos);
}

TEST_F(DeepClones, ObjectsOfNamedDictionariesFollowHardPointers) {
  AcDbDictionary* root = nullptr;
  ASSERT_EQ(db.getNamedObjectsDictionary(root, AcDb::kForWrite), Acad::eOk);
  auto* styles = new AcDbDictionary;
  AcDbObjectId stylesId;
  ASSERT_EQ(root->setAt(L"ACAD_MLINESTYLE", styles, stylesId), Acad::eOk);
  root->close();
  auto* style = new AcDbUnknownObject;
  style->setRecord(DxfRecord::own("  0\nMLINESTYLE\n100\nAcDbMlineStyle\n  2\n双线\n"), DxfDecodeContext(db));
  AcDbObjectId styleId;
  ASSERT_EQ(styles->setAt(L"双线", style, styleId), Acad::eOk);
  style->close();
  styles->close();
  const auto line = addUnknown("  0\nMLINE\n100\nAcDbEntity\n  8\n0\n100\nAcDbMline\n340\n" +
                               styleId.handle().toHex() + "\n");
  AcDbDatabase other;
  AcDbIdMapping map;
  ASSERT_EQ(db.wblockCloneObjects({line}, other.modelSpaceId(), map), Acad::eOk);
  AcDbDictionary* otherRoot = nullptr;
  ASSERT_EQ(other.getNamedObjectsDictionary(otherRoot, AcDb::kForRead), Acad::eOk);
  AcDbObjectId otherStyles;
  AcDbObjectId otherStyle;
  ASSERT_EQ(otherRoot->getAt(L"ACAD_MLINESTYLE", otherStyles), Acad::eOk);
  otherRoot->close();
  ASSERT_EQ(at<AcDbDictionary>(otherStyles).getAt(L"双线", otherStyle), Acad::eOk);
  const std::string text = textOf(map.valueOf(line));
  EXPECT_NE(text.find("340\n" + otherStyle.handle().toHex() + "\n"), text.npos) << text;
}

TEST_F(DeepClones, WblockMovesTheBasePointToTheOrigin) {
  const auto line = addToModelSpace(new AcDbLine({10, 20, 0}, {30, 20, 0}));
  const auto helix = addUnknown("  0\nHELIX\n100\nAcDbEntity\n  8\n0\n100\nAcDbHelix\n 90\n29\n");
  AcDbDatabase* output = nullptr;
  ASSERT_EQ(db.wblock(output, {line, helix}, {10, 20, 0}), Acad::eOk);
  const std::unique_ptr<AcDbDatabase> owner(output);
  std::vector<AcDbEntity*> live;
  for (const auto& id : modelOf(*output))
    if (!id.isErased()) live.push_back(static_cast<AcDbEntity*>(id.object()));
  ASSERT_EQ(live.size(), 2u);
  EXPECT_EQ(AcDbLine::cast(live[0])->startPoint(), AcGePoint3d());
  // What can't be moved itself is moved as an insertion, and nothing of it is lost.
  const auto* reference = AcDbBlockReference::cast(live[1]);
  ASSERT_TRUE(reference);
  EXPECT_EQ(reference->position(), AcGePoint3d(-10, -20, 0));
  const auto& block = at<AcDbBlockTableRecord>(reference->blockTableRecord());
  EXPECT_EQ(block.name(), L"*E1");
  ASSERT_EQ(block.entities().size(), 1u);
  EXPECT_NE(textOf(block.entities()[0]).find(" 90\n29\n"), std::string::npos);
  EXPECT_EQ(db.wblock(output, {line}, {INFINITY, 0, 0}), Acad::eInvalidInput);
  EXPECT_EQ(output, nullptr);
}

TEST_F(DeepClones, ABlockBecomesADrawing) {
  const auto block = addBlock(L"阀", {1, 1, 0});
  addTo(block, new AcDbLine({1, 1, 0}, {2, 1, 0}));
  AcDbDatabase* output = nullptr;
  ASSERT_EQ(db.wblock(output, block), Acad::eOk);
  const std::unique_ptr<AcDbDatabase> owner(output);
  ASSERT_EQ(modelOf(*output).size(), 1u);
  EXPECT_EQ(at<AcDbLine>(modelOf(*output)[0]).startPoint(), AcGePoint3d());
  EXPECT_EQ(db.wblock(output, AcDbObjectId()), Acad::eNullObjectId);
  EXPECT_EQ(db.wblock(output, db.layerTableId()), Acad::eNotThatKindOfClass);
}

TEST_F(DeepClones, ADrawingBecomesABlockWithItsBasePoint) {
  AcDbDatabase source;
  {
    AcDbObjectPointer<AcDbBlockTableRecord> model(source.modelSpaceId(), AcDb::kForWrite);
    auto* line = new AcDbLine({3, 3, 0}, {4, 3, 0});
    ASSERT_EQ(model->appendAcDbEntity(line), Acad::eOk);
    line->close();
    AcDbObjectPointer<AcDbHeader> header(source.headerId(), AcDb::kForWrite);
    header->setVariable("$INSBASE", " 10\n3.0\n 20\n3.0\n 30\n0.0\n");
  }
  AcDbObjectId block;
  ASSERT_EQ(db.insert(block, L"来图", &source), Acad::eOk);
  EXPECT_EQ(at<AcDbBlockTableRecord>(block).origin(), AcGePoint3d(3, 3, 0));
  EXPECT_EQ(at<AcDbBlockTableRecord>(block).entities().size(), 1u);
  EXPECT_EQ(modelOf(source).size(), 1u);
  EXPECT_EQ(db.insert(block, L"来图", &source), Acad::eDuplicateRecordName);
  EXPECT_EQ(db.insert(block, L"a*b", &source), Acad::eInvalidName);
  EXPECT_EQ(db.insert(block, L"自己", &db), Acad::eWrongDatabase);
  ASSERT_EQ(db.insert(block, L"*U", &source), Acad::eOk);
  EXPECT_EQ(at<AcDbBlockTableRecord>(block).name(), L"*U1");
  EXPECT_TRUE(at<AcDbBlockTableRecord>(block).isAnonymous());
  ASSERT_EQ(db.insert(AcGeMatrix3d::translation({1, 0, 0}), &source), Acad::eOk);
  EXPECT_EQ(at<AcDbLine>(modelOf(db).back()).startPoint(), AcGePoint3d(4, 3, 0));
}

TEST_F(DeepClones, AnErasedBlockTakesItsContentsAlongAndOneInUseStays) {
  const auto block = addBlock(L"*U");
  const auto line = addTo(block, new AcDbLine({0, 0, 0}, {1, 0, 0}));
  const auto reference = addToModelSpace(new AcDbBlockReference({}, block));
  EXPECT_EQ(AcDbObjectPointer<AcDbBlockTableRecord>(block, AcDb::kForWrite)->erase(),
            Acad::eObjectIsReferenced);
  AcDbObjectPointer<AcDbBlockReference>(reference, AcDb::kForWrite)->erase();
  db.undo().beginCommand(L"ERASE");
  EXPECT_EQ(AcDbObjectPointer<AcDbBlockTableRecord>(block, AcDb::kForWrite)->erase(), Acad::eOk);
  db.undo().endCommand();
  EXPECT_TRUE(line.isErased());
  db.undo().undo();
  EXPECT_FALSE(line.isErased());
  EXPECT_FALSE(block.isErased());
  EXPECT_EQ(AcDbObjectPointer<AcDbBlockTableRecord>(db.modelSpaceId(), AcDb::kForWrite)->erase(),
            Acad::eObjectIsReferenced);
}
