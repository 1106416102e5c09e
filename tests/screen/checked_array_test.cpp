#include "screen/checked_array.h"

#include <gtest/gtest.h>

#include "screen/integer.h"
#include "support/expect_fatal.h"
#include "support/test_support.h"

namespace veridraw {
namespace {

TEST(CheckedArray, HoldsOneValuePerIndexFromLowerToUpperAndStartsAtZero) {
  CheckedArray<Integer> cells(0, 87);
  EXPECT_EQ(cells.lower(), 0);
  EXPECT_EQ(cells.upper(), 87);
  EXPECT_EQ(cells(87), 0);
  cells(0) = 5;
  cells(87) = 40;
  EXPECT_EQ(cells(0), 5);
  EXPECT_EQ(cells(87), 40);
  EXPECT_EQ(cells(1), 0);
}

TEST(CheckedArray, AnIndexOutsideTheBoundsIsFatal9) {
  CheckedArray<Integer> counts(1, 5);
  EXPECT_EQ(testing::fatalNumberOf([&] { counts(0) = 1; }), 9);
  EXPECT_EQ(testing::fatalNumberOf([&] { counts(counts.upper() + 1) = 1; }), 9);
  EXPECT_EQ(testing::fatalNumberOf([&] { counts(5) = 1; }), 0);
}

}  // namespace
}  // namespace veridraw
