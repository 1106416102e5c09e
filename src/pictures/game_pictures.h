// The pictures of the three games, drawn so that they are plainly told apart:
// Lotto a row of coloured balls, Strike four balls in order with arrows,
// PowerBall one big ball with a lightning mark.
#pragma once

#include "pictures/canvas.h"

namespace veridraw::pictures {

void drawLotto(Canvas& canvas, const Rect& area);
void drawStrike(Canvas& canvas, const Rect& area);
void drawPowerBall(Canvas& canvas, const Rect& area);

}  // namespace veridraw::pictures
