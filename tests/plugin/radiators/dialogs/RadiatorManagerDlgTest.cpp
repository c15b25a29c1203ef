#include "plugin/radiators/dialogs/CZPRadiatorManagerDlg.h"

#include "host/ed/AcApDocManager.h"
#include "plugin/radiators/dialogs/CZPAddRadiatorDlg.h"
#include "plugin/radiators/dialogs/ShowRadiatorDialogs.h"
#include "tests/plugin/radiators/RadiatorText.h"
#include "tests/plugin/radiators/dialogs/RadiatorDialogs.h"

namespace {

using namespace dialogtest;
using Dlg = CZPRadiatorManagerDlg;

class RadiatorManagerDlg : public RadiatorDialogs {
 protected:
  int In(const std::function<void(Dlg&)>& test, CZPRadiator* inUse = nullptr) {
    Dlg dialog(inUse, nullptr);
    return dialogtest::Run<Dlg>(frontEnd, dialog, test);
  }
  // What is done in the window that the button opens next.
  void InNext(std::function<void(CZPAddRadiatorDlg&)> test) {
    frontEnd.runs.push_back(
        [test = std::move(test)](CDialog& dialog) { test(static_cast<CZPAddRadiatorDlg&>(dialog)); });
  }
  static HTREEITEM Find(const Dlg& dialog, const CString& text) {
    return dialog.m_tree.Find([&](const UiTreeItem& item) { return item.text == text; });
  }
  static void Select(Dlg& dialog, const CString& text) {
    EXPECT_TRUE(dialog.m_tree.UserSelect(Find(dialog, text))) << Utf8(text);
  }
  static CString Selected(const Dlg& dialog) {
    HTREEITEM item = dialog.m_tree.GetSelectedItem();
    return item ? item->text : CString();
  }
  // "全部散热器( 铸铁( 四柱 柱翼) 钢制( 板型) 空)", with a + before what stands open.
  static CString Tree(const Dlg& dialog) {
    const std::function<CString(const UiTreeItem&)> text = [&](const UiTreeItem& item) {
      CString all = (item.expanded ? L"+" : L"") + item.text;
      for (const auto& child : item.children)
        all += (child == item.children.front() ? L"( " : L" ") + text(*child);
      return item.children.empty() ? all : all + L")";
    };
    return text(*dialog.m_tree.GetRootItem());
  }
};

TEST_F(RadiatorManagerDlg, ShowsTheCatalogueAsATree) {
  In([](Dlg& dialog) {
    EXPECT_EQ(dialog.GetCaption(), L"散热器管理器");
    EXPECT_EQ(Tree(dialog), L"+全部散热器( 铸铁( 四柱 柱翼) 钢制( 板型) 空)");
    EXPECT_EQ(dialog.m_tree.TopItems().size(), 1u);
  });
}

TEST_F(RadiatorManagerDlg, SelectsNothingWithoutARadiatorInUse) {
  In([](Dlg& dialog) {
    EXPECT_EQ(dialog.Level(), -1);
    EXPECT_EQ(Selected(dialog), L"");
    EXPECT_TRUE(dialog.m_add.IsWindowEnabled());
    EXPECT_FALSE(dialog.m_remove.IsWindowEnabled());
    EXPECT_FALSE(dialog.m_modify.IsWindowEnabled());
    EXPECT_EQ(Texts(dialog.m_properties), L"||Qs=a×△T^b|片|0|0|0|0");
    EXPECT_EQ(Flags(dialog.m_properties), L"rreeeerr");
  });
}

TEST_F(RadiatorManagerDlg, SelectsTheRadiatorInUseAndOpensItsType) {
  In(
      [](Dlg& dialog) {
        EXPECT_EQ(Selected(dialog), L"板型");
        EXPECT_EQ(dialog.Level(), 2);
        EXPECT_EQ(Tree(dialog), L"+全部散热器( 铸铁( 四柱 柱翼) +钢制( 板型) 空)");
        EXPECT_EQ(Texts(dialog.m_properties), L"钢制|板型|Qs=Qs'|m|0|0|0|1286.5");
      },
      panel);
}

TEST_F(RadiatorManagerDlg, SelectsTheFirstRadiatorThatHasTheNameOfTheOneInUse) {
  CZPRadiator* twin = AddRadiator(steel, L"四柱");
  In(
      [&](Dlg& dialog) {
        EXPECT_EQ(Selected(dialog), L"四柱");
        EXPECT_EQ(dialog.m_tree.GetSelectedItem()->parent->text, L"铸铁")
            << "by name, though it isn't the one";
        EXPECT_TRUE(dialog.m_remove.UserClick());
        EXPECT_EQ(frontEnd.takeBox(), L"删除不可恢复，确定要删除[四柱]吗？") << "and may thus be deleted";
      },
      twin);
  AddType(L"板型");
  In([](Dlg& dialog) { EXPECT_EQ(dialog.Level(), 2) << "a type of that name is no radiator"; }, panel);
}

TEST_F(RadiatorManagerDlg, ShowsWhatIsSelected) {
  In([](Dlg& dialog) {
    Select(dialog, L"柱翼");
    EXPECT_EQ(dialog.Level(), 2);
    EXPECT_EQ(Texts(dialog.m_properties), L"铸铁|柱翼|Qs=k×f×△T|片|2.237|0.302|0.235|80");
    EXPECT_EQ(Flags(dialog.m_properties), L"rreeeeer");
    EXPECT_TRUE(dialog.m_remove.IsWindowEnabled());
    EXPECT_TRUE(dialog.m_modify.IsWindowEnabled());
    Select(dialog, L"钢制");
    EXPECT_EQ(dialog.Level(), 1);
    EXPECT_EQ(Texts(dialog.m_properties), L"钢制||Qs=a×△T^b|片|0|0|0|0");
    EXPECT_EQ(Flags(dialog.m_properties), L"rreeeerr");
    EXPECT_TRUE(dialog.m_remove.IsWindowEnabled());
    EXPECT_FALSE(dialog.m_modify.IsWindowEnabled());
    Select(dialog, L"全部散热器");
    EXPECT_EQ(dialog.Level(), 0);
    EXPECT_EQ(Texts(dialog.m_properties), L"||Qs=a×△T^b|片|0|0|0|0");
    EXPECT_FALSE(dialog.m_remove.IsWindowEnabled());
    EXPECT_FALSE(dialog.m_modify.IsWindowEnabled());
  });
}

TEST_F(RadiatorManagerDlg, SkipsEmptyPlacesOfTheCatalogue) {
  CZPRadiatorType* noType = nullptr;
  CZPRadiator* noRadiator = nullptr;
  catalogue.m_arrTypes.InsertAt(1, noType);
  iron->m_arrRadiators.InsertAt(0, noRadiator);
  In([](Dlg& dialog) { EXPECT_EQ(Tree(dialog), L"+全部散热器( 铸铁( 四柱 柱翼) 钢制( 板型) 空)"); });
}

// --- the property list

TEST_F(RadiatorManagerDlg, ChangesTheSelectedRadiatorAtOnce) {
  In([&](Dlg& dialog) {
    Select(dialog, L"四柱");
    EXPECT_TRUE(dialog.m_properties.UserSetText(Item::aItem, L"0.7"));
    EXPECT_EQ(column->m_dA, 0.7);
    EXPECT_TRUE(dialog.m_properties.UserSetText(Item::unitItem, L"m"));
    EXPECT_EQ(column->m_strUnit, L"m");
    EXPECT_TRUE(dialog.m_properties.UserSetText(Item::formulaItem, L"Qs=k×f×△T"));
    EXPECT_EQ(column->m_nFormula, 1);
    EXPECT_TRUE(dialog.m_properties.UserSetText(Item::areaItem, L"0.2"));
    EXPECT_EQ(column->m_dF, 0.2);
    EXPECT_EQ(column->m_dC, 0.3) << "the coefficients of the other formula are not mixed up";
  });
  EXPECT_EQ(RadiatorText(*finned), RadiatorText(*iron->GetRadiator(L"柱翼")));
}

TEST_F(RadiatorManagerDlg, FindsTheCoefficientsAgainAfterAFixedOutput) {
  const CString before = RadiatorText(*column);
  In([&](Dlg& dialog) {
    Select(dialog, L"四柱");
    EXPECT_TRUE(dialog.m_properties.UserSetText(Item::formulaItem, L"Qs=Qs'"));
    EXPECT_EQ(dialog.m_properties.GetText(Item::aItem), L"0");
    EXPECT_EQ(Flags(dialog.m_properties), L"rreerrre");
    EXPECT_TRUE(dialog.m_properties.UserSetText(Item::formulaItem, L"Qs=a×△T^b"));
    EXPECT_EQ(dialog.m_properties.GetText(Item::aItem), L"0.651");
    EXPECT_EQ(dialog.m_properties.GetText(Item::bItem), L"1.286");
  });
  EXPECT_EQ(RadiatorText(*column), before);
}

TEST_F(RadiatorManagerDlg, LetsNoNameBeChangedInItsPropertyList) {
  In([](Dlg& dialog) {
    Select(dialog, L"四柱");
    EXPECT_FALSE(dialog.m_properties.UserSetText(Item::typeItem, L"x"));
    EXPECT_FALSE(dialog.m_properties.UserSetText(Item::nameItem, L"x"));
  });
  EXPECT_EQ(Names(), L"铸铁(四柱 柱翼) 钢制(板型) 空()");
}

TEST_F(RadiatorManagerDlg, ChangesNothingWhileATypeIsSelected) {
  const CString before = RadiatorText(*column) + RadiatorText(*finned) + RadiatorText(*panel);
  In([](Dlg& dialog) {
    Select(dialog, L"四柱");
    for (const wchar_t* text : {L"铸铁", L"全部散热器"}) {
      Select(dialog, text);
      EXPECT_TRUE(dialog.m_properties.UserSetText(Item::aItem, L"5"));
      EXPECT_TRUE(dialog.m_properties.UserSetText(Item::formulaItem, L"Qs=Qs'"));
    }
  });
  EXPECT_EQ(RadiatorText(*column) + RadiatorText(*finned) + RadiatorText(*panel), before);
}

// --- delete

TEST_F(RadiatorManagerDlg, AsksBeforeARadiatorIsDeleted) {
  In([&](Dlg& dialog) {
    frontEnd.answers = {IDCANCEL, IDOK};
    Select(dialog, L"四柱");
    EXPECT_TRUE(dialog.m_remove.UserClick());
    ASSERT_EQ(frontEnd.boxes.size(), 1u);
    EXPECT_EQ(frontEnd.boxes[0].caption, L"青岚提示");
    EXPECT_EQ(frontEnd.boxes[0].icon, UiMessageBox::Icon::exclamation);
    EXPECT_EQ(frontEnd.boxes[0].buttons.size(), 2u);
    EXPECT_EQ(frontEnd.boxes[0].defaultButton, 1u);
    EXPECT_EQ(frontEnd.takeBox(), L"删除不可恢复，确定要删除[四柱]吗？");
    EXPECT_EQ(Names(), L"铸铁(四柱 柱翼) 钢制(板型) 空()");
    EXPECT_TRUE(dialog.m_remove.UserClick());
    EXPECT_EQ(Tree(dialog), L"+全部散热器( +铸铁( 柱翼) 钢制( 板型) 空)");
    EXPECT_EQ(Selected(dialog), L"柱翼") << "the next one";
    EXPECT_EQ(dialog.m_properties.GetText(Item::nameItem), L"柱翼");
  });
  EXPECT_EQ(SavedNames(), L"铸铁(柱翼) 钢制(板型) 空()");
}

TEST_F(RadiatorManagerDlg, LeavesATypeWhoseLastRadiatorIsDeleted) {
  In([&](Dlg& dialog) {
    frontEnd.answers = {IDOK};
    Select(dialog, L"板型");
    EXPECT_TRUE(dialog.m_remove.UserClick());
    EXPECT_EQ(Tree(dialog), L"+全部散热器( 铸铁( 四柱 柱翼) +钢制 空)");
    EXPECT_EQ(Selected(dialog), L"钢制");
    EXPECT_EQ(dialog.Level(), 1);
    EXPECT_FALSE(dialog.m_modify.IsWindowEnabled());
  });
  EXPECT_EQ(SavedNames(), L"铸铁(四柱 柱翼) 钢制() 空()");
}

TEST_F(RadiatorManagerDlg, DeletesATypeWithItsRadiators) {
  In([&](Dlg& dialog) {
    frontEnd.answers = {IDOK, IDOK, IDOK};
    Select(dialog, L"空");
    EXPECT_TRUE(dialog.m_remove.UserClick());
    EXPECT_EQ(frontEnd.takeBox(), L"删除不可恢复，确定要删除[空]吗？");
    EXPECT_EQ(Selected(dialog), L"钢制") << "the one before, where none comes behind";
    Select(dialog, L"铸铁");
    EXPECT_TRUE(dialog.m_remove.UserClick());
    EXPECT_EQ(Tree(dialog), L"+全部散热器( 钢制( 板型))");
    EXPECT_TRUE(dialog.m_remove.UserClick());
    EXPECT_EQ(Tree(dialog), L"+全部散热器");
    EXPECT_EQ(dialog.Level(), 0);
    EXPECT_FALSE(dialog.m_remove.IsWindowEnabled());
  });
  EXPECT_EQ(SavedNames(), L"");
}

TEST_F(RadiatorManagerDlg, DeletesNeitherTheRadiatorInUseNorItsType) {
  for (const int answer : {IDOK, IDCANCEL})
    In(
        [&](Dlg& dialog) {
          frontEnd.answers = {answer, answer};
          EXPECT_TRUE(dialog.m_remove.UserClick());
          ASSERT_EQ(frontEnd.boxes.size(), 1u);
          EXPECT_EQ(frontEnd.boxes[0].caption, L"青岚提示");
          EXPECT_EQ(frontEnd.boxes[0].icon, UiMessageBox::Icon::exclamation);
          EXPECT_EQ(frontEnd.boxes[0].buttons.size(), 2u);
          EXPECT_EQ(frontEnd.takeBox(), L"当前散热器[四柱]数据正在使用，不允许删除！？");
          Select(dialog, L"铸铁");
          EXPECT_TRUE(dialog.m_remove.UserClick());
          ASSERT_EQ(frontEnd.boxes.size(), 1u);
          EXPECT_EQ(frontEnd.takeBox(), L"当前[铸铁]数据正在使用，不允许删除！？");
        },
        column);
  EXPECT_EQ(Names(), L"铸铁(四柱 柱翼) 钢制(板型) 空()");
}

TEST_F(RadiatorManagerDlg, DeletesWhatStandsBesideTheRadiatorInUse) {
  frontEnd.answers = {IDOK, IDOK};
  In(
      [&](Dlg& dialog) {
        Select(dialog, L"柱翼");
        EXPECT_TRUE(dialog.m_remove.UserClick());
        Select(dialog, L"钢制");
        EXPECT_TRUE(dialog.m_remove.UserClick());
      },
      column);
  EXPECT_EQ(Names(), L"铸铁(四柱) 空()");
}

// --- add

TEST_F(RadiatorManagerDlg, AddsFromTheSelectedRadiator) {
  In([&](Dlg& dialog) {
    Select(dialog, L"柱翼");
    InNext([&](CZPAddRadiatorDlg& add) {
      EXPECT_EQ(add.GetCaption(), L"添加散热器");
      EXPECT_EQ(Texts(add.m_properties), L"铸铁|柱翼|Qs=k×f×△T|片|2.237|0.302|0.235|80");
      EXPECT_TRUE(add.m_properties.UserSetText(Item::nameItem, L"柱翼二"));
      EXPECT_TRUE(add.m_ok.UserClick());
    });
    EXPECT_TRUE(dialog.m_add.UserClick());
    EXPECT_EQ(Tree(dialog), L"+全部散热器( +铸铁( 四柱 柱翼 柱翼二) 钢制( 板型) 空)");
    EXPECT_EQ(Selected(dialog), L"柱翼二");
    EXPECT_EQ(dialog.Level(), 2);
    EXPECT_EQ(Texts(dialog.m_properties), L"铸铁|柱翼二|Qs=k×f×△T|片|2.237|0.302|0.235|80");
    EXPECT_TRUE(dialog.m_modify.IsWindowEnabled());
  });
  EXPECT_EQ(SavedNames(), L"铸铁(四柱 柱翼 柱翼二) 钢制(板型) 空()");
}

TEST_F(RadiatorManagerDlg, AddsToTheSelectedTypeAndToNoneAtTheRoot) {
  In([&](Dlg& dialog) {
    for (const wchar_t* text : {L"空", L"全部散热器"}) {
      Select(dialog, text);
      InNext([&](CZPAddRadiatorDlg& add) {
        EXPECT_EQ(Texts(add.m_properties),
                  CString(text == CString(L"空") ? L"空" : L"") + L"||Qs=a×△T^b|片|0|0|0|0");
        EXPECT_TRUE(add.m_cancel.UserClick());
      });
      EXPECT_TRUE(dialog.m_add.UserClick());
      EXPECT_EQ(Selected(dialog), text);
    }
  });
  EXPECT_EQ(Names(), L"铸铁(四柱 柱翼) 钢制(板型) 空()");
}

TEST_F(RadiatorManagerDlg, ShowsANewTypeWithItsRadiator) {
  In([&](Dlg& dialog) {
    InNext([](CZPAddRadiatorDlg& add) {
      EXPECT_TRUE(add.m_properties.UserSetText(Item::typeItem, L" 铜铝 "));
      EXPECT_TRUE(add.m_properties.UserSetText(Item::nameItem, L"TLZ"));
      EXPECT_TRUE(add.m_ok.UserClick());
    });
    EXPECT_TRUE(dialog.m_add.UserClick());
    EXPECT_EQ(Tree(dialog), L"+全部散热器( 铸铁( 四柱 柱翼) 钢制( 板型) 空 +铜铝( TLZ))");
    EXPECT_EQ(Selected(dialog), L"TLZ");
  });
  EXPECT_EQ(SavedNames(), L"铸铁(四柱 柱翼) 钢制(板型) 空() 铜铝(TLZ)");
}

// --- modify

TEST_F(RadiatorManagerDlg, ShowsAModifiedRadiator) {
  In([&](Dlg& dialog) {
    Select(dialog, L"四柱");
    InNext([&](CZPAddRadiatorDlg& modify) {
      EXPECT_EQ(modify.GetCaption(), L"修改散热器");
      EXPECT_EQ(modify.Radiator(), column);
      EXPECT_TRUE(modify.m_properties.UserSetText(Item::nameItem, L"四柱760"));
      EXPECT_TRUE(modify.m_properties.UserSetText(Item::outputItem, L"91"));
      EXPECT_TRUE(modify.m_ok.UserClick());
    });
    EXPECT_TRUE(dialog.m_modify.UserClick());
    EXPECT_EQ(Tree(dialog), L"+全部散热器( +铸铁( 四柱760 柱翼) 钢制( 板型) 空)");
    EXPECT_EQ(Selected(dialog), L"四柱760");
    EXPECT_EQ(dialog.m_properties.GetText(Item::outputItem), L"91");
  });
  EXPECT_EQ(iron->GetRadiator(L"四柱760"), column);
}

TEST_F(RadiatorManagerDlg, ShowsWhatARefusedChangeHasLeft) {
  In([&](Dlg& dialog) {
    Select(dialog, L"四柱");
    InNext([](CZPAddRadiatorDlg& modify) {
      EXPECT_TRUE(modify.m_properties.UserSetText(Item::nameItem, L" "));
      EXPECT_TRUE(modify.m_properties.UserSetText(Item::unitItem, L"m"));
      EXPECT_TRUE(modify.m_ok.UserClick());
      EXPECT_TRUE(modify.m_cancel.UserClick());
    });
    EXPECT_TRUE(dialog.m_modify.UserClick());
    EXPECT_EQ(dialog.m_tree.GetSelectedItem()->text, column->GetName());
    EXPECT_EQ(dialog.m_properties.GetText(Item::nameItem), column->GetName());
    EXPECT_EQ(dialog.m_properties.GetText(Item::unitItem), L"m");
  });
}

TEST_F(RadiatorManagerDlg, KeepsAMovedRadiatorInUse) {
  In(
      [&](Dlg& dialog) {
        InNext([](CZPAddRadiatorDlg& modify) {
          EXPECT_TRUE(modify.m_properties.UserSetText(Item::typeItem, L"空"));
          EXPECT_TRUE(modify.m_ok.UserClick());
        });
        EXPECT_TRUE(dialog.m_modify.UserClick());
        EXPECT_EQ(Tree(dialog), L"+全部散热器( +铸铁( 柱翼) 钢制( 板型) +空( 四柱))");
        EXPECT_EQ(dialog.InUse(), empty->GetRadiator(L"四柱"));
        EXPECT_TRUE(dialog.m_remove.UserClick());
        EXPECT_EQ(frontEnd.takeBox(), L"当前散热器[四柱]数据正在使用，不允许删除！？");
        Select(dialog, L"空");
        EXPECT_TRUE(dialog.m_remove.UserClick());
        EXPECT_EQ(frontEnd.takeBox(), L"当前[空]数据正在使用，不允许删除！？");
        frontEnd.answers = {IDOK};
        Select(dialog, L"铸铁");
        EXPECT_TRUE(dialog.m_remove.UserClick()) << "the type that it has left";
      },
      column);
  EXPECT_EQ(Names(), L"钢制(板型) 空(四柱)");
}

// --- leaving

TEST_F(RadiatorManagerDlg, SavesHoweverItIsLeft) {
  for (int way = 0; way < 4; ++way) {
    const CString unit = way % 2 == 0 ? L"m" : L"片";
    In([&](Dlg& dialog) {
      Select(dialog, L"四柱");
      EXPECT_TRUE(dialog.m_properties.UserSetText(Item::unitItem, unit));
      if (way == 0) dialog.m_exit.UserClick();
      if (way == 1) dialog.m_ok.UserClick();
      if (way == 2) dialog.UserClose();
      if (way == 3) dialog.UserEscape();
    });
    Reload();
    EXPECT_EQ(catalogue.GetRadiator(L"四柱", L"铸铁")->m_strUnit, unit) << way;
  }
}

TEST_F(RadiatorManagerDlg, TurnsAnOldFileIntoANewOneByALook) {
  ASSERT_TRUE(ReadText(R"(["Version:1.0",{"0":["",{"铸铁":[0,{"0":["",{"四柱":["",{"单位":"m"}]}]}]}]}])"));
  ASSERT_EQ(Names(), L"铸铁(四柱)");
  In([](Dlg& dialog) { dialog.m_exit.UserClick(); });
  CIDPEx file;
  ASSERT_TRUE(file.Open(Path()));
  CString version;
  file.GetValue(version);
  EXPECT_EQ(version, L"Version:2.0");
  EXPECT_EQ(SavedNames(), L"铸铁(四柱)");
}

TEST_F(RadiatorManagerDlg, SaysNothingWhereItCannotSave) {
  install.Write("HeatingData", "a file where the folder should be");
  In([](Dlg&) {});
  EXPECT_TRUE(frontEnd.boxes.empty());
}

// --- for whoever chooses

class ChooseRadiator : public RadiatorManagerDlg {
 protected:
  int Choose(CZPRadiator*& radiator, const std::function<void(Dlg&)>& test) {
    frontEnd.runs.push_back([&](CDialog& dialog) { test(static_cast<Dlg&>(dialog)); });
    return ZP::ShowRadMngDlg(radiator, nullptr);
  }
  static void MoveSelected(Dlg& dialog) { EXPECT_TRUE(dialog.m_modify.UserClick()); }
  void InNextMoveTo(const wchar_t* type) {
    frontEnd.runs.push_back([type](CDialog& dialog) {
      auto& modify = static_cast<CZPAddRadiatorDlg&>(dialog);
      EXPECT_TRUE(modify.m_properties.UserSetText(Item::typeItem, type));
      EXPECT_TRUE(modify.m_ok.UserClick());
    });
  }
};

TEST_F(ChooseRadiator, GetsTheRadiatorThatIsSelectedAtOk) {
  CZPRadiator* radiator = column;
  EXPECT_EQ(Choose(radiator,
                   [](Dlg& dialog) {
                     Select(dialog, L"板型");
                     EXPECT_TRUE(dialog.UserEnter());
                   }),
            1);
  EXPECT_EQ(radiator, panel);
  EXPECT_EQ(Choose(radiator, [](Dlg& dialog) { EXPECT_TRUE(dialog.m_ok.UserClick()); }), 1)
      << "the same as before is one too";
  EXPECT_EQ(radiator, panel);
  radiator = nullptr;
  EXPECT_EQ(Choose(radiator,
                   [](Dlg& dialog) {
                     Select(dialog, L"柱翼");
                     EXPECT_TRUE(dialog.m_ok.UserClick());
                   }),
            1);
  EXPECT_EQ(radiator, finned);
}

TEST_F(ChooseRadiator, GetsNothingWhenATypeOrNothingIsSelected) {
  CZPRadiator* radiator = column;
  EXPECT_EQ(Choose(radiator,
                   [](Dlg& dialog) {
                     Select(dialog, L"钢制");
                     EXPECT_TRUE(dialog.m_ok.UserClick());
                   }),
            0);
  EXPECT_EQ(radiator, column);
  radiator = nullptr;
  EXPECT_EQ(Choose(radiator, [](Dlg& dialog) { EXPECT_TRUE(dialog.m_ok.UserClick()); }), 0);
  EXPECT_EQ(radiator, nullptr);
}

TEST_F(ChooseRadiator, GetsNothingWhenTheManagerIsLeftOtherwise) {
  CZPRadiator* radiator = column;
  EXPECT_EQ(Choose(radiator,
                   [](Dlg& dialog) {
                     Select(dialog, L"板型");
                     EXPECT_TRUE(dialog.m_exit.UserClick());
                   }),
            0);
  EXPECT_EQ(Choose(radiator, [](Dlg& dialog) { Select(dialog, L"板型"); }), 0) << "the close box";
  EXPECT_EQ(radiator, column);
  UiFrontEnd::Set(nullptr);
  EXPECT_EQ(ZP::ShowRadMngDlg(radiator, nullptr), 0);
  EXPECT_EQ(radiator, column);
}

TEST_F(ChooseRadiator, GetsTheObjectThatAMovedRadiatorHasBecomeHoweverTheManagerIsLeft) {
  CZPRadiator* radiator = column;
  const auto moveAndLeave = [&](const wchar_t* type, const std::function<void(Dlg&)>& leave) {
    return Choose(radiator, [&](Dlg& dialog) {
      InNextMoveTo(type);
      MoveSelected(dialog);
      leave(dialog);
    });
  };
  EXPECT_EQ(moveAndLeave(L"空", [](Dlg& dialog) { EXPECT_TRUE(dialog.m_exit.UserClick()); }), 1);
  EXPECT_EQ(radiator, empty->GetRadiator(L"四柱"));
  EXPECT_EQ(moveAndLeave(L"钢制",
                         [](Dlg& dialog) {
                           Select(dialog, L"空");
                           EXPECT_TRUE(dialog.m_ok.UserClick());
                         }),
            1);
  EXPECT_EQ(radiator, steel->GetRadiator(L"四柱"));
  EXPECT_EQ(moveAndLeave(L"空", [](Dlg& dialog) { dialog.UserClose(); }), 1);
  EXPECT_EQ(radiator, empty->GetRadiator(L"四柱"));
  EXPECT_EQ(moveAndLeave(L"铸铁",
                         [](Dlg& dialog) {
                           Select(dialog, L"板型");
                           EXPECT_TRUE(dialog.m_ok.UserClick());
                         }),
            1);
  EXPECT_EQ(radiator, panel);
}

TEST_F(ChooseRadiator, HasTheResourcesOfThePlugInMeanwhile) {
  std::vector<std::size_t> depths;
  const auto look = [&](CDialog&) { depths.push_back(acDocManagerPtr()->resourceDepth()); };
  frontEnd.runs = {look, look};
  CZPRadiator* radiator = column;
  ZP::ShowRadMngDlg(radiator, nullptr);
  ZP::ShowRadMngDlg(nullptr);
  EXPECT_EQ(depths, (std::vector<std::size_t>{1, 1}));
  EXPECT_EQ(acDocManagerPtr()->resourceDepth(), 0u);
}

TEST_F(ChooseRadiator, OfWhoeverOnlyManagesIsTheDialogsResult) {
  frontEnd.runs = {[](CDialog& dialog) { EXPECT_TRUE(dialog.UserEnter()); },
                   [](CDialog& dialog) { dialog.UserEscape(); }};
  EXPECT_EQ(ZP::ShowRadMngDlg(nullptr), IDOK);
  EXPECT_EQ(ZP::ShowRadMngDlg(nullptr), IDCANCEL);
  UiFrontEnd::Set(nullptr);
  EXPECT_EQ(ZP::ShowRadMngDlg(nullptr), -1);
}

} // namespace
