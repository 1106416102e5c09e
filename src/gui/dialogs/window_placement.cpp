#include "gui/dialogs/window_placement.h"

#include <QEvent>
#include <QMargins>
#include <QTimer>
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
  // A window of no size yet, as some platforms report for a moment while
  // mapping it, says nothing of where it will stand.
  if (watched != &window_ || !window_.isVisible() || window_.width() <= 1 || window_.height() <= 1)
    return QObject::eventFilter(watched, event);
  switch (event->type()) {
    case QEvent::Show:
    case QEvent::Move:
    case QEvent::Resize:
    // The window manager's frame may come to be known only when the window is
    // mapped, activated or first painted, without a move or a resize.
    case QEvent::WindowActivate:
    case QEvent::Paint:
      if (window_.size().grownBy(frameMargins()) != placedFrame_) {
        place();
      } else {
        settle();
      }
      break;
    default:
      break;
  }
  return QObject::eventFilter(watched, event);
}

void FramePlacer::settle() {
  // Platforms differ in whether a window not shown yet is placed by its frame
  // or by its client area, and a move asked for early may be carried out late:
  // while the window settles, a frame found elsewhere is put back; later moves
  // are the user's.
  if (!window_.isVisible() || knownFrame(window_).isNull() ||
      window_.frameGeometry().topLeft() == corner_ || correctionsLeft_ <= 0 ||
      sincePlaced_.elapsed() >= kSettlingMilliseconds)
    return;
  --correctionsLeft_;
  window_.move(corner_);
}

QMargins FramePlacer::frameMargins() const {
  // The frame that the window manager last gave a window of the program: the
  // best guess for a shown window not framed yet, or whose frame the toolkit
  // has for a moment forgotten while the window manager redraws it.
  static QMargins lastKnown;
  if (const QMargins known = knownFrame(window_); !known.isNull()) {
    lastKnown = known;
    return known;
  }
  if (window_.isVisible()) return lastKnown;
  // Not shown yet: the frame of the window it belongs to.
  const QWidget* owner = window_.parentWidget() ? window_.parentWidget()->window() : nullptr;
  return owner != nullptr && owner->isVisible() ? knownFrame(*owner) : QMargins();
}

void FramePlacer::place() {
  const QMargins margins = frameMargins();
  placedFrame_ = window_.size().grownBy(margins);
  corner_ = place_(placedFrame_);
  correctionsLeft_ = kCorrections;
  sincePlaced_.start();
  // Where no event follows the window manager's last word, look again.
  for (const int after : {kSettlingMilliseconds / 4, kSettlingMilliseconds / 2})
    QTimer::singleShot(after, this, [this] { settle(); });
  // move() places the frame's top-left corner by the frame that the toolkit
  // knows; while it knows none, the window system puts the client area at the
  // point given, so the point is where the client area is expected.
  const QMargins known = knownFrame(window_);
  window_.move(corner_ + QPoint(margins.left() - known.left(), margins.top() - known.top()));
}

}  // namespace veridraw::gui
