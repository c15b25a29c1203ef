#include "host/db/AcDbCurves.h"
#include "host/ed/ArxDbgUtils.h"
#include "host/ui/CAcUiDockControlBar.h"
#include "tests/host/qt/DialogView.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDockWidget>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QRadioButton>
#include <QTabWidget>
#include <QTreeWidget>

namespace {

TEST_F(DialogView, EndsByItsButtons) {
  show({[&] { press("确定"); }});
  EXPECT_EQ(IDOK, result);
  show({[&] { press("取消"); }});
  EXPECT_EQ(IDCANCEL, result);
}

TEST_F(DialogView, EndsByEnterAndEscape) {
  show({[&] { QTest::keyClick(&find<QLineEdit>("文字："), Qt::Key_Return); }});
  EXPECT_EQ(IDOK, result);
  show({[&] { QTest::keyClick(&find<QLineEdit>("文字："), Qt::Key_Escape); }});
  EXPECT_EQ(IDCANCEL, result);
}

TEST_F(DialogView, EndsByItsCloseBox) {
  bool closing = false;
  show({[&] { clickCell("管材", 0, 0); }, [&] { clickCell("管材", 0, 0); },
        [&] {
          dialog.list.EditEnded.Connect([&](UiEditEnd& end) { closing = end.closing; });
          top()->close();
        }});
  EXPECT_EQ(IDCANCEL, result);
  EXPECT_TRUE(closing);
}

TEST_F(DialogView, TypesIntoAField) {
  int changes = 0;
  int left = 0;
  dialog.text.TextChanged.Connect([&] { ++changes; });
  dialog.text.Left.Connect([&] { ++left; });
  show({[&] { find<QLineEdit>("文字：").setFocus(); },
        [&] { TypeText(&find<QLineEdit>("文字："), QStringLiteral("管道")); },
        [&] { QTest::keyClick(&find<QLineEdit>("文字："), Qt::Key_Tab); }, [&] { EXPECT_EQ(1, left); }});
  EXPECT_EQ(CString(L"管道"), dialog.text.GetText());
  EXPECT_EQ(2, changes);
}

TEST_F(DialogView, TakesOnlyNumbersAndStepsThem) {
  QString shown;
  show({[&] {
          auto* line = find<QWidget>("数值：").findChild<QLineEdit*>();
          TypeText(line, QStringLiteral("1x2"));
          shown = line->text();
        },
        [&] { QTest::keyClick(&find<QWidget>("数值："), Qt::Key_Up); }});
  EXPECT_EQ(QStringLiteral("12"), shown);
  EXPECT_EQ(CString(L"12.5"), dialog.number.GetText());
}

TEST_F(DialogView, ChoosesInDropDownListsAndLists) {
  show({[&] {
          QTest::keyClick(&find<QComboBox>("选择："), Qt::Key_Down);
          QTest::keyClick(&find<QComboBox>("选择："), Qt::Key_Down);
        },
        [&] {
          auto& list = find<QListWidget>("列表");
          QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(1)).center());
        }});
  EXPECT_EQ(1, dialog.combo.GetCurSel());
  EXPECT_EQ(CString(L"丑"), dialog.names.SelectedText());
}

TEST_F(DialogView, TellsOfAClickOnTheEntryThatIsSelectedAlready) {
  std::vector<int> chosen;
  dialog.names.SelectionChanged.Connect([&] { chosen.push_back(dialog.names.GetCurSel()); });
  const auto clickRow = [](int row) {
    return [=] {
      auto& list = find<QListWidget>("列表");
      QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(row)).center());
    };
  };
  show({clickRow(1), clickRow(1), clickRow(0)});
  EXPECT_EQ(chosen, (std::vector<int>{1, 1, 0})) << "once for each click";
}

TEST_F(DialogView, TypesIntoADropDownListThatTakesFreeText) {
  QString shown;
  int at = 0;
  show({[&] { TypeText(find<QComboBox>("自由：").lineEdit(), QStringLiteral("甲35.5")); },
        [&] {
          auto& line = *find<QComboBox>("自由：").lineEdit();
          for (int i = 0; i < 3; ++i) QTest::keyClick(&line, Qt::Key_Left);
          TypeText(&line, QStringLiteral("0"));
          shown = line.text();
          at = line.cursorPosition();
        }});
  EXPECT_EQ(QStringLiteral("甲305.5"), shown);
  EXPECT_EQ(3, at) << "the cursor stays where the user types";
  EXPECT_EQ(CString(L"甲305.5"), dialog.free.GetText());
  EXPECT_EQ(-1, dialog.free.GetCurSel());
}

TEST_F(DialogView, FindsTypedEntriesOfADropDownListAndEndsByEnter) {
  show({[&] { TypeText(find<QComboBox>("自由：").lineEdit(), QStringLiteral("35")); },
        [&] { QTest::keyClick(find<QComboBox>("自由：").lineEdit(), Qt::Key_Return); }});
  EXPECT_EQ(IDOK, result);
  EXPECT_EQ(CString(L"35"), dialog.free.GetText());
  EXPECT_EQ(1, dialog.free.GetCurSel());
}

TEST_F(DialogView, CutsTheLinesOfALabelThatNoWindowHasRoomFor) {
  QString shown;
  int width = 0;
  show({[&] { dialog.label.SetCaption(L"短\n" + CString(std::wstring(100000, L'长'))); },
        [&] {
          shown = find<QLabel>("说明").text();
          width = top()->width();
        }});
  EXPECT_EQ(QStringLiteral("短\n") + QString(80, QChar(u'长')) + QStringLiteral("……"), shown);
  EXPECT_LT(width, 2000);
}

TEST_F(DialogView, ShowsTheLinesOfALabel) {
  dialog.label.SetCaption(L"系数a：0.20 \r\n\r\n系数b\r：1.20");
  QString shown;
  show({[&] { shown = find<QLabel>("系数a：0.20 \r\n\r\n系数b\r：1.20").text(); }});
  EXPECT_EQ(QStringLiteral("系数a：0.20 \n\n系数b\uFFFD：1.20"), shown);
}

TEST_F(DialogView, TicksAndChoosesOneOfSeveral) {
  show({[&] { QTest::keyClick(&find<QCheckBox>("勾选"), Qt::Key_Space); },
        [&] {
          for (auto* button : find<QWidget>("单选").findChildren<QRadioButton*>())
            if (button->text() == QStringLiteral("右")) QTest::keyClick(button, Qt::Key_Space);
        }});
  EXPECT_TRUE(dialog.tick.GetCheck());
  EXPECT_EQ(1, dialog.choice.GetCurSel());
}

TEST_F(DialogView, TicksATreeWithAllBelow) {
  show({[&] {
    auto& tree = find<QTreeWidget>("树");
    tree.topLevelItem(0)->setCheckState(0, Qt::Checked);
  }});
  const HTREEITEM top = dialog.tree.GetRootItem();
  EXPECT_TRUE(dialog.tree.GetCheck(top));
  EXPECT_TRUE(dialog.tree.GetCheck(top->children[1].get()));
}

TEST_F(DialogView, SelectsAndFoldsItemsOfATree) {
  show({[&] {
          auto& tree = find<QTreeWidget>("树");
          auto* item = tree.topLevelItem(0)->child(1);
          QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualItemRect(item).center());
        },
        [&] { EXPECT_EQ(CString(L"回水"), dialog.tree.GetSelectedItem()->text); },
        [&] { find<QTreeWidget>("树").topLevelItem(0)->setExpanded(false); }});
  EXPECT_FALSE(dialog.tree.GetRootItem()->expanded);
}

TEST_F(DialogView, EditsACellByDoubleClickAndEnter) {
  show({[&] {
          auto& table = find<QTableView>("管材");
          QTest::mouseDClick(table.viewport(), Qt::LeftButton, {},
                             table.visualRect(table.model()->index(0, 0)).center());
        },
        [&] { TypeText(&editor(), QStringLiteral("铜管")); },
        [&] { QTest::keyClick(&editor(), Qt::Key_Return); }, [&] { EXPECT_FALSE(dialog.HasEnded()); }});
  EXPECT_EQ(CString(L"铜管"), dialog.list.GetItemText(0, 0));
}

TEST_F(DialogView, GivesUpAnEditByEscapeAndStaysOpen) {
  show({[&] { clickCell("管材", 0, 0); }, [&] { clickCell("管材", 0, 0); },
        [&] { TypeText(&editor(), QStringLiteral("x")); },
        [&] { QTest::keyClick(&editor(), Qt::Key_Escape); }, [&] { EXPECT_FALSE(dialog.HasEnded()); }});
  EXPECT_EQ(CString(L"镀锌钢管"), dialog.list.GetItemText(0, 0));
}

TEST_F(DialogView, BeginsAnEditByTypingAndGoesOnByTab) {
  show({[&] { clickCell("表格", 1, 1); }, [&] { TypeText(&find<QTableView>("表格"), QStringLiteral("9")); },
        [&] { QTest::keyClick(&editor(), Qt::Key_Tab); }, [&] { TypeText(&editor(), QStringLiteral("7")); },
        [&] { QTest::keyClick(&editor(), Qt::Key_Return); }});
  EXPECT_EQ(CString(L"9"), dialog.grid.GetItemText(1, 1));
  EXPECT_EQ(CString(L"7"), dialog.grid.GetItemText(2, 0));
}

TEST_F(DialogView, MovesInATableByArrowKeysPastFixedRows) {
  show({[&] { clickCell("表格", 2, 1); }, [&] { QTest::keyClick(&find<QTableView>("表格"), Qt::Key_Up); },
        [&] { QTest::keyClick(&find<QTableView>("表格"), Qt::Key_Up); },
        [&] { QTest::keyClick(&find<QTableView>("表格"), Qt::Key_Left); }});
  EXPECT_EQ(1, dialog.grid.GetFocusRow());
  EXPECT_EQ(0, dialog.grid.GetFocusColumn());
}

TEST_F(DialogView, PressesACellByTheMouseAndByKeysAlone) {
  std::vector<int> pressed;
  dialog.grid.SetColumnPressed(1, true);
  dialog.grid.SetMultiSelect(true);
  dialog.grid.Menu.SetProvider([] { return std::vector<UiMenuItem>(); });
  dialog.grid.CellPressed.Connect([&](int row, int) { pressed.push_back(row); });
  const auto key = [&](Qt::Key code) { QTest::keyClick(&find<QTableView>("表格"), code); };
  const auto mouse = [&](Qt::MouseButton button, Qt::KeyboardModifiers modifiers, int row) {
    auto& table = find<QTableView>("表格");
    QTest::mouseClick(table.viewport(), button, modifiers, cell(table, row, 1));
  };
  show({[&] { clickCell("表格", 1, 1); }, [&] { key(Qt::Key_Down); },
        [&] { mouse(Qt::LeftButton, Qt::ControlModifier, 1); },
        [&] { mouse(Qt::LeftButton, Qt::ShiftModifier, 2); },
        [&] { mouse(Qt::RightButton, Qt::NoModifier, 1); },
        [&] {
          auto& table = find<QTableView>("表格");
          QTest::mousePress(table.viewport(), Qt::LeftButton, {}, cell(table, 1, 1));
          QTest::mouseRelease(table.viewport(), Qt::LeftButton, {}, cell(table, 2, 0));
        },
        [&] { EXPECT_EQ(pressed, (std::vector<int>{1})) << "nothing but the click"; },
        [&] { clickCell("表格", 2, 0); }, [&] { key(Qt::Key_Right); }, [&] { key(Qt::Key_Space); },
        [&] { key(Qt::Key_Return); }});
  EXPECT_EQ(pressed, (std::vector<int>{1, 2, 2}));
}

TEST_F(DialogView, ChoosesInADropDownCell) {
  show({[&] { clickCell("管材", 1, 1); }, [&] {},
        [&] {
          auto& combo = dynamic_cast<QComboBox&>(editor());
          combo.hidePopup();
          combo.setCurrentIndex(1);
          Q_EMIT combo.activated(1);
        }});
  EXPECT_EQ(CString(L"DN32"), dialog.list.GetItemText(1, 1));
}

TEST_F(DialogView, KeepsARefusedEditOpenAndDoesNotDoTheOtherThing) {
  int pressed = 0;
  dialog.add.Clicked.Connect([&] { ++pressed; });
  dialog.list.EditEnded.Connect([](UiEditEnd& end) { end.reopen = !end.cancelled && end.text.IsEmpty(); });
  QString open;
  show({[&] { clickCell("管材", 0, 0); }, [&] { clickCell("管材", 0, 0); },
        [&] { QTest::keyClick(&editor(), Qt::Key_Delete); }, [&] { press("添加"); },
        [&] { open = editor().objectName(); }, [&] { QTest::keyClick(&editor(), Qt::Key_Escape); }});
  EXPECT_EQ(0, pressed);
  EXPECT_EQ(QStringLiteral("cellEditor"), open);
}

TEST_F(DialogView, ShowsRowsThatTheDialogAdds) {
  dialog.add.Clicked.Connect([&] { dialog.list.AddRow({L"新", L"DN15"}); });
  show({[&] { press("添加"); },
        [&] {
          const auto* model = find<QTableView>("管材").model();
          ASSERT_EQ(3, model->rowCount());
          EXPECT_EQ(QStringLiteral("新"), model->index(2, 0).data().toString());
        }});
}

TEST_F(DialogView, ShowsMergedCellsAndColours) {
  dialog.grid.MergeCells(1, 0, 2, 0);
  dialog.grid.SetCellColours(1, 1, RGB(255, 0, 0));
  show({[&] {
    auto& table = find<QTableView>("表格");
    EXPECT_EQ(2, table.rowSpan(1, 0));
    EXPECT_EQ(QColor(255, 0, 0), table.model()->index(1, 1).data(Qt::BackgroundRole).value<QBrush>().color());
  }});
}

TEST_F(DialogView, AColourFieldStaysToBeSeenInASelectedRow) {
  dialog.list.SetCellColours(1, 1, RGB(255, 0, 0), RGB(255, 0, 0));
  dialog.list.SetCurSel(1);
  show({[&] {
    const auto colorAt = [&](int column) {
      const auto* model = find<QTableView>("管材").model();
      return model->index(1, column).data(Qt::BackgroundRole).value<QBrush>().color();
    };
    EXPECT_EQ(QColor(255, 0, 0), colorAt(1));
    EXPECT_NE(colorAt(0), colorAt(1));
    EXPECT_NE(colorAt(0), QColor(Qt::white));
  }});
}

TEST_F(DialogView, OpensTheMenuOfARow) {
  int chosen = 0;
  dialog.list.Menu.SetProvider([] { return std::vector<UiMenuItem>{{7, L"删除", true}}; });
  dialog.list.Menu.Chosen.Connect([&](int id) { chosen = id; });
  show({[&] {
    auto& table = find<QTableView>("管材");
    const QPoint at = table.visualRect(table.model()->index(1, 0)).center();
    QTimer::singleShot(20, [] {
      auto* menu = QApplication::activePopupWidget();
      ASSERT_TRUE(menu);
      QTest::keyClick(menu, Qt::Key_Down);
      QTest::keyClick(menu, Qt::Key_Return);
    });
    QContextMenuEvent event(QContextMenuEvent::Mouse, at, table.viewport()->mapToGlobal(at));
    QApplication::sendEvent(table.viewport(), &event);
  }});
  EXPECT_EQ(7, chosen);
  EXPECT_EQ(1, dialog.list.GetCurSel());
}

TEST_F(DialogView, ChangesPropertiesByTheirFields) {
  int pressed = -1;
  dialog.properties.ButtonPressed.Connect([&](int item) { pressed = item; });
  show({[&] {
          auto& line = dynamic_cast<QLineEdit&>(find<QWidget>("名称"));
          line.setFocus();
          line.selectAll();
          TypeText(&line, QStringLiteral("乙"));
          QTest::keyClick(&line, Qt::Key_Return);
        },
        [&] { QTest::keyClick(&find<QComboBox>("类型"), Qt::Key_Down); },
        [&] { QTest::mouseClick(&find<QPushButton>("图块"), Qt::LeftButton); },
        [&] { EXPECT_FALSE(dialog.HasEnded()); }});
  EXPECT_EQ(CString(L"乙"), dialog.properties.GetText(0));
  EXPECT_EQ(CString(L"卧式"), dialog.properties.GetText(1));
  EXPECT_EQ(2, pressed);
}

TEST_F(DialogView, TurnsThePagesOfATabSheet) {
  show({[&] {
          auto& sheet = find<QTabWidget>("页");
          QTest::mouseClick(sheet.tabBar(), Qt::LeftButton, {}, sheet.tabBar()->tabRect(1).center());
        },
        [&] {
          auto* line = find<QTabWidget>("页").currentWidget()->findChild<QLineEdit*>();
          TypeText(line, QStringLiteral("b"));
        }});
  EXPECT_EQ(1, dialog.sheet.GetActiveIndex());
  EXPECT_EQ(CString(L"b"), dialog.second.name.GetText());
  EXPECT_TRUE(dialog.first.name.GetText().IsEmpty());
}

TEST_F(DialogView, ShowsWhatIsReadOnlyOnTheGroundOfTheWindow) {
  const auto ground = [](const char* field) { return find<QWidget>(field).palette().color(QPalette::Base); };
  const QColor around = QApplication::palette().color(QPalette::Window);
  show({[&] { EXPECT_EQ(QColor(Qt::white), ground("文字：")); }, [&] { dialog.text.SetReadOnly(true); },
        [&] { EXPECT_EQ(around, ground("文字：")); }, [&] { dialog.number.SetReadOnly(true); },
        [&] { EXPECT_EQ(around, ground("数值：")); }, [&] { dialog.text.SetReadOnly(false); },
        [&] { EXPECT_EQ(QColor(Qt::white), ground("文字：")); }});
}

TEST_F(DialogView, FollowsWhatIsDisabledHiddenAndFocused) {
  show({[&] { dialog.text.EnableWindow(false); },
        [&] { EXPECT_FALSE(find<QLineEdit>("文字：").isEnabled()); }, [&] { dialog.tick.ShowWindow(false); },
        [&] { EXPECT_FALSE(find<QCheckBox>("勾选").isVisible()); }, [&] { dialog.combo.SetFocus(); },
        [&] { EXPECT_TRUE(find<QComboBox>("选择：").hasFocus()); }});
}

TEST_F(DialogView, StepsAsideForAPickInTheDrawing) {
  bool hidden = false;
  dialog.add.Clicked.Connect([&] {
    dialog.BeginEditorCommand();
    QTimer::singleShot(20, [&] {
      hidden = !QApplication::activeModalWidget();
      enter("8,9");
    });
    acedCommandTexts({L"POINT"});
    const auto answer = frontEnd->readLine(L"点:");
    dialog.text.SetText(answer.value_or(L""));
    dialog.CompleteEditorCommand();
  });
  show({[&] { press("添加"); }, [&] { EXPECT_TRUE(top() && top()->isVisible()); }});
  EXPECT_TRUE(hidden);
  EXPECT_EQ(CString(L"8,9"), dialog.text.GetText());
}

TEST_F(DialogView, ShowsAllOfADrawingInAPreview) {
  const AcGePoint3d corners[] = {{0, 0, 0}, {500, 0, 0}, {500, 300, 0}, {0, 300, 0}};
  for (int i = 0; i < 4; ++i)
    ASSERT_EQ(ArxDbgUtils::addToCurrentSpaceAndClose(new AcDbLine(corners[i], corners[(i + 1) % 4])),
              Acad::eOk);
  dialog.preview.SetDrawing(curDoc()->database());
  QImage image;
  show({[&] { image = find<QWidget>("预览").grab().toImage(); }});
  const auto isLine = [&](int x, int y) { return qGray(image.pixel(x, y)) < 64; };
  QRect box;
  for (int x = 0; x < image.width(); ++x)
    for (int y = 0; y < image.height(); ++y)
      if (isLine(x, y)) box |= QRect(x, y, 1, 1);
  ASSERT_GT(box.height(), image.height() / 2);
  for (const int y : {box.top(), box.bottom()})
    for (int x = box.left(); x <= box.right(); ++x) EXPECT_TRUE(isLine(x, y)) << x << "," << y;
  for (const int x : {box.left(), box.right()})
    for (int y = box.top(); y <= box.bottom(); ++y) EXPECT_TRUE(isLine(x, y)) << x << "," << y;
  EXPECT_NEAR(static_cast<double>(box.width()) / box.height(), 500.0 / 300, 0.05) << "nothing is cut off";
  dialog.preview.SetDrawing(nullptr);
}

TEST_F(DialogView, AnswersAMessageBox) {
  int answer = 0;
  dialog.add.Clicked.Connect(
      [&] { answer = dialog.MessageBox(L"删除吗？", L"提示", MB_YESNO | MB_ICONQUESTION); });
  show({[&] {
    QTimer::singleShot(20, [] {
      auto* box = dynamic_cast<QMessageBox*>(QApplication::activeModalWidget());
      ASSERT_TRUE(box);
      EXPECT_EQ(QStringLiteral("删除吗？"), box->text());
      QTest::mouseClick(box->buttons().last(), Qt::LeftButton);
    });
    press("添加");
  }});
  EXPECT_EQ(IDNO, answer);
}

TEST_F(DialogView, ShortensAMessageOfAnyLength) {
  dialog.add.Clicked.Connect([&] {
    dialog.MessageBox(L"【" + CString(std::wstring(100000, L'长')) + L"】已经存在", L"提示", MB_OK);
  });
  QSize size;
  show({[&] {
    QTimer::singleShot(20, [&] {
      auto* box = dynamic_cast<QMessageBox*>(QApplication::activeModalWidget());
      ASSERT_TRUE(box);
      size = box->size();
      EXPECT_TRUE(box->text().endsWith(QStringLiteral("】已经存在")));
      QTest::mouseClick(box->buttons().last(), Qt::LeftButton);
    });
    press("添加");
  }});
  EXPECT_LE(size.width(), 800);
  EXPECT_LE(size.height(), 800);
}

class Bar : public CAcUiDockControlBar {
 public:
  UiLayout Layout() override { return ui::Column({ui::Item(press)}); }
  CButton press{*this, L"执行"};
};

TEST_F(DialogView, DocksABarBesideTheDrawing) {
  int pressed = 0;
  {
    Bar bar;
    bar.press.Clicked.Connect([&] { ++pressed; });
    bar.EnableDocking(CAcUiDockControlBar::kDockLeft | CAcUiDockControlBar::kDockRight);
    bar.DockTo(CAcUiDockControlBar::kDockRight);
    ASSERT_TRUE(bar.Create(window->frame(), L"工具"));
    bar.ShowBar(true);
    auto* dock = window->findChild<QDockWidget*>(QStringLiteral("工具"));
    ASSERT_TRUE(dock);
    EXPECT_EQ(Qt::RightDockWidgetArea, window->dockWidgetArea(dock));
    QTest::mouseClick(dock->findChild<QPushButton*>(), Qt::LeftButton);
    dock->close();
    EXPECT_FALSE(bar.IsWindowVisible());
  }
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(1, pressed);
  EXPECT_FALSE(window->findChild<QDockWidget*>(QStringLiteral("工具")));
}

} // namespace
