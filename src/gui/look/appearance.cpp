#include "gui/look/appearance.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <tuple>
#include <utility>

namespace veridraw::gui {

namespace {

constexpr double kPixelsPerPoint = 96.0 / 72.0;

// Where Debian's fonts-wine puts its faces, outside the font configuration:
// the program loads them itself.
constexpr const char* kWineFonts = "/usr/share/wine/fonts/";
constexpr std::array kWineFaces{"ms_sans_serif.ttf", "tahoma.ttf", "tahomabd.ttf"};

constexpr const char* kBitmapFamily = "MS Sans Serif";

// The point sizes that the bitmap face has, in its one strike of 13 pixels
// (8 points on a 96 dpi screen). It has no bold of its own.
constexpr double kBitmapFromPoints = 7.5;
constexpr double kBitmapToPoints = 9.0;
constexpr int kBitmapPixels = 13;

bool loadFaces() {
  for (const char* face : kWineFaces)
    QFontDatabase::addApplicationFont(QString::fromLatin1(kWineFonts) + QString::fromLatin1(face));
  return QFontDatabase::families().contains(QString::fromLatin1(kBitmapFamily));
}

// Whether the bitmap face is there; the faces are loaded at the first call.
bool haveBitmapFace() {
  static const bool loaded = loadFaces();
  return loaded;
}

bool bitmapFaceFor(double points, bool bold) {
  return !bold && points >= kBitmapFromPoints && points <= kBitmapToPoints && haveBitmapFace();
}

QFont bitmapFace() {
  QFont font(QString::fromLatin1(kBitmapFamily));
  font.setStyleHint(QFont::SansSerif);
  font.setPixelSize(kBitmapPixels);
  return font;
}

int designedPixels(double points) {
  return std::max(1, static_cast<int>(std::lround(points * kPixelsPerPoint)));
}

// The scale of the screens, device pixels to a pixel of the layout: the
// desktop's, or QT_SCALE_FACTOR's.
qreal deviceRatio() {
  return qGuiApp != nullptr ? qGuiApp->devicePixelRatio() : 1.0;
}

// Whether text of this size is set in a stand-in for the bitmap face: the
// bitmap face has its one strike, which a scaled screen would show at its own
// size with the letters spread out to the scaled widths.
bool standsInForBitmap(double points, bool bold) {
  return bitmapFaceFor(points, bold) && deviceRatio() != 1.0;
}

// How wide the text reaches on its lines: a scalable face's last letter may
// reach a little past its advance.
qreal spanOf(const QFont& font, const QString& text) {
  constexpr qreal kFar = 1e6;
  return QFontMetricsF(font).boundingRect(QRectF(0, 0, kFar, kFar), 0, text).width();
}

// The scalable face at the bitmap face's pixel size, narrowed so that `text`
// spans the width that the bitmap face gives it: whole percents of stretch,
// then a fraction of a pixel between the letters for the rest. The height is
// the bitmap face's, so lines and rows stand where they stood.
QFont narrowedToBitmap(const QString& text) {
  QFont font = scalableFont(kBitmapPixels, false);
  const qreal designed = spanOf(bitmapFace(), text);
  const qreal natural = spanOf(font, text);
  if (designed <= 0 || natural <= 0) return font;
  constexpr int kNarrowest = 50;
  constexpr int kWidest = 150;
  int stretch =
      std::clamp(static_cast<int>(std::floor(100 * designed / natural)), kNarrowest, kWidest);
  font.setStretch(stretch);
  while (stretch > kNarrowest && spanOf(font, text) > designed)
    font.setStretch(--stretch);
  const qreal stretched = spanOf(font, text);
  if (stretched >= designed) return font;
  // A percent of stretch is a pixel or more on a long text: a little room
  // between the letters makes up the rest. Not every letter takes it (a blank
  // between words may not), so a trial pixel finds what it adds to the whole.
  QFont spaced = font;
  spaced.setLetterSpacing(QFont::AbsoluteSpacing, 1);
  const qreal added = spanOf(spaced, text) - stretched;
  if (added <= 0) return font;
  spaced.setLetterSpacing(QFont::AbsoluteSpacing, (designed - stretched) / added);
  const qreal span = spanOf(spaced, text);
  return span <= designed && span > stretched ? spaced : font;
}

// All the printable ASCII letters, for a stretch of the stand-in that suits
// text in general, such as the rows of a list.
QString everyLetter() {
  QString letters;
  for (char16_t code = u' '; code <= u'~'; ++code)
    letters += QChar(code);
  return letters;
}

QFont matchedFont(double points, bool bold) {
  if (standsInForBitmap(points, bold)) return narrowedToBitmap(everyLetter());
  return designedFont(points, bold);
}

}  // namespace

int toPixels(int twips) {
  return static_cast<int>(std::lround(static_cast<double>(twips) / kTwipsPerPixel));
}

QRect toPixels(int left, int top, int width, int height) {
  return {toPixels(left), toPixels(top), toPixels(width), toPixels(height)};
}

QColor modelColor(std::int32_t bgr) {
  const auto value = static_cast<std::uint32_t>(bgr);
  return {static_cast<int>(value & 0xFF), static_cast<int>((value >> 8) & 0xFF),
          static_cast<int>((value >> 16) & 0xFF)};
}

QColor toQColor(pictures::Colour colour) {
  return QColor::fromRgba64(colour.wideRed(), colour.wideGreen(), colour.wideBlue(),
                            colour.wideAlpha());
}

QFont designedFont(double points, bool bold) {
  if (bitmapFaceFor(points, bold)) return bitmapFace();
  return scalableFont(designedPixels(points), bold);
}

QFont modelFont(double points, bool bold) {
  // Few sizes are in use, and a font is costly to match: each is made once
  // for each scale of the screens.
  static std::map<std::tuple<double, bool, qreal>, QFont> made;
  const auto [place, isNew] = made.try_emplace({points, bold, deviceRatio()});
  if (isNew) place->second = matchedFont(points, bold);
  return place->second;
}

QFont textFont(double points, bool bold, const QString& shown) {
  if (shown.isEmpty() || !standsInForBitmap(points, bold)) return modelFont(points, bold);
  // The texts that the screens show are few, but a text box takes what is typed.
  constexpr std::size_t kMostKept = 4096;
  static std::map<std::pair<qreal, QString>, QFont> narrowed;
  if (narrowed.size() >= kMostKept) narrowed.clear();
  const auto [place, isNew] = narrowed.try_emplace({deviceRatio(), shown});
  if (isNew) place->second = narrowedToBitmap(shown);
  return place->second;
}

QFont scalableFont(int pixels, bool bold) {
  haveBitmapFace();
  QFont font;
  font.setFamilies({"Tahoma", "Liberation Sans", "Arial", "DejaVu Sans Condensed", "DejaVu Sans"});
  font.setStyleHint(QFont::SansSerif);
  // Hinted up and down only: the letters keep the widths they were designed
  // with, whatever the desktop's own hinting, so captions fit alike everywhere.
  font.setHintingPreference(QFont::PreferVerticalHinting);
  font.setPixelSize(pixels);
  font.setBold(bold);
  // Said outright: Qt may otherwise lay a font of any width out with a face
  // narrowed for the stand-in of the bitmap face.
  font.setStretch(QFont::Unstretched);
  return font;
}

QString captionFamily() {
  return QFontInfo(modelFont(8.25, false)).family();
}

}  // namespace veridraw::gui
