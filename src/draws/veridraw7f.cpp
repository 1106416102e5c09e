#include "draws/veridraw7f.h"

#include "screen/strings.h"
#include "store/number_cell.h"
#include "store/probes.h"

namespace veridraw {

namespace {

constexpr const char* kDrawNumberTitle = "Draw Number";
constexpr const char* kBadDrawNumber = "You Must enter the Ticket Draw Number";
constexpr const char* kBeforeStrike = "Lotto Strike begins at Draw # 293";
constexpr const char* kDrawAlertTitle = "DRAW ALERT";
constexpr int kYesNoWarning = msgbox::kYesNo + msgbox::kExclamation;

constexpr int kSampleCellsShown = 24;

}  // namespace

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

Veridraw7f::Veridraw7f(Application& application)
    : Form(application, "Veridraw7f", designOnce<veridraw7fDesign>) {
  on("BtnEnterLottoDrawNumbers", Event::Click, [this] { BtnEnterLottoDrawNumbers_Click(); });
  on("BtnEnterStrikeNumbers", Event::Click, [this] { BtnEnterStrikeNumbers_Click(); });
  on("BtnCheckTickets", Event::Click, [this] { BtnCheckTickets_Click(); });
  on("BtnCancel", Event::Click, [this] { BtnCancel_Click(); });
  on("Btn1Lotto", Event::Click, [this] { Btn1Lotto_Click(); });
  on("Btn2Strike", Event::Click, [this] { Btn2Strike_Click(); });
  on("BtnPowerBall", Event::Click, [this] { BtnPowerBall_Click(); });
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

void Veridraw7f::Btn1Lotto_Click() {
  Show("Veridraw7b");
  Unload();
}

void Veridraw7f::Btn2Strike_Click() {
  Show("Veridraw7c");
  Unload();
}

void Veridraw7f::BtnPowerBall_Click() {
  Show("Veridraw7e");
  Unload();
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
