// INSERT: blocks of the drawing, files as blocks, and what their attributes are given.
#include "host/db/AcDbAttribute.h"
#include "host/db/AcDbBlockReference.h"
#include "host/db/ExtentsDraw.h"
#include "host/dxf/DrawingFile.h"
#include "tests/host/commands/CommandFixture.h"

#include <algorithm>
#include <numbers>

namespace {

class InsertCommand : public CommandFixture {
 protected:
  // A block with a line from its base point, one unit to the right.
  AcDbObjectId addBlock(const wchar_t* name, AcDbDatabase* to = nullptr) {
    AcDbObjectPointer<AcDbBlockTable> blocks((to ? *to : database()).blockTableId(), AcDb::kForWrite);
    auto* made = new AcDbBlockTableRecord;
    made->setName(name);
    EXPECT_EQ(Acad::eOk, blocks->add(made));
    const auto id = made->objectId();
    made->close();
    addTo(id, new AcDbLine({0, 0, 0}, {1, 0, 0}));
    return id;
  }
  static void addTo(const AcDbObjectId& block, AcDbEntity* entity) {
    AcDbObjectPointer<AcDbBlockTableRecord> record(block, AcDb::kForWrite);
    EXPECT_EQ(Acad::eOk, record->appendAcDbEntity(entity));
    entity->close();
  }
  AcDbAttributeDefinition* definition(const wchar_t* tag, const wchar_t* prompt, const wchar_t* text) {
    auto* made = new AcDbAttributeDefinition;
    made->setTag(tag);
    made->setPrompt(prompt);
    made->setTextString(text);
    made->setPosition({2, 1, 0});
    return made;
  }
  // A drawing file whose model space has a line of that length.
  CString drawingFile(const char* name, double length) {
    AcDbDatabase drawing(false);
    dxf::BuildNewDrawing(drawing);
    addTo(drawing.modelSpaceId(), new AcDbLine({0, 0, 0}, {length, 0, 0}));
    write(file(name), dxf::WriteDrawingBytes(drawing));
    return file(name);
  }
  const AcDbBlockReference& reference() {
    const auto* found = only<AcDbBlockReference>();
    EXPECT_TRUE(found);
    return *found;
  }
  std::vector<CString> values() {
    std::vector<CString> texts;
    for (const auto& id : reference().attributes())
      texts.push_back(AcDbAttribute::cast(id.object())->textString());
    return texts;
  }
  bool wasAsked(const wchar_t* part) const {
    return std::any_of(frontEnd.prompts.begin(), frontEnd.prompts.end(),
                       [&](const CString& prompt) { return prompt.Find(part) >= 0; });
  }
  double lineLength(const AcDbObjectId& block) {
    AcDbObjectPointer<AcDbBlockTableRecord> record(block, AcDb::kForRead);
    double length = 0;
    for (const auto& id : record->entities())
      if (!id.isErased() && AcDbLine::cast(id.object()))
        length += AcDbLine::cast(id.object())->endPoint().x - AcDbLine::cast(id.object())->startPoint().x;
    return length;
  }
};

} // namespace

TEST_F(InsertCommand, TakesABlockWithTheUsualScaleAndRotation) {
  const auto block = addBlock(L"阀");
  run(L"INSERT", {L"阀", L"5,6", L"", L"", L""});
  EXPECT_FALSE(refused()) << reason().ToUtf8();
  EXPECT_EQ(block, reference().blockTableRecord());
  EXPECT_EQ(AcGePoint3d(5, 6, 0), reference().position());
  EXPECT_EQ(AcGeVector3d(1, 1, 1), reference().scaleFactors());
  EXPECT_EQ(0, reference().rotation());
  run(L"U");
  EXPECT_EQ(0u, entityCount());
}

TEST_F(InsertCommand, YIsScaledLikeXUnlessToldOtherwise) {
  addBlock(L"阀");
  run(L"INSERT", {L"阀", L"0,0", L"2", L"", L"90"});
  EXPECT_EQ(AcGeVector3d(2, 2, 2), reference().scaleFactors());
  EXPECT_NEAR(std::numbers::pi / 2, reference().rotation(), 1e-12);
  run(L"INSERT", {L"阀", L"0,0", L"2", L"-3", L""});
  EXPECT_EQ(AcGeVector3d(2, -3, 2), reference().scaleFactors());
  run(L"INSERT", {L"阀", L"0,0", L"XYZ", L"2", L"3", L"4", L""});
  EXPECT_EQ(AcGeVector3d(2, 3, 4), reference().scaleFactors());
  run(L"INSERT", {L"阀", L"10,10", L"C", L"15,12", L""});
  EXPECT_EQ(AcGeVector3d(5, 2, 5), reference().scaleFactors());
}

TEST_F(InsertCommand, ScaleAndRotationMayComeFirst) {
  addBlock(L"阀");
  run(L"INSERT", {L"阀", L"S", L"2", L"R", L"180", L"1,1"});
  EXPECT_EQ(AcGeVector3d(2, 2, 2), reference().scaleFactors());
  EXPECT_NEAR(std::numbers::pi, reference().rotation(), 1e-12);
  EXPECT_TRUE(frontEnd.lines.empty()) << "nothing is asked twice";
}

TEST_F(InsertCommand, AFactorIsNotZero) {
  addBlock(L"阀");
  run(L"INSERT", {L"阀", L"0,0", L"0", L"2", L"", L""});
  EXPECT_GE(reason().Find(L"不能为零"), 0);
  run(L"INSERT", {L"阀", L"0,0", L"C", L"5,0", L"5,5", L""});
  EXPECT_GE(reason().Find(L"不能为零"), 0);
  EXPECT_EQ(2u, entityCount());
}

TEST_F(InsertCommand, TheLastBlockIsTheUsualOne) {
  addBlock(L"阀");
  run(L"INSERT", {L"阀", L"0,0", L"", L"", L""});
  run(L"INSERT", {L"", L"7,0", L"", L"", L""});
  EXPECT_EQ(2u, entityCount());
  EXPECT_TRUE(wasAsked(L"<阀>"));
}

TEST_F(InsertCommand, ListsTheBlocksOfTheDrawing) {
  addBlock(L"阀");
  addBlock(L"泵");
  addBlock(L"*U");
  run(L"INSERT", {L"?", L"", L"*cancel*"});
  EXPECT_TRUE(frontEnd.said(L"  阀\n"));
  EXPECT_TRUE(frontEnd.said(L"共 2 个块")) << "spaces and anonymous ones are not for users";
  run(L"INSERT", {L"?", L"泵*", L"*cancel*"});
  EXPECT_TRUE(frontEnd.said(L"共 1 个块"));
}

TEST_F(InsertCommand, ANameThatIsNoneIsRefused) {
  for (const wchar_t* name : {L"没有", L"*Model_Space", L"*U1", L"没有.dxf"}) {
    frontEnd.refusals.clear();
    run(L"INSERT", {name, L"*cancel*"});
    EXPECT_GE(reason().Find(L"没有块"), 0) << CString(name).ToUtf8();
  }
  EXPECT_EQ(0u, entityCount());
}

TEST_F(InsertCommand, AttributesAreAskedForWithTheirPromptsAndDefaults) {
  const auto block = addBlock(L"图框");
  addTo(block, definition(L"图名", L"请输入图名", L"未定"));
  addTo(block, definition(L"图号", L"", L""));
  auto* constant = definition(L"单位", L"", L"mm");
  constant->setConstant(true);
  addTo(block, constant);
  run(L"INSERT", {L"图框", L"10,0", L"2", L"", L"", L"", L"暖施 01"});
  EXPECT_TRUE(wasAsked(L"请输入图名 <未定>:"));
  EXPECT_TRUE(wasAsked(L"图号:"));
  EXPECT_EQ(values(), (std::vector<CString>{L"未定", L"暖施 01"}));
  const auto& first = *AcDbAttribute::cast(reference().attributes().front().object());
  EXPECT_EQ(L"图名", first.tag());
  EXPECT_EQ(AcGePoint3d(14, 2, 0), first.position()) << "where the definition stands in the block";
  EXPECT_EQ(5, first.height()) << "twice 2.5";
  run(L"U");
  EXPECT_EQ(0u, entityCount());
}

TEST_F(InsertCommand, WithoutAttreqNothingIsAsked) {
  addTo(addBlock(L"图框"), definition(L"图名", L"请输入图名", L"未定"));
  SystemVariables::set(L"ATTREQ", 0L);
  run(L"INSERT", {L"图框", L"0,0", L"", L"", L""});
  EXPECT_EQ(values(), std::vector<CString>{L"未定"});
}

TEST_F(InsertCommand, EscapeAtAnAttributeInsertsNothing) {
  addTo(addBlock(L"图框"), definition(L"图名", L"请输入图名", L"未定"));
  run(L"INSERT", {L"图框", L"0,0", L"", L"", L"", L"*cancel*"});
  EXPECT_EQ(0u, entityCount());
}

TEST_F(InsertCommand, AnAttributeUnderUnevenScalesKeepsUprightLetters) {
  addTo(addBlock(L"图框"), definition(L"图名", L"", L"未定"));
  run(L"INSERT", {L"图框", L"0,0", L"4", L"2", L"90", L""});
  const auto& text = *AcDbAttribute::cast(reference().attributes().front().object());
  EXPECT_TRUE(text.position().isEqualTo({-2, 8, 0}));
  EXPECT_NEAR(5, text.height(), 1e-12);
  EXPECT_NEAR(2, text.widthFactor(), 1e-12);
  EXPECT_NEAR(std::numbers::pi / 2, text.rotation(), 1e-12);
}

TEST_F(InsertCommand, AFileBecomesABlock) {
  const CString path = drawingFile("风机.dxf", 7);
  run(L"INSERT", {path, L"1,1", L"", L"", L""});
  EXPECT_FALSE(refused()) << reason().ToUtf8();
  EXPECT_TRUE(frontEnd.said(L"块“风机”已定义"));
  EXPECT_EQ(7, lineLength(reference().blockTableRecord()));
  run(L"U");
  run(L"INSERT", {L"?", L"", L"*cancel*"});
  EXPECT_TRUE(frontEnd.said(L"共 0 个块")) << "undo takes the block back as well";
}

TEST_F(InsertCommand, AFileIsFoundBesideTheDrawingWithoutItsEnding) {
  drawingFile("风机.dxf", 7);
  document->setFileName(file("图.dxf"));
  run(L"INSERT", {L"风机", L"1,1", L"", L"", L""});
  EXPECT_EQ(7, lineLength(reference().blockTableRecord()));
}

TEST_F(InsertCommand, AFileIsADrawingByItsContentAndNotByItsName) {
  const CString path = drawingFile("FJPG1.Dwg", 7);
  run(L"INSERT", {path, L"1,1", L"", L"", L""});
  EXPECT_EQ(7, lineLength(reference().blockTableRecord()));
  EXPECT_TRUE(frontEnd.said(L"块“FJPG1”已定义"));
}

TEST_F(InsertCommand, ATildeAsksForAFile) {
  const CString path = drawingFile("风机.dxf", 7);
  run(L"INSERT", {L"~", path, L"1,1", L"", L"", L""});
  EXPECT_EQ(7, lineLength(reference().blockTableRecord()));
}

TEST_F(InsertCommand, PresetAttributesAreNotAskedForAndVerifiedOnesTwice) {
  const std::string attdef = "0\nATTDEF\n8\n0\n10\n0.0\n20\n0.0\n40\n2.5\n";
  write(file("签.dxf"), "0\nSECTION\n2\nENTITIES\n" + attdef + "1\n暖通\n3\n\n2\n专业\n70\n8\n" + attdef +
                            "1\n\n3\n图号\n2\n图号\n70\n4\n0\nENDSEC\n0\nEOF\n");
  run(L"INSERT", {file("签.dxf"), L"0,0", L"", L"", L"", L"A", L"B"});
  EXPECT_EQ(values(), (std::vector<CString>{L"暖通", L"B"}));
  EXPECT_TRUE(wasAsked(L"图号 <A>:")) << "with what was typed first";
}

TEST_F(InsertCommand, ABlockThatIsThereIsRedefinedOnlyIfAskedTo) {
  const CString path = drawingFile("风机.dxf", 7);
  const auto block = addBlock(L"风机");
  run(L"INSERT", {path, L"", L"0,0", L"", L"", L""});
  EXPECT_EQ(1, lineLength(block));
  run(L"INSERT", {path, L"Y", L"0,0", L"", L"", L""});
  EXPECT_EQ(7, lineLength(block));
  EXPECT_EQ(block, reference().blockTableRecord());
  run(L"U");
  EXPECT_EQ(1, lineLength(block));
}

TEST_F(InsertCommand, ABlockIsNotRedefinedToContainItself) {
  AcDbDatabase drawing(false);
  dxf::BuildNewDrawing(drawing);
  addTo(drawing.modelSpaceId(), new AcDbBlockReference({0, 0, 0}, addBlock(L"风机", &drawing)));
  write(file("风机.dxf"), dxf::WriteDrawingBytes(drawing));
  const auto block = addBlock(L"风机");
  run(L"INSERT", {file("风机.dxf"), L"Y"});
  EXPECT_GE(reason().Find(L"不能包含自己"), 0);
  EXPECT_EQ(1, lineLength(block));
  EXPECT_EQ(0u, entityCount());
}

TEST_F(InsertCommand, ADamagedFileIsRefused) {
  write(file("坏.dxf"), "  0\nSECTION\n  2\nENTITIES\n  0\nLINE\n");
  run(L"INSERT", {file("坏.dxf")});
  EXPECT_TRUE(refused());
  EXPECT_EQ(0u, entityCount());
  drawingFile("a,b.dxf", 1);
  run(L"INSERT", {file("a,b.dxf")});
  EXPECT_GE(reason().Find(L"不能作块名"), 0);
}

TEST_F(InsertCommand, TheBlockIsShownOnItsWay) {
  addBlock(L"阀");
  std::vector<AcGePoint3d> ends;
  frontEnd.onTransients = [&] {
    ExtentsDraw box;
    session().transients().draw(box);
    if (!box.extents().isEmpty()) ends.push_back(box.extents().maxPoint());
  };
  run(L"INSERT", {L"阀", L"drag 4,4", L"0,0", L"2", L"", L"drag 0,5", L""});
  EXPECT_NE(std::find(ends.begin(), ends.end(), AcGePoint3d(5, 4, 0)), ends.end());
  EXPECT_TRUE(std::any_of(ends.begin(), ends.end(), [](const AcGePoint3d& p) {
    return p.isEqualTo({0, 2, 0});
  })) << "turned, and as large as it was asked to be";
}
