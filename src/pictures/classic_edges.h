// The classic look of the controls, drawn on a canvas: the three-dimensional
// edges of buttons and boxes, and the dotted mark of the keyboard focus.
#pragma once

#include "pictures/canvas.h"

namespace veridraw::pictures::classic {

// The colours of the classic desktop's edges and selection.
inline constexpr Colour kHighlight{255, 255, 255};
inline constexpr Colour kLight{223, 223, 223};
inline constexpr Colour kShadow{128, 128, 128};
inline constexpr Colour kDarkShadow{0, 0, 0};
inline constexpr Colour kSelection{0, 0, 128};

// The edge of two pixels round a control: a raised button, a sunken box, a
// button held down.
enum class Edge { Raised, Sunken, Pressed };

// A frame one pixel wide, its top and left edges in one colour and its bottom
// and right edges, corners included, in the other. Filled, not stroked: the
// frames of a window full of cells are drawn at every key.
void drawFrame(Canvas& canvas, const PixelRect& area, Colour topLeft, Colour bottomRight);

void drawEdge(Canvas& canvas, const PixelRect& area, Edge edge);

// The dotted rectangle of the keyboard focus, on the area's outer pixels.
void drawFocusMark(Canvas& canvas, const PixelRect& area, Colour colour = kDarkShadow);

}  // namespace veridraw::pictures::classic
