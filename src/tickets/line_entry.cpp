// The entry of a ticket, two characters to a number, with no Enter key. The
// Change handler of the cells keeps no cursor: at each change it walks the
// whole ticket from the first cell and derives from what the cells hold where
// the cursor stands, which line is being typed and where the prompt goes.
//
// Its counters are form-level. Every assignment to a cell's Text that changes
// it runs the handler again at once, nested inside the assignment, and that
// inner walk leaves CurrentCell past the end of the ticket. The outer walk then
// reads the counters as the inner one left them and runs out: that is how a
// refused number gives exactly one message. The loops are kept as they stand
// for that reason, each bound taken once when its loop starts.
#include <array>
#include <cstddef>

#include "screen/dialogs.h"
#include "screen/strings.h"
#include "tickets/ticket_screen.h"

namespace veridraw::tickets {

// All the line buttons do the same with their own numbers. Only the button of
// the longest ticket parks the cover grey: its spare cell lies at the foot of
// the screen, behind the notice.
void TicketScreen::LineButton_Click(const LineButton& button) {
  LineCount = button.lines;
  OwnNumRoutine();
  Control& cover = LineA(game_.coverCell());
  cover.setTop(button.coverTop);
  if (button.lines == game_.mostLines) cover.setBackColor(colors::kGrey);
  cover.setVisible(true);
  LineA(1).setLocked(false);
}

// Prepares the grid for a ticket of LineCount lines. On the Lotto screen it
// empties three cells past the ticket as well, the spare cells that the walk
// reaches.
void TicketScreen::OwnNumRoutine() {
  const int cells = LineCount * game_.cellsPerLine;
  for (int cell = cells + 1; cell <= game_.gridCells(); ++cell)
    LineA(cell).setVisible(false);
  for (int cell = 1; cell <= cells; ++cell) {
    IntResult(cell).setText(" ");
    IntResult(cell).setBackColor(colors::kPaleYellow);
  }
  for (int cell = 1; cell <= cells + game_.sparesClearedWithTicket; ++cell) {
    LineA(cell).setText(kEmptyCell);
    LineA(cell).setBackColor(colors::kWhite);
    LineA(cell).setBorderStyle(1);
  }
  for (int cell = 1; cell <= cells; ++cell)
    LineA(cell).setVisible(true);
  ShowLetters(1, LineCount, true);
  ShowLetters(LineCount + 1, game_.mostLines, false);
  TxtNoofLines->setVisible(false);
  BtnCancel->setVisible(false);
  ShowLineButtons(false);
  LblEnterLine->setVisible(true);
  ShowMessage(kSpaceBarHint, kOneMessageHeight);
  LineA(game_.coverCell()).setBackColor(colors::kPaleYellow);
  LineA(1).SetFocus();
}

void TicketScreen::LineA_Change() {
  if (game_.changeHidesShowResults) CmdShowResults->setVisible(false);
  LineA(1).setTabStop(true);
  LineStartCell = 1;
  const int bound = LineCount * game_.cellsPerLine + 2;
  for (CurrentCell = 1; CurrentCell <= bound; CurrentCell = CurrentCell + 1) {
    // Each test of a step reads the cell afresh, since the one before may have
    // changed it. When the first reading shows that the space bar and the
    // range have nothing to do (cell 1 steps back from nothing), nothing
    // changes until the order test, and that one reading serves them all.
    const CellReading& cell = Reading(CurrentCell);
    if ((cell.stepBack && CurrentCell != 1) || cell.outOfRange) {
      BacktrackTest();
      RangeTest();
      if (Reading(CurrentCell).length == kCompleteCell && CurrentCell != 1) OrderTest();
    } else if (cell.length != kCompleteCell) {
      continue;
    } else if (CurrentCell != 1) {
      OrderTest();
    }
    if (Reading(CurrentCell).length == kCompleteCell) {
      Advance();
      if (CurrentCell == LineCount * game_.cellsPerLine) EndOfEntry();
    }
  }
}

// The space bar in an empty cell empties the cell before it, and gives it the
// focus. Cell 1 has no cell before it, and its two blanks stay.
void TicketScreen::BacktrackTest() {
  if (CurrentCell == 1 || !Reading(CurrentCell).stepBack) return;
  LineA(CurrentCell - 1).setLocked(false);
  LineA(CurrentCell - 1).SetFocus();
  LineA(CurrentCell - 1).setText(kEmptyCell);
  LineA(CurrentCell).setText(kEmptyCell);
}

// A value above 40 is refused at once; one below 1 when the cell is complete.
void TicketScreen::RangeTest() {
  if (Reading(CurrentCell).outOfRange) Refuse(kRangeMessage, game_.rangeRefusalShowsPrompt);
}

// Each pair of cells from the start of the line up to the complete cell must be
// in the order of the game. The test never looks back across LineStartCell, so
// equal numbers on different lines pass.
//
// Every comparison reads the cells that the counters name as they stand. A
// cell is read once for the step and its number kept, by its place from the
// start of the line, since nothing between two comparisons changes a text; a
// refusal empties the cell and runs the walk nested, which moves the counters
// and may change any cell, so after one every cell is read again.
void TicketScreen::OrderTest() {
  // The cells kept, by their place from the cell where the line starts: not
  // read yet, read and blank, or read and holding the kept value.
  enum class Kept : unsigned char { Unread, Blank, Number };
  constexpr int kKeptCells = 16;
  std::array<Kept, kKeptCells> kept;
  kept.fill(Kept::Unread);
  std::array<double, kKeptCells> values;
  const int firstKept = LineStartCell;
  bool blank = false;  // what the last look at a cell found
  const auto valueOf = [&](int cell) {
    const auto place = static_cast<unsigned>(cell - firstKept);
    if (place >= static_cast<unsigned>(kKeptCells)) {
      const CellReading& reading = Reading(cell);
      blank = reading.empty;
      return reading.value;
    }
    if (kept[place] == Kept::Unread) {
      const CellReading& reading = Reading(cell);
      kept[place] = reading.empty ? Kept::Blank : Kept::Number;
      values[place] = reading.value;
    }
    blank = kept[place] == Kept::Blank;
    return values[place];
  };
  // The cells OrderFirst and CurrentCell stay the same cells along the inner
  // loop until a refusal moves the counters.
  double first = 0;
  double current = 0;
  bool firstBlank = false;
  bool stale = true;
  const int lastFirst = CurrentCell;
  for (OrderFirst = LineStartCell; OrderFirst <= lastFirst; OrderFirst = OrderFirst + 1) {
    const int lastSecond = CurrentCell;
    stale = true;
    for (OrderSecond = OrderFirst + 1; OrderSecond <= lastSecond; OrderSecond = OrderSecond + 1) {
      if (stale) {
        first = valueOf(OrderFirst);
        firstBlank = blank;
        current = valueOf(CurrentCell);
        stale = false;
      }
      const double second = valueOf(OrderSecond);
      if (firstBlank && blank) return;
      if (OutOfOrder(first, second, current)) {
        Refuse(kIncorrectNumberMessage);
        kept.fill(Kept::Unread);
        stale = true;
      }
    }
  }
}

// The numbers of a line ascend strictly from left to right, which refuses a
// repeated number as well.
bool TicketScreen::OutOfOrder(double first, double second, double current) const {
  return first >= second || current == first;
}

void TicketScreen::Refuse(const std::string& message, bool showPrompt) {
  RefuseCell(LineA(CurrentCell), message, colors::kWhite, showPrompt);
}

void TicketScreen::RefuseCell(Control& cell, const std::string& message, std::int32_t back,
                              bool showPrompt) {
  cell.setBackColor(colors::kRed);
  LastMessageResult = MsgBox(message, msgbox::kOkOnly, kWarningTitle);
  if (showPrompt) LblEnterLine->setVisible(true);
  cell.setBackColor(back);
  cell.SetFocus();
  cell.setText(kEmptyCell);
}

// A complete cell is locked and the cursor moves on to the next one.
void TicketScreen::Advance() {
  AdvanceCell(LineA, [this] { EntBox(); });
}

// At the last cell of a line, the prompt moves to the next line and the order
// test starts there. The prompt is never moved back; it also moves one line
// past the ticket for an instant before the end of entry hides it.
void TicketScreen::EntBox() {
  const int cell = CurrentCell;
  const int line = cell / game_.cellsPerLine;
  if (cell % game_.cellsPerLine != 0 || line < 1 || line >= game_.mostLines) return;
  LblEnterLine->setCaption(linePrompts_[static_cast<std::size_t>(line + 1)]);
  LblEnterLine->setTop(game_.promptTops[static_cast<std::size_t>(line - 1)]);
  LineStartCell = cell + 1;
}

// The last cell is complete: the focus is parked on the spare cell under the
// cover, the cells become the ticket's numbers and turn into a display, and
// the ticket is checked against the draw on display at this moment.
void TicketScreen::EndOfEntry() {
  const int cells = LineCount * game_.cellsPerLine;
  LineA(cells + 1).SetFocus();
  TakeTicketCells();
  PaintTicketAsDisplay(cells, false);
  CheckEnteredTicket(cells);
  OfferTicketSave();
  LineA(1).setTabStop(false);
  FocusShowResults();
}

void TicketScreen::PaintTicketAsDisplay(int cells, bool show) {
  for (int cell = 1; cell <= cells; ++cell) {
    LineA(cell).setBackColor(colors::kPaleYellow);
    LineA(cell).setBorderStyle(0);
    if (show) LineA(cell).setVisible(true);
  }
}

void TicketScreen::CheckEnteredTicket(int cells) {
  NumberSortRoutine();
  for (int cell = 1; cell <= cells; ++cell)
    IntResult(cell).setLocked(true);
}

void TicketScreen::OfferTicketSave() {
  BtnCheckNewTicket->setVisible(false);
  ShowMessage(kSavedTicketsHint, kTwoMessagesHeight);
  BtnSaveTicket->setVisible(true);
}

void TicketScreen::FocusShowResults() {
  CmdShowResults->setVisible(true);
  CmdShowResults->SetFocus();
}

// The cells of a complete ticket become its numbers, the prompts go, and the
// draw on display at this moment is taken for the check.
void TicketScreen::TakeTicketCells() {
  const int cells = LineCount * game_.cellsPerLine;
  for (int cell = 1; cell <= cells; ++cell) {
    TicketCells(cell) = CellInteger(cell);
    IntResult(cell).setLocked(false);
  }
  LblSpaceBar->setVisible(false);
  LblEnterLine->setVisible(false);
  FreezeDraw();
}

}  // namespace veridraw::tickets
