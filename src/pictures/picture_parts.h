// Pieces from which the pictures are drawn.
#pragma once

#include <string_view>

#include "pictures/canvas.h"

namespace veridraw::pictures {

// A lottery ball: a shaded sphere with its number.
void drawBall(Canvas& canvas, Point centre, double radius, Colour colour, std::string_view number);

// The largest bold or plain font, up to `maxPixels`, in which the text fits the box.
Font fittedFont(Canvas& canvas, std::string_view text, Size box, bool bold, int maxPixels);

// Text fitted into the box and centred in it.
void drawFittedText(Canvas& canvas, const Rect& box, std::string_view text, Colour colour,
                    bool bold, int maxPixels);

// A panel with rounded corners, shaded from one colour to another downwards.
void fillPanel(Canvas& canvas, const Rect& area, Colour top, Colour bottom);

}  // namespace veridraw::pictures
