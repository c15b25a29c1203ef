#include "plugin/pipes/dialogs/CZPDuctManagerDlg.h"

#include "plugin/pipes/dialogs/ShowPipeDialogs.h"
#include "tests/plugin/pipes/ducts/DuctFixture.h"
#include "tests/support/DialogFixture.h"

namespace {

using namespace dialogtest;
using Dlg = CZPDuctManagerDlg;

class DuctManagerDlg : public DuctFixture {
 protected:
  DuctManagerDlg() {
    first = AddNamed(L"镀锌钢板");
    SZPDuctThickness narrow(0, 320, 0.5), wide(321, 630, 0.6);
    first->m_arrThickness.Add(narrow);
    first->m_arrThickness.Add(wide);
    second = AddNamed(L"玻璃钢");
    second->m_dRoughness = 0.01;
    AddRect(500, 250);
    AddRect(320, 200);
    AddCircle(200);
    AddCircle(100);
  }
  int In(const std::function<void(Dlg&)>& test, CZPDuctMaterial* inUse = nullptr) {
    Dlg dialog(inUse, nullptr);
    return dialogtest::Run<Dlg>(frontEnd, dialog, test);
  }
  static void ShowRound(Dlg& dialog) { EXPECT_TRUE(dialog.m_shapes.UserSelect(1)); }
  // "0-320:0.5 321-630:0.6"
  static CString Bands(const CZPDuctMaterial& material) {
    CString text;
    for (const SZPDuctThickness& row : material.m_arrThickness)
      text += (text.IsEmpty() ? L"" : L" ") + ZP::ftoa(row.dbMin, 2, true) + L"-" +
              ZP::ftoa(row.dbMax, 2, true) + L":" + ZP::ftoa(row.dbThickness, 2, true);
    return text;
  }
  UiFrontEndScript frontEnd;
  CZPDuctMaterial* first = nullptr;
  CZPDuctMaterial* second = nullptr;
};

TEST_F(DuctManagerDlg, SelectsTheFirstMaterialWithoutOneInUse) {
  In([&](Dlg& dialog) {
    EXPECT_EQ(dialog.GetCaption(), L"风管管材和管径管理器");
    EXPECT_EQ(dialog.m_materials.Current(), first);
    EXPECT_EQ(dialog.m_roughness.GetText(), L"0.02");
    EXPECT_EQ(dialog.m_roughness.GetCaption(), L"绝对粗糙度(mm)：");
    EXPECT_EQ(RowsText(dialog.m_thickness), L"0|320|0.5 321|630|0.6 ||");
    EXPECT_EQ(dialog.m_materials.m_add.GetToolTip(), L"新建");
  });
  In([&](Dlg& dialog) { EXPECT_EQ(dialog.m_materials.Current(), second); }, second);
}

TEST_F(DuctManagerDlg, ShowsTheMaterialThatIsClicked) {
  In([&](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_materials.m_list.UserClick(1, 0));
    EXPECT_EQ(dialog.m_roughness.GetText(), L"0.01");
    EXPECT_EQ(RowsText(dialog.m_thickness), L"||");
  });
}

TEST_F(DuctManagerDlg, TakesTheRoughnessWhenItsFieldIsLeft) {
  In([&](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_roughness.UserType(L"0.156"));
    EXPECT_EQ(first->m_dRoughness, 0.02);
    EXPECT_TRUE(dialog.m_materials.m_list.UserClick(1, 0));
    EXPECT_EQ(first->m_dRoughness, 0.156);
    EXPECT_EQ(second->m_dRoughness, 0.01);
    EXPECT_FALSE(dialog.m_roughness.UserType(L"rough"));
    EXPECT_TRUE(dialog.m_roughness.UserType(L"3"));
    dialog.UserClose();
  });
  EXPECT_EQ(second->m_dRoughness, 3);
}

TEST_F(DuctManagerDlg, SelectsTheNextMaterialAfterADeletion) {
  In([&](Dlg& dialog) {
    frontEnd.answers = {IDOK, IDOK};
    EXPECT_TRUE(dialog.m_materials.m_remove.UserClick());
    EXPECT_EQ(frontEnd.takeBox(), L"删除不可恢复，确定要删除【镀锌钢板】吗?");
    EXPECT_EQ(dialog.m_materials.Current(), second);
    EXPECT_EQ(RowsText(dialog.m_thickness), L"||");
    EXPECT_TRUE(dialog.m_materials.m_remove.UserClick());
    EXPECT_EQ(dialog.m_materials.Current(), nullptr);
    EXPECT_EQ(RowsText(dialog.m_thickness), L"") << "no material, no table";
    EXPECT_FALSE(dialog.m_roughness.UserType(L"1"));
    EXPECT_TRUE(dialog.m_thickness.UserOpenMenu(-1, 0));
    EXPECT_FALSE(dialog.m_thickness.Menu.UserChoose(1));
  });
  EXPECT_EQ(Names(), L"");
}

TEST_F(DuctManagerDlg, HasTheRulesOfNamesOfPipes) {
  In([&](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_materials.m_add.UserClick());
    EXPECT_TRUE(dialog.m_materials.m_list.UserEndEdit());
    EXPECT_EQ(frontEnd.takeBox(), L"管材材质名称不能为空字符串，请重新输入材质名称！");
    EXPECT_TRUE(dialog.m_materials.m_list.UserTypeEdit(L"玻璃钢"));
    EXPECT_TRUE(dialog.m_materials.m_list.UserEndEdit());
    EXPECT_EQ(frontEnd.takeBox(), L"【玻璃钢】已经存在，请重新输入材质名称！");
    dialog.UserClose();
  });
  EXPECT_EQ(Names(), L"镀锌钢板 玻璃钢");
}

TEST_F(DuctManagerDlg, DoesNotDeleteTheMaterialInUse) {
  In(
      [&](Dlg& dialog) {
        EXPECT_TRUE(dialog.m_materials.m_remove.UserClick());
        EXPECT_EQ(frontEnd.takeBox(), L"当前管材管径正在使用，不允许删除！");
      },
      second);
  EXPECT_EQ(Names(), L"镀锌钢板 玻璃钢");
}

TEST_F(DuctManagerDlg, MovesMaterials) {
  In([&](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_materials.m_down.UserClick());
    EXPECT_EQ(Names(), L"玻璃钢 镀锌钢板");
    EXPECT_TRUE(dialog.m_materials.m_up.UserClick());
    EXPECT_TRUE(dialog.m_materials.m_up.UserClick());
    EXPECT_EQ(Names(), L"镀锌钢板 玻璃钢");
  });
}

// --- wall thicknesses

TEST_F(DuctManagerDlg, MergesTheHeadingOfTheBand) {
  In([](Dlg& dialog) {
    EXPECT_EQ(dialog.m_thickness.GetItemText(0, 0), L"风管最大边(mm)");
    EXPECT_EQ(dialog.m_thickness.Cell(0, 0).spanColumns, 2);
    EXPECT_EQ(dialog.m_thickness.Cell(0, 1).spanColumns, 0);
    EXPECT_EQ(dialog.m_thickness.GetItemText(0, 2), L"壁厚(mm)");
  });
}

TEST_F(DuctManagerDlg, StoresAnEditedThickness) {
  In([&](Dlg& dialog) {
    EXPECT_TRUE(Edit(dialog.m_thickness, 1, 0, L"10"));
    EXPECT_TRUE(Edit(dialog.m_thickness, 1, 1, L"330.5"));
    EXPECT_TRUE(Edit(dialog.m_thickness, 2, 2, L"0"));
    EXPECT_TRUE(Edit(dialog.m_thickness, 2, 1, L"")) << "ignored";
    EXPECT_EQ(dialog.m_thickness.GetItemText(2, 1), L"630");
  });
  EXPECT_EQ(Bands(*first), L"10-330.5:0.5 321-630:0");
  EXPECT_TRUE(frontEnd.boxes.empty());
}

TEST_F(DuctManagerDlg, RefusesAThicknessThatIsNoNumber) {
  In([&](Dlg& dialog) {
    for (const wchar_t* text : {L"abc", L"0.0", L" "}) {
      EXPECT_TRUE(Edit(dialog.m_thickness, 1, 1, text));
      EXPECT_EQ(frontEnd.takeBox(), L"输入的数据不是数值型，请重新输入！");
      EXPECT_EQ(dialog.m_thickness.GetItemText(1, 1), L"320");
    }
  });
  EXPECT_EQ(Bands(*first), L"0-320:0.5 321-630:0.6");
}

TEST_F(DuctManagerDlg, MakesARowOfTheEmptyOne) {
  In([&](Dlg& dialog) {
    EXPECT_FALSE(dialog.m_thickness.CanEdit(3, 1));
    EXPECT_TRUE(Edit(dialog.m_thickness, 3, 0, L"")) << "ignored";
    EXPECT_EQ(first->m_arrThickness.GetSize(), 2);
    EXPECT_TRUE(Edit(dialog.m_thickness, 3, 0, L"631"));
    EXPECT_EQ(RowsText(dialog.m_thickness), L"0|320|0.5 321|630|0.6 631|0|0 ||");
    EXPECT_TRUE(Edit(dialog.m_thickness, 3, 2, L"0.75"));
    EXPECT_FALSE(dialog.m_thickness.CanEdit(4, 1));
  });
  EXPECT_EQ(Bands(*first), L"0-320:0.5 321-630:0.6 631-0:0.75");
}

TEST_F(DuctManagerDlg, KeepsTheNewRowAfterARefusedValue) {
  In([&](Dlg& dialog) {
    EXPECT_TRUE(Edit(dialog.m_thickness, 3, 0, L"wide"));
    EXPECT_EQ(frontEnd.takeBox(), L"输入的数据不是数值型，请重新输入！");
    EXPECT_EQ(RowsText(dialog.m_thickness), L"0|320|0.5 321|630|0.6 0|0|0 ||");
  });
  EXPECT_EQ(Bands(*first), L"0-320:0.5 321-630:0.6 0-0:0");
}

TEST_F(DuctManagerDlg, AddsAndDeletesThicknessesByTheMenu) {
  In([&](Dlg& dialog) {
    auto& grid = dialog.m_thickness;
    EXPECT_TRUE(grid.UserOpenMenu(-1, 0));
    const auto items = grid.Menu.Items();
    ASSERT_EQ(items.size(), 2u);
    EXPECT_EQ(items[0].text, L"新建");
    EXPECT_EQ(items[1].text, L"删除");
    EXPECT_TRUE(grid.Menu.UserChoose(items[0].id));
    EXPECT_EQ(RowsText(grid), L"0|320|0.5 321|630|0.6 0|0|0 ||");
    EXPECT_TRUE(grid.UserOpenMenu(1, 0));
    EXPECT_TRUE(grid.Menu.UserChoose(items[1].id));
    EXPECT_EQ(RowsText(grid), L"321|630|0.6 0|0|0 ||");
    EXPECT_TRUE(grid.UserOpenMenu(3, 0));
    EXPECT_FALSE(grid.Menu.UserChoose(items[1].id)) << "the empty row";
  });
  EXPECT_EQ(Bands(*first), L"321-630:0.6 0-0:0");
  EXPECT_TRUE(frontEnd.boxes.empty());
}

// --- sizes

TEST_F(DuctManagerDlg, ShowsTheSizesOfTheShape) {
  In([](Dlg& dialog) {
    EXPECT_EQ(dialog.m_shapes.GetCaption(), L"截面形状：");
    EXPECT_EQ(dialog.m_shapes.SelectedText(), L"矩形");
    EXPECT_EQ(dialog.m_sizes.GetItemText(0, 0), L"宽度(mm)");
    EXPECT_EQ(dialog.m_sizes.GetItemText(0, 1), L"高度(mm)");
    EXPECT_EQ(dialog.m_sizes.Column(0).width, 95);
    EXPECT_EQ(dialog.m_sizes.Column(1).width, 95);
    EXPECT_EQ(RowsText(dialog.m_sizes), L"320|200 500|250 |");
    EXPECT_FALSE(dialog.m_sizes.CanEdit(3, 1));
    ShowRound(dialog);
    EXPECT_EQ(dialog.m_sizes.GetItemText(0, 0), L"直径(mm)");
    EXPECT_EQ(dialog.m_sizes.Column(0).width, 190);
    EXPECT_EQ(dialog.m_sizes.Column(1).width, 0);
    EXPECT_EQ(RowsText(dialog.m_sizes), L"100 200 ");
  });
}

TEST_F(DuctManagerDlg, AddsASizeInItsPlace) {
  In([&](Dlg& dialog) {
    EXPECT_TRUE(Edit(dialog.m_sizes, 3, 0, L" 400 "));
    EXPECT_EQ(RowsText(dialog.m_sizes), L"320|200 400|0 500|250 |");
    EXPECT_TRUE(Edit(dialog.m_sizes, 4, 0, L"0"));
    EXPECT_EQ(RowsText(dialog.m_sizes), L"0|0 320|200 400|0 500|250 |");
    EXPECT_TRUE(Edit(dialog.m_sizes, 5, 0, L"  ")) << "ignored";
    ShowRound(dialog);
    EXPECT_TRUE(Edit(dialog.m_sizes, 3, 0, L"150"));
    EXPECT_EQ(RowsText(dialog.m_sizes), L"100 150 200 ");
    EXPECT_TRUE(Edit(dialog.m_sizes, 4, 0, L"150.001")) << "no other size after rounding";
    EXPECT_EQ(RowsText(dialog.m_sizes), L"100 150 200 ");
  });
  EXPECT_TRUE(frontEnd.boxes.empty());
  EXPECT_EQ(Rects(), L"0x0 320x200 400x0 500x250");
  EXPECT_EQ(Circles(), L"100x0 150x0 200x0");
}

TEST_F(DuctManagerDlg, RefusesASizeThatIsNoNumber) {
  In([&](Dlg& dialog) {
    for (const wchar_t* text : {L"abc", L"-5", L"0.0", L"nan"})
      for (const int row : {1, 3}) {
        EXPECT_TRUE(Edit(dialog.m_sizes, row, 0, text));
        EXPECT_EQ(frontEnd.takeBox(), L"输入字符串不满足要求，输入值必须为数值型数据！");
        EXPECT_EQ(RowsText(dialog.m_sizes), L"320|200 500|250 |");
      }
  });
  EXPECT_EQ(Rects(), L"320x200 500x250");
}

TEST_F(DuctManagerDlg, SortsAChangedWidthIn) {
  In([&](Dlg& dialog) {
    EXPECT_TRUE(Edit(dialog.m_sizes, 1, 0, L"630"));
    EXPECT_EQ(RowsText(dialog.m_sizes), L"500|250 630|200 |");
    EXPECT_TRUE(Edit(dialog.m_sizes, 1, 0, L"630"));
    EXPECT_EQ(RowsText(dialog.m_sizes), L"630|250 630|200 |") << "rectangles of one width both stay";
  });
}

TEST_F(DuctManagerDlg, DropsARoundSizeThatEqualsAnother) {
  In([&](Dlg& dialog) {
    ShowRound(dialog);
    EXPECT_TRUE(Edit(dialog.m_sizes, 1, 0, L"200"));
    EXPECT_EQ(RowsText(dialog.m_sizes), L"200 ");
  });
  EXPECT_EQ(Circles(), L"200x0");
}

TEST_F(DuctManagerDlg, AsksBeforeASizeIsDeleted) {
  In([&](Dlg& dialog) {
    frontEnd.answers = {IDCANCEL, IDOK, IDOK};
    EXPECT_TRUE(Edit(dialog.m_sizes, 1, 0, L" "));
    EXPECT_EQ(frontEnd.takeBox(), L"当前字符串为空！删除不可恢复，确定要删除【320】吗?");
    EXPECT_EQ(RowsText(dialog.m_sizes), L"320|200 500|250 |");
    EXPECT_TRUE(Edit(dialog.m_sizes, 1, 0, L""));
    EXPECT_EQ(RowsText(dialog.m_sizes), L"500|250 |");
    ShowRound(dialog);
    EXPECT_TRUE(Edit(dialog.m_sizes, 2, 0, L""));
    EXPECT_EQ(RowsText(dialog.m_sizes), L"100 ");
  });
  EXPECT_EQ(Rects(), L"500x250");
  EXPECT_EQ(Circles(), L"100x0");
}

TEST_F(DuctManagerDlg, StoresAHeight) {
  In([&](Dlg& dialog) {
    EXPECT_TRUE(Edit(dialog.m_sizes, 1, 1, L"210 x"));
    EXPECT_TRUE(Edit(dialog.m_sizes, 2, 1, L"high"));
    EXPECT_TRUE(frontEnd.boxes.empty());
    EXPECT_TRUE(Edit(dialog.m_sizes, 1, 1, L" "));
    EXPECT_EQ(frontEnd.takeBox(), L"不能为空字符串，请输入数值。");
    EXPECT_EQ(dialog.m_sizes.GetItemText(1, 1), L"");
    EXPECT_EQ(dialog.FocusControl(), &dialog.m_sizes);
    EXPECT_EQ(dialog.m_sizes.GetFocusColumn(), 1);
  });
  EXPECT_EQ(Rects(), L"320x210 500x0");
}

TEST_F(DuctManagerDlg, AsksNothingWhileTheWindowCloses) {
  for (const wchar_t* text : {L"", L"x"})
    for (int column = 0; column < 2; ++column) {
      In([&](Dlg& dialog) {
        EXPECT_TRUE(dialog.m_sizes.UserBeginEdit(1, column));
        EXPECT_TRUE(dialog.m_sizes.UserTypeEdit(column == 1 ? L"" : text));
        dialog.UserClose();
      });
      In([&](Dlg& dialog) {
        EXPECT_TRUE(dialog.m_thickness.UserBeginEdit(1, column));
        EXPECT_TRUE(dialog.m_thickness.UserTypeEdit(text));
        dialog.UserClose();
      });
    }
  EXPECT_TRUE(frontEnd.boxes.empty());
  EXPECT_EQ(Rects(), L"320x200 500x250");
  EXPECT_EQ(Bands(*first), L"0-320:0.5 321-630:0.6");
}

// --- leaving

TEST_F(DuctManagerDlg, SavesHoweverItIsLeft) {
  In([](Dlg& dialog) {
    EXPECT_TRUE(Edit(dialog.m_sizes, 1, 1, L"111"));
    EXPECT_TRUE(dialog.m_exit.UserClick());
  });
  Reload();
  EXPECT_EQ(Rects(), L"320x111 500x250");
}

TEST_F(DuctManagerDlg, PicksWhatIsSelectedAtOk) {
  CZPDuctMaterial* material = first;
  frontEnd.runs = {[](CDialog& dialog) {
    EXPECT_TRUE(static_cast<Dlg&>(dialog).m_materials.m_list.UserClick(1, 0));
    EXPECT_TRUE(dialog.UserEnter());
  }};
  EXPECT_EQ(ZP::ShowDuctMaterialDlg(material, nullptr), 1);
  EXPECT_EQ(material, second);
  frontEnd.runs = {[](CDialog& dialog) {
    EXPECT_TRUE(static_cast<Dlg&>(dialog).m_materials.m_list.UserClick(0, 0));
    EXPECT_TRUE(static_cast<Dlg&>(dialog).m_exit.UserClick());
  }};
  EXPECT_EQ(ZP::ShowDuctMaterialDlg(material, nullptr), 0);
  EXPECT_EQ(material, second);
  Empty();
  material = nullptr;
  frontEnd.runs = {[](CDialog& dialog) { EXPECT_TRUE(dialog.UserEnter()); }};
  EXPECT_EQ(ZP::ShowDuctMaterialDlg(material, nullptr), 0);
  frontEnd.runs = {[](CDialog& dialog) { EXPECT_TRUE(dialog.UserEnter()); }};
  EXPECT_EQ(ZP::ShowDuctMaterialDlg(nullptr), IDOK);
}

} // namespace
