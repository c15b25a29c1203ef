// Blocks of fan-coil units made from what is drawn.
#include "host/afx/MessageLog.h"
#include "host/db/AcDbBlockReference.h"
#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbText.h"
#include "tests/plugin/fancoil/dialogs/FanCoilDialogs.h"
#include "tests/support/WorkingDrawing.h"

namespace {

using namespace fancoil;

class FanCoilBlockMaking : public FanCoilDialogs {
 protected:
  FanCoilBlockMaking() { Draw(); }
  AcDbDatabase& Drawing() { return *acDocManagerPtr()->curDocument()->database(); }
  static std::vector<AcDbObjectId> Live(const AcDbObjectId& block) {
    const AcDbObjectPointer<AcDbBlockTableRecord> record(block, AcDb::kForRead);
    std::vector<AcDbObjectId> ids;
    for (const auto& id : record->entities())
      if (!id.isErased()) ids.push_back(id);
    return ids;
  }
  AcDbObjectId Block(AcDbDatabase& drawing, const wchar_t* name) {
    const AcDbObjectPointer<AcDbBlockTable> blocks(drawing.blockTableId(), AcDb::kForRead);
    AcDbObjectId id;
    blocks->getAt(name, id);
    return id;
  }
  BlockPick Everything() { return {Live(Drawing().modelSpaceId()), {100, 200, 0}, {10, 5, 0}}; }
  AcDbObjectId Insert(const AcDbObjectId& block) {
    return WorkingDrawing::AppendTo(Drawing(), new AcDbBlockReference({0, 0, 0}, block));
  }
  static AcDbExtents BoxOf(const AcDbObjectId& id) {
    AcDbExtents box;
    AcDbObjectPointer<AcDbEntity>(id, AcDb::kForRead)->getGeomExtents(box);
    return box;
  }
};

TEST_F(FanCoilBlockMaking, AsksForEntitiesAndTwoPoints) {
  TypePick();
  const auto pick = AskForBlock();
  ASSERT_TRUE(pick);
  EXPECT_EQ(pick->entities.size(), 2u);
  EXPECT_EQ(pick->insertion, AcGePoint3d(100, 200, 0));
  EXPECT_EQ(pick->label, AcGePoint3d(10, 5, 0)) << "counted from the insertion point";
  ASSERT_EQ(user.prompts.size(), 4u);
  EXPECT_EQ(user.prompts[0], L"请选择需要创建块的实体");
  EXPECT_EQ(user.prompts[2], L"请指定插入点:");
  EXPECT_EQ(user.prompts[3], L"请指定自动添加的标注插入点:");
}

TEST_F(FanCoilBlockMaking, AsksUntilSomethingIsSelected) {
  user.type({L"", L"w 0,0 1,1", L"", L"all", L"", L"100,200", L"110,205"});
  const auto pick = AskForBlock();
  ASSERT_TRUE(pick);
  EXPECT_EQ(pick->entities.size(), 2u);
}

TEST_F(FanCoilBlockMaking, EndsWithAnyCancel) {
  const std::vector<std::vector<const wchar_t*>> cancelled = {{L"*cancel*"},
                                                              {L"all", L"*cancel*"},
                                                              {L"all", L"", L"*cancel*"},
                                                              {L"all", L"", L""},
                                                              {L"all", L"", L"100,200", L"*cancel*"},
                                                              {L"all", L"", L"100,200", L""},
                                                              {}};
  for (const auto& lines : cancelled) {
    user.lines.assign(lines.begin(), lines.end());
    EXPECT_FALSE(AskForBlock());
    EXPECT_TRUE(user.lines.empty());
  }
}

TEST_F(FanCoilBlockMaking, LeavesTheCopiesInABlockOfTheDrawing) {
  ASSERT_TRUE(MakeBlockDrawing(Everything()));
  const AcDbObjectId block = Block(Drawing(), L"123");
  ASSERT_TRUE(block);
  EXPECT_EQ(Live(block).size(), 2u);
  EXPECT_EQ(Live(Drawing().modelSpaceId()).size(), 2u) << "what was selected stays";
  const AcDbObjectPointer<AcDbBlockTableRecord> record(block, AcDb::kForRead);
  EXPECT_EQ(record->origin(), AcGePoint3d(100, 200, 0));
}

TEST_F(FanCoilBlockMaking, PutsTheInsertionPointAtTheOrigin) {
  const auto made = MakeBlockDrawing(Everything());
  ASSERT_TRUE(made);
  const auto shown = Live(made->drawing->modelSpaceId());
  ASSERT_EQ(shown.size(), 1u);
  EXPECT_EQ(BoxOf(shown[0]).minPoint(), AcGePoint3d(0, 0, 0));
  EXPECT_EQ(BoxOf(shown[0]).maxPoint(), AcGePoint3d(60, 30, 0));
  EXPECT_EQ(made->extents.maxPoint() - made->extents.minPoint(), AcGeVector3d(60, 30, 0));
  EXPECT_TRUE(Block(*made->drawing, L"123linshi"));
}

TEST_F(FanCoilBlockMaking, ReplacesAnOlderBlock) {
  ASSERT_TRUE(MakeBlockDrawing(Everything()));
  const AcDbObjectId shown = Insert(Block(Drawing(), L"123"));
  BlockPick pick{{WorkingDrawing::AppendTo(Drawing(), new AcDbLine({0, 0, 0}, {7, 0, 0}))}, {0, 0, 0}, {}};
  const auto made = MakeBlockDrawing(pick);
  ASSERT_TRUE(made);
  EXPECT_EQ(made->extents.maxPoint(), AcGePoint3d(7, 0, 0));
  EXPECT_EQ(Live(Block(Drawing(), L"123")).size(), 1u);
  EXPECT_EQ(BoxOf(shown).maxPoint(), AcGePoint3d(7, 0, 0)) << "insertions show the new one";
}

TEST_F(FanCoilBlockMaking, RefusesEntitiesThatInsertTheOlderBlock) {
  ASSERT_TRUE(MakeBlockDrawing(Everything()));
  const AcDbObjectId shown = Insert(Block(Drawing(), L"123"));
  afx::ClearLoggedMessages();
  EXPECT_FALSE(MakeBlockDrawing({{shown}, {0, 0, 0}, {}}));
  EXPECT_EQ(Live(Block(Drawing(), L"123")).size(), 2u) << "which stays as it was";
  EXPECT_EQ(afx::LoggedMessages().size(), 1u);
}

TEST_F(FanCoilBlockMaking, NeedsADocument) {
  const BlockPick pick{{}, {0, 0, 0}, {}};
  acDocManagerPtr()->closeAll();
  EXPECT_FALSE(AskForBlock());
  EXPECT_FALSE(MakeBlockDrawing(pick));
}

class FanCoilPreview : public FanCoilDialogs {
 protected:
  static CString TextIn(AcDbDatabase& drawing) {
    const AcDbObjectPointer<AcDbBlockTableRecord> space(drawing.modelSpaceId(), AcDb::kForRead);
    for (const auto& id : space->entities())
      if (const auto* text = AcDbText::cast(id.object())) return text->textString();
    return {};
  }
  CDialog form{L"窗口"};
  BlockPreview preview{form, L"图块预览"};
};

TEST_F(FanCoilPreview, ShowsTheDrawingOfTheBlock) {
  Draw();
  std::filesystem::create_directories(install.Root() / "Data/FCUDwg");
  ASSERT_EQ(acDocManagerPtr()->curDocument()->database()->saveAs(BlockPath(L"FJPG1")), Acad::eOk);
  preview.ShowBlock(L"FJPG1");
  ASSERT_TRUE(preview.GetDrawing());
  EXPECT_EQ(TextIn(*preview.GetDrawing()), L"");
  const AcDbObjectPointer<AcDbBlockTableRecord> space(preview.GetDrawing()->modelSpaceId(), AcDb::kForRead);
  EXPECT_EQ(space->entities().size(), 2u);
}

TEST_F(FanCoilPreview, SaysWhereThereIsNone) {
  install.Write("Data/FCUDwg/FJPG2.Dwg", "no drawing at all");
  for (const wchar_t* name : {L"", L"FJPG1", L"FJPG2", L"\"\n\U0001F600", L"../.."}) {
    preview.ShowBlock(name);
    ASSERT_TRUE(preview.GetDrawing());
    EXPECT_EQ(TextIn(*preview.GetDrawing()), L"Failed to Open Files!");
    EXPECT_TRUE(preview.IsWindowEnabled());
  }
}

TEST_F(FanCoilPreview, IsDisabledWhereNothingCanBeLocked) {
  preview.ShowBlock(L"FJPG1");
  acDocManagerPtr()->closeAll();
  preview.ShowBlock(L"FJPG1");
  EXPECT_FALSE(preview.IsWindowEnabled());
  EXPECT_FALSE(preview.GetDrawing());
  acDocManagerPtr()->newDocument();
  preview.ShowBlock(L"FJPG1");
  EXPECT_TRUE(preview.IsWindowEnabled());
}

} // namespace
