#include "plugin/frame/CZPSystemSettingsDlg.h"

#include <gtest/gtest.h>

#include "host/commands/HostCommands.h"
#include "host/db/AcDbTextStyleTable.h"
#include "plugin/frame/CommandTable.h"
#include "plugin/frame/TextStyleNames.h"
#include "plugin/graph/DrawingSettings.h"
#include "tests/support/ScriptedEditor.h"
#include "tests/support/UiFrontEndScript.h"
#include "tests/support/UiRobot.h"

namespace {

using Dlg = CZPSystemSettingsDlg;

class SystemSettings : public testing::Test {
 protected:
  SystemSettings() { commands::RegisterHostCommands(); }
  int In(const std::function<void(Dlg&)>& test) {
    Dlg dialog(nullptr);
    frontEnd.runs.push_front([&](CDialog&) { test(dialog); });
    return dialog.DoModal();
  }
  AcDbObjectId AddStyle(const wchar_t* name) {
    AcDbObjectPointer<AcDbTextStyleTable> styles(editor.Database().textStyleTableId(), AcDb::kForWrite);
    auto* style = new AcDbTextStyleTableRecord;
    style->setName(name);
    AcDbObjectId id;
    EXPECT_EQ(styles->add(id, style), Acad::eOk);
    style->close();
    return id;
  }
  static CString Styles(const Dlg& dialog) {
    CString names;
    for (int i = 0; i < dialog.m_styles.GetCount(); ++i) names += dialog.m_styles.GetText(i) + L" ";
    return names;
  }
  ScriptedEditor editor;
  UiFrontEndScript frontEnd;
};

TEST_F(SystemSettings, ShowWhatTheDrawingHas) {
  ZP::SetOutDwgScale(200);
  ZP::SetXwZg(2.5);
  ZP::SetFontType(0);
  In([](Dlg& dialog) {
    EXPECT_EQ(dialog.GetCaption(), L"系统设置");
    EXPECT_EQ(dialog.m_outScale.GetCaption(), L"出图比例     1：");
    EXPECT_EQ(dialog.m_outScale.GetText(), L"200.00");
    EXPECT_EQ(dialog.m_drawingScale.GetText(), L"1.00");
    EXPECT_EQ(dialog.m_chineseHeight.GetText(), L"3.50");
    EXPECT_EQ(dialog.m_westernHeight.GetText(), L"2.50");
    EXPECT_EQ(dialog.m_font.GetCurSel(), 0);
    EXPECT_EQ(Styles(dialog), L"Standard ");
  });
}

TEST_F(SystemSettings, BeginWithTheOwnFont) {
  EXPECT_EQ(Dlg(nullptr).m_font.GetCurSel(), 1);
}

TEST_F(SystemSettings, AreTakenOverByOk) {
  AddStyle(L"仿宋");
  EXPECT_EQ(In([](Dlg& dialog) {
              EXPECT_TRUE(dialog.m_outScale.UserType(L"50"));
              EXPECT_TRUE(dialog.m_drawingScale.UserType(L"2"));
              EXPECT_TRUE(dialog.m_chineseHeight.UserType(L"5"));
              EXPECT_TRUE(dialog.m_westernHeight.UserType(L"4"));
              EXPECT_TRUE(dialog.m_styles.UserSelect(1));
              EXPECT_TRUE(dialog.m_font.UserSelect(0));
              EXPECT_EQ(ZP::GetOutDwgScale(), 100) << "not before";
              EXPECT_TRUE(dialog.m_ok.UserClick());
            }),
            IDOK);
  EXPECT_EQ(ZP::GetOutDwgScale(), 50);
  EXPECT_EQ(ZP::GetDrawingScale(), 2);
  EXPECT_EQ(ZP::GetZwZg(), 5);
  EXPECT_EQ(ZP::GetXwZg(), 4);
  EXPECT_EQ(ZP::GetTextStyle(), L"仿宋");
  EXPECT_EQ(ZP::GetFontType(), 0);
}

TEST_F(SystemSettings, AreLeftAloneByCancelAndTheCloseBox) {
  for (const bool close : {true, false}) {
    EXPECT_EQ(In([&](Dlg& dialog) {
                EXPECT_TRUE(dialog.m_outScale.UserType(L"50"));
                EXPECT_TRUE(dialog.m_font.UserSelect(0));
                if (close) return dialog.UserClose();
                EXPECT_TRUE(dialog.m_cancel.UserClick());
              }),
              IDCANCEL);
    EXPECT_EQ(ZP::GetOutDwgScale(), 100);
    EXPECT_EQ(ZP::GetFontType(), 1);
  }
}

TEST_F(SystemSettings, KeepTheOldValueInsteadOfOneThatIsNone) {
  In([](Dlg& dialog) {
    EXPECT_FALSE(dialog.m_outScale.UserType(L"abc"));
    EXPECT_TRUE(dialog.m_outScale.UserType(L""));
    EXPECT_TRUE(dialog.m_drawingScale.UserType(L"0"));
    EXPECT_TRUE(dialog.m_chineseHeight.UserType(L"-3"));
    EXPECT_TRUE(dialog.m_westernHeight.UserType(L"1e999"));
    EXPECT_TRUE(dialog.m_ok.UserClick());
  });
  EXPECT_EQ(ZP::GetOutDwgScale(), 100);
  EXPECT_EQ(ZP::GetDrawingScale(), 1);
  EXPECT_EQ(ZP::GetZwZg(), 3.5);
  EXPECT_EQ(ZP::GetXwZg(), 3);
}

TEST_F(SystemSettings, ShowTheFirstStyleForOneThatTheDrawingLacks) {
  ZP::SetTextStyle(L"没有");
  In([](Dlg& dialog) {
    EXPECT_EQ(dialog.m_styles.SelectedText(), L"Standard");
    EXPECT_TRUE(dialog.m_ok.UserClick());
  });
  EXPECT_EQ(ZP::GetTextStyle(), L"Standard");
}

TEST_F(SystemSettings, FindTheStoredStyleByItsExactName) {
  AddStyle(L"ABC");
  ZP::SetTextStyle(L"abc");
  In([](Dlg& dialog) { EXPECT_EQ(dialog.m_styles.SelectedText(), L"Standard"); });
  ZP::SetTextStyle(L"ABC");
  In([](Dlg& dialog) { EXPECT_EQ(dialog.m_styles.SelectedText(), L"ABC"); });
}

TEST_F(SystemSettings, ListStylesInTableOrderWithoutDeletedOnes) {
  AddStyle(L"乙");
  const AcDbObjectId gone = AddStyle(L"甲");
  AddStyle(L"丙");
  AcDbObjectPointer<AcDbTextStyleTableRecord>(gone, AcDb::kForWrite)->erase();
  In([](Dlg& dialog) { EXPECT_EQ(Styles(dialog), L"Standard 乙 丙 "); });
}

TEST_F(SystemSettings, HaveNoStylesWithoutADrawing) {
  acdbHostApplicationServices()->setWorkingDatabase(nullptr);
  EXPECT_TRUE(TextStyleNames().empty());
  In([](Dlg& dialog) {
    EXPECT_EQ(dialog.m_styles.GetCount(), 0);
    EXPECT_TRUE(dialog.m_ok.UserClick());
  });
}

TEST_F(SystemSettings, ListNewStylesOfTheHostsEditor) {
  AddStyle(L"仿宋");
  ZP::SetTextStyle(L"仿宋");
  const std::size_t depth = acDocManagerPtr()->resourceDepth();
  In([&](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_styles.UserSelect(0));
    frontEnd.runs.push_back([&](CDialog& styles) {
      EXPECT_EQ(styles.GetCaption(), L"文字样式");
      EXPECT_FALSE(dialog.IsWindowVisible());
      EXPECT_EQ(acDocManagerPtr()->resourceDepth(), depth + 1);
      AddStyle(L"黑体");
    });
    EXPECT_TRUE(dialog.m_editStyles.UserClick());
    EXPECT_TRUE(dialog.IsWindowVisible());
    EXPECT_EQ(Styles(dialog), L"Standard 仿宋 黑体 ");
    EXPECT_EQ(dialog.m_styles.SelectedText(), L"仿宋") << "the stored one again";
    EXPECT_TRUE(dialog.m_cancel.UserClick());
  });
  EXPECT_EQ(acDocManagerPtr()->resourceDepth(), depth);
  EXPECT_EQ(TextStyleNames().size(), 3u) << "the style stays";
}

TEST_F(SystemSettings, OpenByTheirCommandWithTheResources) {
  for (const VkCmdTable& row : CommandTable()) {
    if (std::wstring_view(row.command) != L"KOR_XTSZ") continue;
    std::size_t depth = 0;
    frontEnd.runs = {[&](CDialog& dialog) {
      EXPECT_EQ(dialog.GetCaption(), L"系统设置");
      depth = acDocManagerPtr()->resourceDepth();
    }};
    row.handler();
    EXPECT_EQ(depth, 1u);
    EXPECT_EQ(acDocManagerPtr()->resourceDepth(), 0u);
  }
}

TEST_F(SystemSettings, StandRandomEvents) {
  for (unsigned seed = 1; seed <= 3; ++seed) {
    UiRobot robot(seed);
    In([&](Dlg& dialog) {
      for (int i = 0; i < 2000; ++i) {
        frontEnd.boxes.clear();
        // What its button opens is no calmer.
        if (frontEnd.runs.empty())
          frontEnd.runs.push_back([&](CDialog& styles) {
            for (int j = 0; j < 20; ++j) robot.Act(styles);
          });
        robot.Act(dialog);
        ASSERT_EQ(dialog.m_styles.GetCount(), static_cast<int>(TextStyleNames().size()));
        ASSERT_GE(dialog.m_font.GetCurSel(), 0);
      }
      EXPECT_TRUE(dialog.m_ok.UserClick());
    });
    EXPECT_GT(ZP::GetOutDwgScale(), 0);
    EXPECT_GT(ZP::GetXwZg(), 0);
  }
}

} // namespace
