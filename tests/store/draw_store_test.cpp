#include "store/draw_store.h"

#include <gtest/gtest.h>

#include "support/expect_fatal.h"
#include "support/test_support.h"

namespace veridraw::store {
namespace {

// A working directory, the files of the program in it, and the draw in hand.
class DrawStore : public ::testing::Test {
 protected:
  testing::TemporaryDirectory dir;
  SequentialFiles files{dir.path()};
  DrawFields draw;
};

TEST_F(DrawStore, ReadsTheCurrentDrawAndItsThreeLines) {
  dir.write("DrawNumber", "705\r\n");
  dir.write("705", "705\r\nX0308172239401202\r\nZ17033908\r\n");
  ReadCurrentDraw(files, draw);
  EXPECT_EQ(draw.CurrentDrawText, "705");
  EXPECT_EQ(draw.DrawFileName, "705");
  EXPECT_EQ(draw.DrawNumbersText, "X0308172239401202");
  EXPECT_EQ(draw.StrikeNumbersText, "Z17033908");
}

TEST_F(DrawStore, ADrawWithOnlyStrikeNumbersHasAnEmptySecondLine) {
  dir.write("DrawNumber", "300\r\n");
  dir.write("300", "300\r\n\r\nZ17033908\r\n");
  ReadCurrentDraw(files, draw);
  EXPECT_EQ(draw.DrawNumbersText, "");
  EXPECT_EQ(draw.StrikeNumbersText.size(), 9u);
}

TEST_F(DrawStore, WritesTheCurrentDrawFileFirstAndTheDrawFileWhole) {
  draw = {"705", "X0308172239401202", "", ""};
  WriteDraw(files, draw);
  EXPECT_EQ(dir.read("DrawNumber"), "705\r\n");
  EXPECT_EQ(dir.read("705"), "705\r\nX0308172239401202\r\n\r\n");
  EXPECT_EQ(draw.DrawFileName, "705");
}

TEST_F(DrawStore, SelectingADrawRewritesTheCurrentDrawFile) {
  dir.write("DrawNumber", "3\r\n");
  dir.write("12", "12\r\nX0102030405060708\r\n\r\n");
  SelectDraw(files, draw, "12");
  EXPECT_EQ(dir.read("DrawNumber"), "12\r\n");
  EXPECT_EQ(draw.CurrentDrawText, "12");
  EXPECT_EQ(draw.DrawNumbersText, "X0102030405060708");
}

TEST_F(DrawStore, AMissingDrawFileIsFatal53) {
  dir.write("DrawNumber", "9\r\n");
  EXPECT_EQ(testing::fatalNumberOf([&] { ReadCurrentDraw(files, draw); }), 53);
}

TEST_F(DrawStore, ADrawFileOfTwoLinesIsFatal62) {
  dir.write("DrawNumber", "9\r\n");
  dir.write("9", "9\r\nX0102030405060708\r\n");
  EXPECT_EQ(testing::fatalNumberOf([&] { ReadCurrentDraw(files, draw); }), 62);
}

TEST(DrawNumbers, AreAcceptedFrom1To1768ByVal) {
  EXPECT_TRUE(IsAcceptedNumber("1"));
  EXPECT_TRUE(IsAcceptedNumber("1768"));
  EXPECT_TRUE(IsAcceptedNumber("7x"));
  EXPECT_FALSE(IsAcceptedNumber("1769"));
  EXPECT_FALSE(IsAcceptedNumber("0"));
  EXPECT_FALSE(IsAcceptedNumber("abc"));
}

}  // namespace
}  // namespace veridraw::store
