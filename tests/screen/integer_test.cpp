#include "screen/integer.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <string>

#include "support/expect_fatal.h"

namespace veridraw {
namespace {

using testing::fatalNumberOf;

TEST(Integer, HoldsTheSixteenBitRange) {
  EXPECT_EQ(int(Integer(32767)), 32767);
  EXPECT_EQ(int(Integer(-32768)), -32768);
  EXPECT_EQ(int(Integer()), 0);
}

TEST(Integer, ConstructionBeyondTheRangeIsFatal6) {
  EXPECT_EQ(fatalNumberOf([] { Integer(32768); }), 6);
  EXPECT_EQ(fatalNumberOf([] { Integer(-32769); }), 6);
  EXPECT_EQ(fatalNumberOf([] { Integer(100000); }), 6);
}

struct ArithmeticCase {
  std::string name;
  std::function<Integer()> operation;
  int result;  // 0 with overflow set: fatal 6 expected
  bool overflow;
};

class Arithmetic : public ::testing::TestWithParam<ArithmeticCase> {};

TEST_P(Arithmetic, StaysInRangeOrIsFatal6) {
  const ArithmeticCase& c = GetParam();
  Integer result;
  const int fatal = fatalNumberOf([&] { result = c.operation(); });
  if (c.overflow) {
    EXPECT_EQ(fatal, 6);
  } else {
    EXPECT_EQ(fatal, 0);
    EXPECT_EQ(int(result), c.result);
  }
}

const Integer kMax(32767);
const Integer kMin(-32768);

INSTANTIATE_TEST_SUITE_P(
    Operations, Arithmetic,
    ::testing::Values(
        ArithmeticCase{"AddWithin", [] { return Integer(32766) + Integer(1); }, 32767, false},
        ArithmeticCase{"AddPast", [] { return kMax + Integer(1); }, 0, true},
        ArithmeticCase{"AddIntPast", [] { return kMax + 1; }, 0, true},
        ArithmeticCase{"IntAddPast", [] { return 1 + kMax; }, 0, true},
        ArithmeticCase{"AddNegativePast", [] { return kMin + -1; }, 0, true},
        ArithmeticCase{"SubtractWithin", [] { return kMin - Integer(-1); }, -32767, false},
        ArithmeticCase{"SubtractPast", [] { return kMin - Integer(1); }, 0, true},
        ArithmeticCase{"SubtractIntPast", [] { return kMin - 1; }, 0, true},
        ArithmeticCase{"IntSubtractPast", [] { return -2 - kMax; }, 0, true},
        ArithmeticCase{"MultiplyWithin", [] { return Integer(181) * Integer(181); }, 32761, false},
        ArithmeticCase{"MultiplyPast", [] { return Integer(200) * Integer(200); }, 0, true},
        ArithmeticCase{"MultiplyIntPast", [] { return Integer(256) * 128; }, 0, true},
        ArithmeticCase{"IntMultiplyPast", [] { return -1 * kMin; }, 0, true},
        ArithmeticCase{"MultiplyToMinimum", [] { return Integer(-256) * 128; }, -32768, false},
        ArithmeticCase{"IncrementWithin",
                       [] {
                         Integer i(32766);
                         return ++i;
                       },
                       32767, false},
        ArithmeticCase{"IncrementPast",
                       [] {
                         Integer i = kMax;
                         return ++i;
                       },
                       0, true},
        ArithmeticCase{"DecrementWithin",
                       [] {
                         Integer i(-32767);
                         return --i;
                       },
                       -32768, false},
        ArithmeticCase{"DecrementPast",
                       [] {
                         Integer i = kMin;
                         return --i;
                       },
                       0, true}),
    [](const auto& info) { return info.param.name; });

TEST(Integer, AnOverflowingIncrementLeavesTheCounterAsItWas) {
  Integer counter(32767);
  EXPECT_EQ(fatalNumberOf([&] { ++counter; }), 6);
  EXPECT_EQ(int(counter), 32767);
}

TEST(Integer, FromDoubleRoundsHalfToEven) {
  EXPECT_EQ(int(Integer::fromDouble(2.5)), 2);
  EXPECT_EQ(int(Integer::fromDouble(3.5)), 4);
  EXPECT_EQ(int(Integer::fromDouble(-0.5)), 0);
  EXPECT_EQ(int(Integer::fromDouble(12.0)), 12);
  EXPECT_EQ(int(Integer::fromDouble(32767.49)), 32767);
}

TEST(Integer, FromDoubleBeyondTheRangeIsFatal6) {
  EXPECT_EQ(fatalNumberOf([] { Integer::fromDouble(32767.5); }), 6);
  EXPECT_EQ(fatalNumberOf([] { Integer::fromDouble(-32768.51); }), 6);
  EXPECT_EQ(fatalNumberOf([] { Integer::fromDouble(1e300); }), 6);
  EXPECT_EQ(fatalNumberOf([] { Integer::fromDouble(std::nan("")); }), 6);
}

}  // namespace
}  // namespace veridraw
