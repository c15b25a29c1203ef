// What is drawn straight into pixels: lines, dashes, letters; and views painted in slices and shifted.
#include "host/db/AcDbCurves.h"
#include "host/db/AcDbObjectPointer.h"
#include "host/db/AcDbText.h"
#include "host/ed/ArxDbgUtils.h"
#include "host/qt/canvas/DrawingPicture.h"
#include "host/qt/canvas/GlyphFill.h"
#include "host/qt/canvas/PaintedView.h"
#include "host/qt/canvas/ThinStrokes.h"
#include "tests/host/qt/Desktop.h"

#include <QPainter>

#include <numeric>
#include <random>

namespace {

using desktop::ViewMap;

QImage black(int width, int height) {
  QImage image(width, height, QImage::Format_RGB32);
  image.fill(Qt::black);
  return image;
}

// White on black, in whole pixels.
double ink(const QImage& image) {
  double sum = 0;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) sum += qGreen(image.pixel(x, y)) / 255.0;
  return sum;
}

double inkOfLine(double x0, double y0, double x1, double y1) {
  QImage image = black(200, 200);
  desktop::ThinLines lines(image, image.rect());
  lines.setColor(Qt::white);
  lines.line({x0, y0}, {x1, y1}, true);
  return ink(image);
}

TEST(ThinLines, CoverAPixelForEachPixelOfTheirLongerSide) {
  for (const auto& [x, y] : {std::pair(120.25, 30.5), std::pair(-70.0, 90.75), std::pair(3.5, 101.0)}) {
    const double longer = std::max(std::fabs(x), std::fabs(y));
    EXPECT_NEAR(longer, inkOfLine(80.5, 40.25, 80.5 + x, 40.25 + y), 0.01 * longer + 0.5);
  }
  EXPECT_NEAR(0.6, inkOfLine(10.2, 10.5, 10.8, 10.6), 0.05);
}

// Of a draft: white pixels, one for each along the line, within the smooth one.
TEST(ThinLines, OfADraftRunWithinTheSmoothOnes) {
  std::mt19937 random(5);
  std::uniform_real_distribution<double> place(5, 195);
  for (int i = 0; i < 300; ++i) {
    const AcGePoint2d from(place(random), place(random));
    const AcGePoint2d to(place(random), place(random));
    QImage draft = black(200, 200);
    desktop::ThinLines quick(draft, draft.rect(), true);
    quick.setColor(Qt::white);
    quick.line(from, to, true);
    QImage smooth = black(200, 200);
    desktop::ThinLines slow(smooth, smooth.rect());
    slow.setColor(Qt::white);
    slow.line(from, to, true);
    const double longer = std::max(std::fabs(to.x - from.x), std::fabs(to.y - from.y));
    ASSERT_NEAR(longer, ink(draft), 2);
    int outside = 0;
    for (int y = 0; y < 200; ++y)
      for (int x = 0; x < 200; ++x)
        if (qGreen(draft.pixel(x, y)) > 0 && qGreen(smooth.pixel(x, y)) < 100) ++outside;
    ASSERT_LE(outside, 2); // the ends, which the smooth line covers in part
  }
}

TEST(ThinLines, OfADraftMixTransparentColours) {
  QImage image = black(20, 20);
  desktop::ThinLines lines(image, image.rect(), true);
  lines.setColor(QColor(255, 255, 255, 128));
  lines.line({2.5, 3.5}, {12.5, 8.5}, true);
  EXPECT_NEAR(128, qGreen(image.pixel(2, 3)), 2);
}

TEST(ThinLines, AlongTheAxesAreSharp) {
  QImage image = black(40, 40);
  desktop::ThinLines lines(image, image.rect());
  lines.setColor(Qt::white);
  lines.line({5.5, 10.7}, {14.5, 10.7}, false);
  lines.line({20.2, 30.5}, {20.2, 25.5}, false);
  EXPECT_EQ(10 + 6, ink(image));
  EXPECT_EQ(qRgb(255, 255, 255), image.pixel(5, 10));
  EXPECT_EQ(qRgb(255, 255, 255), image.pixel(20, 25));
}

TEST(ThinLines, AnywhereStayWithinTheirArea) {
  QImage image = black(100, 80);
  const QRect area(20, 10, 50, 40);
  desktop::ThinLines lines(image, area);
  lines.setColor(Qt::white);
  desktop::ThinLines draft(image, area, true);
  draft.setColor(Qt::white);
  std::mt19937 random(3);
  std::uniform_real_distribution<double> near(-50, 150);
  std::uniform_real_distribution<double> far(-1e9, 1e9);
  for (int i = 0; i < 20'000; ++i) {
    auto& place = i % 2 ? near : far;
    lines.line({place(random), near(random)}, {near(random), place(random)}, i % 3 != 0);
    lines.dot({near(random), near(random)});
    draft.line({place(random), near(random)}, {near(random), place(random)}, true);
  }
  EXPECT_GT(ink(image.copy(area)), 0);
  QPainter(&image).fillRect(area, Qt::black);
  EXPECT_EQ(0, ink(image));
}

// A stroke with the dashes that QPainter draws of scene::AddDashes.
void expectSameDashes(const scene::Path& path, const scene::Pattern& pattern) {
  const ViewMap map{QSizeF(600, 400), {300, 200}, 1};
  QImage found = black(600, 400);
  desktop::ThinLines lines(found, found.rect());
  lines.setColor(Qt::white);
  desktop::ThinStrokes(lines, map).draw(path.view(), &pattern, true);
  scene::Path dashed;
  ASSERT_TRUE(scene::AddDashes(path.view(), pattern, 10'000, dashed));
  scene::Pattern none;
  QImage expected = black(600, 400);
  desktop::ThinLines expectedLines(expected, expected.rect());
  expectedLines.setColor(Qt::white);
  desktop::ThinStrokes(expectedLines, map).draw(dashed.view(), nullptr, true);
  EXPECT_NEAR(ink(expected), ink(found), 0.03 * ink(expected));
  double apart = 0;
  for (int y = 0; y < 400; ++y)
    for (int x = 0; x < 600; ++x)
      apart += std::abs(qGreen(expected.pixel(x, y)) - qGreen(found.pixel(x, y))) / 255.0;
  EXPECT_LT(apart, 0.08 * ink(expected));
}

TEST(ThinStrokes, HaveTheDashesOfTheScene) {
  scene::Pattern center{{30, -6, 6, -6}, true};
  scene::Pattern through{{12, -5}, false};
  scene::Pattern gapFirst{{-6, 10}, true};
  scene::Path line;
  line.move({20, 30});
  line.line({573, 311});
  scene::Path bent;
  bent.move({20, 30});
  bent.line({200, 35});
  bent.line({230, 280});
  bent.curve({300, 390}, {420, 390}, {480, 300}, false);
  bent.curve({520, 240}, {540, 200}, {560, 60}, true);
  scene::Path closed;
  closed.move({50, 50});
  closed.line({300, 60});
  closed.line({200, 300});
  closed.close();
  for (const auto* path : {&line, &bent, &closed})
    for (const auto* pattern : {&center, &through, &gapFirst}) expectSameDashes(*path, *pattern);
}

TEST(GlyphFill, ShadesPixelsByHowMuchOfThemIsCovered) {
  desktop::Outline square;
  square.points = {{0, 0}, {4, 0}, {4, 4}, {0, 4}, {1, 1}, {1, 3}, {3, 3}, {3, 1}}; // with a hole
  square.ends = {4, 8};
  square.box = {0, 0, 4, 4};
  for (const double turn : {0.0, 0.3, 1.0, 2.5}) {
    QImage image = black(60, 60);
    desktop::GlyphFill fill(image, image.rect());
    fill.setColor(Qt::white);
    const double k = 2.7;
    ASSERT_TRUE(fill.draw(
        square,
        {{k * std::cos(turn), k * std::sin(turn)}, {k * std::sin(turn), -k * std::cos(turn)}, {30.3, 29.1}}));
    EXPECT_NEAR((16 - 4) * k * k, ink(image), 1.5) << turn;
  }
  QImage image = black(10, 10);
  desktop::GlyphFill fill(image, image.rect());
  fill.setColor(Qt::white);
  fill.draw(square, {{1, 0}, {0, -1}, {2.5, 8}});
  EXPECT_NEAR(127, qGreen(image.pixel(2, 6)), 2);
  EXPECT_EQ(255, qGreen(image.pixel(3, 7)));
}

class Painting : public Desktop {
 protected:
  Painting() {
    std::mt19937 random(11);
    const auto number = [&] { return static_cast<double>(random() % 10'000) / 10; };
    for (int i = 0; i < 10'000; ++i) {
      const AcGePoint3d at(number(), number(), 0);
      switch (i % 4) {
      case 0:
        add(new AcDbLine(at, at + AcGeVector3d(number() / 10, number() / 10 - 50, 0)));
        break;
      case 1:
        add(new AcDbCircle(at, AcGeVector3d::kZAxis, 1 + number() / 50));
        break;
      case 2:
        add(new AcDbText(at, L"DN25 标高", {}, 1 + number() / 100, number()));
        break;
      default:
        add(new AcDbLine(at, at + AcGeVector3d(number() / 10, 0, 0)));
      }
    }
    picture.setDocument(curDoc());
    picture.update();
  }
  ~Painting() override { picture.setDocument(nullptr); }
  AcDbObjectId add(AcDbEntity* entity) {
    EXPECT_EQ(Acad::eOk, ArxDbgUtils::addToCurrentSpace(entity));
    const auto id = entity->objectId();
    entity->close();
    return id;
  }
  void addManyLines() {
    for (int i = 0; i < 20'000; ++i) {
      const AcGePoint3d from(i % 200 * 5.0, i / 200 * 10.0, 0);
      add(new AcDbLine(from, from + AcGeVector3d(4, 7, 0)));
    }
  }
  desktop::PaintedView painted(const ViewMap& map) {
    desktop::PaintedView view;
    view.begin(map, Qt::black);
    EXPECT_TRUE(view.goOn(picture, std::chrono::hours(1)));
    return view;
  }
  // Coordinates that are cut at another place are rounded another way: by a shade here and there.
  static void expectAlike(const QImage& a, const QImage& b) {
    ASSERT_EQ(a.size(), b.size());
    int other = 0;
    for (int y = 0; y < a.height(); ++y)
      for (int x = 0; x < a.width(); ++x)
        other += std::abs(qGreen(a.pixel(x, y)) - qGreen(b.pixel(x, y))) > 12;
    EXPECT_LE(other, a.width() * a.height() / 1000);
  }

  desktop::DrawingPicture picture;
};

TEST_F(Painting, InSlicesIsThatAtOnce) {
  const ViewMap map{QSizeF(500, 400), {500, 500}, 2.2};
  const auto whole = painted(map);
  desktop::PaintedView slices;
  slices.begin(map, Qt::black);
  int count = 1;
  while (!slices.goOn(picture, std::chrono::microseconds(0))) ++count;
  EXPECT_GT(count, 1);
  EXPECT_EQ(whole.image(), slices.image());
}

TEST_F(Painting, AShiftedViewIsThatPaintedAnew) {
  for (const double units : {2.2, 0.31}) {
    ViewMap map{QSizeF(500, 400), {500, 500}, units};
    auto shifted = painted(map);
    for (const auto& [dx, dy] : {std::pair(13, 7), std::pair(-40, 3), std::pair(0, -90), std::pair(-1, 0)}) {
      map.centre = {map.centre.x - dx * units, map.centre.y + dy * units};
      ASSERT_TRUE(shifted.shiftTo(map, picture));
      expectAlike(painted(map).image(), shifted.image());
    }
    map.centre.x += 0.5 * units;
    EXPECT_FALSE(shifted.shiftTo(map, picture)) << "half a pixel is another picture";
    map.unitsPerPixel *= 2;
    EXPECT_FALSE(shifted.shiftTo(map, picture));
  }
}

TEST_F(Painting, AShiftGoesOnWithWhatIsHalfPainted) {
  ViewMap map{QSizeF(500, 400), {500, 500}, 2.2};
  desktop::PaintedView view;
  view.begin(map, Qt::black);
  ASSERT_FALSE(view.goOn(picture, std::chrono::microseconds(0)));
  map.centre.x += 60 * 2.2;
  ASSERT_TRUE(view.shiftTo(map, picture));
  ASSERT_TRUE(view.goOn(picture, std::chrono::hours(1)));
  expectAlike(painted(map).image(), view.image());
}

TEST_F(Painting, AChangeIsPaintedInItsBox) {
  const ViewMap map{QSizeF(500, 400), {500, 500}, 2.2};
  auto view = painted(map);
  const auto line = add(new AcDbLine({400, 400, 0}, {650, 560, 0}));
  auto change = picture.update();
  ASSERT_TRUE(change.any && !change.all);
  view.repaint(change.box, picture);
  expectAlike(painted(map).image(), view.image());
  AcDbObjectPointer<AcDbLine>(line, AcDb::kForWrite)->erase();
  change = picture.update();
  view.repaint(change.box, picture);
  expectAlike(painted(map).image(), view.image());
}

TEST_F(Painting, OfALargeDrawingADraftIsShownFirst) {
  addManyLines();
  look(500, 500, 900);
  canvas().setDocument(nullptr);
  canvas().setDocument(curDoc());
  EXPECT_FALSE(canvas().isShown());
  ASSERT_TRUE(QTest::qWaitFor([&] { return canvas().isShown(); }, 10'000));
  EXPECT_FALSE(canvas().isPainted());
  const QImage draft = canvas().grab().toImage();
  ASSERT_TRUE(QTest::qWaitFor([&] { return canvas().isPainted(); }, 10'000));
  const QImage smooth = canvas().grab().toImage();
  EXPECT_NE(smooth, draft);
  canvas().refresh(true);
  canvas().finishPainting();
  expectAlike(canvas().grab().toImage(), smooth);
}

TEST_F(Painting, ADraftThatIsShiftedAndChangedIsASmoothPictureInTheEnd) {
  addManyLines();
  look(500, 500, 900);
  canvas().setDocument(nullptr);
  canvas().setDocument(curDoc());
  ASSERT_TRUE(QTest::qWaitFor([&] { return canvas().isShown(); }, 10'000));
  const double step = canvas().map().unitsPerPixel * 30;
  look(500 + step, 500, 900);
  canvas().viewMoved();
  canvas().repaint();
  add(new AcDbLine({300, 300, 0}, {700, 710, 0}));
  canvas().refresh();
  ASSERT_TRUE(QTest::qWaitFor([&] { return canvas().isPainted(); }, 10'000));
  const QImage shown = canvas().grab().toImage();
  canvas().refresh(true);
  canvas().finishPainting();
  expectAlike(canvas().grab().toImage(), shown);
}

TEST_F(Painting, TheCanvasShowsTheViewBeforeUntilTheNextIsDone) {
  canvas().refresh(true);
  look(500, 500, 900);
  canvas().viewMoved();
  canvas().finishPainting();
  EXPECT_TRUE(canvas().isPainted());
  look(500, 500, 300);
  canvas().viewMoved();
  EXPECT_FALSE(canvas().isPainted());
  EXPECT_TRUE(QTest::qWaitFor([&] { return canvas().isPainted(); }, 10'000));
  const QImage shown = canvas().grab().toImage();
  canvas().refresh(true);
  canvas().finishPainting();
  expectAlike(canvas().grab().toImage(), shown);
}

} // namespace
