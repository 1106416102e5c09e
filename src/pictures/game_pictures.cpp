#include "pictures/game_pictures.h"

#include <algorithm>
#include <array>
#include <string>

#include "pictures/picture_parts.h"

namespace veridraw::pictures {

namespace {

// The upper part of a game picture holds its name, the lower part its balls.
constexpr double kTitleShare = 0.4;

struct Split {
  Rect title;
  Rect balls;
};

Split split(const Rect& area) {
  const Rect inner = area.adjusted(3, 2, -3, -2);
  const double titleHeight = inner.height * kTitleShare;
  return {Rect{inner.left(), inner.top(), inner.width, titleHeight},
          Rect{inner.left(), inner.top() + titleHeight, inner.width, inner.height - titleHeight}};
}

// Centres of `count` balls spread over the row, and their radius; `gap` is
// the room between two balls, as a share of the radius.
struct Row {
  std::vector<Point> centres;
  double radius = 0;
};

Row ballRow(const Rect& row, int count, double gap) {
  const double radius = std::min(row.height / 2 - 0.5, row.width / (count * (2 + gap)));
  const double step = radius * (2 + gap);
  const double first = row.centre().x - step * (count - 1) / 2;
  Row result{{}, radius};
  for (int i = 0; i < count; ++i)
    result.centres.push_back({first + i * step, row.centre().y});
  return result;
}

void drawArrow(Canvas& canvas, Point from, Point to, Colour colour) {
  const double head = std::max(2.0, (to.x - from.x) * 0.45);
  canvas.polygon({{to.x - head, to.y - head * 0.8}, to, {to.x - head, to.y + head * 0.8}},
                 kNoStroke, colour);
  canvas.line(from, {to.x - head, to.y}, Stroke{colour, std::max(1.0, head * 0.35)});
}

// A lightning bolt standing in the box.
void drawLightning(Canvas& canvas, const Rect& box, Colour colour) {
  const auto at = [&box](double x, double y) {
    return Point{box.left() + x * box.width, box.top() + y * box.height};
  };
  canvas.polygon({at(0.62, 0.0), at(0.12, 0.56), at(0.46, 0.56), at(0.30, 1.0), at(0.88, 0.40),
                  at(0.54, 0.40), at(0.78, 0.0)},
                 Stroke{colour.darker(180), std::max(0.6, box.width / 20)}, colour);
}

}  // namespace

void drawLotto(Canvas& canvas, const Rect& area) {
  fillPanel(canvas, area, Colour(255, 253, 236), Colour(246, 228, 160));
  const Split parts = split(area);
  drawFittedText(canvas, parts.title, "LOTTO", Colour(196, 18, 28), true, 40);
  constexpr std::array colours{Colour(242, 190, 0), Colour(30, 90, 210),  Colour(210, 30, 30),
                               Colour(30, 150, 60), Colour(240, 120, 20), Colour(120, 60, 190)};
  constexpr std::array numbers{"7", "12", "19", "23", "31", "40"};
  const Row row = ballRow(parts.balls, static_cast<int>(colours.size()), 0.15);
  for (std::size_t i = 0; i < colours.size(); ++i)
    drawBall(canvas, row.centres[i], row.radius, colours[i], numbers[i]);
}

void drawStrike(Canvas& canvas, const Rect& area) {
  fillPanel(canvas, area, Colour(40, 90, 190), Colour(10, 36, 100));
  const Split parts = split(area);
  const Colour gold(255, 214, 0);
  drawFittedText(canvas, parts.title, "STRIKE", gold, true, 40);
  const Row row = ballRow(parts.balls, 4, 0.9);
  for (int i = 0; i < 4; ++i) {
    drawBall(canvas, row.centres[i], row.radius, kWhiteColour, std::to_string(i + 1));
    if (i == 0) continue;
    const Point from{row.centres[i - 1].x + row.radius * 1.12, row.centres[i].y};
    const Point to{row.centres[i].x - row.radius * 1.12, row.centres[i].y};
    drawArrow(canvas, from, to, gold);
  }
}

void drawPowerBall(Canvas& canvas, const Rect& area) {
  fillPanel(canvas, area, Colour(70, 70, 78), Colour(14, 14, 20));
  const Rect inner = area.adjusted(3, 2, -3, -2);
  const double radius = inner.height / 2;
  const Point centre{inner.left() + radius + 2, inner.centre().y};
  drawBall(canvas, centre, radius, Colour(215, 20, 30), {});
  const Colour yellow(255, 220, 0);
  drawLightning(
      canvas, Rect{centre.x - radius * 0.45, centre.y - radius * 0.75, radius * 0.9, radius * 1.5},
      yellow);
  const Rect words{centre.x + radius + 4, inner.top(), inner.right() - centre.x - radius - 4,
                   inner.height};
  const Rect upper{words.left(), words.top(), words.width, words.height * 0.55};
  const Rect lower{words.left(), upper.bottom(), words.width, words.height * 0.45};
  drawFittedText(canvas, upper.adjusted(0, 3, 0, 0), "POWER", kWhiteColour, true, 40);
  drawFittedText(canvas, lower.adjusted(0, 0, 0, -3), "BALL", yellow, true, 40);
}

}  // namespace veridraw::pictures
