// The pictures' canvas on a QPainter: its colours and shades are Qt's own, to
// the bit, and its shapes land where the painter's own calls put them.
#include <QImage>
#include <QPainter>
#include <QTest>

#include "gui/look/appearance.h"
#include "gui/look/qt_canvas.h"
#include "pictures/classic_edges.h"

using namespace veridraw;
using namespace veridraw::gui;
using veridraw::pictures::Colour;

namespace {

QImage blank(const QSize& size) {
  QImage image(size, QImage::Format_RGB32);
  image.fill(QColor(0xC0, 0xC0, 0xC0));
  return image;
}

}  // namespace

class QtCanvasTest : public QObject {
  Q_OBJECT

 private slots:
  void aColourIsTheSameQColor() {
    QCOMPARE(toQColor(Colour(232, 182, 30)), QColor(232, 182, 30));
    QCOMPARE(toQColor(Colour(0, 0, 0, 60)), QColor(0, 0, 0, 60));
  }

  // The pictures shade their colours darker and lighter by these factors.
  void shadesAreQtsShades() {
    int compared = 0;
    for (int red = 0; red < 256; red += 5) {
      for (int green = 0; green < 256; green += 7) {
        for (int blue = 0; blue < 256; blue += 3) {
          const Colour colour(red, green, blue);
          const QColor qt(red, green, blue);
          for (const int factor : {125, 150, 160, 170, 180, 200, 220, 240}) {
            QCOMPARE(toQColor(colour.darker(factor)), qt.darker(factor));
            ++compared;
          }
          for (const int factor : {130, 150, 170}) {
            QCOMPARE(toQColor(colour.lighter(factor)), qt.lighter(factor));
            ++compared;
          }
          QCOMPARE(colour.lightness(), qt.lightness());
        }
      }
    }
    QVERIFY(compared > 1000000);
  }

  void edgesLandOnThePixelsOfTheirArea() {
    QImage image = blank(QSize(30, 20));
    {
      QPainter painter(&image);
      QtCanvas canvas(painter);
      pictures::classic::drawEdge(canvas, {2, 3, 20, 10}, pictures::classic::Edge::Raised);
    }
    QCOMPARE(image.pixelColor(2, 3), QColor(255, 255, 255));
    QCOMPARE(image.pixelColor(21, 12), QColor(0, 0, 0));
    QCOMPARE(image.pixelColor(3, 4), QColor(223, 223, 223));
    QCOMPARE(image.pixelColor(20, 11), QColor(128, 128, 128));
    QCOMPARE(image.pixelColor(1, 3), QColor(0xC0, 0xC0, 0xC0));
    QCOMPARE(image.pixelColor(22, 12), QColor(0xC0, 0xC0, 0xC0));
  }

  void aShapeIsWhereThePainterPutsIt() {
    QImage byCanvas = blank(QSize(40, 30));
    QImage byPainter = blank(QSize(40, 30));
    {
      QPainter painter(&byCanvas);
      painter.setRenderHint(QPainter::Antialiasing);
      QtCanvas canvas(painter);
      canvas.ellipse({3.5, 4.25, 30, 20}, pictures::Stroke{Colour(10, 20, 30), 1.5},
                     Colour(200, 30, 40));
    }
    {
      QPainter painter(&byPainter);
      painter.setRenderHint(QPainter::Antialiasing);
      painter.setPen(QPen(QColor(10, 20, 30), 1.5));
      painter.setBrush(QColor(200, 30, 40));
      painter.drawEllipse(QRectF(3.5, 4.25, 30, 20));
    }
    QCOMPARE(byCanvas, byPainter);
  }
};

QTEST_MAIN(QtCanvasTest)
#include "qt_canvas_test.moc"
