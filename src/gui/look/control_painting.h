// Paints controls in the look of the classic desktop: raised buttons, sunken
// white boxes, flat labels, the focus drawn where the model has it.
#pragma once

#include <QPainter>
#include <QRect>
#include <QTextLayout>
#include <QTextOption>
#include <functional>
#include <memory>

#include "gui/look/control_look.h"

namespace veridraw::gui {

// What painting a control keeps from one paint to the next, so that painting
// the same text again (the focus moving on, a neighbour repainted over it)
// shapes nothing anew: a text box's laid-out text, a caption's fitted font.
class PaintCache {
 public:
  // The text laid out in the font for lines of `width`, on one line or wrapped.
  QTextLayout& layout(const QString& text, const QFont& font, int width, const QTextOption& option);
  // The font that `fit` chooses for the caption in a box of `size`.
  QFont captionFont(const QString& text, const QFont& font, const QSize& size, int flags,
                    const std::function<QFont()>& fit);

 private:
  QString layoutText_;
  QFont layoutFont_;
  int layoutWidth_ = -1;
  Qt::Alignment layoutAlignment_;
  QTextOption::WrapMode layoutWrap_ = QTextOption::NoWrap;
  std::unique_ptr<QTextLayout> layout_;

  QString captionText_;
  QFont captionDesigned_;
  QSize captionSize_;
  int captionFlags_ = 0;
  QFont captionFitted_;
  bool captionKnown_ = false;
};

// Paints the control in `area`; with a cache, reuses what it kept of the last paint.
void paintControl(QPainter& painter, const QRect& area, const ControlLook& look, bool pressed,
                  PaintCache* cache = nullptr);

// The box within a control's area in which its caption or text is laid out:
// inside a button's bevel (and the frame of the focus, when it has it), inside
// a label's border, inside a text box's border and margins.
QRect textArea(const QRect& area, const ControlLook& look);

// The font that a label's or a button's caption is painted in within `area`:
// the designed one, or where the caption wouldn't fit in it, up to two pixels
// smaller.
QFont captionFont(const QRect& area, const ControlLook& look);

// The rows of a list box, for painting them and for finding the row under the
// mouse. A scroll bar, when the items don't fit, takes the right edge.
inline constexpr int kScrollBarWidth = 16;

struct ListRows {
  QRect items;      // the area of the rows, inside the border
  QRect scrollBar;  // empty when every item fits
  int rowHeight = 0;
  int visibleRows = 0;

  // The item under the point, or -1.
  int rowAt(const QPoint& point, int topIndex, int itemCount) const;
  // Where the row of an item stands while the list is scrolled to `topIndex`.
  QRect rowRect(int row, int topIndex) const;
  int lastTopIndex(int itemCount) const;
};

ListRows listRows(const QRect& area, const ControlLook& look);

// Where a character of a text box stands in `area`, as painting lays the
// text out; empty past the end of the text.
QRect characterRect(const QRect& area, const ControlLook& look, int offset);

}  // namespace veridraw::gui
