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

// The classic dialog font at the given size. The layout is in pixels of a
// 96 dpi screen, so the size is set in those pixels too.
QFont modelFont(double points, bool bold);

// The colours of the classic three-dimensional edges.
namespace edges {
inline const QColor kHighlight{255, 255, 255};
inline const QColor kLight{223, 223, 223};
inline const QColor kShadow{128, 128, 128};
inline const QColor kDarkShadow{0, 0, 0};
inline const QColor kSelection{0, 0, 128};
}  // namespace edges

}  // namespace veridraw::gui
