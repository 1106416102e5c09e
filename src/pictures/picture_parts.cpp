#include "pictures/picture_parts.h"

#include <QFontMetricsF>
#include <QLinearGradient>
#include <QPainterPath>
#include <QRadialGradient>
#include <algorithm>
#include <cmath>

#include "gui/look/appearance.h"

namespace veridraw::gui {

namespace {

constexpr int kSmallestPixels = 6;

bool darkColour(const QColor& colour) {
  return colour.lightness() < 150;
}

}  // namespace

QFont fittedFont(const QString& text, const QSizeF& box, bool bold, int maxPixels) {
  QFont font = scalableFont(maxPixels, bold);
  for (int pixels = std::max(kSmallestPixels, maxPixels); pixels >= kSmallestPixels; --pixels) {
    font.setPixelSize(pixels);
    const QFontMetricsF metrics(font);
    if (metrics.horizontalAdvance(text) <= box.width() && metrics.capHeight() <= box.height())
      return font;
  }
  font.setPixelSize(kSmallestPixels);
  return font;
}

void drawBall(QPainter& painter, const QPointF& centre, qreal radius, const QColor& colour,
              const QString& number) {
  painter.save();
  QRadialGradient shade(centre - QPointF(radius / 3, radius / 3), radius * 1.4);
  shade.setColorAt(0, colour.lighter(170));
  shade.setColorAt(0.45, colour);
  shade.setColorAt(1, colour.darker(170));
  painter.setPen(QPen(colour.darker(220), std::max<qreal>(0.6, radius / 12)));
  painter.setBrush(shade);
  painter.drawEllipse(centre, radius, radius);
  if (!number.isEmpty()) {
    const QRectF face(centre.x() - radius * 0.72, centre.y() - radius * 0.62, radius * 1.44,
                      radius * 1.24);
    drawFittedText(painter, face, number, darkColour(colour) ? Qt::white : Qt::black, true,
                   static_cast<int>(radius * 1.15));
  }
  painter.restore();
}

void drawFittedText(QPainter& painter, const QRectF& box, const QString& text, const QColor& colour,
                    bool bold, int maxPixels) {
  const QFont font = fittedFont(text, box.size(), bold, maxPixels);
  const QFontMetricsF metrics(font);
  // Centre the capitals, not the whole line with its descenders.
  const qreal baseline = box.center().y() + metrics.capHeight() / 2;
  const qreal left = box.center().x() - metrics.horizontalAdvance(text) / 2;
  painter.save();
  painter.setFont(font);
  painter.setPen(colour);
  painter.drawText(QPointF(left, baseline), text);
  painter.restore();
}

void fillPanel(QPainter& painter, const QRectF& area, const QColor& top, const QColor& bottom) {
  painter.save();
  QLinearGradient shade(area.topLeft(), area.bottomLeft());
  shade.setColorAt(0, top);
  shade.setColorAt(1, bottom);
  const qreal corner = std::min(area.width(), area.height()) / 8;
  painter.setPen(QPen(bottom.darker(160), 1));
  painter.setBrush(shade);
  painter.drawRoundedRect(area.adjusted(0.5, 0.5, -0.5, -0.5), corner, corner);
  painter.restore();
}

}  // namespace veridraw::gui
