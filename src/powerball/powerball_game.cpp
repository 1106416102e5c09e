#include "powerball/powerball_game.h"
#include "lotto/lotto_game.h"
#include "store/draw_store.h"
#include "store/ticket_store.h"

namespace veridraw {

// A Lotto ticket in its files of its own, listed from the first PowerBall
// draw. The cover box of the longest ticket stands lower than on the Lotto
// screen, and a change of a cell leaves CmdShowResults alone.
const tickets::TicketGame& powerBallGame() {
  static const tickets::TicketGame game = [] {
    tickets::TicketGame powerBall = lottoGame();
    powerBall.lineButtons.back().coverTop = 7560;
    powerBall.ticketPrefix = store::kPowerBallPrefix;
    powerBall.firstListedDraw = store::kFirstPowerBallDraw;
    powerBall.changeHidesShowResults = false;
    return powerBall;
  }();
  return game;
}

}  // namespace veridraw
