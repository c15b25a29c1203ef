#include "host/db/AcDbCurves.h"
#include "host/db/AcGiWorldDraw.h"
#include "host/ed/ArxDbgUtils.h"
#include "host/ed/ObjectSnap.h"
#include "host/ed/acedWindows.h"
#include "tests/host/qt/Desktop.h"

#include <QWheelEvent>

namespace {

class CanvasOf : public Desktop {
 protected:
  CanvasOf() { look(50, 50, 200); }
  AcDbObjectId addLine(const AcGePoint3d& from, const AcGePoint3d& to) {
    auto* line = new AcDbLine(from, to);
    EXPECT_EQ(Acad::eOk, ArxDbgUtils::addToCurrentSpace(line));
    const auto id = line->objectId();
    line->close();
    canvas().refresh(true);
    return id;
  }
  const std::vector<AcDbObjectId>& selected() { return curDoc()->edit().pickFirst; }
  void drag(const QPoint& from, const QPoint& to, Qt::MouseButton button) {
    QTest::mousePress(&canvas(), button, {}, from);
    for (int i = 1; i <= 4; ++i) { // QTest moves without buttons
      const QPointF p = QPointF(from) + QPointF(to - from) * i / 4.0;
      QMouseEvent move(QEvent::MouseMove, p, canvas().mapToGlobal(p), Qt::NoButton, button, Qt::NoModifier);
      QApplication::sendEvent(&canvas(), &move);
    }
    QTest::mouseRelease(&canvas(), button, {}, to);
  }
};

TEST_F(CanvasOf, ADrawingAnswersPointPromptsByClicks) {
  SystemVariables::set(L"OSMODE", 0L);
  AcGePoint2d first;
  AcGePoint2d second;
  run({[&] { enter("line"); },
       [&] {
         first = canvas().map().toWorld(at(10, 20));
         click(10, 20);
       },
       [&] {
         second = canvas().map().toWorld(at(90, 70));
         click(90, 70);
       },
       [&] { key(Qt::Key_Return); }});
  const auto* line = last<AcDbLine>();
  ASSERT_TRUE(line);
  EXPECT_EQ(first.x, line->startPoint().x); // to the last bit
  EXPECT_EQ(first.y, line->startPoint().y);
  EXPECT_EQ(second.x, line->endPoint().x);
  EXPECT_EQ(second.y, line->endPoint().y);
}

TEST_F(CanvasOf, ADrawingSnapsToEndsMiddlesAndIntersections) {
  SystemVariables::set(L"OSMODE", ed::kSnapEnd | ed::kSnapMiddle | ed::kSnapIntersection);
  addLine({0, 0, 0}, {100.125, 0.0625, 0});
  addLine({30, -20, 0}, {30, 40, 0});
  run({[&] { enter("line"); }, [&] { click(99.5, 0.5); }, [&] { click(50.5, 0.3); },
       [&] { click(30.4, 0.4); }, [&] { key(Qt::Key_Return); }});
  const auto* line = last<AcDbLine>();
  ASSERT_TRUE(line);
  EXPECT_EQ(AcGePoint3d(50.0625, 0.03125, 0), line->startPoint());
  EXPECT_NEAR(30, line->endPoint().x, 1e-9);
  EXPECT_NEAR(30 * 0.0625 / 100.125, line->endPoint().y, 1e-9);
}

TEST_F(CanvasOf, ADrawingSnapsToTheCentreOfACircleWhoseRimIsTouched) {
  SystemVariables::set(L"OSMODE", ed::kSnapCentre);
  auto* circle = new AcDbCircle({40.5, 50.25, 0}, AcGeVector3d::kZAxis, 30);
  ASSERT_EQ(Acad::eOk, ArxDbgUtils::addToCurrentSpace(circle));
  circle->close();
  canvas().refresh(true);
  run({[&] { enter("point"); }, [&] { click(70.5, 50.25); }});
  const auto* point = last<AcDbPoint>();
  ASSERT_TRUE(point);
  EXPECT_EQ(AcGePoint3d(40.5, 50.25, 0), point->position());
}

TEST_F(CanvasOf, ADrawingPicksBeforeTheCommand) {
  const auto id = addLine({0, 0, 0}, {100, 0, 0});
  addLine({0, 50, 0}, {100, 50, 0});
  run({[&] { click(50, 0); }, [&] { EXPECT_EQ(std::vector{id}, selected()); }, [&] { enter("erase"); }});
  EXPECT_EQ(1u, entityCount());
  EXPECT_TRUE(id.isErased());
}

TEST_F(CanvasOf, ADrawingTakesAwayWithShiftAndForgetsWithEscape) {
  addLine({0, 0, 0}, {100, 0, 0});
  addLine({0, 50, 0}, {100, 50, 0});
  run({[&] { click(50, 0); }, [&] { click(50, 50); }, [&] { EXPECT_EQ(2u, selected().size()); },
       [&] { click(50, 50, Qt::ShiftModifier); }, [&] { EXPECT_EQ(1u, selected().size()); },
       [&] { key(Qt::Key_Escape); }, [&] { EXPECT_TRUE(selected().empty()); }});
}

TEST_F(CanvasOf, AWindowFromLeftToRightTakesWhatItEncloses) {
  const auto inside = addLine({10, 10, 0}, {30, 10, 0});
  addLine({20, 20, 0}, {90, 20, 0});
  run({[&] { drag(at(0, 40), at(50, 0), Qt::LeftButton); }});
  EXPECT_EQ(std::vector{inside}, selected());
}

TEST_F(CanvasOf, AWindowFromRightToLeftTakesWhatItTouches) {
  addLine({10, 10, 0}, {30, 10, 0});
  addLine({20, 20, 0}, {90, 20, 0});
  run({[&] { drag(at(50, 40), at(0, 0), Qt::LeftButton); }});
  EXPECT_EQ(2u, selected().size());
}

TEST_F(CanvasOf, AWindowOfTwoClicksAnswersASelectionPrompt) {
  addLine({10, 10, 0}, {30, 10, 0});
  addLine({20, 20, 0}, {90, 20, 0});
  run({[&] { enter("erase"); }, [&] { click(50, 40); }, [&] { click(0, 0); }, [&] { key(Qt::Key_Return); }});
  EXPECT_EQ(0u, entityCount());
}

TEST_F(CanvasOf, TheWheelZoomsAtTheCursor) {
  const QPoint cursor = at(20, 80);
  const AcGePoint2d before = canvas().map().toWorld(cursor);
  const double scale = canvas().map().unitsPerPixel;
  QWheelEvent wheel(cursor, canvas().mapToGlobal(QPointF(cursor)), {}, {0, 120}, Qt::NoButton, Qt::NoModifier,
                    Qt::NoScrollPhase, false);
  QApplication::sendEvent(&canvas(), &wheel);
  const AcGePoint2d after = canvas().map().toWorld(cursor);
  EXPECT_LT(canvas().map().unitsPerPixel, scale);
  EXPECT_NEAR(before.x, after.x, 1e-9);
  EXPECT_NEAR(before.y, after.y, 1e-9);
}

TEST_F(CanvasOf, TheMiddleButtonPans) {
  const AcGePoint2d grabbed = canvas().map().toWorld(QPoint(100, 100));
  drag({100, 100}, {180, 140}, Qt::MiddleButton);
  const AcGePoint2d now = canvas().map().toWorld(QPoint(180, 140));
  EXPECT_NEAR(grabbed.x, now.x, 1e-9);
  EXPECT_NEAR(grabbed.y, now.y, 1e-9);
}

TEST_F(CanvasOf, MovesThatFollowEachOtherAreOneViewToComeBackFrom) {
  run({[&] { drag({100, 100}, {180, 140}, Qt::MiddleButton); }, [&] { enter("zoom"); }, [&] { enter("p"); }});
  EXPECT_EQ(AcGePoint2d(50, 50), canvas().map().centre);
}

TEST_F(CanvasOf, TheCursorMovesWhatIsDragged) {
  addLine({0, 0, 0}, {10, 0, 0});
  QImage still;
  QImage moved;
  run({[&] { enter("move"); }, [&] { enter("l"); }, [&] { key(Qt::Key_Return); }, [&] { enter("0,0"); },
       [&] { hover(20, 20); }, [&] { still = canvas().grab().toImage(); }, [&] { hover(60, 60); },
       [&] { moved = canvas().grab().toImage(); }, [&] { key(Qt::Key_Escape); }});
  ASSERT_FALSE(still.isNull());
  EXPECT_NE(still, moved);
}

TEST_F(CanvasOf, ADrawnLineIsSeenAndAnErasedOneIsNot) {
  const auto pixel = [&] {
    const QImage image = canvas().grab().toImage();
    return image.pixelColor(at(50, 25));
  };
  const QColor empty = pixel();
  QColor drawn;
  QColor undone;
  run({[&] { enter("line"); }, [&] { enter("50,0"); }, [&] { enter("50,50"); }, [&] { key(Qt::Key_Return); },
       [&] { drawn = pixel(); }, [&] { enter("u"); }, [&] { undone = pixel(); }});
  EXPECT_NE(empty, drawn);
  EXPECT_EQ(empty, undone);
}

TEST_F(CanvasOf, ADrawingLeavesOutWhatIsHiddenUntilItIsShownAgain) {
  const auto pixel = [&] {
    QApplication::processEvents();
    return canvas().grab().toImage().pixelColor(at(50, 25));
  };
  const QColor empty = pixel();
  const auto line = addLine({50, 0, 0}, {50, 50, 0});
  const QColor drawn = pixel();
  ASSERT_TRUE(acedSetEntityHidden(line, true));
  EXPECT_EQ(empty, pixel());
  ASSERT_TRUE(acedSetEntityHidden(line, false));
  EXPECT_EQ(drawn, pixel());
  EXPECT_NE(empty, drawn);
}

TEST_F(CanvasOf, WhatIsDraggedIsShownInTheColoursThatItSets) {
  const auto isSeen = [&](const QColor& color) {
    const QImage image = canvas().grab().toImage();
    for (int x = -4; x <= 4; ++x)
      if (image.pixelColor(at(50, 25) + QPoint(x, 0)) == color) return true;
    return false;
  };
  const AcGePoint3d points[] = {{50, 0, 0}, {50, 50, 0}};
  const EdTransient own(EdSession::instance().transients(), [&](AcGiWorldDraw& draw) {
    draw.subEntityTraits().setColor(1);
    for (double x = 49; x <= 51; x += 0.05) { // no smoothing in the middle
      const AcGePoint3d line[] = {points[0] + AcGeVector3d(x - 50, 0, 0),
                                  points[1] + AcGeVector3d(x - 50, 0, 0)};
      draw.polyline(line);
    }
  });
  EXPECT_TRUE(isSeen(QColor(255, 0, 0)));
  // The next one is not red for that.
  const EdTransient other(EdSession::instance().transients(), [&](AcGiWorldDraw& draw) {
    for (double x = 49; x <= 51; x += 0.05) {
      const AcGePoint3d line[] = {points[0] + AcGeVector3d(x - 50, 0, 0),
                                  points[1] + AcGeVector3d(x - 50, 0, 0)};
      draw.polyline(line);
    }
  });
  EXPECT_FALSE(isSeen(QColor(255, 0, 0)));
}

TEST_F(CanvasOf, AScriptMayEndInTheMiddleOfADrag) {
  bool inCommand = false;
  QTimer::singleShot(0, [&] { feed.submit(L"line"); });
  QTimer::singleShot(50, [&] {
    feed.whenWaiting([&] {
      inCommand = EdSession::instance().commandDepth() > 0;
      feed.close();
    });
    feed.wake();
  });
  EdSession::instance().run();
  EXPECT_TRUE(inCommand);
}

} // namespace
