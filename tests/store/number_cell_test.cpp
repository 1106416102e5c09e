#include "store/number_cell.h"

#include <gtest/gtest.h>

#include "screen/strings.h"

namespace veridraw {
namespace {

TEST(NumberCell, IsFullWithTwoCharactersAndTheBlank) {
  EXPECT_TRUE(IsFullCell("12 "));
  EXPECT_TRUE(IsFullCell("5  "));
  EXPECT_FALSE(IsFullCell(" "));
  EXPECT_FALSE(IsFullCell("1 "));
  EXPECT_FALSE(IsFullCell("  "));
}

TEST(NumberCell, AFullCellBelowOneIsOutOfRange) {
  EXPECT_TRUE(IsOutOfRange("00 "));
  EXPECT_TRUE(IsOutOfRange("ab "));
  EXPECT_TRUE(IsOutOfRange("   "));
  EXPECT_FALSE(IsOutOfRange("01 "));
}

TEST(NumberCell, ACellNotYetFullIsNeverTooLow) {
  EXPECT_FALSE(IsOutOfRange(" "));
  EXPECT_FALSE(IsOutOfRange("0 "));
  EXPECT_FALSE(IsOutOfRange("a "));
  EXPECT_FALSE(IsOutOfRange("  "));
}

TEST(NumberCell, AboveFortyIsOutOfRangeAtAnyLength) {
  EXPECT_TRUE(IsOutOfRange("41 "));
  EXPECT_TRUE(IsOutOfRange("99 "));
  EXPECT_TRUE(IsOutOfRange("41"));
  EXPECT_FALSE(IsOutOfRange("40 "));
}

TEST(NumberCell, ADigitFollowedByAnythingCountsAsTheDigit) {
  EXPECT_FALSE(IsOutOfRange("5x "));
  EXPECT_FALSE(IsOutOfRange("5  "));
  EXPECT_FALSE(IsOutOfRange(" 1 "));
}

}  // namespace
// The test given a value already read by Val answers as the test that reads it.
TEST(NumberCell, TheRangeOfAKnownValueIsTheRangeOfItsText) {
  for (const char* text : {" ", "  ", "   ", "0 ", "00 ", "01 ", "1 ", "40 ", "41 ", "41", "99 ",
                           "5x ", "ab ", "a ", " 1 ", "-1 ", "4e1", "&H29"})
    EXPECT_EQ(IsOutOfRange(text, Val(text)), IsOutOfRange(text)) << text;
}

}  // namespace veridraw
