// The desktop face of the program: it shows the window of the model's active
// form, hands the model every key and click, and after each of them, and
// before every dialog, redraws the window from the model. It holds no logic of
// its own. When the program ends, by End, by the window's close button or by
// a fatal error (which it reports first), it hides its window and says so.
#pragma once

#include <QPointer>
#include <functional>
#include <string_view>

#include "gui/window/key_input.h"
#include "screen/application.h"

namespace veridraw::gui {

class DesktopDialogs;
class FormWindow;

class Desktop {
 public:
  Desktop(Application& application, DesktopDialogs& dialogs);
  Desktop(const Desktop&) = delete;
  Desktop& operator=(const Desktop&) = delete;
  ~Desktop();

  // Starts the program at its first form.
  void start(std::string_view firstForm);

  // A user's action on the model; the screen follows it.
  void act(const std::function<void(Application&)>& action);
  void key(const KeyInput& input);
  // Scrolling a list moves its TopIndex and runs no event.
  void scroll(Control& list, int topIndex);

  // The window on screen, or null.
  FormWindow* window() const;
  bool finished() const { return finished_; }
  // 0 after End, 1 after a fatal error.
  int exitCode() const { return exitCode_; }
  // Called once, when the program has ended and its window is gone.
  void onFinished(std::function<void(int exitCode)> listener) { onFinished_ = std::move(listener); }

 private:
  // Brings the screen up to the model's state.
  void refresh();
  void showWindowFor(Form& form);
  void finish(int exitCode);

  Application& application_;
  DesktopDialogs& dialogs_;
  QPointer<FormWindow> window_;
  bool finished_ = false;
  int exitCode_ = 0;
  std::function<void(int)> onFinished_;
};

}  // namespace veridraw::gui
