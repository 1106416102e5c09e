// The PowerBall check. Each line is held against the draw's six numbers and
// bonus as on the Lotto screen, and its PowerBall number against the draw's
// eighth number. A PowerBall prize comes only on top of a Lotto prize, in the
// division of that prize; five numbers with the bonus and the PowerBall count
// in PowerBall Division 2 and in PowerBall Division 3 both, as the game was
// settled.
#include "powerball/veridraw7e.h"
#include "screen/strings.h"

namespace veridraw {

namespace {

constexpr int kPowerBall = 8;

}  // namespace

// The six main numbers are frozen for the check; the bonus and the PowerBall
// are read from DrawNumbers itself when the check runs.
void Veridraw7e::FreezeDraw() {
  for (int k = 1; k <= tickets::kMainNumbers; ++k)
    CheckNumbers(k) = DrawNumbers(k);
}

// Matches every line and paints the prize grid and its PowerBall column: a
// main number black on pale yellow, the bonus white on blue, the PowerBall
// white on green. SameForAllLines is read once, on entry; from then on the
// same variable holds the bonus of the line under check.
void Veridraw7e::NumberSortRoutine() {
  FetchPowerBallNumbers();
  Integer cell = 1;
  for (int division = 1; division <= tickets::kDivisions; ++division) {
    DivisionCount(division) = 0;
    PowerBallDivisionCount(division) = 0;
  }
  const int lines = LineCount;
  for (LineNumber = 1; LineNumber <= lines; LineNumber = LineNumber + 1) {
    MatchCount = 0;
    BonusMatched = 0;
    PowerBallMatched = 0;
    if (PowerBallNumbers(LineNumber) == DrawNumbers(kPowerBall)) {
      TxtPwrBall(LineNumber).setText(TxtPowerBall(LineNumber).text());
      TxtPwrBall(LineNumber).setBackColor(colors::kGreen);
      TxtPwrBall(LineNumber).setForeColor(colors::kWhite);
      PowerBallMatched = 1;
    }
    MatchLottoLine(cell, CheckNumbers, DrawNumbers(tickets::kBonus), MatchCount, BonusMatched);
    DivisionResults();
  }
}

// With one number for all lines the column takes the box's text again, which
// it already holds. With a number a line the spare cell after the ticket is
// hidden: with one number it stays in view under its cover.
void Veridraw7e::FetchPowerBallNumbers() {
  const int lines = LineCount;
  if (SameForAllLines == 1) {
    for (LineNumber = 1; LineNumber <= lines; LineNumber = LineNumber + 1) {
      TxtPowerBall(LineNumber).setText(TxtPwrBallNumber(1).text());
      PowerBallNumbers(LineNumber) = Integer::fromDouble(Val(TxtPowerBall(LineNumber).text()));
    }
  } else {
    LineA(lines * game_.cellsPerLine + 1).setVisible(false);
    for (LineNumber = 1; LineNumber <= lines; LineNumber = LineNumber + 1)
      PowerBallNumbers(LineNumber) = Integer::fromDouble(Val(TxtPowerBall(LineNumber).text()));
  }
}

// The prize of one line. The tests are not exclusive; every rise of a counter
// is written into its box at once, and so is the fall of Division 3 when the
// bonus moves five numbers up to Division 2. PowerBall Division 3 keeps its
// count then.
void Veridraw7e::DivisionResults() {
  if (MatchCount == 3 && BonusMatched == 1) AddToDivision(5, 1);
  if (MatchCount == 3 && BonusMatched == 1 && PowerBallMatched == 1) AddToPowerBallDivision(5);
  if (MatchCount == 4) {
    AddToDivision(4, 1);
    if (PowerBallMatched == 1) AddToPowerBallDivision(4);
  }
  if (MatchCount == 5) {
    AddToDivision(3, 1);
    if (PowerBallMatched == 1) AddToPowerBallDivision(3);
    if (BonusMatched == 1) {
      AddToDivision(3, -1);
      AddToDivision(2, 1);
    }
    if (BonusMatched == 1 && PowerBallMatched == 1) AddToPowerBallDivision(2);
  }
  if (MatchCount == 6) {
    AddToDivision(1, 1);
    if (PowerBallMatched == 1) AddToPowerBallDivision(1);
  }
}

void Veridraw7e::AddToDivision(int division, int step) {
  DivisionCount(division) = DivisionCount(division) + step;
  PrizeCountBox(division).setText(CStr(DivisionCount(division)));
}

void Veridraw7e::AddToPowerBallDivision(int division) {
  PowerBallDivisionCount(division) = PowerBallDivisionCount(division) + 1;
  control("TxtDivPwrBall" + CStr(division)).setText(CStr(PowerBallDivisionCount(division)));
}

// Reveals what the check has already counted. On a win the ticket and its
// column give way to the pictures; on a loss the ticket comes back, without
// the boxes after it, and with the heading of its column.
void Veridraw7e::CmdShowResults_Click() {
  const int cells = LineCount * game_.cellsPerLine;
  HideTicketForResults();
  for (int line = 1; line <= LineCount; ++line)
    TxtPowerBall(line).setVisible(false);
  LblPwrBall1(0).setVisible(false);
  ShowPicturesOfAWin(true);
  if (TicketWonNothing()) {
    // Only pictures and labels are hidden on the way, so showing the column
    // after them rather than beside the letters leaves the focus where it is.
    ShowTicketWithoutPrizes(cells);
    for (int line = 1; line <= LineCount; ++line)
      TxtPowerBall(line).setVisible(true);
    LblPwrBall1(0).setVisible(true);
  }
  LblYouveWon->setVisible(true);
  PlacePrizeRows();
  BtnRestart->SetFocus();
}

bool Veridraw7e::TicketWonNothing() const {
  for (int division = 1; division <= tickets::kDivisions; ++division)
    if (DivisionCount(division) != 0 || PowerBallDivisionCount(division) != 0) return false;
  return true;
}

// The rows by rank, each PowerBall row above its Lotto row, closed up. The
// first, PowerBall Division 1, stands at 1800; every other row that is shown
// goes 300 lower first, so without that prize the rows begin at 2100. Only
// the Lotto rows of Division 2 to 5 change their caption, to a plural too.
void Veridraw7e::PlacePrizeRows() {
  DivisionRowTop = tickets::kFirstRowTop;
  for (int division = 1; division <= tickets::kDivisions; ++division) {
    if (PowerBallDivisionCount(division) > 0) {
      if (division != 1) DivisionRowTop = DivisionRowTop + tickets::kRowStep;
      PlacePrizeRow(control("TxtDivPwrBall" + CStr(division)),
                    control("LblDivPwrBall" + CStr(division)));
    }
    const int count = DivisionCount(division);
    if (count > 0) {
      DivisionRowTop = DivisionRowTop + tickets::kRowStep;
      if (division != 1)
        PrizeLabel(division).setCaption("Division " + CStr(division) +
                                        (count == 1 ? " Prize" : " Prizes"));
      PlacePrizeRow(PrizeCountBox(division), PrizeLabel(division));
    }
  }
}

void Veridraw7e::PlacePrizeRow(Control& countBox, Control& label) {
  countBox.setTop(DivisionRowTop);
  label.setTop(DivisionRowTop);
  countBox.setVisible(true);
  label.setVisible(true);
}

}  // namespace veridraw
