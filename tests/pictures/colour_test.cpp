// Shades of a colour, worked out in 16 bits a channel as the toolkits do.
#include <gtest/gtest.h>

#include "pictures/colour.h"

namespace veridraw {
namespace {

using pictures::Colour;

TEST(Colour, ChannelsOfEightBitsAreWidenedToSixteen) {
  const Colour colour(255, 128, 1, 60);
  EXPECT_EQ(colour.wideRed(), 0xFFFF);
  EXPECT_EQ(colour.wideGreen(), 0x8080);
  EXPECT_EQ(colour.wideBlue(), 0x0101);
  EXPECT_EQ(colour.wideAlpha(), 60 * 0x101);
  EXPECT_EQ(Colour().wideAlpha(), 0xFFFF);
}

TEST(Colour, DarkerDividesTheValueAndLighterMultipliesIt) {
  EXPECT_EQ(Colour(200, 200, 200).darker(200), Colour(100, 100, 100));
  EXPECT_EQ(Colour(100, 100, 100).lighter(150), Colour(150, 150, 150));
  // A pure red halved: the value of 0xFFFF becomes 0x7FFF, hue and saturation stay.
  EXPECT_EQ(Colour(255, 0, 0).darker(200), Colour::fromWide(0x7FFF, 0, 0, 0xFFFF));
  // Below 100 each is the other.
  EXPECT_EQ(Colour(30, 90, 210).darker(50), Colour(30, 90, 210).lighter(200));
  EXPECT_EQ(Colour(30, 90, 210).darker(0), Colour(30, 90, 210));
}

TEST(Colour, LighterPastTheTopGivesUpSaturation) {
  EXPECT_EQ(Colour(200, 200, 200).lighter(150), Colour(255, 255, 255));
  const Colour pale = Colour(255, 200, 200).lighter(150);
  EXPECT_EQ(pale.wideRed(), 0xFFFF);
  EXPECT_GT(pale.wideGreen(), Colour(255, 200, 200).wideGreen());
}

TEST(Colour, AShadeKeepsItsAlpha) {
  EXPECT_EQ(Colour(235, 245, 255, 150).darker(150).wideAlpha(), 150 * 0x101);
}

TEST(Colour, LightnessIsTheMeanOfTheHighestAndLowestChannel) {
  EXPECT_EQ(Colour(255, 0, 0).lightness(), 128);
  EXPECT_EQ(Colour(255, 255, 255).lightness(), 255);
  EXPECT_EQ(Colour(0, 0, 0).lightness(), 0);
  EXPECT_EQ(Colour(30, 90, 210).lightness(), 120);
}

}  // namespace
}  // namespace veridraw
