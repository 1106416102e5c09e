#include "pictures/document_pictures.h"

#include <QFontMetricsF>
#include <QPolygonF>
#include <array>

#include "gui/look/appearance.h"
#include "pictures/picture_parts.h"

namespace veridraw::gui {

namespace {

struct Document {
  std::string_view name;
  const char* heading;
  const char* body;
  QColor colour;
};

const std::array kDocuments{
    Document{"document-lotto", "Lotto", "Six numbers from 1 to 40 and a Bonus number.",
             QColor(196, 18, 28)},
    Document{"document-strike", "Strike", "Four numbers from 1 to 40, in the order drawn.",
             QColor(20, 60, 150)},
    Document{"document-powerball", "PowerBall", "A Lotto line and one more number from 1 to 8.",
             QColor(40, 40, 48)},
    Document{"document-notes", "Notes",
             "Type two digits for each number: the cursor moves on by itself. The space bar "
             "steps back.",
             QColor(30, 110, 90)},
    Document{"document-contact", "Contact", "Write to us through the issue tracker.",
             QColor(0, 110, 140)},
};

constexpr int kLargestBody = 11;
constexpr int kSmallestBody = 7;

// The body in the largest size, from 11 pixels down, at which it fits the box.
void drawBody(QPainter& painter, const QRectF& box, const QString& text) {
  const int flags = Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap;
  QFont font = scalableFont(kLargestBody, false);
  for (int pixels = kLargestBody; pixels >= kSmallestBody; --pixels) {
    font.setPixelSize(pixels);
    if (QFontMetricsF(font).boundingRect(box, flags, text).height() <= box.height()) break;
  }
  painter.save();
  painter.setFont(font);
  painter.setPen(QColor(30, 30, 30));
  painter.drawText(box, flags, text);
  painter.restore();
}

void drawPage(QPainter& painter, const QRectF& page, const Document& document) {
  const qreal fold = std::min(page.width(), page.height()) * 0.16;
  painter.save();
  // The shadow, the page with its top right corner folded, and the fold.
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(0, 0, 0, 60));
  painter.drawRect(page.translated(2, 2));
  const QPolygonF sheet({page.topLeft(), QPointF(page.right() - fold, page.top()),
                         QPointF(page.right(), page.top() + fold), page.bottomRight(),
                         page.bottomLeft()});
  painter.setPen(QPen(QColor(150, 150, 150), 1));
  painter.setBrush(Qt::white);
  painter.drawPolygon(sheet);
  const qreal band = std::max<qreal>(10, std::min(page.height() * 0.3, 18.0));
  const QRectF heading(page.left() + 1, page.top() + 1, page.width() - fold - 1, band);
  painter.fillRect(heading, document.colour);
  painter.setBrush(QColor(220, 220, 220));
  painter.drawPolygon(QPolygonF({QPointF(page.right() - fold, page.top()),
                                 QPointF(page.right() - fold, page.top() + fold),
                                 QPointF(page.right(), page.top() + fold)}));
  painter.restore();
  drawFittedText(painter, heading.adjusted(4, 2, -4, -2), document.heading, Qt::white, true, 13);
  const QRectF body(page.left() + 5, heading.bottom() + 3, page.width() - 10,
                    page.bottom() - heading.bottom() - 5);
  if (body.height() >= kSmallestBody) drawBody(painter, body, document.body);
}

}  // namespace

bool paintDocument(QPainter& painter, const QRectF& area, std::string_view name) {
  for (const Document& document : kDocuments) {
    if (document.name != name) continue;
    drawPage(painter, area.adjusted(1, 1, -3, -3), document);
    return true;
  }
  return false;
}

QString documentWords(std::string_view name) {
  for (const Document& document : kDocuments)
    if (document.name == name)
      return QString::fromLatin1(document.heading) + ": " + QString::fromLatin1(document.body);
  return {};
}

}  // namespace veridraw::gui
