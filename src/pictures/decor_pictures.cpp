#include "pictures/decor_pictures.h"

#include <QPainterPath>
#include <algorithm>
#include <array>

#include "pictures/picture_parts.h"

namespace veridraw::gui {

namespace {

const QColor kGold(232, 182, 30);
const QColor kNoticeInk(20, 40, 110);

// The owner's notice, from the whole sentence to the fewest words: a narrow
// button shows the longest that it can show legibly.
constexpr std::array kNotices{"Veridraw is free to use and to share", "Free to use and to share",
                              "Free to share"};
constexpr int kNoticePixels = 13;
constexpr int kLegiblePixels = 10;
const QColor kBanknote(120, 178, 110);

QRectF centredSquare(const QRectF& area, qreal margin) {
  const qreal side = std::min(area.width(), area.height()) - 2 * margin;
  return {area.center().x() - side / 2, area.center().y() - side / 2, side, side};
}

void drawTick(QPainter& painter, const QRectF& box, const QColor& colour) {
  QPainterPath tick;
  tick.moveTo(box.left() + box.width() * 0.22, box.top() + box.height() * 0.52);
  tick.lineTo(box.left() + box.width() * 0.42, box.top() + box.height() * 0.72);
  tick.lineTo(box.left() + box.width() * 0.78, box.top() + box.height() * 0.30);
  painter.save();
  painter.setPen(QPen(colour, std::max<qreal>(1.5, box.width() / 8), Qt::SolidLine, Qt::RoundCap,
                      Qt::RoundJoin));
  painter.setBrush(Qt::NoBrush);
  painter.drawPath(tick);
  painter.restore();
}

// One coin lying flat: its face over a darker rim.
void drawFlatCoin(QPainter& painter, const QRectF& coin) {
  const qreal rim = coin.height() * 0.22;
  const QColor side = kGold.darker(125);
  const QPointF leftEdge(coin.left(), coin.center().y());
  const QPointF rightEdge(coin.right(), coin.center().y());
  painter.setPen(QPen(kGold.darker(170), 1));
  painter.setBrush(side);
  painter.drawEllipse(coin.translated(0, rim));
  painter.fillRect(QRectF(leftEdge, QSizeF(coin.width(), rim)), side);
  painter.drawLine(leftEdge, leftEdge + QPointF(0, rim));
  painter.drawLine(rightEdge, rightEdge + QPointF(0, rim));
  painter.setBrush(kGold);
  painter.drawEllipse(coin);
}

void drawBanknote(QPainter& painter, const QRectF& note) {
  painter.save();
  painter.setPen(QPen(kBanknote.darker(200), 1));
  painter.setBrush(kBanknote);
  painter.drawRect(note);
  const QRectF inner = note.adjusted(note.height() * 0.1, note.height() * 0.1, -note.height() * 0.1,
                                     -note.height() * 0.1);
  painter.setPen(QPen(kBanknote.darker(160), 1));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(inner);
  const QRectF oval = centredSquare(inner, inner.height() * 0.08);
  painter.setBrush(kBanknote.lighter(130));
  painter.drawEllipse(oval.adjusted(-oval.width() * 0.2, 0, oval.width() * 0.2, 0));
  // The dollar sign reaches above and below its capitals: it is kept inside the oval.
  drawFittedText(painter, oval, "$", kBanknote.darker(240), true,
                 static_cast<int>(oval.height() * 0.7));
  // Its value in two corners.
  const QSizeF corner(inner.width() * 0.18, inner.height() * 0.3);
  const qreal gap = inner.height() * 0.06;
  drawFittedText(painter, QRectF(inner.topLeft() + QPointF(gap, gap), corner), "100",
                 kBanknote.darker(200), true, 30);
  drawFittedText(
      painter,
      QRectF(inner.bottomRight() - QPointF(gap + corner.width(), gap + corner.height()), corner),
      "100", kBanknote.darker(200), true, 30);
  painter.restore();
}

}  // namespace

void paintMark(QPainter& painter, const QRectF& area) {
  const QRectF seal = centredSquare(area, 1);
  painter.save();
  painter.setPen(QPen(kGold.darker(160), 1));
  painter.setBrush(kGold);
  painter.drawEllipse(seal);
  const qreal ring = seal.width() * 0.12;
  painter.setBrush(Qt::white);
  painter.drawEllipse(seal.adjusted(ring, ring, -ring, -ring));
  painter.restore();
  drawTick(painter, seal.adjusted(ring, ring, -ring, -ring), QColor(20, 140, 50));
}

void paintNotice(QPainter& painter, const QRectF& area) {
  const QRectF inner = area.adjusted(2, 2, -2, -2);
  const QRectF badge(inner.left() + 2, inner.top(), inner.height(), inner.height());
  painter.save();
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(30, 80, 170));
  painter.drawEllipse(badge);
  painter.restore();
  drawFittedText(painter, badge.adjusted(2, 2, -2, -2), "i", Qt::white, true, 40);
  const QRectF text = inner.adjusted(badge.width() + 8, 1, 0, -1);
  const char* notice = kNotices.back();
  for (const char* words : kNotices) {
    if (fittedFont(words, text.size(), true, kNoticePixels).pixelSize() < kLegiblePixels) continue;
    notice = words;
    break;
  }
  drawFittedText(painter, text, notice, kNoticeInk, true, kNoticePixels);
}

QString noticeWords() {
  return QString::fromLatin1(kNotices.front());
}

void paintCoins(QPainter& painter, const QRectF& area) {
  const qreal width = area.width() * 0.42;
  const qreal height = width * 0.38;
  painter.save();
  const int stacks = 2;
  for (int stack = 0; stack < stacks; ++stack) {
    const qreal left = area.left() + area.width() * (stack == 0 ? 0.06 : 0.5);
    const int coins = stack == 0 ? 5 : 3;
    const qreal step = height * 0.42;
    for (int coin = 0; coin < coins; ++coin) {
      const qreal top = area.bottom() - height * 1.3 - coin * step;
      drawFlatCoin(painter, QRectF(left, top, width, height));
    }
  }
  painter.restore();
}

// A bundle of banknotes: the front one whole, the ones behind it showing
// only their edges.
void paintMoney(QPainter& painter, const QRectF& area) {
  const qreal step = std::max<qreal>(2, area.height() * 0.05);
  const int notes = 3;
  const QRectF front(area.left() + step * notes, area.top() + step * notes,
                     area.width() - step * (notes + 1), area.height() - step * (notes + 1));
  for (int behind = notes - 1; behind >= 0; --behind)
    drawBanknote(painter, front.translated(-step * behind, -step * behind));
}

void paintPlainPanel(QPainter& painter, const QRectF& area) {
  fillPanel(painter, area, QColor(236, 236, 230), QColor(206, 206, 198));
  // Three balls side by side, as large as the panel allows.
  const qreal radius = std::min(area.height() * 0.3, area.width() / 8);
  const QPointF centre = area.center();
  drawBall(painter, centre - QPointF(radius * 1.7, 0), radius, QColor(210, 30, 30), {});
  drawBall(painter, centre, radius, QColor(242, 190, 0), {});
  drawBall(painter, centre + QPointF(radius * 1.7, 0), radius, QColor(30, 90, 210), {});
}

}  // namespace veridraw::gui
