#include "host/ui/CAcUiDockControlBar.h"
#include "host/ui/CButton.h"
#include "host/ui/CCheckBox.h"
#include "host/ui/CComboBox.h"
#include "host/ui/CDialog.h"
#include "host/ui/CDrawingPreview.h"
#include "host/ui/CEditListCtrl.h"
#include "host/ui/CGridCtrl.h"
#include "host/ui/CListBox.h"
#include "host/ui/CMutiTreeCtrl.h"
#include "host/ui/CNumberEdit.h"
#include "host/ui/CPictureBox.h"
#include "host/ui/CPropTree.h"
#include "host/ui/CRadioGroup.h"
#include "host/ui/CStatic.h"
#include "host/ui/CTabSheet.h"
#include "tests/host/qt/Desktop.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTableView>
#include <QTreeWidget>

namespace {

class Page : public CPropertyPage {
 public:
  using CPropertyPage::CPropertyPage;
  UiLayout Layout() override { return ui::Column({ui::Item(name)}); }
  CEdit name{*this, L"名称："};
};

// Every kind of control, and no rules but those that a test adds.
class EveryKind : public CDialog {
 public:
  EveryKind() : CDialog(L"全部控件") {
    list.AddColumn(L"名称", 120);
    list.AddColumn(L"管径", 80);
    list.AddRow({L"镀锌钢管", L"DN20"});
    list.AddRow({L"无缝钢管", L"DN25"});
    list.SetCellChoices(1, 1,
                        std::make_shared<const std::vector<CString>>(std::vector<CString>{L"DN25", L"DN32"}));
    grid.SetHeading({{L"序号", 60}, {L"值", 90}});
    grid.AddRow({L"1", L"0.5"});
    grid.AddRow({L"2", L"0.7"});
    grid.SetCellReadOnly(1, 0, true);
    HTREEITEM top = tree.InsertItem(L"采暖");
    tree.InsertItem(L"供水", top);
    tree.InsertItem(L"回水", top);
    tree.Expand(top);
    properties.AddGroup(L"基本");
    properties.AddItem(
        {L"名称", CPropTreeItem::Kind::text, L"甲", {}, L"设备的名称", false, false, false, nullptr});
    properties.AddItem({L"类型",
                        CPropTreeItem::Kind::choice,
                        L"立式",
                        {L"立式", L"卧式"},
                        {},
                        false,
                        false,
                        false,
                        nullptr});
    properties.AddItem({L"图块", CPropTreeItem::Kind::button, L"a.dwg", {}, {}, false, true, false, nullptr});
    combo.AddString(L"一");
    combo.AddString(L"二");
    names.AddString(L"子");
    names.AddString(L"丑");
    sheet.AddPage(first);
    sheet.AddPage(second);
    ok.Clicked.Connect([this] { OnOK(); });
    cancel.Clicked.Connect([this] { OnCancel(); });
  }
  UiLayout Layout() override {
    return ui::Column({ui::Item(label), ui::Item(text), ui::Item(number), ui::Item(combo), ui::Item(tick),
                       ui::Item(choice), ui::Row({ui::Item(names), ui::Item(tree), ui::Item(properties)}),
                       ui::Row({ui::Item(list), ui::Column({ui::Item(add)})}), ui::Item(grid),
                       ui::Item(sheet), ui::Row({ui::Item(picture), ui::Item(preview)}),
                       ui::Row({ui::Space(), ui::Item(ok), ui::Item(cancel)})});
  }
  CStatic label{*this, L"说明"};
  CEdit text{*this, L"文字："};
  CNumberEdit number{*this, L"数值：", {0.5, 0, 2}};
  CComboBox combo{*this, L"选择："};
  CCheckBox tick{*this, L"勾选"};
  CRadioGroup choice{*this, L"单选", {L"左", L"右"}};
  CListBox names{*this, L"列表"};
  CMutiTreeCtrl tree{*this, L"树"};
  CPropTree properties{*this, L"特性"};
  CEditListCtrl list{*this, L"管材"};
  CButton add{*this, CButton::Image::add, L"添加"};
  CGridCtrl grid{*this, L"表格"};
  CTabSheet sheet{*this, L"页"};
  Page first{*this, L"第一页"};
  Page second{*this, L"第二页"};
  CPictureBox picture{*this, L"图片"};
  CDrawingPreview preview{*this, L"预览"};
  CButton ok{*this, L"确定", CButton::Role::accept};
  CButton cancel{*this, L"取消", CButton::Role::cancel};
};

class DialogView : public Desktop {
 protected:
  EveryKind dialog;

  // Shows the dialog, does the steps in it, and closes it where it still stands.
  void show(std::vector<std::function<void()>> steps) {
    std::size_t next = 0;
    QTimer timer;
    bool busy = false;
    QObject::connect(&timer, &QTimer::timeout, [&] {
      if (busy) return;
      busy = true;
      if (next < steps.size() && !dialog.HasEnded())
        steps[next++]();
      else
        dialog.UserClose();
      busy = false;
    });
    timer.start(0);
    result = dialog.DoModal();
  }
  static QWidget* top() { return QApplication::activeModalWidget(); }
  template <class Widget> static Widget& find(const char* caption) {
    auto* widget = top()->findChild<Widget*>(QString::fromUtf8(caption));
    if (!widget) throw std::runtime_error(std::string("no widget ") + caption);
    return *widget;
  }
  static void press(const char* caption) { QTest::mouseClick(&find<QPushButton>(caption), Qt::LeftButton); }
  static void clickCell(const char* caption, int row, int column) {
    auto& table = find<QTableView>(caption);
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {},
                      table.visualRect(table.model()->index(row, column)).center());
  }
  static QWidget& editor() { return find<QWidget>("cellEditor"); }
  int result = 0;
};

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
