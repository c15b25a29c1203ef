// The layer manager as a whole: what it opens with, its schemes, applying them, and how it is left.
#include "host/afx/CFileException.h"
#include "tests/plugin/layers/dialogs/LayerManagerFixture.h"

namespace {

using namespace dialogtest;

class LayerManagerDlg : public LayerManagerFixture {};

TEST_F(LayerManagerDlg, HasItsTitleButtonsAndColumns) {
  In([](Dlg& dialog) {
    EXPECT_EQ(
        dialog.GetCaption(),
        L"图层管理器(目前支持空调水路、采暖和负荷计算模块，其它模块图层在相应图层管理控制，后期将会全部统一到"
        L"一个图层管理器中。)");
    EXPECT_EQ(dialog.GetParent(), nullptr);
    EXPECT_EQ(dialog.m_schemes.GetCaption(), L"当前方案");
    EXPECT_EQ(dialog.m_add.GetCaption(), L"添加");
    EXPECT_EQ(dialog.m_remove.GetCaption(), L"删除");
    EXPECT_EQ(dialog.m_rename.GetCaption(), L"重命名");
    EXPECT_EQ(dialog.m_grid.GetCaption(), L"图层列表");
    EXPECT_EQ(dialog.m_restore.GetCaption(), L"恢复默认值");
    EXPECT_EQ(dialog.m_apply.GetCaption(), L"应用到当前图纸");
    EXPECT_EQ(dialog.m_cancel.GetCaption(), L"取消");
    EXPECT_EQ(dialog.m_ok.GetCaption(), L"确定");
    EXPECT_EQ(RowText(dialog.m_grid, 0), L"序号|图层标识|图层名称|颜色|线型|线型比例|线宽(mm)|图层代号|备注");
    EXPECT_EQ(dialog.m_grid.StateName(), L"ZPLayerGridCtrl");
  });
}

TEST_F(LayerManagerDlg, OpensWithAllLayersOfTheActiveScheme) {
  SaveScheme(L"乙方案", L"甲标识", L"甲层");
  SaveScheme(L"Alpha", L"甲标识", L"甲层");
  install.Write("Data/LayerManager/notes.txt", "no scheme");
  install.Write("Data/LayerManager/默认方案.idp.rescued-1", "no scheme");
  install.Write("Data/LayerManager/folder.idp/x", "no scheme");
  In([](Dlg& dialog) {
    EXPECT_EQ(Utf8(Schemes(dialog.m_schemes)), Utf8(L"[默认方案] Alpha 乙方案"));
    EXPECT_EQ(Utf8(Tree(dialog)), Utf8(L">全部图层(空调水路(管线 设备) 采暖(采暖管线))"));
    dialog.m_tree.m_tree.Walk([](HTREEITEM item) {
      EXPECT_TRUE(item->expanded);
      return true;
    });
    EXPECT_EQ(Utf8(RowsText(dialog.m_grid)), Utf8(L"1|供水干管|暖通-供水|3|Continuous|1|0.5|M-LRG|供水 "
                                                  L"2|回水干管|暖通-回水|256|ByLayer|1|-0.03|| "
                                                  L"3|风机盘管|暖通-盘管|256|ByLayer|1|-0.03|| "
                                                  L"4|采暖供水|暖通-采暖|256|ByLayer|1|-0.03||"));
  });
}

TEST_F(LayerManagerDlg, OpensWithoutAnyFile) {
  Clear();
  std::filesystem::remove_all(install.Root() / "Data");
  In([](Dlg& dialog) {
    EXPECT_EQ(Schemes(dialog.m_schemes), L"[默认方案]");
    EXPECT_EQ(Tree(dialog), L">全部图层");
    EXPECT_EQ(RowsText(dialog.m_grid), L"");
  });
}

TEST_F(LayerManagerDlg, SelectsNoSchemeWhereTheActiveOneHasNoFile) {
  EXPECT_FALSE(scheme.ReadData(L"没有"));
  In([](Dlg& dialog) {
    EXPECT_EQ(Schemes(dialog.m_schemes), L"默认方案");
    EXPECT_FALSE(dialog.m_remove.UserClick());
    EXPECT_FALSE(dialog.m_rename.UserClick());
  });
}

TEST_F(LayerManagerDlg, DoesNotLetTheDefaultSchemeBeDeletedOrRenamed) {
  SaveScheme(L"乙方案", L"甲标识", L"甲层");
  In([](Dlg& dialog) {
    EXPECT_FALSE(dialog.m_remove.UserClick());
    EXPECT_FALSE(dialog.m_rename.UserClick());
    EXPECT_TRUE(dialog.m_schemes.UserSelect(1));
    EXPECT_TRUE(dialog.m_remove.IsWindowEnabled());
    EXPECT_TRUE(dialog.m_rename.IsWindowEnabled());
    EXPECT_TRUE(dialog.m_schemes.UserSelect(0));
    EXPECT_FALSE(dialog.m_remove.IsWindowEnabled());
    EXPECT_FALSE(dialog.m_rename.IsWindowEnabled());
  });
}

TEST_F(LayerManagerDlg, SavesTheSchemeThatIsLeftForAnother) {
  SaveScheme(L"乙方案", L"甲标识", L"甲层");
  In([&](Dlg& dialog) {
    EXPECT_TRUE(Edit(dialog.m_grid, 1, layers::kNameColumn, L"改名"));
    EXPECT_TRUE(dialog.m_schemes.UserSelect(1));
    EXPECT_EQ(scheme.GetPlanName(), L"乙方案");
    EXPECT_EQ(Tree(dialog), L">全部图层(分类(分组))");
    EXPECT_EQ(RowsText(dialog.m_grid), L"1|甲标识|甲层|256|ByLayer|1|-0.03||");
    EXPECT_TRUE(dialog.m_schemes.UserSelect(0));
    EXPECT_EQ(Of(L"供水干管").GetUserLayer(), L"改名");
  });
}

TEST_F(LayerManagerDlg, TakesTheSameSchemeAgainForNoChange) {
  In([&](Dlg& dialog) {
    EXPECT_TRUE(Edit(dialog.m_grid, 1, layers::kNameColumn, L"改名"));
    EXPECT_TRUE(dialog.m_schemes.UserSelect(0));
    EXPECT_EQ(dialog.m_grid.GetItemText(1, layers::kNameColumn), L"改名");
  });
  EXPECT_EQ(Of(L"供水干管").GetUserLayer(), L"暖通-供水") << "nothing was saved";
}

TEST_F(LayerManagerDlg, KeepsWhatADamagedSchemeFileHolds) {
  SaveScheme(L"乙方案", L"甲标识", L"甲层");
  CIDPEx damaged;
  ASSERT_TRUE(damaged.Open(PathOf(L"乙方案")));
  damaged.GetSubItem(L"方案名称")->SetSubValue(L"1", 1); // a category that has no key
  ASSERT_TRUE(damaged.Save(PathOf(L"坏方案")));
  In([&](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_schemes.UserType(L"坏方案"));
    EXPECT_EQ(RowsText(dialog.m_grid), L"1|甲标识|甲层|256|ByLayer|1|-0.03||")
        << "what stood before the damage";
    EXPECT_TRUE(dialog.m_schemes.UserType(L"默认方案"));
  });
  EXPECT_TRUE(install.Has("Data/LayerManager/坏方案.idp.rescued-1"));
}

TEST_F(LayerManagerDlg, AddsASchemeAsACopyOfAnother) {
  SaveScheme(L"乙方案", L"甲标识", L"甲层");
  WillAdd(L"  丙方案 ", L"乙方案");
  const auto add = std::move(frontEnd.runs.front());
  frontEnd.runs.clear();
  In([&](Dlg& dialog) {
    EXPECT_TRUE(Edit(dialog.m_grid, 1, layers::kNameColumn, L"改名"));
    frontEnd.runs.push_back(add);
    EXPECT_TRUE(dialog.m_add.UserClick());
    EXPECT_EQ(Utf8(Schemes(dialog.m_schemes)), Utf8(L"默认方案 [丙方案] 乙方案"));
    EXPECT_EQ(Layers(), L"甲标识=甲层");
    EXPECT_EQ(scheme.GetPlanName(), L"丙方案");
    EXPECT_TRUE(dialog.m_rename.IsWindowEnabled());
  });
  CIDPEx file;
  CString name;
  ASSERT_TRUE(file.Open(PathOf(L"丙方案")));
  EXPECT_TRUE(file.GetSubValue(L"方案名称", name));
  EXPECT_EQ(name, L"乙方案") << "a copy of the file as it was";
  EXPECT_TRUE(scheme.SaveData());
  ASSERT_TRUE(file.Open(PathOf(L"丙方案")));
  EXPECT_TRUE(file.GetSubValue(L"方案名称", name));
  EXPECT_EQ(name, L"丙方案") << "right from its first save on";
  EXPECT_TRUE(scheme.ReadData(L"默认方案"));
  EXPECT_EQ(Of(L"供水干管").GetUserLayer(), L"改名") << "the scheme that was left is saved";
}

TEST_F(LayerManagerDlg, CopiesTheFileAndNotWhatIsBeingEdited) {
  In([&](Dlg& dialog) {
    EXPECT_TRUE(Edit(dialog.m_grid, 1, layers::kNameColumn, L"改名"));
    WillAdd(L"乙方案", L"默认方案");
    EXPECT_TRUE(dialog.m_add.UserClick());
    EXPECT_EQ(Of(L"供水干管").GetUserLayer(), L"暖通-供水");
  });
}

TEST_F(LayerManagerDlg, AddsNothingWhereTheUserGivesUp) {
  In([&](Dlg& dialog) {
    WillGiveUp(L"添加图层方案");
    EXPECT_TRUE(dialog.m_add.UserClick());
    EXPECT_EQ(Schemes(dialog.m_schemes), L"[默认方案]");
  });
}

TEST_F(LayerManagerDlg, AsksBeforeASchemeIsDeleted) {
  SaveScheme(L"乙方案", L"甲标识", L"甲层");
  In([&](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_schemes.UserSelect(1));
    EXPECT_TRUE(Edit(dialog.m_grid, 1, layers::kNameColumn, L"改名"));
    EXPECT_TRUE(dialog.m_remove.UserClick());
    ASSERT_EQ(frontEnd.boxes.size(), 1u);
    EXPECT_EQ(frontEnd.boxes[0].caption, L"青岚提示");
    EXPECT_EQ(frontEnd.boxes[0].buttons.size(), 2u);
    EXPECT_EQ(frontEnd.takeBox(), L"删除不可恢复，确定要删除【乙方案】吗？");
    EXPECT_TRUE(HasScheme("乙方案"));
    frontEnd.answers = {IDOK};
    EXPECT_TRUE(dialog.m_remove.UserClick());
    EXPECT_FALSE(HasScheme("乙方案")) << "and the scheme that was left isn't saved";
    EXPECT_EQ(Schemes(dialog.m_schemes), L"[默认方案]");
    EXPECT_EQ(dialog.m_grid.GetRowCount(), 1 + 4);
    EXPECT_FALSE(dialog.m_remove.IsWindowEnabled());
  });
  EXPECT_EQ(scheme.GetPlanName(), L"默认方案");
}

TEST_F(LayerManagerDlg, KeepsTheSchemeWhoseFileCannotBeDeleted) {
  SaveScheme(L"乙方案", L"甲标识", L"甲层");
  In([&](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_schemes.UserSelect(1));
    std::filesystem::remove(install.Root() / "Data/LayerManager/乙方案.idp");
    frontEnd.answers = {IDOK};
    EXPECT_TRUE(dialog.m_remove.UserClick());
    EXPECT_EQ(Schemes(dialog.m_schemes), L"默认方案 [乙方案]") << "silently";
    EXPECT_EQ(Layers(), L"甲标识=甲层");
    EXPECT_EQ(frontEnd.boxes.size(), 1u);
  });
}

TEST_F(LayerManagerDlg, RenamesASchemeAndSavesItUnderTheNewName) {
  SaveScheme(L"乙方案", L"甲标识", L"甲层");
  In([&](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_schemes.UserSelect(1));
    EXPECT_TRUE(Edit(dialog.m_grid, 1, layers::kNameColumn, L"改名"));
    WillGiveUp(L"重命名");
    EXPECT_TRUE(dialog.m_rename.UserClick());
    EXPECT_EQ(Schemes(dialog.m_schemes), L"默认方案 [乙方案]");
    WillName(L"重命名", L" 二 ");
    EXPECT_TRUE(dialog.m_rename.UserClick());
    EXPECT_EQ(Schemes(dialog.m_schemes), L"默认方案 [二]");
    EXPECT_EQ(scheme.GetPlanName(), L"二");
  });
  EXPECT_FALSE(HasScheme("乙方案"));
  EXPECT_TRUE(scheme.ReadData(L"二"));
  EXPECT_EQ(Layers(), L"甲标识=改名");
}

TEST_F(LayerManagerDlg, BeginsRenamingWithTheOldName) {
  SaveScheme(L"乙方案", L"甲标识", L"甲层");
  In([&](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_schemes.UserSelect(1));
    frontEnd.runs.push_back([](CDialog& asked) {
      EXPECT_EQ(dynamic_cast<CZPRenameDlg&>(asked).m_name.GetText(), L"乙方案");
      EXPECT_TRUE(asked.UserEnter());
    });
    EXPECT_TRUE(dialog.m_rename.UserClick()) << "the same name again is legal";
  });
  EXPECT_TRUE(HasScheme("乙方案"));
}

TEST_F(LayerManagerDlg, RaisesWhereTheFileCannotBeRenamed) {
  SaveScheme(L"乙方案", L"甲标识", L"甲层");
  SaveScheme(L"丙方案", L"丙标识", L"丙层");
  In([&](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_schemes.UserType(L"乙方案"));
    for (const wchar_t* name : {L"丙方案", L"默认方案", L"a/b", L"..\\乙"}) {
      WillName(L"重命名", name);
      EXPECT_THROW(dialog.m_rename.UserClick(), CFileException) << Utf8(name);
    }
    EXPECT_EQ(Utf8(Schemes(dialog.m_schemes)), Utf8(L"默认方案 丙方案 [乙方案]"));
    EXPECT_EQ(scheme.GetPlanName(), L"乙方案");
  });
  EXPECT_TRUE(scheme.ReadData(L"丙方案"));
  EXPECT_EQ(Layers(), L"丙标识=丙层") << "the other scheme is not touched";
}

TEST_F(LayerManagerDlg, HasAButtonThatDoesNothing) {
  const std::string before = install.Read("Data/LayerManager/默认方案.idp");
  In([&](Dlg& dialog) {
    EXPECT_TRUE(Edit(dialog.m_grid, 1, layers::kNameColumn, L"改名"));
    const CString rows = RowsText(dialog.m_grid);
    EXPECT_TRUE(dialog.m_restore.UserClick());
    EXPECT_EQ(RowsText(dialog.m_grid), rows);
    EXPECT_FALSE(dialog.HasEnded());
  });
  EXPECT_TRUE(frontEnd.boxes.empty());
  EXPECT_EQ(install.Read("Data/LayerManager/默认方案.idp"), before);
}

TEST_F(LayerManagerDlg, GoesBackToTheFileUnlessTheUserAgrees) {
  for (const int way : {0, 1, 2}) {
    const int result = In([&](Dlg& dialog) {
      EXPECT_TRUE(Edit(dialog.m_grid, 1, layers::kNameColumn, L"改名"));
      EXPECT_EQ(Of(L"供水干管").GetUserLayer(), L"改名") << "at once";
      if (way == 0) dialog.m_cancel.UserClick();
      if (way == 1) dialog.UserClose();
      if (way == 2) dialog.UserEscape();
    });
    EXPECT_EQ(result, IDCANCEL);
    EXPECT_EQ(Of(L"供水干管").GetUserLayer(), L"暖通-供水") << way;
  }
  const int result = In([&](Dlg& dialog) {
    EXPECT_TRUE(Edit(dialog.m_grid, 1, layers::kNameColumn, L"改名"));
    EXPECT_TRUE(dialog.UserEnter());
  });
  EXPECT_EQ(result, IDOK);
  EXPECT_EQ(Of(L"供水干管").GetUserLayer(), L"改名");
  EXPECT_TRUE(frontEnd.boxes.empty());
}

TEST_F(LayerManagerDlg, KeepsTheChosenSchemeActiveHoweverItIsLeft) {
  SaveScheme(L"乙方案", L"甲标识", L"甲层");
  In([](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_schemes.UserSelect(1));
    EXPECT_TRUE(dialog.m_cancel.UserClick());
  });
  EXPECT_EQ(scheme.GetPlanName(), L"乙方案");
  EXPECT_EQ(Layers(), L"甲标识=甲层");
}

// --- applying

TEST_F(LayerManagerDlg, StampsTheMarkedLayersOfTheDrawing) {
  EXPECT_EQ(ZP::GetUserLayer(L"供水干管"), L"暖通-供水");
  const std::size_t before = LayersThat(&AcDbLayerTableRecord::isErased).GetLength();
  In([&](Dlg& dialog) {
    EXPECT_TRUE(Edit(dialog.m_grid, 1, layers::kNameColumn, L"改名"));
    dialog.m_grid.ChangeCell(1, layers::kColourColumn, L"5");
    dialog.m_grid.ChangeCell(1, layers::kLineWeightColumn, L"-0.01");
    EXPECT_TRUE(HasLayer(L"暖通-供水")) << "not before it is applied";
    EXPECT_TRUE(dialog.m_apply.UserClick());
    EXPECT_FALSE(dialog.HasEnded());
    EXPECT_FALSE(HasLayer(L"暖通-供水"));
    ASSERT_TRUE(HasLayer(L"改名"));
    EXPECT_EQ(Layer(L"改名").color().colorIndex(), 5);
    EXPECT_EQ(Layer(L"改名").lineWeight(), AcDb::kLnWtByLayer);
  });
  EXPECT_EQ(Of(L"供水干管").GetUserLayer(), L"改名") << "applying saves";
  EXPECT_EQ(LayersThat(&AcDbLayerTableRecord::isErased).GetLength(), static_cast<int>(before));
  EXPECT_FALSE(HasLayer(L"暖通-回水")) << "no layer is made";
  EXPECT_EQ(Layer(L"甲").color().colorIndex(), 7) << "a layer without a mark is left alone";
}

TEST_F(LayerManagerDlg, AppliesAndClosesWithOk) {
  EXPECT_EQ(ZP::GetUserLayer(L"供水干管"), L"暖通-供水");
  In([](Dlg& dialog) {
    EXPECT_TRUE(Edit(dialog.m_grid, 1, layers::kNameColumn, L"改名"));
    EXPECT_TRUE(dialog.m_ok.UserClick());
    EXPECT_TRUE(dialog.HasEnded());
  });
  EXPECT_TRUE(HasLayer(L"改名"));
}

TEST_F(LayerManagerDlg, SavesWithoutADrawingToo) {
  acDocManagerPtr()->closeAll();
  In([](Dlg& dialog) {
    EXPECT_TRUE(Edit(dialog.m_grid, 1, layers::kNameColumn, L"改名"));
    EXPECT_TRUE(dialog.m_apply.UserClick());
  });
  EXPECT_EQ(Of(L"供水干管").GetUserLayer(), L"改名");
}

} // namespace
