#include "store/draw_store.h"

#include <gtest/gtest.h>

#include "unit/expect_fatal.h"
#include "unit/test_support.h"

namespace veridraw::store {
namespace {

TEST(DrawStore, ReadsTheCurrentDrawAndItsThreeLines) {
  testing::TemporaryDirectory dir;
  dir.write("DrawNumber", "705\r\n");
  dir.write("705", "705\r\nX0308172239401202\r\nZ17033908\r\n");
  SequentialFiles files(dir.path());
  DrawFields draw;
  ReadCurrentDraw(files, draw);
  EXPECT_EQ(draw.CurrentDrawText, "705");
  EXPECT_EQ(draw.DrawFileName, "705");
  EXPECT_EQ(draw.DrawNumbersText, "X0308172239401202");
  EXPECT_EQ(draw.StrikeNumbersText, "Z17033908");
}

TEST(DrawStore, ADrawWithOnlyStrikeNumbersHasAnEmptySecondLine) {
  testing::TemporaryDirectory dir;
  dir.write("DrawNumber", "300\r\n");
  dir.write("300", "300\r\n\r\nZ17033908\r\n");
  SequentialFiles files(dir.path());
  DrawFields draw;
  ReadCurrentDraw(files, draw);
  EXPECT_EQ(draw.DrawNumbersText, "");
  EXPECT_EQ(draw.StrikeNumbersText.size(), 9u);
}

TEST(DrawStore, WritesTheCurrentDrawFileFirstAndTheDrawFileWhole) {
  testing::TemporaryDirectory dir;
  SequentialFiles files(dir.path());
  DrawFields draw{"705", "X0308172239401202", "", ""};
  WriteDraw(files, draw);
  EXPECT_EQ(dir.read("DrawNumber"), "705\r\n");
  EXPECT_EQ(dir.read("705"), "705\r\nX0308172239401202\r\n\r\n");
  EXPECT_EQ(draw.DrawFileName, "705");
}

TEST(DrawStore, SelectingADrawRewritesTheCurrentDrawFile) {
  testing::TemporaryDirectory dir;
  dir.write("DrawNumber", "3\r\n");
  dir.write("12", "12\r\nX0102030405060708\r\n\r\n");
  SequentialFiles files(dir.path());
  DrawFields draw;
  SelectDraw(files, draw, "12");
  EXPECT_EQ(dir.read("DrawNumber"), "12\r\n");
  EXPECT_EQ(draw.CurrentDrawText, "12");
  EXPECT_EQ(draw.DrawNumbersText, "X0102030405060708");
}

TEST(DrawStore, AMissingDrawFileIsFatal53) {
  testing::TemporaryDirectory dir;
  dir.write("DrawNumber", "9\r\n");
  SequentialFiles files(dir.path());
  DrawFields draw;
  EXPECT_EQ(testing::fatalNumberOf([&] { ReadCurrentDraw(files, draw); }), 53);
}

TEST(DrawStore, ADrawFileOfTwoLinesIsFatal62) {
  testing::TemporaryDirectory dir;
  dir.write("DrawNumber", "9\r\n");
  dir.write("9", "9\r\nX0102030405060708\r\n");
  SequentialFiles files(dir.path());
  DrawFields draw;
  EXPECT_EQ(testing::fatalNumberOf([&] { ReadCurrentDraw(files, draw); }), 62);
}

TEST(DrawStore, AcceptsNumbersFrom1To1768ByVal) {
  EXPECT_TRUE(IsAcceptedNumber("1"));
  EXPECT_TRUE(IsAcceptedNumber("1768"));
  EXPECT_TRUE(IsAcceptedNumber("7x"));
  EXPECT_FALSE(IsAcceptedNumber("1769"));
  EXPECT_FALSE(IsAcceptedNumber("0"));
  EXPECT_FALSE(IsAcceptedNumber("abc"));
}

}  // namespace
}  // namespace veridraw::store
