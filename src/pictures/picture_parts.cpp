#include "pictures/picture_parts.h"

#include <algorithm>

namespace veridraw::pictures {

namespace {

constexpr int kSmallestPixels = 6;

bool darkColour(Colour colour) {
  return colour.lightness() < 150;
}

}  // namespace

Font fittedFont(Canvas& canvas, std::string_view text, Size box, bool bold, int maxPixels) {
  for (int pixels = std::max(kSmallestPixels, maxPixels); pixels >= kSmallestPixels; --pixels) {
    const Font font{pixels, bold};
    if (canvas.textWidth(text, font) <= box.width && canvas.capHeight(font) <= box.height)
      return font;
  }
  return {kSmallestPixels, bold};
}

void drawBall(Canvas& canvas, Point centre, double radius, Colour colour, std::string_view number) {
  const RadialGradient shade{centre - Point{radius / 3, radius / 3},
                             radius * 1.4,
                             {{0, colour.lighter(170)}, {0.45, colour}, {1, colour.darker(170)}}};
  canvas.ellipse({centre.x - radius, centre.y - radius, 2 * radius, 2 * radius},
                 Stroke{colour.darker(220), std::max(0.6, radius / 12)}, shade);
  if (!number.empty()) {
    const Rect face{centre.x - radius * 0.72, centre.y - radius * 0.62, radius * 1.44,
                    radius * 1.24};
    drawFittedText(canvas, face, number, darkColour(colour) ? kWhiteColour : kBlackColour, true,
                   static_cast<int>(radius * 1.15));
  }
}

void drawFittedText(Canvas& canvas, const Rect& box, std::string_view text, Colour colour,
                    bool bold, int maxPixels) {
  const Font font = fittedFont(canvas, text, box.size(), bold, maxPixels);
  // Centre the capitals, not the whole line with its descenders.
  const double baseline = box.centre().y + canvas.capHeight(font) / 2;
  const double left = box.centre().x - canvas.textWidth(text, font) / 2;
  canvas.text({left, baseline}, text, font, colour);
}

void fillPanel(Canvas& canvas, const Rect& area, Colour top, Colour bottom) {
  const LinearGradient shade{area.topLeft(), area.bottomLeft(), {{0, top}, {1, bottom}}};
  const double corner = std::min(area.width, area.height) / 8;
  canvas.roundedRectangle(area.adjusted(0.5, 0.5, -0.5, -0.5), corner,
                          Stroke{bottom.darker(160), 1}, shade);
}

}  // namespace veridraw::pictures
