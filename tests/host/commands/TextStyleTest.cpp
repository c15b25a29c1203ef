#include "host/commands/TextStyleDlg.h"

#include "host/commands/TextStyles.h"
#include "host/db/AcDbTextStyleTable.h"
#include "tests/host/commands/CommandFixture.h"
#include "tests/support/UiFrontEndScript.h"
#include "tests/support/UiRobot.h"

namespace {

class TextStyles : public CommandFixture {
 protected:
  // Runs DDSTYLE and hands its dialog over.
  void In(const std::function<void(CDialog&)>& test) {
    windows.runs.push_back(test);
    run(L"DDSTYLE");
  }
  template <class Control> static Control& Find(CDialog& dialog, const wchar_t* caption) {
    for (CWnd* control : dialog.Controls())
      if (control->GetCaption() == caption) return dynamic_cast<Control&>(*control);
    throw std::runtime_error("no such control");
  }
  static void Add(CDialog& dialog, const wchar_t* name) {
    EXPECT_TRUE(Find<CEdit>(dialog, L"新样式名").UserType(name));
    EXPECT_TRUE(Find<CButton>(dialog, L"新建").UserClick());
  }
  UiFrontEndScript windows;
};

TEST_F(TextStyles, AreAddedWithThePropertiesOfTheSelectedOne) {
  In([](CDialog& dialog) {
    EXPECT_TRUE(Find<CEdit>(dialog, L"字体文件").UserType(L"gbenor.shx"));
    EXPECT_TRUE(Find<CEdit>(dialog, L"大字体文件").UserType(L"gbcbig.shx"));
    EXPECT_TRUE(Find<CNumberEdit>(dialog, L"宽度比例").UserType(L"0.7"));
    EXPECT_TRUE(Find<CButton>(dialog, L"应用").UserClick());
    Add(dialog, L" 仿宋 ");
    EXPECT_EQ(Find<CListBox>(dialog, L"样式").SelectedText(), L"仿宋");
  });
  const AcDbObjectPointer<AcDbTextStyleTableRecord> style(commands::TextStyleByName(L"仿宋"), AcDb::kForRead);
  ASSERT_TRUE(style);
  EXPECT_EQ(style->fileName(), L"gbenor.shx");
  EXPECT_EQ(style->bigFontFileName(), L"gbcbig.shx");
  EXPECT_EQ(style->xScale(), 0.7);
}

TEST_F(TextStyles, OfATakenOrForbiddenNameAreNotAdded) {
  In([&](CDialog& dialog) {
    Add(dialog, L"standard");
    EXPECT_EQ(windows.takeBox(), L"文字样式“standard”已经存在。");
    for (const wchar_t* name : {L"", L"  ", L"a*b", L"a\nb"}) {
      Add(dialog, name);
      EXPECT_GE(windows.takeBox().Find(L"不能作为样式名"), 0);
    }
  });
  EXPECT_EQ(commands::TextStyleNames().size(), 1u);
}

TEST_F(TextStyles, KeepAValueThatCanNotBeReplaced) {
  In([&](CDialog& dialog) {
    EXPECT_TRUE(Find<CNumberEdit>(dialog, L"宽度比例").UserType(L"0"));
    EXPECT_TRUE(Find<CButton>(dialog, L"应用").UserClick());
    EXPECT_EQ(windows.takeBox(), L"宽度比例必须是大于 0 的数。");
    EXPECT_TRUE(Find<CNumberEdit>(dialog, L"固定高度（0 为不固定）").UserType(L"-1"));
    EXPECT_TRUE(Find<CNumberEdit>(dialog, L"宽度比例").UserType(L"1"));
    EXPECT_TRUE(Find<CButton>(dialog, L"应用").UserClick());
    EXPECT_EQ(windows.takeBox(), L"高度必须是不小于 0 的数。");
  });
  const AcDbObjectPointer<AcDbTextStyleTableRecord> style(commands::TextStyleByName(L"Standard"),
                                                          AcDb::kForRead);
  EXPECT_EQ(style->xScale(), 1);
  EXPECT_EQ(style->textSize(), 0);
}

TEST_F(TextStyles, BecomeCurrent) {
  In([](CDialog& dialog) {
    Add(dialog, L"仿宋");
    EXPECT_TRUE(Find<CButton>(dialog, L"置为当前").UserClick());
    EXPECT_EQ(dialog.Controls()[9]->GetCaption(), L"当前文字样式：仿宋");
  });
  EXPECT_EQ(commands::CurrentTextStyle(), L"仿宋");
  EXPECT_FALSE(commands::MakeTextStyleCurrent(L"没有"));
}

TEST_F(TextStyles, AreOneStepOfUndo) {
  In([](CDialog& dialog) {
    Add(dialog, L"甲");
    Add(dialog, L"乙");
  });
  EXPECT_EQ(commands::TextStyleNames().size(), 3u);
  run(L"U");
  EXPECT_EQ(commands::TextStyleNames().size(), 1u);
}

TEST_F(TextStyles, OfANameBeyondMeasureAreRefusedInAShortMessage) {
  In([&](CDialog& dialog) {
    Add(dialog, std::wstring(100000, L'长').c_str());
    const CString told = windows.takeBox();
    EXPECT_GE(told.Find(L"不能作为样式名"), 0);
    EXPECT_LT(told.GetLength(), 100);
    Add(dialog, L"\U0001F600 '单' “双”");
  });
  EXPECT_EQ(commands::TextStyleNames().size(), 2u);
}

TEST_F(TextStyles, WithAwkwardFontsAreSavedAndReadBack) {
  const CString awkward = L"a\nb\"c\\U+0041^J\U0001F600";
  In([&](CDialog& dialog) {
    EXPECT_TRUE(Find<CEdit>(dialog, L"字体文件").UserType(awkward));
    EXPECT_TRUE(Find<CEdit>(dialog, L"大字体文件").UserType(CString(std::wstring(2000, L'字'))));
    for (const wchar_t* caption : {L"固定高度（0 为不固定）", L"宽度比例"}) {
      EXPECT_FALSE(Find<CNumberEdit>(dialog, caption).UserType(L"abc"));
      EXPECT_FALSE(Find<CNumberEdit>(dialog, caption).UserType(L"1\n2"));
    }
    EXPECT_TRUE(Find<CButton>(dialog, L"应用").UserClick());
    EXPECT_TRUE(windows.boxes.empty());
  });
  run(L"SAVEAS", {file("fonts.dxf")});
  run(L"OPEN", {file("fonts.dxf")});
  const AcDbObjectPointer<AcDbTextStyleTableRecord> style(commands::TextStyleByName(L"Standard"),
                                                          AcDb::kForRead);
  ASSERT_TRUE(style);
  EXPECT_EQ(style->fileName(), awkward);
  EXPECT_EQ(style->bigFontFileName().GetLength(), 2000);
}

TEST_F(TextStyles, OfADrawingThatVanishedFromTheDiskAreSavedAnew) {
  run(L"SAVEAS", {file("gone.dxf")});
  In([&](CDialog& dialog) {
    std::filesystem::remove(file("gone.dxf").ToUtf8());
    Add(dialog, L"仿宋");
  });
  EXPECT_FALSE(refused()) << reason().ToUtf8();
  run(L"SAVE");
  run(L"OPEN", {file("gone.dxf")});
  EXPECT_FALSE(refused()) << reason().ToUtf8();
  EXPECT_FALSE(commands::TextStyleByName(L"仿宋").isNull());
}

TEST_F(TextStyles, OfADrawingWhoseFolderVanishedStayUnsavedAndTheUserIsTold) {
  const CString folder = file("folder");
  std::filesystem::create_directory(folder.ToUtf8());
  run(L"SAVEAS", {folder + L"/gone.dxf"});
  In([&](CDialog& dialog) {
    std::filesystem::remove_all(folder.ToUtf8());
    Add(dialog, L"仿宋");
  });
  run(L"SAVE");
  EXPECT_GE((frontEnd.output + reason()).Find(L"gone.dxf"), 0) << "the user is told";
  EXPECT_FALSE(commands::TextStyleByName(L"仿宋").isNull()) << "nothing is lost";
  run(L"SAVEAS", {file("rescued.dxf")});
  EXPECT_TRUE(std::filesystem::exists(file("rescued.dxf").ToUtf8()));
}

TEST_F(TextStyles, StandRandomEvents) {
  UiRobot robot(7);
  In([&](CDialog& dialog) {
    for (int i = 0; i < 3000; ++i) {
      windows.boxes.clear();
      robot.Act(dialog);
      ASSERT_EQ(Find<CListBox>(dialog, L"样式").GetCount(),
                static_cast<int>(commands::TextStyleNames().size()));
    }
  });
}

} // namespace
