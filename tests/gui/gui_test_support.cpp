#include "gui_test_support.h"

#include <QAbstractButton>
#include <QApplication>

#include "shell/program.h"

namespace veridraw::gui::testing {

namespace {

constexpr int kPollMilliseconds = 10;

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

DialogAnswer::DialogAnswer(std::function<void(QWidget* dialog)> handle)
    : handle_(std::move(handle)) {
  QObject::connect(&timer_, &QTimer::timeout, [this] {
    QWidget* dialog = QApplication::activeModalWidget();
    if (dialog == nullptr) return;
    timer_.stop();
    answered_ = true;
    handle_(dialog);
  });
  timer_.start(kPollMilliseconds);
}

DialogAnswer answerMessageBox(QMessageBox::StandardButton button, MessageBoxSeen& seen) {
  return DialogAnswer([&seen, button](QWidget* dialog) {
    auto* box = qobject_cast<QMessageBox*>(dialog);
    seen = {box->windowTitle(), box->text(), box->icon(), box->standardButtons()};
    box->button(button)->click();
  });
}

QPoint middleOf(const QWidget& view) {
  return view.rect().center();
}

}  // namespace veridraw::gui::testing
