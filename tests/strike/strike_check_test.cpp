// The Strike check: a number counts only at its own place in the drawn order,
// a line falls into one row by its total of hits, and the rows of the result
// stand from the highest prize down with their counts and captions.
#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "screen/strings.h"
#include "strike/strike_screen_support.h"

namespace veridraw::testing {
namespace {

using Line = std::array<int, 4>;

// Lines that fall into each row against 07 15 22 31, and one that hits nothing.
const std::array<std::string, 5> kLineOfRow = {"01020304", "15072201", "01150231", "07152230",
                                               "07152231"};

std::string pair(int number) {
  std::string digits = number < 10 ? "0" : "";
  return digits += CStr(number);
}

std::string packed(const Line& line) {
  return pair(line[0]) + pair(line[1]) + pair(line[2]) + pair(line[3]);
}

class StrikeCheck : public StrikeScreen {
 protected:
  Control& countBox(int row) { return c("TxtStrike" + CStr(row)); }
  Control& rowLabel(int row) { return c("LblStrike" + CStr(row)); }

  // The marks of the prize grid for the line from `cell` on: the cell's own
  // text at a hit, a blank elsewhere. A typed cell keeps its trailing blank, a
  // saved one has none.
  void expectMarks(const Line& line, bool typed, int cell = 1) {
    for (int p = 0; p < 4; ++p) {
      const bool hit = line[p] == kDrawn[p];
      const std::string mark = hit ? pair(line[p]) + (typed ? " " : "") : " ";
      EXPECT_EQ(c("IntResult", cell + p).text(), mark) << "cell " << cell + p;
    }
  }
  // After CmdShowResults: the one row of a one-line ticket, or the loss.
  void expectOneRow(int hits) {
    for (int row = 1; row <= 4; ++row) {
      EXPECT_EQ(countBox(row).visible(), row == hits) << row;
      EXPECT_EQ(rowLabel(row).visible(), row == hits) << row;
    }
    if (hits == 0) {
      EXPECT_EQ(c("LblYouveWon").caption(), "There are no Prizes on this Ticket");
      EXPECT_FALSE(c("ImgCoins").visible());
      EXPECT_TRUE(c("TxtStrike", 1).visible());
      return;
    }
    EXPECT_EQ(c("LblYouveWon").caption(), "CONGRATULATIONS You've WON !!!");
    EXPECT_TRUE(c("ImgCoins").visible());
    EXPECT_FALSE(c("TxtStrike", 1).visible());
    EXPECT_EQ(countBox(hits).text(), "1");
    EXPECT_EQ(countBox(hits).top(), hits == 4 ? 1800 : 2100);
    EXPECT_EQ(rowLabel(hits).top(), countBox(hits).top());
    EXPECT_EQ(rowLabel(hits).caption(),
              hits == 1 ? "Bonus Ticket" : "Strike " + CStr(hits) + " prize");
  }
};

// Every line of four different numbers taken from the four drawn ones and four
// others, 8 x 7 x 6 x 5 lines: every permutation of the draw and every mix of
// hits, misses and drawn numbers at the wrong place. They are checked twelve
// to a ticket; each line is marked at its hits and counted in its row.
TEST_F(StrikeCheck, EveryLineCountsTheNumbersAtTheirOwnPlaceAndNoOthers) {
  const std::vector<int> candidates = {7, 15, 22, 31, 1, 2, 3, 40};
  std::vector<Line> all;
  for (const int a : candidates)
    for (const int b : candidates)
      for (const int c3 : candidates)
        for (const int d : candidates)
          if (a != b && a != c3 && a != d && b != c3 && b != d && c3 != d)
            all.push_back({a, b, c3, d});
  ASSERT_EQ(all.size(), 1680u);
  std::array<int, 5> linesByRow{};
  for (std::size_t first = 0; first < all.size(); first += 12) {
    const std::vector<Line> ticket(all.begin() + static_cast<std::ptrdiff_t>(first),
                                   all.begin() + static_cast<std::ptrdiff_t>(first + 12));
    std::vector<std::string> lines;
    std::array<int, 5> counts{};
    for (const Line& line : ticket) {
      lines.push_back(packed(line));
      int hits = 0;
      for (int p = 0; p < 4; ++p)
        hits += line[p] == kDrawn[p] ? 1 : 0;
      ++counts[static_cast<std::size_t>(hits)];
    }
    SCOPED_TRACE("ticket from line " + packed(ticket.front()));
    checkSaved(lines);
    for (int k = 0; k < 12; ++k)
      expectMarks(ticket[static_cast<std::size_t>(k)], false, 4 * k + 1);
    click("CmdShowResults");
    for (int row = 1; row <= 4; ++row) {
      const int count = counts[static_cast<std::size_t>(row)];
      EXPECT_EQ(countBox(row).visible(), count > 0) << row;
      if (count > 0) {
        EXPECT_EQ(countBox(row).text(), CStr(count)) << row;
      }
      if (countBox(row).visible())
        linesByRow[static_cast<std::size_t>(row)] += static_cast<int>(Val(countBox(row).text()));
    }
  }
  // By counting: lines with exactly k numbers at their place, k = 1 to 4; the
  // other 1001 hit nothing.
  EXPECT_EQ(linesByRow, (std::array<int, 5>{0, 536, 126, 16, 1}));
  EXPECT_TRUE(dialogs.shown.empty());
}

// One line alone: the row of its hits, or the loss.
TEST_F(StrikeCheck, ALineAloneTakesTheRowOfItsHits) {
  for (int hits = 0; hits <= 4; ++hits) {
    SCOPED_TRACE(CStr(hits) + " hits");
    checkSaved({kLineOfRow[static_cast<std::size_t>(hits)]});
    click("CmdShowResults");
    expectOneRow(hits);
  }
}

// The same rule on a typed ticket, for each of the sixteen ways in which the
// four places of a line can hit or miss.
TEST_F(StrikeCheck, TypedLinesHitByPlaceWithTheTextOfTheCell) {
  const Line misses = {1, 2, 3, 40};
  for (int mask = 0; mask < 16; ++mask) {
    SCOPED_TRACE("hits at mask " + CStr(mask));
    if (mask > 0) reopen();
    Line line{};
    int hits = 0;
    for (int p = 0; p < 4; ++p) {
      const bool hit = (mask >> p & 1) != 0;
      line[p] = hit ? kDrawn[p] : misses[p];
      hits += hit ? 1 : 0;
    }
    typeTicket({packed(line)});
    ASSERT_TRUE(hasFocus("CmdShowResults"));
    expectMarks(line, true);
    click("CmdShowResults");
    expectOneRow(hits);
    EXPECT_TRUE(hasFocus("BtnRestart"));
  }
  EXPECT_TRUE(dialogs.shown.empty());
}

// Every mix of zero to three lines in each row, on one visit. The Strike 4 row
// alone may take the slot at 1800; every other row that won takes the next
// slot 300 lower. The Strike rows are told "prize" until a count above one has
// written "Prizes", which then stays; the Bonus row is told both ways.
TEST_F(StrikeCheck, RowsStandFromTheHighestDownAndOnlyThePluralsAreWritten) {
  std::vector<std::array<int, 5>> mixes;
  for (const int most : {1, 3}) {
    for (int c4 = 0; c4 <= most; ++c4)
      for (int c3 = 0; c3 <= most; ++c3)
        for (int c2 = 0; c2 <= most; ++c2)
          for (int c1 = 0; c1 <= most; ++c1)
            if (most == 1 || c4 > 1 || c3 > 1 || c2 > 1 || c1 > 1)
              mixes.push_back({0, c1, c2, c3, c4});
  }
  ASSERT_EQ(mixes.size(), 256u);
  std::array<bool, 5> pluralWritten{};
  int turn = 0;
  for (const auto& counts : mixes) {
    SCOPED_TRACE("counts 4 to 1: " + CStr(counts[4]) + CStr(counts[3]) + CStr(counts[2]) +
                 CStr(counts[1]));
    // The lines of the rows, interleaved in a different order each turn.
    std::vector<std::string> lines;
    for (int round = 0; round < 3; ++round)
      for (int k = 0; k < 4; ++k) {
        const int row = (k + turn) % 4 + 1;
        if (counts[static_cast<std::size_t>(row)] > round) lines.push_back(kLineOfRow[row]);
      }
    if (lines.empty()) lines.push_back(kLineOfRow[0]);
    ++turn;
    checkSaved(lines);
    click("CmdShowResults");
    int top = 1800;
    bool won = false;
    for (int row = 4; row >= 1; --row) {
      const int count = counts[static_cast<std::size_t>(row)];
      SCOPED_TRACE("row " + CStr(row));
      EXPECT_EQ(countBox(row).visible(), count > 0);
      EXPECT_EQ(rowLabel(row).visible(), count > 0);
      if (count == 0) continue;
      won = true;
      if (row != 4) top += 300;
      if (row != 1 && count > 1) pluralWritten[static_cast<std::size_t>(row)] = true;
      EXPECT_EQ(countBox(row).text(), CStr(count));
      EXPECT_EQ(countBox(row).top(), top);
      EXPECT_EQ(rowLabel(row).top(), top);
      const std::string caption =
          row == 1 ? (count == 1 ? "Bonus Ticket" : "Bonus Tickets")
                   : "Strike " + CStr(row) +
                         (pluralWritten[static_cast<std::size_t>(row)] ? " Prizes" : " prize");
      EXPECT_EQ(rowLabel(row).caption(), caption);
    }
    EXPECT_EQ(c("LblYouveWon").caption(),
              won ? "CONGRATULATIONS You've WON !!!" : "There are no Prizes on this Ticket");
    EXPECT_TRUE(hasFocus("BtnRestart"));
  }
  EXPECT_EQ(pluralWritten, (std::array<bool, 5>{false, false, true, true, true}));
}

TEST_F(StrikeCheck, ANewOpeningBringsTheSingularCaptionsBack) {
  checkSaved(
      {kLineOfRow[4], kLineOfRow[4], kLineOfRow[3], kLineOfRow[3], kLineOfRow[2], kLineOfRow[2]});
  click("CmdShowResults");
  EXPECT_EQ(rowLabel(4).caption(), "Strike 4 Prizes");
  EXPECT_EQ(rowLabel(3).caption(), "Strike 3 Prizes");
  EXPECT_EQ(rowLabel(2).caption(), "Strike 2 Prizes");
  reopen();
  checkSaved({kLineOfRow[4], kLineOfRow[3], kLineOfRow[2], kLineOfRow[1]});
  click("CmdShowResults");
  EXPECT_EQ(rowLabel(4).caption(), "Strike 4 prize");
  EXPECT_EQ(rowLabel(3).caption(), "Strike 3 prize");
  EXPECT_EQ(rowLabel(2).caption(), "Strike 2 prize");
  EXPECT_EQ(rowLabel(1).caption(), "Bonus Ticket");
  for (int row = 4; row >= 1; --row)
    EXPECT_EQ(countBox(row).top(), 1800 + (4 - row) * 300) << row;
}

TEST_F(StrikeCheck, TwelveLinesAreWalkedWholeAndTheCountsAddUpToTwelve) {
  const std::vector<std::string> lines = {
      kLineOfRow[1], kLineOfRow[4], kLineOfRow[2], kLineOfRow[3], kLineOfRow[4], kLineOfRow[1],
      kLineOfRow[3], kLineOfRow[3], kLineOfRow[2], kLineOfRow[4], kLineOfRow[1], kLineOfRow[4]};
  typeTicket(lines);
  ASSERT_TRUE(hasFocus("CmdShowResults"));
  int counted = 0;
  for (int row = 1; row <= 4; ++row)
    counted += static_cast<int>(Val(countBox(row).text()));
  EXPECT_EQ(counted, 12);
  EXPECT_EQ(countBox(4).text(), "4");
  EXPECT_EQ(countBox(3).text(), "3");
  EXPECT_EQ(countBox(2).text(), "2");
  EXPECT_EQ(countBox(1).text(), "3");
  // Line M, 07 15 22 31, is marked whole.
  for (int cell = 45; cell <= 48; ++cell)
    EXPECT_EQ(c("IntResult", cell).text(), c("TxtStrike", cell).text()) << cell;
  for (int cell = 1; cell <= 48; ++cell)
    EXPECT_EQ(c("IntResult", cell).fontSize(), 12) << cell;
}

TEST_F(StrikeCheck, LinesAfterTheTicketAreNeverLookedAt) {
  checkSaved(std::vector<std::string>(12, kLineOfRow[4]));
  EXPECT_EQ(countBox(4).text(), "12");
  checkSaved({kLineOfRow[0]});
  for (int cell = 1; cell <= 48; ++cell)
    EXPECT_EQ(c("IntResult", cell).text(), " ") << cell;
  EXPECT_EQ(c("TxtStrike", 5).text(), "07");
  click("CmdShowResults");
  expectOneRow(0);
  // The count box keeps the text of its last count, hidden.
  EXPECT_EQ(countBox(4).text(), "12");
  for (int cell = 1; cell <= 48; ++cell)
    EXPECT_EQ(c("IntResult", cell).fontSize(), 12) << cell;
}

// The drawn order comes from the draw file: the same ticket against the draw
// 31 22 15 07 hits elsewhere. A draw clicked without Strike numbers has none
// that a typed line can hit.
TEST_F(StrikeCheck, TheDrawnOrderIsThatOfTheFile) {
  writeDraw("706", "Z31221507");
  writeDraw("707", "");
  reopen();
  pick("List1", "706");
  EXPECT_EQ(c("TxtStrikeNumbers2", 1).text(), "31");
  checkSaved({"07152231", "31221507", "31150107"});
  EXPECT_EQ(countBox(4).text(), "1");
  EXPECT_EQ(countBox(2).text(), "1");
  EXPECT_EQ(c("IntResult", 9).text(), "31");
  EXPECT_EQ(c("IntResult", 12).text(), "07");
  for (const int miss : {1, 2, 3, 4, 10, 11})
    EXPECT_EQ(c("IntResult", miss).text(), " ") << miss;
  pick("List1", "707");
  for (int p = 1; p <= 4; ++p)
    EXPECT_EQ(c("TxtStrikeNumbers2", p).text(), "") << p;
  checkSaved({"07152231", "31221507"});
  click("CmdShowResults");
  expectOneRow(0);
}

// Form Load converts the pairs strictly: a digit and a blank is a number.
TEST_F(StrikeCheck, APairOfADigitAndABlankIsTheNumberAtLoad) {
  writeDraw("708", "Z7 152231");
  dir.write("DrawNumber", "708\r\n");
  reopen();
  EXPECT_EQ(c("TxtStrikeNumbers2", 1).text(), "7 ");
  typeTicket({"07152231"});
  click("CmdShowResults");
  expectOneRow(4);
}

}  // namespace
}  // namespace veridraw::testing
