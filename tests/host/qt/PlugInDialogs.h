// The plug-in's dialogs in the window, over catalogues of the test's own.
#pragma once

#include "plugin/pipes/OwnedElements.h"
#include "plugin/pipes/dialogs/ShowPipeDialogs.h"
#include "plugin/pipes/ducts/CZPDuctMaterialManager.h"
#include "plugin/pipes/limits/CZPFlowVelocityMng.h"
#include "tests/host/qt/DialogClicks.h"
#include "tests/support/TempInstall.h"

#include <QComboBox>
#include <QMessageBox>

class PlugInDialogs : public DialogClicks {
 protected:
  // What the message box on top says, which is then answered with that button.
  static std::function<void()> answer(QString& told, const char* button) {
    return [&told, button] {
      if (auto* box = dynamic_cast<QMessageBox*>(top())) told = box->text();
      pressText(button);
    };
  }
  static std::function<void()> key(Qt::Key code) {
    return [code] {
      QWidget* focus = top()->focusWidget();
      QTest::keyClick(focus ? focus : top(), code);
    };
  }
  // Types over what the open cell holds, and finishes the edit with Enter.
  static std::function<void()> enterCell(const char* text) {
    return [text] {
      QTest::keyClick(&editor(), Qt::Key_Delete); // it is selected as a whole
      typeInto(editor(), text);
      QTest::keyClick(&editor(), Qt::Key_Return);
    };
  }
  static std::function<void()> doubleClick(const char* caption, int row, int column) {
    return [=] { doubleClickCell(caption, row, column); };
  }
  static std::function<void()> click(const char* caption, int row, int column) {
    return [=] { clickCell(caption, row, column); };
  }
  static std::function<void()> pressing(const char* caption, int number = 0) {
    return [=] { press(caption, number); };
  }
  TempInstall install;
};
