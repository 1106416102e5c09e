#include "pictures/ticket_pictures.h"

#include <QRadialGradient>
#include <algorithm>
#include <array>

#include "pictures/picture_parts.h"

namespace veridraw::gui {

namespace {

const QColor kSlipRed(200, 30, 40);
const QColor kPaper(255, 251, 236);
const QColor kPenBlue(30, 60, 170);

const std::array kBallColours{QColor(210, 30, 30),  QColor(242, 190, 0),  QColor(30, 90, 210),
                              QColor(30, 150, 60),  QColor(240, 120, 20), QColor(120, 60, 190),
                              QColor(235, 235, 235)};

// The balls in the globe, as offsets from its centre in parts of its radius:
// a heap at the bottom and one ball tossed up by the air.
struct BallPlace {
  qreal x;
  qreal y;
};
constexpr std::array<BallPlace, 6> kBallsInGlobe{
    {{-0.22, 0.71}, {0.22, 0.71}, {-0.44, 0.33}, {0.0, 0.33}, {0.44, 0.33}, {-0.2, -0.38}}};
constexpr qreal kBallShare = 0.22;  // the radius of a ball in the globe

void drawStand(QPainter& painter, const QPointF& centre, qreal radius, qreal bottom) {
  const QPolygonF stand({QPointF(centre.x() - radius * 0.35, centre.y() + radius * 0.8),
                         QPointF(centre.x() + radius * 0.35, centre.y() + radius * 0.8),
                         QPointF(centre.x() + radius * 0.75, bottom),
                         QPointF(centre.x() - radius * 0.75, bottom)});
  painter.save();
  painter.setPen(QPen(kSlipRed.darker(180), 1));
  painter.setBrush(kSlipRed);
  painter.drawPolygon(stand);
  painter.restore();
}

void drawGlass(QPainter& painter, const QPointF& centre, qreal radius, bool front) {
  painter.save();
  if (front) {
    // The outline and a gleam at the upper left.
    painter.setPen(QPen(QColor(80, 110, 150), 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(centre, radius, radius);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 255, 255, 170));
    painter.drawEllipse(
        QRectF(centre.x() - radius * 0.7, centre.y() - radius * 0.75, radius * 0.45, radius * 0.3));
  } else {
    QRadialGradient glass(centre, radius);
    glass.setColorAt(0, QColor(235, 245, 255, 150));
    glass.setColorAt(1, QColor(170, 205, 240, 200));
    painter.setPen(Qt::NoPen);
    painter.setBrush(glass);
    painter.drawEllipse(centre, radius, radius);
  }
  painter.restore();
}

}  // namespace

// A glass globe full of balls on its stand, with two drawn balls that have
// rolled out along the chute.
void paintDrawMachine(QPainter& painter, const QRectF& area) {
  const qreal radius = area.height() * 0.4;
  const QPointF centre(area.left() + radius + area.width() * 0.04,
                       area.top() + radius + area.height() * 0.02);
  drawStand(painter, centre, radius, area.bottom() - 0.5);
  drawGlass(painter, centre, radius, false);
  for (std::size_t i = 0; i < kBallsInGlobe.size(); ++i) {
    const QPointF place = centre + QPointF(kBallsInGlobe[i].x, kBallsInGlobe[i].y) * radius;
    drawBall(painter, place, radius * kBallShare, kBallColours[i], {});
  }
  drawGlass(painter, centre, radius, true);

  const qreal drawn = area.height() * 0.2;
  const QPointF chuteStart(centre.x() + radius * 0.7, centre.y() + radius * 0.72);
  const QPointF chuteEnd(area.right() - 1, centre.y() + radius * 0.8 + drawn * 0.3);
  painter.save();
  painter.setPen(
      QPen(QColor(110, 110, 120), std::max<qreal>(1.5, drawn * 0.3), Qt::SolidLine, Qt::RoundCap));
  painter.drawLine(chuteStart + QPointF(0, drawn), chuteEnd + QPointF(0, drawn));
  painter.restore();
  const auto onChute = [&](qreal x) {
    const qreal share = (x - chuteStart.x()) / (chuteEnd.x() - chuteStart.x());
    return QPointF(x, chuteStart.y() + share * (chuteEnd.y() - chuteStart.y()));
  };
  drawBall(painter, onChute(area.right() - drawn * 3.2), drawn, kBallColours[2], "17");
  drawBall(painter, onChute(area.right() - drawn * 1.05), drawn, kBallColours[1], "8");
}

// A Lotto ticket lying on the form: a red band with the name of the game over
// a grid of boxes, some of them marked in pen.
void paintTicketSlip(QPainter& painter, const QRectF& area) {
  const QRectF slip = area.adjusted(1, 1, -3, -3);
  painter.save();
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(0, 0, 0, 60));
  painter.drawRect(slip.translated(2, 2));
  painter.setPen(QPen(kSlipRed.darker(150), 1));
  painter.setBrush(kPaper);
  painter.drawRect(slip);
  const QRectF band(slip.left(), slip.top(), slip.width(), slip.height() * 0.3);
  painter.fillRect(band.adjusted(0.5, 0.5, 0, 0), kSlipRed);
  painter.restore();
  drawFittedText(painter, band.adjusted(2, 1, -2, -1), "LOTTO", Qt::white, true, 40);

  constexpr int kColumns = 6;
  constexpr int kRows = 3;
  // The marked boxes of each row, one bit a column.
  constexpr std::array<int, kRows> kMarks{0b001010, 0b110000, 0b000101};
  const QRectF grid =
      QRectF(slip.left(), band.bottom(), slip.width(), slip.bottom() - band.bottom())
          .adjusted(slip.width() * 0.08, 3, -slip.width() * 0.08, -2);
  const qreal cellWidth = grid.width() / kColumns;
  const qreal cellHeight = grid.height() / kRows;
  painter.save();
  for (int row = 0; row < kRows; ++row) {
    for (int column = 0; column < kColumns; ++column) {
      const QRectF box(grid.left() + column * cellWidth + 1, grid.top() + row * cellHeight + 1,
                       cellWidth - 2, cellHeight - 2);
      const bool marked = (kMarks[static_cast<std::size_t>(row)] >> column & 1) != 0;
      painter.setPen(QPen(kSlipRed.lighter(150), 1));
      painter.setBrush(marked ? kPenBlue : Qt::transparent);
      painter.drawRect(box);
    }
  }
  painter.restore();
}

}  // namespace veridraw::gui
