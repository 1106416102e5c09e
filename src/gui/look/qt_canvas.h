// The pictures' canvas on a QPainter, and the pictures painted with it.
#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QRectF>
#include <QString>
#include <optional>
#include <string>

#include "pictures/canvas.h"
#include "screen/picture.h"

namespace veridraw::gui {

// Draws on the painter as it stands: each shape sets the pen and the brush
// it needs; fonts are the forms' scalable face (scalableFont). A fitted text
// is measured in size after size and then drawn, so the canvas keeps the last
// font with its metrics and the last text converted.
class QtCanvas final : public pictures::Canvas {
 public:
  explicit QtCanvas(QPainter& painter) : painter_(painter) {}

  void rectangle(const pictures::Rect& area, const std::optional<pictures::Stroke>& stroke,
                 const pictures::Fill& fill) override;
  void roundedRectangle(const pictures::Rect& area, double radius,
                        const std::optional<pictures::Stroke>& stroke,
                        const pictures::Fill& fill) override;
  void ellipse(const pictures::Rect& bounds, const std::optional<pictures::Stroke>& stroke,
               const pictures::Fill& fill) override;
  void polygon(const std::vector<pictures::Point>& points,
               const std::optional<pictures::Stroke>& stroke, const pictures::Fill& fill) override;
  void fill(const pictures::Rect& area, pictures::Colour colour) override;
  void line(pictures::Point from, pictures::Point to, const pictures::Stroke& stroke) override;
  void polyline(const std::vector<pictures::Point>& points,
                const pictures::Stroke& stroke) override;
  void text(pictures::Point origin, std::string_view text, pictures::Font font,
            pictures::Colour colour) override;
  void wrappedText(const pictures::Rect& box, std::string_view text, pictures::Font font,
                   pictures::Colour colour) override;
  double textWidth(std::string_view text, pictures::Font font) override;
  double capHeight(pictures::Font font) override;
  double wrappedHeight(const pictures::Rect& box, std::string_view text,
                       pictures::Font font) override;
  void fillPixels(const pictures::PixelRect& area, pictures::Colour colour) override;
  void dottedFrame(const pictures::PixelRect& area, pictures::Colour colour) override;

 private:
  void use(const std::optional<pictures::Stroke>& stroke, const pictures::Fill& fill);
  const QFont& font(pictures::Font font);
  const QFontMetricsF& metrics(pictures::Font font);
  const QString& converted(std::string_view text);

  QPainter& painter_;
  std::optional<pictures::Font> font_;
  QFont qtFont_;
  std::optional<QFontMetricsF> metrics_;
  std::optional<std::string> text_;
  QString qtText_;
};

// Paints the picture to fill the area, anti-aliased and clipped to it.
void paintPicture(QPainter& painter, const QRectF& area, Picture picture);

}  // namespace veridraw::gui
