// What users should not do to the calculation window, and a user without a plan: it stands all of it, the
// catalogue and the window agree, and what was remembered stays readable.
#include "tests/plugin/radiators/dialogs/CalculateFixture.h"

#include "host/afx/MessageLog.h"
#include "plugin/radiators/dialogs/CalculationDefaults.h"
#include "plugin/radiators/dialogs/RadiatorTexts.h"
#include "tests/plugin/radiators/RadiatorText.h"
#include "tests/support/AwkwardNames.h"
#include "tests/support/DialogFixture.h"
#include "tests/support/ReadOnlyFolder.h"
#include "tests/support/UiRobot.h"

namespace {

class BadCalculationInput : public CalculateFixture {
 protected:
  static std::vector<CNumberEdit*> Numbers(Dlg& dialog) {
    std::vector<CNumberEdit*> fields{&dialog.m_load, &dialog.m_result};
    for (CNumberEdit& beta : dialog.m_betas) fields.push_back(&beta);
    return fields;
  }
  static std::vector<CComboBox*> Temperatures(Dlg& dialog) {
    return {&dialog.m_supply, &dialog.m_return, &dialog.m_room};
  }
  CString Everything() const {
    CString text = Names();
    for (const CZPRadiatorType* type : catalogue.m_arrTypes)
      for (const CZPRadiator* radiator : type->m_arrRadiators) text += L"\n" + RadiatorText(*radiator);
    return text;
  }
  bool IsInCatalogue(const CZPRadiator* radiator) const {
    for (const CZPRadiatorType* type : catalogue.m_arrTypes)
      for (const CZPRadiator* known : type->m_arrRadiators)
        if (known == radiator) return true;
    return false;
  }
};

TEST_F(BadCalculationInput, ThatIsNoNumberIsRefusedByTheNumberFields) {
  In([](Dlg& dialog) {
    for (CNumberEdit* field : Numbers(dialog))
      for (const wchar_t* text : dialogtest::kNoNumbers) {
        if (CString(text).Trim().IsEmpty()) continue; // on the way to a number
        const CString before = field->GetText();
        EXPECT_FALSE(field->UserType(text)) << dialogtest::Utf8(text);
        EXPECT_EQ(field->GetText(), before);
      }
  });
}

TEST_F(BadCalculationInput, ThatIsNoNumberCountsAsZeroInATemperature) {
  for (const wchar_t* text : dialogtest::kNoNumbers)
    In([&](Dlg& dialog) {
      for (CComboBox* field : Temperatures(dialog)) EXPECT_TRUE(field->UserType(text));
      EXPECT_TRUE(dialog.m_calculate.UserClick());
      EXPECT_EQ(iron->m_calData.dbTg, 0);
      EXPECT_EQ(iron->m_calData.dbTh, 0);
      EXPECT_EQ(iron->m_calData.dbTn, 0);
      EXPECT_EQ(dialog.m_supply.GetText(), text) << "it stays for the user to mend";
    });
}

TEST_F(BadCalculationInput, EmptyNumberFieldsCountAsZero) {
  In([&](Dlg& dialog) {
    for (CNumberEdit* field : Numbers(dialog)) EXPECT_TRUE(field->UserType(L""));
    EXPECT_TRUE(dialog.m_calculate.UserClick());
    EXPECT_EQ(iron->m_calData.dbQj, 0);
    EXPECT_EQ(iron->m_calData.dbBeta3, 0);
    EXPECT_EQ(dialog.m_result.GetText(), L"0.00");
  });
}

TEST_F(BadCalculationInput, WithoutAnEndIsTakenAndRemembered) {
  const CString digits(std::wstring(100000, L'9'));
  In([&](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_load.UserType(digits));
    EXPECT_TRUE(dialog.m_supply.UserType(CString(std::wstring(100000, L'长'))));
    EXPECT_TRUE(dialog.m_calculate.UserClick());
    EXPECT_TRUE(dialog.m_result.UserType(digits));
    Annotate(dialog, L"0,0");
  });
  ASSERT_EQ(Texts().size(), 1u);
  EXPECT_EQ(Texts()[0]->textString(), L"散热器片数:inf片");
  ZP::SetDefaultValuesFile(DefaultsPath());
  EXPECT_TRUE(std::isinf(radiators::RememberedCalculation().dbQj));
  In([](Dlg& dialog) { EXPECT_EQ(dialog.m_load.GetText(), L"inf"); });
}

TEST_F(BadCalculationInput, NegativeValuesGoIntoTheArithmetic) {
  In([&](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_load.UserType(L"-100"));
    EXPECT_TRUE(dialog.m_room.UserType(L"90"));
    EXPECT_TRUE(dialog.m_calculate.UserClick());
    EXPECT_EQ(dialog.m_result.GetText(), L"nan");
  });
}

TEST_F(BadCalculationInput, AwkwardNamesAreShownAsTheyAre) {
  for (const CString& name : AwkwardNames()) {
    iron->SetName(name);
    In([&](Dlg& dialog) { EXPECT_EQ(dialog.m_name.GetCaption(), L"名称：" + name); });
  }
}

TEST_F(BadCalculationInput, IsForgottenWhenTheWindowCloses) {
  for (const wchar_t* text : {L"", L"0.", L"-", L"1e999", L"7"})
    for (std::size_t field = 0; field < 9; ++field) {
      EXPECT_EQ(In([&](Dlg& dialog) {
                  if (field < 6)
                    EXPECT_TRUE(Numbers(dialog)[field]->UserType(text));
                  else
                    EXPECT_TRUE(Temperatures(dialog)[field - 6]->UserType(text));
                  dialog.UserClose();
                  EXPECT_TRUE(dialog.HasEnded());
                }),
                IDCANCEL);
    }
  EXPECT_TRUE(frontEnd.boxes.empty());
  EXPECT_FALSE(install.Has("user/Defaults.idp"));
}

TEST_F(BadCalculationInput, InAFolderThatIsReadOnlyIsRememberedForThisRun) {
  In([](Dlg& dialog) { EXPECT_TRUE(dialog.m_calculate.UserClick()); });
  const std::string before = install.Read("user/Defaults.idp");
  {
    const ReadOnlyFolder folder(install.Root() / "user");
    if (!folder.Holds()) GTEST_SKIP() << "permissions do not hold root back";
    In([](Dlg& dialog) {
      EXPECT_TRUE(dialog.m_load.UserType(L"2000"));
      EXPECT_TRUE(dialog.m_calculate.UserClick());
      EXPECT_NE(dialog.m_result.GetText(), L"inf");
    });
    EXPECT_EQ(install.Read("user/Defaults.idp"), before);
    In([](Dlg& dialog) { EXPECT_EQ(dialog.m_load.GetText(), L"2000.00"); });
  }
  EXPECT_TRUE(frontEnd.boxes.empty());
}

TEST_F(BadCalculationInput, DamagedRememberedValuesAreNotTaken) {
  install.Write("user/Defaults.idp", "[\"Version:1.0\",{\"传统采暖/散热器计算/供水温度\":");
  ZP::SetDefaultValuesFile(DefaultsPath());
  In([](Dlg& dialog) {
    EXPECT_EQ(dialog.m_supply.GetText(), L"80");
    EXPECT_TRUE(dialog.m_calculate.UserClick());
  });
}

TEST_F(BadCalculationInput, OfAllSortsIsStoodInThousandsOfEvents) {
  AddCalculatedRoom(1850, 20);
  for (unsigned seed = 1; seed <= 3; ++seed) {
    UiRobot robot(seed);
    std::size_t placed = Texts().size();
    In([&](Dlg& dialog) {
      for (int i = 0; i < 2000; ++i) {
        frontEnd.boxes.clear();
        // What its buttons open is no calmer, and so are the answers in the drawing.
        frontEnd.runs = {[&](CDialog& open) {
          for (int j = 0; j < 10; ++j) robot.Act(open);
          if (robot.Below(2) == 0) open.UserEnter();
        }};
        const bool gives = robot.Below(2) == 0;
        editor.lines = {gives ? L"0,1000" : L"*cancel*"};
        robot.Act(dialog);
        ASSERT_TRUE(dialog.IsWindowVisible());
        ASSERT_FALSE(dialog.HasEnded());
        ASSERT_TRUE(IsInCatalogue(dialog.Radiator()));
        ASSERT_TRUE(Texts().size() == placed || (gives && Texts().size() == placed + 1));
        placed = Texts().size();
        for (const CNumberEdit& beta : dialog.m_betas) ASSERT_FALSE(std::isnan(beta.GetValue()));
      }
      SwitchTo(dialog, catalogue.GetInitialRadiator());
      EXPECT_EQ(dialog.m_name.GetCaption(), radiators::NameText(*dialog.Radiator()));
      EXPECT_EQ(dialog.m_room.IsWindowEnabled(), radiators::FollowsTemperatures(*dialog.Radiator()));
      EXPECT_TRUE(dialog.m_calculate.UserClick());
    });
    const CString before = Everything();
    EXPECT_TRUE(catalogue.SaveData());
    Reload();
    EXPECT_EQ(dialogtest::Utf8(Everything()), dialogtest::Utf8(before));
  }
}

} // namespace
