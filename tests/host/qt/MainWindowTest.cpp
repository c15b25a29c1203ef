#include "host/db/AcDbCurves.h"
#include "host/ed/LongTask.h"
#include "host/qt/window/CommandTitles.h"
#include "host/qt/window/HostMenus.h"
#include "host/qt/window/PromptMenu.h"
#include "host/qt/window/TaskBar.h"
#include "tests/host/qt/Desktop.h"

#include <QAbstractButton>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QWheelEvent>

namespace {

class Window : public Desktop {
 protected:
  // Presses the button of the message box that stands open.
  static void press(const QString& caption) {
    auto* box = dynamic_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_TRUE(box);
    for (QAbstractButton* button : box->buttons())
      if (button->text().remove(QLatin1Char('&')).startsWith(caption))
        return QTest::mouseClick(button, Qt::LeftButton);
    FAIL() << "no button " << caption.toStdString();
  }
  static void pressLater(const QString& caption) {
    QTimer::singleShot(50, [caption] { press(caption); });
  }
  QString layer() { return window->findChild<QLabel*>(QStringLiteral("layer"))->text(); }
};

TEST_F(Window, HasATabForEachDrawing) {
  run({[&] { enter("new"); },
       [&] {
         EXPECT_EQ(2, window->tabs().count());
         EXPECT_EQ(1, window->tabs().currentIndex());
       }});
}

TEST_F(Window, HasOnlyCommandsInItsMenusThatTheHostHas) {
  for (const desktop::HostMenuRow& row : desktop::HostMenus()) {
    const bool isThere = !row.command || acedCommandStack()->lookupCmd(row.command);
    EXPECT_TRUE(isThere) << CString(row.command).ToUtf8();
  }
}

TEST_F(Window, ChangesTheDrawingByItsTabAndCancelsWhatRuns) {
  const auto* first = curDoc();
  run({[&] { enter("new"); }, [&] { enter("line"); }, [&] { enter("0,0"); },
       [&] { QTest::mouseClick(&window->tabs(), Qt::LeftButton, {}, window->tabs().tabRect(0).center()); },
       [&] {},
       [&] {
         EXPECT_EQ(first, curDoc());
         EXPECT_EQ(0u, EdSession::instance().commandDepth());
       }});
}

TEST_F(Window, TakesBackTheCommandsOfTheDrawingThatIsShown) {
  auto* first = curDoc();
  run({[&] { enter("point"); }, [&] { enter("1,1"); }, [&] { enter("new"); }, [&] { enter("point"); },
       [&] { enter("2,2"); }, [&] { enter("u"); }});
  EXPECT_EQ(0u, entityCount());
  acDocManager->activateDocument(first);
  EXPECT_EQ(1u, entityCount());
}

TEST_F(Window, MarksAChangedDrawingInItsTab) {
  run({[&] { enter("point"); }, [&] { enter("1,1"); },
       [&] { EXPECT_TRUE(window->tabs().tabText(0).endsWith(QLatin1Char('*'))); }});
}

TEST_F(Window, AsksBeforeAChangedDrawingIsLost) {
  run({[&] { enter("point"); }, [&] { enter("1,1"); },
       [&] {
         pressLater(QStringLiteral("取消"));
         window->close();
       },
       [&] {}, [&] {}});
  EXPECT_TRUE(window->isVisible());
  EXPECT_FALSE(EdSession::instance().quitRequested());
  EXPECT_TRUE(curDoc()->database()->isModified());
}

TEST_F(Window, EndsWithoutSavingWhereThatIsWanted) {
  run({[&] { enter("point"); }, [&] { enter("1,1"); },
       [&] {
         pressLater(QStringLiteral("不保存"));
         window->close();
       },
       [&] {}, [&] {}});
  EXPECT_TRUE(EdSession::instance().quitRequested());
}

TEST_F(Window, ShowsCoordinatesAndTheCurrentLayer) {
  look(50, 50, 200);
  run({[&] { hover(10, 20); },
       [&] {
         const QString text = window->findChild<QLabel*>(QStringLiteral("coordinates"))->text();
         const QStringList parts = text.split(QLatin1Char(','));
         ASSERT_EQ(2, parts.size());
         EXPECT_NEAR(10, parts[0].toDouble(), 0.5);
         EXPECT_NEAR(20, parts[1].toDouble(), 0.5);
       },
       [&] { EXPECT_EQ(QStringLiteral("图层：0"), layer()); }, [&] { enter("layer"); }, [&] { enter("m"); },
       [&] { enter("采暖供水"); }, [&] { key(Qt::Key_Return); },
       [&] { EXPECT_EQ(QStringLiteral("图层：采暖供水"), layer()); }});
}

TEST_F(Window, RunsACommandOfItsMenus) {
  QAction* found = nullptr;
  for (QAction* menu : window->menuBar()->actions())
    for (QAction* action : menu->menu()->actions())
      if (action->statusTip() == QStringLiteral("POINT")) found = action;
  ASSERT_TRUE(found);
  EXPECT_EQ(QStringLiteral("画点"), found->text());
  run({[&] { found->trigger(); }, [&] { enter("4,5"); }});
  EXPECT_EQ(1u, entityCount());
}

TEST_F(Window, OpensADrawingOfTheRecentOnes) {
  const QString file = folder.filePath(QStringLiteral("a.dxf"));
  run({[&] { enter("point"); }, [&] { enter("1,1"); },
       [&] {
         acedCommandTexts({L"SAVEAS", desktop::FromQt(file)});
       },
       [&] { enter("close"); },
       [&] {
         auto* recent = window->findChild<QMenu*>(QStringLiteral("recentFiles"));
         ASSERT_EQ(1, recent->actions().size());
         recent->actions().first()->trigger();
       },
       [&] {},
       [&] {
         ASSERT_TRUE(curDoc());
         EXPECT_EQ(CString(L"a.dxf"), curDoc()->docTitle());
       }});
}

TEST_F(Window, TurnsSnapAndOrthoOnAndOffByKeys) {
  const long before = SystemVariables::integer(L"OSMODE");
  run({[&] { key(Qt::Key_F3); }, [&] { EXPECT_NE(before, SystemVariables::integer(L"OSMODE")); },
       [&] { key(Qt::Key_F3); }, [&] { key(Qt::Key_F8); }});
  EXPECT_EQ(before, SystemVariables::integer(L"OSMODE"));
  EXPECT_EQ(1, SystemVariables::integer(L"ORTHOMODE"));
}

TEST(PromptOptions, AreTheWordsInTheBracketsOfAPrompt) {
  const auto options = desktop::PromptOptions(L"下一点或 [闭合(C)/放弃(U)]:");
  ASSERT_EQ(2u, options.size());
  EXPECT_EQ(CString(L"闭合(C)"), options[0].title);
  EXPECT_EQ(CString(L"U"), options[1].keyword);
  EXPECT_TRUE(desktop::PromptOptions(L"指定点:").empty());
}

} // namespace

namespace {

desktop::MainWindow* g_window = nullptr;
std::function<void(desktop::MainWindow&)> g_meanwhile; // what the user does once the task is shown
double g_reached = 0;

// Takes five seconds unless it is cancelled.
void longTask() {
  LongTask task(L"数数");
  QElapsedTimer timer;
  timer.start();
  for (g_reached = 0; g_reached < 1 && task.advance(g_reached);
       g_reached = static_cast<double>(timer.elapsed()) / 5000) {
    QTest::qSleep(5);
    if (g_meanwhile && g_window->task().isVisible()) std::exchange(g_meanwhile, nullptr)(*g_window);
  }
}

class LongTasks : public Desktop {
 protected:
  LongTasks() {
    g_window = window.get();
    g_reached = 0;
    acedRegCmds->addCommand(L"TEST", L"COUNT", L"COUNT", ACRX_CMD_MODAL, longTask);
  }
  ~LongTasks() override { g_meanwhile = nullptr; }
};

} // namespace

TEST_F(LongTasks, TheButtonCancelsThem) {
  g_meanwhile = [](desktop::MainWindow& shown) {
    EXPECT_EQ(QStringLiteral("数数"), shown.task().findChild<QLabel*>()->text());
    QTest::mouseClick(&shown.task().cancelButton(), Qt::LeftButton);
  };
  run({[&] { enter("count"); }});
  EXPECT_GT(g_reached, 0);
  EXPECT_LT(g_reached, 1);
  EXPECT_FALSE(window->task().isVisible());
}

TEST_F(LongTasks, EscapeCancelsThem) {
  g_meanwhile = [this](desktop::MainWindow&) { key(Qt::Key_Escape); };
  run({[&] { enter("count"); }});
  EXPECT_LT(g_reached, 1);
}

TEST_F(LongTasks, NothingElseIsTakenMeanwhile) {
  const AcGePoint2d centre = canvas().map().centre;
  g_meanwhile = [&](desktop::MainWindow& shown) {
    QWheelEvent wheel({10, 10}, canvas().mapToGlobal(QPointF(10, 10)), {}, {0, 120}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&canvas(), &wheel);
    type("line");
    shown.close();
    EXPECT_TRUE(shown.isVisible());
    key(Qt::Key_Escape);
  };
  run({[&] { enter("count"); }, [&] { EXPECT_TRUE(edit().text().isEmpty()); }});
  EXPECT_EQ(centre, canvas().map().centre);
  EXPECT_FALSE(EdSession::instance().quitRequested());
}

TEST_F(LongTasks, TheWindowIsPaintedMeanwhile) {
  struct Paints : QObject {
    int count = 0;
    bool eventFilter(QObject*, QEvent* event) override {
      count += event->type() == QEvent::Paint;
      return false;
    }
  } paints;
  canvas().installEventFilter(&paints);
  int before = 0;
  g_meanwhile = [&](desktop::MainWindow&) {
    before = paints.count;
    canvas().update();
    QTimer::singleShot(150, &canvas(), [&] { key(Qt::Key_Escape); });
  };
  run({[&] { enter("count"); }});
  EXPECT_GT(paints.count, before);
  EXPECT_LT(g_reached, 1);
}

TEST_F(LongTasks, AnOpenThatIsCancelledLeavesEverythingAsItWas) {
  std::string text = "0\nSECTION\n2\nENTITIES\n";
  for (int i = 0; i < 600'000; ++i) text += "0\nPOINT\n8\n0\n10\n1.0\n20\n2.0\n30\n0.0\n";
  text += "0\nENDSEC\n0\nEOF\n";
  QFile file(folder.filePath(QStringLiteral("large.dxf")));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(text.data(), static_cast<qint64>(text.size()));
  file.close();
  const auto* before = curDoc();
  QTimer escape; // comes as soon as the window looks at its events
  QObject::connect(&escape, &QTimer::timeout, [&] {
    if (window->task().isRunning()) key(Qt::Key_Escape);
  });
  escape.start(0);
  run({[&] { window->openFile(desktop::FromQt(file.fileName())); }});
  EXPECT_EQ(before, curDoc());
  EXPECT_EQ(1u, acDocManager->documentCount());
  EXPECT_NE(std::string::npos, said().find("读图已取消")) << said();
}
