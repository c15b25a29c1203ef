// The window in which a load becomes a number of sections or metres, and a text in the drawing.
#include "plugin/radiators/dialogs/CZPRadiatorCalculateDlg.h"

#include <cmath>

#include "plugin/base/NumberText.h"
#include "plugin/graph/DrawingSettings.h"
#include "plugin/layers/LayerService.h"
#include "plugin/radiators/dialogs/CZPAddRadiatorDlg.h"
#include "plugin/radiators/dialogs/CZPRadiatorReportDlg.h"
#include "plugin/radiators/dialogs/CalculationDefaults.h"
#include "tests/plugin/radiators/dialogs/CalculateFixture.h"

namespace {

using RadiatorCalculation = CalculateFixture;

CString Entries(const CComboBox& combo) {
  CString texts;
  for (int i = 0; i < combo.GetCount(); ++i) texts += combo.GetLBText(i) + L" ";
  return texts;
}

// The number of sections as the window shows it.
CString Number(const CZPRadiator& like, const SZPRadCalData& data) {
  CZPRadiator radiator(like);
  radiator.Attach(data);
  return ZP::ftoa(radiator.CalculateNumber(), 2, false);
}

double Remembered(const wchar_t* key) {
  double value = -1;
  ZP::GetDefaultValue(key, value);
  return value;
}

// --- opening

TEST_F(RadiatorCalculation, DoesNotOpenOverAnEmptyCatalogue) {
  for (const bool typesWithout : {false, true}) {
    Empty();
    if (typesWithout) AddType(L"铸铁");
    EXPECT_EQ(In([](Dlg&) { ADD_FAILURE() << "it opened"; }), -1);
    ASSERT_EQ(frontEnd.boxes.size(), 1u);
    EXPECT_EQ(frontEnd.boxes[0].caption, L"青岚提示");
    EXPECT_EQ(frontEnd.takeBox(), L"散热器为空，无法启动散热器计算对话框，请检查散热器数据库!");
    frontEnd.runs.clear();
  }
  EXPECT_FALSE(install.Has("user/Defaults.idp"));
}

TEST_F(RadiatorCalculation, BeginsWithTheFirstRadiatorOfTheFirstTypeThatHasOne) {
  Empty();
  AddType(L"空");
  CZPRadiatorType* second = AddType(L"二");
  AddRadiator(second, L"甲");
  AddRadiator(second, L"乙");
  In([](Dlg& dialog) {
    EXPECT_EQ(dialog.m_type.GetCaption(), L"类型：二");
    EXPECT_EQ(dialog.m_name.GetCaption(), L"名称：甲");
  });
}

TEST_F(RadiatorCalculation, BeginsWithTheDefaultsAndTheirResult) {
  In([&](Dlg& dialog) {
    EXPECT_EQ(dialog.GetCaption(), L"散热器片数计算");
    EXPECT_EQ(dialog.m_load.GetText(), L"1000.00");
    EXPECT_EQ(dialog.m_supply.GetText(), L"80");
    EXPECT_EQ(dialog.m_return.GetText(), L"60");
    EXPECT_EQ(dialog.m_room.GetText(), L"18");
    for (const CNumberEdit& beta : dialog.m_betas) EXPECT_EQ(beta.GetText(), L"1.00");
    EXPECT_EQ(dialog.m_result.GetText(), ZP::ftoa(1000 / (0.6 * std::pow(52, 1.28)), 2, false));
    EXPECT_EQ(dialog.m_result.GetCaption(), L"散热器片数(片)：");
    EXPECT_EQ(dialog.m_rule.GetCaption(), L"片数或者长度n=Qj/Qs×β1×β2×β3×β4");
  });
  EXPECT_FALSE(install.Has("user/Defaults.idp")) << "looking stores nothing";
}

TEST_F(RadiatorCalculation, CallsItsFieldsAndOffersTemperatures) {
  In([](Dlg& dialog) {
    EXPECT_EQ(dialog.m_load.GetCaption(), L"散热器承担的负荷Qj(W)：");
    EXPECT_EQ(dialog.m_supply.GetCaption(), L"供水温度(℃)：");
    EXPECT_EQ(dialog.m_return.GetCaption(), L"回水温度(℃)：");
    EXPECT_EQ(dialog.m_room.GetCaption(), L"室内温度(℃)：");
    EXPECT_EQ(dialog.m_betas[0].GetCaption(), L"片数或长度修正系数β1：");
    EXPECT_EQ(dialog.m_betas[1].GetCaption(), L"支管连接方式修正系数β2：");
    EXPECT_EQ(dialog.m_betas[2].GetCaption(), L"安装形式修正系数β3：");
    EXPECT_EQ(dialog.m_betas[3].GetCaption(), L"流入流量修正系数β4：");
    EXPECT_EQ(Entries(dialog.m_supply), L"50 55 60 65 70 75 80 85 90 95 100 ");
    EXPECT_EQ(Entries(dialog.m_return), Entries(dialog.m_supply));
    EXPECT_EQ(Entries(dialog.m_room), L"16 17 18 19 20 21 22 23 24 25 26 27 28 29 30 31 32 ");
    EXPECT_EQ(dialog.m_supply.GetCurSel(), 6);
    EXPECT_EQ(dialog.m_room.GetCurSel(), 2);
  });
}

TEST_F(RadiatorCalculation, ShowsWhatWasLeftLastWithTwoDecimals) {
  ZP::SetDefaultValue(L"传统采暖/散热器计算/散热器负荷", 850.456);
  ZP::SetDefaultValue(L"传统采暖/散热器计算/供水温度", 47.5);
  ZP::SetDefaultValue(L"传统采暖/散热器计算/室内温度", 20.125);
  ZP::SetDefaultValue(L"传统采暖/散热器计算/β4进入散热器流量修正系数", 0.9);
  In([&](Dlg& dialog) {
    EXPECT_EQ(dialog.m_load.GetText(), L"850.46");
    EXPECT_EQ(dialog.m_supply.GetText(), L"47.5");
    EXPECT_EQ(dialog.m_supply.GetCurSel(), -1);
    EXPECT_EQ(dialog.m_return.GetText(), L"60") << "was never left";
    EXPECT_EQ(dialog.m_room.GetText(), L"20.13");
    EXPECT_EQ(dialog.m_betas[3].GetText(), L"0.90");
    SZPRadCalData data;
    data.dbQj = 850.456;
    data.dbTg = 47.5;
    data.dbTn = 20.125;
    data.dbBeta4 = 0.9;
    EXPECT_EQ(dialog.m_result.GetText(), Number(*iron, data))
        << "of the values, not of what is shown of them";
  });
}

// --- calculating

TEST_F(RadiatorCalculation, TakesAllFields) {
  In([&](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_load.UserType(L"1234.5"));
    EXPECT_TRUE(dialog.m_supply.UserSelect(9));
    EXPECT_TRUE(dialog.m_return.UserType(L"70"));
    EXPECT_TRUE(dialog.m_room.UserSelect(4));
    const wchar_t* const betas[] = {L"1.05", L"1.009", L"1.06", L"0.9"};
    for (int i = 0; i < 4; ++i) EXPECT_TRUE(dialog.m_betas[i].UserType(betas[i]));
    const CString before = dialog.m_result.GetText();
    EXPECT_TRUE(dialog.m_calculate.UserClick());
    EXPECT_NE(dialog.m_result.GetText(), before);
    const SZPRadCalData expected{1234.5, 95, 70, 20, 1.05, 1.009, 1.06, 0.9};
    EXPECT_EQ(dialog.m_result.GetText(), Number(*iron, expected));
    EXPECT_EQ(iron->m_calData.dbBeta2, 1.009) << "the radiator keeps what was attached";
    EXPECT_EQ(dialog.m_betas[1].GetText(), L"1.009") << "what was typed stays as it was typed";
  });
}

TEST_F(RadiatorCalculation, TakesTypedTemperaturesThatAreNotOffered) {
  In([&](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_supply.UserType(L"47.5"));
    EXPECT_TRUE(dialog.m_calculate.UserClick());
    EXPECT_EQ(iron->m_calData.dbTg, 47.5);
    EXPECT_EQ(dialog.m_supply.GetText(), L"47.5");
  });
  EXPECT_EQ(Remembered(L"传统采暖/散热器计算/供水温度"), 47.5);
}

TEST_F(RadiatorCalculation, StoresTheEightValuesWhenItCalculates) {
  In([&](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_load.UserType(L"2000"));
    EXPECT_TRUE(dialog.m_calculate.UserClick());
    EXPECT_TRUE(dialog.m_load.UserType(L"3000"));
    EXPECT_TRUE(dialog.m_cancel.UserClick());
  });
  const SZPRadCalData expected{2000, 80, 60, 18, 1, 1, 1, 1};
  for (const radiators::CalculationField& field : radiators::kCalculationFields)
    EXPECT_EQ(Remembered(field.key), expected.*field.member);
  ZP::SetDefaultValuesFile(DefaultsPath()); // as another run of the program reads them
  In([](Dlg& dialog) { EXPECT_EQ(dialog.m_load.GetText(), L"2000.00") << "cancelling stores nothing else"; });
}

TEST_F(RadiatorCalculation, RemembersUnderTheKeysInTheirOrder) {
  radiators::RememberCalculation({1, 2, 3, 4, 5, 6, 7, 8});
  CIDPEx file;
  ASSERT_TRUE(file.Open(DefaultsPath()));
  CString keys;
  for (const CString& key : file.SubKeyNames) keys += key + L"\n";
  EXPECT_EQ(keys, L"传统采暖/散热器计算/散热器负荷\n传统采暖/散热器计算/供水温度\n"
                  L"传统采暖/散热器计算/回水温度\n传统采暖/散热器计算/室内温度\n"
                  L"传统采暖/散热器计算/β1片数或长度修正系数\n"
                  L"传统采暖/散热器计算/β2散热器支管连接方式修正系数\n"
                  L"传统采暖/散热器计算/β3散热器安装形式修正系数\n"
                  L"传统采暖/散热器计算/β4进入散热器流量修正系数\n");
}

TEST_F(RadiatorCalculation, ShowsTheNumberUnrounded) {
  In([&](Dlg& dialog) {
    SwitchTo(dialog, fixed);
    EXPECT_TRUE(dialog.m_calculate.UserClick());
    EXPECT_EQ(dialog.m_result.GetText(), L"12.50") << "whatever GetCalNumberResult makes of it";
  });
}

TEST_F(RadiatorCalculation, ShowsWhatIsNoNumberAsTheFieldDoes) {
  panel->m_dF = 0;
  In([&](Dlg& dialog) {
    SwitchTo(dialog, panel);
    EXPECT_TRUE(dialog.m_calculate.UserClick());
    EXPECT_EQ(dialog.m_result.GetText(), L"inf");
    EXPECT_TRUE(dialog.m_load.UserType(L"0"));
    EXPECT_TRUE(dialog.m_calculate.UserClick());
    EXPECT_EQ(dialog.m_result.GetText(), L"nan");
    EXPECT_TRUE(dialog.m_annotate.UserClick());
  });
}

TEST_F(RadiatorCalculation, IsWhatEnterDoes) {
  In([&](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_load.UserType(L"2000"));
    EXPECT_TRUE(dialog.UserEnter());
    EXPECT_EQ(iron->m_calData.dbQj, 2000);
    EXPECT_FALSE(dialog.HasEnded());
  });
}

// --- the radiator

TEST_F(RadiatorCalculation, ShowsAChosenRadiatorWithoutCalculating) {
  In([&](Dlg& dialog) {
    const CString before = dialog.m_result.GetText();
    SwitchTo(dialog, panel);
    EXPECT_EQ(dialog.m_type.GetCaption(), L"类型：钢制");
    EXPECT_EQ(dialog.m_name.GetCaption(), L"名称：板式600");
    EXPECT_EQ(dialog.m_parameters.GetCaption(),
              L"实验系数a：0.30 系数b：0.08 \r\n\r\n单位散热面积f(㎡/m)：2.50");
    EXPECT_EQ(dialog.m_formula.GetCaption(),
              L"单位散热量Qs=k×f×△T \r\n\r\n传热系数k=a×△T^b \r\n\r\n△T=(Tg+Th)/2-Tn");
    EXPECT_EQ(dialog.m_result.GetCaption(), L"散热器长度(m)：");
    EXPECT_EQ(dialog.m_result.GetText(), before);
    EXPECT_TRUE(dialog.m_calculate.UserClick());
    EXPECT_EQ(dialog.m_result.GetText(), Number(*panel, {}));
  });
}

TEST_F(RadiatorCalculation, KeepsTheRadiatorAndWhatIsShownOfItWhenNoneIsChosen) {
  In([&](Dlg& dialog) {
    const CString shown = dialog.m_parameters.GetCaption();
    Manage(dialog, [&](CZPRadiatorManagerDlg& manager) {
      Select(manager, iron);
      EXPECT_TRUE(manager.m_properties.UserSetText(CRADPropTree::aItem, L"9"));
      EXPECT_TRUE(manager.m_exit.UserClick());
    });
    EXPECT_EQ(dialog.Radiator(), iron);
    EXPECT_EQ(dialog.m_parameters.GetCaption(), shown);
    EXPECT_EQ(iron->m_dA, 9);
    Manage(dialog, [&](CZPRadiatorManagerDlg& manager) {
      Select(manager, iron->GetParent()); // a type is no radiator
      EXPECT_TRUE(manager.m_ok.UserClick());
    });
    EXPECT_EQ(dialog.Radiator(), iron);
    EXPECT_TRUE(dialog.m_calculate.UserClick());
    EXPECT_EQ(dialog.m_result.GetText(), Number(*iron, {})) << "the number is that of the changed radiator";
  });
}

TEST_F(RadiatorCalculation, ShowsTheSameRadiatorAgainWhenItIsChosen) {
  In([&](Dlg& dialog) {
    Manage(dialog, [&](CZPRadiatorManagerDlg& manager) {
      EXPECT_TRUE(manager.m_properties.UserSetText(CRADPropTree::aItem, L"9"))
          << "the one in use is selected";
      EXPECT_TRUE(manager.m_ok.UserClick());
    });
    EXPECT_EQ(dialog.m_parameters.GetCaption(), L"实验系数a：9.00 \r\n\r\n实验系数b：1.28");
  });
}

TEST_F(RadiatorCalculation, KeepsTheRadiatorInUseFromBeingDeleted) {
  In([&](Dlg& dialog) {
    Manage(dialog, [&](CZPRadiatorManagerDlg& manager) {
      EXPECT_TRUE(manager.m_remove.UserClick());
      EXPECT_EQ(frontEnd.takeBox(), L"当前散热器[四柱760]数据正在使用，不允许删除！？");
      Select(manager, iron->GetParent());
      EXPECT_TRUE(manager.m_remove.UserClick());
      EXPECT_EQ(frontEnd.takeBox(), L"当前[铸铁]数据正在使用，不允许删除！？");
    });
    EXPECT_EQ(dialog.Radiator(), iron);
  });
}

TEST_F(RadiatorCalculation, GoesOnWithARadiatorThatWasMovedToAnotherType) {
  In([&](Dlg& dialog) {
    Manage(dialog, [&](CZPRadiatorManagerDlg& manager) {
      frontEnd.runs.push_front([](CDialog& open) {
        auto& modify = static_cast<CZPAddRadiatorDlg&>(open);
        EXPECT_TRUE(modify.m_properties.UserSetText(CRADPropTree::typeItem, L"新材质"));
        EXPECT_TRUE(modify.UserEnter());
      });
      EXPECT_TRUE(manager.m_modify.UserClick());
      EXPECT_TRUE(manager.m_exit.UserClick());
    });
    EXPECT_EQ(dialog.Radiator(), catalogue.GetRadiator(L"四柱760", L"新材质"));
    EXPECT_EQ(dialog.m_type.GetCaption(), L"类型：新材质");
    EXPECT_TRUE(dialog.m_calculate.UserClick());
    EXPECT_EQ(dialog.m_result.GetText(), Number(*dialog.Radiator(), {}));
  });
}

TEST_F(RadiatorCalculation, DisablesTheTemperaturesForAFixedOutput) {
  In([&](Dlg& dialog) {
    for (const auto& [radiator, enabled] : std::vector<std::pair<CZPRadiator*, bool>>{
             {fixed, false}, {panel, true}, {fixed, false}, {iron, true}}) {
      SwitchTo(dialog, radiator);
      for (CComboBox* combo : {&dialog.m_supply, &dialog.m_return, &dialog.m_room}) {
        EXPECT_EQ(combo->IsWindowEnabled(), enabled);
        EXPECT_EQ(static_cast<bool>(combo->UserType(L"66")), enabled);
      }
    }
  });
}

TEST_F(RadiatorCalculation, BeginsWithDisabledTemperaturesToo) {
  iron->m_nFormula = 2;
  In([](Dlg& dialog) { EXPECT_FALSE(dialog.m_supply.IsWindowEnabled()); });
}

// --- correction factors

class CorrectionButtons : public CalculateFixture {
 protected:
  // Presses the button of a factor and chooses a cell, or leaves without.
  void Choose(Dlg& dialog, int table, int row, int column, bool ok = true) {
    frontEnd.runs.push_front([=, &dialog](CDialog& open) {
      auto& report = static_cast<CZPRadiatorReportDlg&>(open);
      EXPECT_EQ(report.GetParent(), &dialog);
      EXPECT_EQ(report.GetCaption(), radiators::FindCorrectionTable(table)->title);
      EXPECT_TRUE(report.m_report.UserClick(row, column));
      EXPECT_TRUE((ok ? report.m_ok : report.m_cancel).UserClick());
    });
    EXPECT_TRUE(dialog.m_tables[table].UserClick());
  }
};

TEST_F(CorrectionButtons, PutTheChosenCellIntoTheirFieldWithoutCalculating) {
  In([&](Dlg& dialog) {
    const CString before = dialog.m_result.GetText();
    Choose(dialog, 0, 2, 4);
    Choose(dialog, 1, 1, 2);
    Choose(dialog, 2, 3, 1);
    Choose(dialog, 3, 3, 2);
    EXPECT_EQ(dialog.m_betas[0].GetText(), L"1.10");
    EXPECT_EQ(dialog.m_betas[1].GetText(), L"1.01");
    EXPECT_EQ(dialog.m_betas[2].GetText(), L"0.95");
    EXPECT_EQ(dialog.m_betas[3].GetText(), L"0.94");
    EXPECT_EQ(dialog.m_result.GetText(), before);
    EXPECT_TRUE(dialog.m_calculate.UserClick());
    SZPRadCalData data;
    data.dbBeta1 = 1.1;
    data.dbBeta2 = 1.01; // what the field shows is what counts
    data.dbBeta3 = 0.95;
    data.dbBeta4 = 0.94;
    EXPECT_EQ(dialog.m_result.GetText(), Number(*iron, data));
  });
}

TEST_F(CorrectionButtons, OfADashGiveZeroAndThusNoRadiator) {
  In([&](Dlg& dialog) {
    Choose(dialog, 1, 1, 3);
    EXPECT_EQ(dialog.m_betas[1].GetText(), L"0.00");
    EXPECT_TRUE(dialog.m_calculate.UserClick());
    EXPECT_EQ(dialog.m_result.GetText(), L"0.00");
  });
}

TEST_F(CorrectionButtons, LeaveTheFieldWhenTheTableIsCancelled) {
  In([&](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_betas[2].UserType(L"1.234"));
    Choose(dialog, 2, 3, 1, false);
    EXPECT_EQ(dialog.m_betas[2].GetText(), L"1.234");
  });
}

// --- the load of a room

TEST_F(RadiatorCalculation, TakesLoadAndTemperatureOfAPickedRoomAndCalculates) {
  AddCalculatedRoom(1850.256, 18.5);
  In([&](Dlg& dialog) {
    PickRoom(dialog, L"0,1000");
    EXPECT_EQ(dialog.m_load.GetText(), L"1850.26");
    EXPECT_EQ(dialog.m_room.GetText(), L"18.5");
    SZPRadCalData data;
    data.dbQj = 1850.26;
    data.dbTn = 18.5;
    EXPECT_EQ(dialog.m_result.GetText(), Number(*iron, data));
    EXPECT_TRUE(dialog.IsWindowVisible());
  });
  EXPECT_EQ(Remembered(L"传统采暖/散热器计算/散热器负荷"), 1850.26);
  ASSERT_EQ(editor.prompts.size(), 1u);
  EXPECT_EQ(editor.prompts[0], L"请选择房间编号");
}

TEST_F(RadiatorCalculation, StepsAsideWhileTheRoomIsPicked) {
  AddCalculatedRoom(1000, 20);
  bool visible = true;
  In([&](Dlg& dialog) {
    dialog.Changed.Connect([&](const UiChange&) { visible = visible && dialog.IsWindowVisible(); });
    PickRoom(dialog, L"0,1000");
    EXPECT_FALSE(visible);
    EXPECT_TRUE(dialog.IsWindowVisible());
  });
}

TEST_F(RadiatorCalculation, KeepsTheOldLoadButCalculatesWhenThePickIsCancelled) {
  AddCalculatedRoom(1850, 18.5);
  In([&](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_load.UserType(L"2000"));
    EXPECT_TRUE(dialog.m_room.UserType(L"21"));
    PickRoom(dialog, L"*cancel*");
    EXPECT_EQ(dialog.m_load.GetText(), L"2000");
    EXPECT_EQ(dialog.m_room.GetText(), L"21");
    SZPRadCalData data;
    data.dbQj = 2000;
    data.dbTn = 21;
    EXPECT_EQ(dialog.m_result.GetText(), Number(*iron, data));
    EXPECT_TRUE(dialog.IsWindowVisible());
  });
  EXPECT_EQ(Remembered(L"传统采暖/散热器计算/室内温度"), 21) << "calculated as the button does";
}

TEST_F(RadiatorCalculation, KeepsTheOldLoadForARoomWithoutARecord) {
  AddCalculatedRoom(1850, 0, false);
  In([&](Dlg& dialog) {
    PickRoom(dialog, L"0,1000");
    EXPECT_EQ(dialog.m_load.GetText(), L"1000.00");
  });
  EXPECT_GE(editor.printed.Find(L"该房间编号无负荷对象信息。"), 0);
}

TEST_F(RadiatorCalculation, TakesARoomsTemperatureForAFixedOutputToo) {
  AddCalculatedRoom(1600, 22);
  In([&](Dlg& dialog) {
    SwitchTo(dialog, fixed);
    PickRoom(dialog, L"0,1000");
    EXPECT_EQ(dialog.m_room.GetText(), L"22");
    EXPECT_EQ(dialog.m_result.GetText(), L"20.00");
  });
}

// --- the annotation

TEST_F(RadiatorCalculation, WritesTheNumberWhereTheUserPutsIt) {
  In([&](Dlg& dialog) {
    SwitchTo(dialog, fixed);
    EXPECT_TRUE(dialog.m_calculate.UserClick());
    Annotate(dialog, L"500,600");
    EXPECT_FALSE(dialog.HasEnded()) << "open for further work";
    EXPECT_TRUE(dialog.IsWindowVisible());
  });
  ASSERT_EQ(Texts().size(), 1u);
  const AcDbText& note = *Texts()[0];
  EXPECT_EQ(note.textString(), L"散热器片数:12.5片");
  EXPECT_TRUE(note.position().isEqualTo({500, 600, 0}));
  EXPECT_EQ(note.height(), 350);
  EXPECT_EQ(note.rotation(), 0);
  EXPECT_EQ(note.layer(), L"暖通-公用-标注");
  const AcDbObjectPointer<AcDbSymbolTableRecord> style(note.textStyle(), AcDb::kForRead);
  EXPECT_EQ(style->name(), L"QL_KOR");
  CString identifier;
  EXPECT_TRUE(ZP::GetKOrLayer(note.layer(), identifier));
  EXPECT_EQ(identifier, L"公用标注");
}

TEST_F(RadiatorCalculation, AnnotatesWithTheSettingsOfTheDrawing) {
  ZP::SetZwZg(5);
  ZP::SetOutDwgScale(50);
  ZP::SetFontType(0);
  In([&](Dlg& dialog) {
    SwitchTo(dialog, panel);
    EXPECT_TRUE(dialog.m_calculate.UserClick());
    Annotate(dialog, L"0,0");
  });
  ASSERT_EQ(Texts().size(), 1u);
  EXPECT_EQ(Texts()[0]->height(), 250);
  EXPECT_EQ(Texts()[0]->textString().Left(6), L"散热器长度:");
  EXPECT_EQ(Texts()[0]->textString().Right(1), L"m");
  const AcDbObjectPointer<AcDbSymbolTableRecord> style(Texts()[0]->textStyle(), AcDb::kForRead);
  EXPECT_EQ(style->name(), L"Standard");
}

TEST_F(RadiatorCalculation, AnnotatesTheFieldAsItStandsWithoutCalculating) {
  In([&](Dlg& dialog) {
    SwitchTo(dialog, fixed);
    EXPECT_TRUE(dialog.m_calculate.UserClick());
    EXPECT_TRUE(dialog.m_load.UserType(L"9000"));
    EXPECT_TRUE(dialog.m_result.UserType(L"13"));
    Annotate(dialog, L"0,0");
    EXPECT_EQ(dialog.m_result.GetText(), L"13");
    SwitchTo(dialog, panel); // the unit is that of the radiator, the number still that of the one before
    Annotate(dialog, L"0,0");
  });
  ASSERT_EQ(Texts().size(), 2u);
  EXPECT_EQ(Texts()[0]->textString(), L"散热器片数:13片");
  EXPECT_EQ(Texts()[1]->textString(), L"散热器长度:13m");
  EXPECT_EQ(Remembered(L"传统采暖/散热器计算/散热器负荷"), 1000);
}

TEST_F(RadiatorCalculation, SaysSoWhereTheNumberIsNone) {
  panel->m_dF = 0;
  In([&](Dlg& dialog) {
    SwitchTo(dialog, panel);
    EXPECT_TRUE(dialog.m_calculate.UserClick());
    Annotate(dialog, L"0,0");
  });
  ASSERT_EQ(Texts().size(), 1u);
  EXPECT_EQ(Texts()[0]->textString(), L"散热器长度:infm");
}

TEST_F(RadiatorCalculation, TakesTheNoteAwayWhenItsPlaceIsCancelled) {
  In([&](Dlg& dialog) {
    Annotate(dialog, L"*cancel*");
    EXPECT_TRUE(dialog.IsWindowVisible());
    EXPECT_FALSE(dialog.HasEnded());
  });
  EXPECT_TRUE(Texts().empty());
}

TEST_F(RadiatorCalculation, AnnotatesOnALockedLayerAndLocksItAgain) {
  const CString name = ZP::GetUserLayer(L"公用标注");
  const AcDbObjectId id = WorkingDrawing::LayerOf(editor.Database(), name);
  AcDbObjectPointer<AcDbLayerTableRecord>(id, AcDb::kForWrite)->setIsLocked(true);
  In([&](Dlg& dialog) { Annotate(dialog, L"500,600"); });
  ASSERT_EQ(Texts().size(), 1u);
  EXPECT_TRUE(Texts()[0]->position().isEqualTo({500, 600, 0}));
  EXPECT_TRUE(AcDbObjectPointer<AcDbLayerTableRecord>(id, AcDb::kForRead)->isLocked());
  EXPECT_GE(editor.printed.Find(L"被锁定"), 0);
}

TEST_F(RadiatorCalculation, AnnotatesOnTheCurrentLayerWhereTheSchemeHasNone) {
  CZPManagerLayer::GetInstance()->RemoveAll();
  In([&](Dlg& dialog) { Annotate(dialog, L"0,0"); });
  ASSERT_EQ(Texts().size(), 1u);
  EXPECT_EQ(Texts()[0]->layer(), L"0");
}

TEST_F(RadiatorCalculation, WithoutADrawingAnnotatesNothing) {
  In([&](Dlg& dialog) {
    acDocManagerPtr()->closeAll();
    EXPECT_TRUE(dialog.m_annotate.UserClick());
    EXPECT_TRUE(dialog.m_pickRoom.UserClick());
    EXPECT_TRUE(dialog.IsWindowVisible());
  });
  EXPECT_TRUE(editor.prompts.empty());
}

// --- leaving

TEST_F(RadiatorCalculation, IsLeftByCancelEscapeOrTheCloseBox) {
  for (const auto leave :
       {+[](Dlg& dialog) { dialog.m_cancel.UserClick(); }, +[](Dlg& dialog) { dialog.UserEscape(); },
        +[](Dlg& dialog) { dialog.UserClose(); }}) {
    EXPECT_EQ(In([&](Dlg& dialog) {
                EXPECT_TRUE(dialog.m_load.UserType(L"7"));
                leave(dialog);
                EXPECT_TRUE(dialog.HasEnded());
              }),
              IDCANCEL);
    EXPECT_EQ(radiators::RememberedCalculation().dbQj, 1000);
  }
  EXPECT_TRUE(frontEnd.boxes.empty());
}

} // namespace
