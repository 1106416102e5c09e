#include "draws/veridraw7f.h"

#include "draws/number_cell.h"
#include "screen/strings.h"
#include "store/probes.h"

namespace veridraw {

namespace {

constexpr const char* kWarningTitle = "WARNING";
constexpr const char* kRangeMessage = "You Must enter a Number between 1 and 40";
constexpr const char* kDuplicateMessage = "This is an incorrect number";
constexpr const char* kQuestion = "Are these numbers correct?";
constexpr const char* kReEnter = "Re-enter Numbers";
constexpr const char* kDrawNumberTitle = "Draw Number";
constexpr const char* kBadDrawNumber = "You Must enter the Ticket Draw Number";
constexpr const char* kBeforeStrike = "Lotto Strike begins at Draw # 293";
constexpr const char* kDrawAlertTitle = "DRAW ALERT";
constexpr int kYesNoWarning = msgbox::kYesNo + msgbox::kExclamation;

// Places of LblCorrectNumbers: above the Lotto Yes and No, and over the place
// of the sorted row, which the Strike entry doesn't have.
constexpr int kLottoQuestionTop = 5520;
constexpr int kStrikeQuestionTop = 4800;

constexpr int kLottoCells = 8;
constexpr int kMainNumbers = 6;
constexpr int kBonusCell = 7;
constexpr int kPowerBallCell = 8;
constexpr int kStrikeCells = 4;
constexpr int kSampleCellsShown = 24;

}  // namespace

// The Lotto scan runs over the eight cells and the spare cell 9 that takes the
// focus at the end; the PowerBall cell may repeat any number.
const Veridraw7f::EntryRules Veridraw7f::kLottoRules = {
    .cells = &Veridraw7f::TxtDrawnNumbers,
    .scanBound = 9,
    .scanStop = 10,
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
    .scanStop = 7,
    .lastCell = kStrikeCells,
    .exemptFromDuplicates = std::nullopt,
    .rangeWarningWhitens = false,
    .afterWarning = std::nullopt,
    .onAdvance = std::nullopt,
    .completeEntry = &Veridraw7f::AskStrikeNumbersCorrect,
};

// The two overwrite prompts differ by one blank after the question mark.
const Veridraw7f::EntryStart Veridraw7f::kLottoStart = {
    .lineOfGame = &store::DrawFields::DrawNumbersText,
    .markOfGame = "X",
    .lineOfOtherGame = &store::DrawFields::StrikeNumbersText,
    .markOfOtherGame = "Z",
    .refusesDrawsBeforeStrike = false,
    .overwritePrompt = "Numbers already exist for this Draw    OverWrite?  Yes/No",
    .showEntry = &Veridraw7f::ShowLottoEntry,
    .cells = &Veridraw7f::TxtDrawnNumbers,
};

const Veridraw7f::EntryStart Veridraw7f::kStrikeStart = {
    .lineOfGame = &store::DrawFields::StrikeNumbersText,
    .markOfGame = "Z",
    .lineOfOtherGame = &store::DrawFields::DrawNumbersText,
    .markOfOtherGame = "X",
    .refusesDrawsBeforeStrike = true,
    .overwritePrompt = "Numbers already exist for this Draw    OverWrite? Yes/No",
    .showEntry = &Veridraw7f::ShowStrikeEntry,
    .cells = &Veridraw7f::TxtStrikeNumbers,
};

Veridraw7f::Veridraw7f(Application& application) : Form(application, veridraw7fDesign()) {
  on("BtnEnterLottoDrawNumbers", Event::Click, [this] { BtnEnterLottoDrawNumbers_Click(); });
  on("BtnEnterStrikeNumbers", Event::Click, [this] { BtnEnterStrikeNumbers_Click(); });
  on("BtnCheckTickets", Event::Click, [this] { BtnCheckTickets_Click(); });
  on("BtnCancel", Event::Click, [this] { BtnCancel_Click(); });
  on("BtnRestart", Event::Click, [this] { BtnRestart_Click(); });
  on("CmdEnd", Event::Click, [this] { CmdEnd_Click(); });
  on("List1", Event::Click, [this] { List1_Click(); });
  on("TxtDrawnNumbers", Event::Change, [this] { TxtDrawnNumbers_Change(); });
  on("TxtStrikeNumbers", Event::Change, [this] { TxtStrikeNumbers_Change(); });
  on("BtnYes", Event::Click, [this] { BtnYes_Click(); });
  on("BtnYes2", Event::Click, [this] { BtnYes2_Click(); });
  on("BtnNo", Event::Click, [this] { BtnNo_Click(); });
  on("BtnNo2", Event::Click, [this] { BtnNo2_Click(); });
}

// ---------------------------------------------------------------- Load

void Veridraw7f::Form_Load() {
  for (ShowIndex = 1; ShowIndex <= kSampleCellsShown; ShowIndex = ShowIndex + 1) {
    LineA(ShowIndex).setVisible(true);
    LineA(ShowIndex).setBackColor(colors::kWhite);
  }
  store::ReadCurrentDraw(files(), *this);
  TxtDrawBox->setText(CurrentDrawText);
  ShowDraw();
  FileExists2();
  FileExists4();
}

// ---------------------------------------------------------------- the draw store

void Veridraw7f::DrawNumber() {
  CurrentDrawText = InputBox("Enter the Draw Number", kDrawNumberTitle, "", 3280, 2750);
}

void Veridraw7f::ListClear() {
  store::ClearList(*List1, store::kListedDraws);
}

void Veridraw7f::FileExists2() {
  store::ListNames(files(), *List1, "", store::kListedDraws, ProbeName);
}

void Veridraw7f::FileExists3() {
  DrawFileMissing = 0;
  store::FindName(files(), "", store::kListedDraws, DrawFileName, ProbeName, DrawFileMissing);
}

void Veridraw7f::FileExists4() {
  store::ListNames(files(), *LstLottoTicket, "Lotto # ", store::kListedTickets, ProbeName);
}

// ---------------------------------------------------------------- the enter buttons

void Veridraw7f::BtnEnterLottoDrawNumbers_Click() {
  StartEntry(kLottoStart);
}

void Veridraw7f::BtnEnterStrikeNumbers_Click() {
  StartEntry(kStrikeStart);
}

void Veridraw7f::StartEntry(const EntryStart& game) {
  if (Left(this->*game.lineOfGame, 1) == game.markOfGame) ClearDrawInHand();
  CurrentDrawText = "";
  BtnCheckTickets->setVisible(false);
  BtnEnterStrikeNumbers->setVisible(false);
  BtnEnterLottoDrawNumbers->setVisible(false);
  LblDraw->setVisible(true);
  TxtDrawBox->setVisible(true);
  if (!AskDrawNumber(game)) return;
  // With the other game's line in hand, this entry adds its line to that draw.
  if (Left(this->*game.lineOfOtherGame, 1) != game.markOfOtherGame && !DrawMayBeOverwritten(game))
    return;
  TxtDrawBox->setText(CurrentDrawText);
  (this->*game.showEntry)();
  const ControlArray& cells = this->*game.cells;
  cells(1).setLocked(false);
  cells(1).setText(kEmptyCell);
  cells(1).SetFocus();
}

// A line of this game in hand: the entry starts from nothing.
void Veridraw7f::ClearDrawInHand() {
  for (ShowIndex = 1; ShowIndex <= kStrikeCells; ShowIndex = ShowIndex + 1)
    TxtStrikeNumbers2(ShowIndex).setText("");
  for (ShowIndex = 1; ShowIndex <= kLottoCells; ShowIndex = ShowIndex + 1)
    TxtDrawnNumbers2(ShowIndex).setText("");
  TxtDrawBox->setText("");
  DrawNumbersText = "";
  StrikeNumbersText = "";
}

// Asks until the answer is a draw number that this game accepts; false when
// the user cancelled, with the screen back in Idle.
bool Veridraw7f::AskDrawNumber(const EntryStart& game) {
  for (;;) {
    DrawNumber();
    DrawFileName = CurrentDrawText;
    if (CurrentDrawText == "") {
      BackToIdle();
      return false;
    }
    if (game.refusesDrawsBeforeStrike && Val(CurrentDrawText) < store::kFirstStrikeDraw) {
      LastMessageResult = MsgBox(kBeforeStrike, msgbox::kExclamation, kDrawNumberTitle);
    } else if (store::IsAcceptedNumber(CurrentDrawText)) {
      return true;
    } else {
      LastMessageResult = MsgBox(kBadDrawNumber, msgbox::kExclamation, kDrawNumberTitle);
    }
  }
}

// The overwrite question, asked when the draw is found among the names 1 to
// 1500; false when the user said No, with the screen back in Idle.
bool Veridraw7f::DrawMayBeOverwritten(const EntryStart& game) {
  ListClear();
  FileExists2();
  FileExists3();
  if (DrawFileMissing != 0) return true;
  LastMessageResult = MsgBox(game.overwritePrompt, kYesNoWarning, kDrawAlertTitle);
  if (LastMessageResult != msgbox::kNo) return true;
  LastMessageResult = 0;
  BackToIdle();
  return false;
}

void Veridraw7f::BackToIdle() {
  ShowIdleButtons();
  BtnEnterLottoDrawNumbers->SetFocus();
}

void Veridraw7f::ShowIdleButtons() {
  BtnCheckTickets->setVisible(true);
  BtnEnterLottoDrawNumbers->setVisible(true);
  BtnEnterStrikeNumbers->setVisible(true);
}

void Veridraw7f::ShowLottoEntry() {
  LblDrawnOrder->setVisible(true);
  LblBonusNumber->setVisible(true);
  LblPwrBall->setVisible(true);
  SetVisible(TxtDrawnNumbers, 1, kLottoCells, true);
}

void Veridraw7f::ShowStrikeEntry() {
  LblDrawnOrder2->setVisible(true);
  SetVisible(TxtStrikeNumbers, 1, kStrikeCells, true);
}

// ---------------------------------------------------------------- the game choice

void Veridraw7f::BtnCheckTickets_Click() {
  BtnEnterLottoDrawNumbers->setVisible(false);
  BtnEnterStrikeNumbers->setVisible(false);
  BtnCheckTickets->setVisible(false);
  BtnCancel->setVisible(true);
  BtnPowerBall->setVisible(true);
  Btn2Strike->setVisible(true);
  Btn1Lotto->setVisible(true);
  BtnPowerBall->SetFocus();
}

// The box of the draw number stays empty until a draw is picked or the screen
// is shown again, although the current draw hasn't changed.
void Veridraw7f::BtnCancel_Click() {
  SetVisible(TxtDrawnNumbers, 1, kLottoCells, false);
  SetVisible(TxtStrikeNumbers, 1, kStrikeCells, false);
  TxtDrawBox->setText("");
  BtnYes->setVisible(false);
  BtnNo->setVisible(false);
  LblDrawnOrder->setVisible(false);
  LblDrawnOrder2->setVisible(false);
  LblBonusNumber->setVisible(false);
  LblPwrBall->setVisible(false);
  LblCorrectNumbers->setVisible(false);
  ShowIdleButtons();
  BtnCancel->setVisible(false);
  BtnPowerBall->setVisible(false);
  Btn2Strike->setVisible(false);
  Btn1Lotto->setVisible(false);
}

void Veridraw7f::BtnRestart_Click() {
  Show("Veridraw7a");
  Unload();
}

void Veridraw7f::CmdEnd_Click() {
  End();
}

// A draw picked in the list becomes the current draw of the whole program, and
// its lines are in hand. An entry that is running goes on.
void Veridraw7f::List1_Click() {
  store::SelectDraw(files(), *this, List1->text());
  TxtDrawBox->setText(CurrentDrawText);
  ShowDraw();
}

// ---------------------------------------------------------------- number entry

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
  while (CellIndex <= rules.scanBound && CellIndex != rules.scanStop) {
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
      if (first == second || current == first) RefuseNumber(rules, kDuplicateMessage, true);
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

// ---------------------------------------------------------------- Yes and No

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
    line += Left(cells(ClearIndex).text(), 2);
}

// Each assignment runs the Change handler of the cells, nested, while the
// later cells still hold their numbers. Its counter is its own for that reason.
void Veridraw7f::ClearCells(const ControlArray& cells, int last) {
  for (ClearIndex = 1; ClearIndex <= last; ClearIndex = ClearIndex + 1)
    cells(ClearIndex).setText(kEmptyCell);
}

// ---------------------------------------------------------------- the display

void Veridraw7f::ShowDraw() {
  ShowLottoLine();
  ShowStrikeLine();
}

// The PowerBall number is stored for every draw but shown only from draw 711.
void Veridraw7f::ShowLottoLine() {
  for (ShowIndex = 1; ShowIndex <= kLottoCells; ShowIndex = ShowIndex + 1)
    TxtDrawnNumbers2(ShowIndex).setText(Mid(DrawNumbersText, 2 * ShowIndex, 2));
  if (StrictNumber(CurrentDrawText) < store::kFirstPowerBallDraw)
    TxtDrawnNumbers2(kPowerBallCell).setText(kEmptyCell);
}

void Veridraw7f::ShowStrikeLine() {
  for (ShowIndex = 1; ShowIndex <= kStrikeCells; ShowIndex = ShowIndex + 1)
    TxtStrikeNumbers2(ShowIndex).setText(Mid(StrikeNumbersText, 2 * ShowIndex, 2));
}

void Veridraw7f::SetVisible(const ControlArray& controls, int first, int last, bool visible) {
  for (ShowIndex = first; ShowIndex <= last; ShowIndex = ShowIndex + 1)
    controls(ShowIndex).setVisible(visible);
}

}  // namespace veridraw
