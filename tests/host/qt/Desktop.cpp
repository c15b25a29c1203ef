#include "tests/host/qt/Desktop.h"

#include "host/ed/ViewState.h"
#include "host/qt/Theme.h"

#include <cstdlib>

QApplication& TestApplication() {
  static int argc = 1;
  static char name[] = "test";
  static char* argv[] = {name, nullptr};
  static QApplication* application = [] {
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    auto* made = new QApplication(argc, argv);
    desktop::ApplyTheme(*made);
    return made;
  }();
  return *application;
}

void TypeText(QWidget* widget, const QString& text) {
  for (const QChar c : text) {
    if (c.unicode() < 0x80) {
      QTest::keyClick(widget, c.toLatin1());
      continue;
    }
    QKeyEvent press(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QString(c));
    QApplication::sendEvent(widget, &press);
  }
}

Desktop::Desktop()
    : settings((TestApplication(), folder.filePath(QStringLiteral("zpcad.ini"))), QSettings::IniFormat),
      titles(commands::Title) {
  commands::RegisterHostCommands();
  EdSession::instance().reset();
  window = std::make_unique<desktop::MainWindow>(feed, titles, settings);
  frontEnd = std::make_unique<desktop::DesktopFrontEnd>(feed, *window);
  dialogs = std::make_unique<desktop::DesktopDialogs>(*window, [this] { feed.wake(); });
  dialogs->settings = &settings;
  EdSession::instance().setFrontEnd(frontEnd.get());
  UiFrontEnd::Set(dialogs.get());
  window->resize(1000, 800);
  window->show();
  acDocManager->newDocument();
  window->buildMenus();
  window->promptOpened(L"命令:");
}

Desktop::~Desktop() {
  acedRegCmds->removeGroup(L"TEST");
  acDocManager->clearPendingText();
  acDocManager->closeAll();
  SystemVariables::reset();
  EdSession::instance().reset();
  EdSession::instance().setFrontEnd(nullptr);
  UiFrontEnd::Set(nullptr);
  dialogs.reset();
  window.reset();
}

void Desktop::run(std::vector<std::function<void()>> steps) {
  std::size_t next = 0;
  QTimer timer;
  bool busy = false;
  QObject::connect(&timer, &QTimer::timeout, [&] {
    if (busy) return; // within a dialog that a step has opened
    if (feed.isAboutToRead()) return;
    if (next == steps.size()) return feed.close();
    busy = true;
    steps[next++]();
    busy = false;
  });
  timer.start(0);
  EdSession::instance().run();
}

QPoint Desktop::at(double x, double y) {
  return canvas().map().toScreen(AcGePoint2d(x, y)).toPoint();
}

void Desktop::hover(double x, double y) {
  QTest::mouseMove(&canvas(), at(x, y));
}

void Desktop::click(double x, double y, Qt::KeyboardModifiers modifiers) {
  hover(x, y);
  QTest::mouseClick(&canvas(), Qt::LeftButton, modifiers, at(x, y));
}

void Desktop::look(double centreX, double centreY, double height) {
  const double aspect = static_cast<double>(canvas().width()) / canvas().height();
  ed::SetView(*curDoc(), {{centreX, centreY}, height, aspect});
}
