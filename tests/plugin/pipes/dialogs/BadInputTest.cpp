// What users should not do to the dialogs of catalogues, and do: whatever it is, the window and the catalogue
// agree, and what is read back from the file is what was shown.
#include <gtest/gtest.h>

#include "host/afx/MessageLog.h"
#include "plugin/pipes/dialogs/CZPDuctManagerDlg.h"
#include "plugin/pipes/dialogs/CZPFlowVelocityMngDlg.h"
#include "plugin/pipes/dialogs/CZPPipeManagerDlg.h"
#include "tests/plugin/pipes/CatalogueFixture.h"
#include "tests/plugin/pipes/ducts/DuctFixture.h"
#include "tests/plugin/pipes/limits/LimitFixture.h"
#include "tests/support/AwkwardNames.h"
#include "tests/support/DialogFixture.h"
#include "tests/support/ReadOnlyFolder.h"

namespace {

using namespace dialogtest;

// --- pipes

class BadPipeInput : public CatalogueFixture {
 protected:
  using Dlg = CZPPipeManagerDlg;
  BadPipeInput() {
    steel = AddNamed(L"镀锌钢管");
    SZPPipeDNData small(15, 21.3, 15.7), large(20, 26.8, 21.2);
    steel->m_arrDNData.Add(small);
    steel->m_arrDNData.Add(large);
  }
  void In(const std::function<void(Dlg&)>& test) {
    Dlg dialog(steel, nullptr);
    dialogtest::Run<Dlg>(frontEnd, dialog, test);
  }
  static CString Rows(const CZPPipeMaterial& material) {
    CString text;
    for (const SZPPipeDNData& row : material.m_arrDNData)
      for (const double number : {row.dbNominal, row.dbOuter, row.dbInner, row.dbThickness})
        text += L" " + ZP::ftoa(number, 3, true);
    return text;
  }
  UiFrontEndScript frontEnd;
  CZPPipeMaterial* steel = nullptr;
};

TEST_F(BadPipeInput, ThatIsNoNumberIsRefusedInEveryColumn) {
  const CString before = Rows(*steel);
  In([&](Dlg& dialog) {
    for (int column = 0; column < dialog.m_rows.GetColumnCount(); ++column)
      for (const wchar_t* text : kNoNumbers) {
        EXPECT_TRUE(Edit(dialog.m_rows, 1, column, text));
        EXPECT_EQ(frontEnd.takeBox(), L"输入值不能为零，请重新输入。") << Utf8(text);
        EXPECT_TRUE(dialog.m_rows.UserCancelEdit());
      }
  });
  EXPECT_EQ(Rows(*steel), before);
}

TEST_F(BadPipeInput, ThatIsNoNumberCountsAsZeroInTheProperties) {
  for (const wchar_t* label : {L"绝对粗糙度(mm)", L"沿线标注距离(mm)"})
    for (const wchar_t* text : kNoNumbers)
      In([&](Dlg& dialog) {
        EXPECT_TRUE(dialog.m_properties.UserSetText(dialog.m_properties.FindItem(label), text));
      });
  EXPECT_EQ(steel->m_dRoughness, 0);
  EXPECT_EQ(steel->m_dAlongDistance, 0);
  EXPECT_TRUE(frontEnd.boxes.empty());
}

TEST_F(BadPipeInput, InFreeTextsIsKeptAsItIs) {
  auto texts = AwkwardNames();
  texts.push_back(CString(std::wstring(100000, L'后')));
  for (const CString& text : texts) {
    In([&](Dlg& dialog) {
      for (const wchar_t* label : {L"连接字符", L"后缀字符"})
        EXPECT_TRUE(dialog.m_properties.UserSetText(dialog.m_properties.FindItem(label), text));
    });
    Reload();
    steel = catalogue.m_arrMaterials[0];
    EXPECT_EQ(steel->m_strConnector, text);
    EXPECT_EQ(steel->m_strSuffix, text);
  }
}

TEST_F(BadPipeInput, IsForgottenWhenTheWindowCloses) {
  const auto make = [this] { return std::make_unique<Dlg>(steel, nullptr); };
  CloseInTheMiddleOfEachEdit<Dlg>(frontEnd, &Dlg::m_rows, make);
  CString before;
  for (const CZPPipeMaterial* material : catalogue.m_arrMaterials)
    before += material->GetName() + Rows(*material);
  Reload();
  CString after;
  for (const CZPPipeMaterial* material : catalogue.m_arrMaterials)
    after += material->GetName() + Rows(*material);
  EXPECT_EQ(Utf8(after), Utf8(before));
}

TEST_F(BadPipeInput, DoesNotSurviveTheRowThatIsDeleted) {
  In([&](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_rows.UserBeginEdit(0, 1));
    EXPECT_TRUE(dialog.m_rows.UserTypeEdit(L"99"));
    EXPECT_TRUE(dialog.m_removeRow.UserClick());
    EXPECT_FALSE(dialog.m_rows.CurrentEdit());
    EXPECT_EQ(RowsText(dialog.m_rows), L"20|26.8|21.2|2.8");
    EXPECT_TRUE(dialog.m_rows.UserBeginEdit(0, 1));
    EXPECT_TRUE(dialog.m_rows.UserTypeEdit(L"abc"));
    EXPECT_FALSE(dialog.m_removeRow.UserClick()) << "first the number is to be one";
    EXPECT_EQ(frontEnd.takeBox(), L"输入值不能为零，请重新输入。");
    ASSERT_TRUE(dialog.m_rows.CurrentEdit());
    EXPECT_TRUE(dialog.m_rows.UserCancelEdit());
    EXPECT_TRUE(dialog.m_removeRow.UserClick());
  });
  EXPECT_EQ(steel->m_arrDNData.GetSize(), 0);
}

TEST_F(BadPipeInput, InANameGoesBeforeTheMaterialIsDeleted) {
  AddNamed(L"PPR");
  frontEnd.answers = {IDOK, IDOK};
  In([&](Dlg& dialog) {
    auto& list = dialog.m_materials.m_list;
    EXPECT_TRUE(list.UserBeginEdit(1, 0));
    EXPECT_TRUE(list.UserTypeEdit(L"镀锌钢管"));
    EXPECT_FALSE(dialog.m_materials.m_remove.UserClick());
    EXPECT_EQ(catalogue.m_arrMaterials.GetSize(), 2);
    EXPECT_TRUE(list.UserTypeEdit(L"铜管"));
    EXPECT_TRUE(dialog.m_materials.m_remove.UserClick());
    EXPECT_EQ(frontEnd.takeBox(), L"删除不可恢复，确定要删除【铜管】吗?");
  });
  EXPECT_EQ(catalogue.m_arrMaterials.GetSize(), 1);
}

TEST_F(BadPipeInput, IntoAFolderThatIsReadOnlyLeavesTheFileAndTellsTheLog) {
  In([](Dlg&) {});
  const std::string before = install.Read(kFile);
  afx::ClearLoggedMessages();
  {
    const ReadOnlyFolder folder((install.Root() / kFile).parent_path());
    if (!folder.Holds()) GTEST_SKIP() << "permissions do not hold root back";
    In([](Dlg& dialog) { EXPECT_TRUE(Edit(dialog.m_rows, 0, 1, L"22")); });
  }
  EXPECT_EQ(install.Read(kFile), before);
  EXPECT_FALSE(afx::LoggedMessages().empty());
  EXPECT_TRUE(frontEnd.boxes.empty());
  EXPECT_EQ(steel->m_arrDNData[0].dbOuter, 22) << "nothing is lost while the program runs";
  In([](Dlg&) {});
  EXPECT_NE(install.Read(kFile), before) << "the next time it is written";
}

// --- ducts

class BadDuctInput : public DuctFixture {
 protected:
  using Dlg = CZPDuctManagerDlg;
  BadDuctInput() {
    steel = AddNamed(L"镀锌钢板");
    SZPDuctThickness narrow(0, 320, 0.5);
    steel->m_arrThickness.Add(narrow);
    AddRect(320, 200);
    AddCircle(100);
  }
  void In(const std::function<void(Dlg&)>& test) {
    Dlg dialog(nullptr, nullptr);
    dialogtest::Run<Dlg>(frontEnd, dialog, test);
  }
  UiFrontEndScript frontEnd;
  CZPDuctMaterial* steel = nullptr;
};

TEST_F(BadDuctInput, ThatIsNoNumberIsRefusedInEveryColumn) {
  const CString before = Everything();
  In([&](Dlg& dialog) {
    for (const wchar_t* text : kNoNumbers) {
      if (*text == 0) continue; // asks whether the row is to go, or is ignored
      for (int column = 0; column < 3; ++column) {
        EXPECT_TRUE(Edit(dialog.m_thickness, 1, column, text));
        EXPECT_EQ(frontEnd.takeBox(), L"输入的数据不是数值型，请重新输入！") << Utf8(text);
      }
      if (CString(text).Trim().IsEmpty()) continue;
      EXPECT_TRUE(Edit(dialog.m_sizes, 1, 0, text));
      EXPECT_EQ(frontEnd.takeBox(), L"输入字符串不满足要求，输入值必须为数值型数据！") << Utf8(text);
      EXPECT_FALSE(dialog.m_roughness.UserType(text)) << "the field takes no such text";
    }
  });
  EXPECT_EQ(Utf8(Everything()), Utf8(before));
}

TEST_F(BadDuctInput, InANameIsKeptAsItIs) {
  auto names = AwkwardNames();
  names.push_back(CString(std::wstring(100000, L'板')));
  for (const CString& name : names) {
    if (CString(name).Trim().IsEmpty()) continue;
    In([&](Dlg& dialog) { EXPECT_TRUE(Edit(dialog.m_materials.m_list, 0, 0, name)); });
    Reload();
    EXPECT_EQ(Names(), CString(name).Trim());
  }
}

TEST_F(BadDuctInput, IsForgottenWhenTheWindowCloses) {
  const auto make = [] { return std::make_unique<Dlg>(nullptr, nullptr); };
  CloseInTheMiddleOfEachEdit<Dlg>(frontEnd, &Dlg::m_thickness, make);
  CloseInTheMiddleOfEachEdit<Dlg>(frontEnd, &Dlg::m_sizes, make);
  CloseInTheMiddleOfEachEdit<Dlg>(frontEnd, &Dlg::m_sizes, make,
                                  [](Dlg& dialog) { EXPECT_TRUE(dialog.m_shapes.UserSelect(1)); });
  for (const wchar_t* text : {L"", L"0.", L"-", L"1e999", L"7"})
    In([&](Dlg& dialog) {
      dialog.m_roughness.UserType(text);
      dialog.UserClose();
    });
  EXPECT_EQ(steel->m_dRoughness, 7);
  EXPECT_TRUE(frontEnd.boxes.empty());
  const CString before = Everything();
  Reload();
  EXPECT_EQ(Utf8(Everything()), Utf8(before));
}

TEST_F(BadDuctInput, DoesNotSurviveTheRowThatIsDeleted) {
  In([&](Dlg& dialog) {
    auto& grid = dialog.m_thickness;
    EXPECT_TRUE(grid.UserBeginEdit(1, 2));
    EXPECT_TRUE(grid.UserTypeEdit(L"9"));
    EXPECT_TRUE(grid.UserOpenMenu(1, 2));
    EXPECT_TRUE(grid.Menu.UserChoose(grid.Menu.Items()[1].id));
    EXPECT_FALSE(grid.CurrentEdit());
    EXPECT_EQ(RowsText(grid), L"||");
    frontEnd.answers = {IDOK};
    EXPECT_TRUE(dialog.m_sizes.UserBeginEdit(1, 0));
    EXPECT_TRUE(dialog.m_sizes.UserTypeEdit(L""));
    EXPECT_TRUE(dialog.m_shapes.UserSelect(1)) << "finishes the edit, which deletes the row";
  });
  EXPECT_EQ(Rects(), L"");
  EXPECT_EQ(steel->m_arrThickness.GetSize(), 0);
}

TEST_F(BadDuctInput, IntoAFolderThatIsReadOnlyLeavesTheFileAndTellsTheLog) {
  In([](Dlg&) {});
  const std::string before = install.Read(kFile);
  afx::ClearLoggedMessages();
  {
    const ReadOnlyFolder folder((install.Root() / kFile).parent_path());
    if (!folder.Holds()) GTEST_SKIP() << "permissions do not hold root back";
    In([](Dlg& dialog) { EXPECT_TRUE(Edit(dialog.m_sizes, 1, 1, L"222")); });
  }
  EXPECT_EQ(install.Read(kFile), before);
  EXPECT_FALSE(afx::LoggedMessages().empty());
  EXPECT_TRUE(frontEnd.boxes.empty());
  EXPECT_EQ(Rects(), L"320x222");
  In([](Dlg&) {});
  EXPECT_NE(install.Read(kFile), before);
}

// --- velocity limits

class BadLimitInput : public LimitFixture {
 protected:
  using Dlg = CZPFlowVelocityMngDlg;
  BadLimitInput() {
    AddRow(L"20", 0.3, 0.8);
    AddRow(L"25", 0.35, 1);
  }
  void In(const std::function<void(Dlg&)>& test) {
    Dlg dialog(nullptr);
    dialogtest::Run<Dlg>(frontEnd, dialog, test);
  }
  CString Everything() const {
    CString text;
    for (const CZPPipeLimit* limit : table.m_arrLimits)
      text += limit->GetName() + L":" + ZP::ftoa(limit->m_velocity.dbMin, 9, true) + L"-" +
              ZP::ftoa(limit->m_velocity.dbMax, 9, true) + L" ";
    return text;
  }
  UiFrontEndScript frontEnd;
};

TEST_F(BadLimitInput, ThatIsNoNumberIsNoNameAndCountsAsZeroInAVelocity) {
  In([&](Dlg& dialog) {
    for (const wchar_t* text : kNoNumbers) {
      if (CString(text).Trim().IsEmpty()) continue;
      EXPECT_TRUE(Edit(dialog.m_grid, 1, 0, text));
      EXPECT_EQ(frontEnd.takeBox(), L"输入字符串不满足要求，输入值必须为整型数据！") << Utf8(text);
      for (const int column : {1, 2}) EXPECT_TRUE(Edit(dialog.m_grid, 1, column, text));
      EXPECT_TRUE(frontEnd.boxes.empty());
    }
  });
  EXPECT_EQ(Everything(), L"20:0-0 25:0.35-1 ");
}

TEST_F(BadLimitInput, InANameIsKeptAsItIs) {
  for (const CString& name :
       {CString(L"1\"2"), CString(L"1\n2"), CString(L"1\U0001F6002"), CString(L"1%s2"), CString(L"1{}[],:2"),
        CString(std::wstring(100000, L'9')), CString(L"1" + std::wstring(100000, L'长') + L"1")}) {
    In([&](Dlg& dialog) { EXPECT_TRUE(Edit(dialog.m_grid, 1, 0, name)); });
    EXPECT_TRUE(frontEnd.boxes.empty()) << Utf8(name.Left(20));
    Reload();
    EXPECT_EQ(Names(), name + L" 25");
  }
}

TEST_F(BadLimitInput, IsForgottenWhenTheWindowCloses) {
  CloseInTheMiddleOfEachEdit<Dlg>(frontEnd, &Dlg::m_grid, [] { return std::make_unique<Dlg>(nullptr); });
  EXPECT_EQ(Names(), L"12.5 12.5") << "both rows were given this good name, which nobody forbids";
  Reload();
  EXPECT_EQ(Names(), L"12.5") << "the file has a place for one";
}

TEST_F(BadLimitInput, DoesNotSurviveTheRowThatIsDeleted) {
  frontEnd.answers = {IDOK};
  In([&](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_grid.UserBeginEdit(1, 0));
    EXPECT_TRUE(dialog.m_grid.UserTypeEdit(L""));
    EXPECT_FALSE(dialog.m_grid.UserBeginEdit(3, 0)) << "that row stands one higher by then";
    EXPECT_EQ(RowsText(dialog.m_grid), L"25|0.35|1 ||");
  });
}

TEST_F(BadLimitInput, IntoAFolderThatIsReadOnlyLeavesTheFileAndTellsTheLog) {
  In([](Dlg&) {});
  const std::string before = install.Read(kFile);
  afx::ClearLoggedMessages();
  {
    const ReadOnlyFolder folder((install.Root() / kFile).parent_path());
    if (!folder.Holds()) GTEST_SKIP() << "permissions do not hold root back";
    In([](Dlg& dialog) { EXPECT_TRUE(Edit(dialog.m_grid, 1, 1, L"0.5")); });
  }
  EXPECT_EQ(install.Read(kFile), before);
  EXPECT_FALSE(afx::LoggedMessages().empty());
  EXPECT_TRUE(frontEnd.boxes.empty());
  In([](Dlg&) {});
  EXPECT_NE(install.Read(kFile), before);
}

} // namespace
