#include "pictures/classic_edges.h"

namespace veridraw::pictures::classic {

void drawFrame(Canvas& canvas, const PixelRect& area, Colour topLeft, Colour bottomRight) {
  canvas.fillPixels({area.x, area.y, area.width, 1}, topLeft);
  canvas.fillPixels({area.x, area.y, 1, area.height}, topLeft);
  canvas.fillPixels({area.x, area.bottom(), area.width, 1}, bottomRight);
  canvas.fillPixels({area.right(), area.y, 1, area.height}, bottomRight);
}

void drawEdge(Canvas& canvas, const PixelRect& area, Edge edge) {
  const PixelRect inner = area.adjusted(1, 1, -1, -1);
  switch (edge) {
    case Edge::Raised:
      drawFrame(canvas, area, kHighlight, kDarkShadow);
      drawFrame(canvas, inner, kLight, kShadow);
      return;
    case Edge::Sunken:
      drawFrame(canvas, area, kShadow, kHighlight);
      drawFrame(canvas, inner, kDarkShadow, kLight);
      return;
    case Edge::Pressed:
      drawFrame(canvas, area, kDarkShadow, kDarkShadow);
      drawFrame(canvas, inner, kShadow, kShadow);
      return;
  }
}

void drawFocusMark(Canvas& canvas, const PixelRect& area, Colour colour) {
  canvas.dottedFrame(area, colour);
}

}  // namespace veridraw::pictures::classic
