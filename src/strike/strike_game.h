// The numbers of the Strike game that the shared ticket procedures read: four
// numbers a line, 1 to 12 lines, and where the Strike screen parts ways with
// the Lotto screen's procedures.
#pragma once

#include "tickets/ticket_game.h"

namespace veridraw {

const tickets::TicketGame& strikeGame();

}  // namespace veridraw
