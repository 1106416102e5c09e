// The entry of a Lotto ticket: the choice of length, the walk of the cells at
// each key, the refusals, the space bar and the end of entry.
#include <gtest/gtest.h>

#include "lotto/lotto_screen_support.h"

namespace veridraw::testing {
namespace {

constexpr const char* kRange = "You Must enter a Number between 1 and 40";
constexpr const char* kOrder = "This is an incorrect number";

TEST_F(LottoScreen, ALineButtonPreparesTheGridAndPutsTheCursorInTheFirstCell) {
  open();
  chooseLines(5);
  EXPECT_EQ(c("LineA", 30).visible(), true);
  EXPECT_EQ(c("LineA", 31).visible(), false);
  EXPECT_TRUE(hasFocus("LineA", 1));
  EXPECT_FALSE(c("LineA", 1).locked());
  EXPECT_TRUE(c("LineA", 2).locked());
  EXPECT_TRUE(c("LineA", 88).visible());
  EXPECT_EQ(c("LineA", 88).top(), 2775);
  EXPECT_EQ(c("LineA", 88).backColor(), colors::kPaleYellow);
  EXPECT_TRUE(c("LblEnterLine").visible());
  EXPECT_EQ(c("LblEnterLine").caption(), " Line A -- Enter the 6 Two Digit  numbers");
  EXPECT_EQ(c("LblSpaceBar").caption(), "To correct errors  backtrack with the Space Bar");
  EXPECT_TRUE(c("LblSpaceBar").visible());
  EXPECT_TRUE(c("TextATxt", 5).visible());
  EXPECT_FALSE(c("TextATxt", 6).visible());
  EXPECT_TRUE(c("TextBTxt", 5).visible());
  EXPECT_FALSE(c("TextBTxt", 6).visible());
  for (const char* hidden : {"TxtNoofLines", "BtnCancel", "BtnLineD", "BtnLineO"})
    EXPECT_FALSE(c(hidden).visible()) << hidden;
}

TEST_F(LottoScreen, EachNumberMovesTheCursorAndEachLineMovesThePrompt) {
  open();
  chooseLines(4);
  type("01");
  EXPECT_EQ(text(1), "01 ");
  EXPECT_TRUE(c("LineA", 1).locked());
  EXPECT_TRUE(hasFocus("LineA", 2));
  type("0203040506");
  EXPECT_TRUE(hasFocus("LineA", 7));
  EXPECT_EQ(c("LblEnterLine").caption(), "Line B -- Enter the 6 Two Digit numbers");
  EXPECT_EQ(c("LblEnterLine").top(), 1775);
  type("070809101112");
  EXPECT_EQ(c("LblEnterLine").caption(), "Line C -- Enter the 6 Two Digit numbers");
  EXPECT_EQ(c("LblEnterLine").top(), 2010);
  type("131415161718");
  EXPECT_EQ(c("LblEnterLine").caption(), "Line D -- Enter the 6 Two Digit numbers");
  EXPECT_EQ(c("LblEnterLine").top(), 2265);
  EXPECT_TRUE(c("CmdShowResults").visible() == false);
  EXPECT_TRUE(dialogs.shown.empty());
}

TEST_F(LottoScreen, TheLastCellEndsTheEntryWithTheFocusOnShowResults) {
  open();
  typeTicket({"010203040506", "070809101112", "131415161718", "192021222324"});
  EXPECT_TRUE(hasFocus("CmdShowResults"));
  EXPECT_TRUE(c("CmdShowResults").visible());
  EXPECT_TRUE(c("BtnSaveTicket").visible());
  EXPECT_FALSE(c("BtnCheckNewTicket").visible());
  EXPECT_FALSE(c("LblEnterLine").visible());
  // The prompt went one line past the ticket before it was hidden.
  EXPECT_EQ(c("LblEnterLine").caption(), "Line E -- Enter the 6 Two Digit numbers");
  EXPECT_EQ(c("LblEnterLine").top(), 2520);
  EXPECT_TRUE(c("LblSpaceBar").visible());
  EXPECT_EQ(c("LblSpaceBar").caption(),
            "To check saved tickets  Click on the Draw Number and then the Ticket Number");
  EXPECT_EQ(c("LblSpaceBar").height(), 880);
  EXPECT_TRUE(c("LineA", 25).visible());
  EXPECT_FALSE(c("LineA", 26).visible());
  EXPECT_FALSE(c("LineA", 1).tabStop());
  for (int cell = 1; cell <= 24; ++cell) {
    EXPECT_EQ(c("LineA", cell).backColor(), colors::kPaleYellow);
    EXPECT_EQ(c("LineA", cell).borderStyle(), 0);
    EXPECT_TRUE(c("LineA", cell).locked());
    EXPECT_TRUE(c("IntResult", cell).locked());
  }
  EXPECT_TRUE(dialogs.shown.empty());
}

TEST_F(LottoScreen, AFourteenLineTicketEndsOnCell85UnderTheGreyCover) {
  open();
  std::vector<std::string> lines(14, "010203040506");
  typeTicket(lines);
  EXPECT_TRUE(hasFocus("CmdShowResults"));
  EXPECT_TRUE(c("LineA", 85).visible());
  EXPECT_EQ(c("LineA", 88).top(), 6160);
  EXPECT_EQ(c("LineA", 88).backColor(), colors::kGrey);
  EXPECT_EQ(c("LblEnterLine").caption(), "Line O -- Enter the 6 Two Digit numbers");
  EXPECT_EQ(c("LblEnterLine").top(), 4815);
  EXPECT_TRUE(dialogs.shown.empty());
}

TEST_F(LottoScreen, TheValueIsTheLeadingNumberOfTheText) {
  open();
  chooseLines(4);
  type("1a2 0710");
  EXPECT_EQ(text(1), "1a ");
  EXPECT_EQ(text(2), "2  ");
  EXPECT_EQ(text(3), "07 ");
  EXPECT_EQ(text(4), "10 ");
  EXPECT_TRUE(hasFocus("LineA", 5));
  EXPECT_TRUE(dialogs.shown.empty());
}

TEST_F(LottoScreen, FortyIsAcceptedAndFortyOneRefusedWithOneMessage) {
  open();
  chooseLines(4);
  type("4");
  EXPECT_EQ(text(1), "4 ");
  EXPECT_TRUE(dialogs.shown.empty());
  dialogs.buttonAnswers = {1};
  type("1");
  ASSERT_EQ(dialogs.shown.size(), 1u);
  EXPECT_EQ(dialogs.shown[0].prompt, kRange);
  EXPECT_EQ(dialogs.shown[0].title, "WARNING");
  EXPECT_EQ(dialogs.shown[0].buttons, 0);
  EXPECT_EQ(text(1), " ");
  EXPECT_EQ(c("LineA", 1).backColor(), colors::kWhite);
  EXPECT_TRUE(hasFocus("LineA", 1));
  type("40");
  EXPECT_EQ(text(1), "40 ");
  EXPECT_TRUE(hasFocus("LineA", 2));
  EXPECT_EQ(dialogs.shown.size(), 1u);
}

TEST_F(LottoScreen, DoubleZeroIsRefusedAtItsSecondDigitAndZeroOneAccepted) {
  open();
  chooseLines(4);
  type("0");
  EXPECT_TRUE(dialogs.shown.empty());
  dialogs.buttonAnswers = {1};
  type("0");
  EXPECT_EQ(messages(), std::vector<std::string>{kRange});
  EXPECT_EQ(text(1), " ");
  type("01");
  EXPECT_EQ(text(1), "01 ");
  EXPECT_TRUE(hasFocus("LineA", 2));
}

TEST_F(LottoScreen, AValueAboveFortyIsRefusedInAnyCellOfTheTicket) {
  open();
  chooseLines(4);
  type("01020304050607");
  dialogs.buttonAnswers = {1};
  type("50");
  EXPECT_EQ(messages(), std::vector<std::string>{kRange});
  EXPECT_EQ(text(8), " ");
  EXPECT_EQ(text(7), "07 ");
  EXPECT_TRUE(hasFocus("LineA", 8));
  EXPECT_FALSE(c("LineA", 8).locked());
}

TEST_F(LottoScreen, ANumberBelowTheOneBeforeItIsRefused) {
  open();
  chooseLines(4);
  dialogs.buttonAnswers = {1};
  type("0703");
  EXPECT_EQ(messages(), std::vector<std::string>{kOrder});
  EXPECT_EQ(text(1), "07 ");
  EXPECT_EQ(text(2), " ");
  EXPECT_TRUE(hasFocus("LineA", 2));
  EXPECT_FALSE(c("LineA", 2).locked());
}

TEST_F(LottoScreen, ARepeatedNumberIsRefused) {
  open();
  chooseLines(4);
  dialogs.buttonAnswers = {1};
  type("0707");
  EXPECT_EQ(messages(), std::vector<std::string>{kOrder});
  EXPECT_EQ(text(1), "07 ");
  EXPECT_EQ(text(2), " ");
  EXPECT_TRUE(hasFocus("LineA", 2));
}

TEST_F(LottoScreen, ARefusalLeavesTheEarlierCellsOfTheLineAsTheyWere) {
  open();
  chooseLines(4);
  dialogs.buttonAnswers = {1};
  type("10203025");
  EXPECT_EQ(messages(), std::vector<std::string>{kOrder});
  EXPECT_EQ(text(1), "10 ");
  EXPECT_EQ(text(2), "20 ");
  EXPECT_EQ(text(3), "30 ");
  EXPECT_EQ(text(4), " ");
  EXPECT_TRUE(hasFocus("LineA", 4));
  type("31");
  EXPECT_EQ(text(4), "31 ");
  EXPECT_EQ(messages().size(), 1u);
}

TEST_F(LottoScreen, ARefusalInALaterLineComparesOnlyWithinThatLine) {
  open();
  chooseLines(4);
  dialogs.buttonAnswers = {1};
  type(
      "010203040506"
      "0908");
  EXPECT_EQ(messages(), std::vector<std::string>{kOrder});
  EXPECT_EQ(text(7), "09 ");
  EXPECT_EQ(text(8), " ");
  EXPECT_TRUE(hasFocus("LineA", 8));
}

TEST_F(LottoScreen, InALineThreeSevenTwelveTwentyThirtyThreeFortyIsAccepted) {
  open();
  chooseLines(4);
  type("030712203340");
  EXPECT_TRUE(hasFocus("LineA", 7));
  EXPECT_TRUE(dialogs.shown.empty());
}

TEST_F(LottoScreen, TwoLinesWithTheSameNumbersAreAccepted) {
  open();
  typeTicket({"010203040506", "010203040506", "010203040506", "010203040506"});
  EXPECT_TRUE(dialogs.shown.empty());
  EXPECT_TRUE(hasFocus("CmdShowResults"));
}

TEST_F(LottoScreen, TheSpaceBarInTheFirstCellOfLineBEmptiesTheLastCellOfLineA) {
  open();
  chooseLines(4);
  type("010203040506");
  type(" ");
  EXPECT_EQ(text(6), " ");
  EXPECT_EQ(text(7), " ");
  EXPECT_EQ(text(5), "05 ");
  EXPECT_TRUE(hasFocus("LineA", 6));
  EXPECT_FALSE(c("LineA", 6).locked());
  EXPECT_EQ(c("LblEnterLine").caption(), "Line B -- Enter the 6 Two Digit numbers");
  EXPECT_EQ(c("LblEnterLine").top(), 1775);
  type("09");
  EXPECT_EQ(text(6), "09 ");
  EXPECT_TRUE(hasFocus("LineA", 7));
  EXPECT_TRUE(dialogs.shown.empty());
}

TEST_F(LottoScreen, TheSpaceBarStepsBackOneCellAPressDownToCellOne) {
  open();
  chooseLines(4);
  type("0102 ");
  EXPECT_EQ(text(2), " ");
  EXPECT_EQ(text(3), " ");
  EXPECT_TRUE(hasFocus("LineA", 2));
  type(" ");
  EXPECT_EQ(text(1), " ");
  EXPECT_TRUE(hasFocus("LineA", 1));
  // Cell 1 has no cell before it: its two blanks stay, and a digit makes it complete.
  type(" ");
  EXPECT_EQ(text(1), "  ");
  EXPECT_TRUE(hasFocus("LineA", 1));
  type("5");
  EXPECT_EQ(text(1), " 5 ");
  EXPECT_TRUE(hasFocus("LineA", 2));
  EXPECT_TRUE(dialogs.shown.empty());
}

TEST_F(LottoScreen, AThirdBlankInCellOneIsAValueBelowOne) {
  open();
  chooseLines(4);
  dialogs.buttonAnswers = {1};
  // The empty cell's own blank and two typed ones.
  type("  ");
  EXPECT_EQ(messages(), std::vector<std::string>{kRange});
  EXPECT_EQ(text(1), " ");
  EXPECT_TRUE(hasFocus("LineA", 1));
}

TEST_F(LottoScreen, TheSpaceBarInTheLastCellOfAFourteenLineTicketReachesTheCover) {
  open();
  chooseLines(14);
  for (int line = 1; line <= 13; ++line)
    type("010203040506");
  type("0102030405 ");
  EXPECT_EQ(text(83), " ");
  EXPECT_EQ(text(84), " ");
  EXPECT_EQ(text(88), " ");
  EXPECT_TRUE(hasFocus("LineA", 83));
  EXPECT_TRUE(app->running());
}

}  // namespace
}  // namespace veridraw::testing
