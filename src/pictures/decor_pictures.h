// The smaller decoration of the forms: the program's mark, the notice banner,
// and the coins and the money of a win.
#pragma once

#include <string_view>

#include "pictures/canvas.h"

namespace veridraw::pictures {

void drawMark(Canvas& canvas, const Rect& area);
void drawNotice(Canvas& canvas, const Rect& area);
// The owner's notice, the whole sentence.
std::string_view noticeWords();
void drawCoins(Canvas& canvas, const Rect& area);
void drawMoney(Canvas& canvas, const Rect& area);

}  // namespace veridraw::pictures
