#include "runner/values.h"

#include <gtest/gtest.h>

#include <string>

#include "support/probe_form.h"

namespace veridraw::script {
namespace {

using veridraw::testing::ScreenTest;

Value valueOf(const std::string& text, bool quoted = false) {
  return parseValue(Token{quoted, text});
}

TEST(ParseValue, ReadsStringsBooleansAndNumbers) {
  EXPECT_EQ(valueOf("12", true), Value(std::string("12")));
  EXPECT_EQ(valueOf("True", true), Value(std::string("True")));
  EXPECT_EQ(valueOf("True"), Value(true));
  EXPECT_EQ(valueOf("False"), Value(false));
  EXPECT_EQ(valueOf("705"), Value(705.0));
  EXPECT_EQ(valueOf("-7"), Value(-7.0));
  EXPECT_EQ(valueOf("0"), Value(0.0));
  EXPECT_EQ(valueOf("0xC0FFFF"), Value(12648447.0));
  EXPECT_EQ(valueOf("0x0000FF"), Value(255.0));
  EXPECT_EQ(valueOf("8.25"), Value(8.25));
  EXPECT_EQ(valueOf("0XFF"), Value(255.0));
  EXPECT_EQ(valueOf("0xFFFFFFFF"), Value(4294967295.0));
  EXPECT_EQ(valueOf("-0"), Value(0.0));
}

class ParseValueRefuses : public ::testing::TestWithParam<std::string> {};

TEST_P(ParseValueRefuses, WordsThatAreNoValue) {
  EXPECT_THROW(valueOf(GetParam()), ScenarioFailure) << GetParam();
}

INSTANTIATE_TEST_SUITE_P(Words, ParseValueRefuses,
                         ::testing::Values("abc", "true", "FALSE", "12abc", "0x", "0xZZ", "0x12G",
                                           "-", "nan", "inf", "-infinity", "Text", "1e9", "-0x5",
                                           "0x0x5", "0x-5", "+1", "1.", ".5", "1.2.3", " 1"));

TEST(FormatValue, WritesTheNotationOfExpect) {
  EXPECT_EQ(formatValue(Value(std::string("12 \r\n"))), R"("12 \r\n")");
  EXPECT_EQ(formatValue(Value(true)), "True");
  EXPECT_EQ(formatValue(Value(false)), "False");
  EXPECT_EQ(formatValue(Value(705.0)), "705");
  EXPECT_EQ(formatValue(Value(-7.0)), "-7");
  EXPECT_EQ(formatValue(Value(8.25)), "8.25");
  EXPECT_EQ(formatValue(Value(255.0), true), "0x0000FF");
  EXPECT_EQ(formatValue(Value(12648447.0), true), "0xC0FFFF");
}

TEST(SameValue, ComparesNumbersNumericallyAndStringsByteForByte) {
  EXPECT_TRUE(sameValue(valueOf("0xFF"), valueOf("255")));
  EXPECT_TRUE(sameValue(valueOf("12 ", true), valueOf("12 ", true)));
  EXPECT_FALSE(sameValue(valueOf("12", true), valueOf("12 ", true)));
  EXPECT_FALSE(sameValue(valueOf("a", true), valueOf("A", true)));
  EXPECT_FALSE(sameValue(valueOf("1"), valueOf("True")));
  EXPECT_FALSE(sameValue(valueOf("True"), valueOf("False")));
}

struct PropertyCase {
  std::string control;
  std::string property;
  bool present;
};

class Properties : public ScreenTest, public ::testing::WithParamInterface<PropertyCase> {};

TEST_P(Properties, BelongToTheKindsThatHaveThem) {
  start();
  const PropertyCase& c = GetParam();
  EXPECT_EQ(readProperty(first.control(c.control), c.property).has_value(), c.present)
      << c.control << "." << c.property;
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, Properties,
    ::testing::Values(
        PropertyCase{"Box", "Text", true}, PropertyCase{"Box", "Locked", true},
        PropertyCase{"Box", "BorderStyle", true}, PropertyCase{"Box", "Caption", false},
        PropertyCase{"Box", "TopIndex", false}, PropertyCase{"Title", "Caption", true},
        PropertyCase{"Title", "Text", false}, PropertyCase{"Title", "FontBold", true},
        PropertyCase{"Title", "Locked", false}, PropertyCase{"BtnGo", "Caption", true},
        PropertyCase{"BtnGo", "ToolTipText", true}, PropertyCase{"BtnGo", "Text", false},
        PropertyCase{"BtnGo", "Locked", false}, PropertyCase{"List", "Text", true},
        PropertyCase{"List", "TopIndex", true}, PropertyCase{"List", "ListCount", true},
        PropertyCase{"List", "ListIndex", true}, PropertyCase{"List", "Caption", false},
        PropertyCase{"Box", "Colour", false}, PropertyCase{"Box", "text", false}));

TEST_F(ScreenTest, PropertiesReadTheControlsState) {
  start();
  first.control("List").AddItem("705");
  app.selectItem(first.control("List"), 0);
  EXPECT_EQ(*readProperty(first.control("Box"), "Text"), Value(std::string(" ")));
  EXPECT_EQ(*readProperty(first.control("List"), "Text"), Value(std::string("705")));
  EXPECT_EQ(*readProperty(first.control("List"), "ListIndex"), Value(0.0));
  EXPECT_EQ(*readProperty(first.control("BtnHidden"), "Visible"), Value(false));
  EXPECT_EQ(*readProperty(first.control("Box"), "BackColor"), Value(double(colors::kWhite)));
  EXPECT_EQ(*readProperty(first.control("Cell", 5), "Left"), Value(4600.0));
  EXPECT_EQ(*readProperty(first.control("Cell", 5), "TabStop"), Value(false));
}

}  // namespace
}  // namespace veridraw::script
