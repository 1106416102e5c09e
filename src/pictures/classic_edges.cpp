#include "pictures/classic_edges.h"

namespace veridraw::pictures::classic {

namespace {

template <std::size_t N>
void fill(Canvas& canvas, const std::array<Band, N>& bands) {
  for (const Band& band : bands)
    canvas.fillPixels(band.area, colourOf(band.shade));
}

}  // namespace

void drawFrame(Canvas& canvas, const PixelRect& area, Shade topLeft, Shade bottomRight) {
  fill(canvas, frameBands(area, topLeft, bottomRight));
}

void drawEdge(Canvas& canvas, const PixelRect& area, Edge edge) {
  fill(canvas, edgeBands(area, edge));
}

void drawFocusMark(Canvas& canvas, const PixelRect& area, Colour colour) {
  canvas.dottedFrame(area, colour);
}

}  // namespace veridraw::pictures::classic
