// How controls and pictures are painted: the access key underlined and its
// "&" not drawn, the caret and the selection where the model has them, and
// the three game pictures plainly told apart.
#include <QImage>
#include <QPainter>
#include <QSet>
#include <QTest>
#include <cmath>

#include "gui/look/appearance.h"
#include "gui/look/control_painting.h"
#include "gui/look/qt_canvas.h"

using namespace veridraw;
using namespace veridraw::gui;

namespace {

const QSize kButtonSize(73, 25);

ControlLook buttonLook(const QString& caption) {
  ControlLook look;
  look.kind = ControlKind::CommandButton;
  look.text = caption;
  look.background = QColor(0xC0, 0xC0, 0xC0);
  look.foreground = Qt::black;
  look.font = modelFont(8.25, false);
  return look;
}

QImage painted(const ControlLook& look, const QSize& size, bool pressed = false) {
  QImage image(size, QImage::Format_RGB32);
  image.fill(Qt::magenta);
  QPainter painter(&image);
  paintControl(painter, image.rect(), look, pressed);
  return image;
}

QImage picture(Picture drawing, const QSize& size) {
  QImage image(size, QImage::Format_RGB32);
  image.fill(QColor(0xC0, 0xC0, 0xC0));
  QPainter painter(&image);
  paintPicture(painter, image.rect(), drawing);
  return image;
}

// The rows in which two images of one size differ.
QSet<int> differingRows(const QImage& a, const QImage& b) {
  QSet<int> rows;
  for (int y = 0; y < a.height(); ++y)
    for (int x = 0; x < a.width(); ++x)
      if (a.pixel(x, y) != b.pixel(x, y)) rows.insert(y);
  return rows;
}

// Where the caption of a button is drawn: the pixels inside its edges that
// aren't its face.
QRect ink(const QImage& image) {
  const QRect inside = image.rect().adjusted(3, 3, -3, -3);
  const QRgb face = QColor(0xC0, 0xC0, 0xC0).rgb();
  QRect found;
  for (int y = inside.top(); y <= inside.bottom(); ++y)
    for (int x = inside.left(); x <= inside.right(); ++x)
      if (image.pixel(x, y) != face) found |= QRect(x, y, 1, 1);
  return found;
}

int colourCount(const QImage& image) {
  QSet<QRgb> colours;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      colours.insert(image.pixel(x, y));
  return static_cast<int>(colours.size());
}

QColor meanColour(const QImage& image) {
  double red = 0, green = 0, blue = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      const QColor colour = image.pixelColor(x, y);
      red += colour.red();
      green += colour.green();
      blue += colour.blue();
    }
  }
  const double pixels = image.width() * image.height();
  return QColor(int(red / pixels), int(green / pixels), int(blue / pixels));
}

double distance(const QColor& a, const QColor& b) {
  return std::hypot(a.red() - b.red(), a.green() - b.green(), a.blue() - b.blue());
}

}  // namespace

class PaintingTest : public QObject {
  Q_OBJECT

 private slots:
  void theAccessKeyIsUnderlinedAndItsAmpersandNotDrawn() {
    const QRect marked = ink(painted(buttonLook("&Readme"), kButtonSize));
    const QRect plain = ink(painted(buttonLook("Readme"), kButtonSize));
    QVERIFY(!plain.isEmpty());
    // No "&" is drawn: the caption is as wide as without it, but for the
    // underline reaching out to the side bearing of the "R".
    QCOMPARE(marked.right(), plain.right());
    QVERIFY(plain.left() - marked.left() <= 2);
    // The underline runs below the letters, none of which goes below the line.
    QVERIFY(marked.bottom() > plain.bottom());
  }

  void aPressedButtonIsDrawnSunken() {
    const ControlLook look = buttonLook("&Readme");
    const QImage raised = painted(look, kButtonSize);
    const QImage pressed = painted(look, kButtonSize, true);
    QCOMPARE(raised.pixelColor(0, 0), QColor(255, 255, 255));
    QCOMPARE(pressed.pixelColor(0, 0), QColor(0, 0, 0));
  }

  void theFocusedButtonWearsAFrame() {
    ControlLook look = buttonLook("&Readme");
    const QImage plain = painted(look, kButtonSize);
    look.focused = true;
    const QImage focused = painted(look, kButtonSize);
    QCOMPARE(focused.pixelColor(0, 0), QColor(0, 0, 0));
    QVERIFY(differingRows(plain, focused).size() > 4);
  }

  void theCaretIsDrawnOnlyInTheFocusedTextBoxWhereTheModelHasIt() {
    ControlLook look = buttonLook("12 ");
    look.kind = ControlKind::TextBox;
    look.background = Qt::white;
    look.borderStyle = 1;
    look.caret = 2;
    const QSize size(40, 20);
    const QImage unfocused = painted(look, size);
    look.focused = true;
    const QImage atTwo = painted(look, size);
    look.caret = 0;
    const QImage atZero = painted(look, size);
    QVERIFY(!differingRows(unfocused, atTwo).isEmpty());
    QVERIFY(!differingRows(atTwo, atZero).isEmpty());
  }

  void theSelectedItemOfAListIsHighlighted() {
    ControlLook look = buttonLook("");
    look.kind = ControlKind::ListBox;
    look.background = Qt::white;
    look.borderStyle = 1;
    look.items = {"1105", "1104", "1103"};
    look.listIndex = 1;
    const QImage image = painted(look, QSize(80, 60));
    const ListRows rows = listRows(QRect(0, 0, 80, 60), look);
    QVERIFY(rows.scrollBar.isEmpty());
    const int secondRow = rows.items.top() + rows.rowHeight + rows.rowHeight / 2;
    QCOMPARE(image.pixelColor(rows.items.right() - 2, secondRow), QColor(0, 0, 128));
    QCOMPARE(image.pixelColor(rows.items.right() - 2, rows.items.top() + 2), QColor(255, 255, 255));
  }

  void theThreeGamesArePlainlyToldApart() {
    const QSize size(105, 49);
    const QImage lotto = picture(Picture::Lotto, size);
    const QImage strike = picture(Picture::Strike, size);
    const QImage powerBall = picture(Picture::PowerBall, size);
    for (const QImage* game : {&lotto, &strike, &powerBall})
      QVERIFY(colourCount(*game) > 50);
    QVERIFY(distance(meanColour(lotto), meanColour(strike)) > 100);
    QVERIFY(distance(meanColour(lotto), meanColour(powerBall)) > 100);
    QVERIFY(distance(meanColour(strike), meanColour(powerBall)) > 60);
  }

  void theNoticeStaysLegibleOnTheNarrowButtonOfTheDrawScreen() {
    // The picture inside the 177 x 25 notice button of the draw screen, and
    // inside the wider one of the start screen.
    for (const int width : {171, 315}) {
      const QImage notice = picture(Picture::Notice, QSize(width, 19));
      // The rows in which the dark blue words stand, right of the badge.
      QSet<int> rows;
      for (int y = 0; y < notice.height(); ++y)
        for (int x = notice.height() + 4; x < notice.width(); ++x)
          if (distance(notice.pixelColor(x, y), QColor(20, 40, 110)) < 40) rows.insert(y);
      // Capitals of at least seven pixels: a face of ten pixels or more.
      QVERIFY2(rows.size() >= 7, qPrintable(QString::number(rows.size())));
    }
  }

  void everyPictureIsDrawn() {
    const QSize size(80, 60);
    QImage blank(size, QImage::Format_RGB32);
    blank.fill(QColor(0xC0, 0xC0, 0xC0));
    for (const Picture drawing : kAllPictures) {
      const QImage image = picture(drawing, size);
      const QByteArray name(pictureName(drawing).data(), qsizetype(pictureName(drawing).size()));
      QVERIFY2(colourCount(image) > 10, name.constData());
      QVERIFY2(!differingRows(image, blank).isEmpty(), name.constData());
    }
    // No picture, nothing drawn.
    QCOMPARE(picture(Picture::None, size), blank);
  }
};

QTEST_MAIN(PaintingTest)
#include "painting_test.moc"
