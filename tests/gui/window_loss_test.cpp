// A window that the window system destroys from outside, with no close
// request, ends the program as the window's close button does.
#include <xcb/xcb.h>
#include <QAbstractEventDispatcher>
#include <QTest>

#include "gui_test_support.h"
#include "program/program.h"

using namespace veridraw;
using namespace veridraw::gui;
using namespace veridraw::gui::testing;

namespace {

// Hands the event loop the X11 notice that `window` was destroyed, as the xcb
// platform would.
void destroyNotice(WId window) {
  xcb_destroy_notify_event_t notice{};
  notice.response_type = XCB_DESTROY_NOTIFY;
  notice.event = static_cast<xcb_window_t>(window);
  notice.window = static_cast<xcb_window_t>(window);
  qintptr result = 0;
  QAbstractEventDispatcher::instance()->filterNativeEvent("xcb_generic_event_t", &notice, &result);
}

}  // namespace

class WindowLossTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    program_ = startAsDelivered();
    QVERIFY(program_->window() != nullptr);
  }
  void cleanup() { program_.reset(); }

  void aDestroyedWindowEndsTheProgram() {
    int exitCode = -1;
    program_->desktop().onFinished([&exitCode](int code) { exitCode = code; });
    destroyNotice(program_->window()->winId());
    QTRY_VERIFY(program_->desktop().finished());
    QCOMPARE(exitCode, 0);
    QCOMPARE(program_->application().state(), Application::State::Ended);
    QTRY_COMPARE(visibleFormWindows(), 0);
  }

  void theDrawScreensWindowTooAfterTheStartScreensIsGone() {
    const WId startWindow = program_->window()->winId();
    QTest::keyClick(program_->window(), Qt::Key_Return);
    QCOMPARE(program_->window()->form().name(), "Veridraw7f");
    // The start screen's window went away in passing: that ends nothing.
    destroyNotice(startWindow);
    QTest::qWait(50);
    QVERIFY(!program_->desktop().finished());
    QCOMPARE(program_->application().state(), Application::State::Running);
    destroyNotice(program_->window()->winId());
    QTRY_VERIFY(program_->desktop().finished());
    QCOMPARE(program_->desktop().exitCode(), 0);
  }

  void anotherWindowsDestructionEndsNothing() {
    destroyNotice(program_->window()->winId() + 1);
    QTest::qWait(50);
    QVERIFY(!program_->desktop().finished());
    QVERIFY(program_->window()->isVisible());
  }

 private:
  std::unique_ptr<ProgramOnDesktop> program_;
};

QTEST_MAIN(WindowLossTest)
#include "window_loss_test.moc"
