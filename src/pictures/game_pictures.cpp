#include "pictures/game_pictures.h"

#include <QPainterPath>
#include <QPolygonF>
#include <algorithm>
#include <array>

#include "pictures/picture_parts.h"

namespace veridraw::gui {

namespace {

// The upper part of a game picture holds its name, the lower part its balls.
constexpr qreal kTitleShare = 0.4;

struct Split {
  QRectF title;
  QRectF balls;
};

Split split(const QRectF& area) {
  const QRectF inner = area.adjusted(3, 2, -3, -2);
  const qreal titleHeight = inner.height() * kTitleShare;
  return {
      QRectF(inner.left(), inner.top(), inner.width(), titleHeight),
      QRectF(inner.left(), inner.top() + titleHeight, inner.width(), inner.height() - titleHeight)};
}

// Centres of `count` balls spread over the row, and their radius; `gap` is
// the room between two balls, as a share of the radius.
struct Row {
  std::vector<QPointF> centres;
  qreal radius = 0;
};

Row ballRow(const QRectF& row, int count, qreal gap) {
  const qreal radius = std::min(row.height() / 2 - 0.5, row.width() / (count * (2 + gap)));
  const qreal step = radius * (2 + gap);
  const qreal first = row.center().x() - step * (count - 1) / 2;
  Row result{{}, radius};
  for (int i = 0; i < count; ++i)
    result.centres.emplace_back(first + i * step, row.center().y());
  return result;
}

void drawArrow(QPainter& painter, const QPointF& from, const QPointF& to, const QColor& colour) {
  const qreal head = std::max<qreal>(2, (to.x() - from.x()) * 0.45);
  painter.save();
  painter.setPen(Qt::NoPen);
  painter.setBrush(colour);
  painter.drawPolygon(QPolygonF({QPointF(to.x() - head, to.y() - head * 0.8), to,
                                 QPointF(to.x() - head, to.y() + head * 0.8)}));
  painter.setPen(QPen(colour, std::max<qreal>(1, head * 0.35)));
  painter.drawLine(from, QPointF(to.x() - head, to.y()));
  painter.restore();
}

// A lightning bolt standing in the box.
void drawLightning(QPainter& painter, const QRectF& box, const QColor& colour) {
  const auto at = [&box](qreal x, qreal y) {
    return QPointF(box.left() + x * box.width(), box.top() + y * box.height());
  };
  const QPolygonF bolt({at(0.62, 0.0), at(0.12, 0.56), at(0.46, 0.56), at(0.30, 1.0),
                        at(0.88, 0.40), at(0.54, 0.40), at(0.78, 0.0)});
  painter.save();
  painter.setPen(QPen(colour.darker(180), std::max<qreal>(0.6, box.width() / 20)));
  painter.setBrush(colour);
  painter.drawPolygon(bolt);
  painter.restore();
}

}  // namespace

void paintLotto(QPainter& painter, const QRectF& area) {
  fillPanel(painter, area, QColor(255, 253, 236), QColor(246, 228, 160));
  const Split parts = split(area);
  drawFittedText(painter, parts.title, "LOTTO", QColor(196, 18, 28), true, 40);
  const std::array colours{QColor(242, 190, 0), QColor(30, 90, 210),  QColor(210, 30, 30),
                           QColor(30, 150, 60), QColor(240, 120, 20), QColor(120, 60, 190)};
  const std::array numbers{"7", "12", "19", "23", "31", "40"};
  const Row row = ballRow(parts.balls, static_cast<int>(colours.size()), 0.15);
  for (std::size_t i = 0; i < colours.size(); ++i)
    drawBall(painter, row.centres[i], row.radius, colours[i], numbers[i]);
}

void paintStrike(QPainter& painter, const QRectF& area) {
  fillPanel(painter, area, QColor(40, 90, 190), QColor(10, 36, 100));
  const Split parts = split(area);
  drawFittedText(painter, parts.title, "STRIKE", QColor(255, 214, 0), true, 40);
  const Row row = ballRow(parts.balls, 4, 0.9);
  for (int i = 0; i < 4; ++i) {
    drawBall(painter, row.centres[i], row.radius, QColor(255, 255, 255), QString::number(i + 1));
    if (i == 0) continue;
    const QPointF from(row.centres[i - 1].x() + row.radius * 1.12, row.centres[i].y());
    const QPointF to(row.centres[i].x() - row.radius * 1.12, row.centres[i].y());
    drawArrow(painter, from, to, QColor(255, 214, 0));
  }
}

void paintPowerBall(QPainter& painter, const QRectF& area) {
  fillPanel(painter, area, QColor(70, 70, 78), QColor(14, 14, 20));
  const QRectF inner = area.adjusted(3, 2, -3, -2);
  const qreal radius = inner.height() / 2;
  const QPointF centre(inner.left() + radius + 2, inner.center().y());
  drawBall(painter, centre, radius, QColor(215, 20, 30), {});
  drawLightning(
      painter,
      QRectF(centre.x() - radius * 0.45, centre.y() - radius * 0.75, radius * 0.9, radius * 1.5),
      QColor(255, 220, 0));
  const QRectF words(centre.x() + radius + 4, inner.top(), inner.right() - centre.x() - radius - 4,
                     inner.height());
  const QRectF upper(words.left(), words.top(), words.width(), words.height() * 0.55);
  const QRectF lower(words.left(), upper.bottom(), words.width(), words.height() * 0.45);
  drawFittedText(painter, upper.adjusted(0, 3, 0, 0), "POWER", Qt::white, true, 40);
  drawFittedText(painter, lower.adjusted(0, 0, 0, -3), "BALL", QColor(255, 220, 0), true, 40);
}

}  // namespace veridraw::gui
