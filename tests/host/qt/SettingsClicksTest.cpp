// The system settings and the host's editor of text styles by clicks and keys.
#include "plugin/frame/CZPSystemSettingsDlg.h"
#include "plugin/frame/TextStyleNames.h"
#include "plugin/graph/DrawingSettings.h"
#include "tests/host/qt/PlugInDialogs.h"

#include <QRadioButton>

namespace {

class SettingsClicks : public PlugInDialogs {
 protected:
  int settings(Steps steps) {
    return during([] { return static_cast<int>(CZPSystemSettingsDlg(nullptr).DoModal()); }, std::move(steps));
  }
  static std::function<void()> fill(const char* caption, const char* text) {
    return [=] { retype(find<QLineEdit>(caption), text); };
  }
  static void choose(const char* option) {
    for (auto* button : top()->findChildren<QRadioButton*>())
      if (button->text() == QString::fromUtf8(option)) QTest::keyClick(button, Qt::Key_Space);
  }
};

TEST_F(SettingsClicks, AreTakenOverByEnter) {
  EXPECT_EQ(settings({fill("出图比例     1：", "50"), key(Qt::Key_Tab), fill("西文出图字高(mm)", "2.5"),
                      [] { choose("使用CAD当前字体"); }, fill("中文出图字高(mm)", "5"), key(Qt::Key_Return)}),
            IDOK);
  EXPECT_EQ(ZP::GetOutDwgScale(), 50);
  EXPECT_EQ(ZP::GetXwZg(), 2.5);
  EXPECT_EQ(ZP::GetZwZg(), 5);
  EXPECT_EQ(ZP::GetFontType(), 0);
}

TEST_F(SettingsClicks, AreGivenUpByEscape) {
  EXPECT_EQ(settings({fill("出图比例     1：", "50"), key(Qt::Key_Escape)}), IDCANCEL);
  EXPECT_EQ(ZP::GetOutDwgScale(), 100);
}

TEST_F(SettingsClicks, TakeNoLetters) {
  QString text;
  settings({fill("出图比例     1：", "a5b0"), [&] { text = find<QLineEdit>("出图比例     1：").text(); }});
  EXPECT_EQ(text, QStringLiteral("50"));
}

TEST_F(SettingsClicks, EditTextStylesInBetween) {
  bool hidden = false;
  EXPECT_EQ(settings({pressing("文字样式..."),
                      [&] {
                        hidden = top()->objectName() == QStringLiteral("文字样式");
                        retype(find<QLineEdit>("新样式名"), "仿宋");
                      },
                      pressing("新建"), fill("宽度比例", "0.7"), pressing("应用"), pressing("关闭"),
                      [] { clickEntry(find<QListWidget>("当前文字样式："), "仿宋"); }, pressing("确定")}),
            IDOK);
  EXPECT_TRUE(hidden);
  EXPECT_EQ(ZP::GetTextStyle(), L"仿宋");
  EXPECT_EQ(TextStyleNames().size(), 2u);
}

TEST_F(SettingsClicks, TextStylesAreToldWhatIsNoName) {
  QString told, value;
  during([] { return acedCommandTexts({L"DDSTYLE"}); },
         {fill("新样式名", "a*b"), pressing("新建"), answer(told, "确定"), fill("宽度比例", "0"),
          pressing("应用"), answer(value, "确定"), pressing("置为当前"), pressing("关闭")});
  EXPECT_EQ(told, QStringLiteral("“a*b”不能作为样式名。"));
  EXPECT_EQ(value, QStringLiteral("宽度比例必须是大于 0 的数。"));
  EXPECT_EQ(TextStyleNames().size(), 1u);
}

} // namespace
