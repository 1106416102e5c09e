// A canvas that draws nothing and keeps what it was asked to draw, one entry a
// call, for tests of the pictures. Text is measured as if every letter were
// six tenths of the font's size wide and the capitals seven tenths high, and
// wrapped text took one line of 1.2 sizes per 40 letters.
#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "pictures/canvas.h"

namespace veridraw::testing {

struct Drawn {
  enum class Kind {
    Rectangle,
    RoundedRectangle,
    Ellipse,
    Polygon,
    Fill,
    Line,
    Polyline,
    Text,
    WrappedText,
    FillPixels,
    DottedFrame
  };
  Kind kind;
  std::vector<pictures::Point> points;  // the corners of the area, or the points
  std::optional<pictures::Stroke> stroke;
  pictures::Fill fill;
  std::string text;
  pictures::Font font;
};

class RecordingCanvas final : public pictures::Canvas {
 public:
  std::vector<Drawn> drawn;

  std::size_t count(Drawn::Kind kind) const {
    std::size_t found = 0;
    for (const Drawn& entry : drawn)
      if (entry.kind == kind) ++found;
    return found;
  }
  std::vector<std::string> texts() const {
    std::vector<std::string> found;
    for (const Drawn& entry : drawn)
      if (entry.kind == Drawn::Kind::Text || entry.kind == Drawn::Kind::WrappedText)
        found.push_back(entry.text);
    return found;
  }

  void rectangle(const pictures::Rect& area, const std::optional<pictures::Stroke>& stroke,
                 const pictures::Fill& fill) override {
    add(Drawn::Kind::Rectangle, corners(area), stroke, fill);
  }
  void roundedRectangle(const pictures::Rect& area, double,
                        const std::optional<pictures::Stroke>& stroke,
                        const pictures::Fill& fill) override {
    add(Drawn::Kind::RoundedRectangle, corners(area), stroke, fill);
  }
  void ellipse(const pictures::Rect& bounds, const std::optional<pictures::Stroke>& stroke,
               const pictures::Fill& fill) override {
    add(Drawn::Kind::Ellipse, corners(bounds), stroke, fill);
  }
  void polygon(const std::vector<pictures::Point>& points,
               const std::optional<pictures::Stroke>& stroke, const pictures::Fill& fill) override {
    add(Drawn::Kind::Polygon, points, stroke, fill);
  }
  void fill(const pictures::Rect& area, pictures::Colour colour) override {
    add(Drawn::Kind::Fill, corners(area), std::nullopt, colour);
  }
  void line(pictures::Point from, pictures::Point to, const pictures::Stroke& stroke) override {
    add(Drawn::Kind::Line, {from, to}, stroke, {});
  }
  void polyline(const std::vector<pictures::Point>& points,
                const pictures::Stroke& stroke) override {
    add(Drawn::Kind::Polyline, points, stroke, {});
  }
  void text(pictures::Point origin, std::string_view text, pictures::Font font,
            pictures::Colour colour) override {
    add(Drawn::Kind::Text, {origin}, std::nullopt, colour, text, font);
  }
  void wrappedText(const pictures::Rect& box, std::string_view text, pictures::Font font,
                   pictures::Colour colour) override {
    add(Drawn::Kind::WrappedText, corners(box), std::nullopt, colour, text, font);
  }
  double textWidth(std::string_view text, pictures::Font font) override {
    return static_cast<double>(text.size()) * font.pixels * 0.6;
  }
  double capHeight(pictures::Font font) override { return font.pixels * 0.7; }
  double wrappedHeight(const pictures::Rect&, std::string_view text, pictures::Font font) override {
    return static_cast<double>(text.size() / 40 + 1) * font.pixels * 1.2;
  }
  void fillPixels(const pictures::PixelRect& area, pictures::Colour colour) override {
    add(Drawn::Kind::FillPixels, corners(area), std::nullopt, colour);
  }
  void dottedFrame(const pictures::PixelRect& area, pictures::Colour colour) override {
    add(Drawn::Kind::DottedFrame, corners(area), pictures::Stroke{colour}, {});
  }

 private:
  static std::vector<pictures::Point> corners(const pictures::Rect& area) {
    return {area.topLeft(), area.bottomRight()};
  }
  static std::vector<pictures::Point> corners(const pictures::PixelRect& area) {
    return {{double(area.x), double(area.y)},
            {double(area.x + area.width), double(area.y + area.height)}};
  }
  void add(Drawn::Kind kind, std::vector<pictures::Point> points,
           std::optional<pictures::Stroke> stroke, pictures::Fill fill, std::string_view text = {},
           pictures::Font font = {}) {
    drawn.push_back(
        {kind, std::move(points), std::move(stroke), std::move(fill), std::string(text), font});
  }
};

}  // namespace veridraw::testing
