#include "host/plot/Plot.h"
#include "ZpPaths.h"
#include "host/db/AcDbDatabase.h"
#include "host/dxf/DrawingFile.h"
#include "host/plot/FontMetrics.h"
#include "host/plot/NearPath.h"
#include "host/scene/BuildScene.h"

#include <gtest/gtest.h>

#include <chrono>

using plot::Format;

namespace {

scene::Scene sceneOf(const std::string& file) {
  AcDbDatabase database(false);
  EXPECT_TRUE(dxf::ReadDrawing(CString::FromUtf8(std::string(ZP_SOURCE_DIR) + "/" + file), database).ok);
  const plot::FontMetrics metrics;
  scene::SceneOptions options;
  options.metrics = &metrics;
  return scene::BuildScene(database, database.modelSpaceId(), options);
}

// A scene of one line.
scene::Scene lineScene(const AcGePoint2d& from, const AcGePoint2d& to) {
  scene::Scene scene;
  scene.verbs = {scene::Verb::move, scene::Verb::line};
  scene.points = {from, to};
  scene::Primitive stroke;
  stroke.color = scene::Color::fixed({255, 0, 0});
  stroke.weight = 50;
  stroke.verbCount = stroke.pointCount = 2;
  scene.primitives = {stroke};
  scene::Group group;
  group.primitiveCount = 1;
  group.box = scene::BoxOf({scene.verbs, scene.points});
  scene.groups = {group};
  scene.box = group.box;
  return scene;
}

std::uint32_t bigEndian(const std::string& bytes, std::size_t at) {
  std::uint32_t value = 0;
  for (std::size_t i = 0; i < 4; ++i) value = value << 8 | static_cast<unsigned char>(bytes.at(at + i));
  return value;
}

} // namespace

TEST(Plot, EachFormatIsWhatItsEndingSays) {
  const auto scene = lineScene({0, 0}, {100, 50});
  EXPECT_TRUE(Plot(scene, Format::pdf).bytes.starts_with("%PDF-"));
  EXPECT_NE(std::string::npos, Plot(scene, Format::svg).bytes.find("<svg "));
  EXPECT_TRUE(Plot(scene, Format::png).bytes.starts_with("\x89PNG"));
}

TEST(Plot, TheSameSceneGivesTheSameBytes) {
  const auto scene = sceneOf("examples/sample-plan.dxf");
  for (const Format format : {Format::pdf, Format::svg, Format::png}) {
    const auto first = Plot(scene, format);
    ASSERT_TRUE(first.ok) << first.error.ToUtf8();
    EXPECT_GT(first.bytes.size(), 5000u);
    EXPECT_TRUE(first.bytes == Plot(scene, format).bytes);
  }
}

TEST(Plot, LinesHaveTheirColourAndTheirWeightInMillimetres) {
  const std::string svg = Plot(lineScene({0, 0}, {100, 50}), Format::svg).bytes;
  EXPECT_NE(std::string::npos, svg.find("rgb(100%,0%,0%)"));
  // Half a millimetre, told in the units of the path, which is in millimetres.
  EXPECT_NE(std::string::npos, svg.find("stroke-width:0.5;"));
}

TEST(Plot, APictureHasThePixelsOfItsPaper) {
  plot::PlotOptions options;
  options.page.width = 254;
  options.page.height = 127;
  options.dotsPerInch = 100;
  const std::string png = Plot(lineScene({0, 0}, {100, 50}), Format::png, options).bytes;
  EXPECT_EQ(1000u, bigEndian(png, 16));
  EXPECT_EQ(500u, bigEndian(png, 20));
}

TEST(Plot, APictureTooLargeGetsFewerDots) {
  plot::PlotOptions options;
  options.page.width = 5000;
  options.page.height = 5000;
  const auto result = Plot(lineScene({0, 0}, {100, 50}), Format::png, options);
  ASSERT_TRUE(result.ok);
  EXPECT_LT(result.dotsPerInch, 80);
}

TEST(Plot, AnEmptySceneIsAnEmptyPage) {
  EXPECT_TRUE(Plot({}, Format::pdf).ok);
}

TEST(Plot, WhatReachesFarBeyondThePageIsCut) {
  plot::PlotOptions options;
  options.page.area = {0, 0, 10, 10};
  const auto scene = lineScene({-1e14, -1e14}, {1e14, 1e14});
  const std::string svg = Plot(scene, Format::svg, options).bytes;
  EXPECT_NE(std::string::npos, svg.find("<path"));
  EXPECT_EQ(std::string::npos, svg.find("e+"));
}

TEST(Plot, AWindowLeavesOutWhatLiesElsewhere) {
  plot::PlotOptions options;
  options.page.area = {1000, 1000, 1010, 1010};
  const std::string svg = Plot(lineScene({0, 0}, {100, 50}), Format::svg, options).bytes;
  EXPECT_EQ(std::string::npos, svg.find("stroke-width:0.5;"));
}

TEST(Plot, TheDateIsTheDrawings) {
  plot::PlotOptions options;
  options.date = L"2024-05-06T07:08:09Z";
  const auto result = Plot(lineScene({0, 0}, {1, 1}), Format::pdf, options);
  const std::string other = Plot(lineScene({0, 0}, {1, 1}), Format::pdf).bytes;
  EXPECT_TRUE(result.ok);
  EXPECT_FALSE(result.bytes == other);
}

TEST(FontMetrics, WidthsAreThoseOfRealFonts) {
  const plot::FontMetrics metrics;
  const scene::Font stroke{L"txt.shx", L"gbcbig.shx", L"", false, false, false};
  const double m = metrics.advance(stroke, L"M");
  EXPECT_GT(m, metrics.advance(stroke, L"i"));
  EXPECT_DOUBLE_EQ(metrics.advance(stroke, L"Mi"), m + metrics.advance(stroke, L"i"));
  // Beside a stroke font a Chinese character is about as wide as a capital is high.
  EXPECT_NEAR(1.1, metrics.advance(stroke, L"管"), 0.15);
}

TEST(NearPath, FillsKeepTheirAreaWithinTheBox) {
  scene::Path path;
  path.move({-100, -100});
  path.line({100, -100});
  path.line({100, 100});
  path.line({-100, 100});
  path.close();
  const ge::Box2d box = scene::BoxOf(plot::CutFill(path.view(), {0, 0, 10, 20}).view());
  EXPECT_DOUBLE_EQ(0, box.minX);
  EXPECT_DOUBLE_EQ(10, box.maxX);
  EXPECT_DOUBLE_EQ(20, box.maxY);
}

TEST(NearPath, StrokesArePartedWhereTheyLeaveTheBox) {
  scene::Path path;
  path.move({-5, 5});
  path.line({15, 5});
  path.line({15, 8});
  path.line({-5, 8});
  const auto parts = scene::Flatten(plot::CutStrokes(path.view(), {0, 0, 10, 10}).view());
  ASSERT_EQ(2u, parts.size());
  EXPECT_DOUBLE_EQ(0, parts[0][0].x);
  EXPECT_DOUBLE_EQ(10, parts[0][1].x);
  EXPECT_DOUBLE_EQ(10, parts[1][0].x);
}
