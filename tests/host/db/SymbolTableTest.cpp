#include "tests/host/db/DrawingFixture.h"

using SymbolTables = Drawing;

TEST_F(SymbolTables, ANewDrawingHasTheEntriesThatEveryDrawingMustHave) {
  for (const auto& [table, name] :
       std::vector<std::pair<const char*, const wchar_t*>>{{"LAYER", L"0"},
                                                           {"LTYPE", L"ByLayer"},
                                                           {"LTYPE", L"ByBlock"},
                                                           {"LTYPE", L"Continuous"},
                                                           {"STYLE", L"Standard"},
                                                           {"APPID", L"ACAD"},
                                                           {"DIMSTYLE", L"Standard"},
                                                           {"BLOCK_RECORD", L"*Model_Space"},
                                                           {"BLOCK_RECORD", L"*Paper_Space"}})
    EXPECT_TRUE(db.tableOf(table)->has(name)) << table;
}

TEST_F(SymbolTables, NamesCompareWithoutCaseAndKeepTheirs) {
  const auto id = addLayer(L"Pipe-Main");
  AcDbObjectPointer<AcDbLayerTable> layers(db.layerTableId(), AcDb::kForRead);
  AcDbObjectId found;
  EXPECT_EQ(layers->getAt(L"PIPE-main", found), Acad::eOk);
  EXPECT_EQ(found, id);
  EXPECT_EQ(at<AcDbLayerTableRecord>(id).name(), L"Pipe-Main");
}

TEST_F(SymbolTables, ASecondRecordOfANameIsRefusedAndStaysTheCallers) {
  addLayer(L"管线");
  AcDbObjectPointer<AcDbLayerTable> layers(db.layerTableId(), AcDb::kForWrite);
  auto* second = new AcDbLayerTableRecord;
  second->setName(L"管线");
  EXPECT_EQ(layers->add(second), Acad::eDuplicateRecordName);
  EXPECT_EQ(second->database(), nullptr);
  delete second;
}

TEST_F(SymbolTables, ForbiddenNamesAreRefusedAndTheOldNameStays) {
  const auto id = addLayer(L"管线");
  AcDbObjectPointer<AcDbLayerTableRecord> layer(id, AcDb::kForWrite);
  for (const wchar_t* name : {L"", L" ", L"a/b", L"a\\b", L"a:b", L"a;b", L"a?b", L"a*b", L"a|b", L"a,b",
                              L"a=b", L"a`b", L"<a", L"a>", L"\"a\"", L"a\nb", L"a ", L" a"})
    EXPECT_EQ(layer->setName(name), Acad::eInvalidName) << CString(name).ToUtf8();
  EXPECT_EQ(layer->setName(CString(L'长', 256)), Acad::eInvalidName);
  EXPECT_EQ(layer->name(), L"管线");
  EXPECT_EQ(layer->setName(CString(L'长', 255)), Acad::eOk);
}

TEST_F(SymbolTables, ARenamedRecordIsFoundByItsNewNameOnly) {
  const auto id = addLayer(L"旧");
  AcDbObjectPointer<AcDbLayerTableRecord>(id, AcDb::kForWrite)->setName(L"新");
  EXPECT_FALSE(db.tableOf("LAYER")->has(L"旧"));
  EXPECT_TRUE(db.tableOf("LAYER")->has(L"新"));
  const auto another = addLayer(L"旧");
  EXPECT_NE(another, id);
}

TEST_F(SymbolTables, RenamingTheCurrentLayerKeepsItCurrent) {
  const auto id = addLayer(L"旧");
  db.setClayer(id);
  AcDbObjectPointer<AcDbLayerTableRecord>(id, AcDb::kForWrite)->setName(L"新");
  EXPECT_EQ(db.clayer(), id);
}

TEST_F(SymbolTables, TheIteratorGoesInTableOrderAndSkipsErasedRecords) {
  addLayer(L"b");
  const auto gone = addLayer(L"c");
  addLayer(L"a");
  AcDbObjectPointer<AcDbLayerTableRecord>(gone, AcDb::kForWrite)->erase();
  AcDbObjectPointer<AcDbLayerTable> layers(db.layerTableId(), AcDb::kForRead);
  AcDbLayerTableIterator* iterator = nullptr;
  ASSERT_EQ(layers->newIterator(iterator), Acad::eOk);
  std::vector<CString> names;
  for (iterator->start(); !iterator->done(); iterator->step()) {
    AcDbLayerTableRecord* record = nullptr;
    ASSERT_EQ(iterator->getRecord(record, AcDb::kForRead), Acad::eOk);
    names.push_back(record->name());
    record->close();
  }
  EXPECT_EQ(names, (std::vector<CString>{L"0", L"b", L"a"}));
  names.clear();
  for (iterator->start(false); !iterator->done(); iterator->step(false)) {
    AcDbObjectId id;
    iterator->getRecordId(id);
    names.push_back(at<AcDbLayerTableRecord>(id).name());
  }
  EXPECT_EQ(names, (std::vector<CString>{L"a", L"b", L"0"}));
  delete iterator;
}

TEST_F(SymbolTables, AnErasedRecordIsNotFoundAndItsNameIsFree) {
  const auto gone = addLayer(L"管线");
  AcDbObjectPointer<AcDbLayerTableRecord>(gone, AcDb::kForWrite)->erase();
  AcDbObjectPointer<AcDbLayerTable> layers(db.layerTableId(), AcDb::kForRead);
  AcDbObjectId id;
  EXPECT_EQ(layers->getAt(L"管线", id), Acad::eWasErased);
  EXPECT_EQ(layers->getAt(L"管线", id, true), Acad::eOk);
  EXPECT_EQ(id, gone);
  layers.close();
  EXPECT_NE(addLayer(L"管线"), gone);
}

TEST_F(SymbolTables, ALayerTakesOnlyValuesThatADrawingMayHold) {
  AcDbObjectPointer<AcDbLayerTableRecord> layer(addLayer(L"管线"), AcDb::kForWrite);
  EXPECT_EQ(layer->setColor(AcCmColor(256)), Acad::eInvalidInput);
  EXPECT_EQ(layer->setColor(AcCmColor(0)), Acad::eInvalidInput);
  EXPECT_EQ(layer->setColor(AcCmColor(5)), Acad::eOk);
  EXPECT_EQ(layer->setLineWeight(static_cast<AcDb::LineWeight>(28)), Acad::eInvalidInput);
  EXPECT_EQ(layer->setLineWeight(AcDb::kLnWt030), Acad::eOk);
  EXPECT_EQ(layer->setLinetypeObjectId(AcDbObjectId()), Acad::eNullObjectId);
  EXPECT_EQ(layer->setLinetypeObjectId(db.clayer()), Acad::eNotThatKindOfClass);
  AcDbObjectId byLayer;
  db.tableOf("LTYPE")->getAt(L"ByLayer", byLayer);
  EXPECT_EQ(layer->setLinetypeObjectId(byLayer), Acad::eInvalidInput);
}

TEST_F(SymbolTables, TheCurrentLayerCannotBeFrozenButSwitchedOffAndLocked) {
  const auto id = addLayer(L"管线");
  db.setClayer(id);
  AcDbObjectPointer<AcDbLayerTableRecord> layer(id, AcDb::kForWrite);
  EXPECT_EQ(layer->setIsFrozen(true), Acad::eInvalidInput);
  EXPECT_FALSE(layer->isFrozen());
  EXPECT_EQ(layer->setIsOff(true), Acad::eOk);
  EXPECT_EQ(layer->setIsLocked(true), Acad::eOk);
}

TEST_F(SymbolTables, AnOffLayerIsFiledWithANegativeColourAndFlagsOfItsStates) {
  const auto id = addLayer(L"管线");
  {
    AcDbObjectPointer<AcDbLayerTableRecord> layer(id, AcDb::kForWrite);
    layer->setColor(AcCmColor(3));
    layer->setIsOff(true);
    layer->setIsFrozen(true);
    layer->setIsLocked(true);
    layer->setVPDFLT(true);
  }
  const std::string text(id.object()->record().text());
  EXPECT_NE(text.find(" 70\n7\n"), text.npos) << text;
  EXPECT_NE(text.find(" 62\n-3\n"), text.npos) << text;
}

TEST_F(SymbolTables, WhatEveryDrawingMustHaveKeepsItsName) {
  AcDbObjectPointer<AcDbLayerTableRecord> zero(db.clayer(), AcDb::kForWrite);
  EXPECT_EQ(zero->setName(L"零"), Acad::eInvalidName);
  EXPECT_EQ(zero->name(), L"0");
}

TEST_F(SymbolTables, AFrozenLayerCannotBecomeCurrent) {
  const auto id = addLayer(L"管线");
  AcDbObjectPointer<AcDbLayerTableRecord>(id, AcDb::kForWrite)->setIsFrozen(true);
  EXPECT_EQ(db.setClayer(id), Acad::eInvalidInput);
  EXPECT_NE(db.clayer(), id);
}

TEST_F(SymbolTables, SetClayerRefusesWhatIsNoLayerOfTheDrawing) {
  AcDbDatabase other;
  EXPECT_EQ(db.setClayer(AcDbObjectId()), Acad::eNullObjectId);
  EXPECT_EQ(db.setClayer(other.clayer()), Acad::eNullObjectId);
  EXPECT_EQ(db.setClayer(db.modelSpaceId()), Acad::eNotThatKindOfClass);
  EXPECT_EQ(at<AcDbLayerTableRecord>(db.clayer()).name(), L"0");
}
