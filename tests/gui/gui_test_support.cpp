#include "gui_test_support.h"

#include <QApplication>
#include <QTimer>
#include <memory>

#include "shell/program.h"

namespace veridraw::gui::testing {

namespace {

constexpr int kPollMilliseconds = 10;
constexpr int kPollsBeforeGivingUp = 500;

void pollForDialog(const std::shared_ptr<std::function<void(QWidget*)>>& handle, int pollsLeft) {
  QTimer::singleShot(kPollMilliseconds, [handle, pollsLeft] {
    if (QWidget* dialog = QApplication::activeModalWidget()) return (*handle)(dialog);
    if (pollsLeft > 0) pollForDialog(handle, pollsLeft - 1);
  });
}

}  // namespace

ProgramOnDesktop::ProgramOnDesktop(const FormAdder& addForms)
    : application_(dialogs_, directory_.path().toStdString()), desktop_(application_, dialogs_) {
  (addForms ? addForms : addVeridrawForms)(application_);
}

void ProgramOnDesktop::start(std::string_view firstForm) {
  desktop_.start(firstForm);
}

ControlView* ProgramOnDesktop::view(std::string_view name, int index) const {
  return window() != nullptr ? window()->view(name, index) : nullptr;
}

int visibleFormWindows() {
  int visible = 0;
  for (QWidget* widget : QApplication::topLevelWidgets())
    if (dynamic_cast<FormWindow*>(widget) != nullptr && widget->isVisible()) ++visible;
  return visible;
}

void whenDialogShows(std::function<void(QWidget* dialog)> handle) {
  pollForDialog(std::make_shared<std::function<void(QWidget*)>>(std::move(handle)),
                kPollsBeforeGivingUp);
}

QPoint middleOf(const QWidget& view) {
  return view.rect().center();
}

}  // namespace veridraw::gui::testing
