#include "gui/window/desktop.h"

#include <cstdio>
#include <string>

#include "gui/accessibility/accessibility.h"
#include "gui/dialogs/desktop_dialogs.h"
#include "gui/window/form_window.h"

namespace veridraw::gui {

namespace {

// The window being replaced may be the one whose event is running now.
void discard(FormWindow* window) {
  if (window == nullptr) return;
  window->hide();
  window->deleteLater();
}

// The box of a fatal error says only what the classic runtime said; the line
// on standard error names the operation, the file and the folder too, for the
// user who started the program from a terminal and for a bug report. It goes
// out before the box, so that it is there even if the box is never answered.
// An error on a file points to the manual's way of mending the folder.
void reportOnStandardError(const FatalError& error, const std::filesystem::path& folder) {
  std::string line = "veridraw: " + describeFatalError(error, folder);
  if (!error.operation().empty()) line += "; see veridraw(1), REPAIRING A FOLDER";
  line += '\n';
  std::fputs(line.c_str(), stderr);
  std::fflush(stderr);
}

}  // namespace

Desktop::Desktop(Application& application, DesktopDialogs& dialogs)
    : application_(application), dialogs_(dialogs) {
  installAccessibility();
  dialogs_.setOwner([this]() -> QWidget* {
    refresh();
    return window_;
  });
}

Desktop::~Desktop() {
  dialogs_.setOwner(nullptr);
  delete window_;
}

FormWindow* Desktop::window() const {
  return window_;
}

void Desktop::start(std::string_view firstForm) {
  application_.start(firstForm);
  refresh();
}

void Desktop::act(const std::function<void(Application&)>& action) {
  action(application_);
  refresh();
}

void Desktop::key(const KeyInput& input) {
  act([&input](Application& application) {
    if (const Key* key = std::get_if<Key>(&input)) application.pressKey(*key);
    if (const TypedText* typed = std::get_if<TypedText>(&input))
      for (const char byte : typed->bytes)
        application.typeCharacter(byte);
    if (const AccessKey* access = std::get_if<AccessKey>(&input))
      application.pressAccessKey(access->letter);
  });
}

void Desktop::scroll(Control& list, int topIndex) {
  if (!application_.running()) return;
  list.setTopIndex(topIndex);
  refresh();
}

void Desktop::refresh() {
  if (finished_) return;
  switch (application_.state()) {
    case Application::State::Fatal:
      reportOnStandardError(*application_.fatalError(), application_.files().workingDirectory());
      showRunTimeError(window_, *application_.fatalError());
      return finish(1);
    case Application::State::Ended:
      return finish(0);
    case Application::State::NotStarted:
    case Application::State::Running:
      break;
  }
  // While the first form loads there is no window yet.
  Form* form = application_.activeForm();
  if (form == nullptr) return;
  if (window_ == nullptr || &window_->form() != form || !window_->showsCurrentControls())
    return showWindowFor(*form);
  window_->sync();
}

void Desktop::showWindowFor(Form& form) {
  FormWindow* previous = window_;
  window_ = new FormWindow(*this, form);
  window_->sync();
  window_->show();
  window_->activateWindow();
  window_->setFocus();
  discard(previous);
}

void Desktop::finish(int exitCode) {
  finished_ = true;
  exitCode_ = exitCode;
  discard(window_);
  window_ = nullptr;
  if (onFinished_) onFinished_(exitCode);
}

}  // namespace veridraw::gui
