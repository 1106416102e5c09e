// The flow of a ticket screen: the home state, the two roads of a new and a
// saved ticket, Cancel, and the way out. The state of the screen is what is
// visible; each event shows and hides a fixed list of controls.
#include "tickets/ticket_screen.h"

#include <utility>

#include "screen/dialogs.h"
#include "screen/strings.h"

namespace veridraw::tickets {

namespace {

constexpr int kLowListLeft = 3300;
constexpr int kLowListTop = 7200;
constexpr int kLowLabelTop = 6720;
constexpr int kHighListLeft = 4980;
constexpr int kHighListTop = 4560;
constexpr int kHighLabelTop = 5850;
constexpr int kListHeight = 1230;
constexpr double kNoTicketsFontSize = 10;

// The captions of the prompt of a game's lines, by the line's number; the
// prompt of line A is the design's and is never made.
std::vector<std::string> LinePrompts(const TicketGame& game) {
  std::vector<std::string> prompts(static_cast<std::size_t>(game.mostLines) + 1);
  for (int line = 2; line <= game.mostLines; ++line)
    prompts[static_cast<std::size_t>(line)] = "Line " + std::string(1, LineLetter(line)) +
                                              " -- Enter the " + CStr(game.cellsPerLine) +
                                              " Two Digit numbers";
  return prompts;
}

}  // namespace

Integer LenientInteger(std::string_view pair) {
  return Integer::fromDouble(Val(pair));
}

char LineLetter(int line) {
  return static_cast<char>(line <= 8 ? 'A' + line - 1 : 'A' + line);
}

TicketScreen::TicketScreen(Application& application, std::string name, DesignSource design,
                           TicketGame game)
    : Form(application, std::move(name), design),
      game_(std::move(game)),
      TicketCells(0, game_.lastTicketCell),
      linePrompts_(LinePrompts(game_)) {
  on("BtnCheckNewTicket", Event::Click, [this] { BtnCheckNewTicket_Click(); });
  on("BtnCheckSavedTickets", Event::Click, [this] { BtnCheckSavedTickets_Click(); });
  on("BtnCancel", Event::Click, [this] { BtnCancel_Click(); });
  on("BtnRestart", Event::Click, [this] { BtnRestart_Click(); });
  on("CmdEnd", Event::Click, [this] { CmdEnd_Click(); });
  for (const LineButton& button : game_.lineButtons)
    on(button.name, Event::Click, [this, &button] { LineButton_Click(button); });
  on(game_.cellArray, Event::Change, [this](int) { LineA_Change(); });
  on("CmdShowResults", Event::Click, [this] { CmdShowResults_Click(); });
  on("BtnSaveTicket", Event::Click, [this] { BtnSaveTicket_Click(); });
  on("List1", Event::Click, [this] { List1_Click(); });
  on("LstLottoTicket", Event::Click, [this] { LstLottoTicket_Click(); });
  on("BtnDeleteTicket", Event::Click, [this] { BtnDeleteTicket_Click(); });
}

// A missing element is fatal 340 here, as a read of its text would be, before
// anything is kept.
const TicketScreen::CellReading& TicketScreen::ReadCell(int cell) const {
  const Control& control = LineA(cell);
  if (static_cast<std::size_t>(cell) >= readings_.size())
    readings_.resize(static_cast<std::size_t>(cell) + 1);
  CellReading& reading = readings_[static_cast<std::size_t>(cell)];
  const std::string& text = control.text();
  reading.control = &control;
  reading.generation = generation();
  reading.textRevision = control.textRevision();
  reading.length = Len(text);
  reading.empty = text == kEmptyCell;
  reading.stepBack = text == kStepBackCell;
  reading.value = Val(text);
  reading.outOfRange = IsOutOfRange(text, reading.value);
  return reading;
}

double TicketScreen::CellValue(int cell) const {
  return Reading(cell).value;
}

Integer TicketScreen::CellInteger(int cell) const {
  return Integer::fromDouble(CellValue(cell));
}

Control& TicketScreen::PrizeCountBox(int row) {
  return control(game_.prizeCountBox + CStr(row));
}

Control& TicketScreen::PrizeLabel(int row) {
  return control(game_.prizeLabel + CStr(row));
}

void TicketScreen::ShowMessage(const std::string& caption, int height, Bold bold) {
  if (bold != Bold::Keep) LblSpaceBar->setFontBold(bold == Bold::On);
  LblSpaceBar->setCaption(caption);
  if (height != kKeepHeight) LblSpaceBar->setHeight(height);
  LblSpaceBar->setVisible(true);
}

void TicketScreen::ShowDrawOnLoad(int firstDraw, const char* beforeFirstDraw,
                                  const std::string& numbersText,
                                  const std::function<void()>& takeNumbers) {
  LblSpaceBar->setVisible(false);
  if (StrictNumber(CurrentDrawText) < firstDraw)
    ShowMessage(beforeFirstDraw, kKeepHeight, Bold::On);
  else if (numbersText == "")
    ShowMessage(kNoNumbersMessage, kKeepHeight);
  else
    takeNumbers();
}

void TicketScreen::ShowDrawPairs(const ControlArray& boxes, const std::string& numbersText,
                                 int pairs, CheckedArray<Integer>& numbers,
                                 Integer (*convert)(std::string_view)) {
  TxtDrawBox->setText(CurrentDrawText);
  for (int pair = 1; pair <= pairs; ++pair) {
    boxes(pair).setText(Mid(numbersText, 2 * pair, 2));
    numbers(pair) = convert(boxes(pair).text());
  }
}

void TicketScreen::ShowLetters(int first, int last, bool visible) {
  for (int line = first; line <= last; ++line) {
    TextATxt(line).setVisible(visible);
    TextBTxt(line).setVisible(visible);
  }
}

void TicketScreen::ShowLineButtons(bool visible) {
  for (const LineButton& button : game_.lineButtons)
    control(button.name).setVisible(visible);
}

void TicketScreen::LockGrids() {
  for (int cell = 1; cell <= game_.gridCells(); ++cell) {
    LineA(cell).setLocked(true);
    IntResult(cell).setLocked(true);
  }
}

// The end of every Form_Load: the two roads, the lists, and no ticket yet.
void TicketScreen::ShowHomeChoices() {
  BtnCheckNewTicket->setVisible(true);
  BtnCheckSavedTickets->setVisible(true);
  FileExists2();
  ListVisible();
  FileExists();
  FileExists1();
  LineA(1).setTabStop(false);
  List1->setTopIndex(0);
}

// Brings the list of draws to its low place, under the draw area.
void TicketScreen::ListVisible() {
  LblDrawsAvailable->setTop(kLowLabelTop);
  LblDrawsAvailable->setLeft(kLowListLeft);
  LblDrawsAvailable->setVisible(true);
  List1->setLeft(kLowListLeft);
  List1->setTop(kLowListTop);
  List1->setHeight(kListHeight);
  List1->setVisible(true);
}

void TicketScreen::BtnCheckNewTicket_Click() {
  ListVisible();
  LblSavedTickets2->setVisible(true);
  List2->setVisible(true);
  BtnCheckNewTicket->setVisible(false);
  BtnCheckSavedTickets->setVisible(false);
  BtnCancel->setVisible(true);
  TxtNoofLines->setVisible(true);
  ShowLineButtons(true);
  ShowMessage(kSpaceBarHint, kOneMessageHeight, Bold::Off);
}

void TicketScreen::BtnCheckSavedTickets_Click() {
  LblSavedTickets2->setVisible(false);
  List2->setVisible(false);
  LblDrawsAvailable->setTop(kHighLabelTop);
  LblDrawsAvailable->setLeft(kHighListLeft);
  LblDrawsAvailable->setVisible(true);
  List1->setTop(kHighListTop);
  List1->setLeft(kHighListLeft);
  List1->setHeight(kListHeight);
  List1->setVisible(true);
  LstLottoTicket->setVisible(true);
  BtnCheckNewTicket->setVisible(false);
  BtnCheckSavedTickets->setVisible(false);
  LblSavedTickets->setVisible(true);
  LbLchangeDraw->setVisible(true);
  LbLchangeTicket->setVisible(true);
  BtnDeleteTicket->setVisible(true);
  BtnCancel->setVisible(true);
  if (SavedTicketsExist != 0) {
    ShowMessage(kSavedTicketsHint, kTwoMessagesHeight,
                game_.savedHintClearsBold ? Bold::Off : Bold::Keep);
  } else {
    LblSpaceBar->setFontSize(kNoTicketsFontSize);
    ShowMessage(kNoSavedTickets, kOneMessageHeight, Bold::On);
  }
  SavedMode = 1;
  List1->setTopIndex(0);
  LstLottoTicket->setTopIndex(0);
}

// Deliberately not the state of Form_Load: the lists stay hidden until the next
// button, only the letters of the home grid stand, and those of the prize grid
// come back with them. Cells past the home grid keep their text while hidden,
// and LineCount and SavedMode are left as they are.
void TicketScreen::BtnCancel_Click() {
  BtnCancel->setVisible(false);
  BtnCheckNewTicket->setVisible(true);
  BtnCheckSavedTickets->setVisible(true);
  ShowLineButtons(false);
  for (const ControlRef* hidden :
       {&LblSavedTickets2, &List2, &LblEnterLine, &LblSpaceBar, &TxtNoofLines, &CmdShowResults,
        &LblDrawsAvailable, &LblSavedTickets, &LbLchangeDraw, &LbLchangeTicket, &BtnDeleteTicket,
        &List1, &LstLottoTicket, &LblSaved})
    (*hidden)->setVisible(false);
  Image3->setVisible(true);
  Image4->setVisible(true);
  ClearResults();
  for (int cell = 1; cell <= game_.gridCells(); ++cell)
    LineA(cell).setVisible(false);
  for (int cell = 1; cell <= game_.homeCells; ++cell) {
    LineA(cell).setBackColor(colors::kWhite);
    LineA(cell).setText(" ");
    LineA(cell).setBorderStyle(1);
  }
  for (int cell = 1; cell <= game_.homeCells; ++cell)
    LineA(cell).setVisible(true);
  ShowLetters(1, game_.homeCells / game_.cellsPerLine, true);
}

// Blanks the whole outcome: the prize grid, the letters, the pictures of a win
// and the prize rows.
void TicketScreen::ClearResults() {
  for (int cell = 1; cell <= game_.gridCells(); ++cell) {
    IntResult(cell).setText(" ");
    IntResult(cell).setBackColor(colors::kPaleYellow);
    IntResult(cell).setForeColor(colors::kBlack);
  }
  ShowLetters(1, game_.mostLines, false);
  ImgCoins->setVisible(false);
  ImgMoney->setVisible(false);
  Image1->setVisible(true);
  Image2->setVisible(true);
  for (int row = 1; row <= game_.prizeRows; ++row)
    PrizeCountBox(row).setVisible(false);
  for (int row = 1; row <= game_.prizeRows; ++row)
    PrizeLabel(row).setVisible(false);
  LblYouveWon->setVisible(false);
  LblEnterLine->setVisible(false);
}

// The ticket stands again on the left in pale yellow without borders, with
// its letters, and the pictures of a win go.
void TicketScreen::ShowTicketWithoutPrizes(int cells) {
  PaintTicketAsDisplay(cells, true);
  for (int line = 1; line <= LineCount; ++line)
    TextATxt(line).setVisible(true);
  LblYouveWon->setCaption("There are no Prizes on this Ticket");
  for (const ControlRef* hidden : {&ImgCoins, &ImgMoney, &Image1, &Image2, &Image3, &Image4})
    (*hidden)->setVisible(false);
}

// The first steps of showing the results: the buttons of the ticket go, and so
// do its cells with the three after them, the cover box and the letters.
void TicketScreen::HideTicketForResults() {
  const int cells = LineCount * game_.cellsPerLine;
  HideTicketButtons();
  LineA(game_.coverCell()).setVisible(false);
  for (int cell = 1; cell <= cells + 3; ++cell)
    LineA(cell).setVisible(false);
  for (int line = 1; line <= game_.mostLines; ++line)
    TextATxt(line).setVisible(false);
}

// In this order: hiding CmdShowResults, which has the focus, moves it on.
void TicketScreen::HideTicketButtons() {
  for (const ControlRef* hidden :
       {&LblSaved, &BtnCheckNewTicket, &BtnCancel, &BtnSaveTicket, &CmdShowResults})
    (*hidden)->setVisible(false);
}

void TicketScreen::ShowPicturesOfAWin(bool lowerPictures) {
  ImgCoins->setVisible(true);
  ImgMoney->setVisible(true);
  Image1->setVisible(false);
  Image2->setVisible(false);
  if (lowerPictures) {
    Image3->setVisible(true);
    Image4->setVisible(true);
  }
  LblYouveWon->setCaption("CONGRATULATIONS You've WON !!!");
}

void TicketScreen::BtnRestart_Click() {
  Show("Veridraw7f");
  Unload();
}

// Ends the program at once, with no question: nothing is saved.
void TicketScreen::CmdEnd_Click() {
  End();
}

}  // namespace veridraw::tickets
