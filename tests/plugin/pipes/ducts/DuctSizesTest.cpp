// The lists of rectangular and round sizes, and how they are sorted.
#include <limits>
#include <memory>

#include "tests/plugin/pipes/ducts/DuctFixture.h"

namespace {

using DuctSizes = DuctFixture;

TEST_F(DuctSizes, AreZeroByDefault) {
  const CZPDuctDiameter size;
  EXPECT_EQ(size.m_dWidth, 0);
  EXPECT_EQ(size.m_dHeight, 0);
  EXPECT_EQ(size.GetSizeText(), L"0");
}

TEST_F(DuctSizes, AreCalledByTheirWidthWhateverTheHeight) {
  EXPECT_EQ(CZPDuctDiameter(500, 320).GetSizeText(), L"500");
  EXPECT_EQ(CZPDuctDiameter(120.004, 0).GetSizeText(), L"120");
  EXPECT_EQ(CZPDuctDiameter(62.5, 1).GetSizeText(), L"62.5");
}

TEST_F(DuctSizes, StandInAscendingOrderWhateverTheOrderOfTheirAdding) {
  for (const double width : {630.0, 120.0, 1000.0, 320.0}) {
    AddRect(width, 100);
    AddCircle(width);
  }
  EXPECT_EQ(Rects(), L"120x100 320x100 630x100 1000x100");
  EXPECT_EQ(Circles(), L"120x0 320x0 630x0 1000x0");
}

TEST_F(DuctSizes, OfOneWidthStayInTheOrderInWhichTheyWereEntered) {
  AddRect(500, 250);
  AddRect(500, 320);
  AddRect(400, 200);
  AddRect(500, 200);
  EXPECT_EQ(Rects(), L"400x200 500x250 500x320 500x200");
}

TEST_F(DuctSizes, EqualInBothMeasuresAreNotRefused) {
  AddRect(500, 250);
  AddRect(500, 250);
  EXPECT_EQ(Rects(), L"500x250 500x250");
}

TEST_F(DuctSizes, RoundOnesOfADiameterThatIsInAlreadyAreGoneAtOnceThoughTheAddSucceeds) {
  CZPDuctDiameter* first = AddCircle(200);
  const std::unique_ptr<CZPDuctDiameter> second(AddCircle(200)); // not deleted: it is the caller's again
  EXPECT_EQ(second->m_dWidth, 200);
  ASSERT_EQ(catalogue.m_arrCircleDiameters.GetSize(), 1);
  EXPECT_EQ(catalogue.m_arrCircleDiameters[0], first);
}

TEST_F(DuctSizes, RoundOnesThatAnEditMadeEqualGoAtTheNextSortAndTheFirstStays) {
  CZPDuctDiameter* first = AddCircle(200);
  const std::unique_ptr<CZPDuctDiameter> second(AddCircle(250));
  CZPDuctDiameter* third = AddCircle(320);
  second->m_dWidth = 200;
  EXPECT_EQ(catalogue.m_arrCircleDiameters.GetSize(), 3);
  catalogue.SortCircleDuctDiameter();
  ASSERT_EQ(catalogue.m_arrCircleDiameters.GetSize(), 2);
  EXPECT_EQ(catalogue.m_arrCircleDiameters[0], first);
  EXPECT_EQ(catalogue.m_arrCircleDiameters[1], third);
}

TEST_F(DuctSizes, RoundOnesCompareByDiameterAloneWhateverTheirHeight) {
  AddCircle(200);
  const std::unique_ptr<CZPDuctDiameter> other(new CZPDuctDiameter(200, 7));
  EXPECT_TRUE(catalogue.AddCircleDuctDiameter(other.get()));
  EXPECT_EQ(Circles(), L"200x0");
}

TEST_F(DuctSizes, SortByTheWidthRoundedToTwoDecimals) {
  AddRect(120.004, 1);
  AddRect(120, 2); // the same key, so it stays behind
  AddRect(120.006, 3);
  AddRect(119.996, 4);
  EXPECT_EQ(Rects(), L"120.004x1 120x2 119.996x4 120.006x3");
  AddCircle(120.004);
  const std::unique_ptr<CZPDuctDiameter> dropped(AddCircle(120));
  EXPECT_EQ(Circles(), L"120.004x0");
}

TEST_F(DuctSizes, OfWidthZeroAreLegalAndComeFirst) {
  AddRect(120, 120);
  AddRect(0, 50);
  AddCircle(100);
  AddCircle(0);
  EXPECT_EQ(Rects(), L"0x50 120x120");
  EXPECT_EQ(Circles(), L"0x0 100x0");
}

TEST_F(DuctSizes, OfWidthsBelowZeroAndBeyondMeasureHaveTheirPlaceToo) {
  AddRect(1e300, 1);
  AddRect(-5, 2);
  AddRect(10, 3);
  AddRect(std::numeric_limits<double>::quiet_NaN(), 4); // its text is no number and counts as 0
  AddRect(std::numeric_limits<double>::infinity(), 5);
  double heights[5] = {};
  for (int i = 0; i < 5; ++i) heights[i] = catalogue.m_arrRectDiameters[i]->m_dHeight;
  EXPECT_EQ(heights[0], 2);
  EXPECT_EQ(heights[1], 4);
  EXPECT_EQ(heights[2], 5);
  EXPECT_EQ(heights[3], 3);
  EXPECT_EQ(heights[4], 1);
}

TEST_F(DuctSizes, RefuseNullAndAPointerThatIsInAlready) {
  CZPDuctDiameter* rect = AddRect(500, 250);
  CZPDuctDiameter* circle = AddCircle(200);
  EXPECT_FALSE(catalogue.AddRectDuctDiameter(nullptr));
  EXPECT_FALSE(catalogue.AddCircleDuctDiameter(nullptr));
  EXPECT_FALSE(catalogue.AddRectDuctDiameter(rect));
  EXPECT_FALSE(catalogue.AddCircleDuctDiameter(circle));
  EXPECT_EQ(Rects(), L"500x250");
  EXPECT_EQ(Circles(), L"200x0");
}

TEST_F(DuctSizes, AreRemovedByPointerFromTheirOwnList) {
  CZPDuctDiameter* rect = AddRect(500, 250);
  CZPDuctDiameter* circle = AddCircle(200);
  AddRect(500, 320);
  EXPECT_FALSE(catalogue.RemoveCircleDuctDiameter(rect));
  EXPECT_FALSE(catalogue.RemoveRectDuctDiameter(circle));
  EXPECT_FALSE(catalogue.RemoveRectDuctDiameter(nullptr));
  EXPECT_FALSE(catalogue.RemoveCircleDuctDiameter(nullptr));
  EXPECT_TRUE(catalogue.RemoveRectDuctDiameter(rect));
  EXPECT_TRUE(catalogue.RemoveCircleDuctDiameter(circle));
  EXPECT_EQ(Rects(), L"500x320");
  EXPECT_EQ(Circles(), L"");
}

TEST_F(DuctSizes, ThatAreNullComeLastAndStay) {
  catalogue.m_arrRectDiameters.Add(nullptr);
  AddRect(500, 250);
  for (int i = 0; i < 2; ++i) catalogue.m_arrCircleDiameters.Add(nullptr);
  AddCircle(200);
  EXPECT_EQ(Rects(), L"500x250 null");
  EXPECT_EQ(Circles(), L"200x0 null null");
}

TEST_F(DuctSizes, OfAnEmptyListAreSortedToAnEmptyList) {
  catalogue.SortRectDuctDiameter();
  catalogue.SortCircleDuctDiameter();
  EXPECT_TRUE(IsEmpty());
}

} // namespace
