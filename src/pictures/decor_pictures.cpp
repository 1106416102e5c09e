#include "pictures/decor_pictures.h"

#include <algorithm>
#include <array>

#include "pictures/picture_parts.h"

namespace veridraw::pictures {

namespace {

constexpr Colour kGold(232, 182, 30);
constexpr Colour kNoticeInk(20, 40, 110);

// The owner's notice, from the whole sentence to the fewest words: a narrow
// button shows the longest that it can show legibly.
constexpr std::array<std::string_view, 3> kNotices{
    "Veridraw is free software under the GNU GPL, version 3 or later",
    "Free software under the GNU GPL 3+", "Free software, GNU GPL"};
constexpr int kNoticePixels = 13;
constexpr int kLegiblePixels = 10;
constexpr Colour kBanknote(120, 178, 110);

Rect centredSquare(const Rect& area, double margin) {
  const double side = std::min(area.width, area.height) - 2 * margin;
  return {area.centre().x - side / 2, area.centre().y - side / 2, side, side};
}

void drawTick(Canvas& canvas, const Rect& box, Colour colour) {
  canvas.polyline({{box.left() + box.width * 0.22, box.top() + box.height * 0.52},
                   {box.left() + box.width * 0.42, box.top() + box.height * 0.72},
                   {box.left() + box.width * 0.78, box.top() + box.height * 0.30}},
                  Stroke{colour, std::max(1.5, box.width / 8), LineCap::Round, LineJoin::Round});
}

// One coin lying flat: its face over a darker rim.
void drawFlatCoin(Canvas& canvas, const Rect& coin) {
  const double rim = coin.height * 0.22;
  const Colour side = kGold.darker(125);
  const Point leftEdge{coin.left(), coin.centre().y};
  const Point rightEdge{coin.right(), coin.centre().y};
  const Stroke outline{kGold.darker(170), 1};
  canvas.ellipse(coin.translated(0, rim), outline, side);
  canvas.fill(Rect::at(leftEdge, {coin.width, rim}), side);
  canvas.line(leftEdge, leftEdge + Point{0, rim}, outline);
  canvas.line(rightEdge, rightEdge + Point{0, rim}, outline);
  canvas.ellipse(coin, outline, kGold);
}

void drawBanknote(Canvas& canvas, const Rect& note) {
  canvas.rectangle(note, Stroke{kBanknote.darker(200), 1}, kBanknote);
  const Rect inner =
      note.adjusted(note.height * 0.1, note.height * 0.1, -note.height * 0.1, -note.height * 0.1);
  const Stroke line{kBanknote.darker(160), 1};
  canvas.rectangle(inner, line, {});
  const Rect oval = centredSquare(inner, inner.height * 0.08);
  canvas.ellipse(oval.adjusted(-oval.width * 0.2, 0, oval.width * 0.2, 0), line,
                 kBanknote.lighter(130));
  // The dollar sign reaches above and below its capitals: it is kept inside the oval.
  drawFittedText(canvas, oval, "$", kBanknote.darker(240), true,
                 static_cast<int>(oval.height * 0.7));
  // Its value in two corners.
  const Size corner{inner.width * 0.18, inner.height * 0.3};
  const double gap = inner.height * 0.06;
  drawFittedText(canvas, Rect::at(inner.topLeft() + Point{gap, gap}, corner), "100",
                 kBanknote.darker(200), true, 30);
  drawFittedText(
      canvas,
      Rect::at(inner.bottomRight() - Point{gap + corner.width, gap + corner.height}, corner), "100",
      kBanknote.darker(200), true, 30);
}

}  // namespace

void drawMark(Canvas& canvas, const Rect& area) {
  const Rect seal = centredSquare(area, 1);
  const Stroke outline{kGold.darker(160), 1};
  canvas.ellipse(seal, outline, kGold);
  const double ring = seal.width * 0.12;
  canvas.ellipse(seal.adjusted(ring, ring, -ring, -ring), outline, kWhiteColour);
  drawTick(canvas, seal.adjusted(ring, ring, -ring, -ring), Colour(20, 140, 50));
}

void drawNotice(Canvas& canvas, const Rect& area) {
  const Rect inner = area.adjusted(2, 2, -2, -2);
  const Rect badge{inner.left() + 2, inner.top(), inner.height, inner.height};
  canvas.ellipse(badge, kNoStroke, Colour(30, 80, 170));
  drawFittedText(canvas, badge.adjusted(2, 2, -2, -2), "i", kWhiteColour, true, 40);
  const Rect text = inner.adjusted(badge.width + 8, 1, 0, -1);
  std::string_view notice = kNotices.back();
  for (const std::string_view words : kNotices) {
    if (fittedFont(canvas, words, text.size(), true, kNoticePixels).pixels < kLegiblePixels)
      continue;
    notice = words;
    break;
  }
  drawFittedText(canvas, text, notice, kNoticeInk, true, kNoticePixels);
}

std::string_view noticeWords() {
  return kNotices.front();
}

void drawCoins(Canvas& canvas, const Rect& area) {
  const double width = area.width * 0.42;
  const double height = width * 0.38;
  const int stacks = 2;
  for (int stack = 0; stack < stacks; ++stack) {
    const double left = area.left() + area.width * (stack == 0 ? 0.06 : 0.5);
    const int coins = stack == 0 ? 5 : 3;
    const double step = height * 0.42;
    for (int coin = 0; coin < coins; ++coin) {
      const double top = area.bottom() - height * 1.3 - coin * step;
      drawFlatCoin(canvas, Rect{left, top, width, height});
    }
  }
}

// A bundle of banknotes: the front one whole, the ones behind it showing
// only their edges.
void drawMoney(Canvas& canvas, const Rect& area) {
  const double step = std::max(2.0, area.height * 0.05);
  const int notes = 3;
  const Rect front{area.left() + step * notes, area.top() + step * notes,
                   area.width - step * (notes + 1), area.height - step * (notes + 1)};
  for (int behind = notes - 1; behind >= 0; --behind)
    drawBanknote(canvas, front.translated(-step * behind, -step * behind));
}

}  // namespace veridraw::pictures
