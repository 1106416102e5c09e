// The digit-by-digit entry of the draw screen: the Change handlers of the Lotto
// and Strike cells, which rescan every cell at each change and run nested
// inside the assignments of Text that they make themselves.
#include "draws/veridraw7f.h"
#include "screen/strings.h"
#include "store/number_cell.h"

namespace veridraw {

// The Lotto scan runs over the eight cells and the spare cell 9 that takes the
// focus at the end; the PowerBall cell may repeat any number.
const Veridraw7f::EntryRules Veridraw7f::kLottoRules = {
    .cells = &Veridraw7f::TxtDrawnNumbers,
    .scanBound = 9,
    .lastCell = kLottoCells,
    .exemptFromDuplicates = kPowerBallCell,
    .rangeWarningWhitens = true,
    .afterWarning = CellColour{kPowerBallCell, colors::kGreen},
    .onAdvance = CellColour{kBonusCell, colors::kBlue},
    .completeEntry = &Veridraw7f::SortDrawnNumbers,
};

// The Strike scan runs over the four cells and the spare cell 5. Its cells
// have no colours of their own: the handler whitens all four at each run.
const Veridraw7f::EntryRules Veridraw7f::kStrikeRules = {
    .cells = &Veridraw7f::TxtStrikeNumbers,
    .scanBound = 5,
    .lastCell = kStrikeCells,
    .exemptFromDuplicates = std::nullopt,
    .rangeWarningWhitens = false,
    .afterWarning = std::nullopt,
    .onAdvance = std::nullopt,
    .completeEntry = &Veridraw7f::AskStrikeNumbersCorrect,
};

// Runs at every change of a Lotto cell, nested inside each assignment of Text
// that the run itself makes.
void Veridraw7f::TxtDrawnNumbers_Change() {
  LblCorrectNumbers->setVisible(false);
  PairSecond = 1;
  TxtDrawnNumbers(1).setTabStop(false);
  ScanCells(kLottoRules);
}

// Runs at every change of a Strike cell, like the Lotto handler.
void Veridraw7f::TxtStrikeNumbers_Change() {
  TxtStrikeNumbers(1).setTabStop(false);
  for (PairSecond = 1; PairSecond <= kStrikeCells; PairSecond = PairSecond + 1)
    TxtStrikeNumbers(PairSecond).setBackColor(colors::kWhite);
  ScanCells(kStrikeRules);
}

// Walks the cells from the first at each run. A nested run moves CellIndex on
// for the run that it interrupted, and each cell is named by the counter as it
// stands at the moment of use.
void Veridraw7f::ScanCells(const EntryRules& rules) {
  CellIndex = 1;
  while (CellIndex <= rules.scanBound) {
    ScanCell(rules);
    CellIndex = CellIndex + 1;
  }
}

void Veridraw7f::ScanCell(const EntryRules& rules) {
  const ControlArray& cells = this->*rules.cells;
  if (cells(CellIndex).text() == kStepBackCell && CellIndex != 1) StepBack(cells);
  if (IsOutOfRange(cells(CellIndex).text()))
    RefuseNumber(rules, kRangeMessage, rules.rangeWarningWhitens);
  if (!IsFullCell(cells(CellIndex).text())) return;
  if (CellIndex != 1 && CellIndex != rules.exemptFromDuplicates) SearchDuplicates(rules);
  if (!IsFullCell(cells(CellIndex).text())) return;
  Advance(rules);
  if (CellIndex == rules.lastCell) (this->*rules.completeEntry)();
}

// The space bar in an empty cell: the cell before is emptied and takes the
// cursor. Both assignments start nested runs when they change the text.
void Veridraw7f::StepBack(const ControlArray& cells) {
  cells(CellIndex - 1).setLocked(false);
  cells(CellIndex - 1).SetFocus();
  cells(CellIndex - 1).setText(kEmptyCell);
  cells(CellIndex).setText(kEmptyCell);
}

// The cell is red while the message stands, then emptied with the cursor in it.
void Veridraw7f::RefuseNumber(const EntryRules& rules, const char* message, bool whiten) {
  const ControlArray& cells = this->*rules.cells;
  cells(CellIndex).setBackColor(colors::kRed);
  LastMessageResult = MsgBox(message, msgbox::kOkOnly, kWarningTitle);
  if (whiten) {
    cells(CellIndex).setBackColor(colors::kWhite);
    if (rules.afterWarning)
      cells(rules.afterWarning->cell).setBackColor(rules.afterWarning->colour);
  }
  cells(CellIndex).SetFocus();
  cells(CellIndex).setText(kEmptyCell);
}

// Compares every pair of cells up to the current one, and the current one with
// each before it. Each loop takes its upper bound once, when it starts; a
// nested run fired by a refusal moves the counters and CellIndex on.
void Veridraw7f::SearchDuplicates(const EntryRules& rules) {
  const ControlArray& cells = this->*rules.cells;
  const int outerBound = CellIndex;
  for (PairFirst = 1; PairFirst <= outerBound; PairFirst = PairFirst + 1) {
    const int innerBound = CellIndex;
    for (PairSecond = PairFirst + 1; PairSecond <= innerBound; PairSecond = PairSecond + 1) {
      const bool firstEmpty = cells(PairFirst).text() == kEmptyCell;
      const bool secondEmpty = cells(PairSecond).text() == kEmptyCell;
      if (firstEmpty && secondEmpty) return;
      const double first = Val(cells(PairFirst).text());
      const double second = Val(cells(PairSecond).text());
      const double current = Val(cells(CellIndex).text());
      if (first == second || current == first) RefuseNumber(rules, kIncorrectNumberMessage, true);
    }
  }
}

// A full cell passes the cursor to the next one and is locked.
void Veridraw7f::Advance(const EntryRules& rules) {
  const ControlArray& cells = this->*rules.cells;
  if (rules.onAdvance) cells(rules.onAdvance->cell).setBackColor(rules.onAdvance->colour);
  cells(CellIndex + 1).setLocked(false);
  cells(CellIndex + 1).SetFocus();
  cells(CellIndex).setLocked(true);
}

// The eighth Lotto cell is full: a copy of the six numbers is sorted by text,
// and shown only if the sort moved anything.
void Veridraw7f::SortDrawnNumbers() {
  for (CopyIndex = 1; CopyIndex <= kMainNumbers; CopyIndex = CopyIndex + 1)
    TxtDrawnNumeric(CopyIndex).setText(TxtDrawnNumbers(CopyIndex).text());
  for (SortOuter = 1; SortOuter <= kMainNumbers - 1; SortOuter = SortOuter + 1) {
    for (SortInner = SortOuter + 1; SortInner <= kMainNumbers; SortInner = SortInner + 1) {
      if (TxtDrawnNumeric(SortOuter).text() > TxtDrawnNumeric(SortInner).text()) {
        SortTemp = TxtDrawnNumeric(SortOuter).text();
        TxtDrawnNumeric(SortOuter).setText(TxtDrawnNumeric(SortInner).text());
        TxtDrawnNumeric(SortInner).setText(SortTemp);
        Reordered = 1;
      }
    }
  }
  if (Reordered == 1) {
    LblNumericOrder->setVisible(true);
    SetVisible(TxtDrawnNumeric, 1, kMainNumbers, true);
  }
  PutLblCorrectNumbers(kLottoQuestionTop, kQuestion);
  Reordered = 0;
  AskIfCorrect(BtnYes, BtnNo);
}

void Veridraw7f::AskStrikeNumbersCorrect() {
  LblDrawnOrder2->setVisible(false);
  PutLblCorrectNumbers(kStrikeQuestionTop, kQuestion);
  AskIfCorrect(BtnYes2, BtnNo2);
}

void Veridraw7f::AskIfCorrect(const ControlRef& yes, const ControlRef& no) {
  yes->setVisible(true);
  no->setVisible(true);
  yes->SetFocus();
}

void Veridraw7f::PutLblCorrectNumbers(int top, const char* caption) {
  LblCorrectNumbers->setTop(top);
  LblCorrectNumbers->setCaption(caption);
  LblCorrectNumbers->setVisible(true);
}

}  // namespace veridraw
