// What the Qt Tests of the desktop share: the program running in a fresh
// directory with a real desktop face, and a way to answer the modal dialog
// that the program is about to show.
#pragma once

#include <QMessageBox>
#include <QPoint>
#include <QTemporaryDir>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <string_view>

#include "gui/control_view.h"
#include "gui/desktop.h"
#include "gui/desktop_dialogs.h"
#include "gui/form_window.h"
#include "screen/application.h"

namespace veridraw::gui::testing {

class ProgramOnDesktop {
 public:
  using FormAdder = std::function<void(Application&)>;
  // The forms of Veridraw unless others are given.
  explicit ProgramOnDesktop(const FormAdder& addForms = {});

  void start(std::string_view firstForm);
  Application& application() { return application_; }
  Desktop& desktop() { return desktop_; }
  // The window on screen; null when there is none.
  FormWindow* window() const { return desktop_.window(); }
  // The view of a control of the window on screen; null when there is none.
  ControlView* view(std::string_view name, int index = kNotInArray) const;
  const QTemporaryDir& directory() const { return directory_; }

 private:
  QTemporaryDir directory_;
  DesktopDialogs dialogs_;
  Application application_;
  Desktop desktop_;
};

// The top-level windows of forms that are visible now.
int visibleFormWindows();

// Waits, from its making to its end, for a modal dialog to stand, and then
// calls `handle` with it; `handle` must close it.
class DialogAnswer {
 public:
  explicit DialogAnswer(std::function<void(QWidget* dialog)> handle);
  DialogAnswer(const DialogAnswer&) = delete;
  DialogAnswer& operator=(const DialogAnswer&) = delete;

  bool answered() const { return answered_; }

 private:
  QTimer timer_;
  std::function<void(QWidget*)> handle_;
  bool answered_ = false;
};

// What a message box showed.
struct MessageBoxSeen {
  QString title;
  QString text;
  QMessageBox::Icon icon = QMessageBox::NoIcon;
  QMessageBox::StandardButtons buttons;
};

// Waits for a message box, notes in `seen` what it shows, and presses `button`.
DialogAnswer answerMessageBox(QMessageBox::StandardButton button, MessageBoxSeen& seen);

// The point of a view, in its own coordinates, that a click should hit.
QPoint middleOf(const QWidget& view);

}  // namespace veridraw::gui::testing
