#include "lotto/lotto_game.h"
#include "store/ticket_store.h"

namespace veridraw {

const tickets::TicketGame& lottoGame() {
  static const tickets::TicketGame game{
      .cellArray = "LineA",
      .cellsPerLine = 6,
      .mostLines = 14,
      .homeCells = 24,
      .lastTicketCell = 87,
      .lineButtons = {{"BtnLineD", 4, 2520},
                      {"BtnLineE", 5, 2775},
                      {"BtnLineF", 6, 3030},
                      {"BtnLineG", 7, 3285},
                      {"BtnLineH", 8, 3540},
                      {"BtnLineJ", 9, 3795},
                      {"BtnLineK", 10, 4050},
                      {"BtnLineL", 11, 4305},
                      {"BtnLineM", 12, 4560},
                      {"BtnLineN", 13, 4815},
                      {"BtnLineO", 14, 6160}},
      // Line B's prompt stands at 1775, 20 below its row; the rest at their rows.
      .promptTops = {1775, 2010, 2265, 2520, 2775, 3030, 3285, 3540, 3795, 4050, 4305, 4560, 4815},
      .ticketPrefix = store::kLottoPrefix,
      .firstListedDraw = 1,
      .prizeCountBox = "TxtDivision",
      .prizeLabel = "LblDivision",
      .prizeRows = 5,
  };
  return game;
}

}  // namespace veridraw
