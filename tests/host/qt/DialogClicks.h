// Clicks and keys on the widgets of whatever dialog stands open.
#pragma once

#include "tests/host/qt/Desktop.h"

#include <QContextMenuEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QTableView>

#include <stdexcept>

class DialogClicks : public Desktop {
 protected:
  using Steps = std::vector<std::function<void()>>;

  // Calls what opens a dialog, and does the steps one after the other while it stands open. A step that opens
  // another dialog or a message box is over when that is closed; the next steps are for what it has opened.
  // Whatever is open behind the last step is closed with its close box.
  template <class Call> auto during(Call call, Steps steps) {
    std::size_t next = 0;
    std::vector<const QWidget*> within; // where the steps that are not over began
    // A timer of its own for each step: one that is within its own event doesn't run again.
    const auto waiting = std::make_shared<bool>(true);
    std::function<void()> goOn;
    const auto later = [&goOn, waiting] {
      QTimer::singleShot(0, [&goOn, waiting] {
        if (*waiting) goOn();
      });
    };
    goOn = [&] {
      later();
      QWidget* open = top();
      if (!open || (!within.empty() && within.back() == open)) return;
      within.push_back(open);
      if (next < steps.size())
        steps[next++]();
      else
        open->close();
      within.pop_back();
    };
    later();
    const auto result = call();
    *waiting = false;
    return result;
  }

  static QWidget* top() { return QApplication::activeModalWidget(); }
  // The widget of a caption; number tells which, where several have it.
  template <class Widget> static Widget& find(const char* caption, int number = 0) {
    const auto found = top()->findChildren<Widget*>(QString::fromUtf8(caption));
    if (number >= found.size()) throw std::runtime_error(std::string("no widget ") + caption);
    return *found[number];
  }
  static void press(const char* caption, int number = 0) {
    QTest::mouseClick(&find<QPushButton>(caption, number), Qt::LeftButton);
  }
  // A button that is known by what stands on it alone, as in message boxes.
  static void pressText(const char* text) {
    for (auto* button : top()->findChildren<QPushButton*>())
      if (button->text() == QString::fromUtf8(text)) return QTest::mouseClick(button, Qt::LeftButton);
    ADD_FAILURE() << "no button " << text;
  }
  static void clickCell(const char* caption, int row, int column) {
    auto& table = find<QTableView>(caption);
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, cell(table, row, column));
  }
  static void doubleClickCell(const char* caption, int row, int column) {
    auto& table = find<QTableView>(caption);
    QTest::mouseDClick(table.viewport(), Qt::LeftButton, {}, cell(table, row, column));
  }
  static QPoint cell(QTableView& table, int row, int column) {
    table.scrollTo(table.model()->index(row, column));
    return table.visualRect(table.model()->index(row, column)).center();
  }
  static QString shown(const char* caption, int row, int column) {
    return find<QTableView>(caption).model()->index(row, column).data().toString();
  }
  static void clickEntry(QListWidget& list, const char* text) {
    const auto found = list.findItems(QString::fromUtf8(text), Qt::MatchExactly);
    ASSERT_EQ(found.size(), 1) << text;
    list.scrollToItem(found[0]);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(found[0]).center());
  }
  // Right-clicks there, and chooses a command of the menu that opens.
  static void chooseFromMenu(QAbstractScrollArea& area, const QPoint& at, const char* command) {
    QTimer::singleShot(20, [command] {
      auto* menu = dynamic_cast<QMenu*>(QApplication::activePopupWidget());
      ASSERT_TRUE(menu);
      for (QAction* action : menu->actions())
        if (action->text() == QString::fromUtf8(command)) menu->setActiveAction(action);
      EXPECT_TRUE(menu->activeAction()) << command;
      QTest::keyClick(menu, menu->activeAction() ? Qt::Key_Return : Qt::Key_Escape);
    });
    QContextMenuEvent event(QContextMenuEvent::Mouse, at, area.viewport()->mapToGlobal(at));
    QApplication::sendEvent(area.viewport(), &event);
  }
  static void chooseFromMenu(const char* table, int row, const char* command) {
    auto& shown = find<QTableView>(table);
    chooseFromMenu(shown, cell(shown, row, 0), command);
  }
  static QWidget& editor() { return find<QWidget>("cellEditor"); }
  static void typeInto(QWidget& widget, const char* text) { TypeText(&widget, QString::fromUtf8(text)); }
  // Types over what stands in the field. A field is neither entered nor left while its window isn't active,
  // and without a window manager nobody makes it so again behind a window that was above it.
  static void retype(QLineEdit& line, const char* text) {
    line.window()->activateWindow();
    EXPECT_TRUE(QTest::qWaitFor([&] { return line.isActiveWindow(); }));
    line.setFocus();
    line.selectAll();
    QTest::keyClick(&line, Qt::Key_Delete);
    typeInto(line, text);
  }
};
