#include "strike/strike_game.h"
#include "store/draw_store.h"
#include "store/ticket_store.h"

namespace veridraw {

const tickets::TicketGame& strikeGame() {
  static const tickets::TicketGame game{
      .cellArray = "TxtStrike",
      .cellsPerLine = 4,
      .mostLines = 12,
      .homeCells = 12,
      .lastTicketCell = 48,
      // Each button parks the cover on the line after its own; the last one at
      // the foot of the screen, where its spare cell lies.
      .lineButtons = {{"BtnLineA", 1, 1920},
                      {"BtnLineB", 2, 2205},
                      {"BtnLineC", 3, 2490},
                      {"BtnLineD", 4, 2775},
                      {"BtnLineE", 5, 3060},
                      {"BtnLineF", 6, 3345},
                      {"BtnLineG", 7, 3630},
                      {"BtnLineH", 8, 3915},
                      {"BtnLineJ", 9, 4200},
                      {"BtnLineK", 10, 4485},
                      {"BtnLineL", 11, 4770},
                      {"BtnLineM", 12, 6240}},
      .promptTops = {1920, 2205, 2490, 2775, 3060, 3345, 3630, 3915, 4200, 4485, 4770},
      .ticketPrefix = store::kStrikePrefix,
      .firstListedDraw = store::kFirstStrikeDraw,
      .prizeCountBox = "TxtStrike",
      .prizeLabel = "LblStrike",
      .prizeRows = 4,
      .sparesClearedWithTicket = 0,
      .changeHidesShowResults = false,
      .rangeRefusalShowsPrompt = true,
      .savedHintClearsBold = false,
  };
  return game;
}

}  // namespace veridraw
