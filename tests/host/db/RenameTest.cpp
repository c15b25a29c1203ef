#include "tests/host/db/DrawingFixture.h"

#include "host/db/AcDbUnknownEntity.h"
#include "host/db/AcDbUnknownObject.h"

namespace {

class Renames : public Drawing {
 protected:
  AcDbObjectId addUnknown(const std::string& text) {
    auto* entity = new AcDbUnknownEntity;
    entity->setRecord(DxfRecord::own(text), DxfDecodeContext(db));
    return addToModelSpace(entity);
  }
  Acad::ErrorStatus rename(const char* table, const wchar_t* from, const wchar_t* to) {
    AcDbObjectId id;
    db.tableOf(table)->getAt(from, id);
    AcDbObjectPointer<AcDbSymbolTableRecord> record(id, AcDb::kForWrite);
    return record ? record->setName(to) : record.openStatus();
  }
  template <typename Record> void add(const char* table, const wchar_t* name) {
    AcDbObjectPointer<AcDbSymbolTable> open(db.tableOf(table)->objectId(), AcDb::kForWrite);
    auto* record = new Record;
    record->setName(name);
    ASSERT_EQ(open->add(record), Acad::eOk);
    record->close();
  }
};

std::string textOf(const AcDbObjectId& id) {
  return std::string(id.object()->record().text());
}

} // namespace

TEST_F(Renames, ALayerIsRenamedInExtendedDataAndInUnknownEntities) {
  addLayer(L"管线");
  const auto line = addLine();
  {
    AcDbObjectPointer<AcDbLine> open(line, AcDb::kForWrite);
    ASSERT_EQ(
        open->setXData(ResbufBuilder().text(1001, L"ACAD").text(1003, L"管线").text(1000, L"管线").chain()),
        Acad::eOk);
  }
  const auto mtext =
      addUnknown("  0\nMTEXT\n100\nAcDbEntity\n  8\n管线\n100\nAcDbMText\n  1\n管线\n1001\nACAD\n1003\n"
                 "管线\n");
  ASSERT_EQ(rename("LAYER", L"管线", L"供水"), Acad::eOk);
  EXPECT_NE(textOf(line).find("1003\n供水\n1000\n管线\n"), std::string::npos) << textOf(line);
  const std::string text = textOf(mtext);
  EXPECT_NE(text.find("  8\n供水\n"), text.npos) << text;
  EXPECT_NE(text.find("  1\n管线\n"), text.npos) << text; // content is not a name
  EXPECT_NE(text.find("1003\n供水\n"), text.npos) << text;
}

TEST_F(Renames, ATextStyleIsRenamedInMultiLineTexts) {
  add<AcDbTextStyleTableRecord>("STYLE", L"仿宋");
  const auto mtext = addUnknown("  0\nMTEXT\n100\nAcDbEntity\n  8\n0\n100\nAcDbMText\n  7\n仿宋\n");
  ASSERT_EQ(rename("STYLE", L"仿宋", L"黑体"), Acad::eOk);
  EXPECT_NE(textOf(mtext).find("  7\n黑体\n"), std::string::npos);
}

TEST_F(Renames, ABlockIsRenamedInDimensionsInsertionsAndItsOwnMarks) {
  add<AcDbBlockTableRecord>("BLOCK_RECORD", L"图块");
  const auto dimension =
      addUnknown("  0\nDIMENSION\n100\nAcDbEntity\n  8\n0\n100\nAcDbDimension\n  2\n图块\n  3\n图块\n"
                 "100\nAcDbAlignedDimension\n");
  const auto old =
      addUnknown("  0\nACAD_TABLE\n100\nAcDbEntity\n  8\n图块\n100\nAcDbBlockReference\n  2\n图块\n");
  ASSERT_EQ(rename("BLOCK_RECORD", L"图块", L"新块"), Acad::eOk);
  const std::string text = textOf(dimension);
  EXPECT_NE(text.find("  2\n新块\n"), text.npos) << text;
  EXPECT_NE(text.find("  3\n图块\n"), text.npos) << text; // of a dimension style
  EXPECT_NE(textOf(old).find("  8\n图块\n"), std::string::npos) << textOf(old);
  EXPECT_NE(textOf(old).find("  2\n新块\n"), std::string::npos);
  AcDbObjectId block;
  db.tableOf("BLOCK_RECORD")->getAt(L"新块", block);
  EXPECT_NE(textOf(at<AcDbBlockTableRecord>(block).blockBeginId()).find("  2\n新块\n"), std::string::npos);
}

TEST_F(Renames, NamesCompareWithoutCase) {
  addLayer(L"Pipe");
  const auto unknown = addUnknown("  0\nHELIX\n100\nAcDbEntity\n  8\nPIPE\n100\nAcDbHelix\n 90\n1\n");
  ASSERT_EQ(rename("LAYER", L"pipe", L"Duct"), Acad::eOk);
  EXPECT_NE(textOf(unknown).find("  8\nDuct\n"), std::string::npos);
}

TEST_F(Renames, SettingsOfTheDrawingFollow) {
  add<AcDbTextStyleTableRecord>("STYLE", L"仿宋");
  {
    AcDbObjectPointer<AcDbHeader> header(db.headerId(), AcDb::kForWrite);
    header->setVariable("$TEXTSTYLE", "  7\n仿宋\n");
    header->setVariable("$DIMTXSTY", "  7\nStandard\n");
  }
  ASSERT_EQ(rename("STYLE", L"仿宋", L"黑体"), Acad::eOk);
  EXPECT_EQ(db.header().text("$TEXTSTYLE"), CString(L"黑体"));
  EXPECT_EQ(db.header().text("$DIMTXSTY"), CString(L"Standard"));
}

TEST_F(Renames, OldDrawingsWithoutMarkersAreUnderstood) {
  addLayer(L"管线");
  const auto solid = addUnknown("  0\nSOLID\n  8\n管线\n 10\n0.0\n");
  ASSERT_EQ(rename("LAYER", L"管线", L"供水"), Acad::eOk);
  EXPECT_NE(textOf(solid).find("  8\n供水\n"), std::string::npos);
}

TEST_F(Renames, AreTakenBackAndRepeatedInEveryRecord) {
  addLayer(L"管线");
  const auto unknown =
      addUnknown("  0\nHELIX\n100\nAcDbEntity\n  8\n管线\n100\nAcDbHelix\n 90\n1\n1001\nACAD\n1003\n管线\n");
  const auto line = addLine();
  AcDbObjectPointer<AcDbLine>(line, AcDb::kForWrite)->setLayer(L"管线");
  const std::string before = textOf(unknown);
  db.undo().beginCommand(L"RENAME");
  ASSERT_EQ(rename("LAYER", L"管线", L"供水"), Acad::eOk);
  db.undo().endCommand();
  const std::string after = textOf(unknown);
  EXPECT_NE(after, before);
  ASSERT_EQ(db.undo().undo(), Acad::eOk);
  EXPECT_EQ(textOf(unknown), before);
  EXPECT_EQ(at<AcDbLine>(line).layer(), L"管线");
  EXPECT_NE(textOf(line).find("  8\n管线\n"), std::string::npos);
  ASSERT_EQ(db.undo().redo(), Acad::eOk);
  EXPECT_EQ(textOf(unknown), after);
  EXPECT_EQ(at<AcDbLine>(line).layer(), L"供水");
}
