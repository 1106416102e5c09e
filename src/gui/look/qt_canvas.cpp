#include "gui/look/qt_canvas.h"

#include <QFontMetricsF>
#include <QLinearGradient>
#include <QPainterPath>
#include <QPolygonF>
#include <QRadialGradient>
#include <array>

#include "gui/look/appearance.h"
#include "gui/window/windows1252.h"
#include "pictures/pictures.h"

namespace veridraw::gui {

namespace {

using namespace veridraw::pictures;

constexpr int kWrappedText = Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap;

QPointF toQPoint(Point point) {
  return {point.x, point.y};
}

QRectF toQRect(const Rect& rect) {
  return {rect.x, rect.y, rect.width, rect.height};
}

QPolygonF toQPolygon(const std::vector<Point>& points) {
  QPolygonF polygon;
  polygon.reserve(static_cast<qsizetype>(points.size()));
  for (const Point& point : points)
    polygon.append(toQPoint(point));
  return polygon;
}

// The caps and joins of the canvas, in the order of their enums.
constexpr std::array kCaps{Qt::FlatCap, Qt::SquareCap, Qt::RoundCap};
constexpr std::array kJoins{Qt::MiterJoin, Qt::BevelJoin, Qt::RoundJoin};

QPen toQPen(const Stroke& stroke) {
  return QPen(QBrush(toQColor(stroke.colour)), stroke.width, Qt::SolidLine,
              kCaps[static_cast<std::size_t>(stroke.cap)],
              kJoins[static_cast<std::size_t>(stroke.join)]);
}

void addStops(QGradient& gradient, const std::vector<GradientStop>& stops) {
  for (const GradientStop& stop : stops)
    gradient.setColorAt(stop.at, toQColor(stop.colour));
}

struct BrushOf {
  QBrush operator()(std::monostate) const { return Qt::NoBrush; }
  QBrush operator()(Colour colour) const { return toQColor(colour); }
  QBrush operator()(const LinearGradient& shade) const {
    QLinearGradient gradient(toQPoint(shade.from), toQPoint(shade.to));
    addStops(gradient, shade.stops);
    return gradient;
  }
  QBrush operator()(const RadialGradient& shade) const {
    QRadialGradient gradient(toQPoint(shade.centre), shade.radius);
    addStops(gradient, shade.stops);
    return gradient;
  }
};

}  // namespace

const QFont& QtCanvas::font(Font font) {
  if (font_ != font) {
    qtFont_ = scalableFont(font.pixels, font.bold);
    metrics_.reset();
    font_ = font;
  }
  return qtFont_;
}

const QFontMetricsF& QtCanvas::metrics(Font font) {
  const QFont& made = this->font(font);
  if (!metrics_) metrics_.emplace(made);
  return *metrics_;
}

const QString& QtCanvas::converted(std::string_view text) {
  if (!text_ || *text_ != text) {
    qtText_ = fromWindows1252(text);
    text_ = std::string(text);
  }
  return qtText_;
}

void QtCanvas::use(const std::optional<Stroke>& stroke, const Fill& fill) {
  painter_.setPen(stroke ? toQPen(*stroke) : QPen(Qt::NoPen));
  painter_.setBrush(std::visit(BrushOf{}, fill));
}

void QtCanvas::rectangle(const Rect& area, const std::optional<Stroke>& stroke, const Fill& fill) {
  use(stroke, fill);
  painter_.drawRect(toQRect(area));
}

void QtCanvas::roundedRectangle(const Rect& area, double radius,
                                const std::optional<Stroke>& stroke, const Fill& fill) {
  use(stroke, fill);
  painter_.drawRoundedRect(toQRect(area), radius, radius);
}

void QtCanvas::ellipse(const Rect& bounds, const std::optional<Stroke>& stroke, const Fill& fill) {
  use(stroke, fill);
  painter_.drawEllipse(toQRect(bounds));
}

void QtCanvas::polygon(const std::vector<Point>& points, const std::optional<Stroke>& stroke,
                       const Fill& fill) {
  use(stroke, fill);
  painter_.drawPolygon(toQPolygon(points));
}

void QtCanvas::fill(const Rect& area, Colour colour) {
  painter_.fillRect(toQRect(area), toQColor(colour));
}

void QtCanvas::line(Point from, Point to, const Stroke& stroke) {
  painter_.setPen(toQPen(stroke));
  painter_.drawLine(toQPoint(from), toQPoint(to));
}

void QtCanvas::polyline(const std::vector<Point>& points, const Stroke& stroke) {
  if (points.empty()) return;
  QPainterPath path;
  path.moveTo(toQPoint(points.front()));
  for (std::size_t i = 1; i < points.size(); ++i)
    path.lineTo(toQPoint(points[i]));
  use(stroke, {});
  painter_.drawPath(path);
}

void QtCanvas::text(Point origin, std::string_view text, Font font, Colour colour) {
  painter_.setFont(this->font(font));
  painter_.setPen(toQColor(colour));
  painter_.drawText(toQPoint(origin), converted(text));
}

void QtCanvas::wrappedText(const Rect& box, std::string_view text, Font font, Colour colour) {
  painter_.setFont(this->font(font));
  painter_.setPen(toQColor(colour));
  painter_.drawText(toQRect(box), kWrappedText, converted(text));
}

double QtCanvas::textWidth(std::string_view text, Font font) {
  return metrics(font).horizontalAdvance(converted(text));
}

double QtCanvas::capHeight(Font font) {
  return metrics(font).capHeight();
}

double QtCanvas::wrappedHeight(const Rect& box, std::string_view text, Font font) {
  return metrics(font).boundingRect(toQRect(box), kWrappedText, converted(text)).height();
}

void QtCanvas::fillPixels(const PixelRect& area, Colour colour) {
  painter_.fillRect(area.x, area.y, area.width, area.height, toQColor(colour));
}

void QtCanvas::dottedFrame(const PixelRect& area, Colour colour) {
  QPen pen(toQColor(colour));
  pen.setDashPattern({1, 1});
  painter_.setPen(pen);
  painter_.setBrush(Qt::NoBrush);
  painter_.drawRect(QRect(area.x, area.y, area.width, area.height).adjusted(0, 0, -1, -1));
}

void paintPicture(QPainter& painter, const QRectF& area, Picture picture) {
  if (picture == Picture::None || area.width() < 1 || area.height() < 1) return;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setRenderHint(QPainter::TextAntialiasing);
  painter.setClipRect(area);
  QtCanvas canvas(painter);
  pictures::drawPicture(canvas, {area.x(), area.y(), area.width(), area.height()}, picture);
  painter.restore();
}

}  // namespace veridraw::gui
