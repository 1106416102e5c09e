#include "gui/dialogs/window_placement.h"

#include <QEvent>
#include <QMargins>
#include <QWidget>
#include <algorithm>
#include <array>

#include "gui/look/appearance.h"

namespace veridraw::gui {

namespace {

// The room left between a message box and the area it stays clear of.
constexpr int kGap = 8;
// The desktop the screens were laid out on, 800 x 600 pixels, in twips.
constexpr int kDesignedDesktopWidth = 12000;
constexpr int kDesignedDesktopHeight = 9000;

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

QRect designedDesktop(const QRect& available) {
  QRect desktop(QPoint(), QSize(toPixels(kDesignedDesktopWidth), toPixels(kDesignedDesktopHeight)));
  desktop.moveCenter(available.center());
  if (desktop.width() > available.width()) desktop.moveLeft(available.left());
  if (desktop.height() > available.height()) desktop.moveTop(available.top());
  return desktop;
}

QPoint formWindowPlace(const QRect& available, const QSize& frame) {
  return within(available, frame, centredFrame(designedDesktop(available), frame));
}

QPoint inputBoxPlace(const QRect& available, const QPoint& designed, const QSize& frame) {
  return within(available, frame, designedDesktop(available).topLeft() + designed);
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

namespace {

// The frame around a window's client area, as far as the toolkit knows it:
// none before the window manager has framed the window.
QMargins knownFrame(const QWidget& window) {
  const QRect frame = window.frameGeometry();
  const QRect client = window.geometry();
  return QMargins(client.left() - frame.left(), client.top() - frame.top(),
                  frame.right() - client.right(), frame.bottom() - client.bottom());
}

}  // namespace

FramePlacer::FramePlacer(QWidget& window, Place place)
    : QObject(&window), window_(window), place_(std::move(place)) {
  window_.installEventFilter(this);
  this->place();
}

bool FramePlacer::eventFilter(QObject* watched, QEvent* event) {
  if (watched == &window_ && window_.isVisible()) {
    switch (event->type()) {
      case QEvent::Show:
      case QEvent::Move:
      case QEvent::Resize:
      // The window manager's frame may come to be known only when the window
      // is mapped, activated or first painted, without a move or a resize.
      case QEvent::WindowActivate:
      case QEvent::Paint:
        if (window_.size().grownBy(frameMargins()) != placedFrame_) {
          place();
        } else if (!knownFrame(window_).isNull() && window_.frameGeometry().topLeft() != corner_ &&
                   correctionsLeft_ > 0) {
          // Platforms differ in whether a window not shown yet is placed by
          // its frame or by its client area: once the frame is known, the
          // first places after the show are put right; later moves are the
          // user's.
          --correctionsLeft_;
          window_.move(corner_);
        } else {
          correctionsLeft_ = 0;
        }
        break;
      default:
        break;
    }
  }
  return QObject::eventFilter(watched, event);
}

QMargins FramePlacer::frameMargins() const {
  const QMargins known = knownFrame(window_);
  if (!known.isNull()) return known;
  // Not framed yet: the frame that the window manager gave the window it
  // belongs to is the best guess.
  const QWidget* owner = window_.parentWidget() ? window_.parentWidget()->window() : nullptr;
  return owner != nullptr && owner->isVisible() ? knownFrame(*owner) : QMargins();
}

void FramePlacer::place() {
  const QMargins margins = frameMargins();
  placedFrame_ = window_.size().grownBy(margins);
  corner_ = place_(placedFrame_);
  correctionsLeft_ = kCorrections;
  // move() places the frame's top-left corner by the frame that the toolkit
  // knows; while it knows none, the window system puts the client area at the
  // point given, so the point is where the client area is expected.
  const QMargins known = knownFrame(window_);
  window_.move(corner_ + QPoint(margins.left() - known.left(), margins.top() - known.top()));
}

}  // namespace veridraw::gui
