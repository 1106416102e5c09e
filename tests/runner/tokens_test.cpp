#include "runner/tokens.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace veridraw::script {
namespace {

// Tokens as they read: a word as it stands, a string in quotes.
using Shown = std::vector<std::string>;

struct TokenCase {
  std::string line;
  Shown tokens;
};

Shown shown(const std::vector<Token>& tokens) {
  Shown result;
  for (const Token& token : tokens)
    result.push_back(token.quoted ? quote(token.text) : token.text);
  return result;
}

std::string word(std::string text) {
  return text;
}
std::string string(const std::string& text) {
  return quote(text);
}

class Tokenize : public ::testing::TestWithParam<TokenCase> {};

TEST_P(Tokenize, SplitsWordsAndStrings) {
  EXPECT_EQ(shown(tokenize(GetParam().line)), GetParam().tokens);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, Tokenize,
    ::testing::Values(
        TokenCase{"", {}}, TokenCase{"   \t ", {}},
        TokenCase{"click BtnStart", {word("click"), word("BtnStart")}},
        TokenCase{"  key   Alt+R  ", {word("key"), word("Alt+R")}},
        TokenCase{"start\r", {word("start")}},
        TokenCase{"file \"Lotto # 7\" \"x y\"", {word("file"), string("Lotto # 7"), string("x y")}},
        TokenCase{"reply \"\"", {word("reply"), string("")}},
        TokenCase{R"("a\"b")", {string("a\"b")}}, TokenCase{R"("\\")", {string("\\")}},
        TokenCase{R"("\r\n\t")", {string("\r\n\t")}},
        TokenCase{R"("\x41\x7f\xFF\x00")", {string(std::string("A\x7F\xFF\0", 4))}},
        TokenCase{"expect TxtDrawnNumbers(1..8).Text \" \"",
                  {word("expect"), word("TxtDrawnNumbers(1..8).Text"), string(" ")}}));

class TokenizeRefuses : public ::testing::TestWithParam<std::string> {};

TEST_P(TokenizeRefuses, ABrokenString) {
  EXPECT_THROW(tokenize(GetParam()), ScenarioFailure) << GetParam();
}

INSTANTIATE_TEST_SUITE_P(Lines, TokenizeRefuses,
                         ::testing::Values(R"(file a "abc)", R"(file a "abc\)", R"("\q")",
                                           R"("\x4")", R"("\xG1")", R"("\x")", R"("a"b)"));

TEST(Quote, WritesEscapesThatTokenizeReadsBack) {
  std::string every;
  for (int byte = 0; byte < 256; ++byte)
    every += static_cast<char>(byte);
  const std::vector<Token> tokens = tokenize(quote(every));
  ASSERT_EQ(tokens.size(), 1u);
  EXPECT_TRUE(tokens[0].quoted);
  EXPECT_EQ(tokens[0].text, every);
}

TEST(Quote, UsesTheNamedEscapesAndHexForOtherControlBytes) {
  EXPECT_EQ(quote("12\r\n"), R"("12\r\n")");
  EXPECT_EQ(quote("a\"b\\c\td"), R"("a\"b\\c\td")");
  EXPECT_EQ(quote("\x01\xE9"), R"("\x01\xE9")");
  EXPECT_EQ(quote(""), R"("")");
}

}  // namespace
}  // namespace veridraw::script
