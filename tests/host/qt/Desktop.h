// The desktop on a screen that nobody sees: a window with the editor behind it, and real clicks and keys.
#pragma once

#include "host/commands/HostCommands.h"
#include "host/ed/AcApDocManager.h"
#include "host/ed/AcEdCommandStack.h"
#include "host/ed/EdSession.h"
#include "host/ed/EntitySearch.h"
#include "host/ed/SystemVariables.h"
#include "host/ed/acedCommand.h"
#include "host/qt/DesktopFrontEnd.h"
#include "host/qt/QtText.h"
#include "host/qt/canvas/Canvas.h"
#include "host/qt/dialogs/DesktopDialogs.h"
#include "host/qt/window/CommandEdit.h"
#include "host/qt/window/CommandPanel.h"
#include "host/qt/window/MainWindow.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QSettings>
#include <QTabBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

// The one application of all tests, offscreen.
QApplication& TestApplication();

// Types a text of any script.
void TypeText(QWidget* widget, const QString& text);

// What the user does, step by step, while the editor waits.
class Desktop : public ::testing::Test {
 protected:
  Desktop();
  ~Desktop() override;

  // Runs the editor; each step is done when the window has come to rest after the one before. Then it ends.
  void run(std::vector<std::function<void()>> steps);

  void type(const char* text) { TypeText(&edit(), QString::fromUtf8(text)); }
  void key(Qt::Key key) { QTest::keyClick(&edit(), key); }
  void enter(const char* text) {
    type(text);
    key(Qt::Key_Return);
  }
  // A click of the left button where that point of the drawing is shown.
  void click(double x, double y, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
  void hover(double x, double y);
  QPoint at(double x, double y);
  // A view of 0,0 to 800,600, a pixel for a unit where the canvas has that size.
  void look(double centreX, double centreY, double height);

  desktop::CommandEdit& edit() { return window->panel().edit(); }
  desktop::Canvas& canvas() { return window->canvas(); }
  std::string said() { return window->panel().history().toStdString(); }
  std::size_t entityCount() { return ed::DrawnEntities(*curDoc()->database()).size(); }
  // What is drawn last.
  template <class Entity> const Entity* last() {
    return Entity::cast(ed::LastEntity(*curDoc()->database()).object());
  }

  QTemporaryDir folder;
  QSettings settings;
  desktop::CommandFeed feed;
  desktop::CommandTitles titles;
  std::unique_ptr<desktop::MainWindow> window;
  std::unique_ptr<desktop::DesktopFrontEnd> frontEnd;
  std::unique_ptr<desktop::DesktopDialogs> dialogs;
};
