#include "gui/look/appearance.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <algorithm>
#include <array>
#include <cmath>
#include <map>
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

QFont matchedFont(double points, bool bold) {
  if (bitmapFaceFor(points, bold)) {
    QFont font(QString::fromLatin1(kBitmapFamily));
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(kBitmapPixels);
    return font;
  }
  return scalableFont(std::max(1, static_cast<int>(std::lround(points * kPixelsPerPoint))), bold);
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

QFont modelFont(double points, bool bold) {
  // Few sizes are in use, and a font is costly to match: each is made once.
  static std::map<std::pair<double, bool>, QFont> made;
  const auto [place, isNew] = made.try_emplace({points, bold});
  if (isNew) place->second = matchedFont(points, bold);
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
  return font;
}

QString captionFamily() {
  return QFontInfo(modelFont(8.25, false)).family();
}

}  // namespace veridraw::gui
