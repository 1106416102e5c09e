// The Strike screen's opening, its draw and the two roads from its home state.
// Everything else of the flow is the shared one of the ticket screens.
#include "strike/veridraw7c.h"

#include "screen/strings.h"
#include "strike/strike_game.h"

namespace veridraw {

namespace {

constexpr const char* kBeforeStrike = "Strike Starts at Draw Number 293";
constexpr int kStrikeNumbers = 4;
// The spare cells that the walk reaches past a ticket of twelve lines.
constexpr int kFirstSpare = 49;
constexpr int kLastSpare = 51;
constexpr double kHintFontSize = 10;

}  // namespace

Veridraw7c::Veridraw7c(Application& application)
    : TicketScreen(application, "Veridraw7c", designOnce<veridraw7cDesign>, strikeGame()) {}

// Shows three empty lines, reads the current draw and offers the two roads.
// LineCount is left as it was. Below draw 293, or on a draw without Strike
// numbers, the draw box stays blank and DrawNumbers keeps the numbers of the
// last draw that this screen took, which a new ticket is then checked against.
void Veridraw7c::Form_Load() {
  SavedMode = 0;
  for (int cell = 1; cell <= game_.homeCells; ++cell) {
    LineA(cell).setVisible(true);
    LineA(cell).setBackColor(colors::kWhite);
    LineA(cell).setBorderStyle(1);
  }
  const int homeLines = game_.homeCells / game_.cellsPerLine;
  for (int line = homeLines + 1; line <= game_.mostLines; ++line)
    TextATxt(line).setVisible(false);
  for (int cell = game_.homeCells + 1; cell <= game_.gridCells(); ++cell)
    LineA(cell).setVisible(false);
  LockGrids();
  for (int spare = kFirstSpare; spare <= kLastSpare; ++spare)
    LineA(spare).setLocked(true);
  store::ReadCurrentDraw(files(), *this);
  ShowDrawOnLoad(store::kFirstStrikeDraw, kBeforeStrike, StrikeNumbersText,
                 [this] { TakeDrawnNumbers(StrictInteger); });
  ShowHomeChoices();
}

// A click in the list of draws makes that draw current for the whole program
// and takes its numbers, whatever the message says: a draw without Strike
// numbers gives empty boxes and DrawNumbers of 0, which no line can hit. It
// checks nothing again.
void Veridraw7c::List1_Click() {
  store::SelectDraw(files(), *this, List1->text());
  LblSpaceBar->setFontBold(false);
  LblSpaceBar->setVisible(false);
  if (StrictNumber(CurrentDrawText) < store::kFirstStrikeDraw)
    ShowMessage(kBeforeStrike, tickets::kOneMessageHeight, Bold::On);
  else if (StrikeNumbersText == "")
    ShowMessage(tickets::kNoNumbersMessage, tickets::kOneMessageHeight, Bold::On);
  else if (SavedMode != 0)
    ShowMessage(tickets::kSavedTicketsHint, tickets::kTwoMessagesHeight, Bold::Off);
  TakeDrawnNumbers(tickets::LenientInteger);
}

// The draw number, and the four pairs of the Strike line behind its "Z" in the
// order in which they were drawn. They are never sorted.
void Veridraw7c::TakeDrawnNumbers(Integer (*convert)(std::string_view pair)) {
  ShowDrawPairs(TxtStrikeNumbers2, StrikeNumbersText, kStrikeNumbers, DrawNumbers, convert);
}

// Unlike the Lotto screen, the road of a new ticket fills the list of saved
// tickets anew and sets the size of the hint.
void Veridraw7c::BtnCheckNewTicket_Click() {
  TicketScreen::BtnCheckNewTicket_Click();
  ListClear1();
  FileExists1();
  LblSpaceBar->setFontSize(kHintFontSize);
}

// The road of saved tickets hides the save button as well.
void Veridraw7c::BtnCheckSavedTickets_Click() {
  TicketScreen::BtnCheckSavedTickets_Click();
  BtnSaveTicket->setVisible(false);
}

}  // namespace veridraw
