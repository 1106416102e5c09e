#include "gui_test_support.h"

#include <QAbstractButton>
#include <QApplication>
#include <QInputDialog>
#include <QLineEdit>
#include <QScreen>
#include <QTest>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "gui/dialogs/window_placement.h"
#include "program/program.h"
#include "runner/delivered_files.h"

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

void ProgramOnDesktop::deliver() {
  for (const DeliveredFile& file : deliveredFiles())
    writeFile(file.name, file.content);
}

void ProgramOnDesktop::writeFile(const std::string& name, const std::string& content) {
  std::ofstream(std::filesystem::path(directory_.path().toStdString()) / name, std::ios::binary)
      << content;
}

std::string ProgramOnDesktop::fileContent(const std::string& name) const {
  std::ifstream file(std::filesystem::path(directory_.path().toStdString()) / name,
                     std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

ControlView* ProgramOnDesktop::view(std::string_view name, int index) const {
  return window() != nullptr ? window()->view(name, index) : nullptr;
}

std::unique_ptr<ProgramOnDesktop> startAsDelivered() {
  auto program = std::make_unique<ProgramOnDesktop>();
  program->deliver();
  program->start(kFirstForm);
  return program;
}

void makeDraw705Current(ProgramOnDesktop& program) {
  program.writeFile("DrawNumber", "705\r\n");
  program.writeFile("705", "705\r\nX0308172239401202\r\nZ17033908\r\n");
}

void openTicketScreen(ProgramOnDesktop& program, std::string_view gameButton) {
  program.start(kFirstForm);
  QTest::keyClick(program.window(), Qt::Key_Return);
  QTest::keyClick(program.window(), Qt::Key_Y, Qt::AltModifier);
  ControlView* button = program.view(gameButton);
  if (button == nullptr || !button->isVisible()) {
    QTest::qFail("the game's button isn't on the screen", __FILE__, __LINE__);
    return;
  }
  QTest::mouseClick(button, Qt::LeftButton, {}, middleOf(*button));
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

MessageBoxSeen seenIn(const QMessageBox& box) {
  return {box.windowTitle(), box.text(), box.icon(), box.standardButtons()};
}

DialogAnswer answerMessageBox(QMessageBox::StandardButton button, MessageBoxSeen& seen) {
  return DialogAnswer([&seen, button](QWidget* dialog) {
    auto* box = qobject_cast<QMessageBox*>(dialog);
    seen = seenIn(*box);
    box->button(button)->click();
  });
}

DialogAnswer answerInputBox(const QString& answer, InputBoxSeen& seen) {
  return DialogAnswer([&seen, answer](QWidget* dialog) {
    auto* box = qobject_cast<QInputDialog*>(dialog);
    seen = {box->windowTitle(), box->labelText(), box->textValue(), placeOnDesignedDesktop(*box)};
    auto* field = box->findChild<QLineEdit*>();
    QTest::keyClicks(field, answer);
    QTest::keyClick(field, Qt::Key_Return);
  });
}

QPoint middleOf(const QWidget& view) {
  return view.rect().center();
}

QPoint placeOnDesignedDesktop(const QWidget& window) {
  return window.pos() - designedDesktop(window.screen()->availableGeometry()).topLeft();
}

}  // namespace veridraw::gui::testing
