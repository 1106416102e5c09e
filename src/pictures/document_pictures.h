// The documents shown in place on the forms: small pages of notes, each with
// a coloured heading, read by no logic.
#pragma once

#include <string>

#include "pictures/canvas.h"
#include "screen/picture.h"

namespace veridraw::pictures {

// Draws the document that the picture is (Picture::DocumentLotto and so on);
// returns false, drawing nothing, for a picture that isn't a document.
bool drawDocument(Canvas& canvas, const Rect& area, Picture picture);
// The heading and the text of the document, as one would read them out;
// empty for a picture that isn't a document.
std::string documentWords(Picture picture);

}  // namespace veridraw::pictures
