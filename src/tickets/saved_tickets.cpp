// Saved tickets: keeping a ticket, finding it again in a list, comparing it
// with the draw on display, and throwing it away. The lists are made by
// probing the names 1, 2, 3 ... one after the other.
#include "screen/dialogs.h"
#include "screen/strings.h"
#include "store/probes.h"
#include "tickets/ticket_screen.h"

namespace veridraw::tickets {

namespace {

constexpr int kInputBoxLeft = 3280;
constexpr int kInputBoxTop = 2750;
constexpr int kTicketListClears = 100;

}  // namespace

void TicketScreen::TicketNumber() {
  TicketNumberText =
      InputBox("Enter the Ticket Number", "Ticket Number", "", kInputBoxLeft, kInputBoxTop);
}

// The Clear of a list box is called as many times as the list could hold
// names; the effect is that of one call.
void TicketScreen::ListClear() {
  store::ClearList(*LstLottoTicket, kTicketListClears);
}

void TicketScreen::ListClear1() {
  store::ClearList(*List2, kTicketListClears);
}

void TicketScreen::ListClear2() {
  store::ClearList(*List1, store::kListedDraws);
}

// The draws of the game that are on disk, in ascending order; a draw above
// 1500 is in no list.
void TicketScreen::FileExists() {
  store::ListNames(files(), *List1, "", game_.firstListedDraw, store::kListedDraws, ProbeName);
}

void TicketScreen::FileExists1() {
  store::ListNames(files(), *List2, game_.ticketPrefix, store::kListedTickets, ProbeName);
}

// Fills the list of tickets to click. Finding one sets SavedTicketsExist;
// nothing here clears it.
void TicketScreen::FileExists2() {
  if (store::ListNames(files(), *LstLottoTicket, game_.ticketPrefix, store::kListedTickets,
                       ProbeName) > 0)
    SavedTicketsExist = 1;
}

// Searches for the ticket in TicketFileName. SavedTicketsExist ends at 0 when
// it is found, and at 1 when any number on the way was free.
void TicketScreen::FileExists3() {
  store::FindName(files(), game_.ticketPrefix, store::kListedTickets, TicketFileName, ProbeName,
                  SavedTicketsExist);
}

// The number is tested for its range only: "007" or "7x" pass and name files
// that no list finds. A number in use is overwritten with no question.
void TicketScreen::BtnSaveTicket_Click() {
  for (;;) {
    TicketNumber();
    if (TicketNumberText == "") return;
    if (store::IsAcceptedNumber(TicketNumberText)) break;
    LastMessageResult =
        MsgBox("You Must enter the Ticket Number", msgbox::kOkOnly, "Ticket Number");
  }
  store::SaveTicket(
      files(), *this, game_.ticketPrefix, TicketNumberText, LineCount, game_.cellsPerLine,
      [this](int cell) { return LineA(cell).text(); }, PowerBallRecord());
  ListClear1();
  FileExists1();
  LblSaved->setCaption("Ticket " + TicketFileName + " Has been Saved");
  LblSaved->setVisible(true);
  for (const ControlRef* hidden :
       {&BtnSaveTicket, &LblDrawsAvailable, &LblSavedTickets, &LbLchangeDraw, &LbLchangeTicket,
        &BtnDeleteTicket, &List1, &LstLottoTicket})
    (*hidden)->setVisible(false);
}

// Loads the ticket and compares it with the draw on display at this moment. A
// loaded cell holds two characters and no blank, so the walk that each of its
// assignments starts finds nothing complete and nothing wrong.
void TicketScreen::LstLottoTicket_Click() {
  store::PowerBallColumn* powerBall = PowerBallRecord();
  store::LoadTicket(files(), *this, LstLottoTicket->text(), LineCount,
                    powerBall == nullptr ? nullptr : &powerBall->PowerBallText);
  const int cells = LineCount * game_.cellsPerLine;
  for (int cell = cells + 1; cell <= game_.gridCells(); ++cell)
    LineA(cell).setVisible(false);
  for (int cell = 1; cell <= cells; ++cell)
    LineA(cell).setText(store::TicketPair(TicketLineText, cell));
  LoadColumn();
  FreezeDraw();
  PaintTicketAsDisplay(cells, true);
  PaintColumn();
  for (int cell = 1; cell <= cells; ++cell)
    TicketCells(cell) = CellInteger(cell);
  ClearResults();
  CheckLoadedTicket();
  ShowLetters(1, LineCount, true);
  Image3->setVisible(true);
  Image4->setVisible(true);
  LblSaved->setVisible(false);
  BtnCheckNewTicket->setVisible(false);
  CmdShowResults->setVisible(true);
  LineA(1).setTabStop(false);
  List1->setTopIndex(0);
}

// Unlike a save, the number is not tested for its range: a name that the
// probes of 1 to 100 don't find "does not exist".
void TicketScreen::BtnDeleteTicket_Click() {
  CmdShowResults->setVisible(false);
  BtnCheckNewTicket->setVisible(false);
  LblSaved->setVisible(false);
  TicketNumberText = InputBox("Enter the Ticket Number to delete", "Delete Ticket", "",
                              kInputBoxLeft, kInputBoxTop);
  if (TicketNumberText == "") return;
  TicketFileName = game_.ticketPrefix + TicketNumberText;
  ListClear();
  FileExists2();
  FileExists3();
  if (SavedTicketsExist == 1) {
    LblSaved->setCaption(TicketFileName + " does not exist");
    LblSaved->setVisible(true);
    return;
  }
  LastMessageResult = MsgBox("Are you sure you want to delete Ticket " + TicketFileName,
                             msgbox::kYesNo, "Delete Ticket");
  if (LastMessageResult == msgbox::kNo) {
    LblSaved->setCaption("Ticket Deletion Cancelled");
    LblSaved->setVisible(true);
  }
  if (LastMessageResult == msgbox::kYes) {
    store::DeleteTicket(files(), TicketFileName);
    LblSaved->setCaption(TicketFileName + " has been Deleted");
    LblSaved->setVisible(true);
  }
  ListClear();
  FileExists2();
}

}  // namespace veridraw::tickets
