// The surface that the pictures and the classic edges of the controls are
// drawn on: a few shapes, gradients, lines and text, in pixels, with no
// toolkit behind it. Each face implements it once on its own painter.
#pragma once

#include <optional>
#include <string_view>
#include <variant>
#include <vector>

#include "pictures/colour.h"
#include "pictures/geometry.h"

namespace veridraw::pictures {

enum class LineCap { Flat, Square, Round };
enum class LineJoin { Miter, Bevel, Round };

// The outline of a shape or a line: solid, in a colour and a width.
struct Stroke {
  Colour colour;
  double width = 1;
  LineCap cap = LineCap::Square;
  LineJoin join = LineJoin::Bevel;
};

// A shape without an outline.
inline constexpr std::optional<Stroke> kNoStroke;

struct GradientStop {
  double at = 0;  // from 0 at the start to 1 at the end
  Colour colour;

  bool operator==(const GradientStop&) const = default;
};

// Colours shading from `from` to `to` along the line between them, the
// colour of the nearest end beyond them.
struct LinearGradient {
  Point from;
  Point to;
  std::vector<GradientStop> stops;

  bool operator==(const LinearGradient&) const = default;
};

// Colours shading from the centre out to the radius.
struct RadialGradient {
  Point centre;
  double radius = 0;
  std::vector<GradientStop> stops;

  bool operator==(const RadialGradient&) const = default;
};

// What fills a shape: nothing, one colour, or a gradient.
using Fill = std::variant<std::monostate, Colour, LinearGradient, RadialGradient>;

// The scalable sans-serif face of the forms, at a size in pixels.
struct Font {
  int pixels = 0;
  bool bold = false;

  bool operator==(const Font&) const = default;
};

// Strings are single-byte text, as the forms hold it.
class Canvas {
 public:
  virtual ~Canvas() = default;

  // Shapes, outlined with the stroke (none: no outline) and filled.
  virtual void rectangle(const Rect& area, const std::optional<Stroke>& stroke,
                         const Fill& fill) = 0;
  virtual void roundedRectangle(const Rect& area, double radius,
                                const std::optional<Stroke>& stroke, const Fill& fill) = 0;
  virtual void ellipse(const Rect& bounds, const std::optional<Stroke>& stroke,
                       const Fill& fill) = 0;
  // A closed polygon through the points.
  virtual void polygon(const std::vector<Point>& points, const std::optional<Stroke>& stroke,
                       const Fill& fill) = 0;
  // An area filled with one colour, with nothing drawn round it.
  virtual void fill(const Rect& area, Colour colour) = 0;

  // Open lines.
  virtual void line(Point from, Point to, const Stroke& stroke) = 0;
  virtual void polyline(const std::vector<Point>& points, const Stroke& stroke) = 0;

  // Text on one line, its baseline starting at `origin`.
  virtual void text(Point origin, std::string_view text, Font font, Colour colour) = 0;
  // Text wrapped at word boundaries to the width of the box, from its top left.
  virtual void wrappedText(const Rect& box, std::string_view text, Font font, Colour colour) = 0;

  // Measures of text in a font: the advance of a line, the height of the
  // capitals, the height of the text wrapped to the width of the box.
  virtual double textWidth(std::string_view text, Font font) = 0;
  virtual double capHeight(Font font) = 0;
  virtual double wrappedHeight(const Rect& box, std::string_view text, Font font) = 0;

  // In whole pixels, for the edges of the controls: an area filled with one
  // colour, and the dotted frame of the keyboard focus just inside it.
  virtual void fillPixels(const PixelRect& area, Colour colour) = 0;
  virtual void dottedFrame(const PixelRect& area, Colour colour) = 0;
};

}  // namespace veridraw::pictures
