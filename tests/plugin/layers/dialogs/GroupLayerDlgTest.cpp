// The rules of the dialog of layer groups, one by one.
#include "tests/plugin/layers/dialogs/GroupDialogFixture.h"

#include "tests/support/ReadOnlyFolder.h"

namespace {

using dialogtest::Edit;
using dialogtest::RowsText;

class GroupLayerDlg : public GroupDialogFixture {};

TEST_F(GroupLayerDlg, ShowsTheGroupsAndTheLayersOfTheDrawing) {
  CCADGroupLayer* first = Group(L"采暖", {L"甲"});
  Group(L"给水");
  In([&](Dlg& dialog) {
    EXPECT_EQ(dialog.GetCaption(), L"CAD当前图纸图层分组");
    EXPECT_EQ(RowsText(dialog.m_groups), L"采暖 给水");
    EXPECT_EQ(dialog.m_groups.GetRowData(0), first);
    EXPECT_EQ(dialog.m_groups.Column(0).title, L"序号");
    EXPECT_EQ(dialog.m_groups.Column(0).width, 0);
    EXPECT_EQ(dialog.m_groups.GetItemText(0, 0), L"");
    EXPECT_EQ(dialog.m_groups.Column(1).title, L"分组");
    EXPECT_EQ(dialog.m_groups.GetCurSel(), -1);
    ASSERT_EQ(dialog.m_layers.TopItems().size(), 1u);
    const UiTreeItem& top = *dialog.m_layers.TopItems()[0];
    EXPECT_EQ(top.text, L"全部图层");
    EXPECT_TRUE(top.expanded);
    CString names;
    for (const auto& layer : top.children) names += layer->text + L" ";
    EXPECT_EQ(names, L"0 甲 乙 丙 丁 ");
    EXPECT_EQ(Ticked(dialog), L"");
    EXPECT_FALSE(top.checked);
    EXPECT_EQ(dialog.m_layers.GetCaption(), L"当前图纸所有图层");
    EXPECT_EQ(dialog.m_add.GetToolTip(), L"新建");
    EXPECT_EQ(dialog.m_remove.GetToolTip(), L"删除");
  });
}

TEST_F(GroupLayerDlg, HasAnEmptyTreeWhereTheLayersCannotBeRead) {
  Group(L"采暖", {L"甲"});
  const AcDbObjectPointer<AcDbLayerTable> held(Database().layerTableId(), AcDb::kForWrite);
  In([&](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_layers.TopItems().empty());
    EXPECT_TRUE(dialog.m_groups.UserClick(0, kName));
    EXPECT_TRUE(dialog.m_add.UserClick());
    EXPECT_TRUE(dialog.m_groups.UserTypeEdit(L"给水"));
    EXPECT_TRUE(dialog.m_groups.UserEndEdit());
  });
  EXPECT_EQ(Everything(), L"采暖(甲) 给水()");
}

TEST_F(GroupLayerDlg, TicksTheLayersOfTheRowThatIsClicked) {
  Group(L"采暖", {L"丁", L"甲", L"图中没有", L""});
  Group(L"给水", {L"乙"});
  In([&](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_groups.UserClick(0, kName));
    EXPECT_EQ(Ticked(dialog), L"甲 丁");
    EXPECT_TRUE(dialog.m_groups.UserClick(1, kName));
    EXPECT_EQ(Ticked(dialog), L"乙");
    EXPECT_EQ(RowsText(dialog.m_groups), L"采暖 给水");
  });
  EXPECT_EQ(Everything(), L"采暖(丁,甲,图中没有,) 给水(乙)") << "looking changes nothing";
}

TEST_F(GroupLayerDlg, TellsLayersApartByTheCaseOfTheirLetters) {
  WorkingDrawing::AddLayerTo(Database(), L"Pipe");
  Group(L"大写", {L"PIPE"});
  Group(L"原样", {L"Pipe"});
  In([&](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_groups.UserClick(0, kName));
    EXPECT_EQ(Ticked(dialog), L"");
    EXPECT_TRUE(dialog.m_groups.UserClick(1, kName));
    EXPECT_EQ(Ticked(dialog), L"Pipe");
  });
}

TEST_F(GroupLayerDlg, TicksTheTopWhileAllLayersAreTicked) {
  Group(L"全部", {L"0", L"甲", L"乙", L"丙", L"丁"});
  In([&](Dlg& dialog) {
    HTREEITEM top = dialog.m_layers.GetRootItem();
    EXPECT_TRUE(dialog.m_groups.UserClick(0, kName));
    EXPECT_TRUE(top->checked);
    Tick(dialog, L"乙", false);
    EXPECT_FALSE(top->checked);
    Tick(dialog, L"全部图层");
    EXPECT_EQ(Ticked(dialog), L"0 甲 乙 丙 丁");
    Tick(dialog, L"全部图层", false);
    EXPECT_EQ(Ticked(dialog), L"");
  });
}

TEST_F(GroupLayerDlg, MakesAGroupOfTheTickedLayersAndAsksForItsName) {
  Group(L"采暖");
  In([&](Dlg& dialog) {
    Tick(dialog, L"丙");
    Tick(dialog, L"甲");
    EXPECT_TRUE(dialog.m_add.UserClick());
    EXPECT_EQ(Everything(), L"采暖() (甲,丙)") << "in the order of the tree";
    EXPECT_EQ(dialog.m_groups.GetCurSel(), 1);
    ASSERT_TRUE(dialog.m_groups.CurrentEdit());
    EXPECT_EQ(dialog.m_groups.CurrentEdit()->row, 1);
    EXPECT_EQ(dialog.m_groups.CurrentEdit()->column, kName);
    EXPECT_TRUE(dialog.m_groups.UserTypeEdit(L"给水"));
    EXPECT_TRUE(dialog.m_groups.UserEndEdit());
    EXPECT_EQ(dialog.m_groups.GetRowData(1), manager.Groups()[1]);
  });
  EXPECT_TRUE(frontEnd.boxes.empty());
  Reload();
  EXPECT_EQ(Everything(), L"采暖() 给水(甲,丙)");
}

TEST_F(GroupLayerDlg, MakesNoSecondGroupWithoutAName) {
  In([&](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_add.UserClick());
    EXPECT_FALSE(dialog.m_add.UserClick()) << "the first one is to be named";
    EXPECT_EQ(frontEnd.takeBox(), L"图层组名称为空字串符，请重新输入!");
    EXPECT_EQ(dialog.m_groups.GetRowCount(), 1);
    ASSERT_TRUE(dialog.m_groups.CurrentEdit());
    EXPECT_EQ(dialog.m_groups.CurrentEdit()->row, 0);
  });
  EXPECT_EQ(Everything(), L"");
}

TEST_F(GroupLayerDlg, AsksForTheNameOfTheLastRowWhereAGroupHasNone) {
  Group(L"");
  Group(L"给水");
  In([&](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_add.UserClick());
    EXPECT_EQ(manager.Groups().GetSize(), 2);
    EXPECT_EQ(dialog.m_groups.GetRowCount(), 2);
    ASSERT_TRUE(dialog.m_groups.CurrentEdit());
    EXPECT_EQ(dialog.m_groups.CurrentEdit()->row, 1) << "whichever has no name";
    EXPECT_TRUE(dialog.m_groups.UserEndEdit());
  });
}

TEST_F(GroupLayerDlg, ReplacesTheLayersOfTheSelectedGroup) {
  Group(L"采暖", {L"丁", L"图中没有", L"甲"});
  In([&](Dlg& dialog) {
    Tick(dialog, L"乙");
    EXPECT_TRUE(dialog.m_modify.UserClick());
    EXPECT_EQ(Everything(), L"采暖(丁,图中没有,甲)") << "no row is selected";
    EXPECT_TRUE(dialog.m_groups.UserClick(0, kName));
    Tick(dialog, L"乙");
    EXPECT_TRUE(dialog.m_modify.UserClick());
    EXPECT_EQ(Everything(), L"采暖(甲,乙,丁)") << "what the drawing lacks is gone";
  });
  EXPECT_TRUE(frontEnd.boxes.empty());
}

TEST_F(GroupLayerDlg, AsksBeforeAGroupIsDeleted) {
  Group(L"采暖");
  Group(L"给水");
  In([&](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_remove.UserClick());
    EXPECT_TRUE(frontEnd.boxes.empty()) << "no row is selected";
    EXPECT_TRUE(dialog.m_groups.UserClick(0, kName));
    EXPECT_TRUE(dialog.m_remove.UserClick());
    ASSERT_EQ(frontEnd.boxes.size(), 1u);
    EXPECT_EQ(frontEnd.boxes[0].caption, L"青岚提示");
    EXPECT_EQ(frontEnd.boxes[0].buttons.size(), 2u);
    EXPECT_EQ(frontEnd.takeBox(), L"删除不可恢复，确定要删除【采暖】吗?");
    EXPECT_EQ(Everything(), L"采暖() 给水()");
    frontEnd.answers = {IDOK};
    EXPECT_TRUE(dialog.m_remove.UserClick());
    EXPECT_EQ(RowsText(dialog.m_groups), L"给水");
    EXPECT_EQ(dialog.m_groups.GetCurSel(), -1);
  });
  Reload();
  EXPECT_EQ(Everything(), L"给水()");
}

TEST_F(GroupLayerDlg, TakesNamesWithoutBlanksAndLeavesTheRowAsItWasTyped) {
  Group(L"采暖");
  In([&](Dlg& dialog) {
    EXPECT_TRUE(Edit(dialog.m_groups, 0, kName, L" 给水\t"));
    EXPECT_EQ(dialog.m_groups.GetItemText(0, kName), L" 给水\t");
  });
  EXPECT_EQ(Everything(), L"给水()");
}

TEST_F(GroupLayerDlg, RefusesEmptyNames) {
  Group(L"采暖");
  In([&](Dlg& dialog) {
    for (const wchar_t* text : {L"", L"  ", L"\t\n"}) {
      EXPECT_TRUE(Edit(dialog.m_groups, 0, kName, text));
      ASSERT_EQ(frontEnd.boxes.size(), 1u);
      EXPECT_EQ(frontEnd.boxes[0].caption, L"青岚提示");
      EXPECT_EQ(frontEnd.boxes[0].buttons.size(), 1u);
      EXPECT_EQ(frontEnd.takeBox(), L"图层组名称为空字串符，请重新输入!");
      ASSERT_TRUE(dialog.m_groups.CurrentEdit());
      EXPECT_TRUE(dialog.m_groups.UserCancelEdit());
    }
    EXPECT_FALSE(dialog.m_groups.CurrentEdit()) << "it has its old name again";
  });
  EXPECT_EQ(Everything(), L"采暖()");
}

TEST_F(GroupLayerDlg, RefusesNamesThatAreTakenAlsoWithBlanksAtTheirEnds) {
  Group(L"采暖");
  Group(L"Group");
  In([&](Dlg& dialog) {
    for (const wchar_t* text : {L"采暖", L" 采暖", L"采暖\t"}) {
      EXPECT_TRUE(Edit(dialog.m_groups, 1, kName, text));
      EXPECT_EQ(frontEnd.takeBox(), L"【采暖】已经存在，请重新输入图层组名称！");
      ASSERT_TRUE(dialog.m_groups.CurrentEdit());
      EXPECT_TRUE(dialog.m_groups.UserCancelEdit());
    }
    EXPECT_TRUE(Edit(dialog.m_groups, 0, kName, L" 空格 "));
    EXPECT_TRUE(Edit(dialog.m_groups, 1, kName, L"空格"));
    EXPECT_EQ(frontEnd.takeBox(), L"【空格】已经存在，请重新输入图层组名称！") << "however its row was typed";
    EXPECT_TRUE(dialog.m_groups.UserCancelEdit());
    EXPECT_TRUE(Edit(dialog.m_groups, 0, kName, L"GROUP"));
    EXPECT_TRUE(frontEnd.boxes.empty()) << "the case of letters counts";
    EXPECT_TRUE(Edit(dialog.m_groups, 0, kName, L"GROUP")) << "its own name is not another's";
  });
  EXPECT_EQ(Everything(), L"GROUP() Group()");
}

TEST_F(GroupLayerDlg, AsksAgainWhenANewNameIsGivenUp) {
  In([&](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_add.UserClick());
    EXPECT_TRUE(dialog.m_groups.UserCancelEdit());
    EXPECT_EQ(frontEnd.takeBox(), L"图层组名称为空字串符，请重新输入!");
    EXPECT_TRUE(dialog.m_groups.CurrentEdit());
    EXPECT_FALSE(dialog.m_exit.UserClick());
    EXPECT_FALSE(dialog.HasEnded());
  });
}

TEST_F(GroupLayerDlg, DropsAGroupWithoutAUsableNameWhenTheWindowCloses) {
  for (const wchar_t* text : {L"", L" ", L"采暖", L" 采暖 "}) {
    Empty();
    Group(L"采暖");
    In([&](Dlg& dialog) {
      EXPECT_TRUE(dialog.m_add.UserClick());
      EXPECT_TRUE(dialog.m_groups.UserTypeEdit(text));
      dialog.UserClose();
      EXPECT_TRUE(dialog.HasEnded());
      EXPECT_EQ(RowsText(dialog.m_groups), L"采暖");
    });
    EXPECT_TRUE(frontEnd.boxes.empty()) << "without a word";
    Reload();
    EXPECT_EQ(Everything(), L"采暖()");
  }
}

TEST_F(GroupLayerDlg, DropsAlsoAnOldGroupWhoseNewNameIsNoneWhenTheWindowCloses) {
  Group(L"采暖");
  Group(L"给水");
  In([&](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_groups.UserBeginEdit(1, kName));
    EXPECT_TRUE(dialog.m_groups.UserTypeEdit(L"采暖"));
    dialog.UserClose();
  });
  EXPECT_EQ(Everything(), L"采暖()");
}

TEST_F(GroupLayerDlg, KeepsAGoodNameWhenTheWindowCloses) {
  In([&](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_add.UserClick());
    EXPECT_TRUE(dialog.m_groups.UserTypeEdit(L"给水"));
    dialog.UserClose();
  });
  EXPECT_EQ(Everything(), L"给水()");
}

TEST_F(GroupLayerDlg, SavesHoweverItIsLeft) {
  for (int way = 0; way < 3; ++way) {
    CString name;
    name.Format(L"组%d", way);
    In([&](Dlg& dialog) {
      EXPECT_TRUE(dialog.m_add.UserClick());
      EXPECT_TRUE(dialog.m_groups.UserTypeEdit(name));
      EXPECT_TRUE(dialog.m_groups.UserEndEdit());
      EXPECT_EQ(Saved().find(name.ToUtf8()), std::string::npos) << "only as it goes";
      if (way == 0) dialog.m_exit.UserClick();
      if (way == 1) dialog.UserClose();
      if (way == 2) dialog.UserEscape();
      EXPECT_TRUE(dialog.HasEnded());
    });
    EXPECT_NE(Saved().find(name.ToUtf8()), std::string::npos) << way;
  }
}

TEST_F(GroupLayerDlg, MakesTheFileTheFirstTimeItIsLeft) {
  EXPECT_FALSE(install.Has(kFile));
  In([](Dlg&) {});
  EXPECT_TRUE(install.Has(kFile));
}

TEST_F(GroupLayerDlg, ServesEveryDrawing) {
  In([&](Dlg& dialog) {
    Tick(dialog, L"甲");
    EXPECT_TRUE(dialog.m_add.UserClick());
    EXPECT_TRUE(dialog.m_groups.UserTypeEdit(L"采暖"));
    EXPECT_TRUE(dialog.m_groups.UserEndEdit());
  });
  acDocManagerPtr()->newDocument();
  In([&](Dlg& dialog) {
    EXPECT_EQ(RowsText(dialog.m_groups), L"采暖");
    EXPECT_TRUE(dialog.m_groups.UserClick(0, kName));
    EXPECT_EQ(Ticked(dialog), L"") << "this one has but layer 0";
  });
  EXPECT_EQ(Everything(), L"采暖(甲)");
}

// --- what users should not do

TEST_F(GroupLayerDlg, KeepsAnyName) {
  Group(L"采暖");
  for (const CString& name :
       {CString(L"\"引号\" '单'"), CString(L"%s%d%%"), CString(L"换\n行"), CString(L"\U0001F600"),
        CString(L"0"), CString(L"Version"), CString(std::wstring(1, wchar_t(0xD83D))),
        CString(std::wstring(100000, L'长'))}) {
    In([&](Dlg& dialog) { EXPECT_TRUE(Edit(dialog.m_groups, 0, kName, name)); });
    Reload();
    EXPECT_EQ(Everything(), name + L"()");
  }
  EXPECT_TRUE(frontEnd.boxes.empty());
}

TEST_F(GroupLayerDlg, QuotesAnyNameInItsMessages) {
  Group(L"%s%n");
  Group(L"给水");
  In([&](Dlg& dialog) {
    EXPECT_TRUE(Edit(dialog.m_groups, 1, kName, L"%s%n"));
    EXPECT_EQ(frontEnd.takeBox(), L"【%s%n】已经存在，请重新输入图层组名称！");
    EXPECT_TRUE(dialog.m_groups.UserCancelEdit());
    EXPECT_TRUE(dialog.m_groups.UserClick(0, kName));
    EXPECT_TRUE(dialog.m_remove.UserClick());
    EXPECT_EQ(frontEnd.takeBox(), L"删除不可恢复，确定要删除【%s%n】吗?");
  });
}

TEST_F(GroupLayerDlg, NamesAGroupBeforeItIsDeleted) {
  Group(L"采暖");
  Group(L"给水");
  frontEnd.answers = {IDOK, IDOK};
  In([&](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_groups.UserBeginEdit(1, kName));
    EXPECT_TRUE(dialog.m_groups.UserTypeEdit(L"采暖"));
    EXPECT_FALSE(dialog.m_remove.UserClick());
    EXPECT_EQ(manager.Groups().GetSize(), 2);
    EXPECT_TRUE(dialog.m_groups.UserTypeEdit(L"排水"));
    EXPECT_TRUE(dialog.m_remove.UserClick());
    EXPECT_EQ(frontEnd.takeBox(), L"删除不可恢复，确定要删除【排水】吗?");
  });
  EXPECT_EQ(Everything(), L"采暖()");
}

TEST_F(GroupLayerDlg, LeavesTheFileWhereTheFolderIsReadOnlyAndSavesItTheNextTime) {
  In([](Dlg&) {});
  const std::string before = Saved();
  afx::ClearLoggedMessages();
  {
    const ReadOnlyFolder folder((install.Root() / kFile).parent_path());
    if (!folder.Holds()) GTEST_SKIP() << "permissions do not hold root back";
    In([&](Dlg& dialog) {
      EXPECT_TRUE(dialog.m_add.UserClick());
      EXPECT_TRUE(dialog.m_groups.UserTypeEdit(L"采暖"));
    });
  }
  EXPECT_EQ(Saved(), before);
  EXPECT_FALSE(afx::LoggedMessages().empty());
  EXPECT_TRUE(frontEnd.boxes.empty());
  EXPECT_EQ(Everything(), L"采暖()") << "nothing is lost while the program runs";
  In([](Dlg&) {});
  EXPECT_NE(Saved(), before);
}

TEST_F(GroupLayerDlg, OpensOverThousandsOfLayersAndGroups) {
  constexpr int layers = 3000;
  {
    const AcDbObjectPointer<AcDbLayerTable> table(Database().layerTableId(), AcDb::kForWrite);
    CString name;
    for (int i = 0; i < layers; ++i) {
      name.Format(L"层%d", i);
      auto* record = new AcDbLayerTableRecord;
      record->setName(name);
      ASSERT_EQ(table->add(record), Acad::eOk);
      record->close();
    }
  }
  CCADGroupLayer* group = Group(L"采暖");
  for (int i = 0; i < layers; ++i) {
    CString name;
    name.Format(L"层%d", layers - i);
    group->Layers.Add(name);
  }
  In([&](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_groups.UserClick(0, kName));
    EXPECT_TRUE(dialog.m_modify.UserClick());
  });
  EXPECT_EQ(group->Layers.GetSize(), layers - 1);
  EXPECT_EQ(group->Layers[0], L"层1");
}

} // namespace
