// The table of layers in the layer manager: what its cells show, how they change, and its menu.
#include "host/ed/acedColors.h"
#include "plugin/layers/dialogs/CZPBatchModifyDlg.h"
#include "tests/plugin/layers/dialogs/LayerManagerFixture.h"

namespace {

using namespace dialogtest;

class LayerGrid : public LayerManagerFixture {
 protected:
  // Selects rows; the last one is the current row.
  static void SelectRows(Dlg& dialog, std::initializer_list<int> rows) {
    auto pick = CTableWnd::Pick::only;
    for (const int row : rows) {
      EXPECT_TRUE(dialog.m_grid.UserClick(row, layers::kNumberColumn, pick));
      pick = CTableWnd::Pick::toggle;
    }
  }
};

TEST_F(LayerGrid, ShowsWhatCannotBeEditedInBlueOnGrey) {
  In([](Dlg& dialog) {
    for (const int column : {layers::kNumberColumn, layers::kIdentifierColumn}) {
      EXPECT_EQ(dialog.m_grid.Cell(1, column).foreground, acedGetRGB(5));
      EXPECT_EQ(dialog.m_grid.Cell(1, column).background, acedGetRGB(9));
      EXPECT_FALSE(dialog.m_grid.UserBeginEdit(1, column));
    }
  });
}

TEST_F(LayerGrid, ShowsColoursAsSamples) {
  Of(L"回水干管").SetColorIndex(0);
  Of(L"采暖供水").SetColorIndex(9999);
  EXPECT_TRUE(scheme.SaveData());
  In([](Dlg& dialog) {
    const UiCell& green = dialog.m_grid.Cell(1, layers::kColourColumn);
    EXPECT_EQ(green.text, L"3");
    EXPECT_EQ(green.background, acedGetRGB(3));
    EXPECT_EQ(green.foreground, acedGetRGB(3));
    for (const int row : {2, 3, 4}) { // by block, by layer, no colour at all
      EXPECT_FALSE(dialog.m_grid.Cell(row, layers::kColourColumn).background);
      EXPECT_FALSE(dialog.m_grid.Cell(row, layers::kColourColumn).foreground);
    }
  });
}

TEST_F(LayerGrid, SelectsWholeRowsAndSeveral) {
  In([](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_grid.SelectsRows());
    EXPECT_EQ(dialog.m_grid.Current(), nullptr);
    SelectRows(dialog, {1, 3});
    EXPECT_EQ(dialog.m_grid.SelectedRows(), (std::set<int>{1, 3}));
    EXPECT_EQ(dialog.m_grid.Current()->GetKorLayer(), L"风机盘管");
  });
}

TEST_F(LayerGrid, TakesTextsAtOnce) {
  In([&](Dlg& dialog) {
    EXPECT_TRUE(Edit(dialog.m_grid, 1, 2, L"新层"));
    EXPECT_TRUE(Edit(dialog.m_grid, 1, 5, L"2.5"));
    EXPECT_TRUE(Edit(dialog.m_grid, 1, 7, L"X-1"));
    EXPECT_TRUE(Edit(dialog.m_grid, 1, 8, L"说明"));
    EXPECT_EQ(Data(Of(L"供水干管")), L"供水干管|新层|3|Continuous|2.5|0.5|X-1|说明");
    EXPECT_TRUE(dialog.m_grid.UserBeginEdit(1, 2));
    EXPECT_TRUE(dialog.m_grid.UserTypeEdit(L"放弃"));
    EXPECT_TRUE(dialog.m_grid.UserCancelEdit());
    EXPECT_EQ(Of(L"供水干管").GetUserLayer(), L"新层");
  });
}

TEST_F(LayerGrid, ReadsNumbersAsTheyBegin) {
  In([&](Dlg& dialog) {
    for (const auto& [text, value, shown] :
         {std::tuple(L"1.5 倍", 1.5, L"1.5"), {L"-2", -2.0, L"-2"}, {L"0.125", 0.125, L"0.13"}}) {
      EXPECT_TRUE(Edit(dialog.m_grid, 1, 5, text));
      EXPECT_EQ(Of(L"供水干管").GetLineTypeScale(), value);
      EXPECT_EQ(dialog.m_grid.GetItemText(1, 5), shown);
    }
    for (const wchar_t* text : kNoNumbers) {
      EXPECT_TRUE(Edit(dialog.m_grid, 1, 5, text));
      EXPECT_EQ(Of(L"供水干管").GetLineTypeScale(), 0) << Utf8(text);
      EXPECT_EQ(dialog.m_grid.GetItemText(1, 5), L"0");
    }
  });
  EXPECT_TRUE(frontEnd.boxes.empty());
}

TEST_F(LayerGrid, WritesTheWholeRowAsItShowsIt) {
  Of(L"供水干管").SetLineTypeScale(0.125);
  EXPECT_TRUE(scheme.SaveData());
  In([&](Dlg& dialog) {
    EXPECT_TRUE(Edit(dialog.m_grid, 1, 2, L"暖通-供水"));
    EXPECT_EQ(Of(L"供水干管").GetLineTypeScale(), 0.125) << "the same text again is no change";
    EXPECT_TRUE(Edit(dialog.m_grid, 1, 2, L"新层"));
    EXPECT_EQ(Of(L"供水干管").GetLineTypeScale(), 0.13) << "the number as it is shown";
  });
}

TEST_F(LayerGrid, ChoosesLooksInTheDialogsOfTheHost) {
  In([&](Dlg& dialog) {
    frontEnd.colour = 5;
    frontEnd.linetype = L"DASHED";
    frontEnd.lineWeight = 30;
    for (const int column : {layers::kColourColumn, layers::kLinetypeColumn, layers::kLineWeightColumn}) {
      EXPECT_FALSE(dialog.m_grid.UserBeginEdit(1, column)) << "not to be typed";
      EXPECT_TRUE(dialog.m_grid.UserPress(1, column));
    }
    EXPECT_EQ(frontEnd.choosers, L"颜色 3 线型 Continuous 线宽 50 ");
    EXPECT_EQ(Data(Of(L"供水干管")), L"供水干管|暖通-供水|5|DASHED|1|0.3|M-LRG|供水");
    EXPECT_EQ(dialog.m_grid.Cell(1, layers::kColourColumn).background, acedGetRGB(5));
    frontEnd.colour = UiFrontEnd::kColourByLayer;
    frontEnd.lineWeight = UiFrontEnd::kWeightByBlock;
    EXPECT_TRUE(dialog.m_grid.UserPress(1, layers::kColourColumn));
    EXPECT_TRUE(dialog.m_grid.UserPress(1, layers::kLineWeightColumn));
    EXPECT_EQ(Of(L"供水干管").GetColorIndex(), 256);
    EXPECT_EQ(Of(L"供水干管").GetLineWeight(), -0.02);
    EXPECT_FALSE(dialog.m_grid.Cell(1, layers::kColourColumn).background);
  });
}

TEST_F(LayerGrid, KeepsTheLookWhereTheUserGivesUp) {
  In([&](Dlg& dialog) {
    const CString before = Data(Of(L"供水干管"));
    for (const int column : {layers::kColourColumn, layers::kLinetypeColumn, layers::kLineWeightColumn})
      EXPECT_TRUE(dialog.m_grid.UserPress(1, column));
    EXPECT_EQ(Data(Of(L"供水干管")), before);
  });
}

TEST_F(LayerGrid, CutsTheLineWeightThatAChooserBeginsWith) {
  Of(L"供水干管").SetLineWeight(0.29);
  Of(L"回水干管").SetLineWeight(1e300);
  EXPECT_TRUE(scheme.SaveData());
  In([&](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_grid.UserPress(1, layers::kLineWeightColumn));
    EXPECT_TRUE(dialog.m_grid.UserPress(2, layers::kLineWeightColumn));
    EXPECT_TRUE(dialog.m_grid.UserPress(3, layers::kLineWeightColumn));
    EXPECT_EQ(frontEnd.choosers, L"线宽 28 线宽 0 线宽 -3 ");
  });
}

// --- the identifier, which no cell lets the user type

TEST_F(LayerGrid, TrimsAnIdentifier) {
  In([&](Dlg& dialog) {
    dialog.m_grid.ChangeCell(1, layers::kIdentifierColumn, L"  新标识 ");
    EXPECT_EQ(dialog.m_grid.GetItemText(1, layers::kIdentifierColumn), L"新标识");
    EXPECT_TRUE(scheme.IsExist(L"新标识"));
  });
  EXPECT_TRUE(frontEnd.boxes.empty());
}

TEST_F(LayerGrid, DoesNotTakeAnEmptyIdentifier) {
  In([&](Dlg& dialog) {
    dialog.m_grid.ChangeCell(1, layers::kIdentifierColumn, L"  ");
    ASSERT_EQ(frontEnd.boxes.size(), 1u);
    EXPECT_EQ(frontEnd.boxes[0].caption, L"青岚提示");
    EXPECT_EQ(frontEnd.takeBox(), L"图层标识不能为空字符串，请重新输入。");
    EXPECT_TRUE(scheme.IsExist(L"供水干管"));
  });
}

TEST_F(LayerGrid, TellsOfAnIdentifierInUseAndTakesIt) {
  In([&](Dlg& dialog) {
    dialog.m_grid.ChangeCell(1, layers::kIdentifierColumn, L"供水干管 ");
    EXPECT_TRUE(frontEnd.boxes.empty()) << "its own";
    CZPLayer* layer = dialog.m_grid.LayerAt(1);
    dialog.m_grid.ChangeCell(1, layers::kIdentifierColumn, L" 风机盘管");
    ASSERT_EQ(frontEnd.boxes.size(), 1u);
    EXPECT_EQ(frontEnd.boxes[0].caption, L"") << "none of its own";
    EXPECT_EQ(frontEnd.takeBox(), L"图层标识【风机盘管】已经存在，请重新输入图层标识。");
    EXPECT_EQ(layer->GetKorLayer(), L"风机盘管");
  });
}

// --- the menu

TEST_F(LayerGrid, OffersWhatFitsTheRowAndTheNode) {
  Of(L"回水干管").SetAllowModify(false);
  EXPECT_TRUE(scheme.SaveData());
  In([](Dlg& dialog) {
    auto& grid = dialog.m_grid;
    EXPECT_TRUE(grid.UserOpenMenu(-1, 0));
    EXPECT_EQ(Texts(grid.Menu), L"-新建图层 -删除图层 -从图中选取 -复制 -粘贴 -批量修改");
    Select(dialog, L"管线");
    EXPECT_TRUE(grid.UserOpenMenu(-1, 0));
    EXPECT_EQ(Texts(grid.Menu), L"新建图层 -删除图层 -从图中选取 -复制 -粘贴 -批量修改");
    EXPECT_TRUE(grid.UserOpenMenu(1, layers::kColourColumn)) << "and no chooser opens";
    EXPECT_EQ(Texts(grid.Menu), L"新建图层 删除图层 从图中选取 复制 -粘贴 批量修改");
    EXPECT_TRUE(Choose(grid.Menu, L"复制"));
    EXPECT_TRUE(grid.UserOpenMenu(2, 0));
    EXPECT_EQ(Texts(grid.Menu), L"新建图层 -删除图层 从图中选取 复制 粘贴 批量修改");
    Select(dialog, L"空调水路");
    EXPECT_EQ(Texts(grid.Menu), L"-新建图层 -删除图层 -从图中选取 -复制 -粘贴 -批量修改");
  });
}

TEST_F(LayerGrid, MakesALayerWithTheDefaults) {
  In([&](Dlg& dialog) {
    Select(dialog, L"管线");
    EXPECT_TRUE(RowMenu(dialog, -1, L"新建图层"));
    EXPECT_EQ(RowText(dialog.m_grid, 3), L"3|Layer3|0|256|ByLayer|1|-0.03||") << "the third of its group";
    EXPECT_EQ(dialog.m_grid.GetFocusRow(), 3);
    EXPECT_TRUE(Of(L"Layer3").IsAllowModify());
    EXPECT_EQ(Of(L"Layer3").GetParent(), scheme.Categories()[0]->Groups()[0]);
    EXPECT_TRUE(dialog.m_ok.UserClick());
  });
  EXPECT_TRUE(scheme.IsExist(L"Layer3"));
}

TEST_F(LayerGrid, MakesALayerLikeTheCurrentRowOrElseTheCopiedOne) {
  Of(L"回水干管").SetAllowModify(false);
  EXPECT_TRUE(scheme.SaveData());
  In([&](Dlg& dialog) {
    Select(dialog, L"管线");
    EXPECT_TRUE(RowMenu(dialog, 1, L"复制"));
    EXPECT_TRUE(RowMenu(dialog, 2, L"新建图层"));
    EXPECT_EQ(Data(Of(L"Layer3")), L"Layer3|暖通-回水|256|ByLayer|1|-0.03||");
    EXPECT_TRUE(Of(L"Layer3").IsAllowModify()) << "whatever the other one is";
    Select(dialog, L"设备");
    EXPECT_TRUE(RowMenu(dialog, -1, L"新建图层"));
    EXPECT_EQ(Data(Of(L"Layer2")), L"Layer2|暖通-供水|3|Continuous|1|0.5|M-LRG|供水");
  });
}

TEST_F(LayerGrid, NumbersIdentifiersByTheSizeOfTheGroupAlone) {
  In([&](Dlg& dialog) {
    Select(dialog, L"设备");
    EXPECT_TRUE(RowMenu(dialog, -1, L"新建图层"));
    Select(dialog, L"采暖管线");
    EXPECT_TRUE(RowMenu(dialog, -1, L"新建图层"));
    EXPECT_EQ(dialog.m_grid.GetItemText(2, layers::kIdentifierColumn), L"Layer2") << "another group has it";
    frontEnd.answers = {IDOK};
    EXPECT_TRUE(RowMenu(dialog, 1, L"删除图层"));
    EXPECT_TRUE(RowMenu(dialog, -1, L"新建图层"));
    EXPECT_EQ(dialog.m_grid.GetItemText(2, layers::kIdentifierColumn), L"Layer2") << "and this one, too";
  });
  EXPECT_TRUE(frontEnd.boxes.size() == 1) << "the question alone";
}

TEST_F(LayerGrid, AsksBeforeALayerIsDeleted) {
  In([&](Dlg& dialog) {
    EXPECT_TRUE(RowMenu(dialog, 2, L"删除图层"));
    ASSERT_EQ(frontEnd.boxes.size(), 1u);
    EXPECT_EQ(frontEnd.boxes[0].caption, L"青岚提示");
    EXPECT_EQ(frontEnd.boxes[0].buttons.size(), 2u);
    EXPECT_EQ(frontEnd.takeBox(), L"删除不可恢复，确定要删除[暖通-回水]图层吗？");
    EXPECT_TRUE(scheme.IsExist(L"回水干管"));
    frontEnd.answers = {IDOK};
    EXPECT_TRUE(RowMenu(dialog, 2, L"删除图层"));
    EXPECT_EQ(Layers(), L"供水干管=暖通-供水 风机盘管=暖通-盘管 采暖供水=暖通-采暖");
    EXPECT_EQ(RowText(dialog.m_grid, 2), L"2|风机盘管|暖通-盘管|256|ByLayer|1|-0.03||");
    EXPECT_EQ(dialog.m_grid.GetFocusRow(), 2) << "the same place";
  });
}

TEST_F(LayerGrid, PastesIntoAllSelectedRowsAndKeepsTheirIdentifiers) {
  In([&](Dlg& dialog) {
    EXPECT_TRUE(RowMenu(dialog, 1, L"复制"));
    SelectRows(dialog, {2, 4});
    EXPECT_TRUE(RowMenu(dialog, 4, L"粘贴"));
    EXPECT_EQ(Data(Of(L"回水干管")), L"回水干管|暖通-供水|3|Continuous|1|0.5|M-LRG|供水");
    EXPECT_EQ(Data(Of(L"采暖供水")), L"采暖供水|暖通-供水|3|Continuous|1|0.5|M-LRG|供水");
    EXPECT_EQ(Data(Of(L"风机盘管")), L"风机盘管|暖通-盘管|256|ByLayer|1|-0.03||");
    EXPECT_EQ(RowText(dialog.m_grid, 2), L"2|回水干管|暖通-供水|3|Continuous|1|0.5|M-LRG|供水");
    EXPECT_EQ(dialog.m_grid.Cell(4, layers::kColourColumn).background, acedGetRGB(3));
  });
}

TEST_F(LayerGrid, KeepsTheCopyWhenItsLayerGoes) {
  SaveScheme(L"乙方案", L"甲标识", L"甲层");
  In([&](Dlg& dialog) {
    EXPECT_EQ(dialog.m_menu.Clipboard(), nullptr);
    EXPECT_TRUE(RowMenu(dialog, 1, L"复制"));
    EXPECT_TRUE(dialog.m_schemes.UserType(L"乙方案"));
    EXPECT_TRUE(RowMenu(dialog, 1, L"粘贴"));
    EXPECT_EQ(Data(Of(L"甲标识")), L"甲标识|暖通-供水|3|Continuous|1|0.5|M-LRG|供水");
  });
}

TEST_F(LayerGrid, PicksALayerFromTheDrawing) {
  Of(L"回水干管").SetLineTypeScale(0.125);
  EXPECT_TRUE(scheme.SaveData());
  In([&](Dlg& dialog) {
    bool aside = false;
    UiConnection watch =
        dialog.Changed.Watch([&](const UiChange&) { aside = aside || !dialog.IsWindowVisible(); });
    editor.lines = {Named(onA)};
    EXPECT_TRUE(RowMenu(dialog, 1, L"从图中选取"));
    EXPECT_TRUE(aside);
    EXPECT_TRUE(dialog.IsWindowVisible());
    ASSERT_FALSE(editor.prompts.empty());
    EXPECT_NE(editor.prompts.back().Find(L"请选择实体"), -1);
    EXPECT_EQ(Data(Of(L"供水干管")), L"供水干管|甲|256|ByLayer|1|-0.01|M-LRG|供水");
    EXPECT_EQ(RowText(dialog.m_grid, 1), L"1|供水干管|甲|256|ByLayer|1|-0.01|M-LRG|供水");
    EXPECT_EQ(Of(L"回水干管").GetLineTypeScale(), 0.13) << "all rows are written as they are shown";
  });
}

TEST_F(LayerGrid, WritesItsRowsWhereNothingIsPicked) {
  Of(L"回水干管").SetLineTypeScale(0.125);
  EXPECT_TRUE(scheme.SaveData());
  In([&](Dlg& dialog) {
    editor.lines = {L"*cancel*"};
    EXPECT_TRUE(RowMenu(dialog, 1, L"从图中选取"));
    EXPECT_TRUE(dialog.IsWindowVisible());
    EXPECT_EQ(Data(Of(L"供水干管")), L"供水干管|暖通-供水|3|Continuous|1|0.5|M-LRG|供水");
    EXPECT_EQ(Of(L"回水干管").GetLineTypeScale(), 0.13);
  });
}

// --- several layers at once

TEST_F(LayerGrid, ChangesSeveralLayersAtOnce) {
  In([&](Dlg& dialog) {
    SelectRows(dialog, {2, 1});
    frontEnd.runs.push_back([&](CDialog& open) {
      auto& batch = dynamic_cast<CZPBatchModifyDlg&>(open);
      EXPECT_EQ(batch.GetCaption(), L"修改图层");
      EXPECT_EQ(batch.m_modify.GetCaption(), L"修改");
      EXPECT_EQ(batch.m_cancel.GetCaption(), L"取消");
      CString lines;
      for (const CPropTreeGroup& group : batch.m_lines.Groups()) {
        lines += L"[" + group.title + L"] ";
        for (const CPropTreeItem& item : group.items) {
          EXPECT_TRUE(item.hasTick && item.ticked);
          lines += item.label + L"=" + item.text + L" ";
        }
      }
      EXPECT_EQ(lines,
                L"[图层参数] 图层名称=暖通-供水 图层颜色=3 图层线型=Continuous 线型比例=1 线宽(mm)=0.5 "
                L"图层代号=M-LRG 图层备注=供水 ");
      EXPECT_TRUE(batch.m_lines.UserSetText(6, L"成批"));
      EXPECT_TRUE(batch.UserEnter());
    });
    EXPECT_TRUE(RowMenu(dialog, 1, L"批量修改"));
    EXPECT_EQ(Data(Of(L"供水干管")), L"供水干管|暖通-供水|3|Continuous|1|0.5|M-LRG|成批");
    EXPECT_EQ(Data(Of(L"回水干管")), L"回水干管|暖通-供水|3|Continuous|1|0.5|M-LRG|成批");
    EXPECT_EQ(Data(Of(L"风机盘管")), L"风机盘管|暖通-盘管|256|ByLayer|1|-0.03||");
    EXPECT_EQ(RowText(dialog.m_grid, 2), L"2|回水干管|暖通-供水|3|Continuous|1|0.5|M-LRG|成批");
  });
}

TEST_F(LayerGrid, ChangesOnlyWhatIsTicked) {
  In([&](Dlg& dialog) {
    SelectRows(dialog, {1, 2, 3, 4});
    frontEnd.colour = 6;
    frontEnd.runs.push_back([&](CDialog& open) {
      auto& batch = dynamic_cast<CZPBatchModifyDlg&>(open);
      for (int line = 0; line < batch.m_lines.GetItemCount(); ++line)
        EXPECT_TRUE(batch.m_lines.UserTick(line, line == batch.m_lines.FindItem(L"图层颜色")));
      EXPECT_TRUE(batch.m_lines.UserPress(batch.m_lines.FindItem(L"图层颜色")));
      EXPECT_TRUE(batch.m_modify.UserClick());
    });
    EXPECT_TRUE(RowMenu(dialog, 4, L"批量修改"));
    EXPECT_EQ(Data(Of(L"供水干管")), L"供水干管|暖通-供水|6|Continuous|1|0.5|M-LRG|供水");
    EXPECT_EQ(Data(Of(L"采暖供水")), L"采暖供水|暖通-采暖|6|ByLayer|1|-0.03||");
  });
}

TEST_F(LayerGrid, BeginsItsChoosersForSeveralLayersByLayer) {
  In([&](Dlg& dialog) {
    frontEnd.colour = 5;
    frontEnd.linetype = L"DASHED";
    frontEnd.lineWeight = 25;
    frontEnd.runs.push_back([&](CDialog& open) {
      auto& lines = dynamic_cast<CZPBatchModifyDlg&>(open).m_lines;
      for (const wchar_t* label : {L"图层颜色", L"图层线型", L"线宽(mm)"}) {
        EXPECT_FALSE(lines.UserSetText(lines.FindItem(label), L"1"));
        EXPECT_TRUE(lines.UserPress(lines.FindItem(label)));
      }
      EXPECT_EQ(frontEnd.choosers, L"颜色 256 线型 Continuous 线宽 -1 ");
      EXPECT_TRUE(open.UserEnter());
    });
    EXPECT_TRUE(RowMenu(dialog, 1, L"批量修改"));
    EXPECT_EQ(Data(Of(L"供水干管")), L"供水干管|暖通-供水|5|DASHED|1|0.25|M-LRG|供水");
  });
}

TEST_F(LayerGrid, TakesAWholeNumberForTheScaleOfSeveralLayers) {
  In([&](Dlg& dialog) {
    for (const auto& [text, value] :
         {std::pair(L"2.75", 2.0), {L"0.5", 0.0}, {L"-1.5x", -1.0}, {L"abc", 0.0}}) {
      frontEnd.runs.push_back([&](CDialog& open) {
        auto& lines = dynamic_cast<CZPBatchModifyDlg&>(open).m_lines;
        EXPECT_TRUE(lines.UserSetText(lines.FindItem(L"线型比例"), text));
        EXPECT_TRUE(open.UserEnter());
      });
      EXPECT_TRUE(RowMenu(dialog, 1, L"批量修改"));
      EXPECT_EQ(Of(L"供水干管").GetLineTypeScale(), value) << Utf8(text);
    }
  });
}

TEST_F(LayerGrid, ChangesNothingWhereTheUserGivesUp) {
  In([&](Dlg& dialog) {
    const CString before = Data(Of(L"供水干管"));
    frontEnd.runs.push_back([](CDialog& open) {
      EXPECT_TRUE(dynamic_cast<CZPBatchModifyDlg&>(open).m_lines.UserSetText(0, L"x"));
      EXPECT_TRUE(dynamic_cast<CZPBatchModifyDlg&>(open).m_cancel.UserClick());
    });
    EXPECT_TRUE(RowMenu(dialog, 1, L"批量修改"));
    EXPECT_EQ(Data(Of(L"供水干管")), before);
  });
}

} // namespace
