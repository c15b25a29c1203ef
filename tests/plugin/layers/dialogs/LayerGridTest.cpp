// The table of layers in the layer manager: what its cells show, how they change.
#include "host/ed/acedColors.h"
#include "tests/plugin/layers/dialogs/LayerManagerFixture.h"

namespace {

using namespace dialogtest;

class LayerGrid : public LayerManagerFixture {};

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

} // namespace
