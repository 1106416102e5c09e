// How the model's units, colours and fonts look on the desktop: 15 twips to
// the pixel, colours as 0x00BBGGRR, type sizes in points of a 96 dpi screen.
#pragma once

#include <QColor>
#include <QFont>
#include <QRect>
#include <cstdint>

#include "pictures/classic_edges.h"
#include "pictures/colour.h"

namespace veridraw::gui {

inline constexpr int kTwipsPerPixel = 15;

int toPixels(int twips);
QRect toPixels(int left, int top, int width, int height);

QColor modelColor(std::int32_t bgr);
// A colour of the pictures and of the classic look, 16 bits a channel as it is.
QColor toQColor(pictures::Colour colour);

// The font that the forms were laid out in at the given size. The layout is in
// pixels of a 96 dpi screen, so the size is set in those pixels too. The forms
// were laid out for the classic 8-point bitmap sans-serif, whose widths their
// captions fit to the pixel: plain text at 8 points is set in it, from the
// stand-ins of the classic UI fonts in Debian's fonts-wine. Bold text and other
// sizes, which it has not, or all text without it, take a scalable face of
// about its width: Tahoma (fonts-wine), then Liberation Sans
// (fonts-liberation2, Arial's widths), then DejaVu Sans Condensed and DejaVu
// Sans.
QFont designedFont(double points, bool bold);

// The font of the forms at the given size on the screens as they are. At a
// scale of 1 it is the designed font. A bitmap face has one size, so on a
// scaled screen (150 %, 200 %) plain 8-point text takes the scalable face
// instead, at the bitmap face's pixel size and narrowed to its widths, and is
// drawn at the screen's own resolution.
QFont modelFont(double points, bool bold);

// The font in which `shown` (the text as it appears, without the "&" of an
// access key) is set: modelFont, where on a scaled screen the stand-in for the
// bitmap face is narrowed for this very text, so that it spans the width that
// the bitmap face gives it and fits its control as it does at 100 %.
QFont textFont(double points, bool bold, const QString& shown);

// A scalable face of the same look at any pixel size, for text that is fitted
// to a box by trying sizes.
QFont scalableFont(int pixels, bool bold);

// The family that the forms' captions are set in at 8 points on these screens,
// for a note of what this machine has.
QString captionFamily();

// The colours of the classic three-dimensional edges.
namespace edges {
inline const QColor kHighlight = toQColor(pictures::classic::kHighlight);
inline const QColor kLight = toQColor(pictures::classic::kLight);
inline const QColor kShadow = toQColor(pictures::classic::kShadow);
inline const QColor kDarkShadow = toQColor(pictures::classic::kDarkShadow);
inline const QColor kSelection = toQColor(pictures::classic::kSelection);
}  // namespace edges

}  // namespace veridraw::gui
