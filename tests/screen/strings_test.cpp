#include "screen/strings.h"

#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <string>
#include <vector>

#include "support/expect_fatal.h"

namespace veridraw {
namespace {

using testing::fatalNumberOf;

struct ValCase {
  std::string text;
  double value;
};

class ValReads : public ::testing::TestWithParam<ValCase> {};

TEST_P(ValReads, TheLongestNumericPrefix) {
  EXPECT_DOUBLE_EQ(Val(GetParam().text), GetParam().value) << "Val(\"" << GetParam().text << "\")";
}

INSTANTIATE_TEST_SUITE_P(
    Plain, ValReads,
    ::testing::Values(ValCase{"", 0}, ValCase{" ", 0}, ValCase{"  ", 0}, ValCase{"12", 12},
                      ValCase{"12 ", 12}, ValCase{" 12", 12}, ValCase{"07", 7}, ValCase{"07 ", 7},
                      ValCase{"1 2", 12}, ValCase{"1\t2\n3", 123}, ValCase{"12\r34", 12},
                      ValCase{" 1615 198th Street N.E.", 1615198}, ValCase{"24 and 57", 24},
                      ValCase{"12abc", 12}, ValCase{"abc", 0}, ValCase{"X0308", 0},
                      ValCase{"1,000", 1}, ValCase{"$5", 0}));

INSTANTIATE_TEST_SUITE_P(SignsAndFractions, ValReads,
                         ::testing::Values(ValCase{"-3", -3}, ValCase{"+4", 4}, ValCase{"- 3", -3},
                                           ValCase{"3.25", 3.25}, ValCase{".5", 0.5},
                                           ValCase{"1.2.3", 1.2}, ValCase{"-", 0}, ValCase{".", 0},
                                           ValCase{"--3", 0}));

INSTANTIATE_TEST_SUITE_P(Exponents, ValReads,
                         ::testing::Values(ValCase{"1E3", 1000}, ValCase{"1e3", 1000},
                                           ValCase{"2D2", 200}, ValCase{"2d2", 200},
                                           ValCase{"1.5E-1", 0.15}, ValCase{"5E+1", 50},
                                           ValCase{"1 E 2", 100}, ValCase{"1E", 1},
                                           ValCase{"7Ex", 7}));

INSTANTIATE_TEST_SUITE_P(RadixPrefixes, ValReads,
                         ::testing::Values(ValCase{"&H10", 16}, ValCase{"&h10", 16},
                                           ValCase{"&HFF", 255}, ValCase{"&HFFFF", -1},
                                           ValCase{"&H7FFF", 32767}, ValCase{"&H8000", -32768},
                                           ValCase{"&H10000", 65536}, ValCase{"&HFFFFFFFF", -1},
                                           ValCase{"&O17", 15}, ValCase{"&o17", 15},
                                           ValCase{"&O177777", -1}, ValCase{"&H1G", 1},
                                           ValCase{"&O78", 7}, ValCase{" &H 1 0", 16}));

// Val reads the plain texts of number cells by a shorter way than the whole
// reader; both must agree, to the bit, on every text of up to four characters
// of this alphabet, which holds every character the reader treats apart.
TEST(ValShortWay, AgreesWithTheWholeReaderOnEveryShortText) {
  const std::string alphabet = std::string("01789 \t\n\r&HOhoeEdD+-.,ax$") + '\xE9' + '\0';
  const auto sameOutcome = [](const std::string& text) {
    double shortWay = 0;
    double wholeReader = 0;
    int shortFatal = 0;
    int readerFatal = 0;
    shortFatal = fatalNumberOf([&] { shortWay = Val(text); });
    readerFatal = fatalNumberOf([&] { wholeReader = ReadVal(text); });
    return shortFatal == readerFatal && std::memcmp(&shortWay, &wholeReader, sizeof(double)) == 0;
  };
  std::string text;
  long compared = 0;
  const std::function<void(std::size_t)> every = [&](std::size_t length) {
    if (text.size() == length) {
      ++compared;
      if (!sameOutcome(text))
        ADD_FAILURE() << "Val(\"" << text << "\") " << Val(text) << " vs " << ReadVal(text);
      return;
    }
    for (const char c : alphabet) {
      text.push_back(c);
      every(length);
      text.pop_back();
    }
  };
  for (std::size_t length = 0; length <= 4; ++length)
    every(length);
  const long n = static_cast<long>(alphabet.size());
  EXPECT_EQ(compared, 1 + n + n * n + n * n * n + n * n * n * n);
}

TEST(ValShortWay, ReadsCellsAndLongDigitRunsAsTheReaderDoes) {
  for (const std::string text :
       {"12 ", "1 ", " ", "  ", "40 ", "41 ", "00 ", "123456789012345", "1234567890123456",
        "99999999999999999999", " 1 2 3 4 5 6 7 8 9 0 1 2 3 4 5 6 ", "007", "\n\t7"})
    EXPECT_EQ(Val(text), ReadVal(text)) << text;
  EXPECT_EQ(Val("12 "), 12.0);
  EXPECT_EQ(Val("1234567890123456"), 1234567890123456.0);
}

struct StrictCase {
  std::string text;
  double value;
};

class StrictNumberAccepts : public ::testing::TestWithParam<StrictCase> {};

TEST_P(StrictNumberAccepts, TextThatIsWhollyANumber) {
  EXPECT_DOUBLE_EQ(StrictNumber(GetParam().text), GetParam().value)
      << "\"" << GetParam().text << "\"";
}

INSTANTIATE_TEST_SUITE_P(Numbers, StrictNumberAccepts,
                         ::testing::Values(StrictCase{"12", 12}, StrictCase{" 12", 12},
                                           StrictCase{"12 ", 12}, StrictCase{"  705  ", 705},
                                           StrictCase{"-5", -5}, StrictCase{"+5", 5},
                                           StrictCase{"3.5", 3.5}, StrictCase{".25", 0.25},
                                           StrictCase{"1E2", 100}, StrictCase{"07", 7},
                                           StrictCase{"&H10", 16}));

class StrictNumberRefuses : public ::testing::TestWithParam<std::string> {};

TEST_P(StrictNumberRefuses, TextThatIsNotWhollyANumberAsFatal13) {
  EXPECT_EQ(fatalNumberOf([&] { StrictNumber(GetParam()); }), 13) << "\"" << GetParam() << "\"";
  EXPECT_EQ(fatalNumberOf([&] { StrictInteger(GetParam()); }), 13) << "\"" << GetParam() << "\"";
}

INSTANTIATE_TEST_SUITE_P(NotNumbers, StrictNumberRefuses,
                         ::testing::Values("", " ", "  ", "abc", "12a", "a12", "1 2", "-", ".",
                                           "X0308172239401202", "12-", "&H"));

struct IntegerCase {
  std::string text;
  int value;
};

class StrictIntegerRounds : public ::testing::TestWithParam<IntegerCase> {};

TEST_P(StrictIntegerRounds, HalfToEven) {
  EXPECT_EQ(int(StrictInteger(GetParam().text)), GetParam().value)
      << "\"" << GetParam().text << "\"";
}

INSTANTIATE_TEST_SUITE_P(
    Halves, StrictIntegerRounds,
    ::testing::Values(IntegerCase{"2.5", 2}, IntegerCase{"3.5", 4}, IntegerCase{"0.5", 0},
                      IntegerCase{"1.5", 2}, IntegerCase{"-2.5", -2}, IntegerCase{"-3.5", -4},
                      IntegerCase{"2.4", 2}, IntegerCase{"2.6", 3}, IntegerCase{" 7 ", 7},
                      IntegerCase{"32767", 32767}, IntegerCase{"-32768", -32768},
                      IntegerCase{"32767.4", 32767}, IntegerCase{"-32768.5", -32768}));

TEST(StrictInteger, BeyondSixteenBitsIsFatal6) {
  for (const char* text : {"32768", "-32769", "32767.5", "1E10", "-40000"})
    EXPECT_EQ(fatalNumberOf([&] { StrictInteger(text); }), 6) << text;
}

TEST(CStr, WritesAnIntegerAsPlainDigits) {
  EXPECT_EQ(CStr(1), "1");
  EXPECT_EQ(CStr(1500), "1500");
  EXPECT_EQ(CStr(0), "0");
  EXPECT_EQ(CStr(-7), "-7");
  EXPECT_EQ(CStr(int(Integer(-32768))), "-32768");
}

TEST(CStr, WritesAWholeFloatingValueWithoutAFraction) {
  EXPECT_EQ(CStr(705.0), "705");
  EXPECT_EQ(CStr(7.5), "7.5");
  EXPECT_EQ(CStr(-0.25), "-0.25");
  EXPECT_EQ(CStr(123456789012345.0), "123456789012345");
}

TEST(CStr, WritesALargeOrSmallFloatingValueWithACapitalE) {
  EXPECT_EQ(CStr(1e20), "1E+20");
  EXPECT_EQ(CStr(1e15), "1E+15");
  EXPECT_EQ(CStr(0.00001), "1E-05");
  EXPECT_EQ(CStr(-2.5e-7), "-2.5E-07");
}

struct SliceCase {
  std::string text;
  int start;  // Mid only
  int count;
  std::string left;
  std::string mid;
};

class Slices : public ::testing::TestWithParam<SliceCase> {};

TEST_P(Slices, LeftAndMidGiveFewerCharactersAtTheEnd) {
  const SliceCase& c = GetParam();
  EXPECT_EQ(Left(c.text, c.count), c.left);
  EXPECT_EQ(Mid(c.text, c.start, c.count), c.mid);
}

INSTANTIATE_TEST_SUITE_P(
    Characters, Slices,
    ::testing::Values(SliceCase{"Veridraw", 1, 4, "Veri", "Veri"},
                      SliceCase{"Veridraw", 5, 4, "Veri", "draw"},
                      SliceCase{"Veridraw", 7, 5, "Verid", "aw"},
                      SliceCase{"Veridraw", 8, 1, "V", "w"}, SliceCase{"Veridraw", 9, 1, "V", ""},
                      SliceCase{"Veridraw", 40, 2, "Ve", ""}, SliceCase{"12 ", 1, 2, "12", "12"},
                      SliceCase{"abc", 2, 0, "", ""}, SliceCase{"abc", 1, 10, "abc", "abc"},
                      SliceCase{"", 1, 1, "", ""}));

TEST(Slices, ANegativeCountOrAStartBelowOneIsFatal5) {
  EXPECT_EQ(fatalNumberOf([] { Left("abc", -1); }), 5);
  EXPECT_EQ(fatalNumberOf([] { Mid("abc", 0, 1); }), 5);
  EXPECT_EQ(fatalNumberOf([] { Mid("abc", 1, -1); }), 5);
}

TEST(Len, CountsCharacters) {
  EXPECT_EQ(Len(""), 0);
  EXPECT_EQ(Len(" "), 1);
  EXPECT_EQ(Len("  "), 2);
  EXPECT_EQ(Len("12 "), 3);
}

// The logic compares its strings with the operators of std::string, which go
// byte by byte by unsigned code value, as the runtime's binary comparison does.
TEST(StringComparison, GoesByCodeValueAndIsCaseSensitive) {
  const std::string nine = "9 ", forty = "40 ";
  EXPECT_GT(nine, forty);
  EXPECT_LT(std::string("B"), std::string("a"));
  EXPECT_NE(std::string("a"), std::string("A"));
  EXPECT_GT(std::string("\xE9"), std::string("z"));
  EXPECT_LT(std::string("12"), std::string("12 "));
}

}  // namespace
}  // namespace veridraw
