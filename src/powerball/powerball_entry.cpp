// The PowerBall numbers of a ticket. When the six numbers of the last line are
// in, the screen asks whether one PowerBall number serves all lines: on Yes one
// box takes it and fills the column, on No the column is typed line by line.
// Both ways end with every cell of the column full and the ticket checked.
//
// The two Change handlers work as the grid of the numbers does: they keep no
// cursor, scan their cells from the first at each change, and share the
// form-level CurrentCell with every run nested in them. A nested run leaves
// CurrentCell past the ticket, and the run that it interrupted goes on, for
// what is left of its pass, on the spare elements there; that is what the
// spare elements are for.
#include "powerball/veridraw7e.h"
#include "screen/strings.h"
#include "tickets/ticket_design.h"

namespace veridraw {

namespace {

constexpr const char* kQuestion = "Is the PowerBall number the same for all lines";
constexpr const char* kOneNumberPrompt = "Enter the 2 Digit PowerBall Number";
constexpr const char* kFirstLinePrompt = "Line A -- Enter the Two Digit PowerBall Number";
constexpr const char* kPowerBallRangeMessage = "You Must enter a Number between 01 and 08";
constexpr int kLowestPowerBall = 1;
constexpr int kHighestPowerBall = 8;
constexpr int kAnswerTop = 2000;
// The cover box of the column; tickets of 13 and 14 lines go without it.
constexpr int kPowerBallCover = 17;
constexpr int kLongestCoveredTicket = 12;

}  // namespace

// The last cell of the grid is complete, and the cursor has gone on to the
// spare cell: nothing is checked yet, the question comes first.
void Veridraw7e::EndOfEntry() {
  LblEnterLine->setVisible(false);
  TxtNoofLines->setLeft(4360);
  TxtNoofLines->setWidth(3300);
  TxtNoofLines->setText(kQuestion);
  TxtNoofLines->setVisible(true);
  BtnYes->setTop(kAnswerTop);
  BtnNo->setTop(kAnswerTop);
  BtnYes->setVisible(true);
  BtnNo->setVisible(true);
  LineA(1).setTabStop(false);
  BtnYes->SetFocus();
}

void Veridraw7e::BtnYes_Click() {
  SameForAllLines = 1;
  OpenPowerBallColumn();
  BtnYes->setVisible(false);
  BtnNo->setVisible(false);
  TxtNoofLines->setLeft(4000);
  TxtNoofLines->setWidth(2800);
  TxtNoofLines->setBackColor(colors::kDarkBlue);
  TxtNoofLines->setForeColor(colors::kWhite);
  TxtNoofLines->setText(kOneNumberPrompt);
  TxtPwrBallNumber(1).setVisible(true);
  TxtPwrBallNumber(1).SetFocus();
}

// The prompt of line A has "Number" with a capital, those of the later lines
// "number" without.
void Veridraw7e::BtnNo_Click() {
  SameForAllLines = 0;
  OpenPowerBallColumn();
  BtnYes->setVisible(false);
  BtnNo->setVisible(false);
  TxtNoofLines->setVisible(false);
  LblEnterLine->setCaption(kFirstLinePrompt);
  LblEnterLine->setTop(tickets::kLottoGridTop);
  LblEnterLine->setWidth(3500);
  LblEnterLine->setVisible(true);
  TxtPowerBall(1).setLocked(false);
  TxtPowerBall(1).setVisible(true);
  TxtPowerBall(1).SetFocus();
}

// The column of the ticket's lines, white and bordered for entry.
void Veridraw7e::OpenPowerBallColumn() {
  for (int line = 1; line <= LineCount; ++line) {
    TxtPowerBall(line).setBackColor(colors::kWhite);
    TxtPowerBall(line).setBorderStyle(1);
    TxtPowerBall(line).setVisible(true);
  }
}

// The scan examines the cells 1 to LineCount + 1. Each step takes CurrentCell
// afresh, so that after a nested run the rest of a pass works on an element
// past the ticket; the largest so reached is LineCount + 3.
void Veridraw7e::TxtPowerBall_Change() {
  TxtPowerBall(1).setTabStop(true);
  CurrentCell = 1;
  const int limit = LineCount + 2;
  while (CurrentCell <= limit && CurrentCell != LineCount + 2) {
    PowerBallBacktrack(TxtPowerBall);
    PowerBallRange(TxtPowerBall, colors::kWhite);
    if (Len(TxtPowerBall(CurrentCell).text()) == kCompleteCell) {
      AdvanceCell(TxtPowerBall, [this] { PBEntBox(); });
      if (CurrentCell == LineCount) FinishPowerBallEntry();
    }
    CurrentCell = CurrentCell + 1;
  }
}

// The one box and the spare box after it. After a refusal the box stays green.
void Veridraw7e::TxtPwrBallNumber_Change() {
  TxtPwrBallNumber(1).setTabStop(true);
  for (CurrentCell = 1; CurrentCell <= 2; CurrentCell = CurrentCell + 1) {
    PowerBallBacktrack(TxtPwrBallNumber);
    PowerBallRange(TxtPwrBallNumber, colors::kGreen);
    if (Len(TxtPwrBallNumber(CurrentCell).text()) == kCompleteCell) {
      TxtPwrBallNumber(CurrentCell + 1).setLocked(false);
      TxtPwrBallNumber(CurrentCell + 1).SetFocus();
      TxtPwrBallNumber(CurrentCell).setLocked(true);
      if (CurrentCell == 1) FillPowerBallColumn();
    }
  }
}

// The space bar in an empty cell empties the cell before it too, and puts the
// cursor there. Not in the first cell, so in the one box it takes nothing back.
void Veridraw7e::PowerBallBacktrack(const ControlArray& cells) {
  if (cells(CurrentCell).text() != kStepBackCell || CurrentCell == 1) return;
  cells(CurrentCell - 1).setLocked(false);
  cells(CurrentCell - 1).SetFocus();
  cells(CurrentCell - 1).setText(kEmptyCell);
  cells(CurrentCell).setText(kEmptyCell);
}

// The text is taken as it stands: a value above 8 is refused at once, one
// below 1 when the cell is complete. The cell is red while the warning stands.
void Veridraw7e::PowerBallRange(const ControlArray& cells, std::int32_t backAfterWarning) {
  const double value = Val(cells(CurrentCell).text());
  if (value > kHighestPowerBall ||
      (value < kLowestPowerBall && Len(cells(CurrentCell).text()) == kCompleteCell))
    RefuseCell(cells(CurrentCell), kPowerBallRangeMessage, backAfterWarning);
}

// The last line's PowerBall number is in: the ticket is checked against the
// draw on display at this moment. The spare cell under the grid's cover is
// painted with the ticket.
void Veridraw7e::FinishPowerBallEntry() {
  const int cells = LineCount * game_.cellsPerLine;
  LblEnterLine->setVisible(false);
  TakeTicketCells();
  PaintTicketAsDisplay(cells + 1, false);
  CheckEnteredTicket(cells);
  ShowPowerBallCells(colors::kGreen);
  PwrBallBox();
  OfferTicketSave();
  FocusShowResults();
}

// The one number into every line's cell. Each assignment runs the column's
// Change nested, which advances over the cells filled so far and, at the last
// line, finishes the entry. The counter of this loop is the check's line
// counter, which the check leaves past the last line.
void Veridraw7e::FillPowerBallColumn() {
  const int lines = LineCount;
  for (LineNumber = 1; LineNumber <= lines; LineNumber = LineNumber + 1)
    TxtPowerBall(LineNumber).setText(TxtPwrBallNumber(1).text());
  ShowPowerBallCells(colors::kGreen);
  OfferTicketSave();
  TxtNoofLines->setVisible(false);
  TxtPwrBallNumber(1).setVisible(false);
  FocusShowResults();
}

// The prompt for the line after the cell just filled. It is never moved back,
// and after the last line of the longest ticket there is none.
void Veridraw7e::PBEntBox() {
  const int line = CurrentCell;
  if (line < 1 || line >= game_.mostLines) return;
  LblEnterLine->setCaption(std::string("Line ") + tickets::LineLetter(line + 1) +
                           " -- Enter the Two Digit PowerBall number");
  LblEnterLine->setTop(game_.promptTops[static_cast<std::size_t>(line - 1)]);
}

// The cover box over the spare cell after the last line, on that line's row.
// A ticket of 13 lines leaves its spare cell in view, and one of 14 has it far
// down in the button row.
void Veridraw7e::PwrBallBox() {
  if (LineCount > kLongestCoveredTicket) return;
  TxtPowerBall(kPowerBallCover).setTop(tickets::kLottoGridTop + LineCount * tickets::kLottoRowStep);
  TxtPowerBall(kPowerBallCover).setVisible(true);
}

}  // namespace veridraw
