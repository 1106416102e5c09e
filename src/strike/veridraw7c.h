// The Strike screen: a ticket of 1 to 12 lines of four numbers meets the four
// Strike numbers of a draw, in the order in which they were drawn. A number
// counts only at its own place, no number may stand twice in a line, and a
// single hit already wins a Bonus Ticket. Strike starts at draw 293.
#pragma once

#include <string_view>

#include "screen/application.h"
#include "screen/checked_array.h"
#include "screen/form.h"
#include "tickets/ticket_screen.h"

namespace veridraw {

FormDesign veridraw7cDesign();

class Veridraw7c : public tickets::TicketScreen {
 public:
  explicit Veridraw7c(Application& application);

 private:
  // The screen and its draw.
  void Form_Load() override;
  void List1_Click() override;
  // The draw's number and its four Strike numbers, converted by `convert`.
  void TakeDrawnNumbers(Integer (*convert)(std::string_view pair));
  void BtnCheckNewTicket_Click() override;
  void BtnCheckSavedTickets_Click() override;

  // The entry of a ticket.
  void OwnNumRoutine() override;
  // The Strike name of OwnNumRoutine: the shared preparation of the grid, then
  // the typing font of every cell, and cell 1 emptied and given the focus.
  void NumberOfLines();
  bool OutOfOrder(double first, double second, double current) const override;
  void EndOfEntry() override;

  // The check.
  void FreezeDraw() override;
  void NumberSortRoutine() override;
  void CmdShowResults_Click() override;
  void PlaceStrikeRow(int hits);

  CheckedArray<Integer> DrawNumbers{0, 4};
  CheckedArray<Integer> StrikeCount{1, 4};
  Integer MatchCount;
  // The Top of the prize row being placed. The check sets MatchCount before
  // each line and the results set this before the first row, so neither ever
  // reads what the other left: they are two variables.
  Integer StrikeRowTop;

  // The cells of this screen, the control array TxtStrike, are the shared
  // LineA; the repeat test of a line runs on the counters of the shared walk,
  // OrderFirst and OrderSecond.
  const ControlArray TxtStrikeNumbers2{*this, "TxtStrikeNumbers2"};
  const ControlArray Txt1ST{*this, "Txt1ST"};
};

}  // namespace veridraw
