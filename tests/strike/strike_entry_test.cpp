// The entry of a Strike ticket: the range of a number, and no number twice in
// a line whatever its place, refused with exactly one message each time.
#include <gtest/gtest.h>

#include <string>

#include "screen/keys.h"
#include "screen/strings.h"
#include "strike/strike_screen_support.h"

namespace veridraw::testing {
namespace {

constexpr const char* kRangeMessage = "You Must enter a Number between 1 and 40";
constexpr const char* kRepeatMessage = "This is an incorrect number";

class StrikeEntry : public StrikeScreen {
 protected:
  std::string text(int cell) { return c("TxtStrike", cell).text(); }
  // Types two keys into the cell with the focus; a refusal is answered OK.
  // Returns the messages that the two keys raised.
  std::vector<std::string> typeNumber(const std::string& keys) {
    const std::size_t before = dialogs.shown.size();
    dialogs.buttonAnswers = {1};
    type(keys);
    std::vector<std::string> raised;
    for (std::size_t k = before; k < dialogs.shown.size(); ++k) {
      EXPECT_EQ(dialogs.shown[k].title, "WARNING");
      EXPECT_EQ(dialogs.shown[k].buttons, 0);
      raised.push_back(dialogs.shown[k].prompt);
    }
    return raised;
  }
};

TEST_F(StrikeEntry, TwoDigitsFrom01To40PassAndAllOthersAreRefusedAtTheSecondKey) {
  click("BtnCheckNewTicket");
  click("BtnLineA");
  for (int number = 0; number <= 99; ++number) {
    std::string keys = number < 10 ? "0" : "";
    keys += CStr(number);
    SCOPED_TRACE(keys);
    const std::vector<std::string> raised = typeNumber(keys);
    if (number >= 1 && number <= 40) {
      EXPECT_TRUE(raised.empty());
      EXPECT_EQ(text(1), keys + " ");
      EXPECT_TRUE(hasFocus("TxtStrike", 2));
      app->pressKey(Key::Space);  // back into cell 1, empty again
    } else {
      EXPECT_EQ(raised, std::vector<std::string>{kRangeMessage});
      EXPECT_EQ(c("TxtStrike", 1).backColor(), colors::kWhite);
    }
    ASSERT_EQ(text(1), " ");
    ASSERT_TRUE(hasFocus("TxtStrike", 1));
  }
}

// For each place of a line and each place before it, a number that repeats
// the earlier one is refused once; the cells before it stay, and a different
// number then takes the place.
TEST_F(StrikeEntry, ANumberMayStandOnlyOnceInALineWhateverItsPlace) {
  const std::string line = "11213140";
  int lineStart = 1;
  click("BtnCheckNewTicket");
  click("BtnLineF");
  for (int place = 2; place <= 4; ++place) {
    for (int earlier = 1; earlier < place; ++earlier) {
      SCOPED_TRACE("place " + CStr(place) + " repeats place " + CStr(earlier));
      type(line.substr(0, static_cast<std::size_t>(2 * (place - 1))));
      const int cell = lineStart + place - 1;
      ASSERT_TRUE(hasFocus("TxtStrike", cell));
      const std::string repeat = line.substr(static_cast<std::size_t>(2 * (earlier - 1)), 2);
      EXPECT_EQ(typeNumber(repeat), std::vector<std::string>{kRepeatMessage});
      EXPECT_EQ(text(cell), " ");
      EXPECT_TRUE(hasFocus("TxtStrike", cell));
      for (int before = lineStart; before < cell; ++before)
        EXPECT_EQ(text(before), Mid(line, 2 * (before - lineStart) + 1, 2) + " ") << before;
      // The rest of the line, then the next line, which starts with the same numbers.
      type(line.substr(static_cast<std::size_t>(2 * (place - 1))));
      EXPECT_EQ(text(lineStart + 3), "40 ");
      lineStart += 4;
    }
  }
  EXPECT_TRUE(hasFocus("CmdShowResults"));
  EXPECT_EQ(dialogs.shown.size(), 6u);
}

// Numbers are compared by value: 7 typed with the space bar repeats 07, and a
// digit with a letter repeats the digit.
TEST_F(StrikeEntry, ARepeatIsTakenByValue) {
  click("BtnCheckNewTicket");
  click("BtnLineA");
  type("07");
  EXPECT_EQ(typeNumber("7 "), std::vector<std::string>{kRepeatMessage});
  type("12");
  EXPECT_EQ(typeNumber("1x"), std::vector<std::string>{});
  EXPECT_EQ(text(3), "1x ");
  EXPECT_EQ(typeNumber("01"), std::vector<std::string>{kRepeatMessage});
  EXPECT_EQ(text(4), " ");
  EXPECT_TRUE(hasFocus("TxtStrike", 4));
}

}  // namespace
}  // namespace veridraw::testing
