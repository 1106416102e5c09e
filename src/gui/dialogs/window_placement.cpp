#include "gui/dialogs/window_placement.h"

#include <QEvent>
#include <QWidget>
#include <algorithm>
#include <array>

namespace veridraw::gui {

namespace {

// The room left between a message box and the area it stays clear of.
constexpr int kGap = 8;

// The top-left corner that keeps a frame of `size` within `available` as far
// as it can; a frame too big keeps its top-left corner on the screen.
QPoint within(const QRect& available, const QSize& size, QPoint topLeft) {
  topLeft.setX(
      std::max(available.left(), std::min(topLeft.x(), available.right() + 1 - size.width())));
  topLeft.setY(
      std::max(available.top(), std::min(topLeft.y(), available.bottom() + 1 - size.height())));
  return topLeft;
}

int overlap(const QRect& a, const QRect& b) {
  const QRect common = a.intersected(b);
  return common.isEmpty() ? 0 : common.width() * common.height();
}

}  // namespace

QPoint centredFrame(const QRect& available, const QSize& frame) {
  QRect placed(QPoint(), frame);
  placed.moveCenter(available.center());
  return within(available, frame, placed.topLeft());
}

QPoint messageBoxPlace(const QRect& available, const QRect& owner, const QSize& box,
                       const QRect& keepClear) {
  QRect centred(QPoint(), box);
  centred.moveCenter(owner.center());
  // Centred on the area across it, as QRect::moveCenter centres.
  const int middleX = keepClear.center().x() - (box.width() - 1) / 2;
  const int middleY = keepClear.center().y() - (box.height() - 1) / 2;
  const std::array candidates{
      centred.topLeft(),
      QPoint(middleX, keepClear.bottom() + 1 + kGap),
      QPoint(middleX, keepClear.top() - kGap - box.height()),
      QPoint(keepClear.right() + 1 + kGap, middleY),
      QPoint(keepClear.left() - kGap - box.width(), middleY),
  };
  QPoint best;
  int leastCovered = -1;
  for (const QPoint& candidate : candidates) {
    const QPoint place = within(available, box, candidate);
    const int covered = keepClear.isEmpty() ? 0 : overlap(QRect(place, box), keepClear);
    if (covered == 0) return place;
    if (leastCovered < 0 || covered < leastCovered) {
      leastCovered = covered;
      best = place;
    }
  }
  return best;
}

FramePlacer::FramePlacer(QWidget& window, Place place)
    : QObject(&window), window_(window), place_(std::move(place)) {
  window_.installEventFilter(this);
  this->place();
}

bool FramePlacer::eventFilter(QObject* watched, QEvent* event) {
  if (watched == &window_) {
    switch (event->type()) {
      case QEvent::Show:
      case QEvent::Move:
      case QEvent::Resize:
        if (window_.frameGeometry().size() != placedFrame_) place();
        break;
      default:
        break;
    }
  }
  return QObject::eventFilter(watched, event);
}

void FramePlacer::place() {
  placedFrame_ = window_.frameGeometry().size();
  // For a window, move() places the frame's top-left corner, once the frame is known.
  window_.move(place_(placedFrame_));
}

}  // namespace veridraw::gui
