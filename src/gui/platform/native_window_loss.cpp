#include "gui/platform/native_window_loss.h"

#include <QCoreApplication>
#include <QTimer>

#if __has_include(<xcb/xcb.h>)
#include <xcb/xcb.h>
#define VERIDRAW_HAS_XCB 1
#endif

namespace veridraw::gui {

namespace {

// Whether the message is X11's notice that this window was destroyed.
bool destroys(const QByteArray& eventType, void* message, WId window) {
#ifdef VERIDRAW_HAS_XCB
  if (eventType != "xcb_generic_event_t") return false;
  const auto* event = static_cast<const xcb_generic_event_t*>(message);
  // The top bit marks an event that another client sent.
  if ((event->response_type & 0x7f) != XCB_DESTROY_NOTIFY) return false;
  return static_cast<const xcb_destroy_notify_event_t*>(message)->window == window;
#else
  (void)eventType;
  (void)message;
  (void)window;
  return false;
#endif
}

}  // namespace

NativeWindowLoss::NativeWindowLoss(QWidget& widget, std::function<void()> lost)
    : widget_(widget), lost_(std::move(lost)) {
  QCoreApplication::instance()->installNativeEventFilter(this);
}

NativeWindowLoss::~NativeWindowLoss() {
  QCoreApplication::instance()->removeNativeEventFilter(this);
}

bool NativeWindowLoss::nativeEventFilter(const QByteArray& eventType, void* message, qintptr*) {
  // A widget without a native window yet has nothing to lose; asking for its
  // id would make one.
  if (!widget_.testAttribute(Qt::WA_WState_Created)) return false;
  if (destroys(eventType, message, widget_.winId())) QTimer::singleShot(0, &widget_, lost_);
  return false;
}

}  // namespace veridraw::gui
