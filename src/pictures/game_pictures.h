// The pictures of the three games, drawn so that they are plainly told apart:
// Lotto a row of coloured balls, Strike four balls in order with arrows,
// PowerBall one big ball with a lightning mark.
#pragma once

#include <QPainter>
#include <QRectF>

namespace veridraw::gui {

void paintLotto(QPainter& painter, const QRectF& area);
void paintStrike(QPainter& painter, const QRectF& area);
void paintPowerBall(QPainter& painter, const QRectF& area);

}  // namespace veridraw::gui
