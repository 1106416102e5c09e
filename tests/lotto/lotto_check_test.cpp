// The prize rule of the Lotto screen: every count of matched main numbers with
// and without the bonus, prizes that add up over lines, the painting of the
// prize grid and the rows and captions of the summary.
#include <gtest/gtest.h>

#include "lotto/lotto_screen_support.h"
#include "screen/strings.h"
#include "support/lotto_lines.h"

namespace veridraw::testing {
namespace {

class LottoCheck : public LottoScreen {
 protected:
  // The division that one line wins, by the table of the rule; 0 for none.
  static int expectedDivision(int matches, bool bonus) {
    if (matches == 6) return 1;
    if (matches == 5) return bonus ? 2 : 3;
    if (matches == 4) return 4;
    if (matches == 3 && bonus) return 5;
    return 0;
  }

  Control& box(int division) { return c("TxtDivision" + CStr(division)); }
  Control& label(int division) { return c("LblDivision" + CStr(division)); }

  void expectRow(int division, const std::string& count, int top, const std::string& caption) {
    SCOPED_TRACE("division " + CStr(division));
    EXPECT_TRUE(box(division).visible());
    EXPECT_TRUE(label(division).visible());
    EXPECT_EQ(box(division).text(), count);
    EXPECT_EQ(box(division).top(), top);
    EXPECT_EQ(label(division).top(), top);
    EXPECT_EQ(label(division).caption(), caption);
  }
  void expectNoRow(int division) {
    EXPECT_FALSE(box(division).visible()) << division;
    EXPECT_FALSE(label(division).visible()) << division;
  }
  void expectWin() {
    EXPECT_EQ(c("LblYouveWon").caption(), "CONGRATULATIONS You've WON !!!");
    EXPECT_TRUE(c("LblYouveWon").visible());
    EXPECT_TRUE(c("ImgCoins").visible());
    EXPECT_TRUE(c("ImgMoney").visible());
    EXPECT_FALSE(c("Image1").visible());
    EXPECT_FALSE(c("Image2").visible());
    EXPECT_TRUE(c("Image3").visible());
    EXPECT_TRUE(c("Image4").visible());
    for (int cell = 1; cell <= 84; ++cell)
      EXPECT_FALSE(c("LineA", cell).visible()) << cell;
    for (int line = 1; line <= 14; ++line)
      EXPECT_FALSE(c("TextATxt", line).visible()) << line;
  }
  void expectLoss(int lines) {
    EXPECT_EQ(c("LblYouveWon").caption(), "There are no Prizes on this Ticket");
    EXPECT_TRUE(c("LblYouveWon").visible());
    for (const char* picture : {"ImgCoins", "ImgMoney", "Image1", "Image2", "Image3", "Image4"})
      EXPECT_FALSE(c(picture).visible()) << picture;
    for (int cell = 1; cell <= lines * 6 + 3; ++cell) {
      EXPECT_TRUE(c("LineA", cell).visible()) << cell;
      EXPECT_EQ(c("LineA", cell).backColor(), colors::kPaleYellow) << cell;
      EXPECT_EQ(c("LineA", cell).borderStyle(), 0) << cell;
    }
    EXPECT_FALSE(c("LineA", lines * 6 + 4).visible());
    for (int line = 1; line <= 14; ++line)
      EXPECT_EQ(c("TextATxt", line).visible(), line <= lines) << line;
    for (int division = 1; division <= 5; ++division)
      expectNoRow(division);
  }
  void expectGridOfLine(int line) { expectPrizeGridOfLine(screen(), line); }
};

// Every count of main numbers from 0 to 6, with and without the bonus (six
// matches leave no room for it), as the one line of a ticket that wins.
TEST_F(LottoCheck, EachLineWinsByTheTableOfTheRule) {
  for (int matches = 0; matches <= 6; ++matches) {
    for (const bool bonus : {false, true}) {
      if (matches == 6 && bonus) continue;
      SCOPED_TRACE(CStr(matches) + (bonus ? " and the bonus" : " without the bonus"));
      open();
      typeTicket({lineWith(matches, bonus), kNothing, kNothing, kNothing});
      ASSERT_TRUE(hasFocus("CmdShowResults"));
      expectGridOfLine(1);
      click("CmdShowResults");
      const int division = expectedDivision(matches, bonus);
      if (division == 0) {
        expectLoss(4);
      } else {
        expectWin();
        for (int other = 1; other <= 5; ++other)
          if (other != division) expectNoRow(other);
        expectRow(division, "1", division == 1 ? 1800 : 2100,
                  division == 1 ? "Division 1 prize" : "Division " + CStr(division) + " Prize");
      }
      EXPECT_TRUE(hasFocus("BtnRestart"));
      EXPECT_TRUE(dialogs.shown.empty());
    }
  }
}

TEST_F(LottoCheck, TheBonusCellIsBlueAlsoWhenTheLineWinsNothing) {
  open();
  typeTicket({lineWith(2, true), kNothing, kNothing, kNothing});
  // The line is 01 02 03 04 08 12: two main numbers and the bonus last.
  EXPECT_EQ(text(6), "12 ");
  EXPECT_EQ(c("IntResult", 6).text(), "12 ");
  EXPECT_EQ(c("IntResult", 6).backColor(), colors::kBlue);
  EXPECT_EQ(c("IntResult", 6).foreColor(), colors::kWhite);
  EXPECT_EQ(c("IntResult", 3).text(), "03 ");
  EXPECT_EQ(c("IntResult", 4).text(), " ");
  click("CmdShowResults");
  expectLoss(4);
}

TEST_F(LottoCheck, FourMatchesAndTheBonusWinDivisionFourOnlyWithTheBonusBlue) {
  open();
  typeTicket({lineWith(4, true), kNothing, kNothing, kNothing});
  expectGridOfLine(1);
  click("CmdShowResults");
  expectRow(4, "1", 2100, "Division 4 Prize");
  expectNoRow(5);
}

TEST_F(LottoCheck, FiveAndTheBonusCountOneInDivisionTwoAndZeroInDivisionThree) {
  open();
  typeTicket({lineWith(5, true), kNothing, kNothing, kNothing});
  click("CmdShowResults");
  expectRow(2, "1", 2100, "Division 2 Prize");
  expectNoRow(3);
  EXPECT_EQ(box(3).text(), "0");
}

TEST_F(LottoCheck, TwoLinesAtFiveOneWithTheBonusTakeTwoRows) {
  open();
  typeTicket({lineWith(5, false), lineWith(5, true), kNothing, kNothing});
  click("CmdShowResults");
  expectWin();
  expectRow(2, "1", 2100, "Division 2 Prize");
  expectRow(3, "1", 2400, "Division 3 Prize");
  expectNoRow(1);
}

TEST_F(LottoCheck, OneDivisionOnePrizeStandsAt1800WithASmallP) {
  open();
  typeTicket({kNothing, lineWith(6, false), kNothing, kNothing});
  click("CmdShowResults");
  expectRow(1, "1", 1800, "Division 1 prize");
}

TEST_F(LottoCheck, TwoDivisionOnePrizesKeepTheSameCaption) {
  open();
  typeTicket({lineWith(6, false), kNothing, lineWith(6, false), kNothing});
  click("CmdShowResults");
  expectRow(1, "2", 1800, "Division 1 prize");
}

TEST_F(LottoCheck, PrizesOfManyLinesAddUpPerDivisionAndTheRowsCloseUp) {
  open();
  typeTicket({lineWith(6, false), lineWith(5, true), lineWith(5, true), lineWith(4, false),
              lineWith(3, true), lineWith(3, true), lineWith(3, true), lineWith(3, false)});
  for (int line = 1; line <= 8; ++line)
    expectGridOfLine(line);
  click("CmdShowResults");
  expectWin();
  expectRow(1, "1", 1800, "Division 1 prize");
  expectRow(2, "2", 2100, "Division 2 Prizes");
  expectNoRow(3);
  expectRow(4, "1", 2400, "Division 4 Prize");
  expectRow(5, "3", 2700, "Division 5 Prizes");
}

TEST_F(LottoCheck, WithoutDivisionOneTheFirstRowStandsAt2100) {
  open();
  typeTicket({lineWith(5, false), lineWith(5, false), lineWith(4, true), lineWith(3, true)});
  click("CmdShowResults");
  expectRow(3, "2", 2100, "Division 3 Prizes");
  expectRow(4, "1", 2400, "Division 4 Prize");
  expectRow(5, "1", 2700, "Division 5 Prize");
}

TEST_F(LottoCheck, AFiveLineTicketWithoutPrizesShowsCells31To33Empty) {
  open();
  typeTicket({kNothing, kNothing, kNothing, kNothing, kNothing});
  click("CmdShowResults");
  expectLoss(5);
  for (const int cell : {31, 32, 33})
    EXPECT_EQ(text(cell), " ") << cell;
  EXPECT_FALSE(c("LineA", 88).visible());
  EXPECT_FALSE(c("BtnSaveTicket").visible());
  EXPECT_FALSE(c("CmdShowResults").visible());
}

TEST_F(LottoCheck, NumbersAreComparedByValue) {
  // Draw 706: 01 07 13 19 25 33, bonus 10.
  writeDraw("706", "X0107131925331002");
  open("706");
  chooseLines(4);
  type("7 13192533360713192533");
  type("36010203040506010203040506");
  EXPECT_EQ(c("IntResult", 1).text(), "7  ");
  EXPECT_EQ(c("IntResult", 7).text(), "07 ");
  click("CmdShowResults");
  expectRow(3, "2", 2100, "Division 3 Prizes");
}

TEST_F(LottoCheck, AnyTicketAgainstADrawWithoutNumbersWinsNothing) {
  dir.write("300", "300\r\n\r\nZ17033908\r\n");
  open("300");
  typeTicket({lineWith(6, false), lineWith(5, true), kNothing, kNothing});
  for (int cell = 1; cell <= 24; ++cell)
    EXPECT_EQ(c("IntResult", cell).text(), " ") << cell;
  click("CmdShowResults");
  expectLoss(4);
}

}  // namespace
}  // namespace veridraw::testing
