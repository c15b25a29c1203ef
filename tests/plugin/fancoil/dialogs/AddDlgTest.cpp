// Adding and changing a model of fan-coil unit.
#include "plugin/fancoil/dialogs/BlockFiles.h"
#include "tests/plugin/fancoil/dialogs/FanCoilDialogs.h"

namespace {

class FanCoilAddDlg : public FanCoilDialogs {
 protected:
  FanCoilAddDlg() { AddTwoMakers(); }
};

TEST_F(FanCoilAddDlg, BeginsANewModelWithAFreeBlockName) {
  Find(L"A", L"乙")->m_data.szDwgPath = L"FJPG41";
  InAdd([&](AddDlg& dialog) {
    EXPECT_EQ(dialog.m_ok.GetCaption(), L"确认添加");
    EXPECT_EQ(Text(dialog.m_properties, L"厂家名称"), L"甲");
    EXPECT_EQ(Text(dialog.m_properties, L"设备型号"), L"");
    EXPECT_EQ(Text(dialog.m_properties, L"图块名"), L"FJPG42");
    EXPECT_EQ(Text(dialog.m_properties, L"安装形式"), L"暗装");
    EXPECT_EQ(Text(dialog.m_properties, L"结构形式"), L"卧式");
    EXPECT_EQ(Text(dialog.m_properties, L"实际长(mm)"), L"100");
    for (int i = 0; i < dialog.m_properties.GetItemCount(); ++i)
      EXPECT_FALSE(dialog.m_properties.Item(i).readOnly) << dialog.m_properties.Item(i).label.ToUtf8();
    EXPECT_TRUE(dialog.m_preview.GetDrawing());
  });
}

TEST_F(FanCoilAddDlg, BeginsAChangeWithTheRecord) {
  CFCUEquipment& changed = *Find(L"C", L"甲");
  changed.m_data = FullRecord(L"C");
  changed.m_data.szFactory = L"甲";
  AddDlg dialog(changed, nullptr);
  dialogtest::Run<AddDlg>(frontEnd, dialog, [&](AddDlg& open) {
    EXPECT_EQ(open.m_ok.GetCaption(), L"确认修改");
    EXPECT_EQ(Text(open.m_properties, L"图块名"), changed.m_data.szDwgPath);
    EXPECT_TRUE(open.UserEnter());
  });
  EXPECT_EQ(dialog.Result(), IDOK);
  EXPECT_EQ(dialog.Record().szFactory, L"甲");
  ExpectSameRecord(dialog.Record(), changed.m_data);
  EXPECT_FALSE(dialog.HasBlock());
}

TEST_F(FanCoilAddDlg, StaysOpenWithoutAModelName) {
  for (const bool change : {false, true}) {
    const auto test = [&](AddDlg& dialog) {
      Set(dialog.m_properties, L"设备型号", L"");
      EXPECT_TRUE(dialog.m_ok.UserClick());
      ASSERT_EQ(frontEnd.boxes.size(), 1u);
      EXPECT_EQ(frontEnd.boxes[0].caption, L"青岚提示");
      EXPECT_EQ(frontEnd.takeBox(), L"型号名不能为空!");
      EXPECT_FALSE(dialog.HasEnded());
      Set(dialog.m_properties, L"设备型号", L"N");
      EXPECT_TRUE(dialog.m_ok.UserClick());
      EXPECT_TRUE(dialog.HasEnded());
    };
    EXPECT_EQ(change ? InChange(*Find(L"A", L"甲"), test) : InAdd(test), IDOK);
  }
}

TEST_F(FanCoilAddDlg, StaysOpenWithAModelThatTheMakerHas) {
  InAdd([&](AddDlg& dialog) {
    Set(dialog.m_properties, L"设备型号", L"B");
    EXPECT_TRUE(dialog.m_ok.UserClick());
    ASSERT_EQ(frontEnd.boxes.size(), 1u);
    EXPECT_EQ(frontEnd.boxes[0].caption, L"") << "the one box without a caption";
    EXPECT_EQ(frontEnd.boxes[0].buttons.size(), 1u);
    EXPECT_EQ(frontEnd.takeBox(), L"厂家\"甲\"拥有的设备中，型号名\"B\"已存在，请重新指定型号名!");
    EXPECT_FALSE(dialog.HasEnded());
    Set(dialog.m_properties, L"厂家名称", L"乙");
    EXPECT_TRUE(dialog.m_ok.UserClick());
    EXPECT_TRUE(dialog.HasEnded()) << "another maker may have it";
  });
}

TEST_F(FanCoilAddDlg, LetsAChangeTakeTheNameOfAnotherModel) {
  EXPECT_EQ(InChange(*Find(L"A", L"甲"),
                     [&](AddDlg& dialog) {
                       Set(dialog.m_properties, L"设备型号", L"B");
                       EXPECT_TRUE(dialog.m_ok.UserClick());
                     }),
            IDOK);
  EXPECT_TRUE(frontEnd.boxes.empty());
}

TEST_F(FanCoilAddDlg, MakesNoBlockWithoutAName) {
  InAdd([&](AddDlg& dialog) {
    Set(dialog.m_properties, L"图块名", L"");
    EXPECT_TRUE(dialog.m_pick.UserClick());
    ASSERT_EQ(frontEnd.boxes.size(), 1u);
    EXPECT_EQ(frontEnd.boxes[0].caption, L"青岚提示");
    EXPECT_EQ(frontEnd.takeBox(), L"图块名不能为空!");
    EXPECT_TRUE(user.prompts.empty());
  });
}

TEST_F(FanCoilAddDlg, MakesABlockAndSavesItWhenItIsConfirmed) {
  Draw();
  TypePick();
  AddDlg dialog(L"甲", nullptr);
  dialogtest::Run<AddDlg>(frontEnd, dialog, [&](AddDlg& open) {
    Set(open.m_properties, L"设备型号", L"N");
    Set(open.m_properties, L"功率(W)", L"55");
    const AcDbDatabase* before = open.m_preview.GetDrawing();
    EXPECT_TRUE(open.m_pick.UserClick());
    EXPECT_TRUE(open.IsWindowVisible());
    EXPECT_TRUE(open.HasBlock());
    EXPECT_NE(open.m_preview.GetDrawing(), before);
    EXPECT_EQ(Text(open.m_properties, L"功率(W)"), L"55") << "what was typed stays";
    EXPECT_FALSE(install.Has("Data/FCUDwg/FJPG1.Dwg"));
    EXPECT_TRUE(open.m_ok.UserClick());
  });
  EXPECT_TRUE(frontEnd.boxes.empty()) << "no other model has the block";
  EXPECT_EQ(dialog.Record().dbCadLength, 60);
  EXPECT_EQ(dialog.Record().dbCadWidth, 30);
  EXPECT_EQ(dialog.LabelPoint(), AcGePoint3d(10, 5, 0));
  AcDbDatabase saved(false);
  ASSERT_EQ(saved.readDwgFile(BlockPath(L"FJPG1")), Acad::eOk);
  EXPECT_EQ(saved.form().version, "AC1015");
}

TEST_F(FanCoilAddDlg, KeepsABlockToItselfWhenItIsCancelled) {
  Draw();
  TypePick();
  InAdd([&](AddDlg& dialog) {
    EXPECT_TRUE(dialog.m_pick.UserClick());
    EXPECT_TRUE(dialog.m_cancel.UserClick());
  });
  EXPECT_FALSE(install.Has("Data/FCUDwg/FJPG1.Dwg"));
}

TEST_F(FanCoilAddDlg, ComesBackWhenThePickIsCancelled) {
  Draw();
  InAdd([&](AddDlg& dialog) {
    user.type({L"all", L"", L"*cancel*"});
    user.beforeLine = [&] {
      EXPECT_FALSE(dialog.IsWindowVisible()) << "out of the way while the user picks";
    };
    EXPECT_TRUE(dialog.m_pick.UserClick());
    EXPECT_TRUE(dialog.IsWindowVisible());
    EXPECT_FALSE(dialog.HasBlock());
    TypePick();
    EXPECT_TRUE(dialog.m_pick.UserClick());
    user.type({L"*cancel*"});
    EXPECT_TRUE(dialog.m_pick.UserClick());
    EXPECT_TRUE(dialog.HasBlock()) << "the block that was made before stays";
  });
}

TEST_F(FanCoilAddDlg, TakesTheManagerAsideToo) {
  Draw();
  In([&](Dlg& manager) {
    Next([&](AddDlg& dialog) {
      TypePick();
      user.beforeLine = [&] { EXPECT_FALSE(manager.IsWindowVisible()); };
      EXPECT_TRUE(dialog.m_pick.UserClick());
      EXPECT_TRUE(manager.IsWindowVisible());
    });
    EXPECT_TRUE(manager.m_add.UserClick());
  });
}

TEST_F(FanCoilAddDlg, AsksBeforeABlockOfOthersIsMadeAnew) {
  Draw();
  CFCUEquipment& own = *Find(L"A", L"甲");
  own.m_data.szDwgPath = L"FJPG3";
  const CString question = L"修改图块后将会影响所有使用该图块名的设备，确定要修改吗？(推荐不重名图块：FJPG4)";
  InAdd([&](AddDlg& dialog) {
    Set(dialog.m_properties, L"图块名", L"FJPG3");
    EXPECT_TRUE(dialog.m_pick.UserClick());
    ASSERT_EQ(frontEnd.boxes.size(), 1u);
    EXPECT_EQ(frontEnd.boxes[0].buttons.size(), 2u);
    EXPECT_EQ(frontEnd.takeBox(), question);
    EXPECT_TRUE(user.prompts.empty()) << "cancelled";
    frontEnd.answers = {IDOK};
    TypePick();
    EXPECT_TRUE(dialog.m_pick.UserClick());
    EXPECT_TRUE(dialog.HasBlock());
    frontEnd.boxes.clear();
  });
  // Of a change the model itself doesn't count.
  InChange(own, [&](AddDlg& dialog) {
    TypePick();
    EXPECT_TRUE(dialog.m_pick.UserClick());
    EXPECT_TRUE(dialog.HasBlock());
    EXPECT_TRUE(frontEnd.boxes.empty());
  });
  // Nor does a single other one, whose name it takes.
  InChange(*Find(L"B", L"甲"), [&](AddDlg& dialog) {
    Set(dialog.m_properties, L"图块名", L"FJPG3");
    TypePick();
    EXPECT_TRUE(dialog.m_pick.UserClick());
    EXPECT_TRUE(dialog.HasBlock());
    EXPECT_TRUE(frontEnd.boxes.empty());
  });
  Find(L"A", L"乙")->m_data.szDwgPath = L"FJPG3";
  InChange(own, [&](AddDlg& dialog) {
    EXPECT_TRUE(dialog.m_pick.UserClick());
    EXPECT_EQ(frontEnd.takeBox(), question);
    EXPECT_FALSE(dialog.HasBlock());
  });
}

// The question was about the name that the block was made under.
TEST_F(FanCoilAddDlg, SavesABlockUnderTheNameThatItWasMadeUnder) {
  Draw();
  TypePick();
  InAdd([&](AddDlg& dialog) {
    Set(dialog.m_properties, L"设备型号", L"N");
    EXPECT_TRUE(dialog.m_pick.UserClick());
    Set(dialog.m_properties, L"图块名", L"later");
    EXPECT_TRUE(dialog.m_ok.UserClick());
    EXPECT_EQ(dialog.Record().szDwgPath, L"later");
  });
  EXPECT_TRUE(install.Has("Data/FCUDwg/FJPG1.Dwg"));
  EXPECT_FALSE(install.Has("Data/FCUDwg/later.Dwg"));
}

TEST_F(FanCoilAddDlg, MakesNoBlockWithoutADrawing) {
  acDocManagerPtr()->closeAll();
  InAdd([&](AddDlg& dialog) {
    EXPECT_TRUE(dialog.m_pick.UserClick());
    EXPECT_FALSE(dialog.HasBlock());
    EXPECT_TRUE(dialog.IsWindowVisible());
  });
}

// --- what the manager makes of a block

TEST_F(FanCoilAddDlg, RegistersABlockThatWasMadeForAsLongAsItIsOpen) {
  Draw();
  In([&](Dlg& dialog) {
    TypePick();
    Next([&](AddDlg& add) {
      Set(add.m_properties, L"设备型号", L"N");
      EXPECT_TRUE(add.m_pick.UserClick());
      EXPECT_TRUE(add.m_ok.UserClick());
    });
    EXPECT_TRUE(dialog.m_add.UserClick());
    AcGePoint3d label;
    dialog.Operation().GetFCUBzInsertPoint(L"FJPG1", label);
    EXPECT_EQ(label, AcGePoint3d(10, 5, 0));
  });
  ASSERT_TRUE(Find(L"N", L"甲"));
  EXPECT_EQ(Find(L"N", L"甲")->m_data.szDwgPath, L"FJPG1");
  EXPECT_EQ(Find(L"N", L"甲")->m_data.dbCadLength, 60);
  EXPECT_EQ(Find(L"N", L"甲")->m_data.dbCadWidth, 30);
  In([&](Dlg& dialog) {
    AcGePoint3d label(1, 2, 3);
    dialog.Operation().GetFCUBzInsertPoint(L"FJPG1", label);
    EXPECT_EQ(label, AcGePoint3d(1, 2, 3)) << "nothing of it is on the disk";
  });
}

TEST_F(FanCoilAddDlg, ShowsTheBlockOfAChangedModelFromItsFile) {
  Draw();
  In([&](Dlg& dialog) {
    TypePick();
    Next([&](AddDlg& add) {
      Set(add.m_properties, L"图块名", L"我的图块");
      EXPECT_TRUE(add.m_pick.UserClick());
      EXPECT_FALSE(dialog.m_preview.GetDrawing() == add.m_preview.GetDrawing());
      EXPECT_TRUE(add.m_ok.UserClick());
    });
    EXPECT_TRUE(dialog.m_modify.UserClick());
    ASSERT_TRUE(dialog.m_preview.GetDrawing());
    EXPECT_EQ(dialog.m_preview.GetDrawing()->fileName(), fancoil::BlockFile(L"我的图块"));
    AcGePoint3d label;
    dialog.Operation().GetFCUBzInsertPoint(L"我的图块", label);
    EXPECT_EQ(label, AcGePoint3d(10, 5, 0));
  });
}

} // namespace
