// Where the windows of the program stand on the screen: a form's window is
// centred whole, title bar and frame included; a message box stands clear of
// the control that the user is looking at; an input box has its frame's
// top-left corner where the logic asks. All sizes and points are in pixels of
// the screen, frames included.
#pragma once

#include <QElapsedTimer>
#include <QMargins>
#include <QObject>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <functional>

class QWidget;

namespace veridraw::gui {

// The top-left corner of a frame of `frame` size centred on the screen's
// `available` area. A frame too big for the area keeps its top-left corner,
// and with it the title bar, on the screen.
QPoint centredFrame(const QRect& available, const QSize& frame);

// The screens were laid out for an 800 x 600 desktop that the window fills.
// On any screen, that desktop is an area of 800 x 600 of the design's pixels
// (scaled with the screen) centred on the `available` area, or from its
// top-left corner where the screen is smaller; what the program places on the
// screen stands in it where its designer saw it.
QRect designedDesktop(const QRect& available);
// The top-left corner of a form window's frame: centred on the designed
// desktop, its title bar on the screen.
QPoint formWindowPlace(const QRect& available, const QSize& frame);
// The top-left corner of an input box's frame: at `designed` on the designed
// desktop, as far as a frame of `frame` size stays on the screen.
QPoint inputBoxPlace(const QRect& available, const QPoint& designed, const QSize& frame);

// The top-left corner of a message box's frame of `box` size: centred on the
// owner's frame as the platform puts it, unless it would cover `keepClear`
// (the focused control, a cell painted red); then below that area, above it,
// to its right or to its left, whichever first leaves it clear, always within
// `available`. When none does, the place that covers the least of it.
QPoint messageBoxPlace(const QRect& available, const QRect& owner, const QSize& box,
                       const QRect& keepClear);

// Keeps the top-left corner of a top-level window's frame where `place` puts
// a frame of its size, from before the window is shown until its frame is
// known, which may be only after it is shown. It places it anew only when the
// frame's size changes (a dialog lays itself out as it is shown; the frame
// comes with the window manager), so the user may still move the window.
class FramePlacer : public QObject {
 public:
  using Place = std::function<QPoint(const QSize& frame)>;
  FramePlacer(QWidget& window, Place place);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void place();
  // Puts a frame that the platform left elsewhere back to its place.
  void settle();
  // The window's frame around its client area, or the frame it is expected to get.
  QMargins frameMargins() const;

  // How often, and for how long after it was placed, a frame that the
  // platform put elsewhere is moved back to its place.
  static constexpr int kCorrections = 3;
  static constexpr int kSettlingMilliseconds = 1000;

  QWidget& window_;
  Place place_;
  QSize placedFrame_;
  QPoint corner_;
  int correctionsLeft_ = 0;
  QElapsedTimer sincePlaced_;
};

}  // namespace veridraw::gui
