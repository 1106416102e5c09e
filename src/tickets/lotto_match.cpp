// The match of one line of a Lotto ticket, which the Lotto and the PowerBall
// checks share: order and position play no part, and values are compared as
// integers, so "07", "7 " and "07 " all match a drawn 7.
#include "tickets/ticket_screen.h"

namespace veridraw::tickets {

void TicketScreen::MatchLottoLine(Integer& cell, const CheckedArray<Integer>& CheckNumbers,
                                  Integer bonus, Integer& MatchCount, Integer& BonusMatched) {
  for (int position = 1; position <= game_.cellsPerLine; ++position) {
    // Nothing in the loop changes the ticket's number, so it is taken once.
    const Integer number = TicketCells(cell);
    for (int k = 1; k <= kMainNumbers; ++k) {
      if (number == CheckNumbers(k)) {
        IntResult(cell).setText(LineA(cell).text());
        MatchCount = MatchCount + 1;
      }
      if (number == bonus) {
        IntResult(cell).setText(LineA(cell).text());
        IntResult(cell).setBackColor(colors::kBlue);
        IntResult(cell).setForeColor(colors::kWhite);
        BonusMatched = 1;
      }
    }
    cell = cell + 1;
  }
}

}  // namespace veridraw::tickets
