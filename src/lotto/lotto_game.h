// The numbers of the Lotto game that the shared ticket procedures read: six
// numbers a line, 4 to 14 lines, the line buttons and the prize rows.
#pragma once

#include "tickets/ticket_game.h"

namespace veridraw {

const tickets::TicketGame& lottoGame();

}  // namespace veridraw
