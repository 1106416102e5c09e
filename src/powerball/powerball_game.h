// The numbers of the PowerBall game that the shared ticket procedures read: a
// Lotto ticket in files of its own, listed from the first PowerBall draw.
#pragma once

#include "tickets/ticket_game.h"

namespace veridraw {

const tickets::TicketGame& powerBallGame();

}  // namespace veridraw
