#include "gui/look/control_painting.h"

#include <QTextLayout>
#include <algorithm>

#include "gui/look/appearance.h"
#include "gui/look/qt_canvas.h"
#include "pictures/classic_edges.h"

namespace veridraw::gui {

namespace {

constexpr int kBevel = 2;
// The room between the border of a text box and its text, on either side.
constexpr int kTextMargin = 1;
// The room left of the text of a list's row.
constexpr int kRowMargin = 2;
constexpr int kFocusInset = 4;
constexpr int kLeastShrink = 2;
constexpr int kShrinkShare = 8;

namespace classic = pictures::classic;

pictures::PixelRect pixels(const QRect& area) {
  return {area.x(), area.y(), area.width(), area.height()};
}

const QColor& qtShade(classic::Shade shade) {
  switch (shade) {
    case classic::Shade::Highlight:
      return edges::kHighlight;
    case classic::Shade::Light:
      return edges::kLight;
    case classic::Shade::Shadow:
      return edges::kShadow;
    case classic::Shade::DarkShadow:
      break;
  }
  return edges::kDarkShadow;
}

// The bands of the classic edges, as the pictures library lays them out for
// every face, filled here straight on the painter: a window full of cells
// paints them at every key.
template <std::size_t N>
void fillBands(QPainter& painter, const std::array<classic::Band, N>& bands) {
  for (const classic::Band& band : bands)
    painter.fillRect(band.area.x, band.area.y, band.area.width, band.area.height,
                     qtShade(band.shade));
}

void drawEdge(QPainter& painter, const QRect& area, classic::Edge edge) {
  fillBands(painter, classic::edgeBands(pixels(area), edge));
}

// The width of the border that the model's BorderStyle gives a text or list box.
int fieldBorder(const ControlLook& look) {
  return look.borderStyle != 0 ? kBevel : 0;
}

// The dotted rectangle of the keyboard focus.
void drawFocusRect(QPainter& painter, const QRect& area,
                   pictures::Colour colour = classic::kDarkShadow) {
  QtCanvas canvas(painter);
  classic::drawFocusMark(canvas, pixels(area), colour);
}

Qt::Alignment horizontal(Alignment alignment) {
  switch (alignment) {
    case Alignment::Right:
      return Qt::AlignRight;
    case Alignment::Center:
      return Qt::AlignHCenter;
    case Alignment::Left:
      break;
  }
  return Qt::AlignLeft;
}

// Whether the caption fits the box in the font. The descenders of the last
// line may be cut, as the classic forms cut them.
bool captionFits(const QRect& box, int flags, const QFont& font, const QString& text) {
  const QFontMetrics metrics(font);
  const QRect needed = metrics.boundingRect(box, flags, text);
  return needed.width() <= box.width() && needed.height() - metrics.descent() <= box.height();
}

int captionFlags(const ControlLook& look) {
  const int placed = look.kind == ControlKind::CommandButton
                         ? int(Qt::AlignCenter)
                         : int(horizontal(look.alignment) | Qt::AlignTop);
  return placed | Qt::TextShowMnemonic | Qt::TextWordWrap;
}

// The designed font, or a pixel or two smaller where the caption would not fit
// its control in it. A bitmap face has no sizes in between: a scalable face of
// its look stands in for it there.
QFont fittedCaptionFont(const QRect& box, int flags, const ControlLook& look) {
  if (captionFits(box, flags, look.font, look.text)) return look.font;
  const int designed = look.font.pixelSize();
  const int smallest = designed - std::max(kLeastShrink, designed / kShrinkShare);
  for (int pixels = designed - 1; pixels > smallest; --pixels) {
    const QFont font = scalableFont(pixels, look.font.bold());
    if (captionFits(box, flags, font, look.text)) return font;
  }
  return scalableFont(smallest, look.font.bold());
}

// The text laid out in lines of `width`.
std::unique_ptr<QTextLayout> laidOut(const QString& text, const QFont& font, int width,
                                     const QTextOption& option) {
  auto layout = std::make_unique<QTextLayout>(text, font);
  layout->setTextOption(option);
  qreal height = 0;
  layout->beginLayout();
  for (QTextLine line = layout->createLine(); line.isValid(); line = layout->createLine()) {
    line.setLineWidth(width);
    line.setPosition({0, height});
    height += line.height();
  }
  layout->endLayout();
  return layout;
}

// A caption: the "&" underlines the access key; a disabled one is etched.
void drawCaption(QPainter& painter, const QRect& area, const ControlLook& look, PaintCache* cache) {
  const int flags = captionFlags(look);
  const auto fit = [&] { return fittedCaptionFont(area, flags, look); };
  painter.setFont(
      cache != nullptr ? cache->captionFont(look.text, look.font, area.size(), flags, fit) : fit());
  if (!look.enabled) {
    painter.setPen(edges::kHighlight);
    painter.drawText(area.translated(1, 1), flags, look.text);
    painter.setPen(edges::kShadow);
  } else {
    painter.setPen(look.foreground);
  }
  painter.drawText(area, flags, look.text);
}

void paintButton(QPainter& painter, const QRect& area, const ControlLook& look, bool pressed,
                 PaintCache* cache) {
  painter.fillRect(area, look.background);
  QRect face = area;
  if (look.focused) {
    // The button that Enter presses wears a black frame.
    fillBands(painter, classic::frameBands(pixels(face), classic::Shade::DarkShadow,
                                           classic::Shade::DarkShadow));
    face.adjust(1, 1, -1, -1);
  }
  drawEdge(painter, face, pressed ? classic::Edge::Pressed : classic::Edge::Raised);
  QRect content = textArea(area, look);
  if (pressed) content.translate(1, 1);
  if (look.picture != Picture::None)
    paintPicture(painter, content.adjusted(1, 1, -1, -1), look.picture);
  if (!look.text.isEmpty()) drawCaption(painter, content, look, cache);
  if (look.focused) {
    const int inset = kFocusInset - kBevel;
    drawFocusRect(painter, content.adjusted(inset, inset, -inset, -inset));
  }
}

void paintLabel(QPainter& painter, const QRect& area, const ControlLook& look, PaintCache* cache) {
  painter.fillRect(area, look.background);
  if (look.borderStyle != 0) drawEdge(painter, area, classic::Edge::Sunken);
  drawCaption(painter, textArea(area, look), look, cache);
}

// How a text box lays out its text: within its border, on one line or, in a
// box tall enough for more, wrapped.
struct TextFrame {
  QRect inner;  // inside the border
  QTextOption option;
  int width = 0;  // of a line of text
  bool wraps = false;
};

TextFrame textFrame(const QRect& area, const ControlLook& look) {
  TextFrame frame;
  const int border = fieldBorder(look);
  frame.inner = area.adjusted(border, border, -border, -border);
  frame.wraps = frame.inner.height() >= 2 * QFontMetrics(look.font).height();
  frame.option = QTextOption(horizontal(look.alignment));
  frame.option.setWrapMode(frame.wraps ? QTextOption::WrapAtWordBoundaryOrAnywhere
                                       : QTextOption::NoWrap);
  frame.width = frame.inner.width() - 2 * kTextMargin;
  return frame;
}

// Where the first line of the laid-out text starts: a single line stands in
// the middle, scrolled so that a focused caret stays in view.
QPointF textOrigin(const TextFrame& frame, const ControlLook& look, const QTextLayout& layout) {
  const QFontMetrics metrics(look.font);
  QPointF origin(frame.inner.left() + kTextMargin, frame.inner.top() + 1);
  if (frame.wraps) return origin;
  origin.setY(frame.inner.top() + std::max(0, (frame.inner.height() - metrics.height()) / 2));
  const QTextLine caretLine = layout.lineForTextPosition(look.caret);
  if (look.focused && caretLine.isValid()) {
    const qreal caretX = caretLine.cursorToX(look.caret);
    if (caretX > frame.width) origin.rx() -= caretX - frame.width;
  }
  return origin;
}

// The text of a text box, with the selection and, when it has the focus, the caret.
void paintText(QPainter& painter, const QRect& area, const ControlLook& look, PaintCache* cache) {
  const TextFrame frame = textFrame(area, look);
  std::unique_ptr<QTextLayout> own;
  if (cache == nullptr) own = laidOut(look.text, look.font, frame.width, frame.option);
  const QTextLayout& layout =
      cache != nullptr ? cache->layout(look.text, look.font, frame.width, frame.option) : *own;
  const QPointF origin = textOrigin(frame, look, layout);

  QList<QTextLayout::FormatRange> selections;
  if (look.selectionLength > 0) {
    QTextLayout::FormatRange selection;
    selection.start = look.caret;
    selection.length = look.selectionLength;
    selection.format.setBackground(edges::kSelection);
    selection.format.setForeground(edges::kHighlight);
    selections.append(selection);
  }
  painter.save();
  painter.setClipRect(frame.inner);
  painter.setPen(look.foreground);
  layout.draw(&painter, origin, selections);
  if (look.focused) layout.drawCursor(&painter, origin, look.caret);
  painter.restore();
}

void paintTextBox(QPainter& painter, const QRect& area, const ControlLook& look,
                  PaintCache* cache) {
  painter.fillRect(area, look.background);
  if (look.borderStyle != 0) drawEdge(painter, area, classic::Edge::Sunken);
  paintText(painter, area, look, cache);
}

void paintListBox(QPainter& painter, const QRect& area, const ControlLook& look) {
  painter.fillRect(area, look.background);
  if (look.borderStyle != 0) drawEdge(painter, area, classic::Edge::Sunken);
  const ListRows rows = listRows(area, look);
  painter.save();
  painter.setClipRect(rows.items);
  painter.setFont(look.font);
  for (int shown = 0; shown <= rows.visibleRows; ++shown) {
    const int item = look.topIndex + shown;
    if (item >= look.items.size()) break;
    const QRect row = rows.rowRect(item, look.topIndex);
    const bool selected = item == look.listIndex;
    if (selected) painter.fillRect(row, edges::kSelection);
    painter.setPen(selected ? edges::kHighlight : look.foreground);
    painter.drawText(row.adjusted(kRowMargin, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter,
                     look.items[item]);
    if (look.focused && item == std::max(0, look.listIndex))
      drawFocusRect(painter, row, selected ? classic::kHighlight : classic::kDarkShadow);
  }
  painter.restore();
}

}  // namespace

QRect textArea(const QRect& area, const ControlLook& look) {
  switch (look.kind) {
    case ControlKind::CommandButton: {
      const int inset = kBevel + (look.focused ? 1 : 0);
      return area.adjusted(inset, inset, -inset, -inset);
    }
    case ControlKind::TextBox: {
      const int border = fieldBorder(look);
      return area.adjusted(border + kTextMargin, border, -border - kTextMargin, -border);
    }
    case ControlKind::Label:
      if (look.borderStyle != 0) return area.adjusted(kBevel, kBevel, -kBevel, -kBevel);
      return area;
    case ControlKind::ListBox:
    case ControlKind::Image:
    case ControlKind::Document:
      break;
  }
  return area;
}

QFont captionFont(const QRect& area, const ControlLook& look) {
  return fittedCaptionFont(textArea(area, look), captionFlags(look), look);
}

ListRows listRows(const QRect& area, const ControlLook& look) {
  ListRows rows;
  const int border = fieldBorder(look);
  rows.items = area.adjusted(border, border, -border, -border);
  rows.rowHeight = std::max(1, QFontMetrics(look.font).height());
  rows.visibleRows = std::max(1, rows.items.height() / rows.rowHeight);
  if (look.items.size() > rows.visibleRows) {
    rows.scrollBar = rows.items;
    rows.scrollBar.setLeft(rows.items.right() - kScrollBarWidth + 1);
    rows.items.setRight(rows.scrollBar.left() - 1);
  }
  return rows;
}

int ListRows::rowAt(const QPoint& point, int topIndex, int itemCount) const {
  if (!items.contains(point)) return -1;
  const int row = topIndex + (point.y() - items.top()) / rowHeight;
  return row < itemCount ? row : -1;
}

QRect ListRows::rowRect(int row, int topIndex) const {
  return {items.left(), items.top() + (row - topIndex) * rowHeight, items.width(), rowHeight};
}

QRect characterRect(const QRect& area, const ControlLook& look, int offset) {
  const TextFrame frame = textFrame(area, look);
  const std::unique_ptr<QTextLayout> layout =
      laidOut(look.text, look.font, frame.width, frame.option);
  const QPointF origin = textOrigin(frame, look, *layout);
  const QTextLine line = layout->lineForTextPosition(offset);
  if (!line.isValid()) return {};
  const qreal left = line.cursorToX(offset);
  const qreal right = line.cursorToX(std::min<int>(offset + 1, look.text.size()));
  return QRectF(origin.x() + left, origin.y() + line.y(), right - left, line.height())
      .toAlignedRect();
}

int ListRows::lastTopIndex(int itemCount) const {
  return std::max(0, itemCount - visibleRows);
}

QTextLayout& PaintCache::layout(const QString& text, const QFont& font, int width,
                                const QTextOption& option) {
  if (layout_ == nullptr || text != layoutText_ || font != layoutFont_ || width != layoutWidth_ ||
      option.alignment() != layoutAlignment_ || option.wrapMode() != layoutWrap_) {
    layout_ = laidOut(text, font, width, option);
    layoutText_ = text;
    layoutFont_ = font;
    layoutWidth_ = width;
    layoutAlignment_ = option.alignment();
    layoutWrap_ = option.wrapMode();
  }
  return *layout_;
}

QFont PaintCache::captionFont(const QString& text, const QFont& font, const QSize& size, int flags,
                              const std::function<QFont()>& fit) {
  if (!captionKnown_ || text != captionText_ || font != captionDesigned_ || size != captionSize_ ||
      flags != captionFlags_) {
    captionFitted_ = fit();
    captionText_ = text;
    captionDesigned_ = font;
    captionSize_ = size;
    captionFlags_ = flags;
    captionKnown_ = true;
  }
  return captionFitted_;
}

void paintControl(QPainter& painter, const QRect& area, const ControlLook& look, bool pressed,
                  PaintCache* cache) {
  switch (look.kind) {
    case ControlKind::CommandButton:
      paintButton(painter, area, look, pressed, cache);
      break;
    case ControlKind::Label:
      paintLabel(painter, area, look, cache);
      break;
    case ControlKind::TextBox:
      paintTextBox(painter, area, look, cache);
      break;
    case ControlKind::ListBox:
      paintListBox(painter, area, look);
      break;
    case ControlKind::Image:
    case ControlKind::Document:
      paintPicture(painter, area, look.picture);
      break;
  }
}

}  // namespace veridraw::gui
