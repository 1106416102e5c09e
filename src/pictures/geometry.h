// Points and rectangles in pixels, in floating point and in whole pixels. Their
// arithmetic is that of the toolkits' own rectangles, in the same order of
// operations, so that a picture lands on the same pixels on every face.
#pragma once

namespace veridraw::pictures {

struct Point {
  double x = 0;
  double y = 0;

  friend Point operator+(Point a, Point b) { return {a.x + b.x, a.y + b.y}; }
  friend Point operator-(Point a, Point b) { return {a.x - b.x, a.y - b.y}; }
  friend Point operator*(Point point, double factor) {
    return {point.x * factor, point.y * factor};
  }
  bool operator==(const Point&) const = default;
};

struct Size {
  double width = 0;
  double height = 0;
};

struct Rect {
  double x = 0;
  double y = 0;
  double width = 0;
  double height = 0;

  // The rectangle from one corner to the other.
  static Rect between(Point topLeft, Point bottomRight) {
    return {topLeft.x, topLeft.y, bottomRight.x - topLeft.x, bottomRight.y - topLeft.y};
  }
  static Rect at(Point topLeft, Size size) {
    return {topLeft.x, topLeft.y, size.width, size.height};
  }

  double left() const { return x; }
  double top() const { return y; }
  double right() const { return x + width; }
  double bottom() const { return y + height; }
  Point topLeft() const { return {x, y}; }
  Point bottomLeft() const { return {x, y + height}; }
  Point bottomRight() const { return {x + width, y + height}; }
  Point centre() const { return {x + width / 2, y + height / 2}; }
  Size size() const { return {width, height}; }

  // Each edge moved by its own amount: the left and top ones by dx1 and dy1,
  // the right and bottom ones by dx2 and dy2.
  Rect adjusted(double dx1, double dy1, double dx2, double dy2) const {
    return {x + dx1, y + dy1, width + dx2 - dx1, height + dy2 - dy1};
  }
  Rect translated(double dx, double dy) const { return {x + dx, y + dy, width, height}; }

  bool operator==(const Rect&) const = default;
};

// A rectangle of whole pixels.
struct PixelRect {
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;

  constexpr int right() const { return x + width - 1; }
  constexpr int bottom() const { return y + height - 1; }
  constexpr PixelRect adjusted(int dx1, int dy1, int dx2, int dy2) const {
    return {x + dx1, y + dy1, width + dx2 - dx1, height + dy2 - dy1};
  }

  bool operator==(const PixelRect&) const = default;
};

}  // namespace veridraw::pictures
