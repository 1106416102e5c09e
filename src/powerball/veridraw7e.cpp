// The PowerBall screen as it opens, its draw, and what its column adds to the
// flow of the ticket screens: Cancel hides it, a loaded ticket brings its
// PowerBall pairs back into it, and a save appends them to the fourth record.
#include "powerball/veridraw7e.h"

#include "powerball/powerball_game.h"
#include "screen/strings.h"
#include "store/draw_store.h"

namespace veridraw {

namespace {

constexpr const char* kBeforePowerBall = "PowerBall Starts at Draw Number 711";
constexpr int kDrawPairs = 8;
constexpr double kHintFontSize = 10;

}  // namespace

Veridraw7e::Veridraw7e(Application& application)
    : TicketScreen(application, "Veridraw7e", designOnce<veridraw7eDesign>, powerBallGame()),
      powerBallColumn_{PowerBallText, [this](int line) { return TxtPowerBall(line).text(); }} {
  on("BtnYes", Event::Click, [this] { BtnYes_Click(); });
  on("BtnNo", Event::Click, [this] { BtnNo_Click(); });
  on("TxtPowerBall", Event::Change, [this](int) { TxtPowerBall_Change(); });
  on("TxtPwrBallNumber", Event::Change, [this](int) { TxtPwrBallNumber_Change(); });
}

// Unlike the Lotto screen, the letters L to O go, and a draw before the first
// PowerBall draw or without numbers leaves the draw area blank and DrawNumbers
// as it was. The pairs of a draw with numbers are converted strictly: a pair
// that isn't wholly a number ends the program.
void Veridraw7e::Form_Load() {
  LineCount = 0;
  SavedMode = 0;
  for (int line = 1; line <= game_.mostLines; ++line) {
    TxtPowerBall(line).setLocked(true);
    TxtPwrBall(line).setLocked(true);
  }
  for (int cell = 1; cell <= game_.homeCells; ++cell) {
    LineA(cell).setVisible(true);
    LineA(cell).setBackColor(colors::kWhite);
  }
  for (int line = 11; line <= game_.mostLines; ++line)
    TextATxt(line).setVisible(false);
  for (int cell = 61; cell <= game_.gridCells(); ++cell)
    LineA(cell).setVisible(false);
  LockGrids();
  store::ReadCurrentDraw(files(), *this);
  ShowDrawOnLoad(store::kFirstPowerBallDraw, kBeforePowerBall, DrawNumbersText,
                 [this] { ShowDrawLine(StrictInteger); });
  ShowHomeChoices();
}

// A click in the list of draws makes that draw current for the whole program
// and shows it, here always with its number. The pairs go through Val, so the
// empty pieces of a draw without numbers give 0.
void Veridraw7e::List1_Click() {
  store::SelectDraw(files(), *this, List1->text());
  LblSpaceBar->setVisible(false);
  if (StrictNumber(CurrentDrawText) < store::kFirstPowerBallDraw) {
    ShowMessage(kBeforePowerBall, tickets::kOneMessageHeight, Bold::On);
  } else if (DrawNumbersText != "") {
    if (SavedMode == 1)
      ShowMessage(tickets::kSavedTicketsHint, tickets::kTwoMessagesHeight, Bold::Off);
  } else {
    ShowMessage(tickets::kNoNumbersMessage, tickets::kOneMessageHeight);
  }
  ShowDrawLine(tickets::LenientInteger);
}

void Veridraw7e::ShowDrawLine(Integer (*convert)(std::string_view pair)) {
  ShowDrawPairs(TxtDrawnNumbers2, DrawNumbersText, kDrawPairs, DrawNumbers, convert);
}

// The hint of the Space Bar in the size of this screen's messages. Set after
// the Lotto screen's steps rather than among them: no event lies between.
void Veridraw7e::BtnCheckNewTicket_Click() {
  TicketScreen::BtnCheckNewTicket_Click();
  LblSpaceBar->setFontSize(kHintFontSize);
}

// The PowerBall columns go with the ticket; their texts, colours and borders
// stay. The column of the prize grid comes back only with a loaded ticket.
// They go after the letters A to D come back rather than before: the letters
// take no focus, so nothing that can be seen differs.
void Veridraw7e::BtnCancel_Click() {
  TicketScreen::BtnCancel_Click();
  for (int line = 1; line <= game_.mostLines; ++line)
    TxtPowerBall(line).setVisible(false);
  for (int line = 1; line <= game_.mostLines; ++line)
    TxtPwrBall(line).setVisible(false);
}

// The PowerBall column of the prize grid is emptied with the rest, its colours
// left. The PowerBall prize rows are not hidden here, nor anywhere else.
void Veridraw7e::ClearResults() {
  TicketScreen::ClearResults();
  for (int line = 1; line <= game_.mostLines; ++line)
    TxtPwrBall(line).setText(" ");
}

// PowerBallText is appended to at each save and never emptied.
store::PowerBallColumn* Veridraw7e::PowerBallRecord() {
  return &powerBallColumn_;
}

// A loaded ticket's PowerBall pairs, one a line, into the column, and the
// matching of the last ticket wiped from both columns.
void Veridraw7e::LoadColumn() {
  PutLoadedPowerBalls();
  for (int line = 1; line <= game_.mostLines; ++line) {
    TxtPwrBall(line).setBackColor(colors::kPaleYellow);
    TxtPowerBall(line).setBackColor(colors::kPaleYellow);
    TxtPowerBall(line).setBorderStyle(0);
    TxtPowerBall(line).setVisible(false);
  }
}

// Only the first LineCount pairs of the record are read. Each assignment runs
// the column's Change, which leaves a pair of two characters alone unless its
// value is out of range.
void Veridraw7e::PutLoadedPowerBalls() {
  const int lines = LineCount;
  for (int line = 1; line <= lines; ++line)
    TxtPowerBall(line).setText(store::TicketPair(PowerBallText, line));
}

void Veridraw7e::PaintColumn() {
  ShowPowerBallCells(colors::kPaleYellow);
  for (int line = 1; line <= LineCount; ++line) {
    TxtPwrBall(line).setBackColor(colors::kPaleYellow);
    TxtPwrBall(line).setBorderStyle(0);
    TxtPwrBall(line).setVisible(true);
  }
}

// A saved ticket always takes the way of a number a line.
void Veridraw7e::CheckLoadedTicket() {
  SameForAllLines = 0;
  NumberSortRoutine();
  PutLoadedPowerBalls();
  ShowPowerBallCells(colors::kGreen);
}

// The column of the ticket's lines in white figures, as a display.
void Veridraw7e::ShowPowerBallCells(std::int32_t back) {
  for (int line = 1; line <= LineCount; ++line) {
    TxtPowerBall(line).setForeColor(colors::kWhite);
    TxtPowerBall(line).setBackColor(back);
    TxtPowerBall(line).setBorderStyle(0);
    TxtPowerBall(line).setVisible(true);
  }
}

}  // namespace veridraw
