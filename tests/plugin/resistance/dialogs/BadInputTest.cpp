// What users should not do to the dialogs of local resistance, and do.
#include "host/afx/MessageLog.h"
#include "plugin/resistance/dialogs/CZPLocalResistanceMngDlg.h"
#include "plugin/resistance/dialogs/CZPLocalResistanceSettingsDlg.h"
#include "plugin/resistance/dialogs/ShowResistanceDialogs.h"
#include "tests/plugin/resistance/ResistanceFixture.h"
#include "tests/support/DialogFixture.h"
#include "tests/support/ReadOnlyFolder.h"

namespace {

using namespace dialogtest;
using resistance::kNameColumn;
using resistance::kTeeFlows;
using Manager = CZPLocalResistanceMngDlg;
using Section = CZPLocalResistanceSettingsDlg;

class BadResistanceInput : public ResistanceFixture {
 protected:
  BadResistanceInput() {
    PutFitting(L"闸阀", L"0.5");
    PutFitting(L"弯头", L"1.5");
    PutAllFlows();
    Start();
  }
  void Manage(const std::function<void(Manager&)>& test) {
    Manager dialog(nullptr);
    dialogtest::Run<Manager>(frontEnd, dialog, test);
  }
  void Settle(const std::function<void(Section&)>& test) {
    Section dialog(section, nullptr);
    dialogtest::Run<Section>(frontEnd, dialog, test);
  }
  UiFrontEndScript frontEnd;
  CZPLocalResistanceSettings section;
};

TEST_F(BadResistanceInput, ThatIsNoNumberCountsAsZeroInEveryColumn) {
  for (const wchar_t* text : kNoNumbers) {
    store.m_arrPartsCoe[0] = Fitting(L"闸阀", 3);
    Manage([&](Manager& dialog) {
      auto& list = dialog.m_fittings.m_list;
      for (int column = kNameColumn + 1; column < list.GetColumnCount(); ++column)
        EXPECT_TRUE(Edit(list, 0, column, text));
      EXPECT_TRUE(dialog.m_ok.UserClick());
    });
    for (const auto& column : resistance::kFittingColumns)
      EXPECT_EQ(store.m_arrPartsCoe[0].*column.coefficient, 0) << Utf8(text);
  }
  EXPECT_TRUE(frontEnd.boxes.empty());
}

TEST_F(BadResistanceInput, ThatIsNoNumberIsNotTakenByTheFields) {
  Manage([&](Manager& dialog) {
    EXPECT_TRUE(dialog.m_sheet.UserSelect(1));
    for (std::size_t flow = 0; flow < std::size(kTeeFlows); ++flow)
      for (const wchar_t* text : kNoNumbers)
        if (!CString(text).Trim().IsEmpty()) {
          EXPECT_FALSE(dialog.m_tees.m_fields[flow].UserType(text)) << Utf8(text);
        }
    EXPECT_TRUE(dialog.m_ok.UserClick());
  });
  EXPECT_EQ(store.m_coe3T4T.cross1To3, 3.75);
  Settle([&](Section& dialog) {
    for (const wchar_t* text : kNoNumbers) {
      if (CString(text).Trim().IsEmpty()) continue;
      EXPECT_FALSE(dialog.m_other.UserType(text)) << Utf8(text);
      for (std::size_t flow = 0; flow < std::size(kTeeFlows); ++flow)
        EXPECT_FALSE(dialog.m_counts[flow].UserType(text)) << Utf8(text);
    }
    EXPECT_EQ(dialog.m_total.GetText(), L"0");
  });
}

TEST_F(BadResistanceInput, ThatIsNoNumberCountsAsZeroInANumber) {
  CZPPipeParts part(L"弯头", 4);
  section.m_arrParts.Add(part);
  Settle([&](Section& dialog) {
    for (const wchar_t* text : kNoNumbers) {
      EXPECT_TRUE(Edit(dialog.m_grid, 1, 3, text));
      EXPECT_EQ(dialog.m_total.GetText(), L"0") << Utf8(text);
      EXPECT_EQ(dialog.m_grid.GetItemText(1, 3), text);
    }
  });
}

TEST_F(BadResistanceInput, InANameIsKeptAsItIs) {
  for (const CString& name : {CString(L"\"引号\" '单'"), CString(L"<a & b/>"), CString(L" 前后 "),
                              CString(L"一\n二"), CString(L"一\t二"), CString(L"%s%d%n"),
                              CString(L"\U0001F600\U00020000"), CString(std::wstring(100000, L'长'))}) {
    Manage([&](Manager& dialog) {
      EXPECT_TRUE(Edit(dialog.m_fittings.m_list, 0, kNameColumn, name));
      EXPECT_TRUE(dialog.m_ok.UserClick());
    });
    EXPECT_EQ(Reload(), 0);
    EXPECT_EQ(store.m_arrPartsCoe[0].szName, name) << Utf8(name.Left(20));
    Settle([&](Section& dialog) {
      EXPECT_TRUE(dialog.m_grid.UserChoose(1, 0, name));
      EXPECT_EQ(dialog.Section().m_arrParts[0].GetName(), name);
      EXPECT_EQ(dialog.m_total.GetText(), L"0.5") << "it is found again";
    });
  }
}

TEST_F(BadResistanceInput, OfAnyLengthIsTakenByCellsAndFields) {
  const CString digits(std::wstring(100000, L'9'));
  Manage([&](Manager& dialog) {
    EXPECT_TRUE(Edit(dialog.m_fittings.m_list, 0, kNameColumn + 1, digits));
    EXPECT_TRUE(dialog.m_apply.UserClick());
    EXPECT_TRUE(dialog.m_sheet.UserSelect(1));
    EXPECT_TRUE(dialog.m_tees.m_fields[0].UserType(digits));
    EXPECT_TRUE(dialog.m_tees.m_fields[0].UserStep(1));
    EXPECT_TRUE(dialog.m_apply.UserClick());
  });
  CZPPipeParts part(L"弯头", 1);
  section.m_arrParts.Add(part);
  Settle([&](Section& dialog) {
    EXPECT_TRUE(Edit(dialog.m_grid, 1, 3, digits));
    EXPECT_EQ(dialog.Section().m_arrParts[0].GetNumber(), std::numeric_limits<int>::max());
    EXPECT_TRUE(dialog.m_other.UserType(digits));
    EXPECT_EQ(dialog.m_total.GetText(), L"inf");
  });
}

TEST_F(BadResistanceInput, IsForgottenWhenTheWindowCloses) {
  const CString names = Names(), coefficients = Coefficients();
  for (const wchar_t* text : {L"", L"x", L"12.5", L"\n\"\U0001F600"})
    for (int row = 0; row < 2; ++row)
      for (int column = kNameColumn; column <= kNameColumn + 6; ++column)
        Manage([&](Manager& dialog) {
          EXPECT_TRUE(dialog.m_fittings.m_list.UserBeginEdit(row, column));
          EXPECT_TRUE(dialog.m_fittings.m_list.UserTypeEdit(text));
          dialog.UserClose();
          EXPECT_TRUE(dialog.HasEnded());
        });
  for (const wchar_t* text : {L"", L"-", L"1e999", L"7"})
    Manage([&](Manager& dialog) {
      EXPECT_TRUE(dialog.m_sheet.UserSelect(1));
      EXPECT_TRUE(dialog.m_tees.m_fields[4].UserType(text));
      dialog.UserClose();
    });
  EXPECT_EQ(Names(), names);
  EXPECT_EQ(Coefficients(), coefficients);
  EXPECT_EQ(store.m_coe3T4T.merge2From1, 1.25);
  EXPECT_TRUE(frontEnd.boxes.empty());
}

TEST_F(BadResistanceInput, InASectionIsForgottenWhenTheWindowCloses) {
  CZPPipeParts part(L"弯头", 4);
  section.m_arrParts.Add(part);
  const auto closeDuring = [&](int row, int column, const wchar_t* text) {
    frontEnd.runs = {[&](CDialog& shown) {
      auto& dialog = static_cast<Section&>(shown);
      EXPECT_TRUE(dialog.m_grid.UserBeginEdit(row, column));
      EXPECT_TRUE(dialog.m_grid.UserTypeEdit(text));
      dialog.UserClose();
      EXPECT_TRUE(dialog.HasEnded());
    }};
    EXPECT_EQ(ZP::ShowLRSDlg(section, nullptr), 0);
  };
  for (const wchar_t* name : {L"", L"闸阀", L"弯头"})
    for (const int row : {1, 2}) closeDuring(row, 0, name);
  for (const wchar_t* number : {L"", L"x", L"9"}) closeDuring(1, 3, number);
  ASSERT_EQ(section.m_arrParts.GetSize(), 1);
  EXPECT_EQ(section.m_arrParts[0].GetName(), L"弯头");
  EXPECT_EQ(section.m_arrParts[0].GetNumber(), 4);
  EXPECT_TRUE(frontEnd.boxes.empty());
}

TEST_F(BadResistanceInput, DoesNotSurviveTheRowThatIsDeleted) {
  Manage([&](Manager& dialog) {
    auto& page = dialog.m_fittings;
    EXPECT_TRUE(page.m_list.UserBeginEdit(0, kNameColumn));
    EXPECT_TRUE(page.m_list.UserTypeEdit(L"蝶阀"));
    EXPECT_TRUE(page.m_remove.UserClick());
    EXPECT_FALSE(page.m_list.CurrentEdit());
    EXPECT_TRUE(page.m_add.UserClick());
    EXPECT_TRUE(page.m_remove.UserClick()) << "the one that is being named";
    EXPECT_FALSE(page.m_list.CurrentEdit());
    EXPECT_TRUE(dialog.m_ok.UserClick());
  });
  EXPECT_EQ(Names(), L"弯头 ");
  CZPPipeParts part(L"弯头", 4);
  section.m_arrParts.Add(part);
  Settle([&](Section& dialog) {
    EXPECT_TRUE(dialog.m_grid.UserBeginEdit(1, 0));
    EXPECT_TRUE(dialog.m_grid.UserTypeEdit(L""));
    EXPECT_FALSE(dialog.m_grid.UserBeginEdit(2, 0)) << "that row stands one higher by then";
    EXPECT_EQ(RowsText(dialog.m_grid), L" |||");
  });
}

TEST_F(BadResistanceInput, IntoAFolderThatIsReadOnlyStaysInMemory) {
  const std::string before = install.Read(kFile);
  afx::ClearLoggedMessages();
  {
    const ReadOnlyFolder folder(install.Root());
    if (!folder.Holds()) GTEST_SKIP() << "permissions do not hold root back";
    Manage([](Manager& dialog) {
      EXPECT_TRUE(Edit(dialog.m_fittings.m_list, 0, kNameColumn, L"蝶阀"));
      EXPECT_TRUE(dialog.m_ok.UserClick());
    });
  }
  EXPECT_EQ(install.Read(kFile), before);
  EXPECT_FALSE(afx::LoggedMessages().empty());
  EXPECT_TRUE(frontEnd.boxes.empty());
  EXPECT_EQ(Names(), L"蝶阀 弯头 ") << "nothing is lost while the program runs";
  Manage([](Manager& dialog) { EXPECT_TRUE(dialog.m_ok.UserClick()); });
  Reload();
  EXPECT_EQ(Names(), L"蝶阀 弯头 ") << "the next time it is written";
}

} // namespace
