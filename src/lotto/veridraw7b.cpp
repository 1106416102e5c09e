#include "lotto/veridraw7b.h"

#include "lotto/lotto_game.h"
#include "screen/strings.h"

namespace veridraw {

using tickets::kBonus;
using tickets::kDivisions;
using tickets::kFirstRowTop;
using tickets::kMainNumbers;
using tickets::kRowStep;

Veridraw7b::Veridraw7b(Application& application)
    : TicketScreen(application, "Veridraw7b", designOnce<veridraw7bDesign>, lottoGame()) {}

void Veridraw7b::Form_Load() {
  LineCount = 0;
  SavedMode = 0;
  for (int cell = 1; cell <= game_.homeCells; ++cell) {
    LineA(cell).setVisible(true);
    LineA(cell).setBackColor(colors::kWhite);
  }
  LockGrids();
  store::ReadCurrentDraw(files(), *this);
  if (DrawNumbersText == "") {
    ShowNoNumbersMessage();
  }
  ShowDrawNumbers();
  ShowHomeChoices();
}

// A click in the list of draws makes that draw current for the whole program
// and shows it. It compares nothing: a ticket already checked keeps its grid.
void Veridraw7b::List1_Click() {
  store::SelectDraw(files(), *this, List1->text());
  LblSpaceBar->setVisible(false);
  if (DrawNumbersText == "") {
    ShowNoNumbersMessage();
  } else if (SavedMode != 0) {
    ShowMessage(tickets::kSavedTicketsHint, tickets::kTwoMessagesHeight, Bold::Off);
  }
  ShowDrawNumbers();
}

void Veridraw7b::ShowNoNumbersMessage() {
  ShowMessage(tickets::kNoNumbersMessage, tickets::kOneMessageHeight, Bold::On);
}

// The draw number, the six numbers and the bonus: pairs 1 to 7 of the Lotto
// line, from position 2, behind its mark. A draw without numbers gives "" and 0.
void Veridraw7b::ShowDrawNumbers() {
  ShowDrawPairs(TxtDrawnNumbers2, DrawNumbersText, kBonus, DrawNumbers, tickets::LenientInteger);
}

// The six main numbers are frozen for the check; the bonus is read from
// DrawNumbers itself.
void Veridraw7b::FreezeDraw() {
  for (int k = 1; k <= kMainNumbers; ++k)
    CheckNumbers(k) = DrawNumbers(k);
}

// Compares every line with the draw and paints the prize grid: a main number
// that matches in black on pale yellow, the bonus in white on blue. Order and
// position play no part, and values are compared as integers.
void Veridraw7b::NumberSortRoutine() {
  Integer cell = 1;
  for (int division = 1; division <= kDivisions; ++division)
    DivisionCount(division) = 0;
  for (int line = 1; line <= LineCount; ++line) {
    MatchCount = 0;
    BonusMatched = 0;
    MatchLottoLine(cell, CheckNumbers, DrawNumbers(kBonus), MatchCount, BonusMatched);
    DivisionResults();
  }
}

// The prize of one line. Each case that applies writes the new count into its
// division's box at once; five matches with the bonus count first in Division
// 3 and are then moved to Division 2.
void Veridraw7b::DivisionResults() {
  if (MatchCount == 3 && BonusMatched == 1) AddToDivision(5, 1);
  if (MatchCount == 4) AddToDivision(4, 1);
  if (MatchCount == 5) {
    AddToDivision(3, 1);
    if (BonusMatched == 1) {
      AddToDivision(3, -1);
      AddToDivision(2, 1);
    }
  }
  if (MatchCount == 6) AddToDivision(1, 1);
}

void Veridraw7b::AddToDivision(int division, int step) {
  DivisionCount(division) = DivisionCount(division) + step;
  PrizeCountBox(division).setText(CStr(DivisionCount(division)));
}

// Reveals the outcome that the comparison has already made. On a win the
// ticket gives way to the pictures; on a loss it comes back with three empty
// boxes below its last line.
void Veridraw7b::CmdShowResults_Click() {
  const int cells = LineCount * game_.cellsPerLine;
  HideTicketForResults();
  ShowPicturesOfAWin(true);
  bool prizes = false;
  for (int division = 1; division <= kDivisions; ++division)
    prizes = prizes || DivisionCount(division) != 0;
  if (!prizes) ShowTicketWithoutPrizes(cells + 3);
  LblYouveWon->setVisible(true);
  DivisionRowTop = kFirstRowTop;
  if (DivisionCount(1) > 0) {
    PrizeCountBox(1).setTop(DivisionRowTop);
    PrizeLabel(1).setTop(DivisionRowTop);
    PrizeCountBox(1).setVisible(true);
    PrizeLabel(1).setVisible(true);
  }
  for (int division = 2; division <= kDivisions; ++division)
    PlaceDivisionRow(division);
  BtnRestart->SetFocus();
}

// Divisions 2 to 5 each take the next row, 300 lower, only if they won. The
// first of them stands at 2100 even without a Division 1 row above it.
void Veridraw7b::PlaceDivisionRow(int division) {
  const int count = DivisionCount(division);
  if (count < 1) return;
  DivisionRowTop = DivisionRowTop + kRowStep;
  PrizeCountBox(division).setTop(DivisionRowTop);
  PrizeLabel(division).setCaption("Division " + CStr(division) +
                                  (count == 1 ? " Prize" : " Prizes"));
  PrizeCountBox(division).setVisible(true);
  PrizeLabel(division).setTop(DivisionRowTop);
  PrizeLabel(division).setVisible(true);
}

}  // namespace veridraw
