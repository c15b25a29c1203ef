#include "host/db/AcDbCurves.h"
#include "tests/host/qt/Desktop.h"

#include <gmock/gmock.h>

#include <QAbstractItemView>
#include <QCompleter>

using ::testing::HasSubstr;

namespace {

using CommandLine = Desktop;

TEST_F(CommandLine, RunsACommandAndAnswersItsPrompts) {
  run({[&] { enter("line"); }, [&] { enter("1,2"); }, [&] { enter("@10,0"); }, [&] { key(Qt::Key_Return); }});
  const auto* line = last<AcDbLine>();
  ASSERT_TRUE(line);
  EXPECT_EQ(AcGePoint3d(1, 2, 0), line->startPoint());
  EXPECT_EQ(AcGePoint3d(11, 2, 0), line->endPoint());
}

TEST_F(CommandLine, TakesTheBlankForEnterAndRepeatsTheLastCommand) {
  run({[&] { type("point "); }, [&] { enter("1,1"); }, [&] { key(Qt::Key_Space); }, [&] { enter("2,2"); }});
  EXPECT_EQ(2u, entityCount());
}

TEST_F(CommandLine, KeepsBlanksOfAText) {
  run({[&] { enter("text"); }, [&] { enter("0,0"); }, [&] { enter("3"); }, [&] { enter("0"); },
       [&] { enter("a b"); }, [&] { key(Qt::Key_Return); }});
  EXPECT_THAT(said(), HasSubstr("a b"));
  EXPECT_EQ(1u, entityCount());
}

TEST_F(CommandLine, CancelsWithEscape) {
  run({[&] { enter("line"); }, [&] { enter("1,2"); }, [&] { enter("3,4"); }, [&] { key(Qt::Key_Escape); }});
  EXPECT_EQ(0u, EdSession::instance().commandDepth());
  EXPECT_THAT(said(), HasSubstr("*取消*"));
}

TEST_F(CommandLine, BringsBackWhatWasTypedBefore) {
  QString first;
  QString second;
  QString draft;
  run({[&] { enter("id"); }, [&] { enter("5,6"); }, [&] { type("dra"); }, [&] { key(Qt::Key_Up); },
       [&] { first = edit().text(); }, [&] { key(Qt::Key_Up); }, [&] { second = edit().text(); },
       [&] { key(Qt::Key_Down); }, [&] { key(Qt::Key_Down); }, [&] { draft = edit().text(); }});
  EXPECT_EQ(QStringLiteral("5,6"), first);
  EXPECT_EQ(QStringLiteral("id"), second);
  EXPECT_EQ(QStringLiteral("dra"), draft);
}

TEST_F(CommandLine, CompletesCommandsWithTheirChineseTitles) {
  QStringList shown;
  QString taken;
  run({[&] { type("lin"); },
       [&] {
         const auto* model = edit().completion().popup()->model();
         for (int row = 0; row < model->rowCount(); ++row)
           shown.append(model->index(row, 0).data().toString());
       },
       [&] { key(Qt::Key_Tab); }, [&] { taken = edit().text(); }});
  ASSERT_FALSE(shown.isEmpty());
  EXPECT_EQ(QStringLiteral("LINE    画直线"), shown.first());
  EXPECT_EQ(QStringLiteral("LINE"), taken);
}

TEST_F(CommandLine, TellsWhyALineIsRefused) {
  run({[&] { enter("nonsense"); }});
  EXPECT_THAT(said(), HasSubstr("未知命令“NONSENSE”"));
}

TEST_F(CommandLine, TakesKeysThatWereTypedInTheCanvas) {
  run({[&] { QTest::keyClicks(&canvas(), QStringLiteral("point")); },
       [&] { EXPECT_EQ(QStringLiteral("point"), edit().text()); }});
}

TEST_F(CommandLine, EndsWithQuit) {
  run({[&] { enter("quit"); }});
  EXPECT_TRUE(EdSession::instance().quitRequested());
}

TEST_F(CommandLine, RunsTextThatWasSentWhileItWaits) {
  run({[&] {
    acDocManager->sendStringToExecute(curDoc(), L"POINT 3,4 ");
    feed.wake();
  }});
  EXPECT_EQ(1u, entityCount());
}

} // namespace
