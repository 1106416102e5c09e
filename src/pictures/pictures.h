// The pictures of the forms, drawn in code on any face's canvas, as a
// control's design names them.
#pragma once

#include <string>

#include "pictures/canvas.h"
#include "screen/picture.h"

namespace veridraw::pictures {

// Draws the picture to fill the area; Picture::None draws nothing.
void drawPicture(Canvas& canvas, const Rect& area, Picture picture);

// What the picture shows, in a few words, for those who can't see it: a
// screen reader's name for it. Empty for Picture::None.
std::string pictureSubject(Picture picture);

}  // namespace veridraw::pictures
