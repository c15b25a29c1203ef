#include "host/qt/window/Autosave.h"

#include "tests/host/qt/Desktop.h"

#include <QDir>
#include <QFile>

namespace {

class AutosaveOf : public Desktop {
 protected:
  QString place() const { return folder.filePath(QStringLiteral("autosave")); }
  // What a run that was killed leaves: its folder, without a lock that anybody holds.
  void leave() {
    desktop::Autosave run(place());
    run.save();
    const QString own = QDir(place()).entryList(QDir::Dirs | QDir::NoDotAndDotDot).first();
    QDir().mkpath(place() + QStringLiteral("/dead"));
    for (const QString& file : QDir(place() + QLatin1Char('/') + own).entryList({QStringLiteral("0.*")}))
      QFile::copy(place() + QLatin1Char('/') + own + QLatin1Char('/') + file,
                  place() + QStringLiteral("/dead/") + file);
  }
};

TEST_F(AutosaveOf, AChangedDrawingIsOfferedAfterACrashOnce) {
  run({[&] { enter("point"); }, [&] { enter("7,8"); }});
  leave();
  desktop::Autosave next(place());
  const auto left = next.takeLeft();
  ASSERT_EQ(1u, left.size());
  EXPECT_EQ(curDoc()->docTitle(), left[0].title);
  EXPECT_TRUE(left[0].original.IsEmpty());
  EXPECT_TRUE(next.takeLeft().empty());
  acDocManager->closeAll();
  ASSERT_TRUE(desktop::Autosave::open(left[0]));
  EXPECT_EQ(1u, entityCount());
  EXPECT_TRUE(curDoc()->database()->isModified());
  EXPECT_FALSE(curDoc()->isNamed());
  next.discard(left);
  EXPECT_FALSE(QFile::exists(left[0].file));
}

TEST_F(AutosaveOf, ADrawingComesBackUnderItsOwnFileWhichIsKept) {
  const QString file = folder.filePath(QStringLiteral("plan.dxf"));
  run({[&] {
         acedCommandTexts({L"SAVEAS", desktop::FromQt(file)});
       },
       [&] { enter("point"); }, [&] { enter("7,8"); }});
  leave();
  desktop::Autosave next(place());
  const auto left = next.takeLeft();
  ASSERT_EQ(1u, left.size());
  EXPECT_EQ(desktop::FromQt(file), left[0].original);
  acDocManager->closeAll();
  ASSERT_TRUE(desktop::Autosave::open(left[0]));
  EXPECT_EQ(desktop::FromQt(file), curDoc()->fileName());
  EXPECT_TRUE(curDoc()->rescueBeforeSave());
}

TEST_F(AutosaveOf, AnUnchangedOrSavedDrawingLeavesNothing) {
  leave();
  EXPECT_TRUE(desktop::Autosave(place()).takeLeft().empty());
}

TEST_F(AutosaveOf, ARunThatLivesKeepsItsCopies) {
  run({[&] { enter("point"); }, [&] { enter("7,8"); }});
  desktop::Autosave living(place());
  living.save();
  EXPECT_TRUE(desktop::Autosave(place()).takeLeft().empty());
}

TEST_F(AutosaveOf, ARunThatEndsLeavesNothing) {
  run({[&] { enter("point"); }, [&] { enter("7,8"); }});
  { desktop::Autosave(place()).save(); }
  EXPECT_TRUE(QDir(place()).entryList(QDir::Dirs | QDir::NoDotAndDotDot).isEmpty());
}

} // namespace
