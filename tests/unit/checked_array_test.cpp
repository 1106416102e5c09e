#include "screen/checked_array.h"

#include <gtest/gtest.h>

#include <functional>

#include "screen/integer.h"

namespace veridraw {
namespace {

int fatalNumberOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const FatalError& error) {
    return error.number();
  }
  return 0;
}

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
  EXPECT_EQ(fatalNumberOf([&] { counts(0) = 1; }), 9);
  EXPECT_EQ(fatalNumberOf([&] { counts(6) = 1; }), 9);
  EXPECT_EQ(fatalNumberOf([&] { counts(5) = 1; }), 0);
}

}  // namespace
}  // namespace veridraw
