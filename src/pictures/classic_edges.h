// The classic look of the controls: the three-dimensional edges of buttons and
// boxes, as bands of one pixel in four shades, and the dotted mark of the
// keyboard focus. A face fills the bands itself where a repaint can't spare a
// call through the canvas, or draws them on its canvas.
#pragma once

#include <array>
#include <cstddef>

#include "pictures/canvas.h"

namespace veridraw::pictures::classic {

// The colours of the classic desktop's edges and selection.
inline constexpr Colour kHighlight{255, 255, 255};
inline constexpr Colour kLight{223, 223, 223};
inline constexpr Colour kShadow{128, 128, 128};
inline constexpr Colour kDarkShadow{0, 0, 0};
inline constexpr Colour kSelection{0, 0, 128};

// The shades of the edges, lit from the top left.
enum class Shade { Highlight, Light, Shadow, DarkShadow };

constexpr Colour colourOf(Shade shade) {
  constexpr std::array kShades{kHighlight, kLight, kShadow, kDarkShadow};
  return kShades[static_cast<std::size_t>(shade)];
}

// A band of an edge: a row or a column of pixels in one shade.
struct Band {
  PixelRect area;
  Shade shade;
};

// A frame one pixel wide, its top and left edges in one shade and its bottom
// and right edges, corners included, in the other. Filled, not stroked: the
// frames of a window full of cells are drawn at every key.
constexpr std::array<Band, 4> frameBands(const PixelRect& area, Shade topLeft, Shade bottomRight) {
  return {{{{area.x, area.y, area.width, 1}, topLeft},
           {{area.x, area.y, 1, area.height}, topLeft},
           {{area.x, area.bottom(), area.width, 1}, bottomRight},
           {{area.right(), area.y, 1, area.height}, bottomRight}}};
}

// The edge of two pixels round a control: a raised button, a sunken box, a
// button held down.
enum class Edge { Raised, Sunken, Pressed };

// Its two frames, the outer one first.
constexpr std::array<Band, 8> edgeBands(const PixelRect& area, Edge edge) {
  const auto frames = [&area](Shade outerTopLeft, Shade outerBottomRight, Shade innerTopLeft,
                              Shade innerBottomRight) {
    const std::array<Band, 4> outer = frameBands(area, outerTopLeft, outerBottomRight);
    const std::array<Band, 4> inner =
        frameBands(area.adjusted(1, 1, -1, -1), innerTopLeft, innerBottomRight);
    return std::array<Band, 8>{outer[0], outer[1], outer[2], outer[3],
                               inner[0], inner[1], inner[2], inner[3]};
  };
  switch (edge) {
    case Edge::Sunken:
      return frames(Shade::Shadow, Shade::Highlight, Shade::DarkShadow, Shade::Light);
    case Edge::Pressed:
      return frames(Shade::DarkShadow, Shade::DarkShadow, Shade::Shadow, Shade::Shadow);
    case Edge::Raised:
      break;
  }
  return frames(Shade::Highlight, Shade::DarkShadow, Shade::Light, Shade::Shadow);
}

// The frame and the edge drawn on a canvas.
void drawFrame(Canvas& canvas, const PixelRect& area, Shade topLeft, Shade bottomRight);
void drawEdge(Canvas& canvas, const PixelRect& area, Edge edge);

// The dotted rectangle of the keyboard focus, on the area's outer pixels.
void drawFocusMark(Canvas& canvas, const PixelRect& area, Colour colour = kDarkShadow);

}  // namespace veridraw::pictures::classic
