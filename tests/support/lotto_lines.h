// Lines of six numbers made to match the main numbers 03 08 17 22 39 40 and the
// bonus 12 of a draw by a chosen count, and what the prize grid then shows.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "screen/form.h"
#include "screen/strings.h"

namespace veridraw::testing {

inline const std::vector<int> kMain = {3, 8, 17, 22, 39, 40};
inline constexpr int kBonus = 12;
// Six numbers that match nothing of the draw.
inline const std::vector<int> kMisses = {1, 2, 4, 5, 6, 7};

inline std::string pair(int number) {
  std::string digits = number < 10 ? "0" : "";
  return digits += CStr(number);
}

// A line of six ascending numbers: `matches` main numbers, the bonus if asked.
inline std::string lineWith(int matches, bool bonus) {
  std::vector<int> numbers(kMain.begin(), kMain.begin() + matches);
  if (bonus) numbers.push_back(kBonus);
  for (const int miss : kMisses)
    if (numbers.size() < 6) numbers.push_back(miss);
  std::sort(numbers.begin(), numbers.end());
  std::string line;
  for (const int number : numbers)
    line += pair(number);
  return line;
}

inline const std::string kNothing = lineWith(0, false);

// The prize grid of a line after the comparison: main numbers black on pale
// yellow, the bonus white on blue, the rest blank.
inline void expectPrizeGridOfLine(Form& screen, int line) {
  for (int cell = (line - 1) * 6 + 1; cell <= line * 6; ++cell) {
    SCOPED_TRACE("cell " + CStr(cell));
    const std::string typed = screen.control("LineA", cell).text();
    const int value = static_cast<int>(Val(typed));
    const Control& result = screen.control("IntResult", cell);
    if (std::count(kMain.begin(), kMain.end(), value) > 0) {
      EXPECT_EQ(result.text(), typed);
      EXPECT_EQ(result.backColor(), colors::kPaleYellow);
      EXPECT_EQ(result.foreColor(), colors::kBlack);
    } else if (value == kBonus) {
      EXPECT_EQ(result.text(), typed);
      EXPECT_EQ(result.backColor(), colors::kBlue);
      EXPECT_EQ(result.foreColor(), colors::kWhite);
    } else {
      EXPECT_EQ(result.text(), " ");
    }
  }
}

}  // namespace veridraw::testing
