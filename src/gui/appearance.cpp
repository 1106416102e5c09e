#include "gui/appearance.h"

#include <algorithm>
#include <cmath>

namespace veridraw::gui {

namespace {

constexpr double kPixelsPerPoint = 96.0 / 72.0;

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

QFont modelFont(double points, bool bold) {
  QFont font;
  // The classic face first; where it is missing, faces of about its width.
  font.setFamilies({"MS Sans Serif", "Microsoft Sans Serif", "Tahoma", "Arial", "Liberation Sans",
                    "DejaVu Sans Condensed", "DejaVu Sans"});
  font.setStyleHint(QFont::SansSerif);
  font.setPixelSize(std::max(1, static_cast<int>(std::lround(points * kPixelsPerPoint))));
  font.setBold(bold);
  return font;
}

}  // namespace veridraw::gui
