// The manager of local-resistance coefficients.
#include "plugin/resistance/dialogs/CZPLocalResistanceMngDlg.h"

#include "plugin/resistance/dialogs/CoefficientField.h"
#include "plugin/resistance/dialogs/ShowResistanceDialogs.h"
#include "tests/plugin/resistance/ResistanceFixture.h"
#include "tests/support/DialogFixture.h"

namespace {

using namespace dialogtest;
using resistance::kTeeFlows;
using Dlg = CZPLocalResistanceMngDlg;

constexpr int kFittings = 0; // pages
constexpr int kTees = 1;
constexpr int kName = 1; // columns
constexpr int kDN15 = 2;
constexpr int kDN50 = 7;

class ResistanceManagerDlg : public ResistanceFixture {
 protected:
  ResistanceManagerDlg() {
    PutFitting(L"闸阀", L"0.5");
    PutFitting(L"弯头", L"1.5");
    PutFitting(L"截止阀", L"16");
    PutAllFlows();
    PutPicture(L"3汇", L"a.svg");
    PutPicture(L"4通", L"d.svg");
    Start();
  }
  int In(const std::function<void(Dlg&)>& test) {
    Dlg dialog(nullptr);
    return dialogtest::Run<Dlg>(frontEnd, dialog, test);
  }
  static void Turn(Dlg& dialog, int page) { EXPECT_TRUE(dialog.m_sheet.UserSelect(page)); }
  static CString ListNames(Dlg& dialog) {
    CString names;
    for (int row = 0; row < dialog.m_fittings.m_list.GetRowCount(); ++row)
      names += dialog.m_fittings.m_list.GetItemText(row, kName) + L" ";
    return names;
  }
  static double Tee(const CZPPipe3T4TCoe& tees, int flow) { return tees.*kTeeFlows[flow].coefficient; }
  // "0.25 0.5 ..." of the store.
  CString Tees() const {
    CString text;
    for (const auto& flow : kTeeFlows) text += ZP::ftoa(store.m_coe3T4T.*flow.coefficient, 9, true) + L" ";
    return text;
  }
  UiFrontEndScript frontEnd;
};

TEST_F(ResistanceManagerDlg, HasTwoPagesAndThreeButtons) {
  In([](Dlg& dialog) {
    EXPECT_EQ(dialog.GetCaption(), L"局阻系数管理器");
    ASSERT_EQ(dialog.m_sheet.Pages().size(), 2u);
    EXPECT_EQ(dialog.m_sheet.Pages()[0]->GetCaption(), L"常用管道配件");
    EXPECT_EQ(dialog.m_sheet.Pages()[1]->GetCaption(), L"三通四通");
    EXPECT_EQ(dialog.m_sheet.GetActiveIndex(), kFittings);
    EXPECT_EQ(dialog.m_ok.GetCaption(), L"确定");
    EXPECT_EQ(dialog.m_cancel.GetCaption(), L"取消");
    EXPECT_EQ(dialog.m_apply.GetCaption(), L"应用");
  });
}

TEST_F(ResistanceManagerDlg, GivesTheResultOfTheDialog) {
  for (const int result : {IDOK, IDCANCEL}) {
    frontEnd.runs = {[&](CDialog& dialog) {
      auto& manager = static_cast<Dlg&>(dialog);
      EXPECT_TRUE((result == IDOK ? manager.m_ok : manager.m_cancel).UserClick());
    }};
    EXPECT_EQ(ZP::ShowLRMDlg(nullptr), result);
  }
  UiFrontEnd::Set(nullptr);
  EXPECT_EQ(ZP::ShowLRMDlg(nullptr), -1) << "nobody can show it";
  UiFrontEnd::Set(&frontEnd);
}

// --- fittings

TEST_F(ResistanceManagerDlg, ShowsFittingsByNameAndDiameter) {
  store.m_arrPartsCoe[1].dbDN15 = 1.125;
  store.m_arrPartsCoe[1].dbDN40 = 0;
  store.m_arrPartsCoe[1].dbDN50 = 7;
  In([](Dlg& dialog) {
    auto& list = dialog.m_fittings.m_list;
    ASSERT_EQ(list.GetColumnCount(), 8);
    EXPECT_EQ(list.Column(0).width, 0) << "hidden";
    CString titles;
    for (int column = 1; column < 8; ++column) titles += list.Column(column).title + L" ";
    EXPECT_EQ(titles, L"名称 DN15 DN20 DN25 DN32 DN40 ≥DN50 ");
    EXPECT_TRUE(list.SelectsRows());
    EXPECT_EQ(RowsText(list), L"闸阀|0.5|0.5|0.5|0.5|0.5|0.5 弯头|1.13|1.5|1.5|1.5|0|7 "
                              L"截止阀|16|16|16|16|16|16");
    EXPECT_EQ(list.GetCurSel(), -1);
    EXPECT_EQ(dialog.m_fittings.m_add.GetToolTip(), L"新建");
    EXPECT_EQ(dialog.m_fittings.m_remove.GetToolTip(), L"删除");
    EXPECT_EQ(dialog.m_fittings.m_up.GetToolTip(), L"上移");
    EXPECT_EQ(dialog.m_fittings.m_down.GetToolTip(), L"下移");
  });
}

TEST_F(ResistanceManagerDlg, CommitsWhatTheRowsShow) {
  store.m_arrPartsCoe[0].nSpare = 7;
  store.m_arrPartsCoe[2].dbDN15 = 1.125; // shown as 1.13
  In([](Dlg& dialog) {
    auto& list = dialog.m_fittings.m_list;
    EXPECT_TRUE(Edit(list, 0, kName, L"  "));
    EXPECT_TRUE(Edit(list, 0, kDN15, L"2.5x"));
    EXPECT_TRUE(Edit(list, 0, kDN50, L"-3"));
    EXPECT_TRUE(Edit(list, 1, kDN50, L"many"));
    EXPECT_EQ(list.GetItemText(1, kDN50), L"many") << "nothing is checked";
    EXPECT_TRUE(dialog.m_ok.UserClick());
  });
  EXPECT_TRUE(frontEnd.boxes.empty());
  EXPECT_EQ(Names(), L"   弯头 截止阀 ");
  EXPECT_EQ(store.m_arrPartsCoe[0].dbDN15, 2.5);
  EXPECT_EQ(store.m_arrPartsCoe[0].dbDN50, -3);
  EXPECT_EQ(store.m_arrPartsCoe[0].nSpare, 7) << "no row shows it, and it stays";
  EXPECT_EQ(store.m_arrPartsCoe[1].dbDN50, 0);
  EXPECT_EQ(store.m_arrPartsCoe[2].dbDN15, 1.13);
  Reload();
  EXPECT_EQ(Names(), L"   弯头 截止阀 ") << "and it is saved";
}

TEST_F(ResistanceManagerDlg, TouchesTheStoreOnlyWhenItIsCommitted) {
  In([&](Dlg& dialog) {
    EXPECT_TRUE(Edit(dialog.m_fittings.m_list, 0, kName, L"蝶阀"));
    EXPECT_TRUE(dialog.m_fittings.m_remove.UserClick());
    EXPECT_TRUE(dialog.m_fittings.m_add.UserClick());
    EXPECT_TRUE(dialog.m_fittings.m_up.UserClick());
    Turn(dialog, kTees);
    EXPECT_TRUE(dialog.m_tees.m_fields[0].UserType(L"9"));
    EXPECT_EQ(Names(), L"闸阀 弯头 截止阀 ");
    EXPECT_EQ(store.m_coe3T4T.merge3From1, 0.25);
    EXPECT_TRUE(dialog.m_cancel.UserClick());
  });
  EXPECT_EQ(Names(), L"闸阀 弯头 截止阀 ");
  EXPECT_EQ(store.m_coe3T4T.merge3From1, 0.25);
}

TEST_F(ResistanceManagerDlg, NamesANewFittingAtOnce) {
  In([](Dlg& dialog) {
    auto& page = dialog.m_fittings;
    EXPECT_TRUE(page.m_add.UserClick());
    EXPECT_EQ(RowText(page.m_list, 3), L"|0|0|0|0|0|0");
    EXPECT_EQ(page.m_list.GetCurSel(), 3);
    ASSERT_TRUE(page.m_list.CurrentEdit());
    EXPECT_EQ(page.m_list.CurrentEdit()->row, 3);
    EXPECT_EQ(page.m_list.CurrentEdit()->column, kName);
    EXPECT_TRUE(page.m_list.UserTypeEdit(L"弯头"));
    EXPECT_TRUE(page.m_add.UserClick()) << "accepts a name that is there already, and begins the next";
    EXPECT_EQ(ListNames(dialog), L"闸阀 弯头 截止阀 弯头  ");
    EXPECT_TRUE(dialog.m_ok.UserClick());
  });
  EXPECT_EQ(Names(), L"闸阀 弯头 截止阀 弯头  ");
  Reload();
  EXPECT_EQ(Names(), L"闸阀 弯头 截止阀 弯头 ") << "the one without a name is gone";
}

TEST_F(ResistanceManagerDlg, DeletesWithoutAQuestion) {
  In([](Dlg& dialog) {
    auto& page = dialog.m_fittings;
    EXPECT_TRUE(page.m_remove.UserClick()) << "none selected";
    EXPECT_EQ(ListNames(dialog), L"闸阀 弯头 截止阀 ");
    EXPECT_TRUE(page.m_list.UserClick(1, 3));
    EXPECT_TRUE(page.m_remove.UserClick());
    EXPECT_EQ(ListNames(dialog), L"闸阀 截止阀 ");
    EXPECT_EQ(page.m_list.GetCurSel(), 1) << "the one that moved up";
    EXPECT_TRUE(page.m_remove.UserClick());
    EXPECT_EQ(page.m_list.GetCurSel(), -1) << "nothing moved up";
    EXPECT_TRUE(page.m_remove.UserClick());
    EXPECT_EQ(ListNames(dialog), L"闸阀 ");
    EXPECT_TRUE(dialog.m_ok.UserClick());
  });
  EXPECT_TRUE(frontEnd.boxes.empty());
  EXPECT_EQ(Names(), L"闸阀 ");
}

TEST_F(ResistanceManagerDlg, MovesARowWithWhatWasTyped) {
  In([](Dlg& dialog) {
    auto& page = dialog.m_fittings;
    EXPECT_TRUE(Edit(page.m_list, 0, kDN15, L"0.126"));
    EXPECT_TRUE(Edit(page.m_list, 2, kDN15, L"x"));
    EXPECT_TRUE(page.m_up.UserClick());
    EXPECT_EQ(ListNames(dialog), L"闸阀 截止阀 弯头 ");
    EXPECT_EQ(page.m_list.GetCurSel(), 1);
    EXPECT_EQ(page.m_list.GetItemText(1, kDN15), L"0") << "parsed";
    EXPECT_EQ(page.m_list.GetItemText(0, kDN15), L"0.13") << "as are the others";
    EXPECT_TRUE(page.m_up.UserClick());
    EXPECT_EQ(ListNames(dialog), L"截止阀 闸阀 弯头 ");
    EXPECT_TRUE(page.m_up.UserClick()) << "the first one stays";
    EXPECT_EQ(ListNames(dialog), L"截止阀 闸阀 弯头 ");
    for (int i = 0; i < 3; ++i) EXPECT_TRUE(page.m_down.UserClick());
    EXPECT_EQ(ListNames(dialog), L"闸阀 弯头 截止阀 ") << "the last one stays";
    EXPECT_EQ(page.m_list.GetCurSel(), 2);
    page.m_list.SetCurSel(-1);
    EXPECT_TRUE(page.m_up.UserClick());
    EXPECT_TRUE(page.m_down.UserClick());
    EXPECT_EQ(ListNames(dialog), L"闸阀 弯头 截止阀 ") << "none selected";
  });
}

TEST_F(ResistanceManagerDlg, FinishesAnEditBeforeAnythingElse) {
  In([](Dlg& dialog) {
    auto& list = dialog.m_fittings.m_list;
    EXPECT_TRUE(list.UserBeginEdit(0, kName));
    EXPECT_TRUE(list.UserTypeEdit(L"球阀"));
    EXPECT_TRUE(dialog.m_ok.UserClick());
  });
  EXPECT_EQ(Names(), L"球阀 弯头 截止阀 ");
}

// --- tees and crosses

TEST_F(ResistanceManagerDlg, ShowsThePicturesThatTheStoreHas) {
  In([](Dlg& dialog) {
    const auto& boxes = dialog.m_tees.m_pictures.Boxes();
    CString forms, files;
    for (const auto& box : boxes) {
      forms += box->GetCaption() + L" ";
      files += box->GetPicture().IsEmpty() ? CString(L"-") : box->GetPicture().Right(5);
    }
    EXPECT_EQ(forms, L"3汇 1分 2汇 2分 斜3分 斜1汇 斜3汇 4通 ");
    EXPECT_EQ(files, L"a.svg------d.svg");
    EXPECT_EQ(boxes[0]->GetPicture(), ZP::GetDataBmpPath() + L"a.svg");
  });
}

TEST_F(ResistanceManagerDlg, ShowsACoefficientForEachFlow) {
  In([](Dlg& dialog) {
    Turn(dialog, kTees);
    CString shown;
    for (std::size_t flow = 0; flow < std::size(kTeeFlows); ++flow) {
      const CNumberEdit& field = dialog.m_tees.m_fields[flow];
      shown += field.BelongsTo()->GetCaption() + field.GetCaption() + L":" + field.GetText() + L" ";
    }
    EXPECT_EQ(shown, L"3汇1→3:0.25 3汇2→3:0.5 1分1→2:0.75 1分1→3:1 2汇1→2:1.25 2汇3→2:1.5 2分2→1:1.75 "
                     L"2分2→3:2 斜3分3→2:2.25 斜1汇2→1:2.5 斜1汇3→1:2.75 斜3汇2→3:3 4通1→2:3.25 "
                     L"4通1→4:3.5 4通1→3:3.75 ");
  });
}

TEST_F(ResistanceManagerDlg, StepsByATenthAndNotBelowZero) {
  In([](Dlg& dialog) {
    Turn(dialog, kTees);
    CNumberEdit& field = dialog.m_tees.m_fields[0];
    EXPECT_TRUE(field.UserStep(1));
    EXPECT_EQ(field.GetText(), L"0.35");
    EXPECT_TRUE(field.UserStep(-3));
    EXPECT_EQ(field.GetText(), L"0.05");
    EXPECT_TRUE(field.UserStep(-1));
    EXPECT_EQ(field.GetText(), L"0");
    EXPECT_TRUE(field.UserType(L"-4"));
    EXPECT_EQ(field.GetText(), L"-4") << "typed values are not limited";
    EXPECT_TRUE(field.UserStep(1));
    EXPECT_EQ(field.GetText(), L"0");
    EXPECT_TRUE(field.UserType(L"0.125"));
    for (int i = 0; i < 30; ++i) EXPECT_TRUE(field.UserStep(1));
    EXPECT_EQ(field.GetText(), L"3.125") << "no digits of its own making";
  });
}

TEST_F(ResistanceManagerDlg, KeepsTheDigitsOfACoefficientThatNobodyTouches) {
  store.m_coe3T4T.merge3From1 = 1.0 / 3;
  store.m_coe3T4T.cross1To3 = 16.1;
  const CString before = Tees();
  In([](Dlg& dialog) {
    Turn(dialog, kTees);
    EXPECT_EQ(dialog.m_tees.m_fields[14].GetText(), L"16.1");
    EXPECT_TRUE(dialog.m_ok.UserClick());
  });
  EXPECT_EQ(store.m_coe3T4T.merge3From1, 1.0 / 3);
  EXPECT_EQ(Tees(), before);
}

TEST_F(ResistanceManagerDlg, CommitsEachFlowToItsField) {
  In([](Dlg& dialog) {
    Turn(dialog, kTees);
    for (std::size_t flow = 0; flow < std::size(kTeeFlows); ++flow)
      EXPECT_TRUE(dialog.m_tees.m_fields[flow].UserType(ZP::itoa(static_cast<int>(flow) + 1)));
    EXPECT_TRUE(dialog.m_ok.UserClick());
  });
  EXPECT_EQ(Tees(), L"1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 ");
  EXPECT_EQ(store.m_coe3T4T.cross1To4, 14);
  EXPECT_EQ(store.m_coe3T4T.cross1To3, 15);
  Reload();
  EXPECT_EQ(Tees(), L"1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 ");
}

TEST_F(ResistanceManagerDlg, HoldsZerosUntilItOpens) {
  const Dlg dialog(nullptr);
  for (std::size_t flow = 0; flow < std::size(kTeeFlows); ++flow)
    EXPECT_EQ(dialog.m_tees.m_fields[flow].GetValue(), 0);
}

// --- what is committed

TEST_F(ResistanceManagerDlg, CommitsThePageThatShowsAlone) {
  const auto changeBoth = [](Dlg& dialog, int shown) {
    EXPECT_TRUE(Edit(dialog.m_fittings.m_list, 0, kName, L"蝶阀"));
    Turn(dialog, kTees);
    EXPECT_TRUE(dialog.m_tees.m_fields[0].UserType(L"9"));
    Turn(dialog, shown);
    EXPECT_TRUE(dialog.m_ok.UserClick());
  };
  EXPECT_EQ(In([&](Dlg& dialog) { changeBoth(dialog, kFittings); }), IDOK);
  EXPECT_EQ(Names(), L"蝶阀 弯头 截止阀 ");
  EXPECT_EQ(store.m_coe3T4T.merge3From1, 0.25) << "lost, on purpose";
  Reload();
  EXPECT_EQ(Names(), L"蝶阀 弯头 截止阀 ");
  EXPECT_EQ(store.m_coe3T4T.merge3From1, 0.25);
  store.m_arrPartsCoe[0].szName = L"闸阀";
  EXPECT_EQ(In([&](Dlg& dialog) { changeBoth(dialog, kTees); }), IDOK);
  EXPECT_EQ(Names(), L"闸阀 弯头 截止阀 ");
  EXPECT_EQ(store.m_coe3T4T.merge3From1, 9);
}

TEST_F(ResistanceManagerDlg, AppliesEachPageInTurnAndStaysOpen) {
  const int result = In([&](Dlg& dialog) {
    EXPECT_TRUE(Edit(dialog.m_fittings.m_list, 0, kName, L"蝶阀"));
    EXPECT_TRUE(dialog.m_apply.UserClick());
    EXPECT_FALSE(dialog.HasEnded());
    EXPECT_EQ(Names(), L"蝶阀 弯头 截止阀 ");
    Turn(dialog, kTees);
    EXPECT_TRUE(dialog.m_tees.m_fields[0].UserType(L"9"));
    EXPECT_TRUE(dialog.m_apply.UserClick());
    EXPECT_TRUE(dialog.m_tees.m_fields[0].UserType(L"10"));
    EXPECT_TRUE(dialog.m_cancel.UserClick());
  });
  EXPECT_EQ(result, IDCANCEL);
  EXPECT_EQ(Names(), L"蝶阀 弯头 截止阀 ") << "what was applied stays";
  EXPECT_EQ(store.m_coe3T4T.merge3From1, 9);
  Reload();
  EXPECT_EQ(Names(), L"蝶阀 弯头 截止阀 ");
  EXPECT_EQ(store.m_coe3T4T.merge3From1, 9);
}

TEST_F(ResistanceManagerDlg, GoesOnWithItsOwnCopyAfterAnApply) {
  In([&](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_apply.UserClick());
    EXPECT_TRUE(Edit(dialog.m_fittings.m_list, 0, kName, L"蝶阀"));
    EXPECT_TRUE(dialog.m_fittings.m_down.UserClick());
    EXPECT_EQ(Names(), L"闸阀 弯头 截止阀 ");
    EXPECT_TRUE(dialog.m_apply.UserClick());
    EXPECT_EQ(Names(), L"弯头 蝶阀 截止阀 ");
  });
}

TEST_F(ResistanceManagerDlg, WorksInMemoryAloneWithoutAFile) {
  std::filesystem::remove(install.Root() / kFile);
  Reload();
  In([](Dlg& dialog) {
    EXPECT_EQ(ListNames(dialog), L"");
    EXPECT_TRUE(dialog.m_fittings.m_add.UserClick());
    EXPECT_TRUE(dialog.m_fittings.m_list.UserTypeEdit(L"闸阀"));
    EXPECT_TRUE(dialog.m_apply.UserClick());
    Turn(dialog, kTees);
    CString shown;
    for (std::size_t flow = 0; flow < 5; ++flow) shown += dialog.m_tees.m_fields[flow].GetText() + L" ";
    EXPECT_EQ(shown, L"1 2 3 0 0 ");
    for (const auto& box : dialog.m_tees.m_pictures.Boxes()) EXPECT_TRUE(box->GetPicture().IsEmpty());
    EXPECT_TRUE(dialog.m_tees.m_fields[3].UserType(L"1.5"));
    EXPECT_TRUE(dialog.m_ok.UserClick());
  });
  EXPECT_EQ(Names(), L"闸阀 ");
  EXPECT_EQ(store.m_coe3T4T.split1To3, 1.5);
  EXPECT_FALSE(install.Has(kFile));
  EXPECT_TRUE(frontEnd.boxes.empty()) << "and nobody is told";
}

// --- the rules by themselves

TEST(CoefficientField, ShowsTheFewestDigitsThatMeanTheNumber) {
  CDialog form(L"", nullptr);
  CNumberEdit field(form, L"");
  for (const auto& [number, text] : {std::pair(1.0, L"1"),
                                     {0.0, L"0"},
                                     {0.1, L"0.1"},
                                     {-2.5, L"-2.5"},
                                     {1.0 / 3, L"0.3333333333333333"},
                                     {1e21, L"1e+21"},
                                     {120.0, L"120"}}) {
    resistance::ShowCoefficient(field, number);
    EXPECT_EQ(field.GetText(), text);
    EXPECT_EQ(field.GetValue(), number);
  }
}

} // namespace
