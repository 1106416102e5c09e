#include "pictures/ticket_pictures.h"

#include <algorithm>
#include <array>

#include "pictures/picture_parts.h"

namespace veridraw::pictures {

namespace {

constexpr Colour kSlipRed(200, 30, 40);
constexpr Colour kPaper(255, 251, 236);
constexpr Colour kPenBlue(30, 60, 170);
constexpr Colour kTransparent(0, 0, 0, 0);

constexpr std::array kBallColours{Colour(210, 30, 30),  Colour(242, 190, 0),  Colour(30, 90, 210),
                                  Colour(30, 150, 60),  Colour(240, 120, 20), Colour(120, 60, 190),
                                  Colour(235, 235, 235)};

// The balls in the globe, as offsets from its centre in parts of its radius:
// a heap at the bottom and one ball tossed up by the air.
constexpr std::array<Point, 6> kBallsInGlobe{
    {{-0.22, 0.71}, {0.22, 0.71}, {-0.44, 0.33}, {0.0, 0.33}, {0.44, 0.33}, {-0.2, -0.38}}};
constexpr double kBallShare = 0.22;  // the radius of a ball in the globe

Rect around(Point centre, double radius) {
  return {centre.x - radius, centre.y - radius, 2 * radius, 2 * radius};
}

void drawStand(Canvas& canvas, Point centre, double radius, double bottom) {
  canvas.polygon({{centre.x - radius * 0.35, centre.y + radius * 0.8},
                  {centre.x + radius * 0.35, centre.y + radius * 0.8},
                  {centre.x + radius * 0.75, bottom},
                  {centre.x - radius * 0.75, bottom}},
                 Stroke{kSlipRed.darker(180), 1}, kSlipRed);
}

void drawGlass(Canvas& canvas, Point centre, double radius, bool front) {
  if (front) {
    // The outline and a gleam at the upper left.
    canvas.ellipse(around(centre, radius), Stroke{Colour(80, 110, 150), 1}, {});
    canvas.ellipse({centre.x - radius * 0.7, centre.y - radius * 0.75, radius * 0.45, radius * 0.3},
                   kNoStroke, Colour(255, 255, 255, 170));
  } else {
    const RadialGradient glass{
        centre, radius, {{0, Colour(235, 245, 255, 150)}, {1, Colour(170, 205, 240, 200)}}};
    canvas.ellipse(around(centre, radius), kNoStroke, glass);
  }
}

}  // namespace

// A glass globe full of balls on its stand, with two drawn balls that have
// rolled out along the chute.
void drawDrawMachine(Canvas& canvas, const Rect& area) {
  const double radius = area.height * 0.4;
  const Point centre{area.left() + radius + area.width * 0.04,
                     area.top() + radius + area.height * 0.02};
  drawStand(canvas, centre, radius, area.bottom() - 0.5);
  drawGlass(canvas, centre, radius, false);
  for (std::size_t i = 0; i < kBallsInGlobe.size(); ++i) {
    const Point place = centre + kBallsInGlobe[i] * radius;
    drawBall(canvas, place, radius * kBallShare, kBallColours[i], {});
  }
  drawGlass(canvas, centre, radius, true);

  const double drawn = area.height * 0.2;
  const Point chuteStart{centre.x + radius * 0.7, centre.y + radius * 0.72};
  const Point chuteEnd{area.right() - 1, centre.y + radius * 0.8 + drawn * 0.3};
  canvas.line(chuteStart + Point{0, drawn}, chuteEnd + Point{0, drawn},
              Stroke{Colour(110, 110, 120), std::max(1.5, drawn * 0.3), LineCap::Round});
  const auto onChute = [&](double x) {
    const double share = (x - chuteStart.x) / (chuteEnd.x - chuteStart.x);
    return Point{x, chuteStart.y + share * (chuteEnd.y - chuteStart.y)};
  };
  drawBall(canvas, onChute(area.right() - drawn * 3.2), drawn, kBallColours[2], "17");
  drawBall(canvas, onChute(area.right() - drawn * 1.05), drawn, kBallColours[1], "8");
}

// A Lotto ticket lying on the form: a red band with the name of the game over
// a grid of boxes, some of them marked in pen.
void drawTicketSlip(Canvas& canvas, const Rect& area) {
  const Rect slip = area.adjusted(1, 1, -3, -3);
  canvas.rectangle(slip.translated(2, 2), kNoStroke, Colour(0, 0, 0, 60));
  canvas.rectangle(slip, Stroke{kSlipRed.darker(150), 1}, kPaper);
  const Rect band{slip.left(), slip.top(), slip.width, slip.height * 0.3};
  canvas.fill(band.adjusted(0.5, 0.5, 0, 0), kSlipRed);
  drawFittedText(canvas, band.adjusted(2, 1, -2, -1), "LOTTO", kWhiteColour, true, 40);

  constexpr int kColumns = 6;
  constexpr int kRows = 3;
  // The marked boxes of each row, one bit a column.
  constexpr std::array<int, kRows> kMarks{0b001010, 0b110000, 0b000101};
  const Rect grid =
      Rect{slip.left(), band.bottom(), slip.width, slip.bottom() - band.bottom()}.adjusted(
          slip.width * 0.08, 3, -slip.width * 0.08, -2);
  const double cellWidth = grid.width / kColumns;
  const double cellHeight = grid.height / kRows;
  const Stroke pen{kSlipRed.lighter(150), 1};
  for (int row = 0; row < kRows; ++row) {
    for (int column = 0; column < kColumns; ++column) {
      const Rect box{grid.left() + column * cellWidth + 1, grid.top() + row * cellHeight + 1,
                     cellWidth - 2, cellHeight - 2};
      const bool marked = (kMarks[static_cast<std::size_t>(row)] >> column & 1) != 0;
      canvas.rectangle(box, pen, marked ? kPenBlue : kTransparent);
    }
  }
}

}  // namespace veridraw::pictures
