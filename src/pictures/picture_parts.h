// Pieces from which the pictures are drawn.
#pragma once

#include <QColor>
#include <QFont>
#include <QPainter>
#include <QPointF>
#include <QRectF>
#include <QString>

namespace veridraw::gui {

// A lottery ball: a shaded sphere with its number.
void drawBall(QPainter& painter, const QPointF& centre, qreal radius, const QColor& colour,
              const QString& number);

// The largest bold or plain font, up to `maxPixels`, in which the text fits the box.
QFont fittedFont(const QString& text, const QSizeF& box, bool bold, int maxPixels);

// Text fitted into the box and centred in it.
void drawFittedText(QPainter& painter, const QRectF& box, const QString& text, const QColor& colour,
                    bool bold, int maxPixels);

// A panel with rounded corners, shaded from one colour to another downwards.
void fillPanel(QPainter& painter, const QRectF& area, const QColor& top, const QColor& bottom);

}  // namespace veridraw::gui
