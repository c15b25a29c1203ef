// Where bars stand is remembered from one run to the next.
#include "host/qt/dialogs/BarMemory.h"

#include "host/ui/CAcUiDockControlBar.h"
#include "host/ui/CButton.h"
#include "tests/host/qt/Desktop.h"

#include <QDockWidget>
#include <QPushButton>

namespace {

using desktop::BarMemory;

class RememberedBar : public CAcUiDockControlBar {
 public:
  RememberedBar() {
    SetToolID(L"{bar/1}");
    EnableDocking(kDockLeft | kDockRight);
    DockTo(kDockLeft);
  }
  UiLayout Layout() override { return ui::Column({ui::Item(press)}); }
  CButton press{*this, L"执行"};
};

// A bar in the window, in one run after the other.
class RememberedBars : public Desktop {
 protected:
  RememberedBars() { begin(); }
  ~RememberedBars() override { bar.reset(); }

  // A run of the program: the same settings, and everything else anew.
  void begin() {
    dialogs = std::make_unique<desktop::DesktopDialogs>(*window, [] {});
    dialogs->settings = &settings;
    UiFrontEnd::Set(dialogs.get());
  }
  void end() {
    dialogs->keepBars();
    drop();
    UiFrontEnd::Set(nullptr);
  }
  // By a command, or from elsewhere.
  void open(const wchar_t* command = nullptr) {
    if (!bar) {
      bar = std::make_unique<RememberedBar>();
      ASSERT_TRUE(bar->Create(window->frame(), L"工具"));
    }
    s_open = [this] { bar->ShowBar(true); };
    if (!command) return s_open();
    acedRegCmds->addCommand(L"TEST", command, command, ACRX_CMD_MODAL, [] { s_open(); });
    EdSession::instance().executeLine(command);
  }
  void drop() {
    bar.reset();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  QDockWidget& dock() { return *window->findChild<QDockWidget*>(QStringLiteral("{bar/1}")); }
  void restart() {
    end();
    begin();
    open();
    QApplication::processEvents();
  }

  BarMemory memory{settings};
  std::unique_ptr<RememberedBar> bar;
  static inline std::function<void()> s_open;
};

TEST_F(RememberedBars, StandFirstWhereTheyWant) {
  EXPECT_FALSE(memory.bar(QStringLiteral("{bar/1}")));
  open();
  EXPECT_EQ(window->dockWidgetArea(&dock()), Qt::LeftDockWidgetArea);
  EXPECT_FALSE(dock().isFloating());
}

TEST_F(RememberedBars, ComeBackToTheirSideAndWidth) {
  open();
  window->addDockWidget(Qt::RightDockWidgetArea, &dock());
  window->resizeDocks({&dock()}, {333}, Qt::Horizontal);
  QApplication::processEvents();
  ASSERT_EQ(dock().width(), 333);
  restart();
  EXPECT_EQ(window->dockWidgetArea(&dock()), Qt::RightDockWidgetArea);
  EXPECT_EQ(dock().width(), 333);
}

TEST_F(RememberedBars, ComeBackToWhereTheyFloated) {
  open();
  dock().setFloating(true);
  dock().setGeometry(120, 140, 260, 300);
  QApplication::processEvents();
  restart();
  EXPECT_TRUE(dock().isFloating());
  EXPECT_EQ(dock().geometry(), QRect(120, 140, 260, 300));
}

TEST_F(RememberedBars, DoNotComeBackToAScreenThatIsGone) {
  open();
  memory.keep(QStringLiteral("{bar/1}"),
              {Qt::RightDockWidgetArea, 200, true, QRect(90000, 90000, 200, 200), false, {}});
  drop();
  memory.keep(QStringLiteral("{bar/1}"),
              {Qt::RightDockWidgetArea, 200, true, QRect(90000, 90000, 200, 200), false, {}});
  open();
  EXPECT_TRUE(dock().isFloating());
  EXPECT_LT(dock().x(), 10000);
}

TEST_F(RememberedBars, DoNotComeBackToASideWhereTheyMayNotStand) {
  memory.keep(QStringLiteral("{bar/1}"), {Qt::TopDockWidgetArea, 200, false, {}, false, {}});
  open();
  EXPECT_EQ(window->dockWidgetArea(&dock()), Qt::LeftDockWidgetArea);
}

TEST_F(RememberedBars, KeepTheirPlaceWhenTheyAreMadeAnewInTheSameRun) {
  open();
  window->addDockWidget(Qt::RightDockWidgetArea, &dock());
  drop();
  open();
  EXPECT_EQ(window->dockWidgetArea(&dock()), Qt::RightDockWidgetArea);
}

TEST_F(RememberedBars, AreOpenedAgainByTheirCommandIfTheyStoodOpen) {
  open(L"SHOWTHEBAR");
  EXPECT_TRUE(memory.openingCommands().isEmpty()) << "not before the program ends";
  end();
  EXPECT_EQ(memory.openingCommands(), QStringList(QStringLiteral("SHOWTHEBAR")));
  begin();
  open(L"SHOWTHEBAR");
  bar->UserClose();
  end();
  EXPECT_TRUE(memory.openingCommands().isEmpty()) << "the user has closed it";
  begin();
  open(L"SHOWTHEBAR");
  drop();
  end();
  EXPECT_TRUE(memory.openingCommands().isEmpty()) << "its program has taken it away";
  begin();
  open();
  end();
  EXPECT_TRUE(memory.openingCommands().isEmpty()) << "no command is known that opens it";
}

TEST_F(RememberedBars, StandWhereTheyWantWhenTheSettingsAreDamaged) {
  settings.setValue(QStringLiteral("bars/%7Bbar%2F1%7D/side"), QStringLiteral("abc"));
  settings.setValue(QStringLiteral("bars/%7Bbar%2F1%7D/size"), -5);
  EXPECT_FALSE(memory.bar(QStringLiteral("{bar/1}")));
  open();
  EXPECT_EQ(window->dockWidgetArea(&dock()), Qt::LeftDockWidgetArea);
}

} // namespace
