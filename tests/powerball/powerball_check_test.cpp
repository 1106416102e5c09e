// The PowerBall check: every combination of main numbers, bonus and PowerBall
// of a line against the table of the rule, the painting of the prize grid and
// its PowerBall column, prizes that add up over lines, and the rows and
// captions of the summary for every set of winning lines.
#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "powerball/powerball_screen_support.h"
#include "screen/strings.h"
#include "support/lotto_lines.h"

namespace veridraw::testing {
namespace {

// The PowerBall of draw 720 is 05; 06 misses it.
const std::string kPowerBallHit = "05";
const std::string kPowerBallMiss = "06";

// A row of the summary: the PowerBall row or the Lotto row of a division.
struct Row {
  bool powerBall = false;
  int division = 0;
  int top = 0;
};

// One line against the draw, and what it wins by the table of the rule: its
// Lotto division (0 for none), its PowerBall divisions, and the rows of the
// summary when it is the only winning line of a ticket.
struct LineRule {
  int matches = 0;
  bool bonus = false;
  bool powerBall = false;
  int lotto = 0;
  std::vector<int> powerBallDivisions;
  std::vector<Row> rows;
};

const std::vector<LineRule> kRules = {
    {0, false, false, 0, {}, {}},
    {0, false, true, 0, {}, {}},
    {0, true, false, 0, {}, {}},
    {0, true, true, 0, {}, {}},
    {1, false, false, 0, {}, {}},
    {1, false, true, 0, {}, {}},
    {1, true, false, 0, {}, {}},
    {1, true, true, 0, {}, {}},
    {2, false, false, 0, {}, {}},
    {2, false, true, 0, {}, {}},
    {2, true, false, 0, {}, {}},
    {2, true, true, 0, {}, {}},
    {3, false, false, 0, {}, {}},
    {3, false, true, 0, {}, {}},
    {3, true, false, 5, {}, {{false, 5, 2100}}},
    {3, true, true, 5, {5}, {{true, 5, 2100}, {false, 5, 2400}}},
    {4, false, false, 4, {}, {{false, 4, 2100}}},
    {4, true, false, 4, {}, {{false, 4, 2100}}},
    {4, false, true, 4, {4}, {{true, 4, 2100}, {false, 4, 2400}}},
    {4, true, true, 4, {4}, {{true, 4, 2100}, {false, 4, 2400}}},
    {5, false, false, 3, {}, {{false, 3, 2100}}},
    {5, false, true, 3, {3}, {{true, 3, 2100}, {false, 3, 2400}}},
    {5, true, false, 2, {}, {{false, 2, 2100}}},
    {5, true, true, 2, {2, 3}, {{true, 2, 2100}, {false, 2, 2400}, {true, 3, 2700}}},
    {6, false, false, 1, {}, {{false, 1, 2100}}},
    {6, false, true, 1, {1}, {{true, 1, 1800}, {false, 1, 2100}}},
};

std::string describe(const LineRule& rule) {
  return CStr(rule.matches) + (rule.bonus ? " with the bonus" : " without the bonus") +
         (rule.powerBall ? " with the PowerBall" : " without the PowerBall");
}

class PowerBallCheck : public PowerBallScreen {
 protected:
  Control& countBox(bool powerBall, int division) {
    return c((powerBall ? "TxtDivPwrBall" : "TxtDivision") + CStr(division));
  }
  Control& label(bool powerBall, int division) {
    return c((powerBall ? "LblDivPwrBall" : "LblDivision") + CStr(division));
  }
  static std::string caption(bool powerBall, int division, int count) {
    if (powerBall) return "Division " + CStr(division) + " PowerBall Prize";
    if (division == 1) return "Division 1 prize";
    return "Division " + CStr(division) + (count == 1 ? " Prize" : " Prizes");
  }
  void expectRow(const Row& row, int count) {
    SCOPED_TRACE((row.powerBall ? "PowerBall division " : "division ") + CStr(row.division));
    EXPECT_TRUE(countBox(row.powerBall, row.division).visible());
    EXPECT_TRUE(label(row.powerBall, row.division).visible());
    EXPECT_EQ(countBox(row.powerBall, row.division).text(), CStr(count));
    EXPECT_EQ(countBox(row.powerBall, row.division).top(), row.top);
    EXPECT_EQ(label(row.powerBall, row.division).top(), row.top);
    EXPECT_EQ(label(row.powerBall, row.division).caption(),
              caption(row.powerBall, row.division, count));
  }
  void expectVerdict(bool won, int lines) {
    EXPECT_TRUE(c("LblYouveWon").visible());
    EXPECT_EQ(c("LblYouveWon").caption(),
              won ? "CONGRATULATIONS You've WON !!!" : "There are no Prizes on this Ticket");
    for (const char* picture : {"ImgCoins", "ImgMoney", "Image3", "Image4"})
      EXPECT_EQ(c(picture).visible(), won) << picture;
    EXPECT_FALSE(c("Image1").visible());
    EXPECT_FALSE(c("Image2").visible());
    EXPECT_EQ(c("LblPwrBall1", 0).visible(), !won);
    EXPECT_TRUE(c("LblPwrBall1", 1).visible());
    for (int cell = 1; cell <= 84; ++cell)
      EXPECT_EQ(c("LineA", cell).visible(), !won && cell <= lines * 6) << cell;
    for (int line = 1; line <= 14; ++line)
      EXPECT_EQ(c("TextATxt", line).visible(), !won && line <= lines) << line;
    // The spare cell of the column after the last line is left as it is.
    for (int line = 1; line <= lines; ++line)
      EXPECT_EQ(c("TxtPowerBall", line).visible(), !won) << line;
    EXPECT_TRUE(hasFocus("BtnRestart"));
  }
  // The PowerBall column of the prize grid: a line's number, white on green,
  // only where it matched.
  void expectPowerBallColumn(int line, bool matched) {
    const Control& cell = c("TxtPwrBall", line);
    EXPECT_EQ(cell.text(), matched ? c("TxtPowerBall", line).text() : " ") << line;
    EXPECT_EQ(cell.backColor(), matched ? colors::kGreen : colors::kPaleYellow) << line;
    EXPECT_EQ(cell.foreColor(), matched ? colors::kWhite : colors::kBlack) << line;
  }
};

// Every line of the table as the one line of a typed ticket that can win, its
// PowerBall typed line by line. The boxes are written as the counters rise,
// so on a fresh screen only the boxes of the divisions won hold a count.
TEST_F(PowerBallCheck, EachLineWinsByTheTableOfTheRule) {
  for (const LineRule& rule : kRules) {
    SCOPED_TRACE(describe(rule));
    open();
    typeLines({lineWith(rule.matches, rule.bonus), kNothing, kNothing, kNothing});
    typeLineByLine({rule.powerBall ? kPowerBallHit : kPowerBallMiss, kPowerBallMiss, kPowerBallMiss,
                    kPowerBallMiss});
    ASSERT_TRUE(hasFocus("CmdShowResults"));
    expectPrizeGridOfLine(screen(), 1);
    for (int line = 1; line <= 4; ++line)
      expectPowerBallColumn(line, line == 1 && rule.powerBall);
    for (int division = 1; division <= 5; ++division) {
      const bool lottoWon = division == rule.lotto;
      const bool givenBack = rule.lotto == 2 && division == 3;
      EXPECT_EQ(countBox(false, division).text(), lottoWon    ? "1"
                                                  : givenBack ? "0"
                                                              : " ")
          << division;
      const bool powerBallWon =
          std::count(rule.powerBallDivisions.begin(), rule.powerBallDivisions.end(), division) > 0;
      EXPECT_EQ(countBox(true, division).text(), powerBallWon ? "1" : " ") << division;
    }
    click("CmdShowResults");
    expectVerdict(rule.lotto != 0, 4);
    for (const Row& row : rule.rows)
      expectRow(row, 1);
    for (int division = 1; division <= 5; ++division) {
      bool powerBallShown = false;
      bool lottoShown = false;
      for (const Row& row : rule.rows)
        if (row.division == division) (row.powerBall ? powerBallShown : lottoShown) = true;
      EXPECT_EQ(countBox(true, division).visible(), powerBallShown) << division;
      EXPECT_EQ(label(true, division).visible(), powerBallShown) << division;
      EXPECT_EQ(countBox(false, division).visible(), lottoShown) << division;
      EXPECT_EQ(label(false, division).visible(), lottoShown) << division;
    }
    EXPECT_TRUE(dialogs.shown.empty());
  }
}

// The same table on the way of a saved ticket, whose every line may win.
TEST_F(PowerBallCheck, ASavedTicketIsCheckedByTheSameRule) {
  std::vector<std::string> lines;
  std::vector<std::string> powerBalls;
  for (const LineRule& rule : kRules) {
    if (rule.matches < 3 || rule.bonus) continue;
    lines.push_back(lineWith(rule.matches, rule.bonus));
    powerBalls.push_back(rule.powerBall ? kPowerBallHit : kPowerBallMiss);
  }
  // 3, 4, 5 and 6 numbers without the bonus, each without and with the PowerBall.
  ASSERT_EQ(lines.size(), 8U);
  writeTicket("1", lines, powerBalls);
  open();
  checkSaved("1");
  for (int line = 1; line <= 8; ++line) {
    expectPrizeGridOfLine(screen(), line);
    expectPowerBallColumn(line, line % 2 == 0);
  }
  click("CmdShowResults");
  expectVerdict(true, 8);
  expectRow({true, 1, 1800}, 1);
  expectRow({false, 1, 2100}, 2);
  expectRow({true, 3, 2400}, 1);
  expectRow({false, 3, 2700}, 2);
  expectRow({true, 4, 3000}, 1);
  expectRow({false, 4, 3300}, 2);
  EXPECT_FALSE(countBox(false, 2).visible());
  EXPECT_FALSE(countBox(true, 2).visible());
  EXPECT_FALSE(countBox(false, 5).visible());
  EXPECT_FALSE(countBox(true, 5).visible());
}

// Two lines of five numbers with the bonus and the PowerBall: two prizes in
// Division 2 and in both PowerBall Division 2 and 3; Division 3 comes back to 0.
TEST_F(PowerBallCheck, FiveWithTheBonusAndThePowerBallCountTwiceOverLines) {
  open();
  typeLines({lineWith(5, true), kNothing, lineWith(5, true), kNothing});
  typeLineByLine({kPowerBallHit, kPowerBallHit, kPowerBallHit, kPowerBallMiss});
  expectPowerBallColumn(2, true);
  EXPECT_EQ(countBox(false, 3).text(), "0");
  click("CmdShowResults");
  expectVerdict(true, 4);
  expectRow({true, 2, 2100}, 2);
  expectRow({false, 2, 2400}, 2);
  expectRow({true, 3, 2700}, 2);
  EXPECT_FALSE(countBox(false, 3).visible());
}

// One number for all lines that is the draw's: every line's PowerBall cell of
// the prize grid is green, and every Lotto prize has its PowerBall prize.
TEST_F(PowerBallCheck, OneNumberForAllLinesThatIsDrawnPaintsEveryLine) {
  open();
  typeLines({lineWith(4, false), kNothing, lineWith(3, true), lineWith(6, false), kNothing});
  typeForAllLines(kPowerBallHit);
  ASSERT_TRUE(hasFocus("CmdShowResults"));
  for (int line = 1; line <= 5; ++line) {
    expectPowerBallColumn(line, true);
    EXPECT_EQ(c("TxtPowerBall", line).text(), "05 ");
  }
  click("CmdShowResults");
  expectVerdict(true, 5);
  expectRow({true, 1, 1800}, 1);
  expectRow({false, 1, 2100}, 1);
  expectRow({true, 4, 2400}, 1);
  expectRow({false, 4, 2700}, 1);
  expectRow({true, 5, 3000}, 1);
  expectRow({false, 5, 3300}, 1);
}

// The PowerBall alone, or with three numbers and no bonus, wins nothing; the
// number is still painted green.
TEST_F(PowerBallCheck, ThePowerBallWithoutALottoPrizeWinsNothing) {
  open();
  typeLines({lineWith(3, false), lineWith(0, false), lineWith(2, true), kNothing});
  typeForAllLines(kPowerBallHit);
  for (int line = 1; line <= 4; ++line)
    expectPowerBallColumn(line, true);
  click("CmdShowResults");
  expectVerdict(false, 4);
  for (int division = 1; division <= 5; ++division) {
    EXPECT_FALSE(countBox(false, division).visible());
    EXPECT_FALSE(countBox(true, division).visible());
  }
}

// Numbers are compared by value: "5 " typed as a digit and a blank is 5.
TEST_F(PowerBallCheck, ThePowerBallIsComparedByValue) {
  open();
  typeLines({lineWith(4, false), kNothing, kNothing, kNothing});
  typeLineByLine({"5 ", kPowerBallMiss, kPowerBallMiss, kPowerBallMiss});
  EXPECT_EQ(c("TxtPwrBall", 1).text(), "5  ");
  expectPowerBallColumn(1, true);
  click("CmdShowResults");
  expectRow({true, 4, 2100}, 1);
}

// The draw's eighth number above 8 never matches.
TEST_F(PowerBallCheck, ADrawPowerBallAboveEightNeverMatches) {
  writeDraw("721", "X0308172239401240");
  open("721");
  typeLines({lineWith(6, false), kNothing, kNothing, kNothing});
  typeForAllLines("08");
  for (int line = 1; line <= 4; ++line)
    expectPowerBallColumn(line, false);
  click("CmdShowResults");
  expectRow({false, 1, 2100}, 1);
  EXPECT_FALSE(countBox(true, 1).visible());
}

// The ten line kinds that win something, by their place in the table.
std::vector<const LineRule*> winningRules() {
  std::vector<const LineRule*> winning;
  for (const LineRule& rule : kRules)
    if (rule.lotto != 0 && !(rule.matches == 4 && rule.bonus)) winning.push_back(&rule);
  return winning;
}

// Every set of the ten kinds of winning line, one line of each kind in the
// set, checked as a saved ticket: the counts add up per division, and the rows
// stand in the order of rank, each PowerBall row above its Lotto row, closed
// up, the first at 1800 only for PowerBall Division 1. Only the Lotto rows of
// Division 2 to 5 take the plural. PowerBall rows of an earlier ticket stay
// where they were, so only the rows of this ticket are looked at, and the
// Lotto rows that it didn't win must be hidden.
TEST_F(PowerBallCheck, TheRowsOfEverySetOfWinningLines) {
  const std::vector<const LineRule*> winning = winningRules();
  ASSERT_EQ(winning.size(), 10U);
  writeTicket("1", {kNothing, kNothing, kNothing, kNothing}, {"01", "01", "01", "01"});
  open();
  checkSaved("1");
  for (unsigned set = 1; set < (1U << winning.size()); ++set) {
    std::vector<std::string> lines;
    std::vector<std::string> powerBalls;
    std::array<int, 6> lotto{};
    std::array<int, 6> powerBall{};
    for (std::size_t kind = 0; kind < winning.size(); ++kind) {
      if ((set & (1U << kind)) == 0) continue;
      const LineRule& rule = *winning[kind];
      lines.push_back(lineWith(rule.matches, rule.bonus));
      powerBalls.push_back(rule.powerBall ? kPowerBallHit : kPowerBallMiss);
      ++lotto[rule.lotto];
      for (const int division : rule.powerBallDivisions)
        ++powerBall[division];
    }
    while (lines.size() < 4) {
      lines.push_back(kNothing);
      powerBalls.push_back(kPowerBallMiss);
    }
    SCOPED_TRACE("set " + CStr(static_cast<int>(set)));
    writeTicket("1", lines, powerBalls);
    pick("LstLottoTicket", "P-Ball # 1");
    click("CmdShowResults");
    EXPECT_EQ(c("LblYouveWon").caption(), "CONGRATULATIONS You've WON !!!");
    int top = 1800;
    for (int division = 1; division <= 5; ++division) {
      if (powerBall[division] > 0) {
        if (division != 1) top += 300;
        expectRow({true, division, top}, powerBall[division]);
      }
      if (lotto[division] > 0) {
        top += 300;
        expectRow({false, division, top}, lotto[division]);
      } else {
        EXPECT_FALSE(countBox(false, division).visible()) << division;
        EXPECT_FALSE(label(false, division).visible()) << division;
      }
    }
    if (HasFailure()) return;
  }
}

// The PowerBall rows aren't hidden by the next saved ticket, and the heading
// of the ticket's column, hidden by a win, comes back only with a loss.
TEST_F(PowerBallCheck, PowerBallRowsAndTheHeadingOutliveTheNextSavedTicket) {
  writeTicket("1", {lineWith(5, true), kNothing, kNothing, kNothing}, {"05", "06", "06", "06"});
  writeTicket("2", {lineWith(4, false), kNothing, kNothing, kNothing}, {"06", "06", "06", "06"});
  writeTicket("3", {kNothing, kNothing, kNothing, kNothing}, {"05", "05", "05", "05"});
  open();
  checkSaved("1");
  click("CmdShowResults");
  expectRow({true, 2, 2100}, 1);
  expectRow({true, 3, 2700}, 1);
  pick("LstLottoTicket", "P-Ball # 2");
  EXPECT_FALSE(c("LblPwrBall1", 0).visible());
  EXPECT_FALSE(countBox(false, 2).visible());
  expectRow({true, 2, 2100}, 1);
  expectRow({true, 3, 2700}, 1);
  click("CmdShowResults");
  expectRow({false, 4, 2100}, 1);
  expectRow({true, 2, 2100}, 1);
  expectRow({true, 3, 2700}, 1);
  pick("LstLottoTicket", "P-Ball # 3");
  click("CmdShowResults");
  EXPECT_EQ(c("LblYouveWon").caption(), "There are no Prizes on this Ticket");
  EXPECT_TRUE(c("LblPwrBall1", 0).visible());
  EXPECT_FALSE(countBox(false, 4).visible());
  expectRow({true, 2, 2100}, 1);
}

// The check reads the bonus and the PowerBall of the draw on display when it
// runs, and a later draw changes nothing that was checked. A check again
// empties the PowerBall column of the prize grid and gives it back its colour,
// but the white of its figures stays.
TEST_F(PowerBallCheck, ALaterDrawChangesNothingThatWasChecked) {
  writeDraw("722", "X0910111314151608");
  writeTicket("1", {lineWith(6, false), kNothing, kNothing, kNothing}, {"05", "06", "06", "06"});
  open();
  checkSaved("1");
  expectPowerBallColumn(1, true);
  pick("List1", "722");
  expectPowerBallColumn(1, true);
  EXPECT_EQ(c("TxtDivPwrBall1").text(), "1");
  pick("LstLottoTicket", "P-Ball # 1");
  EXPECT_EQ(c("TxtPwrBall", 1).text(), " ");
  EXPECT_EQ(c("TxtPwrBall", 1).backColor(), colors::kPaleYellow);
  EXPECT_EQ(c("TxtPwrBall", 1).foreColor(), colors::kWhite);
  click("CmdShowResults");
  EXPECT_EQ(c("LblYouveWon").caption(), "There are no Prizes on this Ticket");
}

// The cover box of the PowerBall column stands on the row after the last line
// for tickets of 4 to 12 lines; tickets of 13 and 14 lines go without it.
TEST_F(PowerBallCheck, TheCoverOfThePowerBallColumnByTheLengthOfTheTicket) {
  for (int lines = 4; lines <= 14; ++lines) {
    SCOPED_TRACE(CStr(lines) + " lines");
    open();
    typeLines(std::vector<std::string>(static_cast<std::size_t>(lines), kNothing));
    typeForAllLines("01");
    const Control& cover = c("TxtPowerBall", 17);
    EXPECT_EQ(cover.visible(), lines <= 12);
    EXPECT_EQ(cover.top(), lines <= 12 ? 1500 + 255 * lines : 8040);
    EXPECT_TRUE(c("TxtPowerBall", lines + 1).visible());
    EXPECT_TRUE(c("LineA", lines * 6 + 1).visible());
  }
}

// The answer to the question and the bonus of the line under check are one
// variable. After a ticket typed line by line whose last line holds the bonus,
// a key in the spare box of the column checks the ticket again, and that check
// takes the bonus of the last line for a Yes: every line's box takes the text
// of the one box of Yes.
TEST_F(PowerBallCheck, TheAnswerIsTheBonusOfTheLastLineChecked) {
  open();
  typeLines({"010204050607", "010204050607", "010204050607", "011213141516"});
  typeLineByLine({"01", "01", "01", "01"});
  ASSERT_TRUE(app->running());
  ASSERT_EQ(c("TxtPowerBall", 1).text(), "01 ");
  app->click(c("TxtPowerBall", 5));
  type("0");
  ASSERT_TRUE(app->running());
  std::vector<std::string> column;
  for (int line = 1; line <= 5; ++line)
    column.push_back(c("TxtPowerBall", line).text());
  EXPECT_EQ(c("TxtPwrBallNumber", 1).text(), " ");
  EXPECT_EQ(column, (std::vector<std::string>{" ", " ", " ", " ", "0 "}));
}

}  // namespace
}  // namespace veridraw::testing
