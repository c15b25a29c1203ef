// What one pipe section contains.
#include "plugin/resistance/dialogs/CZPLocalResistanceSettingsDlg.h"

#include <climits>

#include "plugin/resistance/dialogs/CZPLocalResistanceMngDlg.h"
#include "plugin/resistance/dialogs/ShowResistanceDialogs.h"
#include "tests/plugin/resistance/ResistanceFixture.h"
#include "tests/support/DialogFixture.h"

namespace {

using namespace dialogtest;
using resistance::kTeeFlows;
using Dlg = CZPLocalResistanceSettingsDlg;

constexpr int kName = 0; // columns
constexpr int kDiameter = 1;
constexpr int kCoefficient = 2;
constexpr int kNumber = 3;

class SectionDlg : public ResistanceFixture {
 protected:
  SectionDlg() {
    PutFitting(L"闸阀", L"0.5").SetAttributeValue(L"DN25", L"0.4");
    PutFitting(L"弯头", L"1.5").SetAttributeValue(L"DN25", L"1");
    PutFitting(L"截止阀", L"10").SetAttributeValue(L"DN25", L"9");
    PutAllFlows();
    PutPicture(L"1分", L"b.svg");
    Start();
  }
  // The result of ShowLRSDlg on `section`.
  int In(const std::function<void(Dlg&)>& test) {
    frontEnd.runs = {[&](CDialog& dialog) { test(static_cast<Dlg&>(dialog)); }};
    return ZP::ShowLRSDlg(section, nullptr);
  }
  void Put(const wchar_t* name, int number) {
    CZPPipeParts part(name, number);
    section.m_arrParts.Add(part);
  }
  static CString Text(const CZPLocalResistanceSettings& of) {
    CString text = of.m_strDN;
    for (const CZPPipeParts& part : of.m_arrParts)
      text += L" " + part.GetName() + L"x" + ZP::itoa(part.GetNumber());
    text += L" |";
    for (const auto& flow : kTeeFlows) text += L" " + ZP::itoa(of.m_num3T4T.*flow.count);
    return text + L" | " + ZP::ftoa(of.m_dOtherCoe, 9, true) + L" " + ZP::ftoa(of.m_dAdditionCoe, 9, true);
  }
  UiFrontEndScript frontEnd;
  CZPLocalResistanceSettings section;
};

TEST_F(SectionDlg, ShowsAnEmptySectionAsTheInputRowAlone) {
  In([](Dlg& dialog) {
    EXPECT_EQ(dialog.GetCaption(), L"局部阻力系数");
    const auto& grid = dialog.m_grid;
    EXPECT_EQ(grid.GetFixedRowCount(), 1);
    EXPECT_EQ(RowText(grid, 0), L"名称|管径|局阻|数量");
    EXPECT_EQ(RowsText(grid), L" |||");
    EXPECT_EQ(dialog.m_total.GetText(), L"0");
    EXPECT_EQ(dialog.m_other.GetCaption(), L"其它局部阻力系数：");
    EXPECT_EQ(dialog.m_addition.GetCaption(), L"附加局部阻力系数：");
    EXPECT_EQ(dialog.m_total.GetCaption(), L"总局部阻力系数：");
    EXPECT_EQ(dialog.m_manage.GetCaption(), L"局阻系数管理器...");
  });
}

TEST_F(SectionDlg, ShowsFittingsWithTheCoefficientOfTheDiameter) {
  section.m_strDN = L"DN25";
  Put(L"弯头", 3);
  Put(L"闸阀", 0);
  Put(L"三通", 2);
  In([](Dlg& dialog) {
    EXPECT_EQ(RowsText(dialog.m_grid), L"弯头|DN25|1|3 闸阀|DN25|0.4|0 三通|DN25|0|2  |||")
        << "a name that the store doesn't know counts 0";
    EXPECT_EQ(dialog.m_total.GetText(), L"3");
  });
}

TEST_F(SectionDlg, OffersTheNamesOfTheStoreThenTheEmptyOne) {
  Put(L"弯头", 3);
  In([](Dlg& dialog) {
    for (const int row : {1, 2}) {
      const auto& cell = dialog.m_grid.Cell(row, kName);
      ASSERT_TRUE(cell.choices);
      EXPECT_FALSE(cell.freeText);
      EXPECT_EQ(*cell.choices, (std::vector<CString>{L"闸阀", L"弯头", L"截止阀", L""}));
    }
    EXPECT_FALSE(dialog.m_grid.UserChoose(2, kName, L"三通"));
  });
}

TEST_F(SectionDlg, LetsDiametersAndCoefficientsBe) {
  Put(L"弯头", 3);
  In([](Dlg& dialog) {
    const auto& grid = dialog.m_grid;
    for (const int column : {kDiameter, kCoefficient})
      for (const int row : {0, 1, 2}) EXPECT_FALSE(grid.CanEdit(row, column));
    EXPECT_TRUE(grid.CanEdit(1, kName));
    EXPECT_TRUE(grid.CanEdit(1, kNumber));
    EXPECT_TRUE(grid.CanEdit(2, kName));
    EXPECT_FALSE(grid.CanEdit(2, kNumber));
    EXPECT_TRUE(dialog.m_addition.IsReadOnly());
    EXPECT_TRUE(dialog.m_total.IsReadOnly());
    EXPECT_FALSE(dialog.m_other.IsReadOnly());
  });
}

TEST_F(SectionDlg, CountsFittingsThatStandTwiceOnceMore) {
  Put(L"弯头", 3);
  Put(L"闸阀", 1);
  Put(L"弯头", 5);
  EXPECT_EQ(In([](Dlg& dialog) {
              EXPECT_EQ(RowsText(dialog.m_grid), L"弯头|DN20|1.5|4 闸阀|DN20|0.5|1  |||")
                  << "one more, whatever the number";
              EXPECT_TRUE(dialog.m_ok.UserClick());
            }),
            1);
  EXPECT_EQ(Text(section), L"DN20 弯头x4 闸阀x1 | 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 | 0 0");
}

TEST_F(SectionDlg, KeepsAFittingWithoutAName) {
  Put(L"", 2);
  Put(L" ", 3);
  EXPECT_EQ(In([](Dlg& dialog) { EXPECT_TRUE(dialog.m_ok.UserClick()); }), 1);
  EXPECT_EQ(Text(section), L"DN20 x2  x3 | 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 | 0 0");
}

// --- the input row

TEST_F(SectionDlg, AddsTheChosenFitting) {
  In([](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_grid.UserChoose(1, kName, L"弯头"));
    EXPECT_EQ(RowsText(dialog.m_grid), L"弯头|DN20|1.5|1  |||");
    EXPECT_TRUE(dialog.m_grid.CanEdit(1, kNumber));
    EXPECT_FALSE(dialog.m_grid.CanEdit(2, kNumber));
    EXPECT_EQ(dialog.m_total.GetText(), L"1.5");
    EXPECT_TRUE(dialog.m_grid.UserChoose(2, kName, L"闸阀"));
    EXPECT_EQ(dialog.m_total.GetText(), L"2");
    EXPECT_EQ(Text(dialog.Section()), L"DN20 弯头x1 闸阀x1 | 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 | 0 0");
  });
}

TEST_F(SectionDlg, CountsAFittingThatIsChosenAgain) {
  In([](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_grid.UserChoose(1, kName, L"弯头"));
    EXPECT_TRUE(dialog.m_grid.UserChoose(2, kName, L"弯头"));
    EXPECT_EQ(RowsText(dialog.m_grid), L"弯头|DN20|1.5|2  |||");
    EXPECT_EQ(dialog.m_total.GetText(), L"3");
  });
}

TEST_F(SectionDlg, IgnoresTheEmptyChoiceInTheInputRow) {
  Put(L"弯头", 3);
  In([](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_grid.UserChoose(2, kName, L""));
    EXPECT_EQ(RowsText(dialog.m_grid), L"弯头|DN20|1.5|3  |||");
    EXPECT_TRUE(dialog.m_grid.UserBeginEdit(2, kName));
    EXPECT_TRUE(dialog.m_grid.UserCancelEdit());
    EXPECT_TRUE(dialog.m_grid.UserBeginEdit(2, kName));
    EXPECT_TRUE(dialog.m_grid.UserEndEdit());
    EXPECT_EQ(RowsText(dialog.m_grid), L"弯头|DN20|1.5|3  |||");
  });
}

// --- filled rows

TEST_F(SectionDlg, DeletesARowByTheEmptyChoice) {
  Put(L"弯头", 3);
  Put(L"闸阀", 2);
  In([](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_grid.UserChoose(1, kName, L""));
    EXPECT_EQ(RowsText(dialog.m_grid), L"闸阀|DN20|0.5|2  |||");
    EXPECT_EQ(dialog.m_total.GetText(), L"1");
    EXPECT_TRUE(dialog.m_ok.UserClick());
  });
  EXPECT_EQ(Text(section), L"DN20 闸阀x2 | 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 | 0 0");
}

TEST_F(SectionDlg, CountsOneMoreOfTheRowWhoseNameAnotherTakes) {
  Put(L"弯头", 5);
  Put(L"闸阀", 2);
  Put(L"截止阀", 7);
  In([](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_grid.UserChoose(1, kName, L"闸阀"));
    EXPECT_EQ(RowsText(dialog.m_grid), L"闸阀|DN20|0.5|3 截止阀|DN20|10|7  |||") << "not 7, on purpose";
    EXPECT_TRUE(dialog.m_grid.UserChoose(2, kName, L"闸阀"));
    EXPECT_EQ(RowsText(dialog.m_grid), L"闸阀|DN20|0.5|4  |||");
    EXPECT_EQ(dialog.m_total.GetText(), L"2");
  });
}

TEST_F(SectionDlg, BeginsARowAnewWhoseNameChanges) {
  section.m_strDN = L"DN25";
  Put(L"弯头", 5);
  In([](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_grid.UserChoose(1, kName, L"截止阀"));
    EXPECT_EQ(RowsText(dialog.m_grid), L"截止阀|DN25|9|1  |||");
    EXPECT_EQ(dialog.m_total.GetText(), L"9");
    EXPECT_TRUE(Edit(dialog.m_grid, 1, kNumber, L"4"));
    EXPECT_TRUE(dialog.m_grid.UserChoose(1, kName, L"截止阀"));
    EXPECT_EQ(RowsText(dialog.m_grid), L"截止阀|DN25|9|4  |||") << "the same name changes nothing";
  });
}

TEST_F(SectionDlg, LeavesAnUnknownNameThatIsNotChanged) {
  Put(L"三通", 5);
  In([](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_grid.UserBeginEdit(1, kName));
    EXPECT_TRUE(dialog.m_grid.UserEndEdit());
    EXPECT_EQ(RowsText(dialog.m_grid), L"三通|DN20|0|5  |||");
  });
}

TEST_F(SectionDlg, RecalculatesWithEachNumber) {
  Put(L"弯头", 1);
  In([](Dlg& dialog) {
    for (const auto& [typed, total] : {std::pair(L"3", L"4.5"),
                                       {L" 2 ", L"3"},
                                       {L"-1", L"-1.5"},
                                       {L"2.9", L"3"},
                                       {L"many", L"0"},
                                       {L"", L"0"},
                                       {L"4个", L"6"}}) {
      EXPECT_TRUE(Edit(dialog.m_grid, 1, kNumber, typed));
      EXPECT_EQ(dialog.m_total.GetText(), total) << Utf8(typed);
      EXPECT_EQ(dialog.m_grid.GetItemText(1, kNumber), typed);
    }
    EXPECT_EQ(dialog.Section().m_arrParts[0].GetNumber(), 4);
  });
}

TEST_F(SectionDlg, CountsNoFurtherThanAnIntCan) {
  Put(L"弯头", INT_MAX);
  In([](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_grid.UserChoose(2, kName, L"弯头"));
    EXPECT_EQ(dialog.m_grid.GetItemText(1, kNumber), ZP::itoa(INT_MAX));
  });
}

TEST_F(SectionDlg, DoesNotTakeTheHeadingForAFitting) {
  AddFitting(Fitting(L"名称", 2));
  In([](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_grid.UserChoose(1, kName, L"名称"));
    EXPECT_EQ(RowsText(dialog.m_grid), L"名称|DN20|2|1  |||");
  });
}

// --- tees and crosses

TEST_F(SectionDlg, ShowsPicturesCoefficientsAndCounts) {
  section.m_num3T4T.cross1To4 = 4;
  section.m_num3T4T.cross1To3 = 3;
  In([](Dlg& dialog) {
    CString shown;
    for (std::size_t flow = 0; flow < std::size(kTeeFlows); ++flow) {
      const auto& count = dialog.m_counts[flow];
      EXPECT_EQ(dialog.m_coefficients[flow].BelongsTo(), count.BelongsTo());
      shown += count.BelongsTo()->GetCaption() + count.GetCaption() + L":" +
               dialog.m_coefficients[flow].GetCaption() + L"x" + count.GetText() + L" ";
    }
    EXPECT_EQ(shown,
              L"3汇1→3:局阻 0.25x0 3汇2→3:局阻 0.5x0 1分1→2:局阻 0.75x0 1分1→3:局阻 1x0 2汇1→2:局阻 1.25x0 "
              L"2汇3→2:局阻 1.5x0 2分2→1:局阻 1.75x0 2分2→3:局阻 2x0 斜3分3→2:局阻 2.25x0 "
              L"斜1汇2→1:局阻 2.5x0 斜1汇3→1:局阻 2.75x0 斜3汇2→3:局阻 3x0 4通1→2:局阻 3.25x0 "
              L"4通1→4:局阻 3.5x4 4通1→3:局阻 3.75x3 ");
    EXPECT_EQ(dialog.m_pictures.Boxes()[0]->GetPicture(), L"");
    EXPECT_EQ(dialog.m_pictures.Boxes()[1]->GetPicture(), ZP::GetDataBmpPath() + L"b.svg");
    EXPECT_EQ(dialog.m_total.GetText(), L"25.25");
  });
}

TEST_F(SectionDlg, CountsEachFlowInItsField) {
  EXPECT_EQ(In([](Dlg& dialog) {
              for (std::size_t flow = 0; flow < std::size(kTeeFlows); ++flow)
                EXPECT_TRUE(dialog.m_counts[flow].UserType(ZP::itoa(static_cast<int>(flow) + 1)));
              EXPECT_TRUE(dialog.m_ok.UserClick());
            }),
            1);
  EXPECT_EQ(Text(section), L"DN20 | 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 | 0 0");
}

TEST_F(SectionDlg, RecalculatesWithEachKeyInACount) {
  In([](Dlg& dialog) {
    auto& count = dialog.m_counts[3]; // of coefficient 1
    for (const auto& [typed, total] :
         {std::pair(L"2", L"2"), {L"23", L"23"}, {L"", L"0"}, {L"-", L"0"}, {L"-3", L"-3"}, {L" 4 ", L"4"}}) {
      EXPECT_TRUE(count.UserType(typed));
      EXPECT_EQ(dialog.m_total.GetText(), total) << Utf8(typed);
    }
  });
}

TEST_F(SectionDlg, StepsACountByOneAndNotBelowZero) {
  In([](Dlg& dialog) {
    auto& count = dialog.m_counts[3];
    EXPECT_TRUE(count.UserStep(-1));
    EXPECT_EQ(count.GetText(), L"0");
    EXPECT_TRUE(count.UserStep(1));
    EXPECT_TRUE(count.UserStep(2));
    EXPECT_EQ(count.GetText(), L"3");
    EXPECT_EQ(dialog.m_total.GetText(), L"3");
    EXPECT_TRUE(count.UserStep(-5));
    EXPECT_EQ(count.GetText(), L"0");
    EXPECT_EQ(dialog.m_total.GetText(), L"0");
    EXPECT_TRUE(count.UserType(L"-7"));
    EXPECT_TRUE(count.UserStep(1));
    EXPECT_EQ(count.GetText(), L"0");
  });
}

TEST_F(SectionDlg, TakesWholeNumbersAloneForACount) {
  In([](Dlg& dialog) {
    auto& count = dialog.m_counts[0];
    EXPECT_TRUE(count.UserType(L"2"));
    for (const wchar_t* text : {L"2.5", L"1e3", L"x", L"--1", L"2147483648", L"-9999999999", L"\U0001F600"})
      EXPECT_FALSE(count.UserType(text)) << Utf8(text);
    EXPECT_FALSE(count.UserType(CString(std::wstring(100000, L'9'))));
    EXPECT_EQ(count.GetText(), L"2");
    for (const int number : {INT_MAX, -INT_MAX}) {
      EXPECT_TRUE(count.UserType(ZP::itoa(number)));
      EXPECT_EQ(dialog.Section().m_num3T4T.merge3From1, number);
    }
  });
}

// --- the free coefficients

TEST_F(SectionDlg, AddsTheOtherAndTheAdditionalCoefficient) {
  section.m_dOtherCoe = 0.5;
  section.m_dAdditionCoe = 0.2;
  Put(L"弯头", 3);
  In([](Dlg& dialog) {
    EXPECT_EQ(dialog.m_other.GetText(), L"0.5");
    EXPECT_EQ(dialog.m_addition.GetText(), L"0.2");
    EXPECT_EQ(dialog.m_total.GetText(), L"5.2");
    EXPECT_TRUE(dialog.m_other.UserType(L"1.25"));
    EXPECT_EQ(dialog.m_total.GetText(), L"5.95");
    EXPECT_FALSE(dialog.m_addition.UserType(L"3"));
    EXPECT_FALSE(dialog.m_total.UserType(L"3"));
    EXPECT_TRUE(dialog.m_other.UserStep(-12));
    EXPECT_EQ(dialog.m_other.GetText(), L"0.05");
    EXPECT_TRUE(dialog.m_other.UserStep(-1));
    EXPECT_EQ(dialog.m_other.GetText(), L"0");
    EXPECT_EQ(dialog.m_total.GetText(), L"4.7");
    EXPECT_TRUE(dialog.m_other.UserStep(1));
    EXPECT_EQ(dialog.m_total.GetText(), L"4.8");
  });
}

// --- leaving

TEST_F(SectionDlg, GivesAllBackAtOk) {
  section.m_strDN = L"DN25";
  section.m_dAdditionCoe = 1.0 / 3;
  EXPECT_EQ(In([](Dlg& dialog) {
              EXPECT_TRUE(dialog.m_grid.UserChoose(1, kName, L"弯头"));
              EXPECT_TRUE(Edit(dialog.m_grid, 1, kNumber, L"2"));
              EXPECT_TRUE(dialog.m_counts[14].UserType(L"6"));
              EXPECT_TRUE(dialog.m_other.UserType(L"0.75"));
              EXPECT_TRUE(dialog.UserEnter());
            }),
            1);
  EXPECT_EQ(Text(section), L"DN25 弯头x2 | 0 0 0 0 0 0 0 0 0 0 0 0 0 0 6 | 0.75 0.333333333");
  EXPECT_EQ(section.m_dAdditionCoe, 1.0 / 3);
}

TEST_F(SectionDlg, TakesAnOpenEditWithItAtOk) {
  Put(L"弯头", 1);
  In([](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_grid.UserBeginEdit(1, kNumber));
    EXPECT_TRUE(dialog.m_grid.UserTypeEdit(L"9"));
    EXPECT_TRUE(dialog.m_ok.UserClick());
  });
  EXPECT_EQ(section.m_arrParts[0].GetNumber(), 9);
}

TEST_F(SectionDlg, LeavesTheCallersSectionOtherwise) {
  Put(L"弯头", 3);
  Put(L"弯头", 4);
  const CString before = Text(section);
  for (const bool cancel : {true, false})
    EXPECT_EQ(In([&](Dlg& dialog) {
                EXPECT_TRUE(dialog.m_grid.UserChoose(1, kName, L""));
                EXPECT_TRUE(dialog.m_grid.UserChoose(1, kName, L"闸阀"));
                EXPECT_TRUE(dialog.m_counts[2].UserStep(4));
                EXPECT_TRUE(dialog.m_other.UserType(L"9"));
                if (cancel)
                  EXPECT_TRUE(dialog.m_cancel.UserClick());
                else
                  dialog.UserClose();
              }),
              0);
  EXPECT_EQ(Text(section), before);
  EXPECT_TRUE(frontEnd.boxes.empty());
  UiFrontEnd::Set(nullptr);
  EXPECT_EQ(ZP::ShowLRSDlg(section, nullptr), 0) << "nobody can show it";
  UiFrontEnd::Set(&frontEnd);
  EXPECT_EQ(Text(section), before);
}

// --- the manager from here

TEST_F(SectionDlg, ShowsNewCoefficientsAfterTheManagersOk) {
  Put(L"弯头", 2);
  section.m_num3T4T.merge3From1 = 3;
  In([&](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_other.UserType(L"1"));
    EXPECT_EQ(dialog.m_total.GetText(), L"4.75");
    frontEnd.runs = {[&](CDialog& opened) {
      auto& manager = static_cast<CZPLocalResistanceMngDlg&>(opened);
      EXPECT_EQ(manager.GetParent(), &dialog);
      EXPECT_TRUE(Edit(manager.m_fittings.m_list, 1, 3, L"2.5"));
      EXPECT_TRUE(Edit(manager.m_fittings.m_list, 0, 1, L"蝶阀"));
      EXPECT_TRUE(manager.m_apply.UserClick());
      EXPECT_TRUE(manager.m_sheet.UserSelect(1));
      EXPECT_TRUE(manager.m_tees.m_fields[0].UserType(L"10"));
      EXPECT_TRUE(manager.m_ok.UserClick());
    }};
    EXPECT_TRUE(dialog.m_manage.UserClick());
    EXPECT_EQ(RowsText(dialog.m_grid), L"弯头|DN20|2.5|2  |||");
    EXPECT_EQ((*dialog.m_grid.Cell(1, kName).choices)[0], L"蝶阀");
    EXPECT_EQ(dialog.m_coefficients[0].GetCaption(), L"局阻 10");
    EXPECT_EQ(dialog.m_counts[0].GetText(), L"3");
    EXPECT_EQ(dialog.m_other.GetText(), L"1");
    EXPECT_EQ(dialog.m_total.GetText(), L"36");
  });
}

TEST_F(SectionDlg, ShowsAppliedCoefficientsOnlyWithTheNextChangeAfterACancel) {
  Put(L"弯头", 2);
  In([&](Dlg& dialog) {
    frontEnd.runs = {[](CDialog& opened) {
      auto& manager = static_cast<CZPLocalResistanceMngDlg&>(opened);
      EXPECT_TRUE(Edit(manager.m_fittings.m_list, 1, 3, L"2.5"));
      EXPECT_TRUE(manager.m_apply.UserClick());
      EXPECT_TRUE(manager.m_cancel.UserClick());
    }};
    EXPECT_TRUE(dialog.m_manage.UserClick());
    EXPECT_EQ(store.m_arrPartsCoe[1].dbDN20, 2.5);
    EXPECT_EQ(RowsText(dialog.m_grid), L"弯头|DN20|1.5|2  |||");
    EXPECT_EQ(dialog.m_total.GetText(), L"3");
    EXPECT_TRUE(dialog.m_other.UserType(L"1"));
    EXPECT_EQ(dialog.m_total.GetText(), L"6");
  });
}

TEST_F(SectionDlg, KeepsAFittingThatTheManagerTookAway) {
  Put(L"弯头", 2);
  In([&](Dlg& dialog) {
    frontEnd.runs = {[](CDialog& opened) {
      auto& manager = static_cast<CZPLocalResistanceMngDlg&>(opened);
      EXPECT_TRUE(manager.m_fittings.m_list.UserClick(1, 1));
      EXPECT_TRUE(manager.m_fittings.m_remove.UserClick());
      EXPECT_TRUE(manager.m_ok.UserClick());
    }};
    EXPECT_TRUE(dialog.m_manage.UserClick());
    EXPECT_EQ(RowsText(dialog.m_grid), L"弯头|DN20|0|2  |||");
    EXPECT_TRUE(dialog.m_ok.UserClick());
  });
  EXPECT_EQ(section.m_arrParts[0].GetName(), L"弯头");
}

} // namespace
