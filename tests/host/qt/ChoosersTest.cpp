// The choosers of colours, linetypes, line weights and files, by clicks and keys.
#include "host/db/AcDbLinetypeTable.h"
#include "host/db/AcDbObjectPointer.h"
#include "host/qt/dialogs/ColourGrid.h"
#include "tests/host/qt/DialogClicks.h"

#include <QFile>
#include <QMessageBox>

namespace {

class Choosers : public DialogClicks {
 protected:
  static desktop::ColourGrid& grid() {
    return *static_cast<desktop::ColourGrid*>(top()->findChild<QWidget*>(QStringLiteral("colourGrid")));
  }
  static void clickColour(int index) {
    QTest::mouseClick(&grid(), Qt::LeftButton, {}, grid().place(index).center());
  }
  static QListWidget& list() { return *top()->findChild<QListWidget*>(); }
  std::optional<int> colour(int start, bool special, Steps steps) {
    return during([&] { return dialogs->ChooseColour(start, special); }, std::move(steps));
  }
  std::optional<int> weight(int start, Steps steps) {
    return during([&] { return dialogs->ChooseLineWeight(start); }, std::move(steps));
  }
  std::optional<CString> linetype(const wchar_t* start, Steps steps) {
    return during([&] { return dialogs->ChooseLinetype(start); }, std::move(steps));
  }
  std::optional<CString> file(const UiFileQuestion& question, Steps steps) {
    return during([&] { return dialogs->ChooseFile(question); }, std::move(steps));
  }
  // Types the name of a file.
  static std::function<void()> name(const char* text) {
    return [text] {
      auto* line = top()->findChild<QLineEdit*>();
      line->clear();
      TypeText(line, QString::fromUtf8(text));
    };
  }
  void addLinetype(const wchar_t* name) {
    AcDbObjectPointer<AcDbLinetypeTable> table(curDoc()->database()->linetypeTableId(), AcDb::kForWrite);
    auto* record = new AcDbLinetypeTableRecord;
    record->setName(name);
    ASSERT_EQ(Acad::eOk, table->add(record));
    record->close();
  }
};

// --- colours

TEST_F(Choosers, AColourIsClicked) {
  for (const int index : {1, 9, 10, 137, 249, 250, 255})
    EXPECT_EQ(colour(7, true, {[&] { clickColour(index); }, [&] { pressText("确定"); }}), index);
}

TEST_F(Choosers, AColourIsFoundByArrowKeys) {
  const auto key = [](Qt::Key code) { return [code] { QTest::keyClick(&grid(), code); }; };
  const auto enter = [] { QTest::keyClick(top(), Qt::Key_Return); };
  EXPECT_EQ(colour(1, true, {key(Qt::Key_Right), key(Qt::Key_Right), enter}), 3);
  EXPECT_EQ(colour(3, true, {key(Qt::Key_Left), enter}), 2);
  EXPECT_EQ(colour(30, true, {key(Qt::Key_Down), key(Qt::Key_Right), enter}), 41) << "a shade on, a hue on";
  EXPECT_EQ(colour(7, true, {key(Qt::Key_Down), enter}), 250) << "from the named ones to the greys";
  EXPECT_EQ(colour(250, true, {key(Qt::Key_Up), enter}), 1);
  EXPECT_EQ(colour(1, true, {key(Qt::Key_Left), enter}), 1) << "there is none before it";
  EXPECT_EQ(colour(255, true, {key(Qt::Key_Right), enter}), 255);
}

TEST_F(Choosers, ADoubleClickTakesAColour) {
  EXPECT_EQ(
      colour(7, true, {[&] { QTest::mouseDClick(&grid(), Qt::LeftButton, {}, grid().place(93).center()); }}),
      93);
}

TEST_F(Choosers, AColourCanFollowLayerOrBlockWhereThatIsAllowed) {
  EXPECT_EQ(colour(7, true, {[&] { pressText("ByLayer（随层）"); }, [&] { pressText("确定"); }}),
            UiFrontEnd::kColourByLayer);
  EXPECT_EQ(colour(7, true, {[&] { pressText("ByBlock（随块）"); }, [&] { pressText("确定"); }}),
            UiFrontEnd::kColourByBlock);
  std::size_t buttons = 0;
  EXPECT_EQ(colour(5, false,
                   {[&] { buttons = static_cast<std::size_t>(top()->findChildren<QPushButton*>().size()); },
                    [&] { pressText("确定"); }}),
            5);
  EXPECT_EQ(buttons, 2u) << "accept and give up";
  EXPECT_EQ(colour(UiFrontEnd::kColourByLayer, false, {[&] { pressText("确定"); }}), std::nullopt)
      << "no colour was chosen";
}

TEST_F(Choosers, ClicksBesideTheColoursChooseNothing) {
  EXPECT_EQ(colour(4, true,
                   {[&] { QTest::mouseClick(&grid(), Qt::LeftButton, {}, QPoint(grid().width() - 3, 8)); },
                    [&] { pressText("确定"); }}),
            4);
}

TEST_F(Choosers, AreGivenUp) {
  EXPECT_EQ(colour(7, true, {[&] { clickColour(2); }, [&] { pressText("取消"); }}), std::nullopt);
  EXPECT_EQ(colour(7, true, {[&] { clickColour(2); }}), std::nullopt) << "Escape";
  EXPECT_EQ(colour(7, true, {[&] { top()->close(); }}), std::nullopt);
  EXPECT_EQ(linetype(L"Continuous", {[&] { pressText("取消"); }}), std::nullopt);
  EXPECT_EQ(weight(25, {}), std::nullopt);
  EXPECT_EQ(file({L"打开", {}, {}, {}, false}, {}), std::nullopt);
}

// --- linetypes and weights

TEST_F(Choosers, ALinetypeIsOneOfTheDrawing) {
  addLinetype(L"点划线");
  addLinetype(L"DASHED");
  QStringList shown;
  int start = -1;
  EXPECT_EQ(linetype(L"dashed", {[&] {
                                   for (int i = 0; i < list().count(); ++i)
                                     shown.append(list().item(i)->text());
                                   start = list().currentRow();
                                 },
                                 [&] { clickEntry(list(), "点划线"); }, [&] { pressText("确定"); }}),
            CString(L"点划线"));
  EXPECT_EQ(shown.join(QLatin1Char(' ')).toStdString(), "ByBlock ByLayer Continuous 点划线 DASHED");
  EXPECT_EQ(start, 4) << "whatever the case of the letters";
}

TEST_F(Choosers, ALinetypeIsTakenByKeysAndByADoubleClick) {
  addLinetype(L"DASHED");
  EXPECT_EQ(linetype(L"Continuous", {[&] { QTest::keyClick(&list(), Qt::Key_Down); },
                                     [&] { QTest::keyClick(top(), Qt::Key_Return); }}),
            CString(L"DASHED"));
  EXPECT_EQ(linetype(L"Continuous", {[&] {
                       const QPoint at = list().visualItemRect(list().item(3)).center();
                       QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, at);
                       QTest::mouseDClick(list().viewport(), Qt::LeftButton, {}, at);
                     }}),
            CString(L"DASHED"));
}

TEST_F(Choosers, NothingIsTakenWhereNothingIsChosen) {
  EXPECT_EQ(linetype(L"没有", {[&] { pressText("确定"); }}), std::nullopt);
  EXPECT_EQ(weight(24, {[&] { pressText("确定"); }}), std::nullopt) << "no weight there is";
}

TEST_F(Choosers, WithoutADrawingThereAreNoLinetypes) {
  acdbHostApplicationServices()->setWorkingDatabase(nullptr);
  EXPECT_EQ(dialogs->ChooseLinetype(L"Continuous"), std::nullopt);
}

TEST_F(Choosers, ALineWeightIsClicked) {
  QString start;
  EXPECT_EQ(weight(25, {[&] { start = list().currentItem()->text(); }, [&] { clickEntry(list(), "2.11 mm"); },
                        [&] { pressText("确定"); }}),
            211);
  EXPECT_EQ(start, QStringLiteral("0.25 mm"));
  EXPECT_EQ(weight(25, {[&] { clickEntry(list(), "ByLayer（随层）"); }, [&] { pressText("确定"); }}),
            UiFrontEnd::kWeightByLayer);
  EXPECT_EQ(weight(25, {[&] { clickEntry(list(), "默认"); }, [&] { pressText("确定"); }}),
            UiFrontEnd::kWeightDefault);
}

// --- files

TEST_F(Choosers, AFileIsNamed) {
  const QString path = folder.filePath(QStringLiteral("图 1.dxf"));
  ASSERT_TRUE(QFile(path).open(QIODevice::WriteOnly));
  UiFileQuestion question{L"打开", desktop::FromQt(folder.path()), {}, {L"*.dxf"}, false};
  EXPECT_EQ(file(question, {name("图 1.dxf"), [&] { pressText("打开"); }}), desktop::FromQt(path));
  question.save = true;
  EXPECT_EQ(file(question, {name("新.dxf"), [&] { pressText("保存"); }}),
            desktop::FromQt(folder.filePath(QStringLiteral("新.dxf"))));
  EXPECT_EQ(file(question, {name("图 1.dxf"), [&] { pressText("保存"); }}), desktop::FromQt(path))
      << "whoever writes it asks about replacing it";
}

TEST_F(Choosers, AFileToOpenMustBeThere) {
  const UiFileQuestion question{L"打开", desktop::FromQt(folder.path()), {}, {L"*.dxf"}, false};
  QString told;
  EXPECT_EQ(file(question,
                 {name("没有.dxf"), [&] { QTest::keyClick(top()->findChild<QLineEdit*>(), Qt::Key_Return); },
                  [&] {
                    if (auto* box = dynamic_cast<QMessageBox*>(top())) told = box->text();
                    top()->close();
                  }}),
            std::nullopt);
  EXPECT_TRUE(told.contains(QStringLiteral("找不到文件"))) << told.toStdString();
}

} // namespace
