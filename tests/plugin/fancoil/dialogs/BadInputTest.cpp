// What users should not do to the fan-coil dialogs, and do: nothing is lost but what a rule drops, and the
// file reads back as what was shown.
#include "host/afx/MessageLog.h"
#include "plugin/fancoil/dialogs/BlockFiles.h"
#include "tests/plugin/fancoil/dialogs/FanCoilDialogs.h"
#include "tests/support/AwkwardNames.h"
#include "tests/support/ReadOnlyFolder.h"

namespace {

class BadFanCoilInput : public FanCoilDialogs {
 protected:
  BadFanCoilInput() { AddTwoMakers(); }

  static std::vector<CString> Names() {
    std::vector<CString> names = AwkwardNames();
    names.push_back(CString(std::wstring(100000, L'长')));
    return names;
  }
  // Adds a model by the manager, with what `fill` puts into the properties, and saves.
  void Add(const std::function<void(AddDlg&)>& fill) {
    In([&](Dlg& dialog) {
      Next([&](AddDlg& add) {
        fill(add);
        EXPECT_TRUE(add.m_ok.UserClick());
      });
      EXPECT_TRUE(dialog.m_add.UserClick());
      EXPECT_TRUE(dialog.m_save.UserClick());
    });
  }
};

TEST_F(BadFanCoilInput, InANameIsKeptAsItIs) {
  for (const CString& name : Names()) {
    if (name.IsEmpty()) continue;
    Add([&](AddDlg& add) {
      Set(add.m_properties, L"厂家名称", name);
      Set(add.m_properties, L"设备型号", name);
      Set(add.m_properties, L"图块名", name);
      Set(add.m_properties, L"风机形式", name);
    });
    ASSERT_EQ(Reload(), 1);
    const CFCUEquipment* read = catalogue.GetFCUEquipment(name, name);
    ASSERT_TRUE(read) << name.Left(20).ToUtf8();
    EXPECT_EQ(read->m_data.szDwgPath, name);
    EXPECT_EQ(read->m_data.szFanStyle, name);
  }
  EXPECT_TRUE(frontEnd.boxes.empty());
}

TEST_F(BadFanCoilInput, InTheNameOfADeletedModelIsToldAsItIs) {
  for (const CString& name : Names()) {
    CFCUEquipment* model = Find(L"A", L"甲");
    model->SetName(name);
    frontEnd.answers = {IDCANCEL};
    In([&](Dlg& dialog) { EXPECT_TRUE(dialog.m_delete.UserClick()); });
    EXPECT_EQ(frontEnd.takeBox(), L"删除不可恢复，确定要删除[" + name + L"]吗？");
    model->SetName(L"A");
  }
}

TEST_F(BadFanCoilInput, ThatIsNoNumberCountsAsZero) {
  for (const wchar_t* text : dialogtest::kNoNumbers) {
    CFCUEquipment& model = *Find(L"A", L"甲");
    model.m_data = FullRecord(L"A");
    In([&](Dlg& dialog) {
      Next([&](AddDlg& add) {
        for (int i = 0; i < add.m_properties.GetItemCount(); ++i)
          if (add.m_properties.Item(i).label.View().ends_with(L")") ||
              add.m_properties.Item(i).kind == CPropTreeItem::Kind::integer) {
            EXPECT_TRUE(add.m_properties.UserSetText(i, text));
          }
        EXPECT_TRUE(add.m_ok.UserClick());
      });
      EXPECT_TRUE(dialog.m_modify.UserClick());
      EXPECT_EQ(Text(dialog.m_properties, L"功率(W)"), L"0");
      EXPECT_EQ(Text(dialog.m_properties, L"风机数量"), L"0");
    });
    EXPECT_EQ(model.m_data.dbPower, 0);
    EXPECT_EQ(model.m_data.nCoilCount, 0);
    EXPECT_EQ(model.m_data.szCoilStyle, FullRecord(L"A").szCoilStyle);
  }
  EXPECT_TRUE(frontEnd.boxes.empty());
}

TEST_F(BadFanCoilInput, OfNumbersWithoutEndIsReadBack) {
  for (const wchar_t* text : {L"1e400", L"-1e400", L"nan", L"99999999999999999999", L"-0"}) {
    In([&](Dlg& dialog) {
      Next([&](AddDlg& add) {
        Set(add.m_properties, L"功率(W)", text);
        Set(add.m_properties, L"风机数量", text);
        EXPECT_TRUE(add.m_ok.UserClick());
      });
      EXPECT_TRUE(dialog.m_modify.UserClick());
      EXPECT_TRUE(dialog.m_save.UserClick());
    });
    const SKTFCUEquipmentData before = Find(L"A", L"甲")->m_data;
    ASSERT_EQ(Reload(), 1);
    const SKTFCUEquipmentData after = Find(L"A", L"甲")->m_data;
    EXPECT_EQ(after.nFanCount, before.nFanCount);
    EXPECT_TRUE(after.dbPower == before.dbPower ||
                (after.dbPower != after.dbPower && before.dbPower != before.dbPower));
  }
}

TEST_F(BadFanCoilInput, OfAStyleThatIsNoneIsRefused) {
  InAdd([&](AddDlg& add) {
    const int item = add.m_properties.FindItem(L"安装形式");
    EXPECT_FALSE(add.m_properties.UserSetText(item, L"吊装"));
    EXPECT_EQ(add.m_properties.GetText(item), L"暗装");
    EXPECT_TRUE(add.m_properties.UserSetText(item, L""));
  });
  In([&](Dlg& dialog) {
    EXPECT_FALSE(dialog.m_install.UserType(L"吊装"));
    EXPECT_EQ(dialog.m_install.GetText(), L"ALL");
    EXPECT_FALSE(dialog.m_properties.UserSetText(1, L"X")) << "the manager's properties are for reading";
  });
}

TEST_F(BadFanCoilInput, IsForgottenWhenTheWindowCloses) {
  const CString before = Outline();
  for (const bool change : {false, true})
    In([&](Dlg& dialog) {
      for (int item = 0; item < 25; ++item) {
        Next([&](AddDlg& add) {
          if (add.m_properties.Item(item).choices.empty()) {
            EXPECT_TRUE(add.m_properties.UserSetText(item, L"\n\"\U0001F600"));
          }
          add.UserClose();
          EXPECT_TRUE(add.HasEnded());
        });
        EXPECT_TRUE((change ? dialog.m_modify : dialog.m_add).UserClick());
      }
      dialog.UserClose();
      EXPECT_TRUE(dialog.HasEnded());
    });
  EXPECT_TRUE(frontEnd.boxes.empty()) << "no word while the window closes";
  EXPECT_EQ(Outline(), before);
  EXPECT_EQ(Find(L"A", L"甲")->m_data.szFanStyle, L"");
}

TEST_F(BadFanCoilInput, AsTheNameOfABlockMakesAFileOrNone) {
  Draw();
  for (const CString& name : Names()) {
    if (name.IsEmpty()) continue;
    afx::ClearLoggedMessages();
    InAdd([&](AddDlg& add) {
      Set(add.m_properties, L"设备型号", L"N");
      Set(add.m_properties, L"图块名", name);
      TypePick();
      EXPECT_TRUE(add.m_pick.UserClick());
      EXPECT_TRUE(add.HasBlock());
      EXPECT_TRUE(add.m_ok.UserClick());
      EXPECT_TRUE(add.HasEnded());
    });
    AcDbDatabase read(false);
    const bool saved = read.readDwgFile(fancoil::BlockFile(name), 64) == Acad::eOk;
    EXPECT_TRUE(saved || !afx::LoggedMessages().empty()) << "what can't be saved is told to the log";
  }
  EXPECT_TRUE(frontEnd.boxes.empty());
}

TEST_F(BadFanCoilInput, InFavouritesLosesOnlyWhatAListCannotHold) {
  for (const wchar_t* name : {L"a;b", L";", L"a|b", L"|", L"\n\"\U0001F600", L"%s"}) AddModel(first, name);
  ZP::SetDefaultValue(kListKey, L"A|甲;");
  InFavourites([&](Dlg& dialog) {
    dialog.m_tree.Walk([&](HTREEITEM item) {
      EXPECT_TRUE(dialog.m_tree.UserDoubleClick(item));
      return true;
    });
    frontEnd.boxes.clear();
    EXPECT_EQ(dialog.m_favourites.m_list.GetCount(), 10);
    EXPECT_TRUE(dialog.m_ok.UserClick());
  });
  InFavourites([&](Dlg& dialog) {
    const CString entries = Entries(dialog.m_favourites.m_list);
    for (const wchar_t* kept : {L"A|甲", L"B|甲", L"C|甲", L"A|乙", L"\n\"\U0001F600|甲", L"%s|甲"})
      EXPECT_GE(entries.Find(kept), 0) << CString(kept).ToUtf8();
  });
}

TEST_F(BadFanCoilInput, IntoAFolderThatIsReadOnlyLeavesTheFilesAndTellsTheLog) {
  Draw();
  In([](Dlg& dialog) { EXPECT_TRUE(dialog.m_save.UserClick()); });
  const std::string before = install.Read(kFile);
  afx::ClearLoggedMessages();
  {
    const ReadOnlyFolder folder((install.Root() / kFile).parent_path());
    if (!folder.Holds()) GTEST_SKIP() << "permissions do not hold root back";
    Add([&](AddDlg& add) {
      Set(add.m_properties, L"设备型号", L"N");
      TypePick();
      EXPECT_TRUE(add.m_pick.UserClick());
    });
  }
  EXPECT_EQ(install.Read(kFile), before);
  EXPECT_FALSE(install.Has("Data/FCUDwg")) << "nor is there a folder for blocks";
  EXPECT_FALSE(afx::LoggedMessages().empty());
  EXPECT_TRUE(frontEnd.boxes.empty());
  EXPECT_TRUE(Find(L"N", L"甲")) << "nothing is lost while the program runs";
  In([](Dlg& dialog) { EXPECT_TRUE(dialog.m_ok.UserClick()); });
  EXPECT_EQ(FileOutline(), L"甲{A B C N }乙{A }") << "the next time it is written";
}

} // namespace
