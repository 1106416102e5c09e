// How the model's units, colours and fonts look on the desktop: 15 twips to
// the pixel, colours as 0x00BBGGRR, type sizes in points of a 96 dpi screen.
#pragma once

#include <QColor>
#include <QFont>
#include <QRect>
#include <cstdint>

namespace veridraw::gui {

inline constexpr int kTwipsPerPixel = 15;

int toPixels(int twips);
QRect toPixels(int left, int top, int width, int height);

QColor modelColor(std::int32_t bgr);

// The font of the forms at the given size. The layout is in pixels of a 96 dpi
// screen, so the size is set in those pixels too. The forms were laid out for
// the classic 8-point bitmap sans-serif, whose widths their captions fit to the
// pixel: plain text at 8 points is set in it, from the stand-ins of the classic
// UI fonts in Debian's fonts-wine. Bold text and other sizes, which it has not,
// or all text without it, take a scalable face of about its width: Tahoma
// (fonts-wine), then Liberation Sans (fonts-liberation2, Arial's widths), then
// DejaVu Sans Condensed and DejaVu Sans.
QFont modelFont(double points, bool bold);

// A scalable face of the same look at any pixel size, for text that is fitted
// to a box by trying sizes.
QFont scalableFont(int pixels, bool bold);

// The family that the forms' captions are set in at 8 points, for a note of
// what this machine has.
QString captionFamily();

// The colours of the classic three-dimensional edges.
namespace edges {
inline const QColor kHighlight{255, 255, 255};
inline const QColor kLight{223, 223, 223};
inline const QColor kShadow{128, 128, 128};
inline const QColor kDarkShadow{0, 0, 0};
inline const QColor kSelection{0, 0, 128};
}  // namespace edges

}  // namespace veridraw::gui
