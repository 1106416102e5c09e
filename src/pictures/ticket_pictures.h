// The decoration under the two grids of the ticket screens: the machine that
// draws the balls, and a Lotto ticket.
#pragma once

#include <QPainter>
#include <QRectF>

namespace veridraw::gui {

void paintDrawMachine(QPainter& painter, const QRectF& area);
void paintTicketSlip(QPainter& painter, const QRectF& area);

}  // namespace veridraw::gui
