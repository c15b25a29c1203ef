// The menu of the layer table: new layers, deleting, picking, copying, and changing several at once.
#include "host/ed/acedColors.h"
#include "plugin/layers/dialogs/CZPBatchModifyDlg.h"
#include "tests/plugin/layers/dialogs/LayerManagerFixture.h"

namespace {

using namespace dialogtest;

class LayerTableMenu : public LayerManagerFixture {};

TEST_F(LayerTableMenu, OffersWhatFitsTheRowAndTheNode) {
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

TEST_F(LayerTableMenu, MakesALayerWithTheDefaults) {
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

TEST_F(LayerTableMenu, MakesALayerLikeTheCurrentRowOrElseTheCopiedOne) {
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

TEST_F(LayerTableMenu, NumbersIdentifiersByTheSizeOfTheGroupAlone) {
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

TEST_F(LayerTableMenu, AsksBeforeALayerIsDeleted) {
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

TEST_F(LayerTableMenu, PastesIntoAllSelectedRowsAndKeepsTheirIdentifiers) {
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

TEST_F(LayerTableMenu, KeepsTheCopyWhenItsLayerGoes) {
  SaveScheme(L"乙方案", L"甲标识", L"甲层");
  In([&](Dlg& dialog) {
    EXPECT_EQ(dialog.m_menu.Clipboard(), nullptr);
    EXPECT_TRUE(RowMenu(dialog, 1, L"复制"));
    EXPECT_TRUE(dialog.m_schemes.UserType(L"乙方案"));
    EXPECT_TRUE(RowMenu(dialog, 1, L"粘贴"));
    EXPECT_EQ(Data(Of(L"甲标识")), L"甲标识|暖通-供水|3|Continuous|1|0.5|M-LRG|供水");
  });
}

TEST_F(LayerTableMenu, PicksALayerFromTheDrawing) {
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

TEST_F(LayerTableMenu, WritesItsRowsWhereNothingIsPicked) {
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

TEST_F(LayerTableMenu, ChangesSeveralLayersAtOnce) {
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

TEST_F(LayerTableMenu, ChangesOnlyWhatIsTicked) {
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

TEST_F(LayerTableMenu, BeginsItsChoosersForSeveralLayersByLayer) {
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

TEST_F(LayerTableMenu, TakesAWholeNumberForTheScaleOfSeveralLayers) {
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

TEST_F(LayerTableMenu, ChangesNothingWhereTheUserGivesUp) {
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
