// The manager of fan-coil units: what each event does to the tree, the views, the catalogue and the files.
#include "tests/plugin/fancoil/dialogs/FanCoilDialogs.h"

namespace {

class FanCoilManagerDlg : public FanCoilDialogs {
 protected:
  FanCoilManagerDlg() { AddTwoMakers(); }
};

TEST_F(FanCoilManagerDlg, ClosesWhenTheWaterDatabaseCannotBeRead) {
  std::filesystem::remove(install.Root() / "Data/KTSLDatabase.xml");
  bool shown = false;
  EXPECT_EQ(In([&](Dlg&) { shown = true; }), IDCANCEL);
  EXPECT_FALSE(shown);
  ASSERT_EQ(frontEnd.boxes.size(), 1u);
  EXPECT_EQ(frontEnd.boxes[0].caption, L"青岚提示");
  EXPECT_EQ(frontEnd.takeBox(), L"数据库打开失败。");
  frontEnd.runs.clear();
}

TEST_F(FanCoilManagerDlg, ShowsMakersModelsAndTheFirstModel) {
  In([&](Dlg& dialog) {
    EXPECT_EQ(Outline(dialog.m_tree), L"风机盘管(甲([A] B C )乙(A ))");
    EXPECT_TRUE(Item(dialog.m_tree, L"甲")->expanded);
    EXPECT_FALSE(Item(dialog.m_tree, L"乙")->expanded);
    EXPECT_EQ(Text(dialog.m_properties, L"设备型号"), L"A");
    for (int i = 0; i < dialog.m_properties.GetItemCount(); ++i)
      EXPECT_TRUE(dialog.m_properties.Item(i).readOnly);
    EXPECT_TRUE(dialog.m_preview.GetDrawing());
    EXPECT_EQ(dialog.m_install.GetText(), L"ALL");
    EXPECT_EQ(dialog.m_structure.GetText(), L"ALL");
    for (const CWnd* control :
         {static_cast<CWnd*>(&dialog.m_favourites.m_list), static_cast<CWnd*>(&dialog.m_favourites.m_take),
          static_cast<CWnd*>(&dialog.m_favourites.m_drop), static_cast<CWnd*>(&dialog.m_favourites.m_up),
          static_cast<CWnd*>(&dialog.m_favourites.m_down)})
      EXPECT_FALSE(control->IsWindowVisible());
    for (const CButton* button : {&dialog.m_add, &dialog.m_modify, &dialog.m_delete, &dialog.m_save})
      EXPECT_TRUE(button->IsWindowVisible());
  });
}

TEST_F(FanCoilManagerDlg, BeginsWithTheModelThatItIsGiven) {
  Dlg named(L"乙", L"A", nullptr);
  dialogtest::Run<Dlg>(frontEnd, named, [&](Dlg& dialog) {
    EXPECT_EQ(Outline(dialog.m_tree), L"风机盘管(甲(A B C )乙([A] ))");
    EXPECT_EQ(dialog.Equipment(), Find(L"A", L"乙"));
  });
  Dlg unknown(L"乙", L"Z", nullptr);
  dialogtest::Run<Dlg>(frontEnd, unknown, [&](Dlg& dialog) {
    EXPECT_EQ(Outline(dialog.m_tree), L"风机盘管(甲(A B C )乙(A ))");
    EXPECT_EQ(Text(dialog.m_properties, L"设备型号"), L"");
    EXPECT_FALSE(dialog.m_preview.GetDrawing());
    EXPECT_TRUE(dialog.m_modify.UserClick());
    EXPECT_TRUE(frontEnd.boxes.empty()) << "there is nothing to modify";
  });
  Dlg given(Find(L"C", L"甲"), nullptr);
  dialogtest::Run<Dlg>(frontEnd, given, [&](Dlg& dialog) {
    EXPECT_EQ(Outline(dialog.m_tree), L"风机盘管(甲(A B [C] )乙(A ))");
  });
}

TEST_F(FanCoilManagerDlg, OpensOverAnEmptyCatalogue) {
  Empty();
  In([&](Dlg& dialog) {
    EXPECT_EQ(Outline(dialog.m_tree), L"风机盘管 ");
    EXPECT_FALSE(dialog.Equipment());
    EXPECT_TRUE(dialog.m_delete.UserClick());
    EXPECT_TRUE(dialog.m_tree.UserSelect(dialog.m_tree.GetRootItem()));
    EXPECT_TRUE(dialog.m_delete.UserClick());
    EXPECT_TRUE(dialog.m_ok.UserClick());
  });
  EXPECT_TRUE(frontEnd.boxes.empty());
}

TEST_F(FanCoilManagerDlg, LeavesOutEmptyPlacesOfTheCatalogue) {
  catalogue.m_arrFactories.InsertAt(0, static_cast<CFCUFactory*>(nullptr));
  first->m_arrEquipments.InsertAt(0, static_cast<CFCUEquipment*>(nullptr));
  In([](Dlg& dialog) { EXPECT_EQ(Outline(dialog.m_tree), L"风机盘管(甲([A] B C )乙(A ))"); });
}

TEST_F(FanCoilManagerDlg, FiltersByMountingAndForm) {
  In([&](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_tree.UserSelect(Item(dialog.m_tree, L"B")));
    EXPECT_TRUE(dialog.m_install.UserType(L"明装"));
    EXPECT_EQ(Outline(dialog.m_tree), L"风机盘管(甲([B] C )乙 )") << "makers stay without their models";
    EXPECT_TRUE(dialog.m_structure.UserType(L"立式"));
    EXPECT_EQ(Outline(dialog.m_tree), L"风机盘管(甲(C )乙 )");
    EXPECT_EQ(Text(dialog.m_properties, L"设备型号"), L"B") << "the current model stays";
    EXPECT_TRUE(Item(dialog.m_tree, L"甲")->expanded);
    EXPECT_TRUE(dialog.m_install.UserType(L"ALL"));
    EXPECT_TRUE(dialog.m_structure.UserType(L"ALL"));
    EXPECT_EQ(Outline(dialog.m_tree), L"风机盘管(甲(A [B] C )乙(A ))");
  });
}

TEST_F(FanCoilManagerDlg, RemembersTheFiltersWhenItSaves) {
  In([](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_install.UserType(L"明装"));
    EXPECT_TRUE(dialog.m_cancel.UserClick());
  });
  EXPECT_EQ(Remembered(kInstallKey), L"unset");
  In([](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_install.UserType(L"明装"));
    EXPECT_TRUE(dialog.m_save.UserClick());
    EXPECT_FALSE(dialog.HasEnded());
  });
  EXPECT_EQ(Remembered(kInstallKey), L"明装");
  EXPECT_EQ(Remembered(kStructKey), L"");
  In([](Dlg& dialog) {
    EXPECT_EQ(dialog.m_install.GetText(), L"明装");
    EXPECT_EQ(dialog.m_structure.GetText(), L"ALL");
    EXPECT_EQ(Outline(dialog.m_tree), L"风机盘管(甲(B C )乙 )");
  });
}

TEST_F(FanCoilManagerDlg, ShowsAllWhereWhatIsRememberedIsNoStyle) {
  for (const wchar_t* remembered : {L"", L"ALL", L"吊装"}) {
    ZP::SetDefaultValue(kInstallKey, remembered);
    In([&](Dlg& dialog) {
      EXPECT_EQ(dialog.m_install.GetText(), L"ALL");
      EXPECT_EQ(Outline(dialog.m_tree), L"风机盘管(甲([A] B C )乙(A ))");
    });
  }
}

TEST_F(FanCoilManagerDlg, ShowsAnItemOnlyIfItIsAModel) {
  In([&](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_tree.UserSelect(Item(dialog.m_tree, L"C")));
    EXPECT_EQ(Text(dialog.m_properties, L"结构形式"), L"立式");
    EXPECT_EQ(dialog.Equipment(), Find(L"C", L"甲"));
    for (const wchar_t* other : {L"乙", L"风机盘管"}) {
      EXPECT_TRUE(dialog.m_tree.UserSelect(Item(dialog.m_tree, other)));
      EXPECT_EQ(dialog.Equipment(), Find(L"C", L"甲"));
      EXPECT_EQ(Text(dialog.m_properties, L"设备型号"), L"C");
    }
    EXPECT_TRUE(dialog.m_tree.UserDoubleClick(Item(dialog.m_tree, L"B")));
    EXPECT_EQ(dialog.Equipment(), Find(L"B", L"甲"));
  });
}

TEST_F(FanCoilManagerDlg, AddsAModelToTheMakerOfTheCurrentOne) {
  In([&](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_tree.UserSelect(Item(dialog.m_tree, L"乙")->children[0].get()));
    Next([&](AddDlg& add) {
      EXPECT_EQ(add.GetCaption(), L"添加风机盘管");
      EXPECT_EQ(Text(add.m_properties, L"厂家名称"), L"乙");
      Set(add.m_properties, L"设备型号", L"N");
      Set(add.m_properties, L"功率(W)", L"55");
      EXPECT_TRUE(add.m_ok.UserClick());
    });
    EXPECT_TRUE(dialog.m_add.UserClick());
    EXPECT_EQ(Outline(dialog.m_tree), L"风机盘管(甲(A B C )乙([A] N ))") << "the current model stays";
  });
  ASSERT_TRUE(Find(L"N", L"乙"));
  EXPECT_EQ(Find(L"N", L"乙")->m_data.dbPower, 55);
  EXPECT_EQ(Find(L"N", L"乙")->GetName(), L"N");
  EXPECT_EQ(Find(L"N", L"乙")->GetParent(), second);
  EXPECT_EQ(FileOutline(), L"") << "nobody has saved";
}

TEST_F(FanCoilManagerDlg, AddsAMakerWithItsFirstModel) {
  In([&](Dlg& dialog) {
    Next([&](AddDlg& add) {
      Set(add.m_properties, L"厂家名称", L"丙");
      Set(add.m_properties, L"设备型号", L"A");
      EXPECT_TRUE(add.m_ok.UserClick());
    });
    EXPECT_TRUE(dialog.m_add.UserClick());
    EXPECT_EQ(Outline(dialog.m_tree), L"风机盘管(甲([A] B C )乙(A )丙(A ))");
    EXPECT_TRUE(dialog.m_save.UserClick());
  });
  EXPECT_EQ(FileOutline(), L"甲{A B C }乙{A }丙{A }");
}

TEST_F(FanCoilManagerDlg, AddsToAnEmptyCatalogue) {
  Empty();
  In([&](Dlg& dialog) {
    Next([&](AddDlg& add) {
      EXPECT_EQ(Text(add.m_properties, L"厂家名称"), L"");
      Set(add.m_properties, L"设备型号", L"A");
      EXPECT_TRUE(add.m_ok.UserClick());
    });
    EXPECT_TRUE(dialog.m_add.UserClick());
    EXPECT_EQ(Outline(dialog.m_tree), L"风机盘管((A ))");
  });
  EXPECT_EQ(Outline(), L"{A }");
}

TEST_F(FanCoilManagerDlg, AddsNothingWhenTheUserCancels) {
  In([&](Dlg& dialog) {
    Next([&](AddDlg& add) {
      Set(add.m_properties, L"设备型号", L"N");
      EXPECT_TRUE(add.m_cancel.UserClick());
    });
    EXPECT_TRUE(dialog.m_add.UserClick());
  });
  EXPECT_EQ(Outline(), L"甲{A B C }乙{A }");
}

TEST_F(FanCoilManagerDlg, ShowsARenamedModelInTheTreeOnlyWhenItIsFilledAgain) {
  CFCUEquipment* changed = Find(L"A", L"甲");
  In([&](Dlg& dialog) {
    Next([&](AddDlg& add) {
      EXPECT_EQ(add.GetCaption(), L"修改风机盘管");
      Set(add.m_properties, L"设备型号", L"A2");
      Set(add.m_properties, L"噪音(dBa)", L"41");
      EXPECT_TRUE(add.m_ok.UserClick());
    });
    EXPECT_TRUE(dialog.m_modify.UserClick());
    EXPECT_EQ(Outline(dialog.m_tree), L"风机盘管(甲([A] B C )乙(A ))");
    EXPECT_EQ(Text(dialog.m_properties, L"设备型号"), L"A2");
    EXPECT_EQ(changed->GetName(), L"A2");
    EXPECT_TRUE(dialog.m_install.UserType(L"ALL"));
    EXPECT_EQ(Outline(dialog.m_tree), L"风机盘管(甲([A2] B C )乙(A ))");
  });
  EXPECT_EQ(changed->m_data.szMode, L"A2");
  EXPECT_EQ(changed->m_data.dbNoiseLevel, 41);
}

TEST_F(FanCoilManagerDlg, KeepsTheChangesInMemoryWhenItIsCancelled) {
  const auto modify = [&](const wchar_t* fan, const std::function<void(Dlg&)>& leave) {
    In([&](Dlg& dialog) {
      Next([&](AddDlg& add) {
        Set(add.m_properties, L"风机形式", fan);
        EXPECT_TRUE(add.m_ok.UserClick());
      });
      EXPECT_TRUE(dialog.m_modify.UserClick());
      leave(dialog);
    });
  };
  modify(L"离心", [](Dlg& dialog) { EXPECT_TRUE(dialog.m_cancel.UserClick()); });
  EXPECT_EQ(Find(L"A", L"甲")->m_data.szFanStyle, L"离心");
  // A later save of any dialog writes them.
  In([](Dlg& dialog) { EXPECT_TRUE(dialog.m_ok.UserClick()); });
  EXPECT_EQ(FileOutline(), L"甲{A B C }乙{A }");
  EXPECT_EQ(Find(L"A", L"甲")->m_data.szFanStyle, L"离心");
}

TEST_F(FanCoilManagerDlg, ForgetsAChangeThatIsCancelled) {
  In([&](Dlg& dialog) {
    Next([&](AddDlg& add) {
      Set(add.m_properties, L"设备型号", L"A2");
      add.UserClose();
    });
    EXPECT_TRUE(dialog.m_modify.UserClick());
    EXPECT_EQ(Text(dialog.m_properties, L"设备型号"), L"A");
  });
  EXPECT_EQ(Outline(), L"甲{A B C }乙{A }");
}

// A record may be moved to another maker only in its text: the model stays where it is.
TEST_F(FanCoilManagerDlg, LeavesAModelWithItsMakerWhateverItsRecordSays) {
  In([&](Dlg& dialog) {
    Next([&](AddDlg& add) {
      Set(add.m_properties, L"厂家名称", L"乙");
      EXPECT_TRUE(add.m_ok.UserClick());
    });
    EXPECT_TRUE(dialog.m_modify.UserClick());
    EXPECT_EQ(Outline(), L"甲{A B C }乙{A }");
    EXPECT_TRUE(dialog.m_tree.UserSelect(Item(dialog.m_tree, L"甲")->children[0].get()));
    frontEnd.answers = {IDOK};
    EXPECT_TRUE(dialog.m_delete.UserClick());
  });
  EXPECT_EQ(Outline(), L"甲{B C }乙{A }");
}

TEST_F(FanCoilManagerDlg, AsksBeforeAModelIsDeleted) {
  In([&](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_tree.UserSelect(Item(dialog.m_tree, L"B")));
    EXPECT_TRUE(dialog.m_delete.UserClick());
    ASSERT_EQ(frontEnd.boxes.size(), 1u);
    EXPECT_EQ(frontEnd.boxes[0].caption, L"青岚提示");
    EXPECT_EQ(frontEnd.boxes[0].buttons.size(), 2u);
    EXPECT_EQ(frontEnd.takeBox(), L"删除不可恢复，确定要删除[B]吗？");
    EXPECT_EQ(Outline(), L"甲{A B C }乙{A }");
    frontEnd.answers = {IDOK};
    EXPECT_TRUE(dialog.m_delete.UserClick());
    EXPECT_EQ(Outline(), L"甲{A C }乙{A }");
    EXPECT_EQ(Outline(dialog.m_tree), L"风机盘管(甲(A C )乙(A ))");
  });
}

TEST_F(FanCoilManagerDlg, GoesOnShowingADeletedModelUntilAnotherIsSelected) {
  In([&](Dlg& dialog) {
    frontEnd.answers = {IDOK};
    EXPECT_TRUE(dialog.m_delete.UserClick());
    EXPECT_EQ(Text(dialog.m_properties, L"设备型号"), L"A");
    EXPECT_FALSE(dialog.Equipment());
    EXPECT_TRUE(dialog.m_modify.UserClick()) << "there is nothing left to modify";
    frontEnd.boxes.clear();
    EXPECT_TRUE(dialog.m_delete.UserClick());
    EXPECT_TRUE(frontEnd.boxes.empty()) << "and nothing to delete";
    Next([&](AddDlg& add) {
      EXPECT_EQ(Text(add.m_properties, L"厂家名称"), L"甲") << "the maker of the model on show";
      Set(add.m_properties, L"设备型号", L"N");
      EXPECT_TRUE(add.m_ok.UserClick());
    });
    EXPECT_TRUE(dialog.m_add.UserClick());
    EXPECT_FALSE(dialog.Equipment());
    EXPECT_TRUE(dialog.m_tree.UserSelect(Item(dialog.m_tree, L"C")));
    EXPECT_EQ(dialog.Equipment(), Find(L"C", L"甲"));
  });
  EXPECT_EQ(Outline(), L"甲{B C N }乙{A }");
}

TEST_F(FanCoilManagerDlg, SelectsNoOtherModelForADeletedOne) {
  In([&](Dlg& dialog) {
    frontEnd.answers = {IDOK};
    EXPECT_TRUE(dialog.m_delete.UserClick());
    Next([&](AddDlg& add) {
      Set(add.m_properties, L"设备型号", L"A"); // the name of the deleted one
      EXPECT_TRUE(add.m_ok.UserClick());
    });
    EXPECT_TRUE(dialog.m_add.UserClick());
    EXPECT_EQ(Outline(dialog.m_tree), L"风机盘管(甲(B C A )乙(A ))");
    EXPECT_FALSE(dialog.Equipment());
  });
}

TEST_F(FanCoilManagerDlg, SelectsTheVeryModelWhereANameStandsTwice) {
  Find(L"C", L"甲")->SetName(L"B");
  Dlg dialog(first->m_arrEquipments[2], nullptr);
  dialogtest::Run<Dlg>(frontEnd, dialog, [&](Dlg& open) {
    EXPECT_EQ(Outline(open.m_tree), L"风机盘管(甲(A B [B] )乙(A ))");
    frontEnd.answers = {IDOK};
    EXPECT_TRUE(open.m_delete.UserClick());
  });
  EXPECT_EQ(Outline(), L"甲{A B }乙{A }");
  EXPECT_EQ(first->m_arrEquipments[1]->m_data.szStructStyle, L"卧式") << "the other one stays";
}

TEST_F(FanCoilManagerDlg, DeletesAMakerWithItsModels) {
  In([&](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_tree.UserSelect(Item(dialog.m_tree, L"甲")));
    frontEnd.answers = {IDOK, IDOK};
    EXPECT_TRUE(dialog.m_delete.UserClick());
    EXPECT_EQ(frontEnd.takeBox(), L"删除不可恢复，确定要删除[甲]吗？");
    EXPECT_EQ(Outline(), L"乙{A }");
    EXPECT_EQ(Outline(dialog.m_tree), L"风机盘管(乙(A ))");
    EXPECT_EQ(Text(dialog.m_properties, L"设备型号"), L"A") << "it stays on show";
    EXPECT_FALSE(dialog.Equipment());
    EXPECT_TRUE(dialog.m_tree.UserSelect(Item(dialog.m_tree, L"乙")));
    EXPECT_TRUE(dialog.m_delete.UserClick());
    EXPECT_TRUE(dialog.m_ok.UserClick());
  });
  EXPECT_EQ(FileOutline(), L"");
}

TEST_F(FanCoilManagerDlg, DoesNothingToTheRoot) {
  In([&](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_tree.UserSelect(dialog.m_tree.GetRootItem()));
    EXPECT_TRUE(dialog.m_delete.UserClick());
  });
  EXPECT_TRUE(frontEnd.boxes.empty());
  EXPECT_EQ(Outline(), L"甲{A B C }乙{A }");
}

TEST_F(FanCoilManagerDlg, DeletesAFilteredMakerWithTheModelsThatAreNotShown) {
  In([&](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_structure.UserType(L"立式"));
    EXPECT_TRUE(dialog.m_tree.UserSelect(Item(dialog.m_tree, L"乙")));
    frontEnd.answers = {IDOK};
    EXPECT_TRUE(dialog.m_delete.UserClick());
  });
  EXPECT_EQ(Outline(), L"甲{A B C }");
}

TEST_F(FanCoilManagerDlg, SavesWithoutAWordAlsoWhereItCannot) {
  install.Write("Data/KTSLDatabase.xml", R"(<dictionary/>)");
  std::filesystem::remove(install.Root() / kFile);
  std::filesystem::create_directories(install.Root() / kFile); // where the file should be
  EXPECT_EQ(In([](Dlg& dialog) { EXPECT_TRUE(dialog.m_ok.UserClick()); }), IDOK);
  EXPECT_TRUE(frontEnd.boxes.empty());
}

TEST_F(FanCoilManagerDlg, WorksWithoutADrawing) {
  acDocManagerPtr()->closeAll();
  In([&](Dlg& dialog) {
    EXPECT_FALSE(dialog.m_preview.IsWindowEnabled());
    EXPECT_TRUE(dialog.m_tree.UserSelect(Item(dialog.m_tree, L"C")));
    EXPECT_TRUE(dialog.m_ok.UserClick());
  });
}

TEST_F(FanCoilManagerDlg, BeginsWithACatalogueFileThatIsThere) {
  std::filesystem::remove(install.Root() / kFile);
  In([&](Dlg&) { EXPECT_TRUE(install.Has(kFile)); });
  In([&](Dlg& dialog) {
    std::filesystem::remove(install.Root() / kFile);
    Next([&](AddDlg&) { EXPECT_TRUE(install.Has(kFile)); });
    EXPECT_TRUE(dialog.m_add.UserClick());
  });
}

} // namespace
