// The confirmation of an entry: Yes writes the draw, No empties the cells for
// a second try.
#include "draws/veridraw7f.h"
#include "screen/strings.h"
#include "store/number_cell.h"

namespace veridraw {

namespace {

constexpr const char* kReEnter = "Re-enter Numbers";

}  // namespace

// GCC 12 at -O3 warns that the assignment of the one-letter mark to the line
// "may overlap" in memcpy, with sizes beyond the address space: a false
// positive of its -Wrestrict on std::string's replace (GCC bug 105329). The
// warning is silenced for the two procedures that start a line with its mark.
#pragma GCC diagnostic push
#if defined(__GNUC__) && !defined(__clang__)
#pragma GCC diagnostic ignored "-Wrestrict"
#endif

// The line is packed before any cell is touched, since clearing the cells
// runs the Change handler, which sorts the row anew while cell 8 is full. The
// cells are hidden only after the clearing, for those runs give them the focus.
void Veridraw7f::BtnYes_Click() {
  DrawNumbersText = "X";
  AppendPairs(DrawNumbersText, TxtDrawnNumeric, 1, kMainNumbers);
  AppendPairs(DrawNumbersText, TxtDrawnNumbers, kBonusCell, kPowerBallCell);
  ClearCells(TxtDrawnNumbers, kLottoCells);
  SetVisible(TxtDrawnNumbers, 1, kLottoCells, false);
  BtnCancel->setVisible(false);
  LblDrawnOrder->setVisible(false);
  LblBonusNumber->setVisible(false);
  LblPwrBall->setVisible(false);
  LblCorrectNumbers->setVisible(false);
  BtnYes->setVisible(false);
  BtnNo->setVisible(false);
  SetVisible(TxtDrawnNumeric, 1, kMainNumbers, false);
  LblNumericOrder->setVisible(false);
  SaveDraw(&Veridraw7f::ShowLottoLine);
}

// The Strike numbers are packed in the order in which they were typed.
void Veridraw7f::BtnYes2_Click() {
  StrikeNumbersText = "Z";
  AppendPairs(StrikeNumbersText, TxtStrikeNumbers, 1, kStrikeCells);
  ClearCells(TxtStrikeNumbers, kStrikeCells);
  SetVisible(TxtStrikeNumbers, 1, kStrikeCells, false);
  LblCorrectNumbers->setVisible(false);
  BtnCancel->setVisible(false);
  LblDrawnOrder->setVisible(false);
  BtnYes2->setVisible(false);
  BtnNo2->setVisible(false);
  SaveDraw(&Veridraw7f::ShowStrikeLine);
}

#pragma GCC diagnostic pop

// Both lines in hand are written, whichever game was confirmed, and only the
// confirmed game's display is refreshed.
void Veridraw7f::SaveDraw(void (Veridraw7f::*showLine)()) {
  ShowIdleButtons();
  store::WriteDraw(files(), *this);
  (this->*showLine)();
  ListClear();
  FileExists2();
}

// Yes and No stay on the screen for the second try.
void Veridraw7f::BtnNo_Click() {
  ClearCells(TxtDrawnNumbers, kLottoCells);
  for (ClearIndex = 1; ClearIndex <= kMainNumbers; ClearIndex = ClearIndex + 1) {
    TxtDrawnNumeric(ClearIndex).setText(kEmptyCell);
    TxtDrawnNumeric(ClearIndex).setVisible(false);
  }
  LblNumericOrder->setVisible(false);
  EnterAgain(kLottoQuestionTop, TxtDrawnNumbers);
}

// Unlike BtnNo, this drops the line of its game that was in hand.
void Veridraw7f::BtnNo2_Click() {
  ClearCells(TxtStrikeNumbers, kStrikeCells);
  StrikeNumbersText = "";
  EnterAgain(kStrikeQuestionTop, TxtStrikeNumbers);
}

void Veridraw7f::EnterAgain(int top, const ControlArray& cells) {
  LblCorrectNumbers->setVisible(false);
  PutLblCorrectNumbers(top, kReEnter);
  cells(1).setLocked(false);
  cells(1).SetFocus();
}

// A pair is the first two characters of a cell: a blank cell gives " ".
void Veridraw7f::AppendPairs(std::string& line, const ControlArray& cells, int first, int last) {
  for (ClearIndex = first; ClearIndex <= last; ClearIndex = ClearIndex + 1)
    line.append(cells(ClearIndex).text(), 0, 2);  // Left(text, 2)
}

// Each assignment runs the Change handler of the cells, nested, while the
// later cells still hold their numbers. Its counter is its own for that reason.
void Veridraw7f::ClearCells(const ControlArray& cells, int last) {
  for (ClearIndex = 1; ClearIndex <= last; ClearIndex = ClearIndex + 1)
    cells(ClearIndex).setText(kEmptyCell);
}

}  // namespace veridraw
