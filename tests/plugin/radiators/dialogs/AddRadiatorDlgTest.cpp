#include "plugin/radiators/dialogs/CZPAddRadiatorDlg.h"

#include "tests/plugin/radiators/RadiatorText.h"
#include "tests/plugin/radiators/dialogs/RadiatorDialogs.h"

namespace {

using Dlg = CZPAddRadiatorDlg;

class AddRadiatorDlg : public RadiatorDialogs {
 protected:
  // Runs it; the radiator that it ends with is kept.
  int In(Dlg::Mode mode, const CString& typeName, CZPRadiator* radiator,
         const std::function<void(Dlg&)>& test) {
    Dlg dialog(mode, typeName, radiator, nullptr);
    const int ended = dialogtest::Run<Dlg>(frontEnd, dialog, test);
    result = dialog.Radiator();
    return ended;
  }
  int Add(const std::function<void(Dlg&)>& test) { return In(Dlg::add, L"铸铁", column, test); }
  int Modify(const std::function<void(Dlg&)>& test) { return In(Dlg::modify, L"铸铁", column, test); }
  static void Set(Dlg& dialog, Item item, const CString& text) {
    EXPECT_TRUE(dialog.m_properties.UserSetText(item, text));
  }
  void ExpectTold(const wchar_t* text) {
    ASSERT_EQ(frontEnd.boxes.size(), 1u);
    EXPECT_EQ(frontEnd.boxes[0].caption, L"青岚提示");
    EXPECT_EQ(frontEnd.boxes[0].icon, UiMessageBox::Icon::information);
    EXPECT_EQ(frontEnd.boxes[0].buttons.size(), 1u);
    EXPECT_EQ(frontEnd.takeBox(), text);
  }
  static constexpr const wchar_t* kEmpty = L"散热器类型为空，请重新输入!";
  CZPRadiator* result = nullptr;
};

TEST_F(AddRadiatorDlg, IsNamedByWhatItDoes) {
  Add([](Dlg& dialog) {
    EXPECT_EQ(dialog.GetCaption(), L"添加散热器");
    EXPECT_EQ(dialog.m_ok.GetCaption(), L"添加");
    EXPECT_EQ(dialog.m_cancel.GetCaption(), L"取消");
  });
  Modify([](Dlg& dialog) {
    EXPECT_EQ(dialog.GetCaption(), L"修改散热器");
    EXPECT_EQ(dialog.m_ok.GetCaption(), L"修改");
  });
}

TEST_F(AddRadiatorDlg, StartsWithEveryItemEditable) {
  const auto look = [](Dlg& dialog) { EXPECT_EQ(Flags(dialog.m_properties), L"eeeeeeee"); };
  Add(look);
  Modify(look);
  In(Dlg::modify, L"钢制", panel, look);
  Modify([](Dlg& dialog) {
    Set(dialog, Item::formulaItem, L"Qs=Qs'");
    EXPECT_EQ(Flags(dialog.m_properties), L"eeeerrre") << "from the first choice on they follow the formula";
  });
}

TEST_F(AddRadiatorDlg, ChangesNothingWhenItIsCancelled) {
  const CString before = RadiatorText(*column);
  for (int way = 0; way < 3; ++way)
    for (const Dlg::Mode mode : {Dlg::add, Dlg::modify})
      EXPECT_EQ(In(mode, L"铸铁", column,
                   [&](Dlg& dialog) {
                     Set(dialog, Item::typeItem, L"新");
                     Set(dialog, Item::nameItem, L"新");
                     Set(dialog, Item::aItem, L"9");
                     if (way == 0) dialog.m_cancel.UserClick();
                     if (way == 1) dialog.UserEscape();
                     if (way == 2) dialog.UserClose();
                   }),
                IDCANCEL);
  EXPECT_EQ(Names(), L"铸铁(四柱 柱翼) 钢制(板型) 空()");
  EXPECT_EQ(RadiatorText(*column), before);
}

// --- add

TEST_F(AddRadiatorDlg, AddsToATypeThatIsThere) {
  const CString before = RadiatorText(*column);
  EXPECT_EQ(Add([](Dlg& dialog) {
              Set(dialog, Item::typeItem, L" 钢制\t");
              Set(dialog, Item::nameItem, L" 四柱 二 ");
              Set(dialog, Item::aItem, L"0.5");
              EXPECT_TRUE(dialog.UserEnter());
            }),
            IDOK);
  EXPECT_EQ(Names(), L"铸铁(四柱 柱翼) 钢制(板型  四柱 二 ) 空()") << "its own name keeps its blanks";
  EXPECT_EQ(result, steel->m_arrRadiators[1]);
  EXPECT_EQ(result->GetParent(), steel);
  EXPECT_EQ(RadiatorText(*result),
            L" 四柱 二 |计算方法=0|单位=片|实验系数a=0.5|实验系数b=1.286|实验系数c=0.3|"
            L"实验系数d=0.08|单位散热面积=0.0|单位散热量=80.0");
  EXPECT_EQ(RadiatorText(*column), before) << "the template";
  EXPECT_TRUE(frontEnd.boxes.empty());
}

TEST_F(AddRadiatorDlg, MakesANewTypeWithANewRadiator) {
  EXPECT_EQ(In(Dlg::add, L"", nullptr,
               [](Dlg& dialog) {
                 Set(dialog, Item::typeItem, L"铜铝");
                 Set(dialog, Item::nameItem, L"TLZ");
                 EXPECT_TRUE(dialog.m_ok.UserClick());
               }),
            IDOK);
  EXPECT_EQ(Names(), L"铸铁(四柱 柱翼) 钢制(板型) 空() 铜铝(TLZ)");
  EXPECT_EQ(result->m_dQs, 0) << "what the window showed without a template, not what a radiator starts with";
  EXPECT_EQ(result->m_dC, 0.3) << "what it didn't show";
}

TEST_F(AddRadiatorDlg, InsistsOnBothNames) {
  Add([&](Dlg& dialog) {
    Set(dialog, Item::typeItem, L" \t ");
    EXPECT_TRUE(dialog.m_ok.UserClick());
    ExpectTold(kEmpty);
    EXPECT_FALSE(dialog.HasEnded());
    Set(dialog, Item::typeItem, L"新");
    for (const wchar_t* name : {L"", L"  "}) {
      Set(dialog, Item::nameItem, name);
      EXPECT_TRUE(dialog.m_ok.UserClick());
      ExpectTold(kEmpty);
      EXPECT_FALSE(dialog.HasEnded());
    }
  });
  EXPECT_EQ(Names(), L"铸铁(四柱 柱翼) 钢制(板型) 空()") << "no type either";
}

TEST_F(AddRadiatorDlg, RefusesANameThatTheTypeHasButNotOneOfAnotherType) {
  EXPECT_EQ(Add([&](Dlg& dialog) {
              Set(dialog, Item::nameItem, L"柱翼");
              EXPECT_TRUE(dialog.m_ok.UserClick());
              ExpectTold(L"散热器【柱翼】重名，请重新定义散热器类型！");
              EXPECT_FALSE(dialog.HasEnded());
              EXPECT_EQ(dialog.m_properties.GetText(Item::nameItem), L"柱翼") << "what was typed stays";
              Set(dialog, Item::typeItem, L"钢制");
              EXPECT_TRUE(dialog.m_ok.UserClick());
            }),
            IDOK);
  EXPECT_EQ(Names(), L"铸铁(四柱 柱翼) 钢制(板型 柱翼) 空()");
}

// --- modify

TEST_F(AddRadiatorDlg, ChangesTheRadiatorItself) {
  EXPECT_EQ(Modify([](Dlg& dialog) {
              Set(dialog, Item::nameItem, L"四柱813");
              Set(dialog, Item::formulaItem, L"Qs=k×f×△T");
              Set(dialog, Item::aItem, L"2.503");
              Set(dialog, Item::areaItem, L"0.28");
              EXPECT_TRUE(dialog.UserEnter());
            }),
            IDOK);
  EXPECT_EQ(result, column);
  EXPECT_EQ(RadiatorText(*column),
            L"四柱813|计算方法=1|单位=片|实验系数a=0.651|实验系数b=1.286|实验系数c=2.503|"
            L"实验系数d=0.08|单位散热面积=0.28|单位散热量=80.0");
  EXPECT_EQ(Names(), L"铸铁(四柱813 柱翼) 钢制(板型) 空()");
}

TEST_F(AddRadiatorDlg, LeavesInTheRadiatorWhatWasReadWhenANameIsMissing) {
  Modify([&](Dlg& dialog) {
    Set(dialog, Item::typeItem, L" ");
    Set(dialog, Item::nameItem, L"四柱813");
    Set(dialog, Item::aItem, L"0.7");
    EXPECT_TRUE(dialog.m_ok.UserClick());
    ExpectTold(kEmpty);
    EXPECT_FALSE(dialog.HasEnded());
    Set(dialog, Item::typeItem, L"铸铁");
    Set(dialog, Item::nameItem, L"  ");
    EXPECT_TRUE(dialog.m_ok.UserClick());
    ExpectTold(kEmpty);
  });
  EXPECT_EQ(column->GetName(), L"  ");
  EXPECT_EQ(column->m_dA, 0.7);
  EXPECT_TRUE(catalogue.SaveData());
  EXPECT_EQ(SavedNames(), L"铸铁(   柱翼) 钢制(板型) 空()") << "a blank name can be saved and read";
}

TEST_F(AddRadiatorDlg, RefusesToRenameToANameOfAnyType) {
  for (const wchar_t* taken : {L"柱翼", L"板型"})
    EXPECT_EQ(Modify([&](Dlg& dialog) {
                Set(dialog, Item::nameItem, taken);
                Set(dialog, Item::aItem, L"0.7");
                EXPECT_TRUE(dialog.m_ok.UserClick());
                ExpectTold((CString(L"散热器【") + taken + L"】重名，请重新定义散热器类型！").GetString());
                EXPECT_FALSE(dialog.HasEnded());
                EXPECT_EQ(column->GetName(), L"四柱");
                EXPECT_EQ(column->m_dA, 0.7) << "the rest stays as it was read";
                EXPECT_EQ(dialog.m_properties.GetText(Item::nameItem), taken);
              }),
              IDCANCEL);
  EXPECT_EQ(Names(), L"铸铁(四柱 柱翼) 钢制(板型) 空()");
}

TEST_F(AddRadiatorDlg, RefusesEvenAnUnchangedNameThatAnotherTypeHasToo) {
  AddRadiator(steel, L"四柱");
  EXPECT_EQ(Modify([&](Dlg& dialog) {
              EXPECT_TRUE(dialog.m_ok.UserClick());
              ExpectTold(L"散热器【四柱】重名，请重新定义散热器类型！");
              Set(dialog, Item::nameItem, L"四柱760");
              EXPECT_TRUE(dialog.m_ok.UserClick());
            }),
            IDOK);
  EXPECT_EQ(Names(), L"铸铁(四柱760 柱翼) 钢制(板型 四柱) 空()");
}

TEST_F(AddRadiatorDlg, MovesARadiatorToATypeThatIsThereOrNew) {
  column->m_dC = 2.5; // of a formula that isn't shown
  EXPECT_EQ(Modify([](Dlg& dialog) {
              Set(dialog, Item::typeItem, L" 钢制 ");
              Set(dialog, Item::nameItem, L"四柱二");
              Set(dialog, Item::aItem, L"0.7");
              EXPECT_TRUE(dialog.m_ok.UserClick());
            }),
            IDOK);
  EXPECT_EQ(Names(), L"铸铁(柱翼) 钢制(板型 四柱二) 空()");
  EXPECT_EQ(result, steel->m_arrRadiators[1]);
  EXPECT_EQ(result->GetParent(), steel);
  EXPECT_EQ(RadiatorText(*result), L"四柱二|计算方法=0|单位=片|实验系数a=0.7|实验系数b=1.286|实验系数c=2.5|"
                                   L"实验系数d=0.08|单位散热面积=0.0|单位散热量=80.0");
  EXPECT_EQ(In(Dlg::modify, L"钢制", result,
               [](Dlg& dialog) {
                 Set(dialog, Item::typeItem, L"铜铝");
                 EXPECT_TRUE(dialog.m_ok.UserClick());
               }),
            IDOK);
  EXPECT_EQ(Names(), L"铸铁(柱翼) 钢制(板型) 空() 铜铝(四柱二)");
}

TEST_F(AddRadiatorDlg, MovesToANameThatOnlyOtherTypesHave) {
  EXPECT_EQ(Modify([](Dlg& dialog) {
              Set(dialog, Item::typeItem, L"空");
              Set(dialog, Item::nameItem, L"板型");
              EXPECT_TRUE(dialog.m_ok.UserClick());
            }),
            IDOK);
  EXPECT_EQ(Names(), L"铸铁(柱翼) 钢制(板型) 空(板型)") << "as when one is added";
}

TEST_F(AddRadiatorDlg, RefusesToMoveToATypeThatHasTheName) {
  AddRadiator(steel, L"四柱");
  EXPECT_EQ(Modify([&](Dlg& dialog) {
              Set(dialog, Item::typeItem, L"钢制");
              EXPECT_TRUE(dialog.m_ok.UserClick());
              ExpectTold(L"散热器【四柱】重名，请重新定义散热器类型！");
              EXPECT_FALSE(dialog.HasEnded());
            }),
            IDCANCEL);
  EXPECT_EQ(result, column);
  EXPECT_EQ(Names(), L"铸铁(四柱 柱翼) 钢制(板型 四柱) 空()");
}

TEST_F(AddRadiatorDlg, LeavesNoTwoOfOneNameInAType) {
  Modify([&](Dlg& dialog) {
    Set(dialog, Item::typeItem, L"");
    Set(dialog, Item::nameItem, L"柱翼");
    EXPECT_TRUE(dialog.m_ok.UserClick());
    ExpectTold(kEmpty);
    EXPECT_EQ(Names(), L"铸铁(柱翼 柱翼) 钢制(板型) 空()") << "as it was read, until the window goes";
  });
  EXPECT_TRUE(catalogue.SaveData());
  EXPECT_EQ(SavedNames(), L"铸铁(四柱 柱翼) 钢制(板型) 空()") << "the file would have dropped one";
}

} // namespace
