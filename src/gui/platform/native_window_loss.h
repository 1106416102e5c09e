// Notices when the window system destroys a widget's native window behind the
// program's back, as another client may do on X11: no close request comes,
// the window is simply gone. The widget learns of it through `lost`, called
// from the event loop once the notice has been taken.
#pragma once

#include <QAbstractNativeEventFilter>
#include <QWidget>
#include <functional>

namespace veridraw::gui {

class NativeWindowLoss : public QAbstractNativeEventFilter {
 public:
  NativeWindowLoss(QWidget& widget, std::function<void()> lost);
  NativeWindowLoss(const NativeWindowLoss&) = delete;
  NativeWindowLoss& operator=(const NativeWindowLoss&) = delete;
  ~NativeWindowLoss() override;

  bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;

 private:
  QWidget& widget_;
  std::function<void()> lost_;
};

}  // namespace veridraw::gui
