// A dialog in the window, and a user who clicks and types in it step by step.
#pragma once

#include "tests/host/qt/Desktop.h"
#include "tests/host/qt/EveryKind.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTableView>

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
