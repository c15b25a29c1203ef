// The manager of fan-coil units where models are picked, with the favourites beside.
#include "tests/plugin/fancoil/dialogs/FanCoilDialogs.h"

namespace {

class FanCoilFavouritesDlg : public FanCoilDialogs {
 protected:
  FanCoilFavouritesDlg() {
    AddTwoMakers();
    ZP::SetDefaultValue(kListKey, L"B|甲;A|乙;");
  }
};

TEST_F(FanCoilFavouritesDlg, ShowsWhatIsRemembered) {
  InFavourites([&](Dlg& dialog) {
    EXPECT_EQ(Entries(dialog.m_favourites.m_list), L"B|甲 A|乙 ");
    EXPECT_EQ(Outline(dialog.m_tree), L"风机盘管(甲([A] B C )乙(A ))");
    for (const CButton* button : {&dialog.m_add, &dialog.m_modify, &dialog.m_delete, &dialog.m_save})
      EXPECT_FALSE(button->IsWindowVisible());
    for (const CButton* button : {&dialog.m_favourites.m_take, &dialog.m_favourites.m_drop,
                                  &dialog.m_favourites.m_up, &dialog.m_favourites.m_down})
      EXPECT_TRUE(button->IsWindowVisible());
  });
}

TEST_F(FanCoilFavouritesDlg, BeginsWithTheFirstModelsWhereNothingIsLeft) {
  for (const wchar_t* remembered : {L"", L"B|甲", L"D|甲;X;"}) {
    ZP::SetDefaultValue(kListKey, remembered);
    InFavourites(
        [&](Dlg& dialog) { EXPECT_EQ(Entries(dialog.m_favourites.m_list), L"A|甲 B|甲 C|甲 A|乙 "); });
  }
}

TEST_F(FanCoilFavouritesDlg, ShowsTheModelOfAFavourite) {
  InFavourites([&](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_favourites.m_list.UserSelect(1));
    EXPECT_EQ(dialog.Equipment(), Find(L"A", L"乙"));
    EXPECT_EQ(Outline(dialog.m_tree), L"风机盘管(甲(A B C )乙([A] ))");
    EXPECT_EQ(Text(dialog.m_properties, L"厂家名称"), L"乙");
    EXPECT_TRUE(dialog.m_install.UserType(L"明装"));
    EXPECT_TRUE(dialog.m_favourites.m_list.UserSelect(1));
    EXPECT_EQ(Outline(dialog.m_tree), L"风机盘管(甲(B C )乙 )") << "the filter hides it";
    EXPECT_EQ(dialog.Equipment(), Find(L"A", L"乙"));
  });
}

TEST_F(FanCoilFavouritesDlg, ShowsNothingForAFavouriteThatIsNoModel) {
  AddFactory(L"丙");
  InFavourites([&](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_tree.UserSelect(Item(dialog.m_tree, L"丙")));
    EXPECT_TRUE(dialog.m_favourites.m_take.UserClick());
    EXPECT_EQ(Entries(dialog.m_favourites.m_list), L"B|甲 A|乙 丙 ")
        << "a maker without models, and no maker behind";
    EXPECT_TRUE(dialog.m_favourites.m_list.UserSelect(2));
    EXPECT_FALSE(dialog.Equipment());
    EXPECT_FALSE(dialog.m_tree.GetSelectedItem());
    EXPECT_EQ(Text(dialog.m_properties, L"设备型号"), L"");
    EXPECT_FALSE(dialog.m_preview.GetDrawing());
    EXPECT_TRUE(dialog.m_ok.UserClick());
  });
  EXPECT_EQ(Remembered(kListKey), L"B|甲;A|乙;丙;");
  InFavourites([&](Dlg& dialog) { EXPECT_EQ(Entries(dialog.m_favourites.m_list), L"B|甲 A|乙 "); });
}

TEST_F(FanCoilFavouritesDlg, TakesAModelOfTheTree) {
  InFavourites([&](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_tree.UserSelect(Item(dialog.m_tree, L"C")));
    EXPECT_TRUE(dialog.m_favourites.m_take.UserClick());
    EXPECT_EQ(Entries(dialog.m_favourites.m_list), L"B|甲 A|乙 C|甲 ");
    EXPECT_TRUE(dialog.m_tree.UserDoubleClick(Item(dialog.m_tree, L"A")));
    EXPECT_EQ(Entries(dialog.m_favourites.m_list), L"B|甲 A|乙 C|甲 A|甲 ");
    EXPECT_TRUE(frontEnd.boxes.empty());
    EXPECT_TRUE(dialog.m_favourites.m_take.UserClick());
    ASSERT_EQ(frontEnd.boxes.size(), 1u);
    EXPECT_EQ(frontEnd.boxes[0].caption, L"青岚提示");
    EXPECT_EQ(frontEnd.takeBox(), L"所选择的风机盘管已经在常用风机盘管列表中!");
    EXPECT_EQ(Entries(dialog.m_favourites.m_list), L"B|甲 A|乙 C|甲 A|甲 ");
  });
}

TEST_F(FanCoilFavouritesDlg, TakesNothingThatHasChildrenAndNothingAtAll) {
  InFavourites([&](Dlg& dialog) {
    for (const wchar_t* text : {L"甲", L"风机盘管"}) {
      EXPECT_TRUE(dialog.m_tree.UserSelect(Item(dialog.m_tree, text)));
      EXPECT_TRUE(dialog.m_favourites.m_take.UserClick());
      EXPECT_TRUE(dialog.m_tree.UserDoubleClick(Item(dialog.m_tree, text)));
    }
    EXPECT_TRUE(dialog.m_install.UserType(L"明装"));
    EXPECT_FALSE(dialog.m_tree.GetSelectedItem());
    EXPECT_TRUE(dialog.m_favourites.m_take.UserClick());
    EXPECT_EQ(Entries(dialog.m_favourites.m_list), L"B|甲 A|乙 ");
  });
  EXPECT_TRUE(frontEnd.boxes.empty());
}

TEST_F(FanCoilFavouritesDlg, DoubleClicksTakeNothingWithoutThePanel) {
  In([&](Dlg& dialog) { EXPECT_TRUE(dialog.m_tree.UserDoubleClick(Item(dialog.m_tree, L"C"))); });
  EXPECT_EQ(Remembered(kListKey), L"B|甲;A|乙;");
}

TEST_F(FanCoilFavouritesDlg, DropsAFavouriteAndGoesOnWithTheNext) {
  ZP::SetDefaultValue(kListKey, L"A|甲;B|甲;A|乙;");
  InFavourites([&](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_favourites.m_drop.UserClick());
    EXPECT_EQ(Entries(dialog.m_favourites.m_list), L"A|甲 B|甲 A|乙 ") << "nothing is selected";
    EXPECT_TRUE(dialog.m_favourites.m_list.UserSelect(1));
    EXPECT_TRUE(dialog.m_favourites.m_drop.UserClick());
    EXPECT_EQ(Entries(dialog.m_favourites.m_list), L"A|甲 [A|乙] ");
    EXPECT_EQ(dialog.Equipment(), Find(L"A", L"乙")) << "what is selected is shown";
    EXPECT_TRUE(dialog.m_favourites.m_drop.UserClick());
    EXPECT_EQ(Entries(dialog.m_favourites.m_list), L"[A|甲] ") << "or the last";
    EXPECT_TRUE(dialog.m_favourites.m_drop.UserClick());
    EXPECT_EQ(Entries(dialog.m_favourites.m_list), L"");
    EXPECT_TRUE(dialog.m_favourites.m_drop.UserClick());
  });
}

TEST_F(FanCoilFavouritesDlg, MovesFavouritesButNotPastTheEnds) {
  ZP::SetDefaultValue(kListKey, L"A|甲;B|甲;A|乙;");
  InFavourites([&](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_favourites.m_up.UserClick());
    EXPECT_TRUE(dialog.m_favourites.m_list.UserSelect(0));
    EXPECT_TRUE(dialog.m_favourites.m_up.UserClick());
    EXPECT_EQ(Entries(dialog.m_favourites.m_list), L"[A|甲] B|甲 A|乙 ");
    EXPECT_TRUE(dialog.m_favourites.m_down.UserClick());
    EXPECT_EQ(Entries(dialog.m_favourites.m_list), L"B|甲 [A|甲] A|乙 ");
    EXPECT_TRUE(dialog.m_favourites.m_down.UserClick());
    EXPECT_TRUE(dialog.m_favourites.m_down.UserClick());
    EXPECT_EQ(Entries(dialog.m_favourites.m_list), L"B|甲 A|乙 [A|甲] ");
    EXPECT_TRUE(dialog.m_favourites.m_up.UserClick());
    EXPECT_EQ(Entries(dialog.m_favourites.m_list), L"B|甲 [A|甲] A|乙 ");
    EXPECT_TRUE(dialog.m_ok.UserClick());
  });
  EXPECT_EQ(Remembered(kListKey), L"B|甲;A|甲;A|乙;");
}

TEST_F(FanCoilFavouritesDlg, StaysOpenWithAnEmptyList) {
  const int result = InFavourites([&](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_favourites.m_list.UserSelect(0));
    EXPECT_TRUE(dialog.m_favourites.m_drop.UserClick());
    EXPECT_TRUE(dialog.m_favourites.m_drop.UserClick());
    EXPECT_TRUE(dialog.m_install.UserType(L"暗装"));
    EXPECT_TRUE(dialog.m_ok.UserClick());
    ASSERT_EQ(frontEnd.boxes.size(), 1u);
    EXPECT_EQ(frontEnd.boxes[0].caption, L"青岚提示");
    EXPECT_EQ(frontEnd.takeBox(), L"常用风机盘管列表不能为空!");
    EXPECT_FALSE(dialog.HasEnded());
    EXPECT_EQ(Remembered(kListKey), L"B|甲;A|乙;") << "the list is not written";
    EXPECT_EQ(Remembered(kInstallKey), L"暗装") << "the filters are";
    EXPECT_TRUE(dialog.m_tree.UserSelect(Item(dialog.m_tree, L"A")));
    EXPECT_TRUE(dialog.m_favourites.m_take.UserClick());
    EXPECT_TRUE(dialog.m_ok.UserClick());
    EXPECT_TRUE(dialog.HasEnded());
  });
  EXPECT_EQ(result, IDOK);
  EXPECT_EQ(Remembered(kListKey), L"A|甲;");
}

TEST_F(FanCoilFavouritesDlg, LeavesListAndCatalogueFileAloneWhenItIsCancelled) {
  EXPECT_EQ(InFavourites([&](Dlg& dialog) {
              EXPECT_TRUE(dialog.m_favourites.m_list.UserSelect(0));
              EXPECT_TRUE(dialog.m_favourites.m_drop.UserClick());
              EXPECT_TRUE(dialog.m_cancel.UserClick());
            }),
            IDCANCEL);
  EXPECT_EQ(Remembered(kListKey), L"B|甲;A|乙;");
}

TEST_F(FanCoilFavouritesDlg, PicksForSiblings) {
  CFCUEquipment* equipment = nullptr;
  frontEnd.runs = {[&](CDialog& open) {
    EXPECT_EQ(open.GetParent(), nullptr);
    EXPECT_EQ(acDocManagerPtr()->resourceDepth(), 1u);
    EXPECT_TRUE(static_cast<Dlg&>(open).m_favourites.m_list.UserSelect(0));
    EXPECT_TRUE(open.UserEnter());
  }};
  EXPECT_EQ(ZP::ShowCommonFCUMngDlg(equipment), IDOK);
  EXPECT_EQ(equipment, Find(L"B", L"甲"));
  frontEnd.runs = {[&](CDialog& open) {
    EXPECT_TRUE(static_cast<Dlg&>(open).m_favourites.m_list.UserSelect(1));
    open.UserEscape();
  }};
  EXPECT_EQ(ZP::ShowCommonFCUMngDlg(equipment), IDCANCEL);
  EXPECT_EQ(equipment, Find(L"B", L"甲"));
  EXPECT_EQ(FileOutline(), L"") << "the catalogue isn't written";
}

} // namespace
