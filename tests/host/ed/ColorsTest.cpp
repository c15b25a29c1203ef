#include "host/ed/acedColors.h"
#include "host/ui/Colour.h"

#include <gtest/gtest.h>

TEST(Colors, OfAnIndexHaveRedLowest) {
  EXPECT_EQ(RGB(255, 0, 0), acedGetRGB(1));
  EXPECT_EQ(RGB(255, 255, 0), acedGetRGB(2));
  EXPECT_EQ(RGB(0, 0, 255), acedGetRGB(5));
  EXPECT_EQ(RGB(255, 255, 255), acedGetRGB(7));
  EXPECT_EQ(RGB(255, 127, 0), acedGetRGB(30));
  EXPECT_EQ(RGB(255, 255, 255), acedGetRGB(255));
}

TEST(Colors, WhatIsNoIndexCountsAsWhite) {
  for (const int index : {0, 256, 257, -1}) EXPECT_EQ(acedGetRGB(7), acedGetRGB(index)) << index;
}
