#include "host/scene/Palette.h"
#include "host/scene/Color.h"

#include <gtest/gtest.h>

using scene::Color;
using scene::PaletteColor;
using scene::Rgb;

TEST(Palette, TheNamedColoursAreWhatTheyAreCalled) {
  EXPECT_EQ((Rgb{255, 0, 0}), PaletteColor(1));
  EXPECT_EQ((Rgb{255, 255, 0}), PaletteColor(2));
  EXPECT_EQ((Rgb{0, 255, 255}), PaletteColor(4));
  EXPECT_EQ((Rgb{255, 255, 255}), PaletteColor(7));
  EXPECT_EQ((Rgb{128, 128, 128}), PaletteColor(8));
}

// Rows of the table that handbooks print, in hexadecimal.
TEST(Palette, TheWheelIsTheTableOfTheHandbooks) {
  const auto hex = [](int index) {
    const Rgb c = PaletteColor(index);
    return c.red << 16 | c.green << 8 | c.blue;
  };
  EXPECT_EQ(0xFF0000, hex(10));
  EXPECT_EQ(0xFF7F7F, hex(11));
  EXPECT_EQ(0xA50000, hex(12));
  EXPECT_EQ(0xA55252, hex(13));
  EXPECT_EQ(0x4C2626, hex(17));
  EXPECT_EQ(0x261313, hex(19));
  EXPECT_EQ(0xFF3F00, hex(20));
  EXPECT_EQ(0xA52900, hex(22));
  EXPECT_EQ(0xA56752, hex(23));
  EXPECT_EQ(0xFFBF00, hex(40));
  EXPECT_EQ(0x6F7F3F, hex(65));
  EXPECT_EQ(0x00FF00, hex(90));
  EXPECT_EQ(0x7FFFDF, hex(121));
  EXPECT_EQ(0x003F7F, hex(154));
  EXPECT_EQ(0x7C00A5, hex(202));
  EXPECT_EQ(0x4C262F, hex(247));
  EXPECT_EQ(0x333333, hex(250));
  EXPECT_EQ(0xFFFFFF, hex(255));
}

TEST(Palette, IndexSevenIsBlackOnWhiteAndWhiteOnBlack) {
  const Color seven = Color::fromIndex(7);
  EXPECT_EQ((Rgb{0, 0, 0}), seven.on({255, 255, 255}));
  EXPECT_EQ((Rgb{255, 255, 255}), seven.on({0, 0, 0}));
  EXPECT_EQ((Rgb{255, 255, 255}), seven.on({33, 40, 48}));
  EXPECT_EQ((Rgb{255, 255, 255}), Color::fromIndex(255).on({255, 255, 255}));
}

TEST(Palette, NumbersThatAreNoIndexCountAsSeven) {
  EXPECT_EQ(Color::fromIndex(7), Color::fromIndex(0));
  EXPECT_EQ(Color::fromIndex(7), Color::fromIndex(256));
  EXPECT_EQ(Color::fromIndex(7), Color::fromIndex(-1));
}

TEST(Palette, ATrueColourHasRedHighest) {
  EXPECT_EQ((Rgb{0x12, 0x34, 0x56}), Color::fromTrueColor(0x123456).rgb);
}
