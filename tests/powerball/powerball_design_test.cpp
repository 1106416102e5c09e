// The control arrays of the PowerBall screen have the elements that its
// procedures reach and no others: no LineA(0), unlike the Lotto screen, the
// PowerBall column with its two spare cells and its cover box as 15 to 17, the
// box of the one number with three spare boxes, and the two column headings.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "powerball/powerball_screen_support.h"

namespace veridraw::testing {
namespace {

class PowerBallDesign : public PowerBallScreen {
 protected:
  // The indices of a control array's elements, from lowest to highest.
  std::vector<int> elements(const std::string& name) const {
    std::vector<int> indices;
    for (const auto& control : screen().controls())
      if (control->name() == name) indices.push_back(control->index());
    std::sort(indices.begin(), indices.end());
    return indices;
  }
  static std::vector<int> range(int first, int last) {
    std::vector<int> indices;
    for (int index = first; index <= last; ++index)
      indices.push_back(index);
    return indices;
  }
};

TEST_F(PowerBallDesign, TheArraysHaveTheirElementsAndNoOthers) {
  open();
  EXPECT_EQ(elements("LineA"), range(1, 88));
  EXPECT_EQ(screen().find("LineA", 0), nullptr);
  EXPECT_EQ(elements("IntResult"), range(1, 84));
  EXPECT_EQ(elements("TextATxt"), range(1, 14));
  EXPECT_EQ(elements("TextBTxt"), range(1, 14));
  EXPECT_EQ(elements("TxtPowerBall"), range(1, 17));
  EXPECT_EQ(elements("TxtPwrBall"), range(1, 14));
  EXPECT_EQ(elements("TxtPwrBallNumber"), range(1, 4));
  EXPECT_EQ(elements("LblPwrBall1"), range(0, 1));
  EXPECT_EQ(elements("TxtDrawnNumbers2"), range(1, 8));
  EXPECT_EQ(screen().find("lblLotto"), nullptr);
  EXPECT_EQ(screen().design().clientWidth, 11880);
  EXPECT_EQ(screen().design().clientHeight, 8595);
}

}  // namespace
}  // namespace veridraw::testing
