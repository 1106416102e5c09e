// The decoration under the two grids of the ticket screens: the machine that
// draws the balls, and a Lotto ticket.
#pragma once

#include "pictures/canvas.h"

namespace veridraw::pictures {

void drawDrawMachine(Canvas& canvas, const Rect& area);
void drawTicketSlip(Canvas& canvas, const Rect& area);

}  // namespace veridraw::pictures
