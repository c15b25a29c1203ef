#include "plugin/pipes/dialogs/CZPPipeManagerDlg.h"

#include <filesystem>
#include <gmock/gmock.h>

#include "plugin/pipes/dialogs/PipeRows.h"
#include "plugin/pipes/dialogs/ShowPipeDialogs.h"
#include "tests/plugin/pipes/CatalogueFixture.h"
#include "tests/support/AwkwardNames.h"
#include "tests/support/DialogFixture.h"

namespace {

using namespace dialogtest;
using Dlg = CZPPipeManagerDlg;

class PipeManagerDlg : public CatalogueFixture {
 protected:
  PipeManagerDlg() {
    first = AddNamed(L"镀锌钢管");
    SZPPipeDNData small(15, 21.3, 15.7), large(20, 26.8, 21.2);
    first->m_arrDNData.Add(small);
    first->m_arrDNData.Add(large);
    second = AddNamed(L"PPR");
    second->m_strPrefix = L"De";
  }
  int In(const std::function<void(Dlg&)>& test, CZPPipeMaterial* inUse = nullptr) {
    Dlg dialog(inUse, nullptr);
    const int result = dialogtest::Run<Dlg>(frontEnd, dialog, test);
    picked = dialog.Material();
    return result;
  }
  CString Names() const {
    CString names;
    for (const CZPPipeMaterial* material : catalogue.m_arrMaterials)
      names += (names.IsEmpty() ? L"" : L" ") + (material ? material->GetName() : CString(L"null"));
    return names;
  }
  CString SavedNames() {
    Reload();
    return Names();
  }
  UiFrontEndScript frontEnd;
  CZPPipeMaterial* first = nullptr;
  CZPPipeMaterial* second = nullptr;
  CZPPipeMaterial* picked = nullptr;
};

// Without what the text has, so that tests say only what they are about.
void Pick(Dlg& dialog, int row) {
  EXPECT_TRUE(dialog.m_materials.m_list.UserClick(row, 0));
}

TEST_F(PipeManagerDlg, HasItsTitleColumnsAndToolTips) {
  In([](Dlg& dialog) {
    EXPECT_EQ(dialog.GetCaption(), L"管材管径管理器");
    EXPECT_EQ(dialog.m_materials.m_list.Column(0).title, L"管材管径");
    CString titles;
    for (int i = 0; i < dialog.m_rows.GetColumnCount(); ++i) titles += dialog.m_rows.Column(i).title + L" ";
    EXPECT_EQ(titles, L"公称直径 外径(mm) 内径(mm) 壁厚(mm) ");
    EXPECT_EQ(dialog.m_sample.GetCaption(), L"标注示例：");
    const CButton* buttons[][4] = {
        {&dialog.m_materials.m_add, &dialog.m_materials.m_remove, &dialog.m_materials.m_up,
         &dialog.m_materials.m_down},
        {&dialog.m_addRow, &dialog.m_removeRow, &dialog.m_rowUp, &dialog.m_rowDown}};
    for (const auto& group : buttons) {
      EXPECT_EQ(group[0]->GetToolTip(), L"新建");
      EXPECT_EQ(group[1]->GetToolTip(), L"删除");
      EXPECT_EQ(group[2]->GetToolTip(), L"上移");
      EXPECT_EQ(group[3]->GetToolTip(), L"下移");
    }
  });
}

TEST_F(PipeManagerDlg, HasThePropertiesInTheirGroups) {
  In([](Dlg& dialog) {
    CString text;
    for (const CPropTreeGroup& group : dialog.m_properties.Groups()) {
      text += L"[" + group.title + L"] ";
      for (const CPropTreeItem& item : group.items) text += item.label + L" ";
    }
    EXPECT_EQ(
        text,
        L"[基本参数] 绝对粗糙度(mm) [标注参数] 前缀字符 参数A 连接字符 参数B 后缀字符 沿线标注距离(mm) ");
  });
}

TEST_F(PipeManagerDlg, SelectsNothingWithoutAMaterialInUse) {
  In([](Dlg& dialog) {
    EXPECT_EQ(RowsText(dialog.m_materials.m_list), L"镀锌钢管 PPR");
    EXPECT_EQ(dialog.m_materials.Current(), nullptr);
    EXPECT_EQ(dialog.m_rows.GetRowCount(), 0);
    EXPECT_TRUE(dialog.m_sample.GetText().IsEmpty());
    EXPECT_FALSE(dialog.m_properties.UserSetText(0, L"1"));
    EXPECT_TRUE(dialog.m_addRow.UserClick());
    EXPECT_TRUE(dialog.m_removeRow.UserClick());
    EXPECT_TRUE(dialog.m_materials.m_remove.UserClick());
    EXPECT_TRUE(dialog.m_materials.m_up.UserClick());
    EXPECT_EQ(dialog.m_rows.GetRowCount(), 0);
  });
  EXPECT_TRUE(frontEnd.boxes.empty());
}

TEST_F(PipeManagerDlg, ShowsTheMaterialThatIsClicked) {
  In([](Dlg& dialog) {
    Pick(dialog, 0);
    EXPECT_EQ(RowsText(dialog.m_rows), L"15|21.3|15.7|2.8 20|26.8|21.2|2.8");
    EXPECT_EQ(dialog.m_properties.GetText(0), L"0.2");
    EXPECT_EQ(dialog.m_properties.GetText(1), L"DN");
    Pick(dialog, 1);
    EXPECT_EQ(dialog.m_rows.GetRowCount(), 0);
    EXPECT_EQ(dialog.m_properties.GetText(1), L"De");
  });
}

TEST_F(PipeManagerDlg, SamplesTheLabelOfTheSelectedRow) {
  In([](Dlg& dialog) {
    Pick(dialog, 0);
    EXPECT_EQ(dialog.m_sample.GetText(), L"DN20×0.5(T)") << "the default row without a selection";
    EXPECT_TRUE(dialog.m_rows.UserClick(0, 0));
    EXPECT_EQ(dialog.m_sample.GetText(), L"DN15×2.8(T)");
    EXPECT_TRUE(dialog.m_properties.UserSetText(dialog.m_properties.FindItem(L"连接字符"), L"无"));
    EXPECT_EQ(dialog.m_sample.GetText(), L"DN152.8(T)");
    EXPECT_TRUE(Edit(dialog.m_rows, 0, pipes::kNominalColumn, L"16"));
    EXPECT_EQ(dialog.m_sample.GetText(), L"DN162.8(T)");
    Pick(dialog, 1);
    EXPECT_EQ(dialog.m_sample.GetText(), L"De20×0.5(T)") << "an empty table";
  });
}

TEST_F(PipeManagerDlg, TakesEveryPropertyOverAtAChange) {
  In([&](Dlg& dialog) {
    Pick(dialog, 0);
    const wchar_t* texts[] = {L"0.5mm", L"φ", L"外径", L"-x-", L"无", L"后缀", L"wrong"};
    for (int i = 0; i < 7; ++i) EXPECT_TRUE(dialog.m_properties.UserSetText(i, texts[i])) << i;
  });
  EXPECT_EQ(first->m_dRoughness, 0.5);
  EXPECT_EQ(first->m_strPrefix, L"φ");
  EXPECT_EQ(first->m_strParamA, L"外径");
  EXPECT_EQ(first->m_strConnector, L"-x-");
  EXPECT_EQ(first->m_strParamB, L"无");
  EXPECT_EQ(first->m_strSuffix, L"后缀");
  EXPECT_EQ(first->m_dAlongDistance, 0) << "what is no number counts as 0";
  EXPECT_EQ(second->m_strPrefix, L"De");
}

TEST_F(PipeManagerDlg, OffersTheFixedChoicesAlone) {
  In([](Dlg& dialog) {
    Pick(dialog, 0);
    EXPECT_FALSE(dialog.m_properties.UserSetText(1, L"NPS"));
    EXPECT_FALSE(dialog.m_properties.UserSetText(2, L"无")) << "parameter A can't be nothing";
    EXPECT_TRUE(dialog.m_properties.UserSetText(4, L"无"));
  });
  EXPECT_EQ(first->m_strPrefix, L"DN");
}

TEST_F(PipeManagerDlg, AddsAMaterialThatIsNamedAtOnce) {
  In([&](Dlg& dialog) {
    auto& list = dialog.m_materials.m_list;
    EXPECT_TRUE(dialog.m_materials.m_add.UserClick());
    EXPECT_EQ(list.GetCurSel(), 2);
    ASSERT_TRUE(list.CurrentEdit());
    EXPECT_EQ(catalogue.m_arrMaterials.GetSize(), 3);
    EXPECT_EQ(dialog.m_sample.GetText(), L"DN20×0.5(T)");
    EXPECT_TRUE(list.UserTypeEdit(L"  紫铜管 "));
    EXPECT_TRUE(list.UserEndEdit());
    EXPECT_EQ(list.GetItemText(2, 0), L"紫铜管");
  });
  EXPECT_EQ(SavedNames(), L"镀锌钢管 PPR 紫铜管");
}

TEST_F(PipeManagerDlg, TakesTheLastRowWhereAnUnnamedMaterialIsInAlready) {
  AddNamed(L"");
  In([&](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_materials.m_add.UserClick());
    EXPECT_EQ(catalogue.m_arrMaterials.GetSize(), 3);
    ASSERT_TRUE(dialog.m_materials.m_list.CurrentEdit());
    EXPECT_EQ(dialog.m_materials.m_list.CurrentEdit()->row, 2);
  });
}

TEST_F(PipeManagerDlg, InsistsOnAName) {
  In([&](Dlg& dialog) {
    auto& list = dialog.m_materials.m_list;
    EXPECT_TRUE(dialog.m_materials.m_add.UserClick());
    EXPECT_TRUE(list.UserTypeEdit(L"   "));
    EXPECT_TRUE(list.UserEndEdit());
    ASSERT_EQ(frontEnd.boxes.size(), 1u);
    EXPECT_EQ(frontEnd.boxes[0].caption, L"青岚提示");
    EXPECT_EQ(frontEnd.boxes[0].icon, UiMessageBox::Icon::information);
    EXPECT_EQ(frontEnd.takeBox(), L"管材材质名称不能为空字符串，请重新输入材质名称！");
    EXPECT_TRUE(list.CurrentEdit());
    EXPECT_TRUE(list.UserTypeEdit(L" PPR "));
    EXPECT_TRUE(list.UserEndEdit());
    EXPECT_EQ(frontEnd.takeBox(), L"【PPR】已经存在，请重新输入材质名称！");
    EXPECT_TRUE(list.CurrentEdit());
    EXPECT_TRUE(list.UserCancelEdit()) << "Escape leaves it unnamed, which can't be";
    EXPECT_EQ(frontEnd.takeBox(), L"管材材质名称不能为空字符串，请重新输入材质名称！");
    EXPECT_FALSE(dialog.m_ok.UserClick());
    EXPECT_FALSE(dialog.m_exit.UserClick());
    EXPECT_FALSE(dialog.HasEnded());
  });
}

TEST_F(PipeManagerDlg, DropsAnUnnamedMaterialWithItsCloseBox) {
  const int result = In([](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_materials.m_add.UserClick());
    dialog.UserClose();
  });
  EXPECT_EQ(result, IDCANCEL);
  EXPECT_TRUE(frontEnd.boxes.empty());
  EXPECT_EQ(Names(), L"镀锌钢管 PPR");
  EXPECT_EQ(SavedNames(), L"镀锌钢管 PPR");
}

TEST_F(PipeManagerDlg, DropsAMaterialOfATakenNameWithItsCloseBox) {
  In([](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_materials.m_add.UserClick());
    EXPECT_TRUE(dialog.m_materials.m_list.UserTypeEdit(L"PPR"));
    dialog.UserClose();
  });
  EXPECT_TRUE(frontEnd.boxes.empty());
  EXPECT_EQ(SavedNames(), L"镀锌钢管 PPR");
}

TEST_F(PipeManagerDlg, KeepsANameThatIsGoodWhenTheWindowCloses) {
  In([](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_materials.m_add.UserClick());
    EXPECT_TRUE(dialog.m_materials.m_list.UserTypeEdit(L"铜管"));
    dialog.UserClose();
  });
  EXPECT_EQ(SavedNames(), L"镀锌钢管 PPR 铜管");
}

TEST_F(PipeManagerDlg, KeepsTheMaterialInUseWhateverItsNameWouldBe) {
  In(
      [&](Dlg& dialog) {
        EXPECT_TRUE(dialog.m_materials.m_list.UserBeginEdit(1, 0));
        EXPECT_TRUE(dialog.m_materials.m_list.UserTypeEdit(L""));
        dialog.UserClose();
      },
      second);
  EXPECT_EQ(Names(), L"镀锌钢管 PPR");
}

TEST_F(PipeManagerDlg, AsksBeforeAMaterialIsDeleted) {
  In([&](Dlg& dialog) {
    Pick(dialog, 0);
    EXPECT_TRUE(dialog.m_materials.m_remove.UserClick());
    ASSERT_EQ(frontEnd.boxes.size(), 1u);
    EXPECT_EQ(frontEnd.boxes[0].buttons.size(), 2u);
    EXPECT_EQ(frontEnd.takeBox(), L"删除不可恢复，确定要删除【镀锌钢管】吗?");
    EXPECT_EQ(Names(), L"镀锌钢管 PPR");
    frontEnd.answers = {IDOK};
    EXPECT_TRUE(dialog.m_materials.m_remove.UserClick());
    EXPECT_EQ(Names(), L"PPR");
    EXPECT_EQ(RowsText(dialog.m_materials.m_list), L"PPR");
    EXPECT_EQ(dialog.m_rows.GetRowCount(), 0);
  });
  EXPECT_EQ(SavedNames(), L"PPR");
}

TEST_F(PipeManagerDlg, DoesNotDeleteTheMaterialInUse) {
  In(
      [&](Dlg& dialog) {
        EXPECT_EQ(dialog.m_materials.Current(), second);
        EXPECT_TRUE(dialog.m_materials.m_remove.UserClick());
        ASSERT_EQ(frontEnd.boxes.size(), 1u);
        EXPECT_EQ(frontEnd.boxes[0].buttons.size(), 1u);
        EXPECT_EQ(frontEnd.takeBox(), L"当前管材管径正在使用，不允许删除！");
        Pick(dialog, 0);
        frontEnd.answers = {IDOK};
        EXPECT_TRUE(dialog.m_materials.m_remove.UserClick());
      },
      second);
  EXPECT_EQ(Names(), L"PPR");
}

TEST_F(PipeManagerDlg, MovesMaterialsUpAndDown) {
  In([&](Dlg& dialog) {
    Pick(dialog, 0);
    EXPECT_TRUE(dialog.m_materials.m_up.UserClick());
    EXPECT_EQ(Names(), L"镀锌钢管 PPR");
    EXPECT_TRUE(dialog.m_materials.m_down.UserClick());
    EXPECT_EQ(Names(), L"PPR 镀锌钢管");
    EXPECT_EQ(RowsText(dialog.m_materials.m_list), L"PPR 镀锌钢管");
    EXPECT_EQ(dialog.m_materials.m_list.GetCurSel(), 1);
    EXPECT_TRUE(dialog.m_materials.m_down.UserClick());
    EXPECT_EQ(Names(), L"PPR 镀锌钢管");
    EXPECT_TRUE(dialog.m_materials.m_up.UserClick());
    EXPECT_EQ(Names(), L"镀锌钢管 PPR");
    EXPECT_EQ(dialog.m_materials.Current(), first);
  });
}

TEST_F(PipeManagerDlg, MovesMaterialsPastEmptyPlacesOfTheCatalogue) {
  CZPPipeMaterial* none = nullptr;
  catalogue.m_arrMaterials.InsertAt(1, none);
  In([&](Dlg& dialog) {
    EXPECT_EQ(RowsText(dialog.m_materials.m_list), L"镀锌钢管 PPR");
    Pick(dialog, 1);
    EXPECT_TRUE(dialog.m_materials.m_up.UserClick());
    EXPECT_EQ(Names(), L"PPR null 镀锌钢管");
  });
}

TEST_F(PipeManagerDlg, AddsDiametersAtTheEnd) {
  In([&](Dlg& dialog) {
    Pick(dialog, 0);
    EXPECT_TRUE(dialog.m_addRow.UserClick());
    EXPECT_EQ(RowText(dialog.m_rows, 2), L"20|20|19|0.5");
    ASSERT_TRUE(dialog.m_rows.CurrentEdit());
    EXPECT_EQ(dialog.m_rows.CurrentEdit()->column, pipes::kNominalColumn);
    EXPECT_TRUE(dialog.m_rows.UserTypeEdit(L"25"));
    EXPECT_TRUE(dialog.m_rows.UserEndEdit());
  });
  ASSERT_EQ(first->m_arrDNData.GetSize(), 3);
  EXPECT_EQ(first->m_arrDNData[2].dbNominal, 25);
}

TEST_F(PipeManagerDlg, DeletesDiametersWithoutAQuestion) {
  In([&](Dlg& dialog) {
    Pick(dialog, 0);
    EXPECT_TRUE(dialog.m_rows.UserClick(0, 0));
    EXPECT_TRUE(dialog.m_removeRow.UserClick());
    EXPECT_EQ(RowsText(dialog.m_rows), L"20|26.8|21.2|2.8");
    EXPECT_EQ(dialog.m_rows.GetCurSel(), 0) << "the same place";
    EXPECT_TRUE(dialog.m_removeRow.UserClick());
    EXPECT_EQ(dialog.m_rows.GetCurSel(), -1);
    EXPECT_TRUE(dialog.m_removeRow.UserClick());
  });
  EXPECT_TRUE(frontEnd.boxes.empty());
  EXPECT_EQ(first->m_arrDNData.GetSize(), 0);
}

TEST_F(PipeManagerDlg, MovesDiametersAsTheListShowsThem) {
  first->m_arrDNData[0].dbOuter = 21.3456;
  In([&](Dlg& dialog) {
    Pick(dialog, 0);
    EXPECT_TRUE(dialog.m_rows.UserClick(0, 0));
    EXPECT_TRUE(dialog.m_rowUp.UserClick());
    EXPECT_EQ(first->m_arrDNData[0].dbOuter, 21.3456) << "nothing happens at the top";
    EXPECT_TRUE(dialog.m_rowDown.UserClick());
    EXPECT_EQ(dialog.m_rows.GetCurSel(), 1);
    EXPECT_EQ(first->m_arrDNData[1].dbOuter, 21.35);
    EXPECT_EQ(first->m_arrDNData[0].dbNominal, 20);
    EXPECT_TRUE(dialog.m_rowDown.UserClick());
    EXPECT_TRUE(dialog.m_rowUp.UserClick());
    EXPECT_EQ(first->m_arrDNData[0].dbNominal, 15);
  });
}

TEST_F(PipeManagerDlg, RefusesZeroAndNoNumberInADiameter) {
  In([&](Dlg& dialog) {
    Pick(dialog, 0);
    for (const wchar_t* text : {L"0", L"0.0009", L"-0.001", L"abc", L"", L"  "}) {
      EXPECT_TRUE(Edit(dialog.m_rows, 0, pipes::kOuterColumn, text));
      EXPECT_EQ(frontEnd.takeBox(), L"输入值不能为零，请重新输入。") << Utf8(text);
      ASSERT_TRUE(dialog.m_rows.CurrentEdit());
      EXPECT_TRUE(dialog.m_rows.UserCancelEdit());
      EXPECT_EQ(first->m_arrDNData[0].dbOuter, 21.3);
      EXPECT_EQ(dialog.m_rows.GetItemText(0, pipes::kOuterColumn), L"21.3");
    }
    EXPECT_TRUE(Edit(dialog.m_rows, 0, pipes::kOuterColumn, L"-5 mm"));
    EXPECT_TRUE(frontEnd.boxes.empty()) << "nothing else is tested";
    EXPECT_EQ(first->m_arrDNData[0].dbOuter, -5);
  });
}

TEST_F(PipeManagerDlg, WorksOutTheThicknessFromBothDiameters) {
  In([&](Dlg& dialog) {
    Pick(dialog, 0);
    EXPECT_TRUE(Edit(dialog.m_rows, 0, pipes::kOuterColumn, L"22"));
    EXPECT_EQ(RowText(dialog.m_rows, 0), L"15|22|15.7|3.15");
    EXPECT_EQ(first->m_arrDNData[0].dbThickness, 3.15);
    EXPECT_TRUE(Edit(dialog.m_rows, 0, pipes::kInnerColumn, L"23"));
    EXPECT_EQ(RowText(dialog.m_rows, 0), L"15|22|23|-0.5") << "no rule forbids it";
    EXPECT_TRUE(Edit(dialog.m_rows, 0, pipes::kThicknessColumn, L"9"));
    EXPECT_EQ(RowText(dialog.m_rows, 0), L"15|22|23|9") << "the diameters stay";
  });
}

TEST_F(PipeManagerDlg, ForgetsADiameterThatIsNoneWhenTheWindowCloses) {
  In([&](Dlg& dialog) {
    Pick(dialog, 0);
    EXPECT_TRUE(dialog.m_rows.UserBeginEdit(0, pipes::kInnerColumn));
    EXPECT_TRUE(dialog.m_rows.UserTypeEdit(L"x"));
    dialog.UserClose();
  });
  EXPECT_TRUE(frontEnd.boxes.empty());
  EXPECT_EQ(first->m_arrDNData[0].dbInner, 15.7);
}

TEST_F(PipeManagerDlg, SavesHoweverItIsLeft) {
  for (int way = 0; way < 4; ++way) {
    CString name;
    name.Format(L"管%d", way);
    In([&](Dlg& dialog) {
      EXPECT_TRUE(Edit(dialog.m_materials.m_list, 0, 0, name));
      if (way == 0) dialog.m_ok.UserClick();
      if (way == 1) dialog.m_exit.UserClick();
      if (way == 2) dialog.UserClose();
      if (way == 3) dialog.UserEscape();
    });
    EXPECT_EQ(SavedNames(), name + L" PPR") << way;
  }
}

TEST_F(PipeManagerDlg, SaysNothingWhereItCannotSave) {
  install.Write("Data", "a file where the folder should be");
  In([](Dlg& dialog) { EXPECT_TRUE(Edit(dialog.m_materials.m_list, 0, 0, L"管")); });
  EXPECT_TRUE(frontEnd.boxes.empty());
  EXPECT_EQ(first->GetName(), L"管");
}

TEST_F(PipeManagerDlg, PicksWhatIsSelectedAtOk) {
  CZPPipeMaterial* material = second;
  frontEnd.runs = {[&](CDialog& dialog) {
    Pick(static_cast<Dlg&>(dialog), 0);
    EXPECT_TRUE(dialog.UserEnter());
  }};
  EXPECT_EQ(ZP::ShowPipeMaterialDlg(material, nullptr), 1);
  EXPECT_EQ(material, first);
  frontEnd.runs = {[&](CDialog& dialog) { Pick(static_cast<Dlg&>(dialog), 1); }};
  EXPECT_EQ(ZP::ShowPipeMaterialDlg(material, nullptr), 0) << "the close box";
  EXPECT_EQ(material, first);
  material = nullptr;
  frontEnd.runs = {[&](CDialog& dialog) { EXPECT_TRUE(dialog.UserEnter()); }};
  EXPECT_EQ(ZP::ShowPipeMaterialDlg(material, nullptr), 0) << "nothing selected";
  EXPECT_EQ(material, nullptr);
}

TEST_F(PipeManagerDlg, GivesItsResultToWhoeverManages) {
  frontEnd.runs = {[](CDialog& dialog) { EXPECT_TRUE(dialog.UserEnter()); },
                   [](CDialog& dialog) { dialog.UserEscape(); }};
  EXPECT_EQ(ZP::ShowPipeMaterialDlg(nullptr), IDOK);
  EXPECT_EQ(ZP::ShowPipeMaterialDlg(nullptr), IDCANCEL);
  UiFrontEnd::Set(nullptr);
  EXPECT_EQ(ZP::ShowPipeMaterialDlg(nullptr), -1);
}

TEST_F(PipeManagerDlg, KeepsAnyName) {
  auto names = AwkwardNames();
  names.push_back(CString(std::wstring(100000, L'管')));
  for (const CString& name : names) {
    if (CString(name).Trim().IsEmpty()) continue;
    In([&](Dlg& dialog) { EXPECT_TRUE(Edit(dialog.m_materials.m_list, 0, 0, name)); });
    EXPECT_EQ(SavedNames(), CString(name).Trim() + L" PPR");
  }
}

} // namespace
