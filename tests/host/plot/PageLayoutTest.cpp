#include "host/plot/PageLayout.h"
#include "host/plot/PaperSizes.h"
#include "host/plot/Plot.h"

#include <gtest/gtest.h>

using plot::LayOutPage;

TEST(PageLayout, PaperFollowsTheArea) {
  const auto page = LayOutPage({0, 0, 4000, 1000}, {});
  EXPECT_DOUBLE_EQ(420, page.width);
  EXPECT_DOUBLE_EQ(120, page.height); // 400 by 100, and 10 on each side
  EXPECT_DOUBLE_EQ(0.1, page.scale);
  EXPECT_DOUBLE_EQ(10, page.x(0));
  EXPECT_DOUBLE_EQ(110, page.y(0)); // y runs down on paper
  EXPECT_DOUBLE_EQ(10, page.y(1000));
}

TEST(PageLayout, AGivenPaperTurnsAsTheAreaLies) {
  const auto page = LayOutPage({0, 0, 100, 200}, {.area = {}, .width = 420, .height = 297});
  EXPECT_DOUBLE_EQ(297, page.width);
  EXPECT_DOUBLE_EQ(420, page.height);
  EXPECT_DOUBLE_EQ(2, page.scale);
  EXPECT_DOUBLE_EQ(148.5, page.x(50)); // in the middle
  EXPECT_DOUBLE_EQ(210, page.y(100));
}

TEST(PageLayout, AGivenScaleHolds) {
  EXPECT_DOUBLE_EQ(
      25.4, LayOutPage({0, 0, 17, 11}, {.area = {}, .width = 432, .height = 280, .scale = 25.4}).scale);
}

TEST(PageLayout, WhatHasNoSizeGetsAPageNonetheless) {
  for (const ge::Box2d& box : {ge::Box2d(), ge::Box2d{5, 5, 5, 5}, ge::Box2d{0, 3, 100, 3}}) {
    const auto page = LayOutPage(box, {});
    EXPECT_GE(page.width, 20);
    EXPECT_GE(page.height, 20);
    EXPECT_LE(page.width, 420.001);
    EXPECT_GT(page.scale, 0);
  }
}

TEST(PaperSizes, NamesAndMillimetres) {
  EXPECT_EQ(1189, plot::PaperOf(L"a0")->width);
  EXPECT_EQ(210, plot::PaperOf(L" A4 ")->height);
  EXPECT_EQ(841.5, plot::PaperOf(L"841.5x300")->width);
  EXPECT_EQ(300, plot::PaperOf(L"841.5\u00D7300")->height);
  for (const wchar_t* text :
       {L"", L"A5", L"100", L"100x", L"x100", L"5x100", L"100x9999", L"100x200x", L"nanx100"})
    EXPECT_FALSE(plot::PaperOf(text)) << CString(text).ToUtf8();
}

TEST(PlotFormat, TheEndingChooses) {
  EXPECT_EQ(plot::Format::pdf, plot::FormatOf(L"a.b.PDF"));
  EXPECT_EQ(plot::Format::svg, plot::FormatOf(L"a.svg"));
  EXPECT_EQ(plot::Format::png, plot::FormatOf(L"a.Png"));
  EXPECT_FALSE(plot::FormatOf(L"a.dxf"));
  EXPECT_FALSE(plot::FormatOf(L"pdf"));
}
