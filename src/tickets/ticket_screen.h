// The ground of the three ticket screens: the flow of their states, the entry
// of a ticket digit by digit, and the saving, loading and deleting of tickets.
// The Lotto screen is the model of the three, so the procedures bear its names
// (`LineA_Change`, `OwnNumRoutine`, `LstLottoTicket_Click`); what a game does
// otherwise is read from its TicketGame, and what it does in its own way is a
// virtual procedure that its screen overrides. The check itself, the display
// of a draw and the summary of prizes belong to each screen.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "screen/application.h"
#include "screen/checked_array.h"
#include "screen/form.h"
#include "screen/integer.h"
#include "store/draw_store.h"
#include "store/number_cell.h"
#include "store/ticket_store.h"
#include "tickets/ticket_game.h"

namespace veridraw::tickets {

inline constexpr const char* kSpaceBarHint = "To correct errors  backtrack with the Space Bar";
inline constexpr const char* kSavedTicketsHint =
    "To check saved tickets  Click on the Draw Number and then the Ticket Number";
inline constexpr const char* kNoNumbersMessage = "No numbers have been entered for this draw";
inline constexpr const char* kNoSavedTickets = "There are no Saved Tickets";
// Heights of LblSpaceBar for a message of one line and of two.
inline constexpr int kOneMessageHeight = 615;
inline constexpr int kTwoMessagesHeight = 880;
// The Lotto rule, which the PowerBall check shares: six main numbers, the
// bonus as the seventh number of a draw, five divisions, and the rows of the
// summary 300 apart from 1800 down.
inline constexpr int kMainNumbers = 6;
inline constexpr int kBonus = 7;
inline constexpr int kDivisions = 5;
inline constexpr int kFirstRowTop = 1800;
inline constexpr int kRowStep = 300;

// A pair of a draw line as a number by the Val rule, as a click in the list of
// draws takes it: an empty or odd pair gives 0 rather than an error.
Integer LenientInteger(std::string_view pair);

class TicketScreen : public Form, public store::DrawFields, public store::TicketFields {
 public:
  TicketScreen(Application& application, std::string name, DesignSource design, TicketGame game);

 protected:
  // The flow of the states.
  // Every cell of the ticket's grid and of the prize grid locked, in pairs.
  void LockGrids();
  void ShowHomeChoices();
  // Puts the list of draws, List1, and its label in their low place and shows
  // them.
  void ListVisible();
  virtual void BtnCheckNewTicket_Click();
  virtual void BtnCheckSavedTickets_Click();
  virtual void BtnCancel_Click();
  void BtnRestart_Click();
  void CmdEnd_Click();
  // Blanks the outcome of a check: the prize grid, the letters, the pictures
  // of a win and the prize rows.
  virtual void ClearResults();
  // The outcome of a ticket that won nothing: cells 1 to `cells` come back.
  void ShowTicketWithoutPrizes(int cells);
  void HideTicketForResults();
  // The buttons of an entered ticket go before its results are shown.
  void HideTicketButtons();
  // The pictures of a win replace those of the draw, Image3 and Image4 with
  // them when `lowerPictures`, and LblYouveWon takes its caption of a win.
  void ShowPicturesOfAWin(bool lowerPictures);

  // LblSpaceBar is the label of the screen's messages. ShowMessage sets its
  // bold as asked, then its caption, then its height (unless kKeepHeight),
  // and shows it. These are label properties, so no order among them can be
  // seen; the callers keep the order of everything else.
  enum class Bold { Keep, Off, On };
  static constexpr int kKeepHeight = 0;
  void ShowMessage(const std::string& caption, int height, Bold bold = Bold::Keep);
  // The message that the draw read at Form_Load calls for, or its numbers:
  // before the game's first draw `beforeFirstDraw` in bold, for a draw without
  // the game's numbers (`numbersText` empty) the message that it has none,
  // and otherwise `takeNumbers` takes them. CurrentDrawText is converted
  // strictly, so a draw number that isn't one ends the program here.
  void ShowDrawOnLoad(int firstDraw, const char* beforeFirstDraw, const std::string& numbersText,
                      const std::function<void()>& takeNumbers);
  // The draw number into TxtDrawBox, then `pairs` pairs of `numbersText` from
  // its second character into `boxes`, each box's text read back and
  // converted into `numbers` before the next box is written.
  void ShowDrawPairs(const ControlArray& boxes, const std::string& numbersText, int pairs,
                     CheckedArray<Integer>& numbers, Integer (*convert)(std::string_view));

  // The entry of a ticket.
  void LineButton_Click(const LineButton& button);
  // Prepares the grid for a ticket of LineCount lines: empty white cells, the
  // letters of its lines, the prompt and the hint, the focus in cell 1.
  virtual void OwnNumRoutine();
  void LineA_Change();
  // At the last cell of a line, moves the prompt to the next line and starts
  // the order test there.
  void EntBox();
  virtual void EndOfEntry();
  void TakeTicketCells();
  // Cells 1 to `cells` in pale yellow without borders, as a display; shown as
  // well, cell by cell, when `show`.
  void PaintTicketAsDisplay(int cells, bool show);
  // The check of a ticket just entered: the comparison, then cells 1 to
  // `cells` of the prize grid locked.
  void CheckEnteredTicket(int cells);
  // A checked ticket may be saved: the button of a new ticket goes, the hint
  // of saved tickets stands, the save button comes.
  void OfferTicketSave();
  // CmdShowResults shows and takes the focus.
  void FocusShowResults();

  // Saved tickets.
  // Asks for the number of the ticket to save, into TicketNumberText.
  void TicketNumber();
  // Empties the list of tickets to click, LstLottoTicket.
  void ListClear();
  // Empties the list of saved tickets beside a new ticket, List2.
  void ListClear1();
  // Empties the list of draws, List1, 1500 times. A sub of every ticket
  // screen that no event of theirs calls.
  void ListClear2();
  // Fills List1 with the game's draws on disk.
  void FileExists();
  // Fills List2 with the game's saved tickets.
  void FileExists1();
  // Fills LstLottoTicket with the game's saved tickets; finding one sets
  // SavedTicketsExist.
  void FileExists2();
  // Probes the game's saved tickets for TicketFileName: SavedTicketsExist
  // ends at 0 when it is found, otherwise at 1 when any number on the way was
  // free.
  void FileExists3();
  virtual void BtnSaveTicket_Click();
  virtual void LstLottoTicket_Click();
  virtual void BtnDeleteTicket_Click();

  // What each game does in its own way.
  virtual void List1_Click() = 0;
  virtual void CmdShowResults_Click() = 0;
  // Takes the numbers of the draw on display for the check that follows.
  virtual void FreezeDraw() = 0;
  // Compares the ticket with the frozen draw and paints the prize grid and
  // counts, whatever its name says: nothing is sorted.
  virtual void NumberSortRoutine() = 0;
  // The PowerBall screen's fourth record of a ticket file; none elsewhere.
  virtual store::PowerBallColumn* PowerBallRecord() { return nullptr; }
  // A column of the screen's own beside the cells, on the way of a loaded
  // ticket: when the cells have their pairs, when they have been painted, and
  // the check itself.
  virtual void LoadColumn() {}
  virtual void PaintColumn() {}
  virtual void CheckLoadedTicket() { NumberSortRoutine(); }
  // Whether the complete cell CurrentCell breaks the rule of its line against
  // the cells OrderFirst and OrderSecond, given the values of the three: on
  // the Lotto screen a line ascends.
  virtual bool OutOfOrder(double first, double second, double current) const;

  // The complete cell CurrentCell of `cells` is locked and the cursor moves on
  // to the next one, which is opened and shown; `prompt` moves the prompt
  // while it is hidden. Nothing here raises an event before the prompt, so
  // CurrentCell names the same two cells throughout, and each is looked up
  // once.
  template <class Prompt>
  void AdvanceCell(const ControlArray& cells, Prompt&& prompt) {
    Control& next = cells(CurrentCell + 1);
    next.setLocked(false);
    next.setVisible(true);
    next.SetFocus();
    cells(CurrentCell).setLocked(true);
    LblEnterLine->setVisible(false);
    prompt();
    LblEnterLine->setVisible(true);
  }
  // A refused number: the cell red while the warning stands, then in the
  // colour `back`, with the focus, and empty, which runs its Change again.
  void RefuseCell(Control& cell, const std::string& message, std::int32_t back,
                  bool showPrompt = false);
  // The Lotto match of the line whose six cells start at `cell`, which it
  // leaves at the next line: a ticket number equal to a main number shows in
  // the prize grid, one equal to the bonus shows there in white on blue. The
  // bonus test stands inside the loop over the main numbers, so it is made six
  // times a cell with one result.
  void MatchLottoLine(Integer& cell, const CheckedArray<Integer>& CheckNumbers, Integer bonus,
                      Integer& MatchCount, Integer& BonusMatched);

  // What the walk reads of a cell's text: its length, whether it is empty or
  // the space bar's step back, whether its number is out of range, and its
  // value by the Val rule. Each is a function of the text alone.
  struct CellReading {
    const Control* control = nullptr;
    std::uint64_t textRevision = 0;  // the text revision of the text that was read
    int generation = 0;              // no Load has generation 0, so a new reading is stale
    int length = 0;
    bool empty = false;
    bool stepBack = false;
    bool outOfRange = false;
    double value = 0;
  };
  // The reading of cell `cell` of LineA, taken from its text when the cell's
  // text revision or the form's generation has moved since it was last taken,
  // and kept otherwise. Every change of a text moves its control's text
  // revision, so a reading always answers for the text as it stands; locking,
  // showing or painting a cell leaves its reading alone.
  const CellReading& Reading(int cell) const {
    if (cell >= 0 && static_cast<std::size_t>(cell) < readings_.size()) {
      const CellReading& reading = readings_[static_cast<std::size_t>(cell)];
      // The control of a reading of this generation is the cell's control of
      // this Load, so it is safe to ask for its text revision.
      if (reading.generation == generation() && loaded() &&
          reading.control->textRevision() == reading.textRevision)
        return reading;
    }
    return ReadCell(cell);
  }
  // The value of a cell's text by the Val rule.
  double CellValue(int cell) const;
  Integer CellInteger(int cell) const;
  Control& PrizeCountBox(int row);
  Control& PrizeLabel(int row);
  void ShowLetters(int first, int last, bool visible);

  const TicketGame game_;

  Integer LineCount;
  Integer SavedMode;
  Integer SavedTicketsExist;
  Integer CurrentCell;
  Integer LineStartCell;
  Integer OrderFirst;
  Integer OrderSecond;
  Integer LastMessageResult;
  CheckedArray<Integer> TicketCells;
  std::string ProbeName;

  const ControlArray LineA{*this, game_.cellArray};
  const ControlArray IntResult{*this, "IntResult"};
  const ControlArray TextATxt{*this, "TextATxt"};
  const ControlArray TextBTxt{*this, "TextBTxt"};
  const ControlRef BtnCheckNewTicket{*this, "BtnCheckNewTicket"};
  const ControlRef BtnCheckSavedTickets{*this, "BtnCheckSavedTickets"};
  const ControlRef BtnSaveTicket{*this, "BtnSaveTicket"};
  const ControlRef CmdShowResults{*this, "CmdShowResults"};
  const ControlRef BtnRestart{*this, "BtnRestart"};
  const ControlRef BtnCancel{*this, "BtnCancel"};
  const ControlRef BtnDeleteTicket{*this, "BtnDeleteTicket"};
  const ControlRef List1{*this, "List1"};
  const ControlRef List2{*this, "List2"};
  const ControlRef LstLottoTicket{*this, "LstLottoTicket"};
  const ControlRef LblDrawsAvailable{*this, "LblDrawsAvailable"};
  const ControlRef LblSavedTickets{*this, "LblSavedTickets"};
  const ControlRef LblSavedTickets2{*this, "LblSavedTickets2"};
  const ControlRef LbLchangeDraw{*this, "LbLchangeDraw"};
  const ControlRef LbLchangeTicket{*this, "LbLchangeTicket"};
  const ControlRef LblSaved{*this, "LblSaved"};
  const ControlRef LblSpaceBar{*this, "LblSpaceBar"};
  const ControlRef LblEnterLine{*this, "LblEnterLine"};
  const ControlRef LblYouveWon{*this, "LblYouveWon"};
  const ControlRef TxtNoofLines{*this, "TxtNoofLines"};
  const ControlRef TxtDrawBox{*this, "TxtDrawBox"};
  const ControlRef ImgCoins{*this, "ImgCoins"};
  const ControlRef ImgMoney{*this, "ImgMoney"};
  const ControlRef Image1{*this, "Image1"};
  const ControlRef Image2{*this, "Image2"};
  const ControlRef Image3{*this, "Image3"};
  const ControlRef Image4{*this, "Image4"};

 private:
  void ShowLineButtons(bool visible);
  void BacktrackTest();
  void RangeTest();
  void OrderTest();
  void Advance();
  // A refused number: the cell CurrentCell red while the message stands, then
  // white, with the focus, and empty; the prompt of the line is shown again
  // after the message if asked.
  void Refuse(const std::string& message, bool showPrompt = false);

  // Takes the reading of a cell from its text and keeps it.
  const CellReading& ReadCell(int cell) const;

  mutable std::vector<CellReading> readings_;
  // The caption of the prompt of each line, by the line's number, made once.
  const std::vector<std::string> linePrompts_;
};

}  // namespace veridraw::tickets
